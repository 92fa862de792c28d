#include "platform/sim_path.h"

#include "platform/letter_case.h"

#include <algorithm>

namespace zandor {

namespace {

constexpr std::string_view kSeparators = "/\\";

bool isDriveLetter(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

void addPart(SimPath& path, std::string_view part) {
    if (part.empty() || part == ".")
        return;
    if (part != "..")
        path.parts.push_back(part);
    else if (!path.parts.empty() && path.parts.back() != "..")
        path.parts.pop_back();
    else if (!path.rooted)
        path.parts.push_back(part);
}

} // namespace

SimPath parseSimPath(std::string_view text) {
    SimPath path;
    if (text.size() >= 2 && text[1] == ':' && isDriveLetter(text[0])) {
        path.drive = lowerCase(text.substr(0, 1))[0];
        text.remove_prefix(2);
    }
    path.rooted = path.drive != 0 || text.starts_with('\\') || text.starts_with('/');
    for (std::size_t begin = 0; begin < text.size();) {
        const std::size_t end = std::min(text.find_first_of(kSeparators, begin), text.size());
        addPart(path, text.substr(begin, end - begin));
        begin = end + 1;
    }
    return path;
}

std::string folderKey(const SimPath& path, std::size_t count) {
    std::string key;
    if (path.drive != 0)
        key.append({path.drive, ':'});
    if (path.rooted)
        key += '\\';
    for (std::size_t i = 0; i < count; ++i)
        key.append(path.parts[i]) += '\\';
    return key;
}

} // namespace zandor
