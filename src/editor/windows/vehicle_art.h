// Vehicles drawn by their class, for stock that has no picture of its own.
#pragma once

#include <QRectF>

#include <string_view>

class QPainter;
class QPixmap;

namespace zandor {

inline constexpr int ArtWidth = 121, ArtHeight = 116; // pixels, unscaled

// `stockClass`: as in the stock lists, -1 for any other. Fills the background of `area` too.
void paintVehicleArt(QPainter& painter, const QRectF& area, int stockClass, bool mirrored);
// The stand-in of a vehicle whose file is missing.
void paintMissingArt(QPainter& painter, const QRectF& area);
// What goes with the pointer: half the size, so that the strip is seen beside it.
QPixmap dragPixmap(int stockClass, double pixelRatio);

// The mark of a kind of coupling, by the first word of its image name: "AUTO", "BAR", "CHAIN" or "HYDRO".
inline constexpr int MarkSize = 18;
void paintCouplingMark(QPainter& painter, const QPointF& topLeft, std::string_view kind);
void paintBadCouplingMark(QPainter& painter, const QPointF& topLeft);

} // namespace zandor
