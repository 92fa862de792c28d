#include "verify/windows/results_pane.h"

#include "verify/messages.h"
#include "verify/windows/captions.h"
#include "verify/windows/invalid_pane.h"
#include "verify/windows/kind_bar.h"
#include "verify/windows/report_pane.h"

#include <QBoxLayout>
#include <QButtonGroup>
#include <QLineEdit>
#include <QRadioButton>
#include <QStackedWidget>
#include <QTimer>

#include <algorithm>

namespace zandor {

namespace {

constexpr int SearchAfter = 120; // ms without another letter

struct ListRowOfPane {
    const char* name;
    Message caption;
    const char* french;
};
constexpr ListRowOfPane Lists[] = {
    {"optINVALIDES", message::ShowInvalid, "Liste des fichiers invalides"},
    {"optDOUBLONS", message::ShowDuplicates, "Liste des fichiers dupliqués"},
    {"optINTROUVABLES", message::ShowMissing, "Liste des fichiers manquants"},
};

} // namespace

ResultsPane::ResultsPane(VerifySession& session, QWidget* parent) : QWidget(parent), session_(session) {
    setObjectName("fmRESULTATS");
    build();
    connectControls();
    refresh(false);
}

void ResultsPane::build() {
    kinds_ = new KindBar(this);
    tbSEARCH_ = named(new QLineEdit(this), "tbSEARCH");
    tbSEARCH_->setClearButtonEnabled(true);
    clearByEscape(*tbSEARCH_);
    searching_ = new QTimer(this);
    searching_->setSingleShot(true);
    searching_->setInterval(SearchAfter);
    auto* choice = new QHBoxLayout;
    for (std::size_t i = 0; i < lists_.size(); ++i) {
        lists_[i] = named(new QRadioButton(this), Lists[i].name);
        choice->addWidget(lists_[i]);
    }
    // Not by themselves: they would take the buttons of the kinds for their own.
    auto* group = new QButtonGroup(this);
    for (QRadioButton* list : lists_)
        group->addButton(list);
    lists_[Invalid]->setChecked(true);
    choice->addStretch(1);
    shown_ = new QStackedWidget(this);
    fmINVALIDE_ = new InvalidPane(session_, shown_);
    fmDOUBLONS_ = new ReportPane(session_, ReportPane::Duplicates, shown_);
    fmINTROUVABLES_ = new ReportPane(session_, ReportPane::Missing, shown_);
    for (QWidget* pane : std::initializer_list<QWidget*>{fmINVALIDE_, fmDOUBLONS_, fmINTROUVABLES_})
        shown_->addWidget(pane);
    auto* column = new QVBoxLayout(this);
    column->addWidget(kinds_);
    column->addWidget(tbSEARCH_);
    column->addLayout(choice);
    column->addWidget(shown_, 1);
}

void ResultsPane::connectControls() {
    connect(kinds_, &KindBar::chosen, this, &ResultsPane::chooseKind);
    connect(tbSEARCH_, &QLineEdit::textChanged, searching_, qOverload<>(&QTimer::start));
    connect(searching_, &QTimer::timeout, this, [this] { showLists(false); });
    connect(tbSEARCH_, &QLineEdit::returnPressed, this, [this] {
        showLists(false);
        focusResults();
    });
    for (std::size_t i = 0; i < lists_.size(); ++i)
        connect(lists_[i], &QRadioButton::clicked, this, [this, i] {
            if (kind_) // of another list
                chooseKind(std::nullopt);
            chooseList(static_cast<List>(i));
        });
    connect(&session_, &VerifySession::resultsChanged, this, [this] { refresh(true); });
}

void ResultsPane::addCaptions(Captions& captions) {
    for (std::size_t i = 0; i < lists_.size(); ++i)
        captions.add(lists_[i], Lists[i].caption, Lists[i].french);
    fmINVALIDE_->addCaptions(captions);
    fmDOUBLONS_->addCaptions(captions);
    fmINTROUVABLES_->addCaptions(captions);
}

void ResultsPane::applyLanguage() {
    tbSEARCH_->setPlaceholderText(toQt(session_.frame().text(message::SearchResults)));
    tbSEARCH_->setAccessibleName(tbSEARCH_->placeholderText());
    fmINVALIDE_->applyLanguage();
    refresh(true);
}

// ---- what is shown

bool ResultsPane::has(List list) const {
    const VerifResults& results = session_.results();
    if (list == Invalid)
        return !results.InvalidFiles.empty() || !results.mandatory.empty();
    return list == Duplicates ? !results.DuplicateEntries.empty() : !results.MissingEntries.empty();
}

bool ResultsPane::any() const {
    return has(Invalid) || has(Duplicates) || has(Missing);
}

void ResultsPane::clear() {
    kind_.reset();
    tbSEARCH_->clear();
    searching_->stop();
    refresh(false);
}

void ResultsPane::showPass() {
    clear();
    for (const List list : {Invalid, Duplicates, Missing})
        if (has(list))
            return chooseList(list);
    chooseList(Invalid);
}

// The results are others than before.
void ResultsPane::refresh(bool keepPlace) {
    finder_ = std::make_unique<ResultFinder>(session_.results());
    const std::vector<FaultCount> counts = countFaults(session_.results());
    if (kind_ && std::ranges::find(counts, *kind_, &FaultCount::kind) == counts.end())
        kind_.reset();
    kinds_->showCounts(session_.frame(), counts, kind_);
    kinds_->setVisible(!counts.empty());
    tbSEARCH_->setEnabled(any());
    for (const List list : {Invalid, Duplicates, Missing})
        lists_[list]->setEnabled(has(list));
    showLists(keepPlace);
}

void ResultsPane::showLists(bool keepPlace) {
    searching_->stop();
    const Frame& frame = session_.frame();
    const VerifResults& results = session_.results();
    const ResultFilter filter{kind_, fromQt(tbSEARCH_->text().trimmed())};
    const Message hint = !session_.verified() ? message::NothingVerified
                         : has(Invalid)       ? message::NoFileFits
                                              : message::NoInvalidFile;
    fmINVALIDE_->setEmptyHint(toQt(frame.text(hint)));
    fmINVALIDE_->showFiles(faultyFiles(results, *finder_, filter), kind_, keepPlace);
    fmDOUBLONS_->showEntries(finder_->duplicateEntries(filter));
    fmINTROUVABLES_->showEntries(finder_->missingEntries(filter));
}

void ResultsPane::chooseList(List list) {
    lists_[list]->setChecked(true);
    shown_->setCurrentIndex(list);
}

void ResultsPane::chooseKind(const std::optional<FaultKind>& kind) {
    kind_ = kind;
    refresh(false);
    if (!kind)
        return;
    switch (kind->group) {
    case FaultGroup::Line:
    case FaultGroup::MandatoryKey:
        return chooseList(Invalid);
    case FaultGroup::Duplicate:
        return chooseList(Duplicates);
    case FaultGroup::MissingTexture:
    case FaultGroup::MissingSound:
        return chooseList(Missing);
    }
}

void ResultsPane::focusSearch() {
    tbSEARCH_->setFocus();
    tbSEARCH_->selectAll();
}

void ResultsPane::focusResults() {
    if (lists_[Invalid]->isChecked())
        fmINVALIDE_->focusFiles();
}

void ResultsPane::nextFault() {
    if (lists_[Invalid]->isChecked())
        fmINVALIDE_->nextFault();
}

} // namespace zandor
