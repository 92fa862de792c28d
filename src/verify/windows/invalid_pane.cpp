#include "verify/windows/invalid_pane.h"

#include "editor/messages.h"
#include "editor/windows/pane_parts.h"
#include "frame/windows/button_bar.h"
#include "frame/windows/elided_label.h"
#include "frame/windows/theme.h"
#include "verify/faulty_value.h"
#include "verify/messages.h"
#include "verify/result_lists.h"
#include "verify/windows/captions.h"
#include "verify/windows/faulty_value_window.h"
#include "verify/windows/file_view.h"
#include "verify/windows/result_view.h"

#include <QBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>

#include <algorithm>
#include <utility>

namespace zandor {

namespace {

constexpr int FileColumns = 3, CountColumn = 2, FaultColumns = 2, LineColumn = 1;
constexpr int ButtonGap = 6;      // pixels
constexpr int LongestFolder = 24; // letters of its column
constexpr int LongestWord = 30;   // letters without a place to break
constexpr int FaultLines = 2;     // of a fault told at length
constexpr int FaultRows = 3;      // of the list of faults, in sight at least

// A line can be broken behind each "\" of a path, which has no blanks.
QString breakable(QString text) {
    int word = 0;
    for (int i = 0; i < text.size(); ++i) {
        word = text[i].isSpace() ? 0 : word + 1;
        if (text[i] == u'\\' || text[i] == u'/' || word > LongestWord) {
            text.insert(++i, QChar(0x200B));
            word = 0;
        }
    }
    return text;
}

QLabel* makeCaption(QWidget* owner, QWidget* buddy) {
    auto* label = new QLabel(owner);
    label->setBuddy(buddy);
    return label;
}

QVBoxLayout* makeColumn(QWidget* pane) {
    auto* column = new QVBoxLayout(pane);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(6);
    return column;
}

} // namespace

// ---- how it is put together

InvalidPane::InvalidPane(VerifySession& session, QWidget* parent) : QWidget(parent), session_(session) {
    setObjectName("fmINVALIDE");
    auto* split = named(new QSplitter(Qt::Horizontal, this), "splitter");
    split->setChildrenCollapsible(false);
    split->addWidget(buildFiles());
    split->addWidget(buildFaults());
    split->setStretchFactor(0, 4);
    split->setStretchFactor(1, 5);
    auto* column = makeColumn(this);
    column->addWidget(split, 1);
    column->addLayout(buildButtons());
    lblINFOS_ = named(new ElidedLabel(this, Qt::ElideRight), "lblINFOS");
    theme::showAsHint(*lblINFOS_);
    column->addWidget(lblINFOS_);
    connectControls();
    addKeys();
    clearFault();
    enableButtons();
}

QWidget* InvalidPane::buildFiles() {
    auto* pane = new QWidget(this);
    lstFILES_INVALIDES_ =
        new ResultView(*new ResultModel(FileColumns, CountColumn, this), "lstFILES_INVALIDES", pane);
    lstFILES_INVALIDES_->setSelectionMode(QAbstractItemView::ExtendedSelection);
    lstFILES_INVALIDES_->setMinimumSize(200, 90);
    lblFILES_ = makeCaption(pane, lstFILES_INVALIDES_);
    auto* column = makeColumn(pane);
    column->addWidget(lblFILES_);
    column->addWidget(lstFILES_INVALIDES_, 1);
    return pane;
}

QWidget* InvalidPane::buildFaults() {
    auto* pane = new QWidget(this);
    lblSelection_ = named(new ElidedLabel(pane, Qt::ElideMiddle), "lblSelection");
    QFont bold = lblSelection_->font();
    bold.setBold(true);
    lblSelection_->setFont(bold);
    lblDossier_ = named(new ElidedLabel(pane, Qt::ElideMiddle), "lblDossier");
    theme::showAsHint(*lblDossier_);
    lstLINES_ERROR_ =
        new ResultView(*new ResultModel(FaultColumns, LineColumn, this), "lstLINES_ERROR", pane);
    const int row = fontMetrics().height() + 4;
    lstLINES_ERROR_->setMinimumHeight(FaultRows * row);
    lblLINES_ = makeCaption(pane, lstLINES_ERROR_);
    lblERREURS_ = named(new QLabel(pane), "lblERREURS");
    lblERREURS_->setTextFormat(Qt::PlainText);
    lblERREURS_->setWordWrap(true);
    lblERREURS_->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    lblERREURS_->setMinimumHeight(FaultLines * fontMetrics().lineSpacing()); // the text stays where it is
    lblERREURS_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    txtFILE_ = named(new FileView(session_.frame(), pane), "txtFILE");
    txtFILE_->setMinimumSize(260, FaultRows * row);
    auto* column = makeColumn(pane);
    column->addWidget(lblSelection_);
    column->addWidget(lblDossier_);
    column->addWidget(lblLINES_);
    column->addWidget(lstLINES_ERROR_, 2);
    column->addWidget(lblERREURS_);
    column->addWidget(txtFILE_, 3);
    return pane;
}

QLayout* InvalidPane::buildButtons() {
    auto* bar = new ButtonBar(ButtonGap);
    const auto add = [this, bar](QPushButton*& button, const char* name, const char* icon) {
        button = named(new QPushButton(QIcon::fromTheme(icon), {}, this), name);
        button->setAutoDefault(false);
        bar->addWidget(button);
    };
    add(cmdCORRECT_, "cmdCORRECT", "edit-rename");
    add(cmdEDIT_, "cmdEDIT", "accessories-text-editor");
    add(cmdNEXT_, "cmdNEXT", "go-next");
    bar->beginRightEnd();
    add(cmdSAVE_, "cmdSAVE", "document-save-as");
    add(cmdDELETE_, "cmdDELETE", "edit-delete");
    return bar;
}

void InvalidPane::connectControls() {
    ResultView *const files = lstFILES_INVALIDES_, *const lines = lstLINES_ERROR_;
    connect(files->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &InvalidPane::showFileErrors);
    connect(files->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &InvalidPane::enableButtons);
    connect(lines->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            &InvalidPane::showErrorLine);
    connect(files, &QTreeView::doubleClicked, this, [this] { editFile(false); });
    connect(lines, &QTreeView::doubleClicked, this, [this] { editFile(true); });
    connect(cmdCORRECT_, &QPushButton::clicked, this, &InvalidPane::correct);
    connect(cmdEDIT_, &QPushButton::clicked, this, [this] { editFile(true); });
    connect(cmdNEXT_, &QPushButton::clicked, this, &InvalidPane::nextFault);
    connect(cmdSAVE_, &QPushButton::clicked, this, [this] { carryAway(moveInvalidFiles); });
    connect(cmdDELETE_, &QPushButton::clicked, this, [this] { carryAway(deleteInvalidFiles); });
    for (ResultView* list : {files, lines})
        list->viewport()->installEventFilter(this);
}

void InvalidPane::addKeys() {
    const auto add = [](QWidget* where, const QKeySequence& key, QPushButton* button) {
        connect(new QShortcut(key, where, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
                button, &QPushButton::click);
    };
    for (ResultView* list : {lstFILES_INVALIDES_, lstLINES_ERROR_})
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter})
            add(list, key, cmdCORRECT_);
    add(lstFILES_INVALIDES_, Qt::Key_Delete, cmdDELETE_);
}

void InvalidPane::addCaptions(Captions& captions) {
    captions.add(cmdCORRECT_, message::CorrectButton, "&Corriger…");
    captions.add(cmdEDIT_, message::TextEditorButton, "É&diteur de texte");
    captions.add(cmdNEXT_, message::NextFaultButton, "Défaut sui&vant");
    captions.add(cmdSAVE_, message::MoveFileButton, "Dé&placer");
    captions.add(cmdDELETE_, message::DeleteFileButton, "&Supprimer");
}

void InvalidPane::applyLanguage() {
    const Frame& frame = session_.frame();
    captionInput(*lblFILES_, textOr(frame, message::InvalidFilesLabel, "Fichiers invalides :"));
    captionInput(*lblLINES_, textOr(frame, message::InvalidKeysLabel, "Clés invalides :"));
    lstFILES_INVALIDES_->rows().setTitles({toQt(frame.text(message::ColumnFile)),
                                           toQt(frame.text(message::ColumnCandidateFolder)),
                                           toQt(frame.text(message::ColumnFaults))});
    lstLINES_ERROR_->rows().setTitles(
        {toQt(frame.text(message::ColumnFault)), toQt(frame.text(message::ColumnLine))});
    txtFILE_->setAccessibleName(toQt(frame.text(message::FileText)));
    txtFILE_->setUnreadableHint(toQt(frame.text(message::FileTextUnreadable)));
    cmdCORRECT_->setToolTip(QKeySequence(Qt::Key_Return).toString(QKeySequence::NativeText));
    cmdNEXT_->setToolTip(QKeySequence(Qt::Key_F8).toString(QKeySequence::NativeText));
    cmdDELETE_->setToolTip(QKeySequence(Qt::Key_Delete).toString(QKeySequence::NativeText));
}

// ---- the lists

void InvalidPane::setEmptyHint(const QString& hint) {
    lstFILES_INVALIDES_->setEmptyHint(hint);
}

void InvalidPane::focusFiles() {
    lstFILES_INVALIDES_->setFocus();
}

void InvalidPane::showFiles(std::vector<FaultyFile> files, const std::optional<FaultKind>& kind,
                            bool keepPlace) {
    const FaultRow before{std::max(0, lstFILES_INVALIDES_->currentNumber()),
                          std::max(0, lstLINES_ERROR_->currentNumber())};
    files_ = std::move(files);
    kind_ = kind;
    const VerifResults& results = session_.results();
    std::vector<ListRow> rows;
    rows.reserve(files_.size());
    QString longest;
    for (std::size_t i = 0; i < files_.size(); ++i) {
        const QString folder = toQt(folderOf(results, files_[i]));
        if (folder.size() > longest.size())
            longest = folder;
        rows.push_back({static_cast<int>(i),
                        {toQt(fileOf(results, files_[i])), folder,
                         QString::number(faultsOf(results, files_[i]).size())}});
    }
    going_ = true;
    lstFILES_INVALIDES_->showColumn(1, !longest.isEmpty());
    lstFILES_INVALIDES_->rows().setRows(std::move(rows));
    lstFILES_INVALIDES_->fitColumns({longest.left(LongestFolder), "999"});
    going_ = false;
    txtFILE_->forget();
    const int last = static_cast<int>(files_.size()) - 1;
    goTo(keepPlace ? FaultRow{std::min(before.file, last), before.fault}
                   : seekFault(results, files_, {}, kind_).value_or(FaultRow{}));
}

void InvalidPane::goTo(FaultRow place) {
    going_ = true;
    lstFILES_INVALIDES_->showRow(place.file);
    going_ = false;
    showFileErrors();
    if (!faults_.empty())
        lstLINES_ERROR_->showRow(std::min(place.fault, static_cast<int>(faults_.size()) - 1));
}

const FaultyFile* InvalidPane::currentFile() const {
    const int number = lstFILES_INVALIDES_->currentNumber();
    return number < 0 ? nullptr : &files_[static_cast<std::size_t>(number)];
}

const FileFault* InvalidPane::currentFault() const {
    const int number = lstLINES_ERROR_->currentNumber();
    return number < 0 ? nullptr : &faults_[static_cast<std::size_t>(number)];
}

const ErrorLine* InvalidPane::currentLine() const {
    const FaultyFile* const file = currentFile();
    const FileFault* const fault = currentFault();
    const std::vector<InvalidFile>& records = session_.results().InvalidFiles;
    if (!file || !fault || fault->line < 0 || file->invalid >= static_cast<int>(records.size()))
        return nullptr;
    const std::vector<ErrorLine>& lines = records[static_cast<std::size_t>(file->invalid)].Lines;
    return fault->line < static_cast<int>(lines.size()) ? &lines[static_cast<std::size_t>(fault->line)]
                                                        : nullptr;
}

std::vector<FaultyFile> InvalidPane::chosenFiles() const {
    std::vector<FaultyFile> files;
    for (const int number : lstFILES_INVALIDES_->chosenNumbers())
        files.push_back(files_[static_cast<std::size_t>(number)]);
    return files;
}

// ShowFileErrors
void InvalidPane::showFileErrors() {
    if (going_)
        return;
    const FaultyFile* const file = currentFile();
    const VerifResults& results = session_.results();
    faults_ = file ? faultsOf(results, *file) : std::vector<FileFault>();
    std::vector<ListRow> rows;
    for (std::size_t i = 0; i < faults_.size(); ++i) {
        const int line = faults_[i].line < 0 ? 0
                                             : results.InvalidFiles[static_cast<std::size_t>(file->invalid)]
                                                   .Lines[static_cast<std::size_t>(faults_[i].line)]
                                                   .Line;
        rows.push_back({static_cast<int>(i),
                        {toQt(summaryOf(session_.frame(), results, *file, faults_[i])),
                         line > 0 ? QString::number(line) : QString()}});
    }
    lstLINES_ERROR_->rows().setRows(std::move(rows));
    lstLINES_ERROR_->fitColumns({"99999"});
    if (!file)
        return clearFault();
    const bool recorded = file->invalid >= 0;
    const std::string bareName = fileOf(results, *file);
    const InvalidFile none{
        {}, folderOf(results, *file), bareName, bareName.substr(0, bareName.rfind('.')), {}};
    const InvalidFile& record =
        recorded ? results.InvalidFiles[static_cast<std::size_t>(file->invalid)] : none;
    lblSelection_->setText(toQt(selectionCaption(session_.frame(), record)));
    lblDossier_->setText(toQt(placeCaption(record)));
    const auto wanted = std::ranges::find_if(
        faults_, [this](const FileFault& fault) { return !kind_ || fault.kind == *kind_; });
    lstLINES_ERROR_->showRow(wanted == faults_.end() ? 0 : static_cast<int>(wanted - faults_.begin()));
    enableButtons();
}

// ShowErrorLine
void InvalidPane::showErrorLine() {
    const FaultyFile* const file = currentFile();
    const FileFault* const fault = currentFault();
    if (file && fault && !going_)
        showFault(*file, *fault);
    enableButtons();
}

void InvalidPane::showFault(const FaultyFile& file, const FileFault& fault) {
    const VerifResults& results = session_.results();
    lblERREURS_->setText(breakable(toQt(detailsOf(session_.frame(), results, file, fault))));
    const ErrorLine* const line = currentLine();
    if (!line)
        return txtFILE_->showFile(pathOf(session_.frame(), results, file), 0, {});
    txtFILE_->showFile(currentPath(), line->Line, toQt(line->Value));
}

// Of the file that the current line stands in.
std::string InvalidPane::currentPath() const {
    const auto record = static_cast<std::size_t>(currentFile()->invalid);
    return faultyPath(session_.frame(), session_.results().InvalidFiles[record], *currentLine());
}

void InvalidPane::clearFault() {
    lblSelection_->clear();
    lblDossier_->clear();
    lblERREURS_->clear();
    txtFILE_->clearFile();
    enableButtons();
}

void InvalidPane::enableButtons() {
    if (going_)
        return;
    const bool any = currentFile() != nullptr, gone = lstFILES_INVALIDES_->chosenCount() > 0;
    cmdCORRECT_->setEnabled(currentLine() != nullptr);
    cmdEDIT_->setEnabled(any && !editorPrograms(session_.frame()).empty());
    cmdNEXT_->setEnabled(any);
    cmdSAVE_->setEnabled(gone);
    cmdDELETE_->setEnabled(gone);
    showChosen();
}

// How many files a command goes for, or what else can be done with one.
void InvalidPane::showChosen() {
    const int chosen = lstFILES_INVALIDES_->chosenCount();
    const std::string count = std::to_string(chosen);
    if (chosen < 2)
        return showHint(ResultList::Files);
    lblINFOS_->setText(toQt(session_.frame().text(message::FilesChosen, {{"|1", count}})));
}

void InvalidPane::nextFault() {
    const int file = lstFILES_INVALIDES_->currentNumber();
    if (file < 0)
        return;
    const FaultRow behind{file, lstLINES_ERROR_->currentNumber() + 1};
    if (const auto place = seekFault(session_.results(), files_, behind, kind_))
        goTo(*place);
}

// The pointer over one of the lists.
bool InvalidPane::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Enter)
        showHint(watched == lstFILES_INVALIDES_->viewport() ? ResultList::Files : ResultList::Keys);
    if (event->type() == QEvent::Leave)
        showChosen();
    return QWidget::eventFilter(watched, event);
}

void InvalidPane::showHint(ResultList list) {
    const Message hint = resultHint(session_.verifiedKind(), list);
    lblINFOS_->setText(files_.empty() ? QString() : toQt(session_.frame().text(hint)));
}

// ---- what is done with them

void InvalidPane::editFile(bool atFault) {
    const FaultyFile* const file = currentFile();
    if (!file)
        return;
    const ErrorLine* const line = atFault ? currentLine() : nullptr;
    const std::string path = pathOf(session_.frame(), session_.results(), *file);
    session_.editFile(path, line ? currentPath() : path, line);
}

void InvalidPane::correct() {
    const FaultyFile* const file = currentFile();
    if (file && currentLine())
        frmModifieValeur(session_, file->invalid, currentFault()->line, this).exec();
}

void InvalidPane::carryAway(FilesGone (*operation)(Editor&, VerifResults&, const std::vector<int>&)) {
    const std::vector<FaultyFile> chosen = chosenFiles();
    if (chosen.empty())
        return;
    FilesGone gone;
    VerifResults& results = session_.results();
    const bool here = session_.carryOut([&](Editor& editor) {
        gone = operation(editor, results, recordsFor(editor.frame, results, chosen));
        dropBareRecords(results);
    });
    if (!here)
        return;
    if (gone.gone > 0) {
        going_ = true; // what comes behind those that went is shown next
        lstFILES_INVALIDES_->showRow(lstFILES_INVALIDES_->chosenNumbers().front());
        going_ = false;
        session_.tellChange();
        emit session_.filesWent();
    }
    showFindings(session_.frame(), gone.told);
}

} // namespace zandor
