#include "simfiles/shape_description.h"

#include <algorithm>

namespace zandor {

namespace {

// What stands in a block that opens with the name and is closed lines later, or not at all, as in most files.
std::optional<SimKey> shapeOfBlock(const std::vector<SimKey>& keys) {
    const auto block = std::ranges::find_if(
        keys, [](const SimKey& key) { return key.Key.empty() && pathIs(key.Path, "shape"); });
    if (block == keys.end())
        return std::nullopt;
    SimKey shape = *block;
    const auto next = std::next(block);
    if (shape.Value.empty() && next != keys.end() && pathIs(next->Path, "shape"))
        shape.Value = next->Key.substr(0, next->Key.rfind(' ')); // shape ( a.s ESD_Detail_Level ( 0 )
    return shape;
}

} // namespace

// A key outside of all blocks is gone from the reader's list once another follows it, and so is sought apart.
std::optional<SimKey> shapeOfDescription(SimReader& reader, std::string_view path) {
    std::string bytes;
    if (reader.files().read(path, bytes, LargestSimFile) != ReadResult::Done)
        return std::nullopt;
    if (reader.readBytes(path, bytes, {.key = "shape"}).found)
        return reader.SimKeys.back();
    reader.readBytes(path, bytes);
    return shapeOfBlock(reader.SimKeys);
}

} // namespace zandor
