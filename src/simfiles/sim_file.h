// The gate to the simulator's text files: recognises the kind by extension and signature, decodes, and parses
// into a flat ordered list of keys, each with the path of its block. See sim_keys.h for what a key is.
#pragma once

#include "platform/file_system.h"
#include "simfiles/read_request.h"
#include "simfiles/sim_keys.h"

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

namespace zandor {

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

// The lines that matter to who looks for the textures of a kind, as ReadRequest::keepLines wants them; empty
// where all do. Shapes and cab views are large, and little of them is of use.
std::string_view textureLines(FileKind kind);

// What a file that couldn't be read is answered with.
ReadAnswer unreadAnswer(FileSystem& files, std::string_view path, ReadResult result);

// One read after another of simulator text files. SimKeys and SimHits are valid until the next call, and
// empty when nothing was read or found; the reader keeps its storage between calls, so use one reader for
// many files. Not reentrant: take a second reader for a read within a read.
class SimReader {
  public:
    explicit SimReader(FileSystem& files);
    ~SimReader();

    ReadAnswer ReadSimFile(std::string_view path, const ReadRequest& request = {});
    // The same on bytes at hand; `path` tells the kind.
    ReadAnswer readBytes(std::string_view path, std::string_view bytes, const ReadRequest& request = {});

    std::vector<SimKey> SimKeys; // of a malformed file, those read until then
    std::vector<SimHit> SimHits;

    FileSystem& files() { return files_; }

  private:
    void giveBackMemory();

    struct Work;
    FileSystem& files_;
    std::unique_ptr<Work> work_;
};

} // namespace zandor
