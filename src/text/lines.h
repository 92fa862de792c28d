// A decoded text line by line. A line ends at CR, CR LF or LF; a last line without an end counts when it
// isn't empty.
#pragma once

#include <string_view>

namespace zandor {

template <typename Visit> void forEachLine(std::string_view text, Visit visit) {
    while (!text.empty()) {
        const std::size_t feed = text.find('\n');
        const bool ended = feed != std::string_view::npos;
        std::string_view lines = text.substr(0, feed);
        text.remove_prefix(ended ? feed + 1 : text.size());
        if (ended && lines.ends_with('\r'))
            lines.remove_suffix(1);
        for (std::size_t at; (at = lines.find('\r')) != std::string_view::npos; lines.remove_prefix(at + 1))
            visit(lines.substr(0, at));
        if (ended || !lines.empty())
            visit(lines);
    }
}

} // namespace zandor
