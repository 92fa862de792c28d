#include "frame/windows/help.h"

#include "frame/windows/help_window.h"

#include <QApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QWindow>

namespace zandor {

namespace {

constexpr const char* ContextProperty = "helpContext";

// Of the nearest widget that has one: a tab may have its own.
int contextOf(const QWidget* widget) {
    for (; widget; widget = widget->parentWidget())
        if (const QVariant context = widget->property(ContextProperty); context.isValid())
            return context.toInt();
    return helpContext::Contents;
}

} // namespace

void setHelpContext(QWidget& window, int context) {
    window.setProperty(ContextProperty, context);
}

CHelp::CHelp(AppState& state, ProfileFiles& profiles, Processes& processes)
    : state_(state), files_(profiles.files()), processes_(processes), language_(profiles, state) {}

CHelp::~CHelp() = default;

void CHelp::Show(int context) {
    ShowFile(state_.HelpFile, context);
}

void CHelp::ShowFile(const std::string& helpFile, int context) {
    if (helpFile.empty() || !processes_.openFile(files_.nativePath(helpFile)))
        showPage(context);
}

void CHelp::CloseWindow() {
    if (window_)
        window_->close();
}

void CHelp::applyLanguage() {
    if (window_)
        window_->applyLanguage();
}

void CHelp::serveF1() {
    qApp->installEventFilter(this);
}

bool CHelp::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType())
        return false;
    if (!static_cast<QKeyEvent*>(event)->matches(QKeySequence::HelpContents))
        return false;
    Show(contextOf(static_cast<QWidget*>(watched)));
    return true;
}

void CHelp::showPage(int context) {
    if (!window_)
        window_ = std::make_unique<frmHelp>(state_, language_);
    window_->applyLanguage();
    window_->showPage(context);
    putOver(QApplication::activeModalWidget());
    window_->show();
    window_->raise();
    window_->activateWindow();
}

// A window that belongs to a message can be used while the message waits for its answer. It stays when the
// message has gone.
void CHelp::putOver(QWidget* modal) {
    window_->winId(); // makes its handle
    QWindow* owner = modal ? modal->windowHandle() : nullptr;
    if (window_->windowHandle()->transientParent() == owner)
        return;
    window_->hide();
    window_->windowHandle()->setTransientParent(owner);
    if (auto* dialog = qobject_cast<QDialog*>(modal))
        connect(dialog, &QDialog::finished, window_.get(),
                [window = window_.get()] { window->windowHandle()->setTransientParent(nullptr); });
}

} // namespace zandor
