// The 22 keys that the check of a stock file follows, in the order of their flags.
#pragma once

#include <array>
#include <string_view>

namespace zandor {

struct StockKey {
    std::string_view path; // canonical spelling
    std::string_view key;  // empty: the block's own value
};

inline constexpr std::array<StockKey, 22> StockKeys{{
    {"Wagon", ""},
    {"Wagon", "Name"},
    {"Wagon", "Mass"},
    {"Wagon", "Size"},
    {"Wagon", "Type"},
    {"Wagon", "BrakeSystemType"},
    {"Wagon", "Thumbnail"},
    {"Wagon", "WagonShape"},
    {"Wagon", "Sound"},
    {"Wagon\\Inside", "Sound"},
    {"Wagon\\Sound", "Skip"},
    {"Wagon\\Coupling", "Type"},
    {"Engine", ""},
    {"Engine", "Name"},
    {"Engine", "Type"},
    {"Engine", "Wagon"},
    {"Engine", "Sound"},
    {"Engine\\Sound", "Skip"},
    {"Engine\\Inside", "Sound"},
    {"Engine", "CabView"},
    {"Wagon\\Inside", "PassengerCabinFile"},
    {"Wagon", "FreightAnim"},
}};
inline constexpr std::size_t CouplingTypeKey = 11; // the one that gives a hit at each occurrence

} // namespace zandor
