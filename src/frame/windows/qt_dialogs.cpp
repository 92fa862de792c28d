#include "frame/windows/qt_dialogs.h"

#include "frame/windows/cursors.h"
#include "frame/windows/qt_text.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>
#include <QUrl>

#include <algorithm>

namespace zandor {

namespace {

constexpr int HelpFlag = 16384;

// The answers of each set of buttons in the order shown; 0: no such button.
struct ButtonSet {
    int answers[3];
    int escape; // the answer of Escape and of closing the window; 0: an answer must be given
};
constexpr ButtonSet Sets[] = {
    {{answer::Ok, 0, 0}, answer::Ok},
    {{answer::Ok, answer::Cancel, 0}, answer::Cancel},
    {{answer::Abort, answer::Retry, answer::Ignore}, 0},
    {{answer::Yes, answer::No, answer::Cancel}, answer::Cancel},
    {{answer::Yes, answer::No, 0}, 0},
    {{answer::Retry, answer::Cancel, 0}, answer::Cancel},
};

// A caption is the message's text with a mnemonic, or the fixed one where the file has none.
struct AnswerRow {
    int answer;
    Message message;
    const char* fixed;
    QMessageBox::ButtonRole role;
};
constexpr Message NoMessage{0};
constexpr AnswerRow Answers[] = {
    {answer::Ok, NoMessage, "&OK", QMessageBox::AcceptRole},
    {answer::Cancel, Message::Cancel, "&Annuler", QMessageBox::RejectRole},
    {answer::Abort, NoMessage, "&Abandonner", QMessageBox::ActionRole},
    {answer::Retry, NoMessage, "&Répéter", QMessageBox::ActionRole},
    {answer::Ignore, NoMessage, "&Ignorer", QMessageBox::ActionRole},
    {answer::Yes, Message::Yes, "&Oui", QMessageBox::YesRole},
    {answer::No, Message::No, "&Non", QMessageBox::NoRole},
};

const ButtonSet& buttonSet(int style) {
    return Sets[std::min(style & 15, 5)];
}

QMessageBox::Icon iconOf(int style) {
    switch (style & 0xF0) {
    case style::Stop:
        return QMessageBox::Critical;
    case style::Question:
        return QMessageBox::Question;
    case style::Exclamation:
        return QMessageBox::Warning;
    case style::Information:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

QString caption(const Language& language, Message message, const char* fixed) {
    const QString text = message == NoMessage ? QString() : toQt(language.GetLangText(message));
    if (text.isEmpty())
        return QString::fromUtf8(fixed);
    return text.contains(u'&') ? text : u'&' + text;
}

// A path has no blanks to wrap at: every 60 characters without one get a place to break, so that the window
// stays on the screen.
QString breakable(const QString& text) {
    QString result;
    int run = 0;
    for (const QChar c : text) {
        if (c == u'\r')
            continue;
        result += c;
        run = c.isSpace() ? 0 : run + 1;
        if (run >= 60 && !c.isHighSurrogate()) {
            result += QChar(0x200B);
            run = 0;
        }
    }
    return result;
}

// A message box that can't be left without an answer where none of its answers means "neither".
class AlertBox final : public QMessageBox {
  public:
    AlertBox(QWidget* parent, bool mayEscape) : QMessageBox(parent), mayEscape_(mayEscape) {
        setObjectName("frmAlert");
        setTextFormat(Qt::PlainText);
        setTextInteractionFlags(Qt::TextSelectableByMouse);
    }

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->key() == Qt::Key_Escape && !mayEscape_)
            return;
        QMessageBox::keyPressEvent(event);
    }
    void closeEvent(QCloseEvent* event) override {
        if (mayEscape_ || !event->spontaneous())
            QMessageBox::closeEvent(event);
        else
            event->ignore();
    }

  private:
    bool mayEscape_;
};

// The window that a message stands in front of, also while another program has the focus.
QWidget* parentOfDialogs() {
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    if (QWidget* active = QApplication::activeWindow())
        return active;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->isVisible() && window->isWindow())
            return window;
    return nullptr;
}

void addHelp(QMessageBox& box, const Language& language, const std::string& helpFile) {
    QPushButton* help = box.addButton(caption(language, Message::HelpButton, "&Aide"), QMessageBox::HelpRole);
    help->setObjectName("Command4");
    help->disconnect(); // it closes nothing
    help->setEnabled(!helpFile.empty());
    QObject::connect(help, &QPushButton::clicked, &box,
                     [helpFile] { QDesktopServices::openUrl(QUrl::fromLocalFile(toQt(helpFile))); });
}

} // namespace

QtDialogs::QtDialogs(AppState& state, ProfileFiles& profiles)
    : state_(state), files_(profiles.files()), language_(profiles, state) {}

int QtDialogs::ShowMessage(const std::string& text, int style, const std::string& title,
                           const std::string& helpFile, int) {
    const PointerShape pointer(Qt::ArrowCursor);
    const ButtonSet& set = buttonSet(style);
    AlertBox box(parentOfDialogs(), set.escape != 0);
    box.setWindowTitle(toQt(title));
    box.setText(breakable(toQt(text)));
    box.setIcon(iconOf(style));

    std::vector<std::pair<QAbstractButton*, int>> buttons;
    for (const int wanted : set.answers) {
        const auto row = std::ranges::find(Answers, wanted, &AnswerRow::answer);
        if (row == std::end(Answers))
            break;
        QPushButton* button = box.addButton(caption(language_, row->message, row->fixed), row->role);
        button->setObjectName(QString("Command%1").arg(buttons.size() + 1));
        buttons.emplace_back(button, wanted);
        if (wanted == set.escape)
            box.setEscapeButton(button);
    }
    const std::size_t first = std::min<std::size_t>((style >> 8) & 3, buttons.size() - 1);
    box.setDefaultButton(static_cast<QPushButton*>(buttons[first].first));
    if (style & HelpFlag)
        addHelp(box, language_, helpFile);
    box.exec();

    int result = set.escape != 0 ? set.escape : set.answers[1];
    for (const auto& [button, value] : buttons)
        if (box.clickedButton() == button)
            result = value;
    state_.LastAnswer = std::to_string(result);
    return result;
}

std::string fileDialogFilter(const std::string& filter) {
    const std::size_t bar = filter.find('|');
    if (bar == std::string::npos)
        return filter;
    std::string text = filter.substr(0, bar);
    text = text.substr(0, text.find('('));
    while (!text.empty() && text.back() == ' ')
        text.pop_back();
    std::string patterns = filter.substr(bar + 1);
    std::ranges::replace(patterns, ';', ' ');
    return text + " (" + patterns + ")";
}

std::optional<std::string> QtDialogs::askOpenFile(const std::string& title, const std::string& filter,
                                                  const std::string& folder,
                                                  const std::string& proposedName) {
    const PointerShape pointer(Qt::ArrowCursor);
    QFileDialog dialog(parentOfDialogs(), toQt(title), toQt(files_.nativePath(folder)),
                       toQt(fileDialogFilter(filter)));
    dialog.setObjectName("frmOpen");
    dialog.setFileMode(QFileDialog::ExistingFile);
    if (!QDir(dialog.directory()).exists())
        dialog.setDirectory(QDir::homePath());
    if (!proposedName.empty())
        dialog.selectFile(toQt(proposedName));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return pathFromQt(dialog.selectedFiles().first());
}

} // namespace zandor
