// What draw_glyphs draws, beside the icons of its own file.
#pragma once

#include <QColor>
#include <QSize>

#include <functional>
#include <string>
#include <vector>

class QPainter;

using Drawing = std::function<void(QPainter&)>;

struct Glyph {
    std::string name;
    QSize size; // in units of a plain screen's pixels
    Drawing draw;
};

// The marks at the joints of the strip, and the pointer that throws a vehicle away.
std::vector<Glyph> stripGlyphs();

inline constexpr QSize SplashSize{480, 320};
// A train under the evening sky, with room for the title above and a progress bar below.
void drawSplash(QPainter& painter);
