// A decoded text line by line. A line ends at CR, CR LF or LF; a last line without an end counts when it isn't empty.
#pragma once

#include <string_view>

namespace zandor {

template <typename Visit> void forEachLine(std::string_view text, Visit visit) {
    while (!text.empty()) {
        const std::size_t end = text.find_first_of("\r\n");
        if (end == std::string_view::npos) {
            visit(text);
            return;
        }
        visit(text.substr(0, end));
        const bool two = text[end] == '\r' && end + 1 < text.size() && text[end + 1] == '\n';
        text.remove_prefix(end + (two ? 2 : 1));
    }
}

} // namespace zandor
