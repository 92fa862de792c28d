#include "platform/real_file_system.h"
#include "platform/system.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <signal.h>
#include <stdlib.h>
#include <thread>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace zandor {
namespace {

namespace disk = std::filesystem;
using Names = std::vector<std::string>;

// A folder of its own on the disk, and what another program would do in it.
class RealDisk : public testing::Test {
  protected:
    RealDisk() {
        std::string pattern = (disk::temp_directory_path() / "disk-XXXXXX").string();
        root = mkdtemp(pattern.data());
        files = makeRealFileSystem(root + "/prefix");
    }
    // Another process that does `work` and ends with 0 when that gives true.
    template <typename Work> static pid_t start(Work work) {
        const pid_t id = fork();
        if (id == 0)
            _exit(work() ? 0 : 1);
        return id;
    }
    static bool succeeds(pid_t id) {
        int status = -1;
        return waitpid(id, &status, 0) == id && WIFEXITED(status) && WEXITSTATUS(status) == 0;
    }
    static bool runs(pid_t id) {
        siginfo_t info{};
        return waitid(P_PID, id_t(id), &info, WEXITED | WNOHANG | WNOWAIT) == 0 && info.si_pid == 0;
    }
    ~RealDisk() override { disk::remove_all(root); }

    std::string native(const std::string& path) const { return root + "/" + path; }
    void make(const std::string& path, const std::string& bytes = "x") const {
        disk::create_directories(disk::path(native(path)).parent_path());
        std::ofstream(native(path), std::ios::binary) << bytes;
    }
    std::string bytesOf(const std::string& path) const {
        std::ifstream file(native(path), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }
    mode_t modeOf(const std::string& path) const {
        struct stat info {};
        stat(native(path).c_str(), &info);
        return info.st_mode & 07777;
    }
    // The path as the simulator's files spell it.
    std::string sim(std::string path) const {
        path = root + "/" + path;
        for (char& c : path)
            c = c == '/' ? '\\' : c;
        return path;
    }
    std::string read(const std::string& simPath) const {
        std::string bytes = "rest of an earlier file";
        const bool done = files->readFile(simPath, bytes);
        EXPECT_TRUE(done || bytes.empty());
        return done ? bytes : "(none)";
    }
    Names namesIn(const std::string& path) const {
        Names names;
        for (const FolderEntry& entry : files->listFolder(sim(path)))
            names.push_back(entry.name + (entry.isFolder ? "/" : ""));
        return names;
    }
    // Until a folder's time stamp tells a later change, so that its names are kept.
    static void letSettle() { std::this_thread::sleep_for(std::chrono::milliseconds(70)); }

    std::string root;
    std::unique_ptr<FileSystem> files;
};

TEST_F(RealDisk, EverySpellingThatTheSimulatorKnowsFindsTheFile) {
    make("Trains/Trainset/Été/Loco.eng");
    const Names spellings = {"Trains/Trainset/Été/Loco.eng", "TRAINS/trainset/ÉTÉ/LOCO.ENG",
                             "trains//trainset/été/./loco.ENG", "Trains/nowhere/../Trainset/été/Loco.eng",
                             "TRAINS/Trainset/Été/../ÉTÉ/loco.eng"};
    for (int round = 0; round < 2; ++round, letSettle())
        for (const std::string& spelling : spellings) {
            EXPECT_TRUE(files->fileExists(sim(spelling))) << spelling;
            EXPECT_EQ(read(sim(spelling)), "x") << spelling;
            EXPECT_EQ(read(root + "/" + spelling), "x") << spelling;
            EXPECT_EQ(files->nativePath(sim(spelling)), native("Trains/Trainset/Été/Loco.eng"));
        }
    for (const char* other :
         {"Trains/Trainset/Été", "Trains/Trainset/Été/Loc.eng", "Trains/Loco.eng/x", "No/Loco.eng"})
        EXPECT_FALSE(files->fileExists(sim(other))) << other;
    EXPECT_TRUE(files->folderExists(sim("TRAINS/trainset/") + "\\"));
    EXPECT_FALSE(files->folderExists(sim("trains/trainset/été/loco.eng")));
    EXPECT_FALSE(files->fileExists(sim("Trains/Trainset/Été/Loco.eng") + std::string("\0x", 2)));
}

TEST_F(RealDisk, ExactSpellingWins) {
    make("a/File.con", "mixed");
    make("a/file.con", "small");
    make("A/other.con", "capital folder");
    for (int round = 0; round < 2; ++round, letSettle()) {
        EXPECT_EQ(read(sim("a/File.con")), "mixed");
        EXPECT_EQ(read(sim("a/file.con")), "small");
        EXPECT_EQ(read(sim("A/OTHER.CON")), "capital folder");
        EXPECT_EQ(read(sim("a/other.con")), "(none)");
    }
}

TEST_F(RealDisk, ChangesOfOtherProgramsAreSeenAtOnce) {
    make("dir/a.txt");
    for (int round = 0; round < 2; ++round, letSettle()) {
        const std::string name = "New" + std::to_string(round) + ".txt";
        const std::string asked = sim("DIR/NEW" + std::to_string(round) + ".TXT");
        EXPECT_FALSE(files->fileExists(asked));
        make("dir/" + name);
        EXPECT_TRUE(files->fileExists(asked));
        disk::rename(native("dir/" + name), native("dir/b.txt"));
        EXPECT_FALSE(files->fileExists(asked));
        EXPECT_EQ(namesIn("dir"), (Names{"a.txt", "b.txt"}));
        disk::remove(native("dir/b.txt"));
        EXPECT_FALSE(files->fileExists(sim("dir/B.TXT")));
    }
}

TEST_F(RealDisk, OwnAndForeignChangesInTheSameMomentAreAllSeen) {
    for (int i = 0; i < 50; ++i) {
        const std::string number = std::to_string(i);
        ASSERT_TRUE(replaceFile(*files, sim("own" + number), ""));
        make("Foreign" + number);
        ASSERT_TRUE(files->fileExists(sim("OWN" + number)));
        ASSERT_TRUE(files->fileExists(sim("foreign" + number)));
    }
}

TEST_F(RealDisk, OnlyAFolderThatThisUserMadeIsHisOwn) {
    make("mine/file");
    make("theirs/file");
    disk::create_directory_symlink(native("mine"), native("link"));
    EXPECT_TRUE(files->isOwnFolder(sim("Mine")));
    EXPECT_FALSE(files->isOwnFolder(sim("link")));
    EXPECT_FALSE(files->isOwnFolder(sim("mine/file")));
    EXPECT_FALSE(files->isOwnFolder(sim("none")));
    if (geteuid() == 0) { // who alone can give a folder away
        ASSERT_EQ(chown(native("theirs").c_str(), 1, 1), 0);
        EXPECT_FALSE(files->isOwnFolder(sim("theirs")));
    }
}

TEST_F(RealDisk, RenamedFolderIsFoundUnderItsNewNameOnly) {
    make("top/Old/a.txt");
    EXPECT_EQ(read(sim("TOP/OLD/a.txt")), "x");
    disk::rename(native("top"), native("Moved"));
    EXPECT_EQ(read(sim("TOP/OLD/a.txt")), "(none)");
    EXPECT_EQ(read(sim("moved/old/a.txt")), "x");
    disk::rename(native("Moved"), native("Top"));
    EXPECT_EQ(read(sim("TOP/OLD/a.txt")), "x");
}

TEST_F(RealDisk, NamesThatAreNotUtf8AreShownAsLatin1AndFoundAgain) {
    make("dir/\xe9t\xe9.wag", "latin");
    EXPECT_EQ(namesIn("dir"), Names{"été.wag"});
    EXPECT_EQ(read(sim("dir/été.wag")), "latin");
    EXPECT_EQ(read(sim("DIR/ÉTÉ.WAG")), "latin");
    EXPECT_EQ(files->nativePath(sim("dir/ÉTÉ.wag")), native("dir/été.wag"));
    EXPECT_TRUE(replaceFile(*files, sim("dir/Été.wag"), "new"));
    EXPECT_EQ(bytesOf("dir/\xe9t\xe9.wag"), "new");
    make("dir/été.wag", "utf-8");
    EXPECT_EQ(read(sim("dir/été.wag")), "utf-8");
}

TEST_F(RealDisk, ListingIsOrderedAndFollowsLinks) {
    for (const char* path : {"dir/b.txt", "dir/A.txt", "dir/_.txt", "dir/sub/x", "dir/É.txt", "dir/a.TXT"})
        make(path);
    disk::create_symlink("sub", native("dir/c"));
    disk::create_symlink("b.txt", native("dir/d"));
    const Names expected = {"A.txt", "a.TXT", "b.txt", "c/", "d", "sub/", "_.txt", "É.txt"};
    EXPECT_EQ(namesIn("DIR"), expected);
    letSettle();
    EXPECT_EQ(namesIn("dir"), expected);
    EXPECT_EQ(namesIn("dir"), expected);
    EXPECT_TRUE(namesIn("none").empty());
}

TEST_F(RealDisk, DrivesAreThoseOfTheWinePrefix) {
    make("prefix/drive_c/Program Files/a.txt", "on c");
    disk::create_directories(native("prefix/dosdevices"));
    disk::create_symlink("../drive_c", native("prefix/dosdevices/c:"));
    for (const char* path :
         {"C:\\Program Files\\a.txt", "c:/PROGRAM FILES/A.TXT", "C:\\..\\program files\\a.txt"})
        EXPECT_EQ(read(path), "on c") << path;
    EXPECT_TRUE(files->folderExists("C:\\"));
    ASSERT_EQ(files->listFolder("C:\\").size(), 1u);
    EXPECT_EQ(files->listFolder("C:").front().name, "Program Files");
    EXPECT_EQ(files->nativePath("C:\\program files\\new.txt"),
              disk::canonical(native("prefix/drive_c")).string() + "/Program Files/new.txt");
    for (const char* path : {"D:\\", "Z:\\", "D:\\a.txt"})
        EXPECT_FALSE(files->folderExists(path) || files->fileExists(path)) << path;
    const auto without = makeRealFileSystem("");
    EXPECT_TRUE(without->fileExists("Z:" + sim("prefix/DRIVE_C/program files/a.txt")));
    EXPECT_FALSE(without->folderExists("C:\\"));
}

TEST_F(RealDisk, OnlyPlainFilesAreReadable) {
    disk::create_directory(native("folder"));
    ASSERT_EQ(mkfifo(native("pipe").c_str(), 0600), 0);
    disk::create_symlink("/dev/null", native("null"));
    disk::create_symlink("/dev/zero", native("zero"));
    disk::create_symlink("nowhere", native("broken"));
    make("huge", "");
    disk::resize_file(native("huge"), (std::uintmax_t(2) << 30) + 1);
    for (int round = 0; round < 2; ++round) // the second one knows the folder
        for (const char* name : {"folder", "pipe", "null", "zero", "broken", "huge"})
            EXPECT_EQ(read(sim(name)), "(none)") << name;
    for (const char* name : {"folder", "pipe", "zero", "broken"})
        EXPECT_FALSE(files->fileExists(sim(name)) || files->stamp(sim(name))) << name;
    EXPECT_FALSE(replaceFile(*files, sim("pipe"), "x"));
}

TEST_F(RealDisk, AReadTellsWhatStandsAgainstIt) {
    disk::create_directory(native("folder"));
    disk::create_symlink("nowhere", native("broken"));
    disk::create_symlink("loop", native("loop"));
    make("small", std::string(1000, 'x'));
    const std::string large = std::string(1 << 20, 'a') + std::string(2 << 20, 'b');
    make("large", large);
    make("sparse", "");
    disk::resize_file(native("sparse"), std::uintmax_t(1900) << 20);
    const struct {
        const char* name;
        std::uint64_t limit;
        ReadResult result;
    } cases[] = {
        {"small", 1000, ReadResult::Done},          {"small", 999, ReadResult::TooLarge},
        {"large", 3 << 20, ReadResult::Done},       {"large", (3 << 20) - 1, ReadResult::TooLarge},
        {"sparse", 32 << 20, ReadResult::TooLarge}, {"folder", 32 << 20, ReadResult::Unreadable},
        {"broken", 32 << 20, ReadResult::Missing},  {"loop", 32 << 20, ReadResult::Missing},
        {"none", 32 << 20, ReadResult::Missing},    {"none/none", 32 << 20, ReadResult::Missing},
    };
    for (int round = 0; round < 2; ++round)
        for (const auto& c : cases) {
            std::string bytes = "rest of an earlier file";
            EXPECT_EQ(files->read(sim(c.name), bytes, c.limit), c.result) << c.name << " " << c.limit;
            EXPECT_EQ(bytes.empty(), c.result != ReadResult::Done);
            EXPECT_LT(bytes.capacity(), 16u << 20);
        }
    EXPECT_TRUE(read(sim("large")) == large);
    EXPECT_EQ(megabytesOf(*files, sim("sparse")), "1900");
    EXPECT_EQ(megabytesOf(*files, sim("small")), "1");
}

TEST_F(RealDisk, TheBeginningOfAFileIsReadAlone) {
    disk::create_directory(native("folder"));
    ASSERT_EQ(mkfifo(native("pipe").c_str(), 0600), 0);
    disk::create_symlink("/dev/null", native("null"));
    make("empty", "");
    make("large", std::string(1 << 20, 'a') + std::string(2 << 20, 'b'));
    const struct {
        const char* name;
        std::size_t count;
        ReadResult result;
        std::size_t size;
    } cases[] = {{"LARGE", 10, ReadResult::Done, 10},
                 {"large", (1 << 20) + 1, ReadResult::Done, (1 << 20) + 1},
                 {"large", 4 << 20, ReadResult::Done, 3 << 20},
                 {"empty", 10, ReadResult::Done, 0},
                 {"folder", 10, ReadResult::Unreadable, 0},
                 {"pipe", 10, ReadResult::Unreadable, 0},
                 {"null", 10, ReadResult::Unreadable, 0},
                 {"none", 10, ReadResult::Missing, 0}};
    for (const auto& c : cases) {
        std::string bytes = "rest of an earlier file";
        EXPECT_EQ(files->readStart(sim(c.name), bytes, c.count), c.result) << c.name;
        EXPECT_EQ(bytes.size(), c.size) << c.name;
        EXPECT_TRUE(bytes.empty() || bytes.back() == (c.size > (1 << 20) ? 'b' : 'a'));
    }
}

TEST_F(RealDisk, WritingKeepsTheSpellingOnTheDisk) {
    make("Dir/Old.con", "old");
    EXPECT_TRUE(replaceFile(*files, sim("DIR/OLD.CON"), "1"));
    EXPECT_TRUE(replaceFile(*files, sim("dir/NEW.con"), "2"));
    EXPECT_EQ(namesIn("Dir"), (Names{"NEW.con", "Old.con"}));
    EXPECT_EQ(bytesOf("Dir/Old.con"), "1");
    EXPECT_TRUE(files->deleteFile(sim("dir/new.CON")));
    EXPECT_EQ(namesIn("Dir"), Names{"Old.con"});
    EXPECT_FALSE(replaceFile(*files, sim("none/a.con"), ""));
    EXPECT_FALSE(replaceFile(*files, sim("dir"), ""));
    EXPECT_FALSE(files->deleteFile(sim("dir")));
}

TEST_F(RealDisk, FoldersAreMadeAndDeleted) {
    EXPECT_TRUE(files->createFolder(sim("New")));
    EXPECT_TRUE(files->createFolder(sim("NEW")));
    EXPECT_FALSE(files->createFolder(sim("none/below")));
    EXPECT_TRUE(replaceFile(*files, sim("new/a"), ""));
    EXPECT_FALSE(files->deleteFolder(sim("new")));
    EXPECT_TRUE(files->deleteFile(sim("new/A")));
    EXPECT_TRUE(files->deleteFolder(sim("new")));
    EXPECT_FALSE(files->folderExists(sim("New")));
    EXPECT_FALSE(replaceFile(*files, sim("new/a"), ""));
    make("file");
    EXPECT_FALSE(files->createFolder(sim("FILE")));
    EXPECT_FALSE(files->deleteFolder(sim("file")));
}

// Replacing with files that have no name until they are whole, and on a disk that knows none.
class Replacing : public RealDisk, public testing::WithParamInterface<NamelessFiles> {
  protected:
    Replacing() { files = makeRealFileSystem({}, GetParam()); }

    // On a disk in memory if there is one, for what is done many times.
    void moveToFastDisk() {
        std::string pattern = "/dev/shm/disk-XXXXXX";
        if (!mkdtemp(pattern.data()))
            return;
        disk::remove_all(root);
        root = pattern;
    }
};
INSTANTIATE_TEST_SUITE_P(All, Replacing, testing::Values(NamelessFiles::WherePossible, NamelessFiles::Never));

TEST_P(Replacing, KeepsPermissionsOwnerAndLinks) {
    make("real/target.con", "old");
    chmod(native("real/target.con").c_str(), 0640);
    const uid_t owner = geteuid() == 0 ? 1 : geteuid(); // who alone can give a file away
    EXPECT_EQ(chown(native("real/target.con").c_str(), owner, gid_t(-1)), 0);
    disk::create_directory(native("links"));
    disk::create_symlink("../real/target.con", native("links/a.con"));
    EXPECT_TRUE(replaceFile(*files, sim("links/A.con"), "new"));
    EXPECT_EQ(bytesOf("real/target.con"), "new");
    EXPECT_EQ(modeOf("real/target.con"), 0640u);
    struct stat info {};
    stat(native("real/target.con").c_str(), &info);
    EXPECT_EQ(info.st_uid, owner);
    EXPECT_TRUE(disk::is_symlink(native("links/a.con")));
    EXPECT_EQ(namesIn("links"), Names{"a.con"});
    EXPECT_EQ(namesIn("real"), Names{"target.con"});

    const mode_t mask = umask(027);
    EXPECT_TRUE(replaceFile(*files, sim("real/New.con"), "new"));
    umask(mask);
    EXPECT_EQ(modeOf("real/New.con"), 0640u);
    EXPECT_TRUE(replaceFile(*files, sim("real/" + std::string(250, 'n')), "the longest names have room"));
}

TEST_P(Replacing, TouchesNothingBesideTheFile) {
    make("outside/mine.txt", "mine");
    make("dir/a.con", "old");
    make("dir/b.con~new", "mine too");
    disk::create_symlink("../outside/mine.txt", native("dir/a.con~new"));
    disk::create_symlink("../outside/none", native("dir/dangling.con"));
    disk::create_symlink("loop.con", native("dir/loop.con"));
    const Names before = namesIn("dir");
    EXPECT_TRUE(replaceFile(*files, sim("dir/a.con"), "new"));
    EXPECT_FALSE(replaceFile(*files, sim("dir/dangling.con"), "new"));
    EXPECT_FALSE(replaceFile(*files, sim("dir/loop.con"), "new"));
    EXPECT_EQ(namesIn("dir"), before);
    EXPECT_TRUE(replaceFile(*files, sim("dir/b.con"), "new"));
    EXPECT_EQ(bytesOf("outside/mine.txt") + bytesOf("dir/b.con~new"), "minemine too");
    EXPECT_EQ(namesIn("outside"), Names{"mine.txt"});
    EXPECT_EQ(bytesOf("dir/a.con") + bytesOf("dir/b.con"), "newnew");
}

TEST_P(Replacing, AReadOnlyFileIsNeverWritable) {
    moveToFastDisk();
    make("a.wag", "old");
    chmod(native("a.wag").c_str(), 0444);
    EXPECT_FALSE(replaceFile(*files, sim("a.wag"), "new"));
    EXPECT_FALSE(files->deleteFile(sim("a.wag")));
    EXPECT_EQ(bytesOf("a.wag"), "old");
    const pid_t writer = start([&] {
        bool done = true;
        for (int i = 0; i < 300; ++i)
            done = replaceFile(*files, sim("a.wag"), std::string(5000, 'n'), ReadOnly::Kept) && done;
        return done;
    });
    for (bool last = false; !last;) {
        last = !runs(writer);
        ASSERT_EQ(modeOf("a.wag"), 0444u);
    }
    EXPECT_TRUE(succeeds(writer));
    EXPECT_EQ(bytesOf("a.wag"), std::string(5000, 'n'));
    EXPECT_EQ(namesIn(""), Names{"a.wag"});
}

TEST_P(Replacing, TwoProgramsThatSaveOneFileAndAThirdThatReadsItNeverMeet) {
    moveToFastDisk();
    const std::string contents[] = {std::string(5000, 'a'), std::string(9000, 'b')};
    const auto save = [&](const std::string& bytes) {
        bool done = true;
        for (int round = 0; round < 400; ++round) {
            done = replaceFile(*files, sim("a.con"), bytes) && done;
            done = replaceFile(*files, sim("new" + std::to_string(round)), bytes) && done;
        }
        return done;
    };
    make("a.con", contents[0]);
    const pid_t writers[] = {start([&] { return save(contents[0]); }),
                             start([&] { return save(contents[1]); })};
    while (runs(writers[0]) || runs(writers[1])) {
        const std::string now = read(sim("A.con"));
        ASSERT_TRUE(now == contents[0] || now == contents[1]) << now.size();
    }
    EXPECT_TRUE(succeeds(writers[0]));
    EXPECT_TRUE(succeeds(writers[1]));
    EXPECT_EQ(namesIn("").size(), 401u);
}

TEST_P(Replacing, AProgramThatIsKilledLeavesTheFileWhole) {
    moveToFastDisk();
    const std::string contents[] = {std::string(12 << 20, 'a'), std::string(16 << 20, 'b')};
    make("a.con", contents[0]);
    const bool nameless = GetParam() == NamelessFiles::WherePossible;
    for (int round = 0; round < (nameless ? 24 : 4); ++round) {
        const pid_t child = start([&] {
            for (int i = 0;; ++i)
                replaceFile(*files, sim("a.con"), contents[i % 2]);
            return true;
        });
        std::this_thread::sleep_for(std::chrono::microseconds(1000 + 397 * round));
        kill(child, SIGKILL);
        succeeds(child);
        const std::string now = read(sim("a.con"));
        ASSERT_TRUE(now == contents[0] || now == contents[1]) << now.size();
    }
    // A name of its own stands for a moment too short to be met twice.
    EXPECT_TRUE(!nameless || namesIn("").size() <= 2);
}

TEST_P(Replacing, ALimitOnTheSizeOfFilesIsAnError) {
    make("a.con", "old");
    EXPECT_TRUE(succeeds(start([&] {
        tellSizeLimitsAsErrors();
        const rlimit limit{4096, 4096};
        setrlimit(RLIMIT_FSIZE, &limit);
        const std::string large(100'000, 'n');
        return !replaceFile(*files, sim("a.con"), large) && !replaceFile(*files, sim("b.con"), large) &&
               replaceFile(*files, sim("c.con"), "new");
    })));
    EXPECT_EQ(bytesOf("a.con") + bytesOf("c.con"), "oldnew");
    EXPECT_EQ(namesIn(""), (Names{"a.con", "c.con"}));
}

} // namespace
} // namespace zandor
