// A reader over a disk in memory, and files made from text as the simulator writes them.
#pragma once

#include "platform/memory_file_system.h"
#include "simfiles/sim_file.h"
#include "text/decode.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace zandor {

struct SimFixture : ::testing::Test {
    MemoryFileSystem files;
    SimReader reader{files};

    static std::string signed_(std::string_view body, FileKind kind = FileKind::Wagon) {
        return std::string(signatureOf(kind)) + "\r\n" + std::string(body);
    }
    static std::string utf16(std::string_view text) { return encodeText(text, TextEncoding::Utf16); }

    // "path|key|value|line" of every key, markers' numbers left out of the paths.
    std::vector<std::string> keysOf(std::string_view body, std::string_view name = "x.wag",
                                    const ReadRequest& request = {}) {
        reader.readBytes(name, utf16(signed_(body, kindOfFile(name))), request);
        std::vector<std::string> rows;
        for (const SimKey& key : reader.SimKeys)
            if (!key.Path.empty())
                rows.push_back(StripOccurrence(key.Path) + "|" + std::string(key.Key) + "|" +
                               std::string(key.Value) + "|" + std::to_string(key.Line));
        return rows;
    }
};

} // namespace zandor
