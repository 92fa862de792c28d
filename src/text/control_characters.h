// Control characters in names and arguments, which a terminal would obey rather than show.
#pragma once

#include <string>
#include <string_view>

namespace zandor {

// C0 controls, DEL, C1 controls and bytes that are no UTF-8 as "\n", "\r", "\t" or "\x1b"; the rest as it is.
std::string escapeControls(std::string_view text);
// A message on one line: its line breaks (CR LF, one or several) become a blank, all else is escaped.
std::string oneLine(std::string_view text);

} // namespace zandor
