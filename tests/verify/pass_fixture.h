// A simulator folder on a disk in memory, and passes of the verifier over it.
#pragma once

#include "catalogue/catalogue.h"
#include "support/fakes.h"
#include "verify/checks.h"
#include "verify/verification.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zandor {

struct PassTest : testing::Test, TestFrame {
    VerifOptions options;
    VerifResults results;

    PassTest() {
        state.roots.RootMSTS = "C:\\MSTS";
        state.roots.RootTStore = "C:\\Store";
    }

    static std::string inTrainset(const std::string& name) { return "C:\\MSTS\\TRAINS\\TRAINSET\\" + name; }
    // As line 1 the signature.
    static std::string stockText(const std::string& body) {
        return std::string(ConsistSignature) + "\r\n" + body;
    }
    // Sound but for `body`, which begins in line 3.
    static std::string wagon(const std::string& body) {
        return stockText("Wagon ( a\r\n" + body +
                         "Type ( Freight )\r\nSize ( 1 1 1 )\r\nMass ( 1t )\r\n"
                         "Coupling (\r\nType ( Chain )\r\n)\r\n)\r\n");
    }
    void put(const std::string& name, const std::string& bytes = "x") { files.put(inTrainset(name), bytes); }

    PassEnd pass(VerifiedKind kind) {
        VerifSelection selection =
            listCandidates(frame, kind, listFiles(files, "C:\\MSTS\\TRAINS\\CONSISTS", ".con"));
        for (int i = 0; i < selection.size(); ++i)
            selection.chosen.push_back(i);
        return RunVerification(frame, selection, options, results);
    }

    // "file line longText/summaryText value | key" of every fault.
    std::vector<std::string> faults() const {
        std::vector<std::string> rows;
        for (const InvalidFile& file : results.InvalidFiles)
            for (const ErrorLine& line : file.Lines)
                rows.push_back(file.File + " " + std::to_string(line.Line) + " " +
                               std::to_string(line.longText) + "/" + std::to_string(line.summaryText) + " " +
                               line.Value + " | " + line.Key);
        return rows;
    }
    std::vector<std::string> mandatory() const {
        std::vector<std::string> rows;
        for (const MandatoryFault& fault : results.mandatory)
            rows.push_back(fault.file + " " + fault.key);
        return rows;
    }
};

} // namespace zandor
