#include "frame/windows/progress_window.h"

#include "frame/messages.h"
#include "frame/windows/elided_label.h"
#include "frame/windows/first_paint.h"
#include "frame/windows/help.h"
#include "frame/windows/progress_bar.h"
#include "frame/windows/qt_text.h"
#include "frame/windows/window_parts.h"

#include <QCloseEvent>
#include <QVBoxLayout>

namespace zandor {

namespace {

constexpr QSize BarSize{445, 23};
constexpr int Margin = 18;
constexpr int HeadSize = 12; // points

// The night of the splash, behind the same bar.
QPalette colours() {
    QPalette palette(QColor(30, 84, 140), QColor(13, 33, 62));
    palette.setColor(QPalette::WindowText, QColor(255, 255, 192));
    return palette;
}

} // namespace

frmProgress::frmProgress(Frame& frame, QWidget* parent)
    : QDialog(parent), state_(frame.state), text_(new ElidedLabel(this, Qt::ElideMiddle)),
      bar_(new ProgressBar(this)) {
    setObjectName("frmProgress");
    setWindowTitle(toQt(frame.text(
        message::ProgressTitle,
        {{"|1", frame.state.Title}, {"|2", frame.files.nativePath(frame.state.roots.RootPrimary())}})));
    setModal(true);
    setHelpContext(*this, helpContext::Stock);
    setCursor(Qt::WaitCursor);

    auto* head = new QLabel(toQt(frame.text(message::ProgressHead)), this);
    head->setObjectName("lblHEAD");
    QFont bold("Arial", HeadSize);
    bold.setBold(true);
    head->setFont(bold);
    head->setAlignment(Qt::AlignCenter);
    text_->setObjectName("lblTEXT");
    text_->setAlignment(Qt::AlignCenter);
    setPalette(colours());
    bar_->setTextVisible(false);
    bar_->setFixedSize(BarSize);
    bar_->setAccessibleName(head->text());

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(Margin, Margin, Margin, Margin);
    layout->setSpacing(8);
    for (QWidget* part :
         {static_cast<QWidget*>(head), static_cast<QWidget*>(text_), static_cast<QWidget*>(bar_)})
        layout->addWidget(part);
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

bool frmProgress::run(QtProgress& progress, std::function<void()> reload) {
    state_.ProgressUp = true;
    progress.setView(this);
    new FirstPaintTimer(this, [this, reload = std::move(reload)] {
        running_ = true;
        reload();
        running_ = false;
        accept();
    });
    exec();
    progress.setView(nullptr);
    state_.ProgressUp = false;
    return !ended_;
}

void frmProgress::showStep(int lower, int upper, int current, const QString& text) {
    text_->setText(text);
    bar_->setStep(lower, upper, current, text);
}

void frmProgress::reject() {
    ended_ = true;
    if (!running_)
        QDialog::reject();
}

void frmProgress::closeEvent(QCloseEvent* event) {
    ended_ = true;
    if (running_)
        event->ignore();
    else
        QDialog::closeEvent(event);
}

} // namespace zandor
