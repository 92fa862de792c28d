// The new contents of a file, made whole out of sight and then put in its place in one step. Two programs
// that replace the same file don't meet: the last one wins.
#pragma once

#include "platform/real_file_system.h"

#include <string>
#include <string_view>

#include <sys/stat.h>

namespace zandor {

// Makes the native path `target` hold exactly `bytes`, on the disk before it returns true. `old`: the file
// that is replaced, whose permissions and, where this user may give them, owner and group are kept; nullptr:
// there is none, and a link or anything else that is no file is left alone. False: what was there stands.
bool putInPlace(const std::string& target, const struct stat* old, std::string_view bytes,
                NamelessFiles nameless);

} // namespace zandor
