// Shape descriptions: the .sd file beside a shape.
#pragma once

#include "simfiles/sim_file.h"

#include <optional>
#include <string_view>

namespace zandor {

// The key that names the shape behind "shape (", whether its bracket closes on that line or behind other
// keys. Value is the name as the file has it, quotes kept. Nothing for a file that can't be read or names
// none.
std::optional<SimHit> shapeOfDescription(SimReader& reader, std::string_view path);

} // namespace zandor
