#include "simfiles/shape_description.h"

namespace zandor {

std::optional<SimHit> shapeOfDescription(SimReader& reader, std::string_view path) {
    // The closed form is a key outside of any block, which only a search keeps.
    const ReadAnswer answer = reader.ReadSimFile(path, {"", "Shape"});
    if (answer.found)
        return reader.SimHits.front();
    for (const SimKey& key : reader.SimKeys)
        if (key.Key.empty() && !key.Value.empty() && pathIs(key.Path, "shape"))
            return SimHit{key.Line, 0, "", "Shape", std::string(key.Tail), std::string(key.Value), key.place};
    return std::nullopt;
}

} // namespace zandor
