// The trees that are measured on: made at first use in a temporary folder, which goes when the run ends.
#pragma once

#include "tree_maker.h"

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace zandor::bench {

// Native paths, each list in the order of its folders and names.
struct Tree {
    std::string root;
    std::vector<std::string> stockFiles;
    std::vector<std::string> consistFiles;
    std::vector<std::string> routeFiles; // of a tree that has consists
};

class Trees {
  public:
    Trees() = default;
    Trees(const Trees&) = delete;
    Trees& operator=(const Trees&) = delete;
    ~Trees();

    // Its files have been read once, so that every measurement finds them in the system's cache.
    const Tree& get(int stock, int consists);

  private:
    std::string folder_;
    std::map<std::pair<int, int>, Tree> made_;
};

// What any reader of these files must pay: open, size, read, close. Returns the number of bytes read.
std::size_t readPlainly(const std::vector<std::string>& paths);
// The same with so many threads, each of which takes the next file.
std::size_t readPlainly(const std::vector<std::string>& paths, int threads);

// Takes these files out of the system's cache, so that they come from the disk when they are read next.
// False: their folders stayed in it, as only an administrator may have those taken out too.
bool emptyCache(const std::vector<std::string>& paths);

} // namespace zandor::bench
