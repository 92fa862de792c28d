#include "verify/windows/kind_bar.h"

#include "frame/windows/button_bar.h"
#include "frame/windows/qt_text.h"
#include "verify/messages.h"

#include <QButtonGroup>
#include <QToolButton>

#include <algorithm>

namespace zandor {

namespace {

constexpr int ButtonGap = 4; // pixels

QString counted(const QString& name, int count) {
    return QString("%1 (%2)").arg(QString(name).replace("&", "&&")).arg(count);
}

} // namespace

KindBar::KindBar(QWidget* parent)
    : QWidget(parent), row_(new ButtonBar(ButtonGap)), group_(new QButtonGroup(this)) {
    setObjectName("kinds");
    row_->setContentsMargins(0, 0, 0, 0);
    setLayout(row_);
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

void KindBar::add(const QString& text, const QString& tip, const std::optional<FaultKind>& kind, bool down) {
    auto* button = new QToolButton(this);
    button->setText(text);
    button->setToolTip(plainTip(tip));
    button->setCheckable(true);
    button->setFocusPolicy(Qt::StrongFocus);
    button->setChecked(down);
    connect(button, &QToolButton::clicked, this, [this, kind] { emit chosen(kind); });
    row_->addWidget(button);
    group_->addButton(button);
    button->show();
    buttons_.push_back(button);
}

void KindBar::showCounts(const Frame& frame, const std::vector<FaultCount>& counts,
                         const std::optional<FaultKind>& chosen) {
    const bool focused = std::ranges::any_of(buttons_, &QToolButton::hasFocus);
    for (QToolButton* button : std::exchange(buttons_, {})) {
        row_->removeWidget(button);
        group_->removeButton(button);
        button->hide();
        button->deleteLater(); // it may be the one that was clicked
    }
    const auto known = std::ranges::find_if(
        counts, [&chosen](const FaultCount& count) { return chosen && count.kind == *chosen; });
    int all = 0;
    for (const FaultCount& count : counts)
        all += count.faults;
    if (!counts.empty())
        add(counted(toQt(frame.text(message::AllFaults)), all), {}, std::nullopt, known == counts.end());
    for (auto count = counts.begin(); count != counts.end(); ++count) {
        const std::string faults = std::to_string(count->faults), files = std::to_string(count->files);
        add(counted(toQt(faultKindText(frame, count->kind)), count->faults),
            toQt(frame.text(message::FaultsInFiles, {{"|1", faults}, {"|2", files}})), count->kind,
            count == known);
    }
    if (focused)
        for (QToolButton* button : buttons_)
            if (button->isChecked())
                button->setFocus();
    updateGeometry();
}

} // namespace zandor
