// The load of a real tree is the same with any number of threads, whatever its files are like.
#include "catalogue/catalogue.h"
#include "platform/real_file_system.h"
#include "support/fakes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <stdlib.h>

namespace zandor {
namespace {

namespace disk = std::filesystem;
using Names = std::vector<std::string>;

// What goes wrong with the reading of single files, told by their names; the same through all doors.
struct Faults {
    std::string throwing, failing; // a read throws; fails as a broken disk does
    std::string lacking;           // the first read of it finds no memory
    std::atomic<bool> lacked = false;
};

class FaultyDisk final : public FileSystem {
  public:
    FaultyDisk(std::unique_ptr<FileSystem> real, Faults& faults) : real_(std::move(real)), faults_(faults) {}

    std::unique_ptr<FileSystem> anotherDoor() override {
        return std::make_unique<FaultyDisk>(real_->anotherDoor(), faults_);
    }
    ReadResult read(std::string_view path, std::string& bytes, std::uint64_t limit) override {
        const std::string name = GetFileName(path);
        bytes.clear();
        if (name == faults_.throwing)
            throw std::runtime_error(name);
        if (name == faults_.lacking && !faults_.lacked.exchange(true))
            return ReadResult::NoMemory;
        return name == faults_.failing ? ReadResult::Unreadable : real_->read(path, bytes, limit);
    }
    ReadResult readStart(std::string_view path, std::string& bytes, std::size_t count) override {
        return real_->readStart(path, bytes, count);
    }
    bool fileExists(std::string_view path) override { return real_->fileExists(path); }
    bool folderExists(std::string_view path) override { return real_->folderExists(path); }
    bool isOwnFolder(std::string_view path) override { return real_->isOwnFolder(path); }
    std::optional<FileStamp> stamp(std::string_view path) override { return real_->stamp(path); }
    std::vector<FolderEntry> listFolder(std::string_view path) override { return real_->listFolder(path); }
    bool replaceFile(std::string_view path, std::string_view bytes, ReadOnly readOnly) override {
        return real_->replaceFile(path, bytes, readOnly);
    }
    bool deleteFile(std::string_view path) override { return real_->deleteFile(path); }
    bool createFolder(std::string_view path) override { return real_->createFolder(path); }
    bool deleteFolder(std::string_view path) override { return real_->deleteFolder(path); }
    std::string nativePath(std::string_view path) override { return real_->nativePath(path); }

  private:
    std::unique_ptr<FileSystem> real_;
    Faults& faults_;
};

// Writes down what it is told; ends the operation when so much was told. How often it is asked counts for
// nothing: while a file is waited for that depends on the disk.
struct ToldProgress final : Progress {
    Names told;
    std::size_t endAt = SIZE_MAX;

    void ShowProgress(int lower, int upper, int current, std::string_view text) override {
        told.push_back(std::to_string(lower) + "-" + std::to_string(upper) + ":" + std::to_string(current) +
                       " " + std::string(text));
    }
    void atFile(std::string_view path) override { told.emplace_back(path); }
    bool yield() override { return told.size() < endAt; }
};

// How a load goes.
struct LoadCase {
    int threads = 1;
    bool full = true;
    NameRepair repair = NameRepair::Allowed;
    std::size_t endAt = SIZE_MAX;
    Faults* faults = nullptr;
};

// All that a load leaves behind.
struct Loaded {
    bool complete = false;
    std::string thrown;
    std::vector<Materiel> materiels;
    std::vector<ConsistEntry> consists;
    std::vector<StockUse> usage;
    std::vector<RouteMSTS> routes;
    Names servicesRun;
    Names consistFiles, passedOver, told, messages;
    std::string repaired; // bytes of the file that may be
};

void expectSame(const Loaded& one, const Loaded& other) {
    EXPECT_EQ(one.complete, other.complete);
    EXPECT_EQ(one.thrown, other.thrown);
    EXPECT_TRUE(one.materiels == other.materiels);
    EXPECT_TRUE(one.consists == other.consists);
    EXPECT_TRUE(one.usage == other.usage);
    EXPECT_TRUE(one.routes == other.routes);
    EXPECT_EQ(one.servicesRun, other.servicesRun);
    EXPECT_EQ(one.consistFiles, other.consistFiles);
    EXPECT_EQ(one.passedOver, other.passedOver);
    EXPECT_EQ(one.told, other.told);
    EXPECT_EQ(one.messages, other.messages);
    EXPECT_EQ(one.repaired, other.repaired);
}

std::string signedText(const std::string& body) {
    return std::string(ConsistSignature) + "\r\n" + body;
}

std::string wagonText(const std::string& name, const std::string& more = {}) {
    return signedText("Wagon ( " + name +
                      "\r\nType ( Carriage )\r\nSize ( 3m 4m 20m )\r\nMass ( 30t )\r\n"
                      "Coupling (\r\nType ( Chain )\r\n)\r\nName ( \"A long name of " +
                      name + "\" )\r\n" + more + ")\r\n");
}

struct LoadThreads : testing::Test {
    std::string root;
    static constexpr int Folders = 48;

    LoadThreads() {
        std::string pattern = (disk::temp_directory_path() / "threads-XXXXXX").string();
        root = mkdtemp(pattern.data());
        for (int folder = 0; folder < Folders; ++folder)
            putFolder(std::to_string(10 + folder));
        putOddStock();
        putOddConsists();
        for (const char* name : {"Bare", "Coast", "Fell"})
            putRoute(name);
    }
    ~LoadThreads() override { disk::remove_all(root); }

    std::string stockPath(const std::string& name) const { return root + "/TRAINS/TRAINSET/" + name; }
    std::string consistPath(const std::string& name) const { return root + "/TRAINS/CONSISTS/" + name; }
    static void put(const std::string& path, const std::string& bytes) {
        disk::create_directories(disk::path(path).parent_path());
        std::ofstream(path, std::ios::binary) << bytes;
    }
    static std::string bytesOf(const std::string& path) {
        std::ifstream file(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    void putFolder(const std::string& number) const {
        for (const char* name : {"a", "b", "c"})
            put(stockPath("F" + number + "/" + name + number + ".wag"), wagonText(name + number));
        put(stockPath("F" + number + "/loco" + number + ".eng"),
            wagonText("loco" + number) + "Engine ( loco\r\nType ( Diesel )\r\nName ( \"Loco " + number +
                "\" )\r\nMaxPower ( 1000kW )\r\n)\r\n");
        put(consistPath("train" + number + ".con"),
            signedText("Train (\r\nTrainCfg ( train" + number + "\r\nName ( \"The train " + number +
                       "\" )\r\nEngine (\r\nEngineData ( loco" + number + " F" + number +
                       " )\r\n)\r\nWagon (\r\nWagonData ( a10 F10 )\r\n)\r\n)\r\n)\r\n"));
    }
    // Its services name no consist at times, and its vehicles stand in front of the name at times: what
    // becomes of such a one depends on those before it.
    void putRoute(const std::string& name) const {
        const std::string folder = root + "/ROUTES/" + name + "/";
        put(folder + "readme.txt", "");
        if (name == "Bare")
            return;
        put(folder + name + ".trk", "Name ( " + name + " )");
        for (int number = 10; number < 40; ++number) {
            const std::string file = std::to_string(number);
            put(folder + "SERVICES/" + file + ".srv",
                "Name ( " + file + " )" + (number % 3 ? "\r\nTrain_Config ( train" + file + " )" : ""));
            put(folder + "ACTIVITIES/" + file + ".act",
                "SIMISA@@@@@@@@@@JINX0a0t______\r\nTrain_Config (\r\nTrainCfg (\r\nWagon (\r\nWagonData ( a" +
                    file + " F" + file + " )\r\n)\r\n)\r\n)\r\nTr_Activity (\r\nTr_Activity_Header (\r\n" +
                    (number % 4 ? "Name ( " + file + " )" : "") + "\r\n)\r\n)\r\n");
        }
    }
    void putTooLarge(const std::string& path) const {
        put(path, signedText("Wagon ( huge\r\n"));
        disk::resize_file(path, LargestSimFile + 1);
    }
    // The wagon that wants repair is one file of two names, whose turns come far from each other.
    void putOddStock() const {
        putTwoNames();
        put(stockPath("F12/default.wag"), wagonText("default"));
        put(stockPath("F15/binary.eng"), std::string("\x01\x02\0\x03", 4));
        put(stockPath("F15/empty.wag"), "");
        put(stockPath("F20/lacking.wag"), signedText("Wagon ( lacking\r\nType ( Freight )\r\n)\r\n"));
        put(stockPath("F21/other.eng"), "SIMISA@@@@@@@@@@JINX0s1t______\r\nshape (\r\n");
        put(stockPath("F30/open.wag"), signedText("Wagon ( open\r\nType ( Freight"));
        putTooLarge(stockPath("F22/huge.wag"));
        putTooLarge(stockPath("F35/huge.eng"));
        disk::create_symlink("nowhere", stockPath("F25/gone.eng"));
        disk::create_symlink("loop.wag", stockPath("F25/loop.wag"));
        disk::create_symlink("../F11/names.wag", stockPath("F50/names.wag"));
    }
    void putTwoNames() const {
        put(stockPath("F11/names.wag"), wagonText("names", "Name ( \"A second name\" )\r\n"));
    }
    void putOddConsists() const {
        put(consistPath("bare.con"), signedText("Train (\r\nTrainCfg ( bare\r\n)\r\n)\r\n"));
        put(consistPath("broken.con"), signedText("Train (\r\nTrainCfg ( broken\r\nWagon (\r\nWagonData ( "
                                                  "A10 f10 )\r\n)\r\nWagon (\r\nWagonData ( b10 F10\r\n"));
        put(consistPath("other.con"), "no signature");
        putTooLarge(consistPath("huge.con"));
    }

    Loaded load(const LoadCase& how) const {
        Faults none;
        FaultyDisk files(makeRealFileSystem(""), how.faults ? *how.faults : none);
        AppState state;
        state.roots.RootMSTS = root;
        state.Language = "English";
        state.LanguagePath = ZANDOR_SOURCE_DIR "/src/frame/Langues.lng";
        state.PrintGreen = true;
        state.Optimize = how.full;
        ProfileFiles profiles(files);
        FakeRegistry registry;
        FakeProcesses processes;
        FakeDialogs dialogs;
        ToldProgress progress;
        progress.endAt = how.endAt;
        Frame frame{state,     files,   profiles, registry,
                    processes, dialogs, progress, Language(profiles, state)};
        Catalogue catalogue;
        putTwoNames();
        Loaded loaded;
        try {
            loaded.complete =
                LoadCatalogue(frame, catalogue, {how.repair, PictureFolders::LeftAlone, how.threads});
        } catch (const std::runtime_error& error) {
            loaded.thrown = error.what();
        }
        loaded.materiels = catalogue.here().Materiels;
        loaded.consists = catalogue.ConsistIndex;
        loaded.usage = catalogue.StockUsage;
        loaded.routes = catalogue.here().Routes;
        loaded.servicesRun = catalogue.here().RamesEnService;
        loaded.consistFiles = catalogue.here().ConsistFiles;
        loaded.passedOver = catalogue.passedOver;
        loaded.told = progress.told;
        for (const FakeDialogs::Shown& shown : dialogs.shown)
            loaded.messages.push_back(shown.text);
        loaded.repaired = bytesOf(stockPath("F11/names.wag"));
        return loaded;
    }
};

const Materiel& stockNamed(const Loaded& loaded, std::string_view folder, std::string_view file) {
    const auto found = std::ranges::find_if(loaded.materiels, [&](const Materiel& materiel) {
        return materiel.Folder == folder && materiel.FileName == file;
    });
    EXPECT_NE(found, loaded.materiels.end()) << file;
    return *found;
}

TEST_F(LoadThreads, OneAndEightLoadTheSameAHundredTimes) {
    for (int round = 0; round < 100; ++round) {
        const bool full = round % 2 == 0;
        const NameRepair repair = round % 10 < 2 ? NameRepair::Allowed : NameRepair::Never;
        const Loaded one = load({.threads = 1, .full = full, .repair = repair});
        expectSame(one, load({.threads = 8, .full = full, .repair = repair}));
        if (round > 1)
            continue;
        EXPECT_TRUE(one.complete);
        EXPECT_EQ(one.materiels.size(), Folders * 4u + 11);
        EXPECT_EQ(one.passedOver.size(), 3u);
        EXPECT_EQ(one.messages.size(), 1u);
        EXPECT_EQ(one.usage.size(), Folders + 2u);
        EXPECT_EQ(one.routes.size(), 3u);
        EXPECT_EQ(one.routes[2].Services.size(), 21u); // the last one without a consist keeps its place
        EXPECT_EQ(one.servicesRun.size(), 21u);
        EXPECT_EQ(stockNamed(one, "F57", "c57.wag").Type, "Carriage");
        EXPECT_EQ(stockNamed(one, "F50", "names.wag").EngineName, full ? "A long name of names" : "");
        EXPECT_EQ(one.repaired.find("second") == std::string::npos, full);
    }
}

TEST_F(LoadThreads, AnEndedLoadLeavesTheSame) {
    const std::size_t all = load({}).told.size();
    for (std::size_t endAt = 0; endAt < all; endAt += 61)
        for (const bool full : {true, false}) {
            const Loaded one = load({.threads = 1, .full = full, .endAt = endAt});
            EXPECT_FALSE(one.complete);
            expectSame(one, load({.threads = 8, .full = full, .endAt = endAt}));
        }
}

TEST_F(LoadThreads, FilesThatFailFailTheSame) {
    struct Case {
        const char *throwing, *failing, *lacking;
    };
    for (const Case& c : {Case{"c33.wag", "", ""}, Case{"train20.con", "", ""}, Case{"", "b40.wag", ""},
                          Case{"", "train30.con", ""}, Case{"", "", "a45.wag"}, Case{"", "", "train31.con"}})
        for (const bool full : {true, false}) {
            Faults first{c.throwing, c.failing, c.lacking}, second{c.throwing, c.failing, c.lacking};
            const Loaded one = load({.threads = 1, .full = full, .faults = &first});
            EXPECT_EQ(one.thrown, c.throwing);
            EXPECT_EQ(one.passedOver.size(), one.complete ? 3u : one.passedOver.size())
                << "memory was there in its turn";
            expectSame(one, load({.threads = 8, .full = full, .faults = &second}));
        }
}

} // namespace
} // namespace zandor
