// Many files read ahead on several threads, while their results are taken on the caller's thread, one by one
// and in order: what comes of it is the same with any number of threads.
#pragma once

#include "platform/file_system.h"

#include <cstddef>
#include <memory>

namespace zandor {

// What reads the files of one thread, all of them through that thread's own door.
class AheadReader {
  public:
    virtual ~AheadReader() = default;
    // Reads the file of this number, from 0, and keeps what came of it for AheadWork::take(). Looks at
    // nothing that the caller's thread may change meanwhile. What it throws is thrown to the caller in the
    // file's turn.
    virtual void read(std::size_t file) = 0;
};

// What is to be done with the files. All calls come on the caller's thread.
class AheadWork {
  public:
    virtual ~AheadWork() = default;
    // One for each thread; lives no longer than its door.
    virtual std::unique_ptr<AheadReader> makeReader(FileSystem& door) = 0;
    // Called once a file, and every now and then while one is waited for. False: no more is wanted.
    virtual bool goOn() = 0;
    virtual void turnOf(std::size_t file) = 0; // before its result is waited for
    virtual void take(std::size_t file) = 0;   // its result is there
};

// No file is begun before the one that comes by so many earlier was taken: a ring of as many results will do.
inline constexpr std::size_t MostAhead = 512;

// Reads `count` files with so many threads; 0: with 8, which is good for any machine. With one, or when
// `files` has no other door, the caller's own thread reads. False: the work would not go on; what was read
// ahead and not taken doesn't count. No thread outlives the call.
bool readAhead(FileSystem& files, std::size_t count, int threads, AheadWork& work);

} // namespace zandor
