#include "editor_fixture.h"

namespace zandor {
namespace {

TEST(CouplingRule, NeedsOneTypeInCommon) {
    struct Case {
        const char *a, *b, *uniqueA, *uniqueB;
        bool fits;
    };
    for (const Case& c : {
             Case{"automatic", "automatic_bar", "", "", true},
             Case{"Automatic", "AUTOMATIC", "", "", true},
             Case{"chain", "bar", "", "", false},
             Case{"chain_bar", "hydraulic_bar", "", "", true},
             Case{"chain_bar", "bar_hydraulic", "", "", true},
             Case{"", "bar", "", "", true},
             Case{"bar", "", "", "", true},
             Case{"scharfenberg", "Scharfenberg", "", "", true},
             Case{"automatic", "automatic", "x", "", false},
             Case{"automatic", "automatic", "X", "x", true},
             Case{"automatic", "automatic", "x", "y", false},
             Case{"chain_bar", "bar", "x", "", true},
             Case{"chain_bar", "chain", "x", "", false},
             Case{"chain_bar", "chain", "x", "x", true},
             Case{"chain_bar", "chain", "x_END", "", true},
             Case{"chain_bar", "bar", "x_END", "", false},
             Case{"chain_bar", "bar", " x _END", "X", true},
             Case{"bar", "_bar", "", "", false},
             Case{"_bar", "bar", "", "", true},
         }) {
        EXPECT_EQ(CouplingCompatible(c.a, c.b, c.uniqueA, c.uniqueB), c.fits)
            << c.a << " (" << c.uniqueA << ") and " << c.b << " (" << c.uniqueB << ")";
    }
}

class CouplingTest : public EditorTest {
  protected:
    int chain = addStock("c.wag", "chain"), bar = addStock("b.wag", "bar"),
        both = addStock("x.wag", "chain_bar"), unknown = addStock("u.wag");

    void strip(std::initializer_list<int> stock) {
        state.NoAlertCoupling = true;
        for (int index : stock)
            append(index);
        state.NoAlertCoupling = document.Modified = false;
    }
    // What a refusal has to leave as it is.
    std::string everything() const {
        return order() + " next " + std::to_string(document.NextNumber) + " wide " +
               std::to_string(document.StripWidth) + (document.Modified ? " modified" : "") + controls.totals;
    }
};

TEST_F(CouplingTest, WithoutAnAlertNothingIsRefused) {
    strip({chain});
    state.NoAlertCoupling = state.PassIsBadCoupling = true;
    EXPECT_TRUE(append(bar));
    EXPECT_EQ(shown(), Shown{});
    EXPECT_EQ(order(), "cb");
}

TEST_F(CouplingTest, ARefusalLeavesEverythingAsItIs) {
    strip({chain, chain, bar});
    state.PassIsBadCoupling = true;
    const std::string before = everything();
    EXPECT_FALSE(append(chain));
    dragOverStrip(editor, middleOf(1));
    EXPECT_FALSE(drop(bar));
    EXPECT_FALSE(document.DragActive);
    pressStrip(editor, middleOf(2));
    moveOnStrip(editor, middleOf(0));
    release(ReleaseZone::Strip);
    EXPECT_EQ(everything(), before);
    EXPECT_EQ(shown(), (Shown{"48 misfit", "48 misfit", "48 misfit"}));
    EXPECT_FALSE(document.DragActive || document.StripPressed);
}

TEST_F(CouplingTest, AMoveIsCheckedWhereTheVehicleComesToStand) {
    struct Case {
        std::string_view before; // c chain, b bar, x both
        int from, to;            // positions; past the last vehicle is the end
        std::string_view after;
    };
    for (const Case& c : {Case{"cxb", 2, 0, "cxb"}, Case{"xcb", 2, 0, "bxc"}, Case{"bxc", 0, 3, "bxc"},
                          Case{"cbx", 0, 3, "bxc"}, Case{"cxb", 0, 2, "cxb"}, Case{"cxb", 2, 1, "cxb"},
                          Case{"bxcc", 0, 3, "bxcc"}, Case{"cxxb", 0, 3, "cxxb"}}) {
        begin();
        state.NoAlertCoupling = true;
        for (char letter : c.before)
            append(letter == 'c' ? chain : letter == 'b' ? bar : both);
        state.NoAlertCoupling = document.Modified = false;
        state.PassIsBadCoupling = true;
        pressStrip(editor, middleOf(c.from));
        moveOnStrip(editor, middleOf(c.to));
        release(ReleaseZone::Strip);
        EXPECT_EQ(order(), c.after) << c.before << " from " << c.from << " to " << c.to;
        EXPECT_EQ(document.Modified, c.before != c.after);
        document.Modified = false;
    }
}

TEST_F(CouplingTest, OneBadPairIsToldOnce) {
    strip({chain, chain});
    dragOverStrip(editor, middleOf(1));
    EXPECT_TRUE(drop(bar));
    EXPECT_EQ(shown(), Shown{"48 misfit"});
}

TEST_F(CouplingTest, AStripThatEndsInUnknownCouplingIsNotChecked) {
    strip({chain, unknown});
    EXPECT_TRUE(CheckCoupling(editor, 0, bar, false));
    strip({bar});
    EXPECT_FALSE(CheckCoupling(editor, 0, bar, false));
    EXPECT_TRUE(CheckCoupling(editor, 1, bar, false))
        << "the last vehicle stands in for one without coupling";
    EXPECT_FALSE(CheckCoupling(editor, 1, chain, false));
    EXPECT_TRUE(CheckCoupling(editor, 2, 1, true));
}

TEST_F(CouplingTest, AMissingVehicleFitsEverything) {
    catalogue.here().Materiels[0].CouplingUnique = "own"; // the entry that its index would lead to
    const RameItem gone{false, 0, false, "gone", "Parc", ""};
    InsertVehicule(editor, 0, false, false, &gone);
    strip({bar});
    EXPECT_TRUE(CheckCoupling(editor, 1, 0, true));
}

TEST_F(CouplingTest, ThePanelNamesBrakesAndCouplings) {
    struct Case {
        const char *brakes, *coupling, *unique, *brakesText, *couplingText;
    };
    for (const Case& c : {
             Case{"Air_Single_Pipe", "Chain", "", "Brakes air", "Coupled chain"},
             Case{"air_piped", "automatic", "x", "Brakes piped air", "Coupled auto (x)"},
             Case{"ECP", "chain_bar", "", "Brakes ECP", "Coupled chain, bar"},
             Case{"ep", "chain_bar", "x", "Brakes EP", "Coupled chain (x), bar"},
             Case{"handbrake", "hydraulic_bar", "x_END", "", "Coupled hydro, bar (x)"},
             Case{"", "", "x", "", "Coupled  (x)"},
             Case{"", "Own", "", "", ""},
             Case{"", "bar_bar", "", "", ""},
         }) {
        Materiel materiel;
        materiel.BrakeSystem = c.brakes;
        materiel.Coupling = c.coupling;
        materiel.CouplingUnique = c.unique;
        const MaterielInfo info = ShowMaterielInfo(frame, materiel);
        EXPECT_EQ(info.brakes, c.brakesText);
        EXPECT_EQ(info.coupling, c.couplingText) << c.coupling << " " << c.unique;
    }
}

TEST_F(CouplingTest, ThePanelShowsThePictureOfAnEntry) {
    const int index = stockOf('A');
    const MaterielInfo info = ShowMaterielInfo(editor, index);
    EXPECT_EQ(info.path, "Folder1\\A.wag");
    EXPECT_EQ(info.picture.name, "5004");
    EXPECT_EQ(catalogue.here().Materiels[static_cast<std::size_t>(index)].Picture, "5004") << "it is kept";
    for (const int none : {-1, index + 1}) {
        EXPECT_FALSE(ShowMaterielInfo(editor, none).picture.found());
        EXPECT_EQ(ShowMaterielInfo(editor, none).select, "");
    }
}

} // namespace
} // namespace zandor
