#include "cli/text_table.h"

#include "platform/utf8.h"
#include "text/control_characters.h"

#include <algorithm>

namespace zandor {

namespace {

constexpr std::size_t Gap = 2; // blanks between two columns

std::size_t widthOf(std::string_view text) {
    std::size_t width = 0;
    for (std::size_t at = 0; at < text.size(); ++width)
        nextCharacter(text, at);
    return width;
}

} // namespace

void TextTable::add(std::vector<std::string> cells) {
    widths_.resize(std::max(widths_.size(), cells.size()));
    for (std::size_t column = 0; column < cells.size(); ++column) {
        cells[column] = escapeControls(cells[column]);
        widths_[column] = std::max(widths_[column], widthOf(cells[column]));
    }
    rows_.push_back(std::move(cells));
}

void TextTable::print(ResultText& out) const {
    if (rows_.size() < 2)
        return;
    for (const std::vector<std::string>& cells : rows_) {
        std::string line;
        for (std::size_t column = 0; column < cells.size(); ++column)
            line.append(cells[column]).append(widths_[column] - widthOf(cells[column]) + Gap, ' ');
        line.erase(line.find_last_not_of(' ') + 1);
        out << line + "\n";
    }
}

} // namespace zandor
