#include "platform/memory_file_system.h"
#include "platform/processes.h"
#include "platform/system.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <stdlib.h>
#include <thread>

namespace zandor {
namespace {

namespace disk = std::filesystem;

// Sets variables of the environment, and puts the old ones back.
class SystemTest : public testing::Test {
  protected:
    SystemTest() {
        std::string pattern = (disk::temp_directory_path() / "system-XXXXXX").string();
        root = mkdtemp(pattern.data());
    }
    ~SystemTest() override {
        for (const auto& [name, value] : old)
            value ? setenv(name.c_str(), value->c_str(), 1) : unsetenv(name.c_str());
        disk::remove_all(root);
    }
    void set(const std::string& name, const std::string& value) {
        const char* before = getenv(name.c_str());
        old.try_emplace(name, before ? std::optional<std::string>(before) : std::nullopt);
        setenv(name.c_str(), value.c_str(), 1);
    }

    std::string root;
    std::map<std::string, std::optional<std::string>> old;
};

TEST_F(SystemTest, AProgramGetsItsArgumentsAsTheyAreAndTellsHowItEnded) {
    const std::unique_ptr<Processes> processes = makeSystemProcesses();
    const std::string script = "test \"$1\" = 'a \"b\" $c' && exit 7";
    const std::unique_ptr<Process> process = processes->start("sh", {"-c", script, "sh", "a \"b\" $c"});
    ASSERT_TRUE(process);
    std::optional<int> code;
    while (!code)
        code = process->exitCode();
    EXPECT_EQ(code, 7);
    EXPECT_EQ(process->exitCode(), 7) << "asked again";
    EXPECT_FALSE(processes->start(root + "/no such program", {}));
}

TEST_F(SystemTest, AFileIsHandedToTheSystemsOpener) {
    const std::unique_ptr<Processes> processes = makeSystemProcesses();
    set("PATH", root);
    EXPECT_FALSE(processes->openFile("/a.chm")) << "there is none";
    std::ofstream(root + "/xdg-open") << "#!/bin/sh\n: > \"$1\"\n";
    disk::permissions(root + "/xdg-open", disk::perms::owner_all);
    ASSERT_TRUE(processes->openFile(root + "/a b.chm"));
    while (!disk::exists(root + "/a b.chm"))
        std::this_thread::yield();
}

TEST_F(SystemTest, WinePrefixIsTheNamedOneElseTheUsualOne) {
    set("HOME", root);
    set("WINEPREFIX", "");
    EXPECT_EQ(winePrefixFolder(), "");
    disk::create_directory(root + "/.wine");
    EXPECT_EQ(winePrefixFolder(), root + "/.wine");
    set("WINEPREFIX", root + "/other/");
    EXPECT_EQ(winePrefixFolder(), root + "/other");
}

TEST_F(SystemTest, ProgramFolderIsMade) {
    set("ZANDOR_HOME", root + "/deep/home/");
    const ProgramFolders folders = findProgramFolders();
    EXPECT_EQ(folders.program, root + "/deep/home");
    EXPECT_TRUE(disk::is_directory(folders.program));
    EXPECT_TRUE(disk::exists(folders.executable + "/" + folders.executableName));
}

TEST_F(SystemTest, AnInstalledProgramWritesToTheUsersDataOnly) {
    set("ZANDOR_HOME", "");
    set("XDG_DATA_HOME", root + "/data/");
    disk::create_directories(root + "/usr/bin");
    const ProgramFolders portable = findProgramFolders(root + "/usr/bin/zandor");
    EXPECT_EQ(portable.program, root + "/usr/bin");
    EXPECT_EQ(portable.shared, "");
    EXPECT_EQ(executablePath(portable), root + "/usr/bin/zandor");

    disk::create_directories(root + "/usr/share/zandor");
    const ProgramFolders installed = findProgramFolders(root + "/usr/bin/zandor");
    EXPECT_EQ(installed.program, root + "/data/zandor");
    EXPECT_TRUE(disk::is_directory(installed.program));
    EXPECT_EQ(installed.shared, root + "/usr/share/zandor");
}

TEST(ExpandLongPath, OnlyRelativePathsChange) {
    const std::string here = disk::current_path().string();
    for (const char* path : {"", "/a/b.con", "\\a\\b.con", "C:\\a.con", "z:x"})
        EXPECT_EQ(ExpandLongPath(path), path);
    EXPECT_EQ(ExpandLongPath("./x/../b.con"), here + "/b.con");
    EXPECT_EQ(ExpandLongPath("x\\b.con"), here + "/x\\b.con");
}

TEST(ShippedFile, IsTheUsersOwnElseTheOneThatCameWithTheProgram) {
    MemoryFileSystem files;
    const ProgramFolders folders{"/home/me/zandor", "/usr/bin", "zandor", "/usr/share/zandor"};
    const auto found = [&] { return findShippedFile(files, folders, "Langues.lng"); };
    EXPECT_EQ(found(), "");
    for (const std::string folder : {"/usr/share/zandor", "/usr/bin", "/home/me/zandor"}) {
        files.put(folder + "/langues.lng", "");
        EXPECT_EQ(found(), folder + "\\Langues.lng");
    }
    files.put("/Langues.lng", "");
    EXPECT_EQ(findShippedFile(files, {"/gone", "/gone", "zandor"}, "Langues.lng"), "");
}

} // namespace
} // namespace zandor
