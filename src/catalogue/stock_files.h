// The stock files of a folder, as every walk through TRAINSET sees them.
#pragma once

#include "catalogue/messages.h"
#include "platform/file_system.h"

#include <array>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace zandor {

// A walk through all folders for one kind of stock.
struct StockPass {
    std::string_view extension;
    Message listing;
};
inline constexpr StockPass StockPasses[] = {{".eng", message::ListingEngines},
                                            {".wag", message::ListingWagons}};

inline constexpr std::string_view UncataloguedWagon =
    "default.wag"; // in this case alone; Default.wag is a wagon like any

// What stands in the order of the passes: engines, wagons.
using StockNames = std::array<std::vector<std::string>, std::size(StockPasses)>;

// Names with their extension, in listing order, without the wagon that is no stock.
std::vector<std::string> listStockFiles(FileSystem& files, std::string_view folder,
                                        std::string_view extension);
// The same for all passes, from one look at the folder.
StockNames listStockFiles(FileSystem& files, std::string_view folder);

} // namespace zandor
