#include "platform/read_ahead.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <new>
#include <system_error>
#include <thread>
#include <vector>

namespace zandor {

namespace {

// Files are handed out by so many: neighbours mostly share a folder, and few calls pass between the threads.
constexpr std::size_t ChunkSize = 16;
constexpr std::size_t Chunks = MostAhead / ChunkSize; // in the ring
constexpr auto ServeEvery = std::chrono::milliseconds(20);
// As many as the largest machine makes use of, also where there are fewer processors: a thread that waits for
// the disk leaves its processor to another one, and a disk serves several reads at a time. Two threads on two
// processors take twice as long from a disk, and hardly less from the system's cache.
constexpr std::size_t UsualThreads = 8;

std::size_t chunksOf(std::size_t count) {
    return (count + ChunkSize - 1) / ChunkSize;
}

bool readAlone(FileSystem& files, std::size_t count, AheadWork& work) {
    const std::unique_ptr<AheadReader> reader = work.makeReader(files);
    for (std::size_t file = 0; file < count; ++file) {
        if (!work.goOn())
            return false;
        work.turnOf(file);
        reader->read(file);
        work.take(file);
    }
    return true;
}

// What the threads share. Chunks are begun in order, and end in any.
class ReadingThreads {
  public:
    explicit ReadingThreads(std::size_t count) : count_(count), chunks_(chunksOf(count)) {}
    ~ReadingThreads() { end(); }

    // False: the system has no other thread to give.
    bool start(AheadReader& reader);
    bool isEmpty() const { return threads_.empty(); }
    // On the caller's thread.
    bool takeAll(AheadWork& work);

  private:
    struct Chunk {
        bool read = false;
        std::exception_ptr thrown; // by its file of this number; those behind it aren't read
        std::size_t thrower = 0;
    };
    Chunk& at(std::size_t chunk) { return ring_[chunk % Chunks]; }

    void run(AheadReader& reader);
    bool mayBegin() const { return ended_ || begun_ == chunks_ || begun_ < taken_ + Chunks; }
    void readChunk(AheadReader& reader, std::size_t chunk);
    bool isRead(std::size_t chunk, AheadWork& work);
    void giveBack(std::size_t chunk);
    void end();

    const std::size_t count_, chunks_;
    std::vector<std::thread> threads_;
    std::atomic<bool> ended_ = false; // no more is wanted
    std::mutex mutex_;                // of all below
    std::condition_variable read_, room_;
    std::array<Chunk, Chunks> ring_;
    std::size_t begun_ = 0, taken_ = 0; // chunks
};

bool ReadingThreads::start(AheadReader& reader) {
    try {
        threads_.emplace_back([this, &reader] { run(reader); });
        return true;
    } catch (const std::system_error&) {
        return false;
    }
}

void ReadingThreads::run(AheadReader& reader) {
    std::unique_lock lock(mutex_);
    for (;;) {
        room_.wait(lock, [this] { return mayBegin(); });
        if (ended_ || begun_ == chunks_)
            return;
        const std::size_t chunk = begun_++;
        lock.unlock();
        readChunk(reader, chunk);
        lock.lock();
        at(chunk).read = true;
        if (at(chunk).thrown)
            begun_ = chunks_; // it will end there
        if (chunk == taken_)
            read_.notify_one();
    }
}

void ReadingThreads::readChunk(AheadReader& reader, std::size_t chunk) {
    const std::size_t behind = std::min(count_, (chunk + 1) * ChunkSize);
    for (std::size_t file = chunk * ChunkSize; file < behind && !ended_; ++file) {
        try {
            reader.read(file);
        } catch (...) {
            at(chunk).thrown = std::current_exception();
            at(chunk).thrower = file;
            return;
        }
    }
}

// False: the work would not go on meanwhile.
bool ReadingThreads::isRead(std::size_t chunk, AheadWork& work) {
    std::unique_lock lock(mutex_);
    while (!read_.wait_for(lock, ServeEvery, [&] { return at(chunk).read; })) {
        lock.unlock();
        if (!work.goOn())
            return false;
        lock.lock();
    }
    return true;
}

void ReadingThreads::giveBack(std::size_t chunk) {
    const std::lock_guard lock(mutex_);
    at(chunk) = Chunk();
    ++taken_;
    room_.notify_one();
}

bool ReadingThreads::takeAll(AheadWork& work) {
    for (std::size_t file = 0; file < count_; ++file) {
        const std::size_t chunk = file / ChunkSize;
        if (!work.goOn())
            return false;
        work.turnOf(file);
        if (file % ChunkSize == 0 && !isRead(chunk, work))
            return false;
        if (at(chunk).thrown && at(chunk).thrower == file)
            std::rethrow_exception(at(chunk).thrown);
        work.take(file);
        if ((file + 1) % ChunkSize == 0)
            giveBack(chunk);
    }
    return true;
}

void ReadingThreads::end() {
    {
        const std::lock_guard lock(mutex_);
        ended_ = true;
    }
    room_.notify_all();
    for (std::thread& thread : threads_)
        thread.join();
}

// A door and what reads through it.
struct Reading {
    std::unique_ptr<FileSystem> door;
    std::unique_ptr<AheadReader> reader;
};

// False: there is no other door, or too little memory: then fewer threads read.
bool addReading(FileSystem& files, AheadWork& work, std::vector<Reading>& readings) {
    try {
        if (std::unique_ptr<FileSystem> door = files.anotherDoor()) {
            std::unique_ptr<AheadReader> reader = work.makeReader(*door);
            readings.push_back({std::move(door), std::move(reader)});
            return true;
        }
    } catch (const std::bad_alloc&) {
    }
    return false;
}

std::size_t threadsFor(std::size_t count, int wanted) {
    return std::min(wanted > 0 ? static_cast<std::size_t>(wanted) : UsualThreads, chunksOf(count));
}

} // namespace

bool readAhead(FileSystem& files, std::size_t count, int threads, AheadWork& work) {
    const std::size_t wanted = threadsFor(count, threads);
    std::vector<Reading> readings; // outlive the threads
    readings.reserve(wanted);
    ReadingThreads ahead(count);
    while (wanted > 1 && readings.size() < wanted && addReading(files, work, readings))
        if (!ahead.start(*readings.back().reader))
            break;
    return ahead.isEmpty() ? readAlone(files, count, work) : ahead.takeAll(work);
}

} // namespace zandor
