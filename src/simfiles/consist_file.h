// Consist files: read into a Rame and its items, and the text of a file built from them.
#pragma once

#include "simfiles/rame.h"
#include "simfiles/sim_file.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zandor {

// A file that isn't accepted leaves the defaults (Durability from `durability`, 1 being new stock's) and no
// items. The answer tells the first flaw: a vehicle line that ended the read, after which the vehicles read
// so far stand, or a vehicle that was left out.
ReadAnswer ReadConsistFile(SimReader& reader, Rame& rame, std::vector<RameItem>& items, std::string_view path,
                           double durability = 1.0);

// The same from bytes at hand.
ReadAnswer ReadConsistBytes(SimReader& reader, Rame& rame, std::vector<RameItem>& items,
                            std::string_view path, std::string_view bytes, double durability = 1.0);

// Splits the value of EngineData or WagonData into stock name and folder.
void splitVehicleData(std::string_view value, std::string& name, std::string& folder);

// One vehicle as it is written. `stockName` is without extension.
struct VehicleLines {
    bool isEngine = false;
    bool flipped = false;
    int number = 0;
    std::string stockName;
    std::string folder;
    std::string engineVariables;
};

// The whole text, lines ending in CR LF. `rame.CfgName` as it goes into the file (see quotedName()).
std::string buildConsistText(const Rame& rame, const std::vector<VehicleLines>& vehicles);
// The first vehicle that this text would not give back as it is, from 0: its name or its folder holds what
// no consist file can. Nothing when all come back.
std::optional<std::size_t> findUnreadable(SimReader& reader, const Rame& rame,
                                          const std::vector<VehicleLines>& vehicles);
// As the file holds it: the mark FF FE and UTF-16.
std::string encodeConsist(std::string_view text);
// In quotes when a blank or a bracket would end the name for a reader; short names, stock names and folders
// alike.
std::string quotedName(std::string_view name);

} // namespace zandor
