#include "simfiles/sim_keys.h"

#include "simfiles/sim_lines.h"
#include "text/text.h"

#include <algorithm>
#include <array>

namespace zandor {

namespace {

constexpr std::array<std::string_view, 3> CommentedBlocks{"engine", "wagon", "wagon\\inside"};

// Keys whose values are names, texts or files, in which "#" is an ordinary character.
constexpr std::array<std::string_view, 11> UncommentedKeys{"passengercabinfile",
                                                           "engineoperatingprocedures",
                                                           "skip",
                                                           "description",
                                                           "comment",
                                                           "freightanim",
                                                           "cabview",
                                                           "wagonshape",
                                                           "shape",
                                                           "name",
                                                           "wagon"};

template <std::size_t N> bool isOneOf(std::string_view text, const std::array<std::string_view, N>& names) {
    return std::any_of(names.begin(), names.end(),
                       [text](std::string_view name) { return nameIs(text, name); });
}

} // namespace

std::string StripOccurrence(std::string_view path) {
    std::string result;
    for (;;) {
        const std::size_t marker = path.find(OccurrenceMarker);
        result += path.substr(0, marker);
        if (marker == std::string_view::npos)
            return result;
        const std::size_t slash = path.find('\\', marker);
        if (slash == std::string_view::npos)
            return result;
        path.remove_prefix(slash);
    }
}

bool pathIs(std::string_view path, std::string_view wanted) {
    if (path.size() != wanted.size() && path.find(OccurrenceMarker.front()) == std::string_view::npos)
        return false; // most paths end here
    for (const char letter : wanted) {
        if (letter == '\\' && path.starts_with(OccurrenceMarker))
            path.remove_prefix(std::min(path.find('\\'), path.size()));
        if (path.empty() || !letterIs(path.front(), letter))
            return false;
        path.remove_prefix(1);
    }
    return path.empty() || (path.starts_with(OccurrenceMarker) && path.find('\\') == std::string_view::npos);
}

bool commentRuleApplies(std::string_view path, std::string_view key) {
    return !key.empty() && isOneOf(path, CommentedBlocks) && !isOneOf(key, UncommentedKeys);
}

std::string_view cutComment(std::string_view value) {
    const std::size_t hash =
        findUnquoted(value, 0, [value](std::size_t at) { return at > 0 && value[at] == '#'; });
    return hash == std::string_view::npos ? value : trim(value.substr(0, hash));
}

} // namespace zandor
