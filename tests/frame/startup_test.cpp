#include "frame/startup.h"

#include "frame/messages.h"
#include "support/fakes.h"
#include "text/decode.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace zandor {
namespace {

constexpr std::string_view SimulatorKey = "SOFTWARE\\Microsoft\\Microsoft Games\\Train Simulator\\1.0";

struct StartUp : ::testing::Test, TestFrame {
    void putSettings(std::string_view general) {
        files.put(state.IniPath, "[General]\r\n" + encodeWindows1252(general));
    }
    void load() { loadSettings(frame, folders()); }
    std::string settingsFile() const { return files.get(state.IniPath).value_or("none"); }
    void putRegistryPath(std::string_view path) {
        registry.put(RegistryHive::LocalMachine, SimulatorKey, "Path", path);
    }
    void putFolder(const std::string& path) { files.put(path + "\\anchor", ""); }
    std::string roots() const {
        return state.roots.RootMSTS + "|" + state.roots.RootTStore + "|" + state.roots.RootPrimary() + "|" +
               state.roots.RootSecondary();
    }
};

TEST_F(StartUp, PathsAndLanguageAreSetFirst) {
    state = {};
    ASSERT_TRUE(prepareStart(frame, folders()));
    EXPECT_EQ(state.Title, "Zandor 1.00");
    EXPECT_EQ(state.IniPath, "\\program\\Zandor.ini");
    EXPECT_EQ(state.LanguagePath, "\\program\\Langues.lng");
    EXPECT_EQ(state.Language, "Français");
    set("Langage", "English");
    ASSERT_TRUE(prepareStart(frame, folders()));
    EXPECT_EQ(state.Language, "English");
}

TEST_F(StartUp, AnotherLanguageIsOfferedForOneThatIsGone) {
    struct Case {
        const char *setting, *file;
        int answer;
        const char *question, *language;
    };
    const std::string texts = "[Français]\r\n99=|1 parti, |3 ?\r\n[English]\r\n99=|1 gone, |3?\r\n";
    for (const Case& c :
         {Case{"English", "0=1$Français\r\n1=2$English\r\n", 0, "", "English"},
          Case{"english", "0=1$Français\r\n1=2$English\r\n", 0, "", "english"},
          Case{"Gone", "0=2$English\r\n1=1$Français\r\n", answer::Yes, "Gone parti, Français ?", "Français"},
          Case{"Gone", "0=1$Français\r\n", answer::No, "Gone parti, Français ?", "Gone"},
          Case{"Gone", "0=2$English\r\n", answer::Yes, "Gone gone, English?", "English"},
          Case{"Gone", "", 0, "", "Gone"}}) {
        dialogs.shown.clear();
        dialogs.answers = {c.answer};
        state.Language = c.setting;
        files.put(state.LanguagePath, encodeWindows1252("[Langues]\r\n" + std::string(c.file) + texts));
        offerKnownLanguage(frame);
        EXPECT_EQ(state.Language, c.language) << c.file;
        EXPECT_EQ(dialogs.shown.empty() ? "" : dialogs.shown[0].text, c.question);
    }
}

TEST_F(StartUp, WithoutTheLanguageFileNothingStarts) {
    files.deleteFile(state.LanguagePath);
    EXPECT_FALSE(prepareStart(frame, folders()));
    EXPECT_EQ(settingsFile(), "none");
}

TEST_F(StartUp, FilesThatAreTooLargeAreToldWithTheirSizesAndKept) {
    const ProgramFolders installed{"\\home", "\\bin", "zandor", "\\share"};
    const std::string own = "\\home\\Langues.lng", huge(LargestProfile + 1, '\n');
    files.put("\\share\\Langues.lng", encodeWindows1252("[Français]\r\n807=|3 MB in |1\r\n"));
    files.put(own, huge);
    EXPECT_FALSE(prepareStart(frame, installed));
    EXPECT_EQ(languageFileFault(frame), std::string(LanguageFileTooLarge) + " (17 Mo) : " + own);
    EXPECT_EQ(files.get(own), huge);

    files.deleteFile(own);
    EXPECT_TRUE(prepareStart(frame, installed));
    EXPECT_EQ(languageFileFault(frame), "");
    files.put(state.IniPath, huge);
    loadSettings(frame, installed);
    EXPECT_EQ(dialogs.lastText(), "17 MB in " + state.IniPath);
    EXPECT_EQ(files.get(state.IniPath), huge);
}

TEST_F(StartUp, AFirstStartWritesTheDefaultsAndCleansUp) {
    const std::string setup = GetTempFolder() + "\\QX_Setup";
    files.put(setup + "\\a.cab", "x");
    files.put(setup + "\\b.exe", "x");
    load();
    EXPECT_FALSE(files.folderExists(setup));
    EXPECT_EQ(setting("Inst"), "0");
    EXPECT_EQ(setting("ControlThumbnails"), "0");
    EXPECT_TRUE(state.PrintName);
    EXPECT_TRUE(state.Optimize);
    EXPECT_TRUE(state.PrintGreen);
    EXPECT_FALSE(state.PrintNumber);
    EXPECT_FALSE(state.NoAlertCoupling);
    EXPECT_EQ(state.BackupDir, "\\program\\Backup\\");
    EXPECT_EQ(state.ExePath, "\\program\\Zandor.exe");
}

TEST_F(StartUp, TheLanguageFileFollowsTheShippedOneUntilItsUserChangesIt) {
    const ProgramFolders installed{"\\home", "\\bin", "zandor", "\\share"};
    const std::string own = "\\home\\Langues.lng", shipped = "\\share\\Langues.lng";
    files.createFolder("\\home");
    files.put(shipped, "first");
    EXPECT_TRUE(prepareStart(frame, installed));
    EXPECT_EQ(files.get(own), "first");
    files.put(shipped, "second");
    prepareStart(frame, installed);
    EXPECT_EQ(files.get(own), "second");
    files.put(own, "mine");
    files.put(shipped, "third");
    prepareStart(frame, installed);
    EXPECT_EQ(files.get(own), "mine");
    EXPECT_EQ(state.LanguagePath, own);
    files.put(own, "third"); // the same again, perhaps by hand: from now on it follows
    prepareStart(frame, installed);
    files.put(shipped, "fourth");
    prepareStart(frame, installed);
    EXPECT_EQ(files.get(own), "fourth");
    files.deleteFile(own);
    files.failAt(1, true);
    EXPECT_FALSE(prepareStart(frame, installed)) << "nothing can be read";
    files.failAt(0);
    files.deleteFile("\\home\\Shipped.ini");
    prepareStart(frame, installed);
    EXPECT_EQ(files.get(own), "fourth");
}

TEST_F(StartUp, ALaterStartAndAnotherUsersSetUpFolderLeaveItAlone) {
    const std::string setup = GetTempFolder() + "\\QX_Setup";
    files.put(setup + "\\a.cab", "x");
    for (const bool later : {true, false}) {
        putSettings(later ? "Inst=0\r\n" : "Inst=1\r\n");
        if (!later)
            files.giveAway(setup);
        load();
        EXPECT_TRUE(files.fileExists(setup + "\\a.cab"));
        EXPECT_EQ(setting("Inst"), "0");
    }
}

TEST_F(StartUp, SettingsOfAnOlderReleaseGetTheNewKeys) {
    const struct {
        std::string_view line, thumbnails;
    } cases[] = {
        {"", "1"},
        {"ControlThumbnails=0\r\n", "0"},
        {"ControlThumbnails\r\n", ""},    // the line is there, in whatever form
        {"controlthumbnails=0\r\n", "1"}, // the case counts
        {" ControlThumbnails=0\r\n", "1"},
    };
    for (const auto& c : cases) {
        putSettings("Inst=0\r\n" + std::string(c.line));
        load();
        EXPECT_EQ(setting("ControlThumbnails"), c.thumbnails) << c.line;
        EXPECT_EQ(setting("PassIsBadCoupling"), "0");
    }
}

TEST_F(StartUp, EachFlagIsReadInItsOwnWay) {
    putSettings(
        "ControlThumbnails=0\r\nPrintName=1.0\r\nNoAlertCoupling=1 \r\nOptimize=1.0\r\nPrintGreen=1\r\n"
        "sfCanvas=1\r\nPrintNumber=01\r\nPassIsBadCoupling=1.0\r\n");
    load();
    EXPECT_TRUE(state.PrintName);
    EXPECT_TRUE(state.NoAlertCoupling);
    EXPECT_FALSE(state.Optimize);
    EXPECT_TRUE(state.PrintGreen);
    EXPECT_TRUE(state.UseCanvas);
    EXPECT_FALSE(state.PrintNumber);
    EXPECT_FALSE(state.PassIsBadCoupling);
    EXPECT_EQ(setting("PassIsBadCoupling"), "0");
}

TEST_F(StartUp, SettingsThatCannotBeReadOrWrittenStayAsTheyAre) {
    const std::string before = "[General]\r\nInst=1\r\nPrintName=0\r\n";
    files.put(state.IniPath, before);
    files.setAttributes(state.IniPath, {.readOnly = true});
    load();
    EXPECT_EQ(settingsFile(), before);

    for (int call = 1; call < 40; ++call) {
        files.setAttributes(state.IniPath, {.readOnly = false});
        files.put(state.IniPath, before);
        files.failAt(call);
        load();
        files.failAt(0);
        EXPECT_EQ(setting("PrintName"), "0") << "after a failure of call " << call;
    }
}

TEST_F(StartUp, TheBackupFolderIsMadeOnlyWhenItIsOurOwn) {
    const struct {
        std::string_view setting, folder, made;
    } cases[] = {
        {"", "\\program\\Backup\\", "\\program\\Backup"},
        {"D:\\Kept", "D:\\Kept\\", ""},
        {"D:\\Kept\\", "D:\\Kept\\", ""},
        {"/home/x/kept/", "/home/x/kept\\", ""},
    };
    for (const auto& c : cases) {
        putSettings("Backup=" + std::string(c.setting) + "\r\n");
        load();
        EXPECT_EQ(state.BackupDir, c.folder);
        EXPECT_EQ(files.folderExists(c.folder), !c.made.empty()) << c.folder;
    }
}

TEST_F(StartUp, TheNewerKindOfHelpFileIsPreferred) {
    load();
    EXPECT_EQ(state.HelpFile, "");
    files.put("\\program\\Zandor.hlp", "x");
    load();
    EXPECT_EQ(state.HelpFile, "\\program\\Zandor.hlp");
    files.put("\\program\\Zandor.chm", "x");
    load();
    EXPECT_EQ(state.HelpFile, "\\program\\Zandor.chm");
}

TEST_F(StartUp, RootsComeFromTheSettingsThenTheRegistry) {
    putFolder("D:\\Msts");
    putFolder("D:\\Store");
    putFolder("C:\\Reg");
    const struct {
        std::string_view settings, registryPath, roots;
    } cases[] = {
        {"InitialiseMSTS=1\r\nInstallDir=D:\\Msts\r\nTStoreDir=D:\\Store\r\n", "C:\\Reg",
         "D:\\Msts|D:\\Store|D:\\Msts|D:\\Store"},
        {"InitialiseMSTS=0\r\nInstallDir=D:\\Msts\\\r\nTStoreDir=D:\\Store\\\r\n", "",
         "D:\\Msts|D:\\Store|D:\\Store|D:\\Msts"},
        {"InitialiseMSTS=1\r\n", "C:\\Reg\\", "C:\\Reg||C:\\Reg|"},
        {"InitialiseMSTS=1.0\r\nInstallDir=D:\\Vanished\r\nTStoreDir=D:\\Vanished\r\n", "C:\\Reg",
         "C:\\Reg||C:\\Reg|"},
    };
    for (const auto& c : cases) {
        putSettings(c.settings);
        putRegistryPath(c.registryPath);
        EXPECT_TRUE(findRoots(frame));
        EXPECT_EQ(roots(), c.roots) << c.settings;
    }
    EXPECT_TRUE(dialogs.asked.empty());
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(StartUp, TheUserShowsTheSimulator) {
    registry.put(RegistryHive::LocalMachine, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion",
                 "ProgramFilesDir", "C:\\Program Files");
    putRegistryPath("C:\\Vanished");
    putSettings("InitialiseMSTS=1\r\n");
    for (const auto& [chosen, root] :
         {std::pair{"E:\\Games\\MSTS\\train.exe", "E:\\Games\\MSTS"}, {"/mnt/msts/Train.exe", "/mnt/msts"}}) {
        dialogs.openFile = chosen;
        EXPECT_TRUE(findRoots(frame));
        EXPECT_EQ(state.roots.RootMSTS, root);
    }
    const FakeDialogs::Asked& asked = dialogs.asked.front();
    EXPECT_EQ(asked.title, frame.text(message::FindSimulator));
    EXPECT_TRUE(asked.filter.ends_with("(*.exe)|*.exe")) << asked.filter;
    EXPECT_EQ(asked.folder, "C:\\Program Files");
    EXPECT_EQ(asked.proposedName, "train.exe");
}

TEST_F(StartUp, CancellingTheSearchEndsTheRunAndWritesNothing) {
    putSettings("InstallDir=D:\\Vanished\r\n");
    const std::string before = settingsFile();
    EXPECT_FALSE(findRoots(frame));
    ASSERT_EQ(dialogs.shown.size(), 1u);
    EXPECT_EQ(dialogs.shown[0].style, 48);
    EXPECT_EQ(dialogs.shown[0].title, state.Title);
    EXPECT_NE(dialogs.shown[0].text.find("Microsoft Train Simulator"), std::string::npos);
    EXPECT_EQ(dialogs.shown[0].text.find('|'), std::string::npos);
    EXPECT_EQ(settingsFile(), before);
}

TEST_F(StartUp, OnlyAnExistingConsistOfTheCommandLineIsOpened) {
    files.put("\\m\\a b.CON", "x");
    files.put("\\m\\a.wag", "x");
    files.put("\\m\\dir.con\\anchor", "");
    const struct {
        std::string_view argument;
        bool opened;
    } cases[] = {
        {"/m/a b.con", true}, {"\"/m/a b.con\"", true}, {"  /m/A B.con ", true}, {"", false},
        {"   ", false},       {"/m/a.wag", false},      {"/m/gone.con", false},  {"/m/dir.con", false}};
    for (const auto& c : cases) {
        const std::string path = consistFromCommandLine(frame, c.argument);
        EXPECT_EQ(!path.empty() && files.fileExists(path), c.opened) << c.argument << ": " << path;
    }
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(StartUp, ACloseKeepsFoldersAndLanguageForTheNextRun) {
    putFolder("D:\\Mśts");
    load();
    state.roots.RootMSTS = "D:\\Mśts";
    state.roots.RootTStore = "";
    state.Language = "Deutsch";
    files.log.clear();
    writeClosingSettings(frame, {{"Window", "MainTop", "7"}});
    EXPECT_EQ(std::ranges::count_if(files.log, [](auto& call) { return call.starts_with("writeFile"); }), 1);
    EXPECT_EQ(profiles.ReadIniValue("Window", "MainTop", state.IniPath), "7");
    EXPECT_EQ(setting("TStoreDir"), "");
    state.roots.RootMSTS.clear();
    EXPECT_TRUE(findRoots(frame));
    EXPECT_EQ(state.roots.RootMSTS, "D:\\Mśts");
    ASSERT_TRUE(prepareStart(frame, folders()));
    EXPECT_EQ(state.Language, "Deutsch");
}

} // namespace
} // namespace zandor
