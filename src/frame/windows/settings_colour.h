// The colours of lists, as the settings hold them.
#pragma once

#include "frame/frame.h"

#include <QColor>

#include <algorithm>
#include <string_view>

namespace zandor {

// A decimal number with blue in the high byte. Invalid when the setting is empty.
inline QColor readColour(const Frame& frame, std::string_view key) {
    const std::string text = readSetting(frame.profiles, key, frame.state.IniPath);
    if (text.empty())
        return {};
    const int value = static_cast<int>(std::clamp(numericValue(text), 0.0, 16777215.0));
    return QColor(value & 255, (value >> 8) & 255, (value >> 16) & 255);
}

} // namespace zandor
