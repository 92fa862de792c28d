// The gate to the simulator's text files: recognises the kind by extension and signature, decodes, and parses
// into a flat ordered list of keys, each with the path of its block. See sim_keys.h for what a key is.
#pragma once

#include "frame/language.h"
#include "platform/file_system.h"
#include "simfiles/sim_keys.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zandor {

// An error that a caller may report, with the number that tells its kind.
struct SimError {
    int number = 0;
    std::string source; // the file's path
    std::string text;
};
inline constexpr int MalformedConsist = 321;
inline constexpr int NoMemoryLeft = 7;
inline constexpr int EmptyFile = 62; // a file that ends before its signature line
inline constexpr int UnreadableFile = 75;
inline constexpr int FileTooLarge = 10003;
inline constexpr int MissingStockKeyError = 10001;
inline constexpr int MisplacedVehicle = 10002; // of a consist, in a block where none belongs

// No file of the simulator comes near it; what does is none.
inline constexpr std::uint64_t LargestSimFile = std::uint64_t(32) << 20; // bytes

enum class FileKind {
    Unknown,
    Consist,
    Engine,
    Wagon,
    CabView,
    Shape,
    ShapeDescription,
    Sound,
    Activity,
    Service
};
FileKind kindOfFile(std::string_view path);
std::string_view signatureOf(FileKind kind);
inline constexpr std::string_view ConsistSignature = "SIMISA@@@@@@@@@@JINX0D0t______";

// One read after another of simulator text files. SimKeys and SimHits are valid until the next call; the
// reader keeps its storage between calls, so use one reader for many files. Not reentrant: take a second
// reader for a read within a read.
class SimReader {
  public:
    SimReader(FileSystem& files, const Language& language);
    ~SimReader();

    // `section`: the block's path, such as "Wagon\Coupling"; `key`: empty means the block's own value.
    // `count` 1: stop at the first match; 0: all; n: the first n. `mustFind`: true only when a match was
    // found, otherwise true as soon as the signature is accepted. `stockMode`: follow the 22 stock keys
    // instead. See `error` after a call: a file that is missing, or has another signature, sets none.
    bool ReadSimFile(std::string_view path, std::string_view section, std::string_view key, int count,
                     bool mustFind, bool stockMode);
    // The same on bytes at hand; `path` tells the kind.
    bool readBytes(std::string_view path, std::string_view bytes, std::string_view section,
                   std::string_view key, int count, bool mustFind, bool stockMode);

    std::vector<SimKey> SimKeys;   // one blank element when nothing was read
    std::vector<SimHit> SimHits;   // one element with Found false when nothing was found
    std::optional<SimError> error; // what the last call raised; SimKeys holds what was read until then

    FileSystem& files() { return files_; }
    const Language& language() const { return language_; }

  private:
    void forget();
    void giveBackMemory();
    SimError readError(std::string_view path, ReadResult result);

    struct Work;
    FileSystem& files_;
    const Language& language_;
    std::unique_ptr<Work> work_;
};

} // namespace zandor
