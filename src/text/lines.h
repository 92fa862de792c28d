// A decoded text line by line. A line ends at CR, CR LF or LF; a last line without an end counts when it
// isn't empty.
#pragma once

#include <algorithm>
#include <string_view>

namespace zandor {

// The same for who looks at few lines of a large text, in ascending order.
class LineCursor {
  public:
    explicit LineCursor(std::string_view text) : text_(text) {}

    struct Line {
        std::string_view text; // without its end
        int number = 0;        // from 1
        std::size_t next = 0;  // where the next line begins; the text's size: nowhere
    };
    // The line that holds the character at `at`, or that begins there; not before the last one asked for.
    Line lineOf(std::size_t at) {
        const std::size_t before = at == 0 ? npos : text_.find_last_of("\r\n", at - 1);
        const std::size_t begin = std::max(before == npos ? 0 : before + 1, begin_);
        number_ += countEnds(text_.substr(begin_, begin - begin_));
        begin_ = begin;
        const std::size_t end = std::min(text_.find_first_of("\r\n", at), text_.size());
        const std::size_t next = end + (text_.substr(end).starts_with("\r\n") ? 2 : 1);
        return {text_.substr(begin, end - begin), number_, std::min(next, text_.size())};
    }

  private:
    static constexpr std::size_t npos = std::string_view::npos;

    // Of whole lines.
    static int countEnds(std::string_view lines) {
        int ends = 0;
        for (std::size_t i = 0; i < lines.size(); ++i)
            ends += lines[i] == '\n' || (lines[i] == '\r' && !(i + 1 < lines.size() && lines[i + 1] == '\n'));
        return ends;
    }

    std::string_view text_;
    std::size_t begin_ = 0; // of the last line asked for
    int number_ = 1;
};

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
