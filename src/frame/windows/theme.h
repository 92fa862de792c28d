// The look that all windows share.
#pragma once

#include <QColor>

class QApplication;

namespace zandor {

namespace theme {
inline constexpr QColor Sky{148, 198, 239};     // the strip and everything drawn on it
inline constexpr QColor Accent{31, 95, 160};    // focus, selection, the main action
inline constexpr QColor Ink{31, 41, 55};        // text
inline constexpr QColor QuietInk{91, 103, 120}; // secondary text
inline constexpr QColor Unused{0, 128, 0};      // stock that no consist uses
} // namespace theme

void applyTheme(QApplication& application);

} // namespace zandor
