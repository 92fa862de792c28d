// PicRAME: the visible part of the strip, and everything that the mouse does on it.
#pragma once

#include "editor/strip_scroll.h"
#include "editor/windows/document_edits.h"
#include "editor/windows/picture_store.h"
#include "editor/windows/strip_painter.h"

#include <QTimer>
#include <QWidget>

#include <memory>

namespace zandor {

class PointerShape;

// update() shows the strip as it stands; after updateStrip() it is drawn anew first.
class StripView final : public QWidget {
    Q_OBJECT
  public:
    StripView(DocumentEdits& edits, QWidget* parent);
    ~StripView() override;

    void setPreview(const QWidget* preview) { preview_ = preview; } // where a vehicle is looked up; borrowed
    void setEmptyHint(const QString& hint);
    void setEmptyToolTip(const QString& tip) { emptyTip_ = tip; }
    // Draws the strip anew at once: after a change that no operation of the document has brought, such as a
    // setting.
    void DrawStrip();
    // Shows the document as it stands.
    void refresh();
    const StripScroll& scroll() const { return scroll_; }
    void scrollTo(int value); // of the scroll bar
    // The selected vehicle brought into sight: as little as need be, or as one that was put in by the mouse,
    // which moves the strip at its end alone.
    void showSelected();
    void showInserted();
    StripPoint pointAt(const QPoint& point) const { return pointOf(scroll_, point.x(), point.y()); }
    const QPixmap& imgRAME() const { return picture_.pixmap(); }
    PictureStore& pictures() { return pictures_; }
    // Puts a vehicle in the hand back without doing anything.
    void cancelPress();
    bool dragging() const { return pressed_ || stockOver_; }

  signals:
    void scrolled();
    void stockDropped(int materielIndex); // of a list row, at the drag state's place
    void lookedUp(int materielIndex); // a vehicle was let go over the preview; -1: it isn't in the catalogue

  protected:
    void paintEvent(QPaintEvent*) override;
    void resizeEvent(QResizeEvent*) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;

  private:
    enum class Shape { None, Carry, Discard };

    bool isOutdated() const;
    void draw();
    void paintEmptyHint(QPainter& painter) const;
    void paintSelection(QPainter& painter) const;
    void followPress(const QPoint& point);
    void followStock(const QPoint& point);
    void scrollWhileResting();
    void endPress();
    void select(int position);
    ReleaseZone zoneAt(const QPoint& globalPoint) const;
    void setShape(Shape shape);
    void updateToolTip(const QPoint& point);

    DocumentEdits& edits_;
    Editor& editor_;
    PictureStore pictures_;
    StripPicture picture_;
    StripScroll scroll_;
    // Of the last drawing.
    unsigned drawnChanges_ = 0;
    double drawnRatio_ = 0;
    bool drawnInDrag_ = false;
    const QWidget* preview_ = nullptr;
    QString emptyHint_, emptyTip_;
    bool pressed_ = false;   // the left button is down, and the drag is on
    bool stockOver_ = false; // a list row is over the strip
    bool inside_ = false;    // the pointer of either drag
    bool moved_ = false;     // since the press
    QPoint pressPoint_, lastPoint_;
    QTimer scrollTimer_;
    Shape shape_ = Shape::None;
    std::unique_ptr<PointerShape> pointer_;
};

} // namespace zandor
