#include "frame/window_place.h"

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

void writeWindowPlace(const Frame& frame, std::string_view section, std::string_view prefix,
                      const WindowPlace& place) {
    const auto write = [&](std::string_view key, int value) {
        frame.profiles.WriteIniValue(section, keyOf(prefix, key), std::to_string(value), frame.state.IniPath);
    };
    for (const NumberRow& row : Numbers)
        write(row.key, place.*row.place);
    write("State", place.maximised ? MaximisedState : 0);
}

} // namespace zandor
