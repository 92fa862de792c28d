// The textures that a text shape names, found without parsing it: shapes are large.
#pragma once

#include <string_view>
#include <vector>

namespace zandor {

struct ShapeImage {
    std::string_view name; // between the brackets, trimmed, quotes kept
    std::string_view line; // tabs may stand in it
    int number = 0;        // of the line, from 1
};

// Those of the blocks "images" of a shape's decoded text, in their order, up to the first ")" alone on a
// line of such a block. The texts live in `text`.
std::vector<ShapeImage> findImages(std::string_view text);

} // namespace zandor
