#include "verify/windows/verify_tab.h"

#include "frame/messages.h"
#include "frame/windows/elided_label.h"
#include "frame/windows/help.h"
#include "verify/messages.h"
#include "verify/windows/candidates_pane.h"
#include "verify/windows/captions.h"
#include "verify/windows/results_pane.h"

#include <QBoxLayout>
#include <QProgressBar>
#include <QPushButton>
#include <QShortcut>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>
#include <utility>

namespace zandor {

namespace {

constexpr int BarWidth = 200; // pixels

// The tabs of tbsVERIF; a page is called by its key as well.
enum Page { FilesPage, ResultsPage };
constexpr const char* PageKeys[] = {"ONGLET_FICHIERS", "ONGLET_RESULTATS"};

} // namespace

VerifyTab::VerifyTab(Editor& editor, VerifyChoices& choices, QWidget* parent)
    : QWidget(parent), session_(new VerifySession(editor, choices, this)) {
    setObjectName("VERIF_FILE");
    setHelpContext(*this, helpContext::Verify);
    build();
    connectControls();
    addKeys();
    applyLanguage();
    enableVerify();
}

void VerifyTab::build() {
    tbsVERIF_ = named(new QTabWidget(this), "tbsVERIF");
    fmVERIF_FILES_ = new CandidatesPane(*session_, tbsVERIF_);
    fmRESULTATS_ = new ResultsPane(*session_, tbsVERIF_);
    tbsVERIF_->addTab(fmVERIF_FILES_, {});
    tbsVERIF_->addTab(fmRESULTATS_, {});
    for (const int page : {FilesPage, ResultsPage})
        tbsVERIF_->tabBar()->setTabData(page, PageKeys[page]);
    auto* column = new QVBoxLayout(this);
    column->addWidget(tbsVERIF_, 1);
    column->addLayout(buildFoot());
}

// What is there whatever is shown: how far a pass is, its button, and the ways out.
QLayout* VerifyTab::buildFoot() {
    lblANALYSE_ = named(new ElidedLabel(this, Qt::ElideMiddle), "lblANALYSE");
    ProgressBar1_ = named(new QProgressBar(this), "ProgressBar1");
    ProgressBar1_->setFixedWidth(BarWidth);
    ProgressBar1_->setTextVisible(false);
    QSizePolicy room = ProgressBar1_->sizePolicy();
    room.setRetainSizeWhenHidden(true);
    ProgressBar1_->setSizePolicy(room);
    ProgressBar1_->hide();
    cmdVERIF_ = named(new QPushButton(this), "cmdVERIF");
    cmdHELP_ = named(new QPushButton(QIcon::fromTheme("help-contents"), {}, this), "cmdHELP");
    cmdCANCEL_ = named(new QPushButton(this), "cmdCANCEL");
    auto* row = new QHBoxLayout;
    row->addWidget(lblANALYSE_, 1);
    row->addWidget(ProgressBar1_);
    for (QPushButton* button : {cmdVERIF_, cmdHELP_, cmdCANCEL_}) {
        button->setAutoDefault(false);
        row->addWidget(button);
    }
    return row;
}

void VerifyTab::connectControls() {
    connect(cmdVERIF_, &QPushButton::clicked, this, &VerifyTab::verifyPressed);
    connect(cmdHELP_, &QPushButton::clicked, this, &VerifyTab::helpAsked);
    connect(cmdCANCEL_, &QPushButton::clicked, this, &VerifyTab::closeAsked);
    connect(fmVERIF_FILES_, &CandidatesPane::chosenChanged, this, &VerifyTab::enableVerify);
    connect(session_, &VerifySession::filesWent, fmVERIF_FILES_, &CandidatesPane::refresh);
    connect(session_, &VerifySession::runStarted, this, &VerifyTab::startRun);
    connect(session_, &VerifySession::runEnded, this, &VerifyTab::endRun);
    connect(session_, &VerifySession::step, this, &VerifyTab::showStep);
    connect(session_, &VerifySession::canBeStopped, this, &VerifyTab::offerStop);
    connect(session_, &VerifySession::waiting, lblANALYSE_, &QLabel::setText);
    connect(session_, &VerifySession::passEnded, this, &VerifyTab::showPass);
    connect(session_, &VerifySession::catalogueChanged, this, &VerifyTab::catalogueChanged);
    connect(session_, &VerifySession::runStarted, this, &VerifyTab::runStarted);
    connect(session_, &VerifySession::runEnded, this, &VerifyTab::runEnded);
}

void VerifyTab::addKeys() {
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, &VerifyTab::search);
    connect(new QShortcut(Qt::Key_F8, this), &QShortcut::activated, this, [this] {
        if (!running() && tbsVERIF_->currentIndex() == ResultsPage)
            fmRESULTATS_->nextFault();
    });
}

void VerifyTab::applyLanguage() {
    const Frame& frame = session_->frame();
    // The two pages aren't seen together: each shares its letters with the foot alone.
    const auto foot = [&](Captions& captions) {
        captions.add(message::VerifyButton, "&Vérifier",
                     [this](const QString& text) { verifyCaption_ = text; });
        captions.add(cmdCANCEL_, message::Close, "&Fermer");
        captions.add(cmdHELP_, message::HelpButton, "Aide");
        captions.add(message::TabFiles, "Fichiers",
                     [this](const QString& text) { tbsVERIF_->setTabText(FilesPage, text); });
        captions.add(message::TabResults, "Résultats",
                     [this](const QString& text) { tbsVERIF_->setTabText(ResultsPage, text); });
    };
    Captions files(frame), results(frame);
    foot(files);
    fmVERIF_FILES_->addCaptions(files);
    files.put();
    foot(results);
    fmRESULTATS_->addCaptions(results);
    results.put();
    stopCaption_ = textOr(frame, message::VerifyStop, "A&rrêter");
    fmVERIF_FILES_->applyLanguage();
    fmRESULTATS_->applyLanguage();
    captionVerify();
}

// As wide as the longer of its two captions.
void VerifyTab::captionVerify() {
    int width = 0;
    for (const QString& caption : {stopCaption_, verifyCaption_}) {
        cmdVERIF_->setText(caption);
        width = std::max(width, cmdVERIF_->sizeHint().width());
    }
    cmdVERIF_->setMinimumWidth(width);
    if (stopOffered_)
        cmdVERIF_->setText(stopCaption_);
    cmdVERIF_->setToolTip(toQt(session_->frame().text(message::TipVerify)));
}

void VerifyTab::close() {
    session_->close();
}

void VerifyTab::search() {
    if (running())
        return;
    if (tbsVERIF_->currentIndex() == FilesPage)
        fmVERIF_FILES_->focusFilter();
    else
        fmRESULTATS_->focusSearch();
}

// ---- a pass

void VerifyTab::enableVerify() {
    if (!running())
        cmdVERIF_->setEnabled(fmVERIF_FILES_->anyChosen());
}

void VerifyTab::verifyPressed() {
    if (!running())
        return session_->verify(fmVERIF_FILES_->selection());
    session_->cancel();
    cmdVERIF_->setEnabled(false);
}

void VerifyTab::startRun() {
    focusBefore_ = focusWidget();
    tbsVERIF_->setEnabled(false);
    cmdHELP_->setEnabled(false);
    cmdCANCEL_->setEnabled(false);
    cmdVERIF_->setEnabled(false);
    window()->setCursor(Qt::WaitCursor);
    lblANALYSE_->clear();
}

// Not before there is something to stop: a run may begin with questions.
void VerifyTab::offerStop() {
    if (std::exchange(stopOffered_, true))
        return;
    cmdVERIF_->setText(stopCaption_);
    cmdVERIF_->setEnabled(true);
    cmdVERIF_->setFocus();
    cmdVERIF_->setCursor(Qt::ArrowCursor);
}

void VerifyTab::endRun() {
    stopOffered_ = false;
    window()->unsetCursor();
    cmdVERIF_->unsetCursor();
    ProgressBar1_->hide();
    lblANALYSE_->clear();
    tbsVERIF_->setEnabled(true);
    cmdHELP_->setEnabled(true);
    cmdCANCEL_->setEnabled(true);
    captionVerify();
    enableVerify();
    if (focusBefore_)
        focusBefore_->setFocus();
}

void VerifyTab::showStep(int lower, int upper, int current, const QString& text) {
    ProgressBar1_->setRange(lower, upper);
    ProgressBar1_->setValue(current);
    ProgressBar1_->show();
    lblANALYSE_->setText(text);
}

void VerifyTab::showPass() {
    fmVERIF_FILES_->passEnded();
    fmRESULTATS_->showPass();
    const Message done = session_->cancelled() ? message::VerifyStopped : message::VerifyDone;
    lblANALYSE_->setText(toQt(session_->frame().text(done, {{"|1", ""}})));
    if (!fmRESULTATS_->any())
        return;
    tbsVERIF_->setCurrentIndex(ResultsPage);
    fmRESULTATS_->focusResults();
}

} // namespace zandor
