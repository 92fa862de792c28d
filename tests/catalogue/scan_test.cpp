#include "catalogue_fixture.h"

namespace zandor {
namespace {

TEST_F(CatalogueTest, StockIsEnginesThenWagonsByFolder) {
    putStock("Zone\\a.eng");
    putStock("Ateliers\\b.wag");
    putStock("Ateliers\\b.eng");
    putStock("Ateliers\\C.WAG");
    putStock("Ateliers\\notes.txt");
    files.put(trainsetPath(MstsRoot) + "loose.eng", "not in a stock folder");
    putStock("Zone\\a.eng", {}, StoreRoot);
    const Names folders = ListStockFolders(frame, trainsetPath(MstsRoot), true);
    EXPECT_EQ(folders, (Names{"Ateliers", "Zone"}));
    ScanStockFiles(frame, catalogue, folders);
    EXPECT_EQ(stockNames(), (Names{"Ateliers\\b.eng", "Zone\\a.eng", "Ateliers\\b.wag", "Ateliers\\C.WAG"}));
    EXPECT_EQ(catalogue.here().Materiels[0].BasePath, "C:\\MSTS\\TRAINS\\TRAINSET\\");
}

struct DefaultWagon {
    const char* file;
    bool catalogued;
};

TEST_F(CatalogueTest, OnlyTheLowerCaseDefaultWagonIsLeftOut) {
    for (const DefaultWagon& one : {DefaultWagon{"default.wag", false}, DefaultWagon{"Default.wag", true},
                                    DefaultWagon{"default.WAG", true}, DefaultWagon{"default.eng", true}}) {
        const std::string folder = trainsetPath(MstsRoot) + "Parc\\";
        files.put(folder + one.file, "");
        ScanStockFiles(frame, catalogue, {"Parc"});
        EXPECT_EQ(stockNames().size(), one.catalogued ? 1u : 0u) << one.file;
        files.deleteFile(folder + one.file);
    }
}

// `count` files "000000.eng" and so on over folders of 10,000.
void putMany(MemoryFileSystem& files, int count, const char* extension) {
    for (int i = 0; i < count; ++i) {
        const std::string number = std::to_string(1000000 + i);
        files.put(trainsetPath(MstsRoot) + "F" + number.substr(0, 3) + "\\" + number + extension, "");
    }
}

TEST_F(CatalogueTest, StockBeyondTheLimitIsToldOncePerKind) {
    putMany(files, MaxEntries, ".eng");
    ScanStockFiles(frame, catalogue, ListStockFolders(frame, trainsetPath(MstsRoot), true));
    EXPECT_EQ(catalogue.here().Materiels.size(), static_cast<std::size_t>(MaxEntries));
    EXPECT_TRUE(dialogs.shown.empty()) << "just full";

    putStock("F104\\one.eng");
    putStock("F100\\one.wag");
    putStock("F100\\two.wag");
    ScanStockFiles(frame, catalogue, ListStockFolders(frame, trainsetPath(MstsRoot), true));
    EXPECT_EQ(catalogue.here().Materiels.size(), static_cast<std::size_t>(MaxEntries));
    const std::string message = "48 limit 32766 in " + files.nativePath(trainsetPath(MstsRoot));
    EXPECT_EQ(messagesShown(), (Names{message, message}));
}

TEST_F(CatalogueTest, StockFoldersStopAtTheLimitWhenAsked) {
    putStock("0\\makes the folders above.eng");
    for (int i = 1; i <= MaxEntries; ++i)
        files.createFolder(trainsetPath(MstsRoot) + std::to_string(i));
    EXPECT_EQ(ListStockFolders(frame, trainsetPath(MstsRoot), false).size(),
              static_cast<std::size_t>(MaxEntries) + 1);
    EXPECT_TRUE(dialogs.shown.empty());
    EXPECT_EQ(ListStockFolders(frame, trainsetPath(MstsRoot), true).size(),
              static_cast<std::size_t>(MaxEntries));
    EXPECT_EQ(dialogs.shown.size(), 1u);
}

TEST_F(CatalogueTest, ConsistsOfBothRootsAreIndexedAndCounted) {
    putConsist("a.con", "short\r\nName ( \"Full name\" )",
               {"EngineData ( loco Parc )", "WagonData ( voit Parc )", "WagonData ( voit Parc )"});
    putConsist("bare.con", "nobody", {});
    putConsist("a.con", "\"No full name\"", {"WagonData ( voit Parc )", "WagonData ( VOIT Parc )"},
               StoreRoot);
    ASSERT_TRUE(ScanConsists(frame, catalogue));

    EXPECT_EQ(catalogue.here().ConsistFiles, (Names{"a.con", "bare.con"}));
    EXPECT_EQ(usage(), (Names{"Parc\\loco.eng 1", "Parc\\voit.wag 3", "Parc\\VOIT.wag 1"}));
    ASSERT_EQ(catalogue.ConsistIndex.size(), 3u);
    const ConsistEntry& first = catalogue.ConsistIndex[0];
    EXPECT_EQ(first.FolderPath + first.FileName + "|" + first.DisplayName,
              "C:\\MSTS\\TRAINS\\CONSISTS\\a.con|Full name");
    EXPECT_EQ(first.Items,
              (std::vector<StockPair>{{"loco.eng", "Parc"}, {"voit.wag", "Parc"}, {"voit.wag", "Parc"}}));
    EXPECT_EQ(catalogue.ConsistIndex[1].DisplayName, "");
    EXPECT_EQ(catalogue.ConsistIndex[1].Items, std::vector<StockPair>());
    EXPECT_EQ(catalogue.ConsistIndex[2].FolderPath, "C:\\Store\\TRAINS\\CONSISTS\\");
    EXPECT_EQ(catalogue.ConsistIndex[2].DisplayName, "No full name");
}

TEST_F(CatalogueTest, ScanOfConsistsStartsAfreshAndMayLackTheStore) {
    putConsist("a.con", "a", {"WagonData ( voit Parc )"});
    putConsist("b.con", "b", {"WagonData ( stored Parc )"}, StoreRoot);
    ScanConsists(frame, catalogue);
    EXPECT_EQ(usage(), (Names{"Parc\\voit.wag 1", "Parc\\stored.wag 1"}));
    state.roots.RootTStore.clear();
    ScanConsists(frame, catalogue);
    EXPECT_EQ(usage(), Names{"Parc\\voit.wag 1"});
    EXPECT_EQ(catalogue.ConsistIndex.size(), 1u);
    EXPECT_EQ(findStockUse(catalogue, "Parc", "stored.wag"), nullptr);
}

TEST_F(CatalogueTest, ABrokenConsistCountsWhatStandsBeforeTheFault) {
    putConsist("a.con", "a", {"WagonData ( voit Parc )", "WagonData ( voit Parc"});
    putConsist("b.con", "b", {"WagonData ( voit Parc )"});
    files.put(consistsPath(MstsRoot) + "c.con", "no signature");
    EXPECT_TRUE(ScanConsists(frame, catalogue));
    EXPECT_EQ(usage(), Names{"Parc\\voit.wag 2"});
    EXPECT_EQ(catalogue.ConsistIndex[2].DisplayName, "");
}

TEST_F(CatalogueTest, StockUseIsFoundInAnyCaseTheFirstRecordFirst) {
    appendStockUse(catalogue, "Parc", "voit.wag", 1);
    appendStockUse(catalogue, "PARC", "Voit.wag", 5);
    ASSERT_EQ(catalogue.StockUsage.size(), 2u);
    StockUse* use = findStockUse(catalogue, "parc", "VOIT.WAG");
    ASSERT_NE(use, nullptr);
    EXPECT_EQ(use->Count, 1);
    EXPECT_EQ(findStockUse(catalogue, "Par", "cvoit.wag"), nullptr) << "folder and file are compared apart";
    use->Count = 0;
    EXPECT_EQ(findStockUse(catalogue, "parc", "voit.wag")->Count, 5) << "a record that counts comes first";
    appendStockUse(catalogue, "Été", "ŒUVRE.wag", 1);
    EXPECT_NE(findStockUse(catalogue, "éTÉ", "œuvre.WAG"), nullptr);
}

TEST(MaterielFinderTest, FindsTheFirstOfANameInAnyCase) {
    std::vector<Materiel> materiels(4);
    const auto name = [&](int i, const char* folder, const char* file) {
        materiels[i].Folder = folder;
        materiels[i].FileName = file;
    };
    name(1, "Parc", "voit.wag");
    name(2, "PARC", "VOIT.wag");
    name(3, "Autre", "voit.wag");
    MaterielFinder finder;
    EXPECT_EQ(finder.find(materiels, "parc", "Voit.WAG"), 1);
    EXPECT_EQ(finder.find(materiels, "autre", "voit.wag"), 3);
    EXPECT_EQ(finder.find(materiels, "parc", "voit.eng"), -1);

    materiels.emplace_back();
    name(4, "Parc", "neuf.eng");
    EXPECT_EQ(finder.find(materiels, "parc", "neuf.eng"), 4) << "grown";
    std::swap(materiels[1], materiels[3]);
    EXPECT_EQ(finder.find(materiels, "autre", "voit.wag"), 1) << "another stock where the table points";
    name(4, "Parc", "later.eng");
    finder.forget();
    EXPECT_EQ(finder.find(materiels, "parc", "later.eng"), 4);
}

} // namespace
} // namespace zandor
