#include "platform/memory_file_system.h"

#include <gtest/gtest.h>

namespace zandor {
namespace {

constexpr const char* kFile = "C:\\Msts\\Trains\\Consists\\Rapide.con";
const std::string kOld = "the old contents", kNew = "quite other and longer contents";

// Runs `change` with a failure at each of its calls in turn, until none is left to fail.
template <typename Prepare, typename Change, typename Check>
void failAtEachCall(Prepare prepare, Change change, Check check) {
    for (const bool andAllAfter : {false, true})
        for (int call = 1;; ++call) {
            MemoryFileSystem files;
            prepare(files);
            files.failAt(call, andAllAfter);
            const bool changed = change(files);
            const bool failed = files.failed();
            files.failAt(0);
            SCOPED_TRACE("call " + std::to_string(call) + (andAllAfter ? " and all after" : ""));
            check(files, changed);
            ASSERT_LT(call, 100);
            if (!failed) {
                EXPECT_TRUE(changed);
                break;
            }
        }
}

TEST(ReplaceFile, OldOrNewContentsStandWholeAfterEachFailure) {
    failAtEachCall(
        [](MemoryFileSystem& files) { files.put(kFile, kOld); },
        [](MemoryFileSystem& files) { return replaceFile(files, kFile, kNew); },
        [](MemoryFileSystem& files, bool changed) { EXPECT_EQ(files.get(kFile), changed ? kNew : kOld); });
}

TEST(ReplaceFile, NewFileIsWholeOrAbsentAfterEachFailure) {
    failAtEachCall([](MemoryFileSystem& files) { files.put("C:\\Msts\\Trains\\Consists\\Other.con", ""); },
                   [](MemoryFileSystem& files) { return replaceFile(files, kFile, kNew); },
                   [](MemoryFileSystem& files, bool changed) {
                       EXPECT_EQ(files.get(kFile), changed ? std::optional(kNew) : std::nullopt);
                   });
}

TEST(ReplaceFile, ReadOnlyFileIsRefusedUnlessItIsToStayOne) {
    MemoryFileSystem files;
    files.put(kFile, kOld);
    files.setAttributes(kFile, {.readOnly = true});
    EXPECT_FALSE(replaceFile(files, kFile, kNew));
    EXPECT_EQ(files.get(kFile), kOld);
    EXPECT_FALSE(files.deleteFile(kFile));
    EXPECT_TRUE(replaceFile(files, kFile, kNew, ReadOnly::Kept));
    EXPECT_EQ(files.get(kFile), kNew);
    EXPECT_TRUE(files.attributes(kFile).readOnly);
}

TEST(ReplaceFile, PlacesThatCanHoldNoFileAreRefused) {
    MemoryFileSystem files;
    files.put(kFile, kOld);
    for (const char* path : {"", "C:\\Msts\\Nowhere\\a.con", "C:\\Msts\\Trains", "C:\\Msts\\", "D:\\a.con"})
        EXPECT_FALSE(replaceFile(files, path, kNew)) << path;
    EXPECT_EQ(files.allFiles(), std::vector<std::string>{kFile});
}

TEST(CopyFileOver, TargetKeepsItsContentsAfterEachFailure) {
    const char* source = "C:\\Msts\\Backup\\Rapide.con.old";
    failAtEachCall(
        [&](MemoryFileSystem& files) {
            files.put(kFile, kOld);
            files.put(source, kNew);
        },
        [&](MemoryFileSystem& files) { return CopyFileOver(files, source, kFile); },
        [&](MemoryFileSystem& files, bool copied) {
            EXPECT_EQ(files.get(kFile), copied ? kNew : kOld);
            EXPECT_EQ(files.get(source), kNew);
        });
}

TEST(CopyFileOver, OntoItselfLosesNothing) {
    MemoryFileSystem files;
    files.put(kFile, kOld);
    EXPECT_TRUE(CopyFileOver(files, kFile, "c:/msts/trains/x/../consists/RAPIDE.CON"));
    EXPECT_EQ(files.get(kFile), kOld);
    EXPECT_EQ(files.allFiles(), std::vector<std::string>{kFile});
}

TEST(MemoryDisk, ListsOnlyWhatStandsDirectlyInTheFolder) {
    MemoryFileSystem files;
    for (const char* path : {"\\t\\b.eng", "\\t\\A.ENG", "\\t\\sub\\c.eng", "\\t2\\d.eng", "\\t\\_.eng"})
        files.put(path, "");
    EXPECT_EQ(listFiles(files, "/T/", ".eng"), (std::vector<std::string>{"A.ENG", "b.eng", "_.eng"}));
    EXPECT_EQ(files.listFolder("\\t").size(), 4u);
    EXPECT_FALSE(files.deleteFolder("\\t"));
    EXPECT_TRUE(files.createFolder("\\t\\New"));
    EXPECT_TRUE(files.deleteFolder("\\T\\NEW"));
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
