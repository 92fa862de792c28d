#include "platform/memory_file_system.h"
#include "platform/read_ahead.h"
#include "platform/real_file_system.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <set>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

namespace zandor {
namespace {

// Work whose files are numbers: what is read of one is its square.
struct Squares final : AheadWork {
    explicit Squares(std::size_t count) : results(count), reads(count) {}

    struct Reader final : AheadReader {
        explicit Reader(Squares& squares) : work(squares) {}
        void read(std::size_t file) override {
            if (file >= work.taken + MostAhead)
                work.tooFarAhead = true;
            if (file == work.blocked)
                work.waitUntilServed();
            if (file == work.thrower)
                throw std::runtime_error("file " + std::to_string(file));
            work.results[file] = file * file;
            ++work.reads[file];
            ++work.begun;
        }
        Squares& work;
    };

    std::unique_ptr<AheadReader> makeReader(FileSystem&) override { return std::make_unique<Reader>(*this); }
    bool goOn() override {
        ++served;
        return taken < endAt;
    }
    void turnOf(std::size_t file) override { turn = file; }
    void take(std::size_t file) override {
        EXPECT_EQ(file, taken) << "out of order";
        EXPECT_EQ(turn, file);
        EXPECT_EQ(results[file], file * file);
        ++taken;
    }
    // Holds a file back until the caller's thread was served a few times more, for ten seconds at most.
    void waitUntilServed() {
        const int enough = served + 5;
        for (int i = 0; i < 1000 && served < enough; ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        heldUp = served < enough;
    }

    std::vector<std::size_t> results;
    std::vector<int> reads;
    std::atomic<std::size_t> taken = 0, begun = 0;
    std::atomic<int> served = 0;
    std::atomic<bool> tooFarAhead = false, heldUp = false;
    std::size_t turn = 0;
    std::size_t endAt = SIZE_MAX, thrower = SIZE_MAX, blocked = SIZE_MAX;
};

struct ReadingThreads : testing::Test {
    std::unique_ptr<FileSystem> disk = makeRealFileSystem("");
};

TEST_F(ReadingThreads, ReadEachFileOnceAndHandOverInOrder) {
    for (const int threads : {0, 1, 2, 8})
        for (const std::size_t count : {0u, 1u, 16u, 17u, 33u, 5000u}) {
            Squares squares(count);
            EXPECT_TRUE(readAhead(*disk, count, threads, squares));
            EXPECT_EQ(squares.taken, count);
            EXPECT_EQ(squares.reads, std::vector<int>(count, 1)) << threads << " threads, " << count;
            EXPECT_FALSE(squares.tooFarAhead);
        }
}

TEST_F(ReadingThreads, EndWhenNoMoreIsWanted) {
    for (const std::size_t endAt : {0u, 1u, 15u, 16u, 700u, 4999u}) {
        Squares squares(5000);
        squares.endAt = endAt;
        EXPECT_FALSE(readAhead(*disk, 5000, 8, squares));
        EXPECT_EQ(squares.taken, endAt);
        EXPECT_LE(squares.begun, endAt + MostAhead);
    }
}

TEST_F(ReadingThreads, ThrowInTheTurnOfTheFileThatFailed) {
    for (const int threads : {1, 8})
        for (const std::size_t thrower : {0u, 15u, 16u, 700u, 4999u}) {
            Squares squares(5000);
            squares.thrower = thrower;
            std::string thrown;
            try {
                readAhead(*disk, 5000, threads, squares);
            } catch (const std::runtime_error& error) {
                thrown = error.what();
            }
            EXPECT_EQ(thrown, "file " + std::to_string(thrower));
            EXPECT_EQ(squares.taken, thrower) << "those before it counted";
            EXPECT_EQ(squares.turn, thrower);
        }
}

TEST_F(ReadingThreads, TheCallerIsServedWhileItWaits) {
    Squares squares(100);
    squares.blocked = 0; // none is taken meanwhile
    EXPECT_TRUE(readAhead(*disk, 100, 4, squares));
    EXPECT_FALSE(squares.heldUp);
}

// Where the work is done.
struct Places final : AheadWork {
    struct Reader final : AheadReader {
        explicit Reader(std::set<std::thread::id>& seen) : places(seen) {}
        void read(std::size_t) override { places.insert(std::this_thread::get_id()); }
        std::set<std::thread::id>& places;
    };
    std::unique_ptr<AheadReader> makeReader(FileSystem& door) override {
        lastDoor = &door;
        return std::make_unique<Reader>(places);
    }
    bool goOn() override { return true; }
    void turnOf(std::size_t) override {}
    void take(std::size_t) override {}

    std::set<std::thread::id> places;
    FileSystem* lastDoor = nullptr;
};

TEST_F(ReadingThreads, ADiskWithOneDoorIsReadOnTheCallersThread) {
    MemoryFileSystem memory;
    Places places;
    EXPECT_TRUE(readAhead(memory, 1000, 8, places));
    EXPECT_EQ(places.places, std::set{std::this_thread::get_id()});
    EXPECT_EQ(places.lastDoor, &memory);
}

} // namespace
} // namespace zandor
