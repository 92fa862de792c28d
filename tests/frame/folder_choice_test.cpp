// What the folder windows offer and keep.
#include "frame/folder_choice.h"
#include "frame/messages.h"
#include "support/fakes.h"

#include <gtest/gtest.h>

namespace zandor {
namespace {

using Names = std::vector<std::string>;

Names namesOf(const std::vector<FolderPlace>& places) {
    Names names;
    for (const FolderPlace& place : places)
        names.push_back(place.name);
    return names;
}

TEST(FolderChoice, BeginsAtTheFolderInUseOrTheNearestSensibleOne) {
    struct Case {
        bool simulator;
        const char* root;
        const char* start;
        bool acceptable;
    };
    const Case cases[] = {
        {true, "C:\\MSTS", "C:\\MSTS", false},  {false, "C:\\Store", "C:\\Store", false},
        {true, "C:\\Gone", "\\program", false}, {true, "", "C:\\Programs", true},
        {false, "", "C:\\Programs", true},
    };
    for (const Case& c : cases) {
        TestFrame test;
        for (const char* folder : {"C:\\MSTS\\a", "C:\\Store\\a", "C:\\Programs\\a"})
            test.files.put(folder, "");
        test.state.ProgramFilesDir = "C:\\Programs";
        test.state.EditingMstsPath = c.simulator;
        (c.simulator ? test.state.roots.RootMSTS : test.state.roots.RootTStore) = c.root;
        const FolderChoice choice = chooseRootFolder(test.frame);
        EXPECT_EQ(choice.start, c.start);
        EXPECT_EQ(choice.mayAcceptAtOnce, c.acceptable) << c.root;
        EXPECT_EQ(choice.title, c.simulator ? message::FindSimulator : message::FindTrainStore);
    }
}

TEST(FolderChoice, TheDefaultBackupFolderIsMade) {
    TestFrame test;
    test.state.BackupDir.clear();
    EXPECT_EQ(chooseBackupFolder(test.frame).start, "\\program\\Backup");
    EXPECT_TRUE(test.files.folderExists("\\program\\Backup"));
    test.state.BackupDir = "\\gone\\";
    EXPECT_EQ(chooseBackupFolder(test.frame).start, "\\program");
    EXPECT_FALSE(test.files.folderExists("\\gone"));
}

TEST(FolderChoice, WhatIsAcceptedGoesIntoTheStateAndNothingElseDoes) {
    AppState state;
    state.roots.RootMSTS = "C:\\A";
    state.roots.RootTStore = "C:\\B";
    state.EditingMstsPath = true;
    acceptRootFolder(state, "");
    EXPECT_EQ(state.roots.RootMSTS, "C:\\A");
    acceptRootFolder(state, "C:\\New\\");
    EXPECT_EQ(state.roots.RootMSTS, "C:\\New");
    EXPECT_EQ(state.roots.RootTStore, "C:\\B");
    state.EditingMstsPath = false;
    acceptRootFolder(state, "\\");
    EXPECT_EQ(state.roots.RootTStore, "\\");
    acceptBackupFolder(state, "D:\\Kept");
    EXPECT_EQ(state.BackupDir, "D:\\Kept\\");
    acceptBackupFolder(state, "");
    EXPECT_EQ(state.BackupDir, "D:\\Kept\\");
}

TEST(FolderChoice, DrivesAreTheRootHomeVolumesAndLettersOfWine) {
    MemoryFileSystem files;
    for (const char* file :
         {"\\home\\ann\\a", "\\media\\ann\\STICK\\a", "\\media\\cdrom\\a", "\\mnt\\disk\\a",
          "\\run\\media\\ann\\CARD\\a", "\\home\\ann\\.wine\\dosdevices\\c:\\a",
          "\\home\\ann\\.wine\\dosdevices\\d:\\a", "\\home\\ann\\.wine\\dosdevices\\c::", "C:\\a"})
        files.put(file, "");
    Names paths;
    for (const FolderPlace& drive : listDrives(files, "\\home\\ann", "\\home\\ann\\.wine"))
        paths.push_back(drive.path);
    EXPECT_EQ(paths, (Names{"\\", "\\home\\ann", "\\media\\ann\\STICK", "\\run\\media\\ann\\CARD",
                            "\\media\\cdrom", "\\mnt\\disk", "C:\\"}));
    EXPECT_TRUE(listDrives(files, "\\home\\ann", "").size() < paths.size());
}

TEST(FolderChoice, FoldersOfAFolderAndAboveIt) {
    MemoryFileSystem files;
    for (const char* file :
         {"C:\\MSTS\\.git\\a", "C:\\MSTS\\ROUTES\\a", "C:\\MSTS\\train.exe", "C:\\MSTS\\Trains\\a"})
        files.put(file, "");
    EXPECT_EQ(namesOf(listSubFolders(files, "C:\\MSTS")), (Names{"ROUTES", "Trains", ".git"}));
    EXPECT_EQ(listSubFolders(files, "C:\\MSTS")[0].path, "C:\\MSTS\\ROUTES");
    EXPECT_TRUE(listSubFolders(files, "C:\\none").empty());
    EXPECT_EQ(
        foldersAbove("C:\\MSTS\\Trains\\"),
        (std::vector<FolderPlace>{{"C:\\", "C:\\"}, {"MSTS", "C:\\MSTS"}, {"Trains", "C:\\MSTS\\Trains"}}));
    EXPECT_EQ(foldersAbove("/home/x").back().path, "\\home\\x");
    EXPECT_EQ(foldersAbove("\\").size(), 1u);
}

TEST(FolderChoice, APathStandsOnTheNearestDriveAboveIt) {
    const std::vector<FolderPlace> drives{{"/", "\\"}, {"/home/ann", "\\home\\ann"}, {"C:", "C:\\"}};
    EXPECT_EQ(driveOf(drives, "\\home\\ann\\games"), 1);
    EXPECT_EQ(driveOf(drives, "\\home\\anna"), 0);
    EXPECT_EQ(driveOf(drives, "c:\\msts"), 2);
    EXPECT_EQ(driveOf(drives, "d:\\msts"), -1);
}

} // namespace
} // namespace zandor
