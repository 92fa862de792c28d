// The waves that a sound set names, and where in its text.
#pragma once

#include "simfiles/sim_keys.h"

#include <string>
#include <string_view>
#include <vector>

namespace zandor {

struct WaveName {
    TextSpan place;        // of the name, its ends trimmed; ends behind ".wav"
    std::string_view line; // that holds it; tabs may stand in it
    int number = 0;        // of the line, from 1
};

// Those of a sound set's decoded text, in their order. The first line, the signature, and what stands between
// the brackets of "skip" and "comment" is passed over.
std::vector<WaveName> findWaves(std::string_view text);

// The name as it is looked up: tabs are blanks.
std::string textOf(std::string_view text, const WaveName& wave);

} // namespace zandor
