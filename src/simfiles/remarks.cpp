#include "simfiles/remarks.h"

#include <algorithm>
#include <string_view>

namespace zandor {

void Remarks::begin(const std::vector<SimLine>& lines) {
    lines_ = &lines;
    starsKnown_ = bracketsKnown_ = false;
}

Remarks::Place Remarks::behind(Place open, std::size_t owed) {
    const std::string_view text = (*lines_)[open.line].text;
    if (text.substr(open.offset).starts_with("(*"))
        if (const auto end = behindStar(open))
            return *end;
    if (const std::size_t closing = closingOf(text, open.offset); closing != std::string_view::npos)
        return {open.line, closing + 1};
    const auto below = open.offset == 0 ? behindBracketBelow(open.line, owed) : std::nullopt;
    return below.value_or(Place{open.line, text.size()});
}

std::optional<Remarks::Place> Remarks::behindStar(Place open) {
    if (!starsKnown_)
        findStars();
    const auto next = std::upper_bound(stars_.begin(), stars_.end(), open, [](Place place, const Star& star) {
        return place.line != star.at.line ? place.line < star.at.line : place.offset < star.at.offset;
    });
    if (next == stars_.end() || next->opens)
        return std::nullopt;
    return Place{next->at.line, next->at.offset + 2};
}

std::optional<Remarks::Place> Remarks::behindBracketBelow(std::size_t line, std::size_t owed) {
    if (!bracketsKnown_)
        matchBrackets();
    const auto found =
        std::lower_bound(nameless_.begin(), nameless_.end(), line,
                         [](const Nameless& bracket, std::size_t number) { return bracket.line < number; });
    // A file that lacks a closing bracket lacks the remark's: the one found is that of a block around it.
    if (found == nameless_.end() || found->depth - depth_ < static_cast<std::ptrdiff_t>(owed))
        return std::nullopt;
    return found->end;
}

void Remarks::findStars() {
    starsKnown_ = true;
    stars_.clear();
    for (std::size_t number = 1; number < lines_->size(); ++number) {
        const std::string_view text = (*lines_)[number].text;
        if (text.find('*') == std::string_view::npos)
            continue;
        findUnquoted(text, 0, [&](std::size_t at) {
            if (text[at] == '*' && at > 0 && text[at - 1] == '(')
                stars_.push_back({{number, at - 1}, true});
            if (text[at] == '*' && at + 1 < text.size() && text[at + 1] == ')')
                stars_.push_back({{number, at}, false});
            return false;
        });
    }
}

void Remarks::matchBrackets() {
    bracketsKnown_ = true;
    nameless_.clear();
    depth_ = 0;
    std::vector<std::size_t> unclosed; // of nameless_, innermost last
    for (std::size_t number = 1; number < lines_->size(); ++number)
        if ((*lines_)[number].firstOpen >= 0 || (*lines_)[number].firstClose >= 0)
            matchLine(number, unclosed);
}

void Remarks::matchLine(std::size_t number, std::vector<std::size_t>& unclosed) {
    const SimLine& line = (*lines_)[number];
    if (line.firstOpen == 0) {
        unclosed.push_back(nameless_.size());
        nameless_.push_back({number, depth_, std::nullopt});
    }
    findUnquoted(line.text, 0, [&](std::size_t at) {
        if (line.text[at] == '(') {
            ++depth_;
        } else if (line.text[at] == ')') {
            --depth_;
            if (!unclosed.empty() && nameless_[unclosed.back()].depth == depth_) {
                nameless_[unclosed.back()].end = Place{number, at + 1};
                unclosed.pop_back();
            }
        }
        return false;
    });
}

} // namespace zandor
