// The text rules that all subsystems share. Texts are UTF-8; positions count bytes from 0.
#pragma once

#include "platform/letter_case.h"

#include <string>
#include <string_view>
#include <vector>

namespace zandor {

// Blanks only, both ends. Inline: the parser trims every line and value.
inline std::string_view trim(std::string_view text) {
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
    while (!text.empty() && text.back() == ' ')
        text.remove_suffix(1);
    return text;
}

// First `count` characters (not bytes), never cutting one in two.
std::string_view firstCharacters(std::string_view text, std::size_t count);

// The number that the text begins with: blanks, a sign, digits with "." as the decimal point, an exponent.
// Stops at the first character that doesn't fit; 0 when none does.
double numericValue(std::string_view text);
// The same rounded (half to even) to a 16-bit number; out of range gives 0.
int numericInt16(std::string_view text);

std::string
formatDurability(double value); // "###0.00000": five decimals, "." as the point: 1 gives "1.00000"

// Trims, then drops one double quote at each end; the ends are treated apart.
std::string_view StripQuotes(std::string_view text);
// False when exactly one end of the trimmed text is a double quote.
bool QuotesBalanced(std::string_view text);
// Drops tabs and blanks at the ends, one "(" in front, one ")" behind, trims, then balanced quotes.
std::string_view CleanValue(std::string_view text);
// A raw line for the quick readers: tabs become blanks, ends trimmed, and the blanks between a key and its
// bracket become one.
void NormalizeLine(std::string& line);

// Lower case, with a capital at the beginning of each word; words end at blanks and tabs.
std::string properCase(std::string_view text);

// Last blank-separated token, as the length stands in a size text: "3m 4m 18.5m" gives "18.5m".
std::string_view lastToken(std::string_view text);

} // namespace zandor
