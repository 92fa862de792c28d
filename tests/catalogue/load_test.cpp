#include "catalogue_fixture.h"

namespace zandor {
namespace {

constexpr const char* WagonBody =
    "Wagon ( voit\r\nType ( Carriage )\r\nSize ( 3m 4m 20m )\r\nMass ( 30t )\r\n"
    "Coupling (\r\nType ( Chain )\r\n)\r\nName ( \"First name\" )\r\n";

TEST_F(CatalogueTest, LoadComesInItsOrderWithItsMarks) {
    putStock("Parc\\loco.eng");
    putConsist("train.con", "train", {"EngineData ( loco Parc )"});
    files.put(std::string(MstsRoot) + "\\Routes\\Valley\\valley.trk", "Name ( Valley )");
    files.put(std::string(MstsRoot) + "\\Routes\\Valley\\Services\\up.srv", "Train_Config ( train )");
    state.PrintGreen = true;
    ASSERT_TRUE(LoadCatalogue(frame, catalogue));
    EXPECT_EQ(
        progressShown(),
        (Names{"0-0:0 route Valley", "0-255:0 step", "0-0:0 Valley - services --> up.srv", "0-255:0 step",
               "0-255:0 step", "0-0:0 consists", "0-255:0 step", "0-255:0 step", "0-0:0 engines",
               "0-0:0 wagons", "0-255:0 step", "0-0:0 reading loco.eng", "0-255:0 step"}));
    EXPECT_EQ(usage(), Names{"Parc\\loco.eng 1"});
}

TEST_F(CatalogueTest, LoadNeverBuildsStockUseAnewAfterTheStart) {
    putConsist("train.con", "train", {"EngineData ( loco Parc )"});
    state.PrintGreen = true;
    LoadCatalogue(frame, catalogue);
    state.MainReady = true;
    putConsist("other.con", "other", {"EngineData ( other Parc )"});
    LoadCatalogue(frame, catalogue);
    EXPECT_EQ(usage(), Names{"Parc\\loco.eng 1"});
    EXPECT_EQ(catalogue.here().ConsistFiles, (Names{"other.con", "train.con"}));
}

TEST_F(CatalogueTest, OptimizeChoosesTheFullReader) {
    putStock("Parc\\voit.wag", "Wagon ( voit\r\nType ( Carriage ) Mass ( 30t )\r\n");
    LoadCatalogue(frame, catalogue);
    EXPECT_EQ(catalogue.here().Materiels[0].Mass, "30t");
    state.Optimize = false; // the quick reader sees one key a line
    LoadCatalogue(frame, catalogue);
    EXPECT_EQ(catalogue.here().Materiels[0].Mass, "");
    EXPECT_EQ(catalogue.here().Materiels[0].WagonName, "voit");
}

TEST_F(CatalogueTest, LoadKeepsStockThatItCannotRead) {
    files.put(trainsetPath(MstsRoot) + "Parc\\binary.eng", "\x01\x02\x03");
    files.put(trainsetPath(MstsRoot) + "Parc\\empty.wag", "");
    putStock("Parc\\voit.wag", WagonBody);
    EXPECT_TRUE(LoadCatalogue(frame, catalogue));
    ASSERT_EQ(stockNames(), (Names{"Parc\\binary.eng", "Parc\\empty.wag", "Parc\\voit.wag"}));
    EXPECT_EQ(catalogue.here().Materiels[0].Type + catalogue.here().Materiels[1].Type, "");
    EXPECT_EQ(catalogue.here().Materiels[2].Type, "Carriage");
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(CatalogueTest, LoadPassesOverWhatIsTooLargeAndTellsItOnce) {
    const std::string huge = signedText(std::string(LargestSimFile, '\n'));
    const std::string parc = trainsetPath(MstsRoot) + "Parc\\", consist = consistsPath(MstsRoot) + "huge.con";
    state.PrintGreen = true;
    files.put(consist, huge);
    putStock("Parc\\voit.wag", WagonBody);
    for (const char* name : {"a.eng", "b.eng", "c.eng", "d.wag", "e.wag", "f.wag"})
        files.put(parc + name, huge);
    for (const bool optimize : {true, false}) {
        state.Optimize = optimize;
        dialogs.shown.clear();
        EXPECT_TRUE(LoadCatalogue(frame, catalogue));
        EXPECT_EQ(messagesShown(), Names{"48 passed over\r\n" + consist + " of 33 MB\r\n" + parc +
                                         "a.eng of 33 MB\r\n" + parc + "b.eng of 33 MB\r\n" + parc +
                                         "c.eng of 33 MB\r\n" + parc + "d.wag of 33 MB\r\nand 2 more"});
        EXPECT_EQ(catalogue.here().Materiels.back().Type, "Carriage") << "the load went on";
    }
}

TEST_F(CatalogueTest, LoadRepairsSeveralNamesOnlyWhereItMayWrite) {
    const std::string path = trainsetPath(MstsRoot) + "Parc\\voit.wag";
    putStock("Parc\\voit.wag", std::string(WagonBody) + "Name ( \"Second name\" )\r\n)\r\n");
    const auto before = files.get(path);
    LoadCatalogue(frame, catalogue, ReadOnlyLoad);
    EXPECT_EQ(files.get(path), before);
    LoadCatalogue(frame, catalogue);
    EXPECT_NE(files.get(path), before);
}

TEST_F(CatalogueTest, LoadControlsTheThumbnailsAtTheStartAlone) {
    const std::string thumbnail = "\\program\\Thumbnails\\gone.bmp";
    struct Case {
        const char* key;
        bool mainReady, readOnly, moved;
    };
    for (const Case& c :
         {Case{"1", false, false, true}, Case{"1.0", false, false, true}, Case{"0", false, false, false},
          Case{"", false, false, false}, Case{"1", true, false, false}, Case{"1", false, true, false}}) {
        files.put(thumbnail, "picture");
        files.put(state.IniPath, "[General]\r\nControlThumbnails=" + std::string(c.key) + "\r\n");
        state.MainReady = c.mainReady;
        EXPECT_TRUE(LoadCatalogue(frame, catalogue, c.readOnly ? ReadOnlyLoad : LoadOptions()));
        EXPECT_EQ(!files.get(thumbnail), c.moved) << c.key;
    }
}

TEST_F(CatalogueTest, AReloadLooksForPicturesAnew) {
    putStock("Parc\\voit.wag", WagonBody);
    LoadCatalogue(frame, catalogue);
    LoadMaterielPicture(frame, catalogue, catalogue.here().Materiels[0]);
    EXPECT_EQ(catalogue.here().Materiels[0].Picture, "5003");
    LoadCatalogue(frame, catalogue);
    EXPECT_EQ(catalogue.here().Materiels[0].Picture, "");
}

TEST_F(CatalogueTest, LoadOfAMissingRootIsEmptyAndNoError) {
    EXPECT_TRUE(LoadCatalogue(frame, catalogue));
    EXPECT_FALSE(state.Busy);
    EXPECT_TRUE(catalogue.here().Materiels.empty());
    EXPECT_TRUE(catalogue.here().ConsistFiles.empty());
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(CatalogueTest, LoadStopsAtOnceWhenTheUserEndsIt) {
    for (const char* name : {"Parc\\a.wag", "Parc\\b.wag", "Parc\\c.wag"})
        putStock(name, WagonBody);
    // The folder is listed twice, for engines and for wagons; then one file is read.
    progress.cancelAtYield = progress.yields + 5;
    EXPECT_FALSE(LoadCatalogue(frame, catalogue));
    EXPECT_FALSE(state.Busy);
    ASSERT_EQ(stockNames().size(), 3u);
    EXPECT_EQ(catalogue.here().Materiels[1].Type, "Carriage");
    EXPECT_EQ(catalogue.here().Materiels[2].Type, "");
    EXPECT_EQ(progressShown().back(), "0-2:1 reading b.wag");
}

TEST_F(CatalogueTest, ScanOfConsistsStopsAtOnceWhenTheUserEndsIt) {
    putStock("Parc\\a.wag", WagonBody);
    putConsist("a.con", "a", {"WagonData ( a Parc )"});
    putConsist("b.con", "b", {"WagonData ( a Parc )"});
    state.PrintGreen = true;
    progress.cancelAtYield = progress.yields + 2;
    EXPECT_FALSE(LoadCatalogue(frame, catalogue));
    EXPECT_FALSE(state.Busy);
    EXPECT_EQ(usage(), Names{"Parc\\a.wag 1"});
    EXPECT_TRUE(stockNames().empty());
}

} // namespace
} // namespace zandor
