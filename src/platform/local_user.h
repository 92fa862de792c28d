// What keeps the programs of one user of this machine apart from those of another.
#pragma once

#include <string>

namespace zandor {

// A folder in which only this user can make and open things, for sockets and locks of the session; a native
// path without a trailing separator. $XDG_RUNTIME_DIR, else one of our own among the temporary files. Empty
// when neither is safe.
std::string privateRuntimeFolder();

// True when the program at the other end of a connected local socket (its descriptor) runs as this user.
bool isSameUser(int socket);

} // namespace zandor
