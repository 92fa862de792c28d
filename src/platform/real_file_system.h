// The real disk. On a case-sensitive system it keeps folder listings and uses them as long as the folder's
// time stamp stands, so that an existence test costs two stat calls at most.
#pragma once

#include "platform/file_system.h"

#include <memory>

namespace zandor {

// Whether new contents wait in a file without a name until they are whole; otherwise in one of a name of its
// own.
enum class NamelessFiles { WherePossible, Never };

// `winePrefix`: the folder whose dosdevices map drive paths such as C:\ (see winePrefixFolder()); may be
// empty.
std::unique_ptr<FileSystem> makeRealFileSystem(const std::string& winePrefix,
                                               NamelessFiles nameless = NamelessFiles::WherePossible);

} // namespace zandor
