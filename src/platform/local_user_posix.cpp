#include "platform/local_user.h"

#include "platform/system.h"

#include <stdlib.h>

#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace zandor {

namespace {

// No link, ours, and closed to everybody else.
bool isPrivateFolder(const std::string& path) {
    struct stat info;
    return lstat(path.c_str(), &info) == 0 && S_ISDIR(info.st_mode) && info.st_uid == geteuid() &&
           (info.st_mode & (S_IRWXG | S_IRWXO)) == 0;
}

} // namespace

std::string privateRuntimeFolder() {
    const char* given = getenv("XDG_RUNTIME_DIR");
    if (given && *given == '/' && isPrivateFolder(given))
        return given;
    const std::string own = GetTempFolder() + "/zandor-" + std::to_string(geteuid());
    ::mkdir(own.c_str(), S_IRWXU); // it may be there already
    return isPrivateFolder(own) ? own : std::string();
}

bool isSameUser(int socket) {
    struct ucred other {};
    socklen_t size = sizeof other;
    return getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &other, &size) == 0 && other.uid == geteuid();
}

} // namespace zandor
