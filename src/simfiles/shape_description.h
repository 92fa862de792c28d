// Shape descriptions: the .sd file beside a shape.
#pragma once

#include "simfiles/sim_file.h"

#include <optional>
#include <string_view>

namespace zandor {

// The key that names the shape behind "shape (", whether its bracket closes on that line or behind other
// keys: Value is the name as the file has it, Tail and Line tell where. Path and Key of the two forms differ.
// Valid until the reader's next call. Nothing for a file that names none or can't be read.
std::optional<SimKey> shapeOfDescription(SimReader& reader, std::string_view path);

} // namespace zandor
