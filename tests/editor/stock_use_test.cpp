#include "editor_fixture.h"

namespace zandor {
namespace {

class StockUseTest : public EditorTest {
  protected:
    StockUseTest() { state.PrintGreen = true; }

    void use(std::vector<StockPair> before, std::vector<StockPair> now, bool hadFile = true) {
        document.RameStockOld = std::move(before);
        document.RameStockNew = std::move(now);
        UpdateStockUse(editor, hadFile, "Full", "a.con", "C:\\MSTS\\TRAINS\\CONSISTS\\");
    }
    std::string counts() const {
        std::string text;
        for (const StockUse& use : catalogue.StockUsage)
            if (!use.FileName.empty())
                text += use.FileName + " " + std::to_string(use.Count) + " ";
        return text;
    }
    const StockPair a{"a.wag", "Parc"}, A{"A.WAG", "PARC"}, b{"b.wag", "Parc"};
};

TEST_F(StockUseTest, CountsFollowTheDifferenceOfTheLists) {
    struct Case {
        std::vector<StockPair> before, now;
        bool hadFile;
        const char* counts; // from a 2, b 2
    };
    for (const Case& c :
         {Case{{a}, {b}, true, "a.wag 1 b.wag 3 "}, Case{{a}, {A}, true, "a.wag 2 b.wag 2 "},
          Case{{a, a}, {a}, true, "a.wag 2 b.wag 2 "}, Case{{a, A, a}, {}, true, "a.wag 0 b.wag 2 "},
          Case{{}, {b, b}, true, "a.wag 2 b.wag 4 "}, Case{{a, b}, {a}, false, "a.wag 3 b.wag 2 "}}) {
        catalogue = Catalogue();
        appendStockUse(catalogue, "Parc", "a.wag", 2);
        appendStockUse(catalogue, "Parc", "b.wag", 2);
        use(c.before, c.now, c.hadFile);
        EXPECT_EQ(counts(), c.counts);
        EXPECT_EQ(document.RameStockOld, c.now);
    }
}

TEST_F(StockUseTest, TheIndexHoldsOneEntryAFile) {
    catalogue.ConsistIndex.push_back({"A.CON", "Old", "c:\\msts\\trains\\consists\\", {b}, false});
    catalogue.ConsistIndex.push_back({"a.con", "Other root", "C:\\Store\\TRAINS\\CONSISTS\\", {b}, false});
    use({}, {a}, false);
    ASSERT_EQ(catalogue.ConsistIndex.size(), 2u);
    EXPECT_EQ(catalogue.ConsistIndex[0].DisplayName, "Full");
    EXPECT_EQ(catalogue.ConsistIndex[0].Items, std::vector<StockPair>{a});
    EXPECT_EQ(catalogue.ConsistIndex[1].DisplayName, "Other root");
}

TEST_F(StockUseTest, NothingIsCountedWithoutTheGreenMark) {
    state.PrintGreen = false;
    use({}, {a}, false);
    EXPECT_EQ(counts(), "");
    EXPECT_TRUE(catalogue.ConsistIndex.empty());
}

TEST_F(StockUseTest, SavesCountEachVehicleOfAFileOnce) {
    compose("AAB");
    nameConsist("Test");
    save();
    EXPECT_EQ(counts(), "A.wag 2 B.wag 1 ");
    save();
    EXPECT_EQ(counts(), "A.wag 2 B.wag 1 ") << "nothing has changed";
    document.DragSource = 2;
    RemoveVehicule(editor);
    save();
    EXPECT_EQ(counts(), "A.wag 2 B.wag 0 ");
    changeShortName(editor, "Second");
    save();
    EXPECT_EQ(counts(), "A.wag 4 B.wag 0 ") << "the first file still uses its stock";
    EXPECT_EQ(catalogue.ConsistIndex.size(), 2u);
}

} // namespace
} // namespace zandor
