#include "editor/consist_summaries.h"

#include "editor_fixture.h"

#include <algorithm>

namespace zandor {
namespace {

class SummariesTest : public EditorTest {
  protected:
    SummariesTest() {
        files.put(state.LanguagePath, texts("English", "") + texts("Deutsch", "D-"));
        putStock(Simulator, "loco.eng");
        putStock(Simulator, "car.wag");
        putStock(Store, "stored.wag");
    }
    static std::string texts(const std::string& language, const std::string& mark) {
        return "[" + language + "]\r\n214=reading\r\n294=|1 " + mark + "engine\r\n295=|1 " + mark +
               "engines\r\n296=|1 " + mark + "wagon\r\n297=|1 " + mark + "wagons\r\n435=+\r\n";
    }
    void putStock(std::string_view root, std::string_view file) {
        files.put(trainsetPath(root) + "Parc\\" + std::string(file), "stock");
    }
    // "E" and "W" stand for engines and wagons that exist.
    void putTrain(const std::string& file, const std::vector<std::string>& vehicles) {
        std::string body = "Train (\r\nTrainCfg ( " + file + "\r\nName ( \"Name of " + file + "\" )\r\n";
        for (const std::string& vehicle : vehicles) {
            const bool engine = vehicle == "E" || vehicle.ends_with(".eng");
            std::string name = vehicle == "E" ? "loco" : vehicle == "W" ? "car" : vehicle;
            name = name.substr(0, name.find('.'));
            const std::string kind = engine ? "Engine" : "Wagon";
            body += kind + " (\r\n" + kind + "Data ( " + name + " Parc )\r\n)\r\n";
        }
        putConsist(file + ".con", body + ")\r\n)\r\n");
        list(file + ".con");
    }
    void list(const std::string& file) { catalogue.here().ConsistFiles.push_back(file); }
    ConsistSummary only() {
        BuildConsistSummaries(frame, catalogue, progress);
        return catalogue.here().ConsistSummaries.at(0);
    }
    std::vector<std::string> listed() const {
        std::vector<std::string> names;
        for (const int row : FillConsistList(catalogue))
            names.push_back(catalogue.here().ConsistSummaries[static_cast<std::size_t>(row)].FileName);
        return names;
    }
};

TEST_F(SummariesTest, TheCompositionCountsEnginesAndWagons) {
    struct Case {
        std::vector<std::string> vehicles;
        const char* text;
    };
    const Case cases[] = {
        {{}, ""},
        {{"E"}, "1 engine"},
        {{"E", "E"}, "2 engines"},
        {{"W"}, "1 wagon"},
        {{"W", "W", "W"}, "3 wagons"},
        {{"E", "W"}, "1 engine+1 wagon"},
        {{"E", "W", "E", "gone.wag"}, "2 engines+2 wagons"},
    };
    for (const Case& c : cases) {
        catalogue.here().ConsistFiles.clear();
        putTrain("train", c.vehicles);
        EXPECT_EQ(only().Composition, c.text);
    }
}

TEST_F(SummariesTest, StockOfEitherRootIsThereWhicheverIsInUse) {
    struct Case {
        std::vector<std::string> vehicles;
        bool withStore, complete;
    };
    const Case cases[] = {
        {{"E", "W"}, true, true},
        {{"E", "stored.wag"}, true, true},
        {{"E", "stored.wag"}, false, false},
        {{"gone.wag", "E"}, true, false},
        {{"car.eng"}, true, false},
        {{}, true, true},
    };
    for (const Case& c : cases)
        for (const Root first : {Root::Simulator, Root::Store}) {
            if (first == Root::Store && !c.withStore)
                continue;
            state.roots = {Simulator, c.withStore ? Store : "", first};
            catalogue.here().ConsistFiles.clear();
            putTrain("train", c.vehicles);
            files.put(consistsPath(Store) + "train.con", files.get(consistPath("train.con")).value());
            const ConsistSummary summary = only();
            EXPECT_EQ(summary.Complete, c.complete) << static_cast<int>(first) << " " << c.vehicles.size();
            EXPECT_EQ(summary.FullName, "Name of train");
        }
}

TEST_F(SummariesTest, EachFolderOfStockIsListedOnceInEitherRoot) {
    for (int i = 0; i < 20; ++i)
        putTrain("train" + std::to_string(i), {"E", "E", "gone.wag", "W"});
    files.log.clear();
    BuildConsistSummaries(frame, catalogue, progress);
    EXPECT_EQ(std::ranges::count_if(
                  files.log,
                  [](const std::string& line) { return line.find("\\TRAINSET\\") != std::string::npos; }),
              2);
}

TEST_F(SummariesTest, CompleteConsistsStandFirst) {
    putTrain("b", {"gone.wag"});
    putTrain("c", {"E"});
    putTrain("a", {"gone.eng"});
    putTrain("d", {});
    BuildConsistSummaries(frame, catalogue, progress);
    EXPECT_EQ(listed(), (Shown{"c.con", "d.con", "b.con", "a.con"}));
}

TEST_F(SummariesTest, AConsistThatAServiceNamesIsMarked) {
    catalogue.here().RamesEnService = {"Express Du Nord.con", ".con"};
    putTrain("EXPRESS du nord", {"E"});
    putTrain("other", {"E"});
    BuildConsistSummaries(frame, catalogue, progress);
    EXPECT_EQ(catalogue.here().ConsistSummaries[0].RouteMark, "ROUTE_YES");
    EXPECT_EQ(catalogue.here().ConsistSummaries[1].RouteMark, "ROUTE_NO");
}

TEST_F(SummariesTest, AFileThatCannotBeReadIsListedLikeAnEmptyConsist) {
    list("gone.con");
    files.put(consistPath("bad.con"), "no consist at all");
    list("bad.con");
    BuildConsistSummaries(frame, catalogue, progress);
    EXPECT_EQ(listed(), (Shown{"gone.con", "bad.con"}));
    for (const ConsistSummary& summary : catalogue.here().ConsistSummaries) {
        EXPECT_EQ(summary.FullName + summary.Composition, "");
        EXPECT_TRUE(summary.Complete);
    }
    EXPECT_EQ(shown(), Shown{});
}

// ---- the table

TEST_F(SummariesTest, TheConsistsAreReadOnceForEachLoad) {
    putTrain("train", {"E"});
    EXPECT_TRUE(prepareSummaries(frame, catalogue, progress));
    files.log.clear();
    EXPECT_TRUE(prepareSummaries(frame, catalogue, progress));
    EXPECT_TRUE(
        std::ranges::none_of(files.log, [](const std::string& line) { return line.ends_with(".con"); }));
    LoadCatalogue(frame, catalogue);
    EXPECT_EQ(listed(), Shown{});
    EXPECT_TRUE(prepareSummaries(frame, catalogue, progress));
    EXPECT_EQ(listed(), Shown{"train.con"});
}

TEST_F(SummariesTest, WhileALoadRunsTheLastTableServes) {
    putTrain("train", {"E"});
    state.Busy = true;
    EXPECT_TRUE(prepareSummaries(frame, catalogue, progress));
    EXPECT_EQ(listed(), Shown{});
    state.Busy = false;
    EXPECT_TRUE(prepareSummaries(frame, catalogue, progress));
    EXPECT_EQ(listed(), Shown{"train.con"});
}

TEST_F(SummariesTest, TheTableSpeaksTheLanguageOfNow) {
    putTrain("train", {"E", "W", "W"});
    prepareSummaries(frame, catalogue, progress);
    state.Language = "Deutsch";
    prepareSummaries(frame, catalogue, progress);
    EXPECT_EQ(catalogue.here().ConsistSummaries[0].Composition, "1 D-engine+2 D-wagons");
}

TEST_F(SummariesTest, ASaveBringsItsRowUpToDate) {
    putTrain("Train", {"E", "gone.wag"});
    prepareSummaries(frame, catalogue, progress);
    catalogue.here().RamesEnService = {"Train.con"};
    ASSERT_TRUE(openConsist(editor, consistPath("train.con")).done);
    RemoveVehicule(editor);
    changeFullName(editor, "New name");
    save();
    ASSERT_EQ(listed(), Shown{"Train.con"});
    const ConsistSummary& row = catalogue.here().ConsistSummaries[0];
    EXPECT_EQ(row.FullName + "|" + row.Composition + "|" + row.RouteMark, "New name|1 wagon|ROUTE_YES");
    EXPECT_FALSE(row.Complete);

    initialiseDocument(editor);
    compose("cd");
    nameConsist("Second");
    save();
    EXPECT_EQ(listed(), (Shown{"Second.con", "Train.con"}));
    EXPECT_EQ(catalogue.here().ConsistSummaries[1].Composition, "2 wagons");
}

} // namespace
} // namespace zandor
