// The marks at the joints of the strip.
#pragma once

#include <QPointF>

#include <string_view>

class QPainter;

namespace zandor {

inline constexpr int MarkSize = 18; // pixels, unscaled

// Of a kind of coupling, by the first word of its image name: "AUTO", "BAR", "CHAIN" or "HYDRO".
void paintCouplingMark(QPainter& painter, const QPointF& topLeft, std::string_view kind);
void paintBadCouplingMark(QPainter& painter, const QPointF& topLeft);

} // namespace zandor
