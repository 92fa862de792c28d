#include "editor/windows/strip_view.h"

#include "editor/strip_drawing.h"
#include "editor/strip_selection.h"
#include "editor/windows/stock_model.h"
#include "frame/windows/cursors.h"
#include "frame/windows/pixel_grid.h"
#include "frame/windows/qt_text.h"
#include "frame/windows/theme.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <utility>

namespace zandor {

namespace {

constexpr int ScrollEvery = 40; // ms, while a drag rests near an edge

// The throw-away sign: a bin under the pointer's tip.
QCursor discardCursor() {
    QPixmap picture(":/art/discard@2x.png");
    picture.setDevicePixelRatio(2);
    return QCursor(picture, 16, 16);
}

// The stock entry of a dragged list row, or -1.
int draggedStock(const QMimeData* data) {
    bool isNumber = false;
    const int index = data ? data->data(StockModel::MimeType).toInt(&isNumber) : -1;
    return isNumber ? index : -1;
}

} // namespace

StripView::StripView(DocumentEdits& edits, QWidget* parent)
    : QWidget(parent), edits_(edits), editor_(edits.editor()), pictures_(editor_.frame.files) {
    setObjectName("PicRAME");
    setAcceptDrops(true);
    setMouseTracking(true);
    setFocusPolicy(Qt::ClickFocus);
    setFixedHeight(StripHeight);
    setAttribute(Qt::WA_OpaquePaintEvent);
    scrollTimer_.setInterval(ScrollEvery);
    connect(&scrollTimer_, &QTimer::timeout, this, &StripView::scrollWhileResting);
}

StripView::~StripView() = default;

void StripView::setEmptyHint(const QString& hint) {
    emptyHint_ = hint;
    update();
}

// The drag that an outline stands for may end without another change.
bool StripView::isOutdated() const {
    return picture_.isNull() || drawnChanges_ != editor_.document.stripChanges ||
           drawnRatio_ != devicePixelRatioF() || (drawnInDrag_ && !editor_.document.DragActive);
}

void StripView::DrawStrip() {
    const BusyPointer busy;
    draw();
    update();
}

void StripView::draw() {
    pictures_.beginRedraw();
    const FontMeasure letters(font());
    const auto steps = zandor::DrawStrip(editor_, pictures_, letters, scroll_.viewWidth);
    drawnRatio_ = devicePixelRatioF();
    picture_.carryOut(steps, pictures_, font(), drawnRatio_);
    drawnChanges_ = editor_.document.stripChanges;
    drawnInDrag_ = editor_.document.DragActive;
}

void StripView::refresh() {
    updateScroll(scroll_, editor_.document);
    emit scrolled();
    update();
}

void StripView::scrollTo(int value) {
    scrollBy(scroll_, value - scroll_.value);
    update();
}

void StripView::showSelected() {
    updateScroll(scroll_, editor_.document);
    scrollToVehicule(scroll_, editor_.document, editor_.document.selected);
    emit scrolled();
    update();
}

void StripView::showInserted() {
    updateScroll(scroll_, editor_.document);
    if (editor_.document.selected == vehicleCount(editor_.document) - 1)
        scrollToEnd(scroll_);
    emit scrolled();
    update();
}

void StripView::paintEmptyHint(QPainter& painter) const {
    painter.setPen(theme::Ink);
    painter.drawText(rect().adjusted(16, 0, -16, 0), Qt::AlignCenter | Qt::TextWordWrap, emptyHint_);
}

// Stronger while the keyboard is here.
void StripView::paintSelection(QPainter& painter) const {
    const ConsistDocument& document = editor_.document;
    const auto selected = static_cast<std::size_t>(document.selected);
    int left = 0;
    for (std::size_t i = 0; i < selected; ++i)
        left += document.Vehicules[i].Width;
    const PixelGrid grid(painter);
    const QRect frame = stripPixels(grid, left, document.Vehicules[selected].Width, scroll_.value, height());
    grid.frame(frame, hasFocus() ? 2 : 1, theme::Accent, hasFocus() ? Qt::SolidLine : Qt::DashLine);
}

void StripView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (isOutdated())
        draw();
    picture_.ShowStrip(painter, size(), scroll_.value);
    if (!hasVehicles(editor_.document))
        paintEmptyHint(painter);
    else if (hasSelection(editor_.document) && !dragging())
        paintSelection(painter);
    if (inside_ && dragging())
        paintDropMark(painter, editor_.document, scroll_.value, height());
}

void StripView::resizeEvent(QResizeEvent*) {
    scroll_.viewWidth = width();
    ++editor_.document.stripChanges; // the picture fills the view
    refresh();
}

// ---- a vehicle in the hand

void StripView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || dragging())
        return;
    pressPoint_ = lastPoint_ = event->position().toPoint();
    moved_ = false;
    inside_ = true;
    edits_.change([this](Editor& editor) {
        pressStrip(editor, pointAt(lastPoint_));
        pressed_ = editor.document.DragActive;
        DrawStrip(); // before the pointer moves on: the outline stays on this vehicle
    });
}

void StripView::followPress(const QPoint& point) {
    lastPoint_ = point;
    inside_ = rect().contains(point);
    moveOnStrip(editor_, pointAt(point));
    AutoScrollStrip(scroll_, point.x(), point.y());
    setShape(zoneAt(mapToGlobal(point)) == ReleaseZone::Elsewhere ? Shape::Discard : Shape::Carry);
    emit scrolled();
    update();
}

void StripView::mouseMoveEvent(QMouseEvent* event) {
    const QPoint point = event->position().toPoint();
    if (pressed_ && (event->buttons() & Qt::LeftButton)) {
        // A trembling hand doesn't move a vehicle, nor scroll the strip away under it.
        if (!moved_ && (point - pressPoint_).manhattanLength() < QApplication::startDragDistance())
            return;
        moved_ = true;
        if (!scrollTimer_.isActive())
            scrollTimer_.start();
        followPress(point);
    }
    if (event->buttons() == Qt::NoButton)
        updateToolTip(point);
}

void StripView::mouseReleaseEvent(QMouseEvent* event) {
    const QPoint point = event->position().toPoint();
    if (event->button() == Qt::RightButton) {
        endPress();
        return edits_.change([&](Editor& editor) { flipVehicule(editor, pointAt(point)); });
    }
    if (event->button() != Qt::LeftButton)
        return;
    const bool wasPressed = pressed_;
    // The hand that trembles over the edge has moved nothing, and throws nothing away either.
    const bool atRest =
        !moved_ && (point - pressPoint_).manhattanLength() < QApplication::startDragDistance();
    endPress(); // first: a message of the operation takes the focus away
    if (!wasPressed) {
        clearDrag(editor_.document);
        return;
    }
    std::optional<int> found;
    edits_.carryOut([&](Editor& editor) {
        Release release = releaseStrip(editor, atRest ? ReleaseZone::Strip : zoneAt(mapToGlobal(point)));
        found = release.lookedUp;
        return Outcome{true, std::move(release.told)};
    });
    if (found)
        emit lookedUp(*found);
}

void StripView::endPress() {
    pressed_ = false;
    scrollTimer_.stop();
    setShape(Shape::None);
}

void StripView::cancelPress() {
    if (!pressed_)
        return;
    endPress();
    edits_.change([](Editor& editor) { clearDrag(editor.document); });
}

ReleaseZone StripView::zoneAt(const QPoint& globalPoint) const {
    // Scrolled out of sight it lies under other windows.
    if (preview_ && preview_->visibleRegion().contains(preview_->mapFromGlobal(globalPoint)))
        return ReleaseZone::Preview;
    return rect().contains(mapFromGlobal(globalPoint)) ? ReleaseZone::Strip : ReleaseZone::Elsewhere;
}

void StripView::setShape(Shape shape) {
    if (shape == shape_)
        return;
    shape_ = shape;
    pointer_.reset();
    if (shape == Shape::Carry)
        pointer_ = std::make_unique<PointerShape>(Qt::ClosedHandCursor);
    else if (shape == Shape::Discard)
        pointer_ = std::make_unique<PointerShape>(discardCursor());
}

// The strip goes on scrolling while the pointer rests near an edge.
void StripView::scrollWhileResting() {
    const int before = scroll_.value;
    if (pressed_)
        followPress(lastPoint_);
    else if (stockOver_)
        followStock(lastPoint_);
    if (scroll_.value != before)
        update();
}

void StripView::updateToolTip(const QPoint& point) {
    const ConsistDocument& document = editor_.document;
    setToolTip(hasVehicles(document) ? plainTip(toQt(stripToolTip(document, pointAt(point)))) : emptyTip_);
}

void StripView::keyPressEvent(QKeyEvent* event) {
    const int last = vehicleCount(editor_.document) - 1, selected = editor_.document.selected;
    if (event->key() == Qt::Key_Escape && pressed_)
        return cancelPress();
    if (pressed_ || event->modifiers() != Qt::NoModifier)
        return QWidget::keyPressEvent(event);
    switch (event->key()) {
    case Qt::Key_Left:
        return select(selected - 1);
    case Qt::Key_Right:
        return select(selected + 1);
    case Qt::Key_Home:
        return select(0);
    case Qt::Key_End:
        return select(last);
    default:
        QWidget::keyPressEvent(event);
    }
}

void StripView::select(int position) {
    edits_.change([&](Editor& editor) {
        selectVehicule(editor.document, position);
        showSelected();
    });
}

// The keyboard comes to a vehicle, not to nothing.
void StripView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    const bool byKey = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (byKey && !hasSelection(editor_.document))
        select(0);
    else
        emit edits_.documentChanged(); // the line above may tell of something else
    update();
}

void StripView::focusOutEvent(QFocusEvent* event) {
    cancelPress();
    update();
    QWidget::focusOutEvent(event);
}

// A notch of the wheel is one vehicle.
void StripView::wheelEvent(QWheelEvent* event) {
    if (!scroll_.enabled)
        return event->ignore();
    const QPoint turned = event->angleDelta();
    const int delta = std::abs(turned.x()) > std::abs(turned.y()) ? turned.x() : turned.y();
    scrollBy(scroll_, -delta * PlainPictureWidth / 120);
    emit scrolled();
    update();
}

// ---- a row of the stock list

void StripView::followStock(const QPoint& point) {
    lastPoint_ = point;
    inside_ = rect().contains(point);
    dragOverStrip(editor_, pointAt(point));
    AutoScrollStrip(scroll_, point.x(), point.y());
    emit scrolled();
    update();
}

void StripView::dragEnterEvent(QDragEnterEvent* event) {
    if (draggedStock(event->mimeData()) < 0)
        return event->ignore();
    event->setDropAction(Qt::CopyAction);
    event->accept();
    stockOver_ = true;
    scrollTimer_.start();
    followStock(event->position().toPoint());
}

void StripView::dragMoveEvent(QDragMoveEvent* event) {
    if (!stockOver_)
        return event->ignore();
    event->setDropAction(Qt::CopyAction);
    event->accept();
    followStock(event->position().toPoint());
}

void StripView::dragLeaveEvent(QDragLeaveEvent*) {
    stockOver_ = false;
    inside_ = false;
    scrollTimer_.stop();
    update();
}

void StripView::dropEvent(QDropEvent* event) {
    const int index = draggedStock(event->mimeData());
    stockOver_ = false;
    scrollTimer_.stop();
    update();
    if (index < 0)
        return event->ignore();
    event->setDropAction(Qt::CopyAction);
    event->accept();
    emit stockDropped(index);
}

} // namespace zandor
