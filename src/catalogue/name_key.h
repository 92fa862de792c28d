// The text under which a stock file stands in a look-up table.
#pragma once

#include "platform/letter_case.h"

#include <string>
#include <string_view>

namespace zandor {

// Folder and file as they stand, joined by a NUL, which no name holds. `key` keeps its storage.
inline void makeNameKey(std::string_view folder, std::string_view file, std::string& key) {
    key.assign(folder);
    key += '\0';
    key += file;
}

inline std::string foldedNameKey(std::string_view folder, std::string_view file) {
    std::string key;
    makeNameKey(folder, file, key);
    return lowerCase(key);
}

} // namespace zandor
