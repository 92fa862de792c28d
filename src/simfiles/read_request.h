// What a read of a simulator text file is asked for, and what comes of it.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace zandor {

// As it stands: all keys of the file.
struct ReadRequest {
    std::string_view section = {}; // the block's path, such as "Wagon\Coupling"; any case
    std::string_view key = {};     // empty: the block's own value; any case
    int count = 1;                 // 1: stop at the first match; 0: all; n: the first n
    bool stockMode = false;        // follow the 22 stock keys instead
    // Lines without this text (lower case, any case in the file) are taken for blank; empty keeps all.
    std::string_view keepLines = {};
};

// How a read ended. Empty: a file that ends before its signature line. OtherKind: its extension is none of
// the simulator's, or its first line lacks the signature that goes with it.
enum class ReadOutcome { Read, NoFile, Unreadable, TooLarge, NoMemory, Empty, OtherKind, Malformed };

// What is wrong with a file that was accepted. The two brackets are those of a malformed vehicle line.
enum class Flaw {
    None,
    BracketOpenMissing,
    BracketCloseMissing,
    VehicleMisplaced, // of a consist, in a block where none belongs
    VehicleNameless,  // of a consist: what it stands for can't be told
    StockKeyMissing
};

// What a reader found: how the read ended, and the first flaw. Nothing here depends on a language.
struct ReadAnswer {
    ReadOutcome outcome = ReadOutcome::Read;
    Flaw flaw = Flaw::None;
    bool found = false;     // what was asked for
    int line = 0;           // the flaw's, from 1
    std::string text = {};  // the flaw's line, its ends trimmed; the missing key's path
    std::uint64_t size = 0; // bytes of a file that is too large

    bool accepted() const { return outcome == ReadOutcome::Read || outcome == ReadOutcome::Malformed; }
    bool sound() const { return outcome == ReadOutcome::Read && flaw == Flaw::None; }
};

// The number that an answer has as an error; 0 for a sound one, for no file and for another kind.
int errorNumber(const ReadAnswer& answer);
inline constexpr int NoMemoryLeft = 7;
inline constexpr int EmptyFile = 62;
inline constexpr int UnreadableFile = 75;
inline constexpr int MalformedConsist = 321;
inline constexpr int MissingStockKeyError = 10001;
inline constexpr int LostVehicle = 10002; // misplaced or nameless
inline constexpr int FileTooLarge = 10003;

} // namespace zandor
