// The steps that the strip is drawn by, rule by rule.
#include "editor/strip_drawing.h"

#include "editor_fixture.h"

namespace zandor {
namespace {

constexpr StripColour Black{0, 0, 0}, Red{255, 0, 0}, Green{0, 255, 0}, Blue{0, 0, 255}, Yellow{255, 255, 0};

// Letters of 6 pixels in lines of 12; a character of several bytes is one letter.
struct FixedLetters final : TextMeasure {
    int width(std::string_view text) const override {
        return 6 * static_cast<int>(std::ranges::count_if(
                       text, [](char c) { return (static_cast<unsigned char>(c) & 0xC0) != 0x80; }));
    }
    int height() const override { return 12; }
};

// Pictures named by their width: "w80" is 80 pixels wide; any other is a type image. "gone" can't be read.
struct NamedPictures final : PictureMeasure {
    std::optional<PictureSize> size(const PictureName& picture) override {
        if (picture.name == "gone")
            return std::nullopt;
        const int width = picture.name.starts_with('w') ? std::stoi(picture.name.substr(1)) : 0;
        return PictureSize{width > 0 ? width : PlainPictureWidth, PlainPictureHeight};
    }
    int markWidth(CouplingMark mark) override { return mark == CouplingMark::NotCompatible ? 20 : 16; }
};

class StripDrawingTest : public EditorTest {
  protected:
    FixedLetters letters;
    NamedPictures pictures;
    int viewWidth = 800;

    // A vehicle at the end of the strip, of a stock entry of its own.
    Vehicule& add(std::string_view name, std::string_view picture = "w121", std::string_view brakes = "",
                  std::string_view coupling = "") {
        const int index = addStock(std::string(name) + ".wag", coupling);
        Materiel& materiel = catalogue.here().Materiels[static_cast<std::size_t>(index)];
        materiel.Picture = picture;
        materiel.BrakeSystem = brakes;
        document.PictureWidth =
            pictures.size({false, std::string(picture)}).value_or(PictureSize{PlainPictureWidth, 0}).width;
        InsertVehicule(editor, index, true, false);
        return document.Vehicules.back();
    }
    Vehicule& addMissing(std::string_view name) {
        const RameItem item{false, 0, false, std::string(name), "Parc", ""};
        document.PictureWidth = PlainPictureWidth;
        InsertVehicule(editor, 0, false, false, &item);
        return document.Vehicules.back();
    }
    std::vector<StripStep> draw(bool onlyLast = false) {
        return DrawStrip(editor, pictures, letters, viewWidth, onlyLast);
    }
    template <class Step> std::vector<Step> drawn(bool onlyLast = false) {
        std::vector<Step> found;
        for (const StripStep& step : draw(onlyLast))
            if (const Step* one = std::get_if<Step>(&step))
                found.push_back(*one);
        return found;
    }
};

TEST_F(StripDrawingTest, EverythingOfAConsistHasItsPlace) {
    state.PrintName = true;
    add("Loco", "w200", "air_piped", "chain").Flipped = true;
    add("Car", "w100", "ECP", "Chain_Bar");
    const PictureName loco{false, "w200"}, car{false, "w100"};
    EXPECT_EQ(draw(),
              (std::vector<StripStep>{
                  SizeStrip{800}, ClearStrip{StripSky}, TakeBackColour{loco},
                  CopyPicture{loco, {0, 0, 200, 96}, true}, DrawLine{180, 8, 185, 12, Green},
                  DrawLine{180, 14, 185, 10, Green}, DrawLine{180, 8, 180, 15, Green},
                  FillBar{{158, 10, 25, 2}, Green}, PrintText{"0", {0, 0, 200, 12}, Red},
                  PrintText{"Loco", {0, StripHeight - 42, 200, 12}, Black},
                  FillBar{{0, StripHeight - 27, 199, 2}, Blue}, FillBar{{0, StripHeight - 23, 199, 5}, Blue},
                  CopyPicture{car, {200, 0, 100, 96}, false}, PrintText{"1", {200, 0, 100, 12}, Red},
                  PrintText{"Car", {200, StripHeight - 42, 100, 12}, Black},
                  FillBar{{200, StripHeight - 5, 99, 2}, Yellow}, PlaceMark{CouplingMark::Chain, 192, 51}}));
    EXPECT_EQ(document.Vehicules[0].DrawnWidth, 200);
    EXPECT_EQ(document.Vehicules[1].DrawnWidth, 100);
}

TEST_F(StripDrawingTest, TheReaderOfAConsistDrawsTheLastVehicleAlone) {
    for (const char* picture : {"w90", "w70", "w50"})
        add(picture, picture);
    draw();
    document.Vehicules.back().DrawnWidth = 0; // it has just come
    const PictureName last{false, "w50"};
    EXPECT_EQ(draw(true), (std::vector<StripStep>{SizeStrip{800}, CopyPicture{last, {160, 0, 50, 96}, false},
                                                  PrintText{"2", {160, 0, 50, 12}, Red}}));
    EXPECT_EQ(document.Vehicules.back().DrawnWidth, 50);
}

TEST_F(StripDrawingTest, AVehicleWithoutAPictureKeepsItsRoom) {
    add("A", "gone", "ep");
    add("B", "w80");
    EXPECT_TRUE(drawn<TakeBackColour>().empty());
    const auto copies = drawn<CopyPicture>();
    ASSERT_EQ(copies.size(), 1u);
    EXPECT_EQ(copies[0].area.left, PlainPictureWidth);
    EXPECT_EQ(drawn<FillBar>().size(), 2u);
}

TEST_F(StripDrawingTest, ThePictureGrowsWithTheStripUpToItsLimit) {
    struct Case {
        int vehicles, viewWidth, width;
    };
    const int before = 133 * PlainPictureWidth + 150;
    for (const Case& c :
         {Case{1, 800, 800}, Case{6, 800, 876}, Case{6, 876, 876}, Case{133, 800, before},
          Case{134, 800, 134 * PlainPictureWidth + 150}, Case{135, 800, 134 * PlainPictureWidth + 150},
          Case{1000, 800, 134 * PlainPictureWidth + 150}, Case{1000, 20000, 20000}}) {
        begin();
        viewWidth = c.viewWidth;
        add("A");
        document.Vehicules.resize(static_cast<std::size_t>(c.vehicles), document.Vehicules[0]);
        document.StripWidth = c.vehicles * PlainPictureWidth;
        EXPECT_EQ(drawn<SizeStrip>(), std::vector{SizeStrip{c.width}}) << c.vehicles;
        EXPECT_LE(drawn<CopyPicture>().back().area.left, c.width) << "nothing is drawn behind the end";
        EXPECT_EQ(document.Vehicules.back().DrawnWidth, PlainPictureWidth);
        document.Modified = false;
    }
}

TEST_F(StripDrawingTest, AMissingVehicleIsToldAndHasNoBrakes) {
    files.put(state.LanguagePath, "[English]\r\n444=not found\r\n");
    state.PrintName = true;
    add("A");
    addMissing("old").Flipped = true;
    const PictureName picture{true, "NO_MATERIEL"};
    const std::vector<StripStep> steps = draw();
    EXPECT_EQ((std::vector<StripStep>(steps.end() - 4, steps.end())),
              (std::vector<StripStep>{CopyPicture{picture, {121, 0, 121, 96}, false},
                                      PrintText{"not found", {121, 18, 121, 12}, Red},
                                      PrintText{"1", {121, 0, 121, 12}, Red},
                                      PrintText{"old.wag", {121, StripHeight - 42, 121, 12}, Black}}));
}

TEST_F(StripDrawingTest, NamesStandWhereTheyCanBeRead) {
    state.PrintName = true;
    Vehicule& plain = add("Loco", "5000");
    plain.ImageIsGeneric = true;
    plain.Number = 7;
    const PrintText number{"7", {0, 0, 121, 12}, Red};
    EXPECT_EQ(drawn<PrintText>(), (std::vector{number, PrintText{"Loco", {0, 42, 121, 12}, Yellow}}));
    plain.ImageIsGeneric = false;
    EXPECT_EQ(drawn<PrintText>(),
              (std::vector{number, PrintText{"Loco", {0, StripHeight - 42, 121, 12}, Black}}));
    state.PrintName = false;
    EXPECT_EQ(drawn<PrintText>(), std::vector{number});
}

TEST_F(StripDrawingTest, NamesAreCutFromTheRight) {
    struct Case {
        const char* name;
        int width;
        const char* result;
    };
    for (const Case& c :
         {Case{"Wagon", 50, "Wagon"}, Case{"Wagon", 49, "Wago"}, Case{"Wagon", 26, "W"},
          Case{"Wagon", 25, ""}, Case{"Wagon", 20, ""}, Case{"Wagon", 0, ""}, Case{"", 50, ""},
          Case{"Été à l'est", 44, "Été "}, Case{"Été à l'est", 26, "É"}, Case{"€€€", 37, "€€"}})
        EXPECT_EQ(fittingName(c.name, letters, c.width), c.result) << c.name << " in " << c.width;
}

TEST_F(StripDrawingTest, BarsTellTheBrakeSystem) {
    struct Case {
        const char* system;
        StripColour colour;
        std::vector<std::pair<int, int>> bars; // from the bottom, thickness
    };
    for (const Case& c :
         {Case{"Air_Single_Pipe", Blue, {{27, 2}}}, Case{"air_twin_pipe", Blue, {{23, 5}}},
          Case{"AIR_PIPED", Blue, {{27, 2}, {23, 5}}}, Case{"ep", Blue, {{27, 2}, {23, 5}}},
          Case{"vacuum_single_pipe", Red, {{16, 2}}}, Case{"vacuum_twin_pipe", Red, {{12, 5}}},
          Case{"vacuum_piped", Red, {{16, 2}, {12, 5}}}, Case{"ecp", Yellow, {{5, 2}}}, Case{"", Red, {}},
          Case{"handbrake", Red, {}}}) {
        begin();
        add("A", "w121", c.system);
        std::vector<FillBar> expected;
        for (const auto& [fromBottom, thickness] : c.bars)
            expected.push_back({{0, StripHeight - fromBottom, 120, thickness}, c.colour});
        EXPECT_EQ(drawn<FillBar>(), expected) << c.system;
        document.Modified = false;
    }
}

TEST_F(StripDrawingTest, MarksTellTheFrontOfTheRightVehicle) {
    struct Case {
        const char *left, *right;
        std::vector<PlaceMark> marks;
    };
    constexpr auto Bad = CouplingMark::NotCompatible;
    for (const Case& c : {Case{"Automatic", "automatic", {{CouplingMark::Auto, 113, 51}}},
                          Case{"bar", "bar_chain", {{CouplingMark::Bar, 113, 51}}},
                          Case{"chain", "Chain", {{CouplingMark::Chain, 113, 51}}},
                          Case{"bar", "hydraulic_bar", {{CouplingMark::Hydro, 113, 51}}},
                          Case{"chain", "", {}}, Case{"", "bar", {{CouplingMark::Bar, 113, 51}}},
                          Case{"magnet", "magnet", {}}, Case{"chain", "bar", {{Bad, 111, 0}}}}) {
        begin();
        add("A", "w121", "", c.left);
        add("B", "w121", "", c.right);
        EXPECT_EQ(drawn<PlaceMark>(), c.marks) << c.left << " " << c.right;
        document.Modified = false;
    }
}

TEST_F(StripDrawingTest, StockOfTheSimulatorIsLookedUpInItsOwnArray) {
    catalogue.current = Root::Store;
    add("A", "w121", "", "chain");
    Vehicule& other = add("B", "w121", "ecp", "chain");
    other.FromSimulator = true;
    other.MaterielIndex = 0;
    EXPECT_TRUE(drawn<FillBar>().empty()) << "the array has no such entry";
    Materiel& materiel = catalogue.simulator.Materiels.emplace_back();
    materiel.BrakeSystem = "vacuum_twin_pipe";
    EXPECT_EQ(drawn<FillBar>(), (std::vector{FillBar{{121, StripHeight - 12, 120, 5}, Red}}));
    EXPECT_EQ(drawn<PlaceMark>(), (std::vector{PlaceMark{CouplingMark::Chain, 113, 51}}));
    materiel.CouplingUnique = "own";
    EXPECT_EQ(drawn<PlaceMark>(), (std::vector{PlaceMark{CouplingMark::NotCompatible, 111, 0}}));
}

TEST_F(StripDrawingTest, EveryOperationAsksForTheDrawing) {
    compose("AB");
    const auto asks = [this](auto operation) {
        const unsigned before = document.stripChanges;
        operation();
        return document.stripChanges != before;
    };
    EXPECT_TRUE(asks([this] { append(stockOf('C')); }));
    EXPECT_TRUE(asks([this] { pressStrip(editor, middleOf(0)); }));
    EXPECT_TRUE(asks([this] { release(ReleaseZone::Strip); }));
    EXPECT_TRUE(asks([this] { flipVehicule(editor, middleOf(0)); }));
    EXPECT_TRUE(asks([this] { RemoveVehicule(editor); }));
    EXPECT_TRUE(asks([this] { numberButtonPressed(editor); }));
    EXPECT_TRUE(asks([this] { ResetEditor(editor); })) << "the strip is empty";
}

} // namespace
} // namespace zandor
