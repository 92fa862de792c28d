#include "catalogue_fixture.h"

namespace zandor {
namespace {

struct RootsTest : CatalogueTest {
    RootsTest() {
        putStock("Parc\\loco.eng");
        putStock("Parc\\voit.wag");
        putStock("Depot\\store.eng", {}, StoreRoot);
        putConsist("train.con", "train", {});
        files.put(std::string(MstsRoot) + "\\ROUTES\\Valley\\valley.trk", "Name ( Valley )");
        files.put(std::string(MstsRoot) + "\\ROUTES\\Valley\\SERVICES\\up.srv", "Train_Config ( train )");
        state.MainReady = true;
        LoadCatalogue(frame, catalogue);
    }
    bool goToOther() {
        state.roots.first = otherThan(state.roots.first);
        state.Busy = true;
        return reloadCatalogue(frame, catalogue);
    }
};

TEST_F(RootsTest, GoingToTheOtherRootAndBackReadsNoFileAndCopiesNothing) {
    catalogue.here().ConsistSummaries = {{"A train", "train.con", "1 engine", "ROUTE_YES", true, 1, 0}};
    catalogue.here().summariesRead = true;
    const Materiel* const stock = catalogue.here().Materiels.data();
    ASSERT_TRUE(goToOther());
    EXPECT_EQ(stockNames(), Names{"Depot\\store.eng"});
    EXPECT_TRUE(catalogue.here().ConsistSummaries.empty());
    EXPECT_TRUE(catalogue.here().Routes.empty());
    EXPECT_TRUE(catalogue.here().RamesEnService.empty());
    EXPECT_FALSE(catalogue.here().summariesRead);

    files.log.clear();
    ASSERT_TRUE(goToOther());
    EXPECT_EQ(files.log, Names{});
    EXPECT_FALSE(state.Busy);
    EXPECT_EQ(stockNames(), (Names{"Parc\\loco.eng", "Parc\\voit.wag"}));
    EXPECT_EQ(catalogue.here().Materiels.data(), stock);
    EXPECT_EQ(catalogue.here().ConsistFiles, Names{"train.con"});
    EXPECT_EQ(catalogue.here().ConsistSummaries[0].Composition, "1 engine");
    EXPECT_EQ(catalogue.here().Routes[0].Services[0].Rame, "train");
    EXPECT_EQ(catalogue.here().RamesEnService, Names{"Train.con"});
}

TEST_F(RootsTest, ARootWithANewPathIsScannedAgain) {
    putStock("Parc\\moved.eng", {}, "D:\\MSTS");
    state.roots.RootMSTS = "D:\\MSTS";
    ASSERT_TRUE(reloadCatalogue(frame, catalogue));
    EXPECT_EQ(stockNames(), Names{"Parc\\moved.eng"});
}

TEST_F(RootsTest, ALoadThatTheUserEndedDoesNotCount) {
    progress.cancelAtYield = progress.yields + 2;
    EXPECT_FALSE(LoadCatalogue(frame, catalogue));
    progress.cancelAtYield = 0;
    ASSERT_TRUE(goToOther());
    files.log.clear();
    ASSERT_TRUE(goToOther());
    EXPECT_NE(files.log, Names{}) << "it is loaded anew";
    EXPECT_EQ(stockNames(), (Names{"Parc\\loco.eng", "Parc\\voit.wag"}));
}

} // namespace
} // namespace zandor
