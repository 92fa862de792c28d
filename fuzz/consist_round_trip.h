// A consist written, read and written again, for the fuzz targets of the consist files.
#pragma once

#include "simfiles/consist_file.h"
#include "surroundings.h"

#include <string>
#include <vector>

namespace zandor::fuzz {

struct Consist {
    Rame rame;
    std::vector<RameItem> items;
    ReadAnswer answer; // of the read that it came from
};

inline constexpr const char* ConsistPath = "\\sim\\trains\\consists\\a.con";

inline Consist readConsist(Surroundings& around) {
    Consist consist;
    consist.answer = ReadConsistFile(around.reader, consist.rame, consist.items, ConsistPath);
    return consist;
}

// The consist as a writer takes it.
inline Rame rameOf(const Consist& consist) {
    Rame rame = consist.rame;
    rame.CfgName = quotedName(rame.CfgName);
    return rame;
}

inline std::vector<VehicleLines> linesOf(const Consist& consist) {
    std::vector<VehicleLines> vehicles;
    for (const RameItem& item : consist.items)
        vehicles.push_back({item.IsEngine, item.Flip, item.UiD, item.Name, item.Folder,
                            item.IsEngine ? item.EngineVariables : std::string()});
    return vehicles;
}

inline std::string writeConsist(Surroundings& around, const Consist& consist) {
    const std::string bytes = encodeConsist(buildConsistText(rameOf(consist), linesOf(consist)));
    around.files.put(ConsistPath, bytes);
    return bytes;
}

inline void requireEqual(const Consist& a, const Consist& b) {
    const auto same = [](const std::string& one, const std::string& other, const char* promise) {
        if (one != other)
            std::fprintf(stderr, "[%s] became [%s]\n", one.c_str(), other.c_str());
        require(one == other, promise);
    };
    same(a.rame.CfgName, b.rame.CfgName, "the short name reads back");
    same(a.rame.Name, b.rame.Name, "the full name reads back");
    same(a.rame.DefaultKey, b.rame.DefaultKey, "the Default key reads back");
    same(a.rame.MaxVelocity, b.rame.MaxVelocity, "MaxVelocity reads back");
    same(a.rame.Durability, b.rame.Durability, "Durability reads back");
    require(a.rame.Serial == b.rame.Serial && a.rame.NextWagonUID == b.rame.NextWagonUID,
            "the numbers read back");
    require(a.items.size() == b.items.size(), "every vehicle reads back");
    for (std::size_t i = 0; i < a.items.size(); ++i) {
        same(a.items[i].Name, b.items[i].Name, "a stock name reads back");
        same(a.items[i].Folder, b.items[i].Folder, "a folder reads back");
        same(a.items[i].EngineVariables, b.items[i].EngineVariables, "EngineVariables reads back");
        require(a.items[i].IsEngine == b.items[i].IsEngine && a.items[i].Flip == b.items[i].Flip &&
                    a.items[i].UiD == b.items[i].UiD,
                "a vehicle reads back");
    }
}

// The file holds `written`, made from `consist`: what is read from it is the same, and so is what is written
// then.
inline void requireRoundTrip(Surroundings& around, const Consist& consist, const std::string& written) {
    const Consist again = readConsist(around);
    require(again.answer.sound(), "a written file is sound");
    requireEqual(consist, again);
    require(writeConsist(around, again) == written, "a second write gives the same bytes");
}

} // namespace zandor::fuzz
