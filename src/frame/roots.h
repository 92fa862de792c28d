// The two folders that hold simulator data, of which one is in use at a time.
#pragma once

#include <string>

namespace zandor {

enum class Root { Simulator, Store };

inline Root otherThan(Root root) {
    return root == Root::Simulator ? Root::Store : Root::Simulator;
}

// Paths without a trailing "\"; empty: there is none.
struct Roots {
    std::string RootMSTS, RootTStore;
    Root first = Root::Simulator; // the one in use, whose stock is catalogued

    const std::string& path(Root root) const { return root == Root::Simulator ? RootMSTS : RootTStore; }
    const std::string& RootPrimary() const { return path(first); }
    const std::string& RootSecondary() const { return path(otherThan(first)); }
};

} // namespace zandor
