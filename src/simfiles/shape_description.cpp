#include "simfiles/shape_description.h"

namespace zandor {

namespace {

bool namesShape(const SimKey& key) {
    const bool closes = key.Path.empty() && nameIs(key.Key, "shape");
    const bool isBlock = key.Key.empty() && pathIs(key.Path, "shape");
    return (closes || isBlock) && !key.Value.empty();
}

} // namespace

std::vector<SimKey> shapesOfDescription(SimReader& reader, std::string_view path) {
    std::vector<SimKey> shapes;
    if (reader.ReadSimFile(path).accepted())
        for (const SimKey& key : reader.SimKeys)
            if (namesShape(key))
                shapes.push_back(key);
    return shapes;
}

} // namespace zandor
