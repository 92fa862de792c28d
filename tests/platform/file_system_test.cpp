#include "platform/memory_file_system.h"

#include <gtest/gtest.h>

namespace zandor {
namespace {

constexpr const char* kFile = "C:\\Msts\\Trains\\Consists\\Rapide.con";

TEST(CopyFileOver, OntoItselfLosesNothing) {
    MemoryFileSystem files;
    files.put(kFile, "contents");
    EXPECT_TRUE(CopyFileOver(files, kFile, "c:/msts/trains/x/../consists/RAPIDE.CON"));
    EXPECT_EQ(files.get(kFile), "contents");
    EXPECT_EQ(files.allFiles(), std::vector<std::string>{kFile});
}

TEST(PathHelpers, TextsOfPaths) {
    struct Case {
        const char* path;
        const char* withBackslash;
        const char* name;
    };
    const Case cases[] = {
        {"C:\\a", "C:\\a\\", "a"},
        {"  C:\\a b\\  ", "C:\\a b\\", "  "},
        {"", "\\", ""},
        {"   ", "\\", "   "},
        {"a/b\\c.con", "a/b\\c.con\\", "c.con"},
        {"a\\b/c.con", "a\\b/c.con\\", "c.con"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(AddBackslash(c.path), c.withBackslash);
        EXPECT_EQ(GetFileName(c.path), c.name);
    }
}

TEST(PathHelpers, ExistenceTellsFilesFromFolders) {
    MemoryFileSystem files;
    files.put(kFile, "");
    EXPECT_TRUE(FileExists(files, std::string(kFile) + "\\"));
    EXPECT_FALSE(FileExists(files, "C:\\Msts\\Trains"));
    EXPECT_TRUE(FolderExists(files, " C:\\MSTS\\trains "));
    EXPECT_FALSE(FolderExists(files, kFile));
    EXPECT_FALSE(FolderExists(files, ""));
}

} // namespace
} // namespace zandor
