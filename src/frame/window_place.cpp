#include "frame/window_place.h"

#include <algorithm>
#include <cstdint>
#include <string>

namespace zandor {

namespace {

constexpr int MaximisedState = 2; // of the key that ends in State; 0 is a window of its own size

struct NumberRow {
    std::string_view key;
    int WindowPlace::*place;
};
constexpr NumberRow Numbers[] = {{"Top", &WindowPlace::top},
                                 {"Left", &WindowPlace::left},
                                 {"Width", &WindowPlace::width},
                                 {"Height", &WindowPlace::height}};

std::string keyOf(std::string_view prefix, std::string_view key) {
    return std::string(prefix).append(key);
}

// The length that two stretches have in common; not positive when they don't meet.
int common(int begin, int length, int otherBegin, int otherLength) {
    return std::min(begin + length, otherBegin + otherLength) - std::max(begin, otherBegin);
}

// What is seen of a window on a screen, in square pixels. Sizes are those of the window with its frame.
std::int64_t seenArea(const WindowPlace& window, const ScreenArea& screen) {
    const int wide = common(window.left, window.width, screen.left, screen.width);
    const int high = common(window.top, window.height, screen.top, screen.height);
    return wide > 0 && high > 0 ? std::int64_t{wide} * high : 0;
}

int heldWithin(int begin, int length, int screenBegin, int screenLength) {
    return std::max(screenBegin, std::min(begin, screenBegin + screenLength - length));
}

} // namespace

std::optional<WindowPlace> readWindowPlace(const Frame& frame, std::string_view section,
                                           std::string_view prefix) {
    const auto read = [&](std::string_view key) {
        return frame.profiles.ReadIniValue(section, keyOf(prefix, key), frame.state.IniPath);
    };
    WindowPlace place;
    for (const NumberRow& row : Numbers) {
        const std::string text = read(row.key);
        if (text.empty())
            return std::nullopt;
        place.*row.place = numericInt16(text);
    }
    place.maximised = numericInt16(read("State")) == MaximisedState;
    return place.width > 0 && place.height > 0 ? std::optional(place) : std::nullopt;
}

std::vector<IniValue> windowPlaceValues(std::string_view section, std::string_view prefix,
                                        const WindowPlace& place) {
    std::vector<IniValue> values;
    const auto add = [&](std::string_view key, int value) {
        values.push_back({std::string(section), keyOf(prefix, key), std::to_string(value)});
    };
    for (const NumberRow& row : Numbers)
        add(row.key, place.*row.place);
    add("State", place.maximised ? MaximisedState : 0);
    return values;
}

WindowPlace placeOnScreen(WindowPlace place, const std::vector<ScreenArea>& screens,
                          const FrameMargins& frame) {
    if (screens.empty())
        return place;
    const int besides = frame.left + frame.right, above = frame.top + frame.bottom;
    place.width += besides;
    place.height += above;
    const ScreenArea& screen =
        *std::ranges::max_element(screens, {}, [&](const ScreenArea& area) { return seenArea(place, area); });
    const bool isSeen = seenArea(place, screen) > 0;
    place.width = std::min(place.width, screen.width);
    place.height = std::min(place.height, screen.height);
    if (!isSeen) {
        place.left = screen.left + (screen.width - place.width) / 2;
        place.top = screen.top + (screen.height - place.height) / 2;
    }
    place.left = heldWithin(place.left, place.width, screen.left, screen.width);
    place.top = heldWithin(place.top, place.height, screen.top, screen.height);
    place.width -= besides;
    place.height -= above;
    return place;
}

} // namespace zandor
