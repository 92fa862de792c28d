// Remarks of a simulator text file: brackets without a name in front. They may hold anything, keys too, and
// nothing in them counts.
#pragma once

#include "simfiles/sim_lines.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace zandor {

// Finds where the remarks of a file end. Looks through the file at most twice, and only when a remark asks.
class Remarks {
  public:
    // A character of the file.
    struct Place {
        std::size_t line = 0;   // from 1
        std::size_t offset = 0; // byte in the line's text, from 0
    };

    // `lines` must stay as they are until the next call.
    void begin(const std::vector<SimLine>& lines);

    // The place behind the remark whose bracket stands at `open`. "(*" ends at the next "*)" when no other
    // "(*" comes before that; any other remark at its own bracket; one without an end, with its line.
    // `owed`: how many closing brackets the blocks around it wait for.
    Place behind(Place open, std::size_t owed);

  private:
    struct Star { // one "(*" or "*)"
        Place at;
        bool opens = false;
    };
    struct Nameless { // a line that begins with a bracket
        std::size_t line = 0;
        std::ptrdiff_t depth = 0; // brackets open in front of it
        std::optional<Place> end;
    };

    std::optional<Place> behindStar(Place open);
    std::optional<Place> behindBracketBelow(std::size_t line, std::size_t owed);
    void findStars();
    void matchBrackets();
    void matchLine(std::size_t number, std::vector<std::size_t>& unclosed);

    const std::vector<SimLine>* lines_ = nullptr;
    std::vector<Star> stars_;
    std::vector<Nameless> nameless_;
    std::ptrdiff_t depth_ = 0; // at the end of the file
    bool starsKnown_ = false;
    bool bracketsKnown_ = false;
};

} // namespace zandor
