// Where a window stood when it was closed, kept in the settings file: a section of its own, five keys that
// begin with the window's prefix, such as ListTop. Device-independent pixels.
#pragma once

#include "frame/frame.h"

#include <optional>
#include <string_view>
#include <vector>

namespace zandor {

// The corner is that of the frame, which the size is without.
struct WindowPlace {
    int left = 0, top = 0, width = 0, height = 0;
    bool maximised = false;
};

// Nothing when a key is missing or the size is none.
std::optional<WindowPlace> readWindowPlace(const Frame& frame, std::string_view section,
                                           std::string_view prefix);
// What is to be written.
std::vector<IniValue> windowPlaceValues(std::string_view section, std::string_view prefix,
                                        const WindowPlace& place);

// The part of a screen that windows may stand on: all but its panels.
struct ScreenArea {
    int left = 0, top = 0, width = 0, height = 0;
};
// How far a window's frame reaches beyond what is inside it; nothing before the window is shown.
struct FrameMargins {
    int left = 0, top = 0, right = 0, bottom = 0;
};

// The place moved and made smaller until the window stands whole on one screen, its frame included: on the
// screen that shows the most of it, or in the middle of the first one when none shows any. A window that
// can't be as small as that still has its top left corner in sight. Without screens the place stays.
WindowPlace placeOnScreen(WindowPlace place, const std::vector<ScreenArea>& screens,
                          const FrameMargins& frame);

} // namespace zandor
