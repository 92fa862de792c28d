// Whether stock files stand on the disk. Each is looked for once, so that thousands of consists and
// activities may ask for the same ones.
#pragma once

#include "frame/roots.h"
#include "platform/file_system.h"
#include "platform/letter_case.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace zandor {

class StockPresence {
  public:
    // Looks in these folders, one after another; an empty path is none.
    StockPresence(FileSystem& files, std::vector<std::string> roots)
        : files_(files), roots_(std::move(roots)) {}

    // The file's name with its extension.
    bool has(std::string_view folder, std::string_view file);

  private:
    bool isIn(std::string_view root, std::string_view folder, std::string_view file) const;

    FileSystem& files_;
    std::vector<std::string> roots_;
    std::unordered_map<std::string, bool, TextHash, std::equal_to<>> known_;
    std::string key_;
};

// Where the stock of services and activities is looked for: in the root in use and, when that is the Train
// Store, in the simulator's folder too. The simulator itself never looks into the Train Store.
std::vector<std::string> rootsInReach(const Roots& roots);

} // namespace zandor
