#include "catalogue_fixture.h"

namespace zandor {
namespace {

struct SnapshotTest : CatalogueTest {
    SnapshotTest() {
        putStock("Parc\\loco.eng");
        putStock("Parc\\voit.wag");
        putStock("Depot\\store.eng", {}, StoreRoot);
        putConsist("train.con", "train", {});
        state.MainReady = true;
        LoadCatalogue(frame, catalogue);
    }
    void swapRoots() {
        SaveCatalogueSnapshot(state, catalogue, state.RootPrimary);
        std::swap(state.RootPrimary, state.RootSecondary);
        state.Busy = true;
    }
};

TEST_F(SnapshotTest, GoingToTheOtherRootAndBackReadsNoFile) {
    catalogue.ConsistSummaries = {{"A train", "train.con", "1 engine", "ROUTE_YES", true, 1, 0}};
    catalogue.RamesEnService = {"Train.con"};
    catalogue.summariesRead = true;
    swapRoots();
    ASSERT_TRUE(reloadCatalogue(frame, catalogue));
    EXPECT_EQ(stockNames(), Names{"Depot\\store.eng"});
    EXPECT_EQ(catalogue.ConsistSummaries[0].FileName, "");
    EXPECT_EQ(catalogue.RamesEnService, Names{""});
    EXPECT_FALSE(catalogue.summariesRead);

    swapRoots();
    files.log.clear();
    ASSERT_TRUE(reloadCatalogue(frame, catalogue));
    EXPECT_EQ(files.log, Names{});
    EXPECT_FALSE(state.Busy);
    EXPECT_EQ(stockNames(), (Names{"Parc\\loco.eng", "Parc\\voit.wag"}));
    EXPECT_EQ(catalogue.ConsistFiles, Names{"train.con"});
    EXPECT_EQ(catalogue.ConsistSummaries[0].Composition, "1 engine");
    EXPECT_EQ(catalogue.RamesEnService, Names{"Train.con"});
    EXPECT_TRUE(catalogue.summariesRead);
}

TEST_F(SnapshotTest, ARootWithANewPathIsScannedAgain) {
    swapRoots();
    reloadCatalogue(frame, catalogue);
    dropSnapshot(state, catalogue, true);
    EXPECT_EQ(catalogue.snapshots[0].root, MstsRoot);
    swapRoots();
    putStock("Parc\\new.eng");
    EXPECT_FALSE(RestoreCatalogueSnapshot(catalogue, MstsRoot));
    EXPECT_EQ(stockNames(), Names{"Depot\\store.eng"}) << "untouched";
    EXPECT_TRUE(reloadCatalogue(frame, catalogue));
    EXPECT_EQ(stockNames(), (Names{"Parc\\loco.eng", "Parc\\new.eng", "Parc\\voit.wag"}));
    EXPECT_TRUE(catalogue.snapshots[1].valid) << "the other root's stands";
}

TEST_F(SnapshotTest, AStrangeRootIsNotKept) {
    SaveCatalogueSnapshot(state, catalogue, "D:\\Elsewhere");
    EXPECT_FALSE(catalogue.snapshots[0].valid || catalogue.snapshots[1].valid);
    EXPECT_FALSE(RestoreCatalogueSnapshot(catalogue, "D:\\Elsewhere"));
}

TEST_F(SnapshotTest, ALoadThatTheUserEndedIsNotKept) {
    progress.cancelAtYield = progress.yields + 2;
    LoadCatalogue(frame, catalogue);
    swapRoots();
    progress.cancelAtYield = 0;
    reloadCatalogue(frame, catalogue);
    swapRoots();
    EXPECT_FALSE(RestoreCatalogueSnapshot(catalogue, MstsRoot));
    EXPECT_TRUE(catalogue.snapshots[1].valid);
}

} // namespace
} // namespace zandor
