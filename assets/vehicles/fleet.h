// The vehicles that have a picture: the six types, the missing one and the stock of the demonstration.
#pragma once

#include "parts.h"

#include <string>

namespace art {

struct Vehicle {
    std::string name; // of the picture's file, without extension
    int length;       // the picture's width in pixels
    Parts parts;
};

// Pictures of the program: "5000" to "5005" and "NO_MATERIEL".
std::vector<Vehicle> builtInVehicles();
// Thumbnails, named after the stock files.
std::vector<Vehicle> demonstrationFleet();

} // namespace art
