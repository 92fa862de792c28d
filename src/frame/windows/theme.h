// The look of the windows: the desktop's own.
#pragma once

#include <QColor>

class QApplication;
class QPalette;
class QWidget;

namespace zandor {

namespace theme {
// Fixed colours of what the program draws itself. Texts and backgrounds of windows take theirs from the
// palette.
inline constexpr QColor Sky{148, 198, 239};  // the strip and everything drawn on it
inline constexpr QColor Accent{31, 95, 160}; // marks on the sky
inline constexpr QColor Ink{31, 41, 55};     // text on the sky
inline constexpr QColor Unused{0, 128, 0};   // stock that no consist uses

// Secondary text in a window: quieter than the text, and still easy to read.
QColor hintText(const QPalette& palette);
bool isDark(const QPalette& palette);
// Shows a widget's text in that colour, also after the desktop has changed its colours.
void showAsHint(QWidget& widget);
} // namespace theme

// Style, palette and font stay the desktop's.
void applyTheme(QApplication& application);

} // namespace zandor
