// Where a window stood when it was closed, kept in the settings file: a section of its own, five keys that
// begin with the window's prefix, such as ListTop. Device-independent pixels.
#pragma once

#include "frame/frame.h"

#include <optional>
#include <string_view>

namespace zandor {

struct WindowPlace {
    int left = 0, top = 0, width = 0, height = 0;
    bool maximised = false;
};

// Nothing when a key is missing or the size is none.
std::optional<WindowPlace> readWindowPlace(const Frame& frame, std::string_view section,
                                           std::string_view prefix);
void writeWindowPlace(const Frame& frame, std::string_view section, std::string_view prefix,
                      const WindowPlace& place);

} // namespace zandor
