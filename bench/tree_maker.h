// Makes a simulator folder of invented stock and consists whose sizes and shapes are those of real
// installations: half of the stock engines of some 24 KB, half wagons of some 3.4 KB, consists of some 1.5
// KB, ten stock files a folder; a hundred services a route of some 0.6 KB, and 25 activities of 30 vehicles
// and some 15 KB.
#pragma once

#include <cstdint>
#include <string>

namespace zandor::bench {

struct TreeSize {
    int stock = 0;
    int consists = 0;
    int routes = 0;         // whose services and activities name these consists and this stock
    std::uint64_t seed = 1; // the same seed and counts give the same bytes
    // The stock of a folder shares two shapes with ten textures each and two sound sets with five waves each,
    // all of which are there; otherwise each file names its own, and none is.
    bool withNamedFiles = false;
};

// `root` is a native path; its folders are made. False: a file couldn't be written.
bool makeTree(const std::string& root, const TreeSize& size);

} // namespace zandor::bench
