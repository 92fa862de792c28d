#include "editor/windows/pane_parts.h"

#include <QEvent>
#include <QScrollBar>

namespace zandor {

namespace {
constexpr int LowestPane = 50; // pixels
} // namespace

LowPane::LowPane(QWidget* content, QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::NoFocus);
    setWidget(content);
    content->setAutoFillBackground(false); // what is behind shows, such as a tab
    viewport()->setAutoFillBackground(false);
}

QSize LowPane::minimumSizeHint() const {
    return {widget()->minimumSizeHint().width() + verticalScrollBar()->sizeHint().width(), LowestPane};
}

bool LowPane::eventFilter(QObject* watched, QEvent* event) {
    if (watched == widget() && event->type() == QEvent::LayoutRequest)
        updateGeometry();
    return QScrollArea::eventFilter(watched, event);
}

void captionInput(QLabel& label, const QString& text) {
    label.setText(text);
    label.buddy()->setAccessibleName(QString(text).remove(u'&'));
}

const Materiel* materielAt(const Catalogue& catalogue, int index) {
    const std::vector<Materiel>& stock = catalogue.here().Materiels;
    const bool known = index >= 0 && index < static_cast<int>(stock.size());
    return known ? &stock[static_cast<std::size_t>(index)] : nullptr;
}

} // namespace zandor
