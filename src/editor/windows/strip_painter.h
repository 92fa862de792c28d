// Carries out the steps of the strip's drawing, and shows the part of it that is in sight.
#pragma once

#include "editor/strip_drawing.h"

#include <QFont>
#include <QFontMetrics>
#include <QPixmap>

#include <vector>

class QPainter;
class QSize;

namespace zandor {

class PictureStore;
class PixelGrid;

// Letters as the strip prints them.
class FontMeasure final : public TextMeasure {
  public:
    explicit FontMeasure(const QFont& font) : metrics_(font) {}
    int width(std::string_view text) const override;
    int height() const override { return metrics_.height(); }

  private:
    QFontMetrics metrics_;
};

// The strip off the screen. It has the screen's own resolution, so that lines and letters are sharp on it.
class StripPicture {
  public:
    void carryOut(const std::vector<StripStep>& steps, PictureStore& pictures, const QFont& font,
                  double pixelRatio);
    bool isNull() const { return imgRAME.isNull(); }
    const QPixmap& pixmap() const { return imgRAME; }

    // Copies what lies behind `scrollValue` onto a window of this size.
    void ShowStrip(QPainter& painter, const QSize& window, int scrollValue) const;

  private:
    QPixmap imgRAME;
};

// The device pixels of a part of the strip: from `left`, counted from the strip's own beginning, in a window
// that is scrolled that far. Where a part ends the next one begins, as on the strip's picture.
QRect stripPixels(const PixelGrid& grid, int left, int width, int scrollValue, int height);

// The red line where a dragged vehicle would go, when it would go anywhere.
void paintDropMark(QPainter& painter, const ConsistDocument& document, int scrollValue, int height);

} // namespace zandor
