// One catalogued stock file: an engine (.eng) or wagon (.wag). All texts as the file gives them, without
// quotes; an empty text means that the file doesn't give the value.
#pragma once

#include <string>

namespace zandor {

struct Materiel {
    bool ImageIsGeneric = false;
    bool ImageIsResource = false;
    std::string BasePath; // root + "\TRAINS\TRAINSET\"
    std::string Folder;   // under TRAINSET
    std::string FileName; // with extension; empty marks a free slot
    std::string Type;
    std::string Size; // width, height, length; the length is the last token
    std::string Mass;
    std::string WagonName;
    std::string CabView;
    std::string Coupling;       // two different ends are joined by "_", front first
    std::string CouplingUnique; // with "_END" when it belongs to the rear end of a pair
    std::string EngineType;
    std::string EngineName;
    std::string BrakeSystem;
    std::string Picture;
    std::string MaxPower;
    std::string DisplayName; // filled by the stock lists
    std::string Length;      // filled by the stock lists
    bool operator==(const Materiel&) const = default;
};

// The name that a vehicle shows everywhere: EngineName, else WagonName.
inline const std::string& shownName(const Materiel& materiel) {
    return materiel.EngineName.empty() ? materiel.WagonName : materiel.EngineName;
}

} // namespace zandor
