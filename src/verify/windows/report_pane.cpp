#include "verify/windows/report_pane.h"

#include "verify/messages.h"
#include "verify/windows/captions.h"

#include <QBoxLayout>
#include <QPushButton>
#include <QStandardPaths>
#include <QTextCursor>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace zandor {

namespace {

constexpr std::size_t AtOnce = 200; // paragraphs

struct PaneRow {
    const char *pane, *text, *button;
    Message title;
    Message ofEngines, ofWagons; // names of files
};
constexpr PaneRow Rows[] = {
    {"fmDOUBLONS", "rtbLISTE_DOUBLONS", "cmdSAVE_DOUBLONS", message::ShowDuplicates,
     message::DuplicateEnginesFile, message::DuplicateWagonsFile},
    {"fmINTROUVABLES", "rtbLISTE_INTROUVABLES", "cmdSAVE_INTROUVABLES", message::ShowMissing,
     message::MissingOfEnginesFile, message::MissingOfWagonsFile},
};

QTextCharFormat formatOf(const TextStyle& style) {
    QTextCharFormat format;
    if (style.bold)
        format.setFontWeight(QFont::Bold);
    format.setFontUnderline(style.underline);
    format.setFontItalic(style.italic);
    if (style.colour != TextColour::Plain) {
        const RedGreenBlue colour = valueOf(style.colour);
        format.setForeground(QColor(colour.red, colour.green, colour.blue));
    }
    return format;
}

} // namespace

ReportView::ReportView(QWidget* parent) : QTextEdit(parent), adding_(new QTimer(this)) {
    setReadOnly(true);
    setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setTabChangesFocus(true);
    setUndoRedoEnabled(false);
    QFont text = font();
    text.setFamily(ReportFont);
    document()->setDefaultFont(text);
    adding_->setInterval(0);
    connect(adding_, &QTimer::timeout, this, &ReportView::addSome);
}

void ReportView::showReport(Report report) {
    report_ = std::move(report);
    next_ = 0;
    clear();
    addSome();
    adding_->start();
}

void ReportView::addSome() {
    const std::size_t end = std::min(next_ + AtOnce, report_.paragraphs.size());
    for (; next_ < end; ++next_)
        add(report_.paragraphs[next_], next_ == 0);
    if (next_ <= AtOnce)
        moveCursor(QTextCursor::Start); // the user's own has gone along to the end of the first ones
    if (isComplete())
        adding_->stop();
}

void ReportView::add(const Paragraph& paragraph, bool first) {
    QTextCursor end(document()); // not the one that the user sees
    end.movePosition(QTextCursor::End);
    QTextBlockFormat block;
    block.setAlignment(paragraph.centred ? Qt::AlignHCenter : Qt::AlignLeft);
    if (first)
        end.setBlockFormat(block);
    else
        end.insertBlock(block, QTextCharFormat());
    for (const TextRun& run : paragraph.runs)
        end.insertText(toQt(run.text), formatOf(run.style));
}

ReportPane::ReportPane(VerifySession& session, Kind kind, QWidget* parent)
    : QWidget(parent), session_(session), kind_(kind) {
    setObjectName(Rows[kind].pane);
    text_ = named(new ReportView(this), Rows[kind].text);
    save_ = named(new QPushButton(QIcon::fromTheme("document-save"), {}, this), Rows[kind].button);
    save_->setAutoDefault(false);
    connect(save_, &QPushButton::clicked, this, &ReportPane::save);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(text_, 1);
    column->addWidget(save_, 0, Qt::AlignRight);
}

void ReportPane::addCaptions(Captions& captions) {
    captions.add(save_, message::SaveReportButton, "&Enregistrer");
    text_->setAccessibleName(toQt(session_.frame().text(Rows[kind_].title)));
}

Report ReportPane::reportOf(const std::vector<int>& entries) const {
    const VerifResults& results = session_.results();
    VerifResults shown;
    for (const int entry : entries) {
        const auto position = static_cast<std::size_t>(entry);
        if (kind_ == Duplicates)
            shown.DuplicateEntries.push_back(results.DuplicateEntries[position]);
        else
            shown.MissingEntries.push_back(results.MissingEntries[position]);
    }
    return kind_ == Duplicates ? duplicatesReport(session_.frame(), shown)
                               : missingReport(session_.frame(), shown);
}

void ReportPane::showEntries(const std::vector<int>& entries) {
    const bool sought = kind_ == Missing || session_.verifiedOptions().CheckDuplicates;
    text_->showReport(sought ? reportOf(entries) : Report());
    save_->setEnabled(text_->report().hasContent);
}

Message ReportPane::proposedName() const {
    const PaneRow& row = Rows[kind_];
    return session_.verifiedKind() == VerifiedKind::Engines ? row.ofEngines : row.ofWagons;
}

void ReportPane::save() {
    Frame& frame = session_.frame();
    const std::string filter =
        frame.text(message::ReportFilter, {{"|1", "(*.rtf)|*.rtf|"}, {"|2", "(*.txt)|*.txt"}});
    const std::string folder =
        pathFromQt(QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation));
    const auto path = frame.dialogs.askSaveFile(frame.text(message::ReportTitle), filter, folder,
                                                frame.text(proposedName()), ".rtf");
    if (!path)
        return;
    const std::string name = GetFileName(*path);
    if (saveReport(frame.files, *path, text_->report()))
        frame.show(frame.text(message::ReportSaved, {{"|1", name}}), style::Information);
    else
        frame.show(frame.text(message::ReportNotSaved, {{"|1", frame.files.nativePath(*path)}, {"|2", "\n"}}),
                   style::Exclamation);
}

} // namespace zandor
