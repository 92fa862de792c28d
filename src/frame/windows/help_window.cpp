#include "frame/windows/help_window.h"

#include "frame/alert.h"
#include "frame/messages.h"
#include "frame/windows/qt_text.h"

#include <QFile>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QStyle>
#include <QTextBlock>
#include <QTextTable>
#include <QVBoxLayout>

namespace zandor {

namespace {

constexpr int LettersWide = 112;
constexpr int LinesHigh = 42;
constexpr int LineStrength = 90; // of a table's lines, of 255
const QString ContentsPage = QStringLiteral("contents");

QString folderOf(const AppState& state) {
    return state.Language == "Français" ? "fr" : "en";
}

QUrl addressOf(const QString& folder, const QString& page) {
    return "qrc:/help/" + folder + "/" + page + ".md";
}

QString nameOf(const QUrl& address) {
    return address.fileName().section(u'.', 0, 0);
}

// Thin lines and room around the cells.
void dressTables(QTextFrame& frame, const QBrush& lines, int room) {
    for (QTextFrame* child : frame.childFrames()) {
        dressTables(*child, lines, room);
        auto* table = qobject_cast<QTextTable*>(child);
        if (!table)
            continue;
        QTextTableFormat format = table->format();
        format.setBorderCollapse(true);
        format.setBorderStyle(QTextFrameFormat::BorderStyle_Solid);
        format.setBorder(1);
        format.setBorderBrush(lines);
        format.setCellPadding(room);
        format.setTopMargin(room);
        format.setBottomMargin(room);
        table->setFormat(format);
    }
}

// Room above the headings that follow the first one.
void dressHeadings(QTextDocument& document, int room) {
    for (QTextBlock block = document.begin().next(); block.isValid(); block = block.next())
        if (block.blockFormat().headingLevel() > 0) {
            QTextBlockFormat format = block.blockFormat();
            format.setTopMargin(room);
            QTextCursor(block).setBlockFormat(format);
        }
}

} // namespace

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent) {
    setOpenExternalLinks(true);
    document()->setDocumentMargin(fontMetrics().height());
}

void HelpBrowser::doSetSource(const QUrl& name, QTextDocument::ResourceType type) {
    const bool missing = name.scheme() == "qrc" && !QFile::exists(":" + name.path());
    if (missing)
        QTextBrowser::doSetSource(name.resolved(QUrl(ContentsPage + ".md")), QTextDocument::MarkdownResource);
    else
        QTextBrowser::doSetSource(name, type);
    const int room = fontMetrics().height();
    QColor lines = palette().color(QPalette::Text);
    lines.setAlpha(LineStrength);
    dressTables(*document()->rootFrame(), lines, room / 3);
    dressHeadings(*document(), room);
    if (missing)
        emit pageMissing(nameOf(name));
}

frmHelp::frmHelp(const AppState& state, const Language& language)
    : QWidget(nullptr, Qt::Window), state_(state), language_(language), back_(new QPushButton(this)),
      forward_(new QPushButton(this)), contents_(new QPushButton(this)), close_(new QPushButton(this)),
      missing_(new QLabel(this)), browser_(new HelpBrowser(this)) {
    setObjectName("frmHelp");
    setAttribute(Qt::WA_QuitOnClose, false);
    build();
    applyLanguage();
    browser_->setFocus();
    const QSize wanted(fontMetrics().averageCharWidth() * LettersWide,
                       fontMetrics().lineSpacing() * LinesHigh);
    resize(wanted.boundedTo(screen()->availableSize() * 0.9));
}

void frmHelp::build() {
    back_->setObjectName("cmdBACK");
    forward_->setObjectName("cmdFORWARD");
    contents_->setObjectName("cmdCONTENTS");
    close_->setObjectName("cmdCLOSE");
    missing_->setObjectName("lblMISSING");
    browser_->setObjectName("txtHELP");
    back_->setIcon(style()->standardIcon(QStyle::SP_ArrowBack, nullptr, this));
    forward_->setIcon(style()->standardIcon(QStyle::SP_ArrowForward, nullptr, this));
    back_->setEnabled(false);
    forward_->setEnabled(false);
    missing_->setWordWrap(true);
    missing_->setTextFormat(Qt::PlainText);
    missing_->hide();

    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {back_, forward_, contents_})
        buttons->addWidget(button);
    buttons->addStretch(1);
    buttons->addWidget(close_);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(buttons);
    layout->addWidget(missing_);
    layout->addWidget(browser_, 1);

    connect(back_, &QPushButton::clicked, browser_, &QTextBrowser::backward);
    connect(forward_, &QPushButton::clicked, browser_, &QTextBrowser::forward);
    connect(contents_, &QPushButton::clicked, this, [this] { showSource(ContentsPage); });
    connect(close_, &QPushButton::clicked, this, &QWidget::close);
    connect(browser_, &QTextBrowser::backwardAvailable, back_, &QWidget::setEnabled);
    connect(browser_, &QTextBrowser::forwardAvailable, forward_, &QWidget::setEnabled);
    connect(browser_, &QTextBrowser::sourceChanged, missing_, &QWidget::hide);
    connect(browser_, &HelpBrowser::pageMissing, this, &frmHelp::showMissing);
}

void frmHelp::applyLanguage() {
    setWindowTitle(toQt(language_.GetLangText(message::HelpTitle, {{"|1", "Zandor"}})));
    struct Row {
        QPushButton* button;
        Message message;
    };
    const Row rows[] = {{back_, message::HelpBack},
                        {forward_, message::HelpForward},
                        {contents_, message::HelpContents},
                        {close_, message::Close}};
    std::vector<std::string> captions;
    for (const Row& row : rows)
        captions.push_back(language_.GetLangText(row.message));
    makeMnemonicsUnique({&captions[0], &captions[1], &captions[2], &captions[3]});
    for (std::size_t i = 0; i < std::size(rows); ++i)
        rows[i].button->setText(toQt(captions[i]));
    browser_->setAccessibleName(windowTitle());
    if (!browser_->source().isEmpty() && browser_->source() != addressOf(folderOf(state_), page()))
        showSource(page());
}

void frmHelp::showPage(int context) {
    showSource(context == 0 ? ContentsPage : QString::number(context));
}

QString frmHelp::page() const {
    return nameOf(browser_->source());
}

void frmHelp::showSource(const QString& page) {
    missing_->hide();
    browser_->setSource(addressOf(folderOf(state_), page), QTextDocument::MarkdownResource);
}

void frmHelp::showMissing(const QString& page) {
    missing_->setText(
        toQt(language_.GetLangText(message::HelpPageMissing, {{"|1", fromQt(page)}, {"|2", "\n"}})));
    missing_->show();
}

void frmHelp::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

} // namespace zandor
