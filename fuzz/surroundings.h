// What every fuzz target needs around the call that it tries.
#pragma once

#include "frame/settings.h"
#include "platform/memory_file_system.h"
#include "simfiles/sim_file.h"

#include <fuzzer/FuzzedDataProvider.h>

#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace zandor::fuzz {

// A disk in memory and a reader on it.
struct Surroundings {
    MemoryFileSystem files;
    ProfileFiles profiles{files};
    SimReader reader{files};
};

// Ends the run, as a crash does, when a promise is broken.
inline void require(bool kept, const char* promise) {
    if (kept)
        return;
    std::fprintf(stderr, "Broken: %s\n", promise);
    std::abort();
}

// The options are taken from the end of the input and the rest is a file: a seed is a file as it stands.
inline std::string fileOf(FuzzedDataProvider& input) {
    return input.ConsumeRemainingBytesAsString();
}

} // namespace zandor::fuzz
