#include "verify/shape_scan.h"

#include "simfiles/sim_keys.h"
#include "text/lines.h"

#include <algorithm>
#include <optional>

namespace zandor {

namespace {

constexpr std::size_t npos = std::string_view::npos;

std::string_view trimmed(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    return first == npos ? std::string_view() : text.substr(first, text.find_last_not_of(" \t") + 1 - first);
}

// Looks for "images" by its "g", which lines of points and vectors, most of a shape, don't have.
class ImagesSearch {
  public:
    explicit ImagesSearch(std::string_view text)
        : text_(text), small_(text.find('g')), large_(text.find('G')) {}

    // From `from` on, which never goes back; npos: none.
    std::size_t next(std::size_t from) {
        constexpr std::string_view word = "images";
        constexpr std::size_t ahead = 3; // of its "g"
        for (;; advance()) {
            const std::size_t at = std::min(small_, large_);
            if (at == npos)
                return npos;
            if (at >= from + ahead && nameIs(text_.substr(at - ahead, word.size()), word))
                return at - ahead;
        }
    }

  private:
    void advance() {
        if (small_ < large_)
            small_ = text_.find('g', small_ + 1);
        else
            large_ = text_.find('G', large_ + 1);
    }

    std::string_view text_;
    std::size_t small_, large_; // the next ones that weren't looked at
};

bool holdsImage(std::string_view line) {
    constexpr std::string_view word = "image";
    for (std::size_t at = 0; at + word.size() <= line.size(); ++at)
        if (nameIs(line.substr(at, word.size()), word))
            return true;
    return false;
}

std::string_view betweenBrackets(std::string_view line) {
    const std::size_t open = line.find('(');
    if (open == npos)
        return line;
    // a bracket within quotes belongs to the name
    const std::size_t begin = line.find_first_not_of(" \t", open + 1);
    const std::size_t quote = begin != npos && line[begin] == '"' ? line.find('"', begin + 1) : npos;
    const std::size_t close = line.find(')', quote == npos ? open : quote);
    return close == npos ? line : trimmed(line.substr(open + 1, close - open - 1));
}

// The lines of one block; returns where the search goes on, npos when it is over.
std::size_t readBlock(LineCursor& lines, std::string_view text, std::size_t at,
                      std::vector<ShapeImage>& images) {
    while (at < text.size()) {
        const LineCursor::Line line = lines.lineOf(at);
        const std::string_view shown = trimmed(line.text);
        if (shown == ")")
            return npos;
        if (!holdsImage(shown))
            return line.next;
        images.push_back({betweenBrackets(shown), shown, line.number});
        at = line.next;
    }
    return npos;
}

} // namespace

std::vector<ShapeImage> findImages(std::string_view text) {
    std::vector<ShapeImage> images;
    ImagesSearch search(text);
    LineCursor lines(text);
    for (std::size_t from = 0; from != npos;) {
        const std::size_t found = search.next(from);
        if (found == npos)
            break;
        from = readBlock(lines, text, lines.lineOf(found).next, images);
    }
    return images;
}

} // namespace zandor
