// Whether stock files stand on the disk, for thousands of consists and activities that ask for the same ones.
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
    // Looks in these folders, one after another; an empty path is none. What a folder of stock holds is asked
    // of the disk once; a file that is listed there counts, also one that can't be read.
    StockPresence(FileSystem& files, std::vector<std::string> roots)
        : files_(files), roots_(std::move(roots)) {}

    // The file's name with its extension.
    bool has(std::string_view folder, std::string_view file);

  private:
    using Names = std::vector<std::string>; // of stock files, in the order of a listing
    bool isIn(const std::string& root, std::string_view folder, std::string_view file) const;
    const Names& namesIn(std::string_view folder);
    void addNames(const std::string& path, Names& names) const;

    FileSystem& files_;
    std::vector<std::string> roots_;
    std::unordered_map<std::string, Names, TextHash, std::equal_to<>> folders_; // as spelled; of all roots
};

// Where the stock of services and activities is looked for: in the root in use and, when that is the Train
// Store, in the simulator's folder too. The simulator itself never looks into the Train Store.
std::vector<std::string> rootsInReach(const Roots& roots);

} // namespace zandor
