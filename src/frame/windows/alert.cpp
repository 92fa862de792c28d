#include "frame/windows/alert.h"

#include "frame/windows/qt_text.h"
#include "frame/windows/window_parts.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QVBoxLayout>

namespace zandor {

namespace {

QIcon iconOf(AlertIcon icon, const QWidget& window) {
    struct Row {
        AlertIcon icon;
        QStyle::StandardPixmap pixmap;
    };
    constexpr Row rows[] = {{AlertIcon::Stop, QStyle::SP_MessageBoxCritical},
                            {AlertIcon::Question, QStyle::SP_MessageBoxQuestion},
                            {AlertIcon::Exclamation, QStyle::SP_MessageBoxWarning},
                            {AlertIcon::Information, QStyle::SP_MessageBoxInformation}};
    for (const Row& row : rows)
        if (row.icon == icon)
            return window.style()->standardIcon(row.pixmap, nullptr, &window);
    return programIcon();
}

} // namespace

frmAlert::frmAlert(const Alert& alert, const AlertCaptions& captions, const QString& title,
                   const QString& text, QWidget* parent)
    : QDialog(parent), alert_(alert), answer_(alert.escape != 0 ? alert.escape : alert.answers.back()) {
    setObjectName("frmAlert");
    setWindowTitle(title);
    setModal(true);
    if (alert_.escape == 0)
        setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    build(captions, text);
}

void frmAlert::build(const AlertCaptions& captions, const QString& text) {
    auto* layout = new QVBoxLayout(this);
    auto* top = new QHBoxLayout;
    const QIcon icon = iconOf(alert_.icon, *this);
    if (!icon.isNull()) {
        QLabel* image = makeIconLabel(this, icon);
        image->setObjectName("Image1");
        top->addWidget(image, 0, Qt::AlignTop);
    }
    text_ = new WrappedText(this);
    text_->setObjectName("Label1");
    text_->setText(text);
    setAccessibleDescription(text);
    const int space = fontMetrics().height();
    top->setSpacing(space);
    top->addWidget(text_, 1, text_->scrolls() ? Qt::Alignment() : Qt::AlignVCenter);
    layout->addLayout(top, 1);
    layout->addSpacing(space / 2);
    auto* row = new QHBoxLayout;
    addButtons(*row, captions);
    layout->addLayout(row);
    layout->setContentsMargins(space, space, space, space * 3 / 4);
    if (!text_->scrolls())
        layout->setSizeConstraint(QLayout::SetFixedSize);
}

void frmAlert::addButtons(QBoxLayout& row, const AlertCaptions& captions) {
    std::vector<QPushButton*> all;
    const auto make = [&](const std::string& caption, std::size_t number) {
        all.push_back(new QPushButton(toQt(caption), this));
        all.back()->setObjectName(QString("Command%1").arg(number));
        return all.back();
    };
    row.addStretch(1);
    for (std::size_t i = 0; i < alert_.answers.size(); ++i) {
        QPushButton* button = make(captions.buttons[i], i + 1);
        connect(button, &QPushButton::clicked, this, [this, i] { answerWith(alert_.answers[i]); });
        row.addWidget(button);
    }
    if (alert_.help) {
        help_ = make(captions.help, 4);
        help_->setEnabled(false);
        connect(help_, &QPushButton::clicked, this, [this] { showHelp_(); });
        row.addWidget(help_);
    }
    makeSameWidth(all);
    all[alert_.defaultButton]->setDefault(true);
    all[alert_.defaultButton]->setFocus();
}

void frmAlert::setHelp(std::function<void()> help) {
    showHelp_ = std::move(help);
    if (help_)
        help_->setEnabled(showHelp_ != nullptr);
}

void frmAlert::offerNoMore(const QString& caption) {
    noMore_ = new QCheckBox(caption, this);
    noMore_->setObjectName("chkNO_MORE");
    constexpr int underText = 1;
    static_cast<QVBoxLayout*>(layout())->insertWidget(underText, noMore_, 0, Qt::AlignRight);
}

bool frmAlert::noMore() const {
    return noMore_ && noMore_->isChecked();
}

int frmAlert::ask() {
    sound();
    exec();
    return answer_;
}

void frmAlert::sound() {
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
    QApplication::beep();
    QApplication::alert(this);
}

void frmAlert::answerWith(int answer) {
    answer_ = answer;
    accept();
}

void frmAlert::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy))
        text_->copyAll();
    else if (event->key() != Qt::Key_Escape)
        QDialog::keyPressEvent(event);
    else if (alert_.escape != 0)
        answerWith(alert_.escape);
}

// The end of the program closes its windows as well; only the user is held to an answer.
void frmAlert::closeEvent(QCloseEvent* event) {
    if (alert_.escape == 0 && event->spontaneous())
        event->ignore();
    else
        QDialog::closeEvent(event);
}

} // namespace zandor
