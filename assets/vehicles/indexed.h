// Pictures with a palette of their own.
#pragma once

#include <QImage>

namespace art {

// 8 bits per pixel; `background` keeps its exact colour. Each pixel takes its nearest palette colour.
QImage toIndexed(const QImage& picture, QRgb background);

} // namespace art
