#include "editor_fixture.h"
#include "support/bitmaps.h"

namespace zandor {
namespace {

constexpr const char* Vehicles =
    "Train (\r\n\tTrainCfg ( Mixed\r\n\t\tName ( \"A mixed train\" )\r\n"
    "\t\tSerial ( 3 )\r\n\t\tDefault ( )\r\n\t\tMaxVelocity ( 30.00000 1.00000 )\r\n"
    "\t\tNextWagonUID ( 9 )\r\n\t\tDurability ( 0.75000 )\r\n"
    "\t\tEngine (\r\n\t\t\tFlip ( )\r\n\t\t\tUiD ( 4 )\r\n"
    "\t\t\tEngineData ( loco1 FOLDER1 )\r\n\t\t\tEngineVariables( 1 2 3 )\r\n\t\t)\r\n"
    "\t\tEngine (\r\n\t\t\tUiD ( 5 )\r\n\t\t\tEngineData ( Gone \"Old Parc\" )\r\n"
    "\t\t\tEngineVariables( 7 )\r\n\t\t)\r\n"
    "\t\tWagon (\r\n\t\t\tWagonData ( Wag1 Folder1 )\r\n\t\t\tUiD ( 6 )\r\n\t\t)\r\n"
    "\t\tWagon (\r\n\t\t\tWagonData ( \"Gone too\" Parc )\r\n\t\t\tUiD ( 8 )\r\n"
    "\t\t\tFlip ( )\r\n\t\t)\r\n\t)\r\n)\r\n";

class OpenTest : public EditorTest {
  protected:
    int loco = addStock("Loco1.eng"), wagon = addStock("Wag1.wag");

    bool open(std::string_view file) { return take(openConsist(editor, consistPath(file))); }
    std::string rows() const {
        std::string text;
        for (const Vehicule& v : document.Vehicules)
            text += v.Name + (v.Missing ? " missing" : "") + (v.FromSimulator ? " simulator" : "") +
                    (v.Flipped ? " flipped " : " ") + std::to_string(v.Number) + " " + v.EngineVariables +
                    "|";
        return text;
    }
};

TEST_F(OpenTest, BringsAFileOntoTheStrip) {
    putConsist("mixed.con", Vehicles);
    ASSERT_TRUE(open("mixed.con"));
    EXPECT_EQ(rows(), "Loco1 flipped 4 EngineVariables(1 2 3)|Gone.eng missing 5 EngineVariables(7)|"
                      "Wag1 6 |Gone too.wag missing flipped 8 |");
    EXPECT_EQ(controls.fullName, "A mixed train");
    EXPECT_EQ(controls.shortName, "Mixed");
    EXPECT_FALSE(controls.shortNameRed || controls.shortNameEnabled);
    EXPECT_EQ(controls.durability, 750);
    EXPECT_EQ(document.NextNumber, 9);
    EXPECT_EQ(document.StripWidth, 4 * PlainPictureWidth);
    EXPECT_TRUE(document.HasFile && controls.deleteEnabled && controls.numberEnabled);
    EXPECT_FALSE(document.Modified || document.Loading);
    EXPECT_EQ(document.ConsistFolder, consistsPath(Simulator));
    EXPECT_EQ(shown(), Shown{});
}

TEST_F(OpenTest, WhatIsSavedIsWhatWasRead) {
    putConsist("mixed.con", Vehicles);
    ASSERT_TRUE(open("mixed.con"));
    const std::string before = rows();
    save();
    EXPECT_EQ(shown().size(), 1u);
    EXPECT_TRUE(shown()[0].ends_with("\r\nincomplete")) << shown()[0];
    for (const char* line :
         {"EngineData ( Gone \"Old Parc\" )", "WagonData ( \"Gone too\" Parc )", "Serial ( 3 )",
          "EngineVariables(7)", "EngineVariables(1 2 3)", "EngineData ( Loco1 Folder1 )",
          "MaxVelocity ( 30.00000 1.00000 )", "Durability ( 0.75000 )", "NextWagonUID ( 9 )"})
        EXPECT_TRUE(savedHas("mixed.con", line)) << line;
    const std::string saved = savedText("mixed.con");

    initialiseDocument(editor);
    ASSERT_TRUE(open("mixed.con"));
    EXPECT_EQ(rows(), before);
    save();
    EXPECT_EQ(savedText("mixed.con"), saved);
    EXPECT_FALSE(catalogue.here().ConsistSummaries.back().Complete);
}

TEST_F(OpenTest, AMissingVehicleTakesANewNumberWithItsOldLines) {
    putConsist("mixed.con", Vehicles);
    open("mixed.con");
    numberButtonPressed(editor);
    save();
    EXPECT_NE(savedText("mixed.con").find("UiD ( 1 )\r\n\t\t\tEngineData ( Gone \"Old Parc\" )"),
              std::string::npos);
}

TEST_F(OpenTest, AFileNamedOtherwiseShowsBothNamesAndKeepsThem) {
    const std::string longName(35, 'L');
    struct Case {
        const char *file, *cfgName, *shown;
        bool red;
    };
    const std::string longShown = longName + " - file.con";
    for (const Case& c :
         {Case{"Test.con", "tEST", "tEST", false}, Case{"file.con", "Été", "Été - file.con", true},
          Case{"file.con", longName.c_str(), longShown.c_str(), true}}) {
        putConsist(c.file, "Train (\r\nTrainCfg ( " + std::string(c.cfgName) +
                               "\r\nWagon (\r\nWagonData ( Wag1 Folder1 )\r\n)\r\n)\r\n)\r\n");
        ASSERT_TRUE(open(c.file));
        EXPECT_EQ(controls.shortName, c.shown);
        EXPECT_EQ(controls.shortNameRed, c.red);
        const auto before = files.allFiles().size();
        settings("0", "0");
        save();
        EXPECT_EQ(files.allFiles().size(), before) << "the file keeps its name";
        EXPECT_TRUE(savedHas(c.file, "TrainCfg ( " + std::string(c.cfgName)));
        EXPECT_EQ(controls.shortName, c.shown);
        EXPECT_EQ(controls.shortNameRed, c.red);
    }
}

TEST_F(OpenTest, WhatIsNoConsistChangesNothing) {
    compose("AB");
    controls.shortName = "mine";
    files.put(consistPath("wrong.con"), "SIMISA@@@@@@@@@@JINX0a0t______\r\nTrain (\r\n)\r\n");
    files.put(consistPath("empty.con"), "");
    files.put("C:\\x.txt", std::string(ConsistSignature) + "\r\nTrain (\r\n)\r\n");
    for (const std::string& path : {consistPath("wrong.con"), consistPath("empty.con"),
                                    consistPath("absent.con"), std::string("C:\\x.txt")}) {
        quiet();
        EXPECT_FALSE(take(openConsist(editor, path))) << path;
        EXPECT_EQ(told[0].file, path);
        const bool absent = path.find("absent") != std::string::npos;
        EXPECT_EQ(shown(), Shown{(absent ? "48 no consist " : "48 no train ") + files.nativePath(path)});
        EXPECT_EQ(order(), "AB");
        EXPECT_EQ(controls.shortName, "mine");
        EXPECT_FALSE(document.HasFile);
    }
}

TEST_F(OpenTest, AFileThatIsNotReadIsToldWithTheReason) {
    std::string text(ConsistSignature);
    text.append("\r\nTrain (\r\nTrainCfg ( big\r\nWagon (\r\nWagonData ( Wag1 Folder1 )\r\n)\r\n)\r\n)\r\n");
    text.resize(32u << 20, '\n');
    files.put(consistPath("big.con"), text + '\n');
    files.put(consistPath("fits.con"), text);
    files.put(consistPath("folder.con\\file"), "");
    EXPECT_FALSE(open("big.con"));
    EXPECT_FALSE(open("folder.con"));
    EXPECT_EQ(shown(), (Shown{"48 unread " + consistPath("big.con") + ": 33 MB of 32",
                              "48 unread " + consistPath("folder.con") + ": unreadable"}));
    EXPECT_FALSE(hasVehicles(document));
    EXPECT_TRUE(open("fits.con"));
    EXPECT_EQ(vehicleCount(document), 1);
}

TEST_F(OpenTest, AFailingDiskNeverPassesForAnEmptyConsist) {
    putConsist("mixed.con", Vehicles);
    for (bool allAfter : {false, true})
        for (int call = 1;; ++call) {
            initialiseDocument(editor);
            files.failAt(call, allAfter);
            const bool opened = open("mixed.con");
            const bool failed = files.failed();
            files.failAt(0);
            EXPECT_EQ(vehicleCount(document), opened ? 4 : 0) << call;
            EXPECT_EQ(document.HasFile, opened);
            if (!failed)
                break;
        }
}

TEST_F(OpenTest, AMalformedConsistIsToldAndOpenedAsFarAsItGoes) {
    files.put(state.LanguagePath, "[English]\r\n91=|1: |3\r\n391=no bracket in line |1\r\n");
    putConsist("bad.con", "Train (\r\nTrainCfg ( bad\r\nWagon (\r\nWagonData ( Wag1 Folder1 )\r\n)\r\n"
                          "Wagon (\r\nWagonData Wag1 Folder1 )\r\n)\r\n)\r\n)\r\n");
    ASSERT_TRUE(open("bad.con"));
    EXPECT_EQ(order(), "Wag1");
    EXPECT_EQ(shown(), Shown{"48 " + files.nativePath(consistPath("bad.con")) + ": no bracket in line 9"});
}

TEST_F(OpenTest, VehiclesThatAreLeftOutAreToldAndNotLostUnasked) {
    for (const auto& [stray, kept] : {std::pair(")\r\n", "Wag1"), std::pair("Wagon (\r\n", "Wag1"),
                                      std::pair("Wagon (\r\nWagonData ( Wag3 )\r\n)\r\n", "Wag1Wag2.wag")}) {
        putConsist(
            "bad.con",
            "Train (\r\nTrainCfg ( bad\r\nName ( bad )\r\nWagon (\r\nWagonData ( Wag1 Folder1 )\r\n)\r\n" +
                std::string(stray) + "Wagon (\r\nWagonData ( Wag2 Folder1 )\r\n)\r\n)\r\n)\r\n");
        const std::string before = *files.get(consistPath("bad.con"));
        settings("0", "0");
        ASSERT_TRUE(open("bad.con"));
        EXPECT_EQ(order(), kept) << stray;
        EXPECT_EQ(told.size(), 1u) << stray;

        dialogs.answers = {answer::No};
        save();
        EXPECT_EQ(*files.get(consistPath("bad.con")), before) << stray;
        dialogs.answers = {answer::Yes};
        save();
        EXPECT_NE(*files.get(consistPath("bad.con")), before) << stray;
        EXPECT_EQ(*files.get(state.BackupDir + "Sauvegarde des fichiers de rames\\bad.con.old"), before)
            << "kept though the settings don't ask for it";
        quiet();
        save();
        EXPECT_EQ(shown().size(), 1u) << "the report alone";
        quiet();
    }
}

TEST_F(OpenTest, StockThatCameAfterTheLoadIsAddedAtTheEnd) {
    files.put(trainsetPath(Simulator) + "Parc\\late.eng",
              std::string(ConsistSignature) +
                  "\r\nWagon ( late\r\nType ( Engine )\r\nCoupling (\r\nType ( Chain )\r\n)\r\n)\r\n"
                  "Engine ( late\r\nName ( \"Late\" )\r\n)\r\n");
    putConsist("late.con", "Train (\r\nTrainCfg ( late\r\nEngine (\r\nEngineData ( late Parc )\r\n)\r\n"
                           "Wagon (\r\nWagonData ( Wag1 Folder1 )\r\n)\r\n"
                           "Engine (\r\nEngineData ( LATE Parc )\r\n)\r\n)\r\n)\r\n");
    for (int i = 0; i < 2; ++i) {
        ASSERT_TRUE(open("late.con"));
        EXPECT_EQ(order(), "LateWag1Late");
        ASSERT_EQ(catalogue.here().Materiels.size(), 3u) << "once";
        EXPECT_EQ(catalogue.here().Materiels[0].FileName, "Loco1.eng");
        EXPECT_EQ(document.Vehicules[2].MaterielIndex, 2);
    }
    catalogue.here().Materiels.resize(2);
    catalogue.here().Materiels.resize(MaxEntries, catalogue.here().Materiels[0]);
    ASSERT_TRUE(open("late.con"));
    EXPECT_TRUE(document.Vehicules[0].Missing) << "no index is left";
    EXPECT_EQ(catalogue.here().Materiels.size(), static_cast<std::size_t>(MaxEntries));
}

TEST_F(OpenTest, StockIsAddedOnceToAnEmptyCatalogueToo) {
    catalogue.here().Materiels.clear();
    putConsist("one.con",
               "Train (\r\nTrainCfg ( one\r\nWagon (\r\nWagonData ( Wag1 Folder1 )\r\n)\r\n)\r\n)\r\n");
    for (int i = 0; i < 2; ++i) {
        ASSERT_TRUE(open("one.con"));
        ASSERT_EQ(catalogue.here().Materiels.size(), 1u);
        EXPECT_EQ(catalogue.here().Materiels[0].FileName, "Wag1.wag");
    }
}

class StoreTest : public OpenTest {
  protected:
    StoreTest() {
        // Loco1 and Wag1 stand in the simulator's tree alone.
        state.roots.first = Root::Store;
        catalogue.current = Root::Store;
        catalogue.here().Materiels.clear();
        putConsist("mixed.con", Vehicles);
    }
};

TEST_F(StoreTest, StockOfTheSimulatorIsFoundFromTheTrainStore) {
    Materiel known;
    known.Folder = "Folder1";
    known.FileName = "Loco1.eng";
    known.EngineName = "Known";
    catalogue.simulator.Materiels = {known};
    ASSERT_TRUE(open("mixed.con"));
    EXPECT_EQ(rows(),
              "Known simulator flipped 4 EngineVariables(1 2 3)|Gone.eng missing 5 EngineVariables(7)|"
              "Wag1.wag simulator 6 |Gone too.wag missing flipped 8 |");
    EXPECT_EQ(catalogue.simulator.Materiels.size(), 2u);
    EXPECT_EQ(catalogue.simulator.Materiels[1].BasePath, trainsetPath(Simulator));
    save();
    EXPECT_TRUE(savedHas("mixed.con", "EngineData ( Loco1 Folder1 )"));
    EXPECT_TRUE(savedHas("mixed.con", "WagonData ( Wag1 Folder1 )"));
}

TEST_F(StoreTest, ThePrimarySimulatorNeverLooksInTheTrainStore) {
    files.put(trainsetPath(Store) + "Parc\\Gone too.wag", "stock");
    state.roots.first = catalogue.current = Root::Simulator;
    ASSERT_TRUE(open("mixed.con"));
    EXPECT_TRUE(document.Vehicules[3].Missing);
}

TEST_F(StoreTest, AChangeOfRootsEmptiesTheEditorAndFindsTheOtherStock) {
    ASSERT_TRUE(open("mixed.con"));
    changeDurability(editor, 600);
    state.roots.first = otherThan(state.roots.first);
    state.MainReady = true;
    EXPECT_TRUE(ReloadAfterOptions(editor));
    EXPECT_FALSE(state.Busy || document.Modified || document.HasFile || hasVehicles(document));
    EXPECT_EQ(controls.durability, 600) << "the slider stays where the user has it";
    EXPECT_EQ(document.rame.Durability, "0.60000");
    ASSERT_TRUE(open("mixed.con"));
    EXPECT_EQ(rows(), "Loco1.eng flipped 4 EngineVariables(1 2 3)|Gone.eng missing 5 EngineVariables(7)|"
                      "Wag1.wag 6 |Gone too.wag missing flipped 8 |");
}

TEST_F(OpenTest, AConsistBeyondTheLimitOpensUpToIt) {
    std::string body = "Train (\r\nTrainCfg ( long\r\n";
    for (int i = 0; i < MaxEntries + 2; ++i)
        body += "Wagon (\r\nWagonData ( Wag1 Folder1 )\r\nUiD ( " + std::to_string(i % 100) + " )\r\n)\r\n";
    putConsist("long.con", body + ")\r\n)\r\n");
    ASSERT_TRUE(open("long.con"));
    EXPECT_EQ(vehicleCount(document), MaxEntries);
    EXPECT_EQ(shown(), Shown{"48 limit 32766 in long.con"});
}

TEST_F(OpenTest, VehiclesAreAsWideAsTheirPictures) {
    const std::string thumbnail = "\\program\\Thumbnails\\Loco1.bmp";
    files.put(thumbnail, makeBitmap(200, 96));
    catalogue.here().Materiels[static_cast<std::size_t>(wagon)].Type = "Engine";
    catalogue.here().Materiels[static_cast<std::size_t>(wagon)].EngineType = "other";
    putConsist("mixed.con", Vehicles);
    ASSERT_TRUE(open("mixed.con"));
    const int widths[] = {200, PlainPictureWidth, 0, PlainPictureWidth};
    for (std::size_t i = 0; i < 4; ++i)
        EXPECT_EQ(document.Vehicules[i].Width, widths[i]) << i;
    EXPECT_EQ(document.StripWidth, 200 + 2 * PlainPictureWidth);
    EXPECT_EQ(document.Vehicules[0].Picture, thumbnail);
    EXPECT_FALSE(document.Vehicules[0].ImageIsResource || document.Vehicules[0].ImageIsGeneric);
    EXPECT_EQ(document.Vehicules[1].Picture, "NO_MATERIEL");
    EXPECT_TRUE(document.Vehicules[1].ImageIsResource);
    EXPECT_TRUE(append(loco));
    EXPECT_EQ(document.StripWidth, 400 + 2 * PlainPictureWidth);
}

} // namespace
} // namespace zandor
