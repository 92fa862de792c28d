#include "editor_fixture.h"

namespace zandor {
namespace {

constexpr const char* BackupOf = "\\program\\Backup\\Sauvegarde des fichiers de rames\\";

class SaveTest : public EditorTest {
  protected:
    int loco = addStock("Loco1.eng"), wagon = addStock("Wag1.wag");

    void composeExample() {
        append(loco);
        append(wagon);
        flipVehicule(editor, middleOf(1));
        nameConsist("Test");
    }
};

TEST_F(SaveTest, WritesTheWholeTextOfAConsist) {
    composeExample();
    save();
    EXPECT_EQ(shown(), Shown{"64 saved"});
    const std::string expected = "SIMISA@@@@@@@@@@JINX0D0t______\r\n"
                                 "\r\n"
                                 "Train (\r\n"
                                 "\tTrainCfg ( Test\r\n"
                                 "\t\tName ( \"Test\" )\r\n"
                                 "\t\tSerial ( 1 )\r\n"
                                 "\t\tMaxVelocity ( 40.00000 1.00000 )\r\n"
                                 "\t\tNextWagonUID ( 2 )\r\n"
                                 "\t\tDurability ( 1.00000 )\r\n"
                                 "\t\tEngine (\r\n"
                                 "\t\t\tUiD ( 0 )\r\n"
                                 "\t\t\tEngineData ( Loco1 Folder1 )\r\n"
                                 "\t\t)\r\n"
                                 "\t\tWagon (\r\n"
                                 "\t\t\tWagonData ( Wag1 Folder1 )\r\n"
                                 "\t\t\tUiD ( 1 )\r\n"
                                 "\t\t\tFlip ( )\r\n"
                                 "\t\t)\r\n"
                                 "\t)\r\n"
                                 ")\r\n";
    const std::string bytes = files.get(consistPath("Test.con")).value_or("");
    EXPECT_EQ(bytes.substr(0, 6), std::string("\xFF\xFE\x53\x00\x49\x00", 6));
    EXPECT_EQ(bytes, "\xFF\xFE" + encodeUtf16(expected));
}

TEST_F(SaveTest, ASavedConsistStaysAndIsClean) {
    composeExample();
    save();
    EXPECT_TRUE(document.HasFile && controls.deleteEnabled);
    EXPECT_FALSE(document.Modified || controls.shortNameEnabled);
    EXPECT_EQ(order(), "Loco1Wag1");
    EXPECT_EQ(catalogue.here().ConsistFiles, Shown{"Test.con"});
    EXPECT_EQ(catalogue.here().ConsistSummaries[0].FileName, "Test.con");
    EXPECT_TRUE(catalogue.here().ConsistSummaries[0].Complete);
    save();
    EXPECT_EQ(catalogue.here().ConsistFiles, Shown{"Test.con"});
    EXPECT_EQ(catalogue.here().ConsistSummaries.size(), 1u);
}

TEST_F(SaveTest, ANewConsistBeginsWhenTheSettingOrTheToolWindowAsksForIt) {
    settings("1", "1");
    composeExample();
    save();
    EXPECT_EQ(order(), "");
    EXPECT_FALSE(document.HasFile || controls.deleteEnabled);
    EXPECT_TRUE(controls.shortNameEnabled);

    settings("1", "0");
    composeExample();
    nameConsist("Other");
    document.openedFromOptions = true;
    save();
    EXPECT_EQ(order(), "");
}

TEST_F(SaveTest, ABadNameStopsTheSave) {
    files.put(consistPath("Unlisted.con"), "of another program");
    catalogue.here().ConsistFiles = {"Listed.con"};
    struct Case {
        const char *shortName, *fullName, *message;
    };
    for (const Case& c :
         {Case{"", "Full", "48 no name"}, Case{"Short", "", "48 no full name"},
          Case{"LISTED", "Full", "48 LISTED.con taken"}, Case{"unlisted", "Full", "48 unlisted.con taken"}}) {
        append(wagon);
        controls.shortName = c.shortName;
        controls.fullName = c.fullName;
        const auto before = files.allFiles();
        quiet();
        save();
        EXPECT_EQ(shown(), Shown{c.message});
        EXPECT_EQ(files.allFiles(), before);
        EXPECT_TRUE(document.Modified);
        EXPECT_FALSE(document.HasFile);
    }
}

TEST_F(SaveTest, AFullNameOfAnyLettersKeepsTheVehicles) {
    for (const std::string name : {"5\" gauge (test", "\"", "a ) b", "( ( \"x\" )", "# one", "\"(\""}) {
        begin();
        append(addStock("Wag1.wag"));
        changeFullName(editor, name);
        changeShortName(editor, "full");
        settings("0", "0");
        save();
        const std::string kept = controls.fullName;
        begin();
        ASSERT_TRUE(openConsist(editor, consistPath("full.con")).done) << name;
        EXPECT_EQ(vehicleCount(document), 1) << name;
        EXPECT_EQ(controls.fullName, kept);
        files.deleteFile(consistPath("full.con"));
        catalogue.here().ConsistFiles.clear();
    }
}

TEST_F(SaveTest, StockThatNoFileCanHoldIsRefusedByItsName) {
    for (const int index : {addStock("a\nb.wag"), addStock("c\t.wag"), addStock(".eng"),
                            addStock("d.wag", "", "e\t"), addStock("f.wag", "", "g\r\nh")}) {
        initialiseDocument(editor);
        document.HasFile = false;
        append(loco);
        append(index);
        nameConsist("odd");
        const auto before = files.allFiles();
        quiet();
        save();
        const Materiel& odd = catalogue.here().Materiels[static_cast<std::size_t>(index)];
        EXPECT_EQ(shown(), Shown{"48 unwritable " + odd.Folder + "\\" + odd.FileName});
        EXPECT_EQ(files.allFiles(), before);
        EXPECT_TRUE(document.Modified && !document.HasFile);
    }
}

TEST_F(SaveTest, MaxVelocityFollowsTheEngine) {
    append(wagon);
    nameConsist("v");
    save();
    EXPECT_TRUE(savedHas("v.con", "MaxVelocity ( 0.00000 0.00100 )"));
    append(loco);
    save();
    EXPECT_TRUE(savedHas("v.con", "MaxVelocity ( 40.00000 1.00000 )"));
    document.rame.MaxVelocity = "22.22222 0.50000";
    save();
    EXPECT_TRUE(savedHas("v.con", "MaxVelocity ( 22.22222 0.50000 )"));
}

TEST_F(SaveTest, TheWagonsOwnSpellingOfItsNameIsWritten) {
    catalogue.here().Materiels[static_cast<std::size_t>(wagon)].WagonName = "WAG1";
    const int odd = addStock("odd.txt");
    append(wagon);
    append(odd);
    nameConsist("w");
    save();
    EXPECT_TRUE(savedHas("w.con", "WagonData ( WAG1 Folder1 )"));
    EXPECT_EQ(savedText("w.con").find("odd"), std::string::npos);
    ASSERT_EQ(document.RameStockNew.size(), 1u);
    EXPECT_EQ(document.RameStockNew[0].FileName, "Wag1.wag");
}

TEST_F(SaveTest, TheOldFileIsKeptAndTheCopyReplacedByTheNextOne) {
    composeExample();
    save();
    const std::string first = *files.get(consistPath("Test.con"));
    append(wagon);
    quiet();
    save();
    const std::string copy = std::string(BackupOf) + "Test.con.old";
    EXPECT_EQ(files.get(copy), first);
    EXPECT_EQ(shown(), Shown{"64 saved+kept " + files.nativePath(copy)});
    const std::string second = *files.get(consistPath("Test.con"));
    append(wagon);
    save();
    EXPECT_EQ(files.get(copy), second);

    settings("0", "0");
    quiet();
    save();
    EXPECT_EQ(shown(), Shown{"64 saved"});
    EXPECT_EQ(files.get(copy), second);
}

TEST_F(SaveTest, TheOnlyCopyIsReplacedWhenTheUserSaysSo) {
    composeExample();
    save();
    const std::string first = *files.get(consistPath("Test.con"));
    files.put("\\program\\Backup\\Sauvegarde des fichiers de rames", "a file in the folder's place");
    append(wagon);
    const std::string question = "308 Test unkept in " + files.nativePath(BackupOf);
    for (const bool saved : {false, true}) {
        quiet();
        dialogs.answers = {saved ? answer::Yes : answer::No};
        save();
        EXPECT_EQ(shown(), saved ? (Shown{question, "64 saved"}) : Shown{question});
        EXPECT_EQ(files.get(consistPath("Test.con")) == first, !saved);
        EXPECT_EQ(document.Modified, !saved);
    }
    document.noBackup = true;
    quiet();
    save();
    EXPECT_EQ(shown(), Shown{"64 saved"});
}

TEST_F(SaveTest, BlanksAtTheEndsOfNamesAreNotKept) {
    composeExample();
    changeFullName(editor, "  In full ");
    changeShortName(editor, " Short  ");
    files.put(consistPath("Short.con"), "of another program");
    save();
    EXPECT_EQ(shown(), Shown{"48 Short.con taken"});
    files.deleteFile(consistPath("Short.con"));
    for (int i = 0; i < 2; ++i) {
        save();
        EXPECT_TRUE(savedHas("Short.con", "TrainCfg ( Short"));
        EXPECT_TRUE(savedHas("Short.con", "Name ( \"In full\" )"));
        EXPECT_EQ(controls.shortName + '|' + controls.fullName, "Short|In full");
        ASSERT_TRUE(openConsist(editor, consistPath("Short.con")).done);
        EXPECT_FALSE(controls.shortNameRed);
        changeFullName(editor, "In full ");
    }
}

TEST_F(SaveTest, ACloseWaitsForASaveThatFails) {
    composeExample();
    state.roots.RootMSTS = "D:\\Gone";
    dialogs.defaultAnswer = answer::Yes;
    EXPECT_FALSE(take(closeEditor(editor)));
    EXPECT_EQ(order(), "Loco1Wag1");
    state.roots.RootMSTS = Simulator;
    EXPECT_TRUE(take(closeEditor(editor)));
    EXPECT_TRUE(files.get(consistPath("Test.con")));
    quiet();
    document.HasFile = true;
    changeDurability(editor, 500);
    dialogs.defaultAnswer = answer::No;
    EXPECT_TRUE(take(closeEditor(editor)));
    EXPECT_EQ(shown(), Shown{"36 save Test?"});
    EXPECT_EQ(state.LastAnswer, "7");
}

// Every call that a save makes fails once, alone and with all that follow.
TEST_F(SaveTest, AFailureAnywhereLosesNothing) {
    struct Case {
        bool hasFile, allAfter;
    };
    for (const Case& c : {Case{true, false}, Case{true, true}, Case{false, false}, Case{false, true}}) {
        int failures = 0;
        for (int call = 1;; ++call) {
            files = MemoryFileSystem();
            files.put("C:\\MSTS\\train.exe", "");
            settings("1", "0");
            catalogue.here().ConsistFiles.clear();
            catalogue.here().ConsistSummaries.clear();
            initialiseDocument(editor);
            composeExample();
            std::optional<std::string> old;
            if (c.hasFile) {
                save();
                old = files.get(consistPath("Test.con"));
                ASSERT_TRUE(old);
                append(wagon);
            }
            const Rame rameBefore = document.rame;
            quiet();
            files.failAt(call, c.allAfter);
            dialogs.defaultAnswer = answer::No;
            save();
            const bool failed = files.failed();
            files.failAt(0);

            ASSERT_EQ(shown().size(), 1u) << "a failure is told or asked about, once";
            const bool saved = shown()[0].starts_with("64");
            const auto now = files.get(consistPath("Test.con"));
            const bool isOld = now == old;
            const bool isNew =
                now && now->size() > 100 && savedText("Test.con").ends_with("\t)\r\n)\r\n") && now != old;
            EXPECT_TRUE(isOld || isNew) << "call " << call;
            EXPECT_EQ(document.Modified, !saved) << "call " << call;
            if (saved) {
                EXPECT_TRUE(isNew) << "call " << call;
            } else {
                ++failures;
                EXPECT_EQ(document.rame.CfgName, rameBefore.CfgName);
                EXPECT_EQ(document.rame.NextWagonUID, rameBefore.NextWagonUID);
                EXPECT_EQ(document.HasFile, c.hasFile);
                EXPECT_EQ(catalogue.here().ConsistFiles.size(), c.hasFile ? 1u : 0u);
            }
            if (!failed)
                break;
        }
        EXPECT_GT(failures, 0);
    }
}

} // namespace
} // namespace zandor
