// Texts compared with case ignored, as the simulator's system compares the names of files. UTF-8.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace zandor {

// Lower case of Latin, Greek and Cyrillic letters; every other character stays. Byte lengths may change.
std::string lowerCase(std::string_view text);
std::string upperCase(std::string_view text);
bool equalIgnoringCase(std::string_view a, std::string_view b);
// Order of a folder listing: by character, case ignored; ties by bytes.
bool lessIgnoringCase(std::string_view a, std::string_view b);
bool beginsWithIgnoringCase(std::string_view text, std::string_view beginning);
bool endsWithIgnoringCase(std::string_view text, std::string_view ending);
bool containsIgnoringCase(std::string_view text, std::string_view part);

// Transparent hash and equality for look-up tables keyed by text.
struct TextHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
};

} // namespace zandor
