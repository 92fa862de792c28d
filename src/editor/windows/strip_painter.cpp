#include "editor/windows/strip_painter.h"

#include "editor/windows/picture_store.h"
#include "frame/windows/pixel_grid.h"
#include "frame/windows/qt_text.h"

#include <QPainter>

#include <algorithm>

namespace zandor {

namespace {

constexpr int WidestPixmap = 32766; // device pixels: as far as a painter reaches
constexpr QColor DropMark{255, 0, 0};
constexpr int DropMarkWidth = 3;

QColor shown(StripColour colour) {
    return {colour.red, colour.green, colour.blue};
}

// The width that the picture gets, and with it the most that its resolution may be.
double reachable(const std::vector<StripStep>& steps, double pixelRatio) {
    for (const StripStep& step : steps)
        if (const auto* size = std::get_if<SizeStrip>(&step))
            return std::min(pixelRatio, double(WidestPixmap) / std::max(1, size->width));
    return pixelRatio;
}

QPixmap resized(const QPixmap& old, QSize size) {
    QPixmap picture(size);
    picture.fill(shown(StripSky));
    if (!old.isNull())
        QPainter(&picture).drawPixmap(0, 0, old);
    return picture;
}

// Works in device pixels, to which every edge is brought.
class Hand {
  public:
    Hand(QPixmap& picture, PictureStore& pictures, const QFont& font, double ratio)
        : picture_(picture), pictures_(pictures), font_(font), ratio_(ratio) {
        begin();
    }

    void operator()(const SizeStrip& step) {
        const QSize size(device(step.width), device(StripHeight));
        if (size == picture_.size())
            return;
        if (painter_.isActive())
            painter_.end();
        picture_ = resized(picture_, size);
        begin();
    }
    void operator()(const ClearStrip& step) { painter_.fillRect(picture_.rect(), shown(step.colour)); }
    void operator()(const TakeBackColour& step) {
        const QImage& image = pictures_.image(step.picture);
        if (!image.isNull())
            painter_.fillRect(picture_.rect(), image.pixelColor(0, 0));
    }
    void operator()(const CopyPicture& step) {
        const QRect area = device(step.area);
        painter_.drawPixmap(area.topLeft(), pictures_.scaled(step.picture, area.size(), step.mirrored));
    }
    void operator()(const DrawOutline& step) {
        const QRect area = device(step.area);
        const int line = std::max(1, device(step.lineWidth));
        const QColor colour = shown(step.colour);
        painter_.fillRect(area.left(), area.top(), area.width(), line, colour);
        painter_.fillRect(area.left(), area.bottom() - line + 1, area.width(), line, colour);
        painter_.fillRect(area.left(), area.top(), line, area.height(), colour);
        painter_.fillRect(area.right() - line + 1, area.top(), line, area.height(), colour);
    }
    void operator()(const DrawLine& step) {
        painter_.save();
        painter_.scale(ratio_, ratio_);
        painter_.setPen(QPen(shown(step.colour), 1));
        painter_.drawLine(QLineF(step.fromX + 0.5, step.fromY + 0.5, step.toX + 0.5, step.toY + 0.5));
        painter_.restore();
    }
    void operator()(const FillBar& step) { painter_.fillRect(device(step.area), shown(step.colour)); }
    void operator()(const PrintText& step) {
        painter_.save();
        painter_.scale(ratio_, ratio_);
        painter_.setPen(shown(step.colour));
        painter_.drawText(QRect(step.box.left, step.box.top, step.box.width, step.box.height),
                          Qt::AlignCenter | Qt::TextSingleLine | Qt::TextDontClip, toQt(step.text));
        painter_.restore();
    }
    void operator()(const PlaceMark& step) {
        painter_.drawPixmap(device(step.left), device(step.top), pictures_.mark(step.mark, ratio_));
    }

  private:
    void begin() {
        if (picture_.isNull())
            return;
        painter_.begin(&picture_);
        painter_.setFont(font_);
    }
    int device(int pixels) const { return qRound(pixels * ratio_); }
    // Neighbours stay neighbours: it is the edges that are rounded.
    QRect device(const StripRect& area) const {
        return {QPoint(device(area.left), device(area.top)),
                QPoint(device(area.left + area.width) - 1, device(area.top + area.height) - 1)};
    }

    QPixmap& picture_;
    PictureStore& pictures_;
    const QFont& font_;
    const double ratio_;
    QPainter painter_;
};

} // namespace

int FontMeasure::width(std::string_view text) const {
    return metrics_.horizontalAdvance(toQt(text));
}

void StripPicture::carryOut(const std::vector<StripStep>& steps, PictureStore& pictures, const QFont& font,
                            double pixelRatio) {
    const double ratio = reachable(steps, pixelRatio);
    imgRAME.setDevicePixelRatio(1);
    {
        Hand hand(imgRAME, pictures, font, ratio);
        for (const StripStep& step : steps)
            std::visit(hand, step);
    }
    imgRAME.setDevicePixelRatio(ratio);
}

void StripPicture::ShowStrip(QPainter& painter, const QSize& window, int scrollValue) const {
    const QSizeF size = imgRAME.deviceIndependentSize();
    if (size.width() < window.width())
        painter.fillRect(QRect(QPoint(), window), shown(StripSky));
    const PixelGrid grid(painter);
    painter.drawPixmap(stripPixels(grid, 0, qRound(size.width()), scrollValue, StripHeight), imgRAME,
                       imgRAME.rect());
}

QRect stripPixels(const PixelGrid& grid, int left, int width, int scrollValue, int height) {
    const QPoint corner = grid.point({0, 0}) - QPoint(grid.length(scrollValue), 0);
    return {corner + QPoint(grid.length(left), 0),
            corner + QPoint(grid.length(left + width) - 1, grid.length(height) - 1)};
}

void paintDropMark(QPainter& painter, const ConsistDocument& document, int scrollValue, int height) {
    if (const StripPoint x = dropMarkPosition(document)) {
        const PixelGrid grid(painter);
        painter.fillRect(stripPixels(grid, *x, DropMarkWidth, scrollValue, height), DropMark);
    }
}

} // namespace zandor
