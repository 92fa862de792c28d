#include "editor_fixture.h"

namespace zandor {
namespace {

class StripTest : public EditorTest {};

TEST_F(StripTest, StockIsPutWhereItIsDropped) {
    struct Case {
        int position; // of the pointer; 3 is behind the last vehicle
        const char* result;
    };
    for (const Case& c : {Case{0, "NABC"}, Case{1, "ANBC"}, Case{2, "ABNC"}, Case{3, "ABCN"}}) {
        begin();
        compose("ABC");
        dragOverStrip(editor, middleOf(c.position));
        EXPECT_TRUE(dropMarkPosition(document)) << c.position;
        dragOverStrip(editor, middleOf(c.position));
        EXPECT_TRUE(dropMarkPosition(document)) << "the mark stays when the pointer moves on the vehicle";
        EXPECT_TRUE(drop(stockOf('N')));
        EXPECT_EQ(order(), c.result);
        EXPECT_TRUE(document.Modified);
        EXPECT_FALSE(document.DragActive);
        EXPECT_EQ(document.StripWidth, 4 * PlainPictureWidth);
        document.Modified = false;
    }
}

TEST_F(StripTest, WhatIsNotInTheCatalogueIsNotDropped) {
    compose("A");
    for (int index : {-1, 1, 4711})
        EXPECT_FALSE(append(index));
    EXPECT_EQ(order(), "A");
    EXPECT_FALSE(document.Modified);
}

TEST_F(StripTest, AVehicleMovesToWhereItIsReleased) {
    struct Case {
        int from, to; // positions; 4 is behind the last vehicle
        const char* result;
        bool marked;
    };
    for (const Case& c : {Case{0, 0, "ABCD", false}, Case{0, 1, "ABCD", false}, Case{0, 2, "BACD", true},
                          Case{0, 4, "BCDA", true}, Case{2, 4, "ABDC", true}, Case{3, 4, "ABCD", false},
                          Case{3, 0, "DABC", true}, Case{2, 1, "ACBD", true}, Case{3, 3, "ABCD", false}}) {
        begin();
        compose("ABCD");
        pressStrip(editor, middleOf(c.from));
        moveOnStrip(editor, middleOf(c.to));
        EXPECT_EQ(dropMarkPosition(document).has_value(), c.marked) << c.from << " to " << c.to;
        release(ReleaseZone::Strip);
        EXPECT_EQ(order(), c.result) << c.from << " to " << c.to;
        EXPECT_EQ(document.Modified, order() != "ABCD");
        EXPECT_FALSE(document.DragActive || document.StripPressed);
        document.Modified = false;
    }
}

TEST_F(StripTest, AVehicleDraggedOffTheStripIsGoneWithNoQuestion) {
    compose("ABC");
    pressStrip(editor, middleOf(1));
    moveOnStrip(editor, std::nullopt);
    release(ReleaseZone::Elsewhere);
    EXPECT_EQ(order(), "AC");
    EXPECT_EQ(document.StripWidth, 2 * PlainPictureWidth);
    EXPECT_TRUE(document.Modified);
    EXPECT_EQ(shown(), Shown{});
}

TEST_F(StripTest, AnEmptiedStripHasNothingToSave) {
    compose("A");
    document.HasFile = document.Modified = true;
    pressStrip(editor, middleOf(0));
    release(ReleaseZone::Elsewhere);
    EXPECT_FALSE(hasVehicles(document));
    EXPECT_FALSE(document.Modified || controls.numberEnabled);
    EXPECT_EQ(document.StripWidth, 0);
}

TEST_F(StripTest, AForgottenDragFromTheListRemovesNoVehicle) {
    compose("AB");
    dragOverStrip(editor, middleOf(1));
    pressStrip(editor, 700);
    release(ReleaseZone::Elsewhere);
    EXPECT_EQ(order(), "AB");
    dragOverStrip(editor, middleOf(0));
    append(stockOf('C'));
    EXPECT_EQ(order(), "ABC") << "a double click appends";
}

TEST_F(StripTest, AReleaseOnThePreviewLooksTheStockUp) {
    compose("AB");
    document.Vehicules[1].FromSimulator = true;
    const RameItem gone{false, 0, false, "gone", "Parc", ""};
    InsertVehicule(editor, 0, false, false, &gone);
    const std::optional<int> expected[] = {stockOf('A'), -1, std::nullopt};
    for (int position = 0; position < 3; ++position) {
        pressStrip(editor, middleOf(position));
        EXPECT_EQ(release(ReleaseZone::Preview), expected[position]) << position;
    }
    EXPECT_EQ(order(), "ABgone.wag");
}

TEST_F(StripTest, PointsAreTestedFromEdgeToEdge) {
    compose("AB");
    struct Case {
        StripPoint point;
        int index;
        bool hit, atFront, atEnd;
    };
    for (const Case& c : {Case{0, 0, true, true, false}, Case{120, 0, true, true, false},
                          Case{121, 1, true, false, false}, Case{241, 1, true, false, false},
                          Case{242, 0, false, false, true}, Case{std::nullopt, 0, false, false, false}}) {
        const StripHit hit = HitTestStrip(document, c.point);
        EXPECT_EQ(hit.hit, c.hit) << c.point.value_or(-1);
        EXPECT_EQ(hit.index, c.index) << c.point.value_or(-1);
        EXPECT_EQ(hit.atFront, c.atFront) << c.point.value_or(-1);
        EXPECT_EQ(hit.atEnd, c.atEnd) << c.point.value_or(-1);
    }
    EXPECT_EQ(stripToolTip(document, 130), "B");
    EXPECT_EQ(stripToolTip(document, 300), "");
}

TEST_F(StripTest, NumbersRunAlongTheStripOnlyWhenAskedFor) {
    compose("ABC");
    pressStrip(editor, middleOf(2));
    moveOnStrip(editor, middleOf(0));
    release(ReleaseZone::Strip);
    EXPECT_EQ(numbers(), (std::vector<int>{2, 0, 1}));
    numberButtonPressed(editor);
    EXPECT_EQ(numbers(), (std::vector<int>{0, 1, 2}));
    EXPECT_FALSE(state.PrintNumber);

    state.PrintNumber = true;
    document.DragSource = 0;
    RemoveVehicule(editor);
    append(stockOf('D'));
    EXPECT_EQ(numbers(), (std::vector<int>{0, 1, 2}));
    EXPECT_EQ(document.NextNumber, 3);
}

TEST_F(StripTest, PastTheHighestNumberALowerFreeOneFollows) {
    compose("AB");
    document.NextNumber = 32767;
    append(stockOf('C'));
    EXPECT_EQ(document.Vehicules[2].Number, 32767);
    EXPECT_EQ(document.NextNumber, 2);
}

TEST_F(StripTest, AMissingVehicleIsNotTurned) {
    compose("A");
    const RameItem gone{true, 0, false, "gone", "Parc", ""};
    InsertVehicule(editor, 0, false, false, &gone);
    document.Modified = false;
    flipVehicule(editor, middleOf(1));
    EXPECT_FALSE(document.Vehicules[1].Flipped || document.Modified);
    flipVehicule(editor, middleOf(0));
    EXPECT_TRUE(document.Vehicules[0].Flipped && document.Modified);
    EXPECT_TRUE(isEngine(editor, document.Vehicules[1]));
}

TEST_F(StripTest, TotalsAreCutNotRounded) {
    struct Case {
        const char *size, *mass, *total;
    };
    for (const Case& c :
         {Case{"3m 4m 18.98765m", "80.5t", "long 37.975 heavy 161"}, Case{"3m 4m 18m", "", "long 36"},
          Case{"", "12.25", " heavy 24.5"}, Case{"", "", ""}, Case{"wide", "0", ""}}) {
        begin();
        catalogue.here().Materiels[static_cast<std::size_t>(stockOf('A'))].Size = c.size;
        catalogue.here().Materiels[static_cast<std::size_t>(stockOf('A'))].Mass = c.mass;
        compose("AA");
        EXPECT_EQ(controls.totals, c.total);
    }
}

TEST_F(StripTest, FiguresHaveTheMarkOfTheLanguage) {
    files.put(state.LanguagePath, *files.get(state.LanguagePath) + "831=,\r\n");
    Materiel& materiel = catalogue.here().Materiels[static_cast<std::size_t>(stockOf('A'))];
    materiel.Size = "3m 4m 18.98765m";
    materiel.Mass = "80.5t";
    compose("A");
    changeDurability(editor, 500);
    EXPECT_EQ(controls.totals, "long 18,987 heavy 80,5");
    EXPECT_EQ(totalsText(editor, "."), "long 18.987 heavy 80.5");
    EXPECT_EQ(controls.resistance, "R 14,7");
    const MaterielInfo info = ShowMaterielInfo(frame, materiel);
    EXPECT_EQ(info.length + info.mass, "18,98765 m80,5 t");
    nameConsist("comma");
    save();
    EXPECT_TRUE(savedHas("comma.con", "Durability ( 0.50000 )"));
}

TEST_F(StripTest, AFullStripTakesNoMore) {
    document.Vehicules.assign(MaxEntries, Vehicule());
    for (Vehicule& vehicule : document.Vehicules)
        vehicule.Name = "x";
    controls.shortName = "long";
    EXPECT_FALSE(append(stockOf('A')));
    EXPECT_EQ(vehicleCount(document), MaxEntries);
    EXPECT_EQ(shown(), Shown{"48 limit 32766 in long"});
}

TEST_F(StripTest, TheShortNameHoldsWhatAFileNameCan) {
    EXPECT_EQ(filterShortName("a*b/c:d<e>f?g\\h|i\"j¦k¨l\nm"), "abcdefghijklm");
    EXPECT_EQ(filterShortName("Été à 12° (x)"), "Été à 12° (x)");
    changeFullName(editor, "Express: 12");
    EXPECT_EQ(controls.shortName, "Express 12");
    controls.shortNameEnabled = false;
    changeFullName(editor, "Other");
    EXPECT_EQ(controls.shortName, "Express 12");
}

TEST_F(StripTest, NamesAndDurabilityChangeAConsistOnlyWhenThereIsOne) {
    changeDurability(editor, 500);
    changeFullName(editor, "empty");
    EXPECT_FALSE(document.Modified);
    EXPECT_EQ(controls.resistance, "R 14.7");
    compose("A");
    changeDurability(editor, 1000);
    EXPECT_TRUE(document.Modified);
    EXPECT_EQ(controls.resistance, "R 29.4");
}

TEST_F(StripTest, ANewConsistAsksFirst) {
    compose("A");
    document.Modified = true;
    dialogs.defaultAnswer = answer::Yes;
    EXPECT_FALSE(begin()) << "it has no name to be saved by";
    EXPECT_EQ(shown(), (Shown{"36 save new?", "48 no name"}));
    EXPECT_EQ(order(), "A");
    dialogs.defaultAnswer = answer::No;
    EXPECT_TRUE(begin());
    EXPECT_EQ(order(), "");
    EXPECT_FALSE(document.Modified || controls.deleteEnabled);
    EXPECT_TRUE(controls.shortNameEnabled);
}

} // namespace
} // namespace zandor
