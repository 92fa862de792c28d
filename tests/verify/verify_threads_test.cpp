// A pass over a real tree finds, tells and asks the same with any number of threads.
#include "platform/real_file_system.h"
#include "simfiles/sim_file.h"
#include "support/fakes.h"
#include "verify/verification.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <stdlib.h>

namespace zandor {
namespace {

namespace disk = std::filesystem;
using Names = std::vector<std::string>;

// Ends the pass when so much was told; how often it is asked depends on the disk.
struct ToldProgress final : Progress {
    Names told;
    std::size_t endAt = SIZE_MAX;

    void ShowProgress(int lower, int upper, int current, std::string_view text) override {
        told.push_back(std::to_string(lower) + "-" + std::to_string(upper) + ":" + std::to_string(current) +
                       " " + std::string(text));
    }
    bool yield() override { return told.size() < endAt; }
};

// All that a pass leaves behind, as text.
struct Passed {
    PassEnd end = PassEnd::Complete;
    VerifResults results;
    Names found, told, messages;
    std::string repaired; // bytes of two files
};

struct VerifyThreads : testing::Test {
    std::string root;
    static constexpr int Folders = 40;

    VerifyThreads() {
        std::string pattern = (disk::temp_directory_path() / "threads-XXXXXX").string();
        root = mkdtemp(pattern.data());
        for (int folder = 10; folder < 10 + Folders; ++folder)
            putFolder("F" + std::to_string(folder), folder);
        put("F12/empty.s", "");
        put("F15/open.wag", signedText("Wagon ( open\r\nType ( Freight"));
        put("F16/binary.wag", std::string("\x01\x02\0\x03", 4));
        disk::create_symlink("nowhere", path("F17/gone.wag"));
        // One file of two names, whose turns come far from each other.
        putWithoutQuotes();
        disk::create_symlink("../F11/bare.wag", path("F40/bare.wag"));
    }
    ~VerifyThreads() override { disk::remove_all(root); }

    std::string path(const std::string& name) const { return root + "/TRAINS/TRAINSET/" + name; }
    void put(const std::string& name, const std::string& bytes = "x") const {
        disk::create_directories(disk::path(path(name)).parent_path());
        std::ofstream(path(name), std::ios::binary) << bytes;
    }
    std::string bytesOf(const std::string& name) const {
        std::ifstream file(path(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    static std::string signedText(const std::string& body, FileKind kind = FileKind::Wagon) {
        return std::string(signatureOf(kind)) + "\r\n" + body;
    }
    static std::string wagon(const std::string& name, const std::string& keys) {
        return signedText("Wagon ( " + name + "\r\nType ( Freight )\r\nSize ( 1 1 1 )\r\nMass ( 1t )\r\n" +
                          keys + "Coupling (\r\nType ( Chain )\r\n)\r\n)\r\n");
    }
    void putWithoutQuotes() const {
        put("F11/bare.wag", wagon("bare", "Sound ( set.sms )\r\nSound ( lost.sms )\r\n"));
        put("F30/bare.wag", wagon("bare", "Sound ( lo\"st.sms )\r\n"));
    }
    // Every third folder has faults: a wrong name, a shape that isn't there, keys that are missing.
    void putFolder(const std::string& folder, int number) const {
        const std::string digits = std::to_string(number), shape = number % 3 == 0 ? "lost" : "body";
        for (const char* letter : {"a", "b", "c"})
            put(folder + "/" + letter + digits + ".wag",
                wagon(letter + (shape == "lost" ? "?" : digits), "WagonShape ( " + shape +
                                                                     ".s )\r\nFreightAnim ( load.s 1 1 )\r\n"
                                                                     "Sound ( \"set.sms\" )\r\n"));
        if (number % 7 == 0)
            put(folder + "/lacking.wag", signedText("Wagon ( lacking\r\nType ( Boat )\r\n)\r\n"));
        put(folder + "/body.s", images({"wood", "iron"}));
        put(folder + "/load.s", images({"coal"}));
        put(folder + "/body.sd", description("body.s"));
        put(folder + "/load.sd", description(number % 4 == 0 ? "other.s" : "load.s"));
        put(folder + "/Wood.ace");
        put(folder + "/Sound/set.sms",
            signedText("File ( \"here.wav\" -1 )\r\nFile ( \"lost.wav\" -1 )\r\n", FileKind::Sound));
        put(folder + "/Sound/here.wav");
    }
    static std::string images(const Names& names) {
        std::string text = "shape (\r\nimages ( " + std::to_string(names.size()) + "\r\n";
        for (const std::string& name : names)
            text += "image ( " + name + ".ace )\r\n";
        return signedText(text + ")\r\n)\r\n", FileKind::Shape);
    }
    static std::string description(const std::string& shape) {
        return signedText("shape ( " + shape + "\r\nESD_Detail_Level ( 0 )\r\n)\r\n",
                          FileKind::ShapeDescription);
    }

    // The files that are repaired are put back first.
    Passed pass(int threads, bool repairs, std::size_t endAt = SIZE_MAX) const {
        putWithoutQuotes();
        const std::unique_ptr<FileSystem> files = makeRealFileSystem("");
        AppState state;
        state.roots.RootMSTS = root;
        state.Language = "English";
        state.LanguagePath = ZANDOR_SOURCE_DIR "/src/frame/Langues.lng";
        ProfileFiles profiles(*files);
        FakeRegistry registry;
        FakeProcesses processes;
        FakeDialogs dialogs;
        ToldProgress progress;
        progress.endAt = endAt;
        Frame frame{state,     *files,  profiles, registry,
                    processes, dialogs, progress, Language(profiles, state)};
        VerifSelection selection = listCandidates(frame, VerifiedKind::Wagons, {});
        for (int i = 0; i < selection.size(); ++i)
            selection.chosen.push_back(i);
        Passed passed;
        const VerifOptions options{true, true, repairs, true, false, true};
        passed.end = RunVerification(frame, selection, options, passed.results, {threads});
        passed.found = foundIn(passed.results);
        passed.told = std::move(progress.told);
        for (const FakeDialogs::Shown& shown : dialogs.shown)
            passed.messages.push_back(shown.text);
        passed.repaired = bytesOf("F11/bare.wag") + bytesOf("F30/bare.wag");
        return passed;
    }
    static Names foundIn(const VerifResults& results) {
        Names found;
        for (const InvalidFile& file : results.InvalidFiles)
            for (const ErrorLine& line : file.Lines)
                found.push_back(file.Folder + "|" + file.File + "|" + file.Name + "|" + line.Long + "|" +
                                line.Value + "|" + line.Key + "|" + std::to_string(line.Line));
        for (const MissingEntry& entry : results.MissingEntries)
            for (const MissingItem& item : entry.Items)
                found.push_back(entry.Owner + "|" + entry.Dir + "|" + item.Name + "|" + item.Detail + "|" +
                                std::to_string(item.Line));
        for (const MandatoryFault& fault : results.mandatory)
            found.push_back(fault.folder + "|" + fault.file + "|" + fault.key);
        for (const DuplicateEntry& entry : results.DuplicateEntries)
            found.push_back(entry.Name + "|" + std::to_string(entry.Others.size()));
        const VerifCounters& counters = results.counters;
        for (const int count : {counters.files, counters.QuoteRepairCount, counters.QuoteRepairFailures,
                                counters.MissingTextures, counters.MissingSounds})
            found.push_back(std::to_string(count));
        return found;
    }
};

void expectSame(const Passed& one, const Passed& other) {
    EXPECT_EQ(one.end, other.end);
    EXPECT_EQ(one.found, other.found);
    EXPECT_EQ(one.told, other.told);
    EXPECT_EQ(one.messages, other.messages);
    EXPECT_EQ(one.repaired, other.repaired);
}

TEST_F(VerifyThreads, OneAndEightFindTheSameManyTimes) {
    for (int round = 0; round < 30; ++round) {
        const bool repairs = round % 2 == 0;
        const Passed one = pass(1, repairs);
        expectSame(one, pass(8, repairs));
        if (round > 1)
            continue;
        const VerifCounters& counters = one.results.counters;
        EXPECT_EQ(one.end, PassEnd::Complete);
        EXPECT_EQ(counters.QuoteRepairCount, repairs ? 1 : 0) << "once, though the file has two names";
        EXPECT_EQ(counters.QuoteRepairFailures, repairs ? 1 : 0);
        EXPECT_EQ(counters.MissingSounds, Folders);
        EXPECT_GT(counters.MissingTextures, Folders);
        EXPECT_GT(one.results.InvalidFiles.size(), Folders / 3u);
        EXPECT_FALSE(one.results.mandatory.empty());
        EXPECT_FALSE(one.messages.empty());
    }
}

TEST_F(VerifyThreads, AnEndedPassLeavesTheSame) {
    const std::size_t all = pass(1, true).told.size();
    for (std::size_t endAt = 0; endAt < all; endAt += 29) {
        const Passed one = pass(1, true, endAt);
        EXPECT_EQ(one.end, PassEnd::Cancelled) << endAt;
        expectSame(one, pass(8, true, endAt));
    }
}

} // namespace
} // namespace zandor
