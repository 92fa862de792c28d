// The lines of a simulator text file as the parser wants them. Each character is looked at once while they
// are cut, and again only where a line isn't a plain key.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zandor {

// One line, tabs turned into blanks and both ends trimmed, with what its brackets look like.
struct SimLine {
    std::string_view text;
    int firstOpen = -1;  // byte offset of the first "(" in text
    int firstClose = -1; // of the first ")"
    bool severalOpen = false;
    bool severalClose = false;
    bool hasQuote = false;
};

// The first position from `from` on whose character is outside of pairs of quotes and for which `isWanted`
// is true; npos when there is none. A quote without a partner on its line is an ordinary character.
template <typename Wanted>
std::size_t findUnquoted(std::string_view line, std::size_t from, Wanted isWanted) {
    for (std::size_t i = from; i < line.size(); ++i) {
        const std::size_t partner = line[i] == '"' ? line.find('"', i + 1) : std::string_view::npos;
        if (partner != std::string_view::npos)
            i = partner;
        else if (isWanted(i))
            return i;
    }
    return std::string_view::npos;
}

// Where the bracket that opens at `open` closes, those between them balanced; npos: not on this line.
std::size_t closingOf(std::string_view line, std::size_t open);

// Cuts a decoded text into lines at CR, CR LF or LF; tabs in `text` become blanks in place, so that what
// stands where stays the same. Element 0 and 1 are blank: lines count from 1 and the first is the signature,
// which is returned. A line that lacks `keepOnly` (lower case, case ignored) becomes blank; empty keeps all.
std::string_view cutLines(std::string& text, std::string_view keepOnly, std::vector<SimLine>& lines);

} // namespace zandor
