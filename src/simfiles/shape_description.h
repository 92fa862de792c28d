// Shape descriptions: the .sd file beside a shape.
#pragma once

#include "simfiles/sim_file.h"

#include <string_view>
#include <vector>

namespace zandor {

// The key that names the shape behind "shape (", whether its bracket closes on that line or behind other
// keys: Value is the name as the file has it, Tail and Line tell where. Path and Key of the two forms differ.
// Valid until the reader's next call. Empty for a file that names none or can't be read.
std::vector<SimKey> shapesOfDescription(SimReader& reader, std::string_view path);

} // namespace zandor
