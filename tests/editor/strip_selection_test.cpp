#include "editor/strip_selection.h"
#include "editor_fixture.h"

namespace zandor {
namespace {

struct SelectionTest : EditorTest {
    SelectionTest() { compose("ABCD"); }

    // The letter of the selected vehicle, or nothing.
    std::string selected() const {
        return hasSelection(document) ? document.Vehicules[static_cast<std::size_t>(document.selected)].Name
                                      : "";
    }
};

TEST_F(SelectionTest, MovesStepByStepAndNotBeyondTheEnds) {
    struct Case {
        int from, step;
        const char* order;
        bool modified;
    };
    for (const Case& c : {Case{0, 1, "BACD", true}, Case{2, 1, "ABDC", true}, Case{3, -1, "ABDC", true},
                          Case{1, -1, "BACD", true}, Case{0, -1, "ABCD", false}, Case{3, 1, "ABCD", false}}) {
        initialiseDocument(editor);
        compose("ABCD");
        selectVehicule(document, c.from);
        const std::string moved = selected();
        EXPECT_TRUE(take(moveSelected(editor, c.step)));
        EXPECT_EQ(order(), c.order) << c.from << ' ' << c.step;
        EXPECT_EQ(selected(), moved) << c.from << ' ' << c.step;
        EXPECT_EQ(document.Modified, c.modified) << c.from << ' ' << c.step;
        EXPECT_FALSE(document.DragActive);
    }
}

TEST_F(SelectionTest, InsertsInFrontOfItOrAtTheEnd) {
    document.selected = -1;
    EXPECT_TRUE(take(insertBeforeSelected(editor, stockOf('x'))));
    EXPECT_EQ(order(), "ABCDx") << "nothing was selected";
    EXPECT_EQ(selected(), "x");
    selectVehicule(document, 1);
    EXPECT_TRUE(take(insertBeforeSelected(editor, stockOf('y'))));
    EXPECT_EQ(order(), "AyBCDx");
    EXPECT_EQ(selected(), "y");
    selectVehicule(document, 0);
    EXPECT_TRUE(take(insertBeforeSelected(editor, stockOf('w'))));
    EXPECT_EQ(order(), "wAyBCDx");
    EXPECT_EQ(selected(), "w");
}

TEST_F(SelectionTest, StaysOnItsVehicleWhateverTheMouseDoes) {
    selectVehicule(document, 2);
    document.DragSource = 0;
    RemoveVehicule(editor);
    EXPECT_EQ(selected(), "C");
    take(MoveVehicule(editor, 0, 2));
    EXPECT_EQ(selected(), "C") << order();
    document.DragSource = document.selected;
    RemoveVehicule(editor);
    EXPECT_EQ(selected(), "B") << "the next one";
    removeSelected(editor);
    removeSelected(editor);
    EXPECT_EQ(selected(), "");
    EXPECT_FALSE(hasVehicles(document));
    removeSelected(editor); // nothing is left
    EXPECT_FALSE(document.Modified);
}

TEST_F(SelectionTest, RefusesWhatDoesNotFit) {
    initialiseDocument(editor);
    addStock("p.wag", "chain");
    addStock("q.wag", "bar");
    state.NoAlertCoupling = true;
    compose("pq");
    state.NoAlertCoupling = false;
    state.PassIsBadCoupling = true;
    selectVehicule(document, 0);
    EXPECT_FALSE(take(moveSelected(editor, 1)));
    EXPECT_EQ(order(), "pq");
    EXPECT_EQ(selected(), "p");
    EXPECT_EQ(shown(), Shown{"48 misfit"});
}

TEST_F(SelectionTest, FlipsAndTells) {
    files.put(state.LanguagePath,
              "[English]\r\n86=|1/|2 |3 |4\r\n87=|1/|2 |3 |4 flipped\r\n88=|1 missing\r\n89=none\r\n");
    document.selected = -1;
    EXPECT_EQ(describeSelected(editor), "none");
    selectVehicule(document, 7);
    EXPECT_EQ(describeSelected(editor), "4/4 D 3");
    flipSelected(editor);
    EXPECT_EQ(describeSelected(editor), "4/4 D 3 flipped");
    EXPECT_TRUE(document.Modified);
    selectVehicule(document, 0);
    EXPECT_EQ(lookUpSelected(document), document.Vehicules[0].MaterielIndex);
    document.Vehicules[0].Missing = true;
    flipSelected(editor);
    EXPECT_FALSE(document.Vehicules[0].Flipped);
    EXPECT_EQ(describeSelected(editor), "1 missing");
    EXPECT_EQ(lookUpSelected(document), std::nullopt);
}

} // namespace
} // namespace zandor
