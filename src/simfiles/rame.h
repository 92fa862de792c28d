// A consist as its file holds it.
#pragma once

#include <string>
#include <vector>

namespace zandor {

struct Rame {
    int Serial = 0;          // 16-bit
    int NextWagonUID = 0;    // 16-bit: the next free vehicle number
    std::string CfgName;     // short name; after a save with the quotes that it needs
    std::string Name;        // full name
    std::string FileName;    // without folder, with .con
    std::string DefaultKey;  // "Default( )" as the file spells the key, or empty
    std::string MaxVelocity; // "40.00000 1.00000"
    std::string Durability;  // "1.00000"
};

inline constexpr const char* EngineMaxVelocity = "40.00000 1.00000";
inline constexpr const char* WagonsOnlyMaxVelocity = "0.00000 0.00100";

// One vehicle position.
struct RameItem {
    bool IsEngine = false;
    int UiD = 0; // 16-bit
    bool Flip = false;
    std::string Name;            // stock file without extension
    std::string Folder;          // under TRAINSET
    std::string EngineVariables; // key, "(", value, ")"; empty when absent
};

// The stock file of an item, with its extension.
inline std::string stockFileOf(const RameItem& item) {
    return item.Name + (item.IsEngine ? ".eng" : ".wag");
}

} // namespace zandor
