// A simulator path taken apart.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zandor {

// The components are parts of the text that was parsed. "." and empty ones are gone; ".." is resolved, and
// stays at the root when it would lead above it.
struct SimPath {
    char drive = 0;      // its lower-case letter, or 0
    bool rooted = false; // begins at the root or at a drive
    std::vector<std::string_view> parts;
};

SimPath parseSimPath(std::string_view text);

// The beginning of the path with `count` components, each ended by "\"; the same for every spelling but case.
std::string folderKey(const SimPath& path, std::size_t count);

// Behind the last "\" or "/".
inline std::string_view lastComponent(std::string_view name) {
    const std::size_t separator = name.find_last_of("\\/");
    return separator == std::string_view::npos ? name : name.substr(separator + 1);
}
// What stands in front of that, with the "\" or "/".
inline std::string_view folderPart(std::string_view name) {
    return name.substr(0, name.size() - lastComponent(name).size());
}

} // namespace zandor
