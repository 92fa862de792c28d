// An open file that closes itself.
#pragma once

#include <errno.h>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace zandor {

class Descriptor {
  public:
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { close(); }

    int get() const { return number_; }
    bool isOpen() const { return number_ >= 0; }
    // False: what was written may not be on the disk.
    bool close() {
        const int number = std::exchange(number_, -1);
        return number < 0 || ::close(number) == 0 || errno == EINTR;
    }

  private:
    int number_;
};

// A descriptor's number, or -1. `folder`: where a relative path begins. Waits for no writer of a pipe.
inline int openAt(int folder, const char* path, int flags, mode_t mode = 0) {
    int number;
    do
        number = ::openat(folder, path, flags | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, mode);
    while (number < 0 && errno == EINTR);
    return number;
}

} // namespace zandor
