#include "verify/pass_files.h"

#include "platform/memory_file_system.h"

#include <gtest/gtest.h>

namespace zandor {

TEST(PassFiles, UnderstandsEverySpellingOfAPath) {
    MemoryFileSystem files;
    files.put("\\sim\\Été\\Sound\\Wave.WAV", "w");
    files.put("\\sim\\Été\\a.s", "s");
    PassFiles seen(files);
    struct Row {
        const char* path;
        bool file, folder;
    };
    for (const Row& row : {Row{"\\sim\\été\\sound\\wave.wav", true, false},
                           {"\\SIM\\ÉTÉ/Sound//wave.wav", true, false},
                           {"\\sim\\Été\\none\\..\\a.s", true, false},
                           {"\\sim\\Été\\Sound\\..\\..\\Été\\a.s", true, false},
                           {"\\..\\sim\\Été\\.\\a.s", true, false},
                           {"\\sim\\Été\\Sound\\", false, true},
                           {"\\sim\\Été\\Sound", false, true},
                           {"\\sim\\Été\\b.s", false, false},
                           {"\\sim\\none\\a.s", false, false},
                           {"", false, true},
                           {"\\", false, true}}) {
        EXPECT_EQ(seen.fileExists(row.path), row.file) << row.path;
        EXPECT_EQ(seen.folderExists(row.path), row.folder) << row.path;
    }
    EXPECT_EQ(seen.filesOf("\\sim\\été\\SOUND", ".wav"), (std::vector<std::string>{"Wave.WAV"}));
}

TEST(PassFiles, ListsAFolderOnceUntilToldToForget) {
    MemoryFileSystem files;
    files.put("\\sim\\a.s", "s");
    PassFiles seen(files);
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(seen.fileExists("\\sim\\" + std::to_string(i) + ".s"), false);
    EXPECT_EQ(files.log.size(), 1u);
    files.put("\\sim\\7.s", "s");
    EXPECT_FALSE(seen.fileExists("\\sim\\7.s"));
    seen.forget();
    EXPECT_TRUE(seen.fileExists("\\sim\\7.s"));
}

} // namespace zandor
