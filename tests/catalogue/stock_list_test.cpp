#include "catalogue/stock_list.h"
#include "catalogue_fixture.h"

namespace zandor {
namespace {

TEST(StockClass, FollowsTypeAndEngineTypeInAnyCase) {
    struct Case {
        const char *type, *engineType;
        int expected;
    };
    for (const Case& one :
         {Case{"Engine", "ELECTRIC", 0}, Case{"ENGINE", "Diesel", 1}, Case{"engine", "steam", 2},
          Case{"Carriage", "", 3}, Case{"FREIGHT", "diesel", 4}, Case{"Tender", "", 5},
          Case{"Draisine", "", 5}, Case{"Engine", "", -1}, Case{"engine", "control", -1},
          Case{"", "electric", -1}, Case{"caboose", "", -1}}) {
        Materiel materiel;
        materiel.Type = one.type;
        materiel.EngineType = one.engineType;
        EXPECT_EQ(stockClassOf(materiel), one.expected) << one.type << " " << one.engineType;
    }
}

struct StockListTest : CatalogueTest {
    StockListTest() { catalogue.here().Materiels.clear(); }

    Materiel& add(const char* file, const char* type, const char* engineType = "") {
        Materiel& added = catalogue.here().Materiels.emplace_back();
        added.Folder = "Parc";
        added.FileName = file;
        added.Type = type;
        added.EngineType = engineType;
        return added;
    }
};

TEST_F(StockListTest, HoldsTheClassInCatalogueOrder) {
    add("z.eng", "Engine", "Diesel").EngineName = "Zed";
    add("default.wag", "Engine", "Diesel"); // a consist that uses it was opened
    add("a.wag", "Freight").WagonName = "Box";
    Materiel& last = add("a.eng", "engine", "DIESEL");
    last.WagonName = "Shell";
    last.CabView = "a.cvf";

    const auto rows = FillStockList(state, catalogue, 1, false);
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(std::to_string(rows[0].index) + rows[0].text, "0Zed");
    EXPECT_EQ(rows[0].icon, NoCabIcon);
    EXPECT_EQ(std::to_string(rows[1].index) + rows[1].text, "3Shell");
    EXPECT_EQ(rows[1].icon, CabIcon);
    EXPECT_EQ(FillStockList(state, catalogue, 1, true)[0].text, "z.eng");
    EXPECT_TRUE(FillStockList(state, catalogue, 0, false).empty());
    EXPECT_TRUE(FillStockList(state, catalogue, -1, false).empty()) << "stock of no class is in no list";
}

TEST_F(StockListTest, AnUnknownBrakeOrCouplingRepeatsTheIconBeforeIt) {
    struct Case {
        const char *type, *brakes, *coupling;
        int brakeIcon, couplingIcon; // of the class's rows
    };
    const Case cases[] = {
        {"Freight", "", "", 0, 0},
        {"Freight", "EP", "Chain_Bar", 6, 14},
        {"Tender", "Ecp", "bar", 0, 0}, // of another class
        {"Freight", "hand", "knuckle", 22, 11},
        {"Freight", "Vacuum_Twin_Pipe", "hydraulic_hydraulic", 5, 13},
        {"Freight", "", "automatic", 5, 10},
    };
    for (const Case& c : cases) {
        Materiel& added = add("a.wag", c.type);
        added.BrakeSystem = c.brakes;
        added.Coupling = c.coupling;
    }
    const auto rows = FillStockList(state, catalogue, 4, false);
    auto row = rows.begin();
    for (const Case& c : cases)
        if (std::string_view(c.type) == "Freight") {
            ASSERT_NE(row, rows.end());
            EXPECT_EQ(row->brakeIcon, c.brakeIcon) << c.brakes;
            EXPECT_EQ((row++)->couplingIcon, c.couplingIcon) << c.coupling;
        }
    add("b.wag", "Carriage").Coupling = "bar";
    EXPECT_EQ(FillStockList(state, catalogue, 3, false)[0].couplingIcon, 0) << "carriages list no coupling";
}

TEST_F(StockListTest, UnusedStockIsShownOnlyWithPrintGreen) {
    appendStockUse(catalogue, "PARC", "Voit.wag", 0);
    appendStockUse(catalogue, "parc", "voit.wag", 2);
    appendStockUse(catalogue, "Parc", "released.wag", 0);
    struct Case {
        const char* file;
        bool unused;
    };
    for (const Case& one : {Case{"VOIT.wag", false}, Case{"released.wag", true}, Case{"never.wag", true}}) {
        state.PrintGreen = true;
        EXPECT_EQ(isShownUnused(state, catalogue, "Parc", one.file), one.unused) << one.file;
        state.PrintGreen = false;
        EXPECT_FALSE(isShownUnused(state, catalogue, "Parc", one.file)) << one.file;
    }
}

} // namespace
} // namespace zandor
