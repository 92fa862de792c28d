// The messages of the simulator's files: their numbers in Langues.lng. The code uses the names alone.
#pragma once

#include "frame/message.h"

namespace zandor::message {

// accessible names, and what the strip says of the selected vehicle
inline constexpr Message VehicleMisplaced{84}; // |1 the line's number, |2 a line break, |3 the line

// the consist under edit
inline constexpr Message MissingStockKey{326}; // |1 and |3 a line break, |2 the key

// loading, and what is known of a vehicle
inline constexpr Message BracketOpenMissing{391};  // |1 the line's number, |2 a line break, |3 the line
inline constexpr Message BracketCloseMissing{392}; // as 391

// vehicles that a consist file doesn't name
inline constexpr Message VehicleNameless{870}; // as 84

// files that aren't read
inline constexpr Message FileTooLarge{800};    // |1 its size in megabytes, |2 the most that is read
inline constexpr Message NoMemoryForFile{801}; // as 800 and 802, the reason that 803 gives
inline constexpr Message FileUnreadable{802};

} // namespace zandor::message
