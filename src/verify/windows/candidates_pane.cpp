#include "verify/windows/candidates_pane.h"

#include "catalogue/catalogue.h"
#include "editor/messages.h"
#include "editor/windows/pane_parts.h"
#include "frame/windows/cursors.h"
#include "text/text.h"
#include "verify/external_editor.h"
#include "verify/messages.h"
#include "verify/result_rows.h"
#include "verify/windows/captions.h"
#include "verify/windows/result_view.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace zandor {

namespace {

struct KindRow {
    VerifiedKind kind;
    const char* name;
    Message caption;
    const char* french;
};
constexpr KindRow Kinds[] = {
    {VerifiedKind::Consists, "optRAMES", message::KindConsists, "Rames"},
    {VerifiedKind::Engines, "optMOTRICES", message::KindEngines, "Motrices"},
    {VerifiedKind::Wagons, "optWAGONS", message::KindWagons, "Wagons"},
};

} // namespace

struct CandidatesPane::Box {
    const char* name;
    bool VerifOptions::*option;
    Message caption;
    const char* french;
    bool isRepair, forConsists;
};
constexpr CandidatesPane::Box CandidatesPane::Boxes[] = {
    {"chkSHORTNAME", &VerifOptions::CheckName, message::BoxCheckName, "Nom", false, true},
    {"chkSHAPES", &VerifOptions::CheckTextures, message::BoxCheckTextures, "Fichier de textures", false,
     false},
    {"chkSONS", &VerifOptions::CheckSounds, message::BoxCheckSounds, "Fichiers sons", false, false},
    {"chkDOUBLONS", &VerifOptions::CheckDuplicates, message::BoxCheckDuplicates, "Fichiers dupliqués", false,
     false},
    {"chkRepairQuotes", &VerifOptions::RepairQuotes, message::BoxRepairQuotes,
     "Guillemets absents - Sound ( )", true, false},
    {"chkRepairSound", &VerifOptions::RepairSounds, message::BoxRepairSounds, "Fichiers sons (sms)", true,
     false},
};

CandidatesPane::CandidatesPane(VerifySession& session, QWidget* parent) : QWidget(parent), session_(session) {
    setObjectName("fmVERIF_FILES");
    build();
    connectControls();
    showOptions();
    fill();
}

// ---- how it is put together

void CandidatesPane::build() {
    auto* left = new QWidget(this);
    auto* choices = new QVBoxLayout(left);
    choices->setContentsMargins(0, 0, 0, 0);
    choices->addWidget(buildKinds());
    choices->addWidget(buildBoxes());
    choices->addStretch(1);
    auto* row = new QHBoxLayout(this);
    row->setSpacing(12);
    row->addWidget(new LowPane(left, this));
    row->addWidget(buildList(), 1);
}

QWidget* CandidatesPane::buildKinds() {
    grpKIND_ = named(new QGroupBox(this), "grpKIND");
    auto* column = new QVBoxLayout(grpKIND_);
    for (const KindRow& row : Kinds) {
        auto* button = named(new QRadioButton(grpKIND_), row.name);
        button->setChecked(row.kind == session_.choices().kind);
        kinds_[static_cast<std::size_t>(row.kind)] = button;
        column->addWidget(button);
    }
    return grpKIND_;
}

QWidget* CandidatesPane::buildBoxes() {
    auto* both = new QWidget(this);
    grpCHECK_ = named(new QGroupBox(both), "grpCHECK");
    grpREPAIR_ = named(new QGroupBox(both), "grpREPAIR");
    auto* checks = new QVBoxLayout(grpCHECK_);
    auto* repairs = new QVBoxLayout(grpREPAIR_);
    for (const Box& row : Boxes) {
        auto* box = named(new QCheckBox(row.isRepair ? grpREPAIR_ : grpCHECK_), row.name);
        (row.isRepair ? repairs : checks)->addWidget(box);
        boxes_.push_back(box);
    }
    auto* column = new QVBoxLayout(both);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(grpCHECK_);
    column->addWidget(grpREPAIR_);
    return both;
}

QWidget* CandidatesPane::buildList() {
    grpFILES_ = named(new QGroupBox(this), "grpFILES");
    tbFILTER_ = named(new QLineEdit(grpFILES_), "tbFILTER");
    tbFILTER_->setClearButtonEnabled(true);
    clearByEscape(*tbFILTER_);
    constexpr int NoFigures = -1;
    lstFILES_ = new ResultView(*new ResultModel(2, NoFigures, this), "lstFILES", grpFILES_);
    lstFILES_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    lstFILES_->setMinimumHeight(90);
    chkSELECT_ = named(new QCheckBox(grpFILES_), "chkSELECT");
    chkDESELECT_ = named(new QCheckBox(grpFILES_), "chkDESELECT");
    lblCOUNT_ = named(new QLabel(grpFILES_), "lblCOUNT");
    cmdEditeur_ = named(new QPushButton(grpFILES_), "cmdEditeur");
    cmdEditeur_->setAutoDefault(false);

    auto* marks = new QHBoxLayout;
    marks->addWidget(chkSELECT_);
    marks->addWidget(chkDESELECT_);
    marks->addStretch(1);
    marks->addWidget(cmdEditeur_);
    auto* column = new QVBoxLayout(grpFILES_);
    column->addWidget(tbFILTER_);
    column->addWidget(lstFILES_, 1);
    column->addWidget(lblCOUNT_);
    column->addLayout(marks);
    return grpFILES_;
}

void CandidatesPane::connectControls() {
    for (const KindRow& row : Kinds)
        connect(kinds_[static_cast<std::size_t>(row.kind)], &QRadioButton::clicked, this,
                [this, kind = row.kind] { chooseKind(kind); });
    for (std::size_t i = 0; i < boxes_.size(); ++i)
        connect(boxes_[i], &QCheckBox::toggled, this, [this, option = Boxes[i].option](bool on) {
            session_.choices().options.*option = on;
            enableBoxes();
        });
    connect(tbFILTER_, &QLineEdit::textChanged, this, &CandidatesPane::showRows);
    connect(chkSELECT_, &QCheckBox::clicked, this, &CandidatesPane::selectAll);
    connect(chkDESELECT_, &QCheckBox::clicked, this, &CandidatesPane::deselectAll);
    connect(cmdEditeur_, &QPushButton::clicked, this, &CandidatesPane::editChosen);
    connect(lstFILES_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &CandidatesPane::selectionChanged);
    connect(lstFILES_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            &CandidatesPane::selectionChanged);
}

void CandidatesPane::addCaptions(Captions& captions) {
    for (const KindRow& row : Kinds)
        captions.add(kinds_[static_cast<std::size_t>(row.kind)], row.caption, row.french);
    for (std::size_t i = 0; i < boxes_.size(); ++i)
        captions.add(boxes_[i], Boxes[i].caption, Boxes[i].french);
    captions.add(chkSELECT_, message::SelectAll, "Sélectionner tout");
    captions.add(chkDESELECT_, message::DeselectAll, "Désélectionner tout");
    captions.add(cmdEditeur_, message::TextEditorButton, "É&diteur de texte");
}

void CandidatesPane::applyLanguage() {
    const Frame& frame = session_.frame();
    grpKIND_->setTitle(toQt(frame.text(message::GroupKind)));
    grpCHECK_->setTitle(textOr(frame, message::GroupCheck, "Contrôler"));
    grpREPAIR_->setTitle(textOr(frame, message::GroupRepair, "Réparer"));
    grpFILES_->setTitle(toQt(frame.text(message::GroupCandidates)));
    tbFILTER_->setPlaceholderText(toQt(frame.text(message::FilterCandidates)));
    tbFILTER_->setAccessibleName(tbFILTER_->placeholderText());
    lstFILES_->setAccessibleName(grpFILES_->title());
    lstFILES_->rows().setTitles(
        {toQt(frame.text(message::ColumnFile)), toQt(frame.text(message::ColumnCandidateFolder))});
    showRows();
}

// ---- the kind and what is looked for

void CandidatesPane::chooseKind(VerifiedKind kind) {
    VerifyChoices& choices = session_.choices();
    choices.kind = kind;
    if (kind == VerifiedKind::Consists)
        choices.options.CheckTextures = choices.options.CheckSounds = choices.options.CheckDuplicates = false;
    showOptions();
    fill();
}

void CandidatesPane::showOptions() {
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        const QSignalBlocker quiet(boxes_[i]);
        boxes_[i]->setChecked(session_.choices().options.*Boxes[i].option);
    }
    enableBoxes();
}

void CandidatesPane::enableBoxes() {
    const VerifyChoices& choices = session_.choices();
    const bool any = candidates_.size() > 0;
    for (std::size_t i = 0; i < boxes_.size(); ++i) {
        const Box& row = Boxes[i];
        const bool suits = row.forConsists || choices.kind != VerifiedKind::Consists;
        const bool needs = row.option != &VerifOptions::RepairSounds || choices.options.CheckSounds;
        boxes_[i]->setEnabled(any && suits && needs);
    }
}

void CandidatesPane::enableAll() {
    chkSELECT_->setEnabled(candidates_.size() > 0);
    chkDESELECT_->setEnabled(candidates_.size() > 0);
    enableBoxes();
    selectionChanged();
}

void CandidatesPane::passEnded() {
    if (!editorPrograms(session_.frame()).empty())
        return;
    chkSELECT_->setEnabled(false);
    chkDESELECT_->setEnabled(false);
}

// ---- the candidates

void CandidatesPane::list() {
    candidates_ = listCandidates(session_.frame(), session_.choices().kind,
                                 session_.editor().catalogue.here().ConsistFiles);
    searched_ = candidateTexts(candidates_);
}

void CandidatesPane::refresh() {
    const BusyPointer busy;
    std::unordered_set<std::string> names;
    for (const int number : lstFILES_->chosenNumbers())
        names.insert(searched_[static_cast<std::size_t>(number)]);
    list();
    std::vector<bool> chosen;
    chosen.reserve(searched_.size());
    for (const std::string& name : searched_)
        chosen.push_back(names.contains(name));
    showRowsChoosing(chosen);
    enableAll();
}

void CandidatesPane::fill() {
    const BusyPointer busy;
    list();
    {
        const QSignalBlocker quiet(tbFILTER_);
        tbFILTER_->clear();
    }
    lstFILES_->rows().setRows({}); // the rows of another kind have other numbers
    lstFILES_->showColumn(1, candidates_.kind != VerifiedKind::Consists);
    showRows();
    enableAll();
}

// Those that the filter lets through; what was selected and is still seen stays selected.
void CandidatesPane::showRows() {
    std::vector<bool> chosen(searched_.size());
    for (const int number : lstFILES_->chosenNumbers())
        chosen[static_cast<std::size_t>(number)] = true;
    showRowsChoosing(chosen);
}

void CandidatesPane::showRowsChoosing(const std::vector<bool>& chosen) {
    const std::string wanted = lowerCase(fromQt(tbFILTER_->text().trimmed()));
    std::vector<ListRow> rows;
    rows.reserve(searched_.size());
    QString longest;
    for (std::size_t i = 0; i < searched_.size(); ++i) {
        if (searched_[i].find(wanted) == std::string::npos)
            continue;
        const int number = static_cast<int>(i);
        QString folder = candidates_.stock.empty() ? QString() : toQt(candidates_.stock[i].Folder);
        if (folder.size() > longest.size())
            longest = folder;
        rows.push_back({number, {toQt(candidates_.nameOf(number)), std::move(folder)}});
    }
    lstFILES_->rows().setRows(std::move(rows));
    lstFILES_->fitColumns({longest.left(40)});
    lstFILES_->setEmptyHint(
        toQt(session_.frame().text(candidates_.size() == 0 ? message::NoCandidates : message::NoFileFits)));
    lstFILES_->chooseRows([&chosen](int number) { return bool(chosen[static_cast<std::size_t>(number)]); });
    selectionChanged();
}

void CandidatesPane::focusFilter() {
    tbFILTER_->setFocus();
    tbFILTER_->selectAll();
}

void CandidatesPane::selectAll() {
    lstFILES_->setCurrentIndex({});
    lstFILES_->selectAll();
}

void CandidatesPane::deselectAll() {
    lstFILES_->setCurrentIndex({});
    lstFILES_->clearSelection();
    selectionChanged();
}

void CandidatesPane::selectionChanged() {
    const int chosen = lstFILES_->chosenCount(), shown = lstFILES_->rows().rowCount();
    const std::string some = std::to_string(chosen), all = std::to_string(shown);
    lblCOUNT_->setText(toQt(session_.frame().text(message::CandidatesChosen, {{"|1", some}, {"|2", all}})));
    chkSELECT_->setChecked(shown > 0 && chosen == shown);
    chkDESELECT_->setChecked(shown > 0 && chosen == 0);
    cmdEditeur_->setEnabled(lstFILES_->currentNumber() >= 0 && !editorPrograms(session_.frame()).empty());
    emit chosenChanged();
}

bool CandidatesPane::anyChosen() const {
    return lstFILES_->selectionModel()->hasSelection();
}

VerifSelection CandidatesPane::selection() const {
    VerifSelection selection = candidates_;
    selection.chosen = lstFILES_->chosenNumbers();
    return selection;
}

void CandidatesPane::editChosen() {
    const int number = lstFILES_->currentNumber();
    if (number < 0)
        return;
    const std::string path = candidatePath(session_.frame(), candidates_, number);
    session_.editFile(path, path, nullptr);
}

} // namespace zandor
