// A small tree of stock on a disk in memory, and one pass over targets in it.
#pragma once

#include "support/fakes.h"
#include "text/decode.h"
#include "verify/missing_list.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace zandor {

struct TargetFixture : ::testing::Test, TestFrame {
    using Rows = std::vector<std::string>;

    VerifOptions options;
    VerifResults results;
    std::unique_ptr<VerifWork> work;

    TargetFixture() {
        state.roots.RootMSTS = "\\sim";
        files.put("\\sim\\Sound\\default.wav", "w");
        files.put("\\sim\\TRAINS\\TRAINSET\\A\\a.wag", "");
        beginPass();
    }
    void beginPass() {
        results = {};
        work.reset(new VerifWork{frame, options, results});
    }

    static std::string inTrainset(std::string_view path) {
        return "\\sim\\TRAINS\\TRAINSET\\" + std::string(path);
    }
    static CheckTarget soundTarget(const std::string& stock, const std::string& file) {
        return {inTrainset(stock + "\\Sound\\"), stock + "\\Sound\\", file};
    }
    static CheckTarget shapeTarget(const std::string& stock, const std::string& file) {
        return {inTrainset(stock + "\\"), stock + "\\", file};
    }
    static std::string text(std::string_view body, FileKind kind,
                            TextEncoding encoding = TextEncoding::Utf16) {
        return encodeText(std::string(signatureOf(kind)) + "\r\n" + std::string(body), encoding);
    }
    // "owner|name|detail|line" of every item.
    Rows missing() const {
        Rows rows;
        for (const MissingEntry& entry : results.MissingEntries)
            for (const MissingItem& item : entry.Items)
                rows.push_back(entry.Owner + "|" + item.Name + "|" + item.Detail + "|" +
                               std::to_string(item.Line));
        return rows;
    }
};

} // namespace zandor
