#include "cli/result_text.h"

#include <algorithm>

namespace zandor {

ResultText& ResultText::operator<<(std::string_view text) {
    constexpr std::size_t PieceSize = 64 * 1024;
    if (pieces_.empty() || pieces_.back().capacity() - pieces_.back().size() < text.size())
        pieces_.emplace_back().reserve(std::max(PieceSize, text.size()));
    pieces_.back() += text;
    return *this;
}

bool ResultText::writeTo(std::ostream& out) const {
    for (const std::string& piece : pieces_)
        if (!out.write(piece.data(), static_cast<std::streamsize>(piece.size())))
            return false;
    return static_cast<bool>(out.flush());
}

} // namespace zandor
