// The commands that work on a simulator folder.
#include "cli_fixture.h"

namespace zandor {
namespace {

using testing::HasSubstr;
using json = nlohmann::json;

class TreeCommands : public CliTest {
  protected:
    json readBack(const std::string& name) { return run({"consist", consistPath(name)}).json(); }
};

TEST_F(TreeCommands, CatalogueCountsItsStock) {
    const Ran ran = runOnTree({"catalogue"});
    EXPECT_EQ(ran.exitCode, 0) << ran.err;
    const json counts = ran.json();
    EXPECT_EQ(counts["classes"], json::parse(R"({"0":0,"1":1,"2":0,"3":1,"4":1,"5":0,"other":0})"));
    EXPECT_EQ(counts["engines"], 1);
    EXPECT_EQ(counts["wagons"], 2);
    EXPECT_EQ(counts["consists"], 1);
    EXPECT_EQ(counts["totals"]["stock"], 3);
    EXPECT_FALSE(counts.contains("materiels"));
}

TEST_F(TreeCommands, CatalogueListsItsArraysAlsoWhenTheSettingsLeaveUseAlone) {
    putSettings("PrintGreen=0\r\nOptimize=1\r\n");
    const Ran ran = runOnTree({"catalogue", "--list"});
    EXPECT_EQ(ran.exitCode, 0) << ran.err;
    const json lists = ran.json();
    EXPECT_EQ(lists["materiels"].size(), 3u);
    EXPECT_EQ(lists["materiels"][0]["FileName"], "Loco.eng");
    EXPECT_EQ(lists["consistFiles"], json::array({"local.con"}));
    EXPECT_EQ(lists["stockUsage"].size(), 2u);
    EXPECT_EQ(lists["stockUsage"][0], json::parse(R"({"Folder":"Diesels","FileName":"Loco.eng","Count":1})"));
    EXPECT_EQ(lists["consistIndex"][0]["DisplayName"], "local in full");
    EXPECT_EQ(lists["consistIndex"][0]["Items"][1],
              json::parse(R"({"FileName":"First Class.wag","Folder":"Old Coaches"})"));
}

TEST_F(TreeCommands, RootsComeFromTheOptionsTheSettingsOrTheRegistry) {
    putSim(at("store/TRAINS/TRAINSET/A/a.wag"), wagonText("a"));
    const std::string registered = "SOFTWARE\\Microsoft\\Microsoft Games\\Train Simulator\\1.0";
    struct Case {
        std::string settings;
        bool registered;
        Args options;
        int stock; // 3: the simulator's, 1: the store's, 0: refused
    };
    const std::string both = "InstallDir=" + root() + "\r\nTStoreDir=" + at("store") + "\r\nInitialiseMSTS=";
    const Case cases[] = {
        {"", false, {}, 0},
        {"InitialiseMSTS=1", true, {}, 3},
        {both + "\r\n", false, {}, 1},
        {both, false, {}, 3}, // cut off
        {both + "1", false, {}, 3},
        {both + "0", false, {}, 1},
        {both + "0", false, {"--primary", "msts"}, 3},
        {both + "0", false, {"--root", root()}, 3},
        {"InstallDir=" + at("gone") + "\r\nInitialiseMSTS=1", true, {}, 3},
        {"InstallDir=" + root() + "\r\nTStoreDir=" + at("gone") + "\r\nInitialiseMSTS=0", false, {}, 3},
        {"", false, {"--root", root(), "--tstore", at("store"), "--primary", "tstore"}, 1},
        {"", false, {"--root", root(), "--primary", "tstore"}, 0},
        {"", false, {"--root", at("home")}, 0},
        {"", false, {"--root", at("gone")}, 0},
        {"", false, {"--root", root(), "--tstore", at("gone")}, 0},
    };
    for (const Case& c : cases) {
        putSettings(c.settings);
        registry.put(RegistryHive::LocalMachine, registered, "Path", c.registered ? root() : "");
        Args args{"catalogue"};
        args.insert(args.end(), c.options.begin(), c.options.end());
        const Ran ran = run(args);
        const std::string shown = c.settings + ' ' + testing::PrintToString(args) + ran.err;
        EXPECT_EQ(ran.exitCode, c.stock > 0 ? 0 : 2) << shown;
        if (c.stock > 0) {
            EXPECT_EQ(ran.json()["totals"]["stock"], c.stock) << shown;
        } else {
            EXPECT_EQ(ran.out, "") << shown;
            EXPECT_TRUE(isOneLine(ran.err)) << shown;
        }
    }
}

TEST_F(TreeCommands, ComposeWritesAConsistThatReadsBack) {
    const Ran ran =
        runOnTree({"compose", " My Train ", "--full", "It's (a) train ", "Diesels/LOCO.eng",
                   "diesels\\loco:flip", "Old Coaches/First Class.wag:FLIP", "Old Coaches\\first class"});
    EXPECT_EQ(ran.exitCode, 0) << ran.err;
    EXPECT_EQ(ran.out, consistPath("My Train.con") + "\n");
    EXPECT_TRUE(isOneLine(ran.err)) << ran.err;
    const json consist = readBack("My Train.con");
    EXPECT_EQ(consist["rame"]["Name"], "It's (a) train");
    EXPECT_EQ(consist["rame"]["CfgName"], "My Train");
    ASSERT_EQ(consist["items"].size(), 4u);
    const bool flips[] = {false, true, true, false};
    for (std::size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(consist["items"][i]["UiD"], i);
        EXPECT_EQ(consist["items"][i]["Flip"], flips[i]);
        EXPECT_EQ(consist["items"][i]["Name"], i < 2 ? "Loco" : "First Class");
    }
    EXPECT_TRUE(std::filesystem::is_empty(at("home"))) << "the settings file isn't written";
}

TEST_F(TreeCommands, ComposeAsksForOverwriteAndThenKeepsTheRest) {
    const std::string before = bytesOf(consistPath("local.con"));
    const Ran taken = runOnTree({"compose", "Local", "--full", "x", "Diesels/Loco"});
    EXPECT_EQ(taken.exitCode, 1);
    EXPECT_THAT(taken.err, HasSubstr("Local.con"));
    EXPECT_TRUE(isOneLine(taken.err));
    EXPECT_EQ(bytesOf(consistPath("local.con")), before);

    const Ran ran = runOnTree({"compose", "local", "--overwrite", "Old Coaches/Bar:flip"});
    EXPECT_EQ(ran.exitCode, 0) << ran.err;
    const json consist = readBack("local.con");
    EXPECT_EQ(consist["rame"]["Name"], "local in full");
    ASSERT_EQ(consist["items"].size(), 1u);
    EXPECT_EQ(consist["items"][0]["Name"], "Bar");
    EXPECT_EQ(bytesOf(at("home/Backup/Sauvegarde des fichiers de rames/local.con.old")), before);
}

TEST_F(TreeCommands, ComposeReplacesTheOnlyCopyOnlyWhenToldTo) {
    const std::string before = bytesOf(consistPath("local.con"));
    putBytes(at("home/Backup"), "a file in the folder's place");
    for (const char* settings : {"", "[General]\r\n", "[General]\r\nBakF", "[General]\r\nBakFile="}) {
        putBytes(at("home/Zandor.ini"), settings);
        const Ran refused = runOnTree({"compose", "local", "--overwrite", "Diesels/Loco"});
        EXPECT_EQ(refused.exitCode, 2) << settings;
        EXPECT_EQ(refused.out, "");
        EXPECT_TRUE(isOneLine(refused.err)) << refused.err;
        EXPECT_THAT(refused.err, HasSubstr(at("home/Backup")));
        EXPECT_EQ(bytesOf(consistPath("local.con")), before);
    }
    const Ran ran = runOnTree({"compose", "local", "--overwrite", "--no-backup", "Diesels/Loco"});
    EXPECT_EQ(ran.exitCode, 0) << ran.err;
    EXPECT_NE(bytesOf(consistPath("local.con")), before);
}

TEST_F(TreeCommands, ComposeWritesNothingWhenItCannotDoAllOfIt) {
    struct Case {
        Args args;
        int exitCode;
        std::string told;
    };
    const Case cases[] = {
        {{"new", "Diesels/Loco", "Diesels/Ghost"}, 2, "Diesels/Ghost"},
        {{"new", "Loco.eng"}, 2, "Loco.eng"},
        {{"new", "Diesels/Loco.wag"}, 2, "Diesels/Loco.wag"},
        {{"new", "Diesels/Loco:flop"}, 2, "Diesels/Loco:flop"},
        {{"a/b", "Diesels/Loco"}, 2, "a/b"},
        {{std::string(241, 'x'), "Diesels/Loco"}, 2, "too long"},
        {{"new", "--full", "two\nlines", "Diesels/Loco"}, 2, "line"},
        {{"new", "--full", "", "Diesels/Loco"}, 1, ""},
        {{"", "Diesels/Loco"}, 1, ""},
    };
    for (const Case& c : cases) {
        Args args{"compose"};
        args.insert(args.end(), c.args.begin(), c.args.end());
        const Ran ran = runOnTree(args);
        EXPECT_EQ(ran.exitCode, c.exitCode) << testing::PrintToString(args) << ran.err;
        EXPECT_EQ(ran.out, "");
        EXPECT_TRUE(isOneLine(ran.err)) << ran.err;
        EXPECT_THAT(ran.err, HasSubstr(c.told));
    }
    EXPECT_EQ(listFiles(*files, consistPath(""), ".con").size(), 1u);
}

TEST_F(TreeCommands, ComposeTellsOfCouplingsThatDoNotFit) {
    const Args args{"compose", "pair", "Diesels/Loco", "Old Coaches/Bar"};
    const Ran told = runOnTree(args);
    EXPECT_EQ(told.exitCode, 0);
    EXPECT_THAT(told.err, HasSubstr("Old Coaches/Bar: "));
    std::filesystem::remove(consistPath("pair.con"));

    putSettings("PassIsBadCoupling=1\r\n");
    const Ran refused = runOnTree(args);
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_TRUE(isOneLine(refused.err)) << refused.err;
    EXPECT_FALSE(std::filesystem::exists(consistPath("pair.con")));
}

TEST_F(TreeCommands, ComposeThatCannotBeSavedSaysSo) {
    std::filesystem::remove_all(consistPath(""));
    putBytes(at("msts/Trains/Consists"), "a file where the folder should be");
    const Ran ran = runOnTree({"compose", "new", "Diesels/Loco"});
    EXPECT_EQ(ran.exitCode, 2);
    EXPECT_TRUE(isOneLine(ran.err)) << ran.err;
    EXPECT_THAT(ran.err, HasSubstr("new.con"));
}

TEST_F(TreeCommands, OpenPrintsTheStrip) {
    for (const std::string& given :
         {consistPath("local.con"), std::string("LOCAL.con"), std::string("local")}) {
        const Ran ran = runOnTree({"open", given});
        EXPECT_EQ(ran.exitCode, 0) << ran.err;
        const json strip = ran.json();
        EXPECT_EQ(strip["name"], "local");
        EXPECT_EQ(strip["fullName"], "local in full");
        EXPECT_EQ(strip["file"], consistPath("local.con"));
        ASSERT_EQ(strip["vehicles"].size(), 2u);
        EXPECT_EQ(strip["vehicles"][1], json::parse(R"({"position":1,"number":7,"name":"First shown",
            "folder":"Old Coaches","file":"First Class.wag","flip":true,"missing":false,"width":121})"));
        EXPECT_EQ(strip["totals"]["vehicles"], 2);
        EXPECT_EQ(strip["totals"]["width"], 242);
    }
}

TEST_F(TreeCommands, OpenPrintsNothingButItsResultAndFiguresWithAPoint) {
    putSim(stockPath("Old Coaches/First Class.wag"),
           "Wagon ( W\r\n Type ( Carriage )\r\n Size ( 3m 4m 20.5m )\r\n Mass ( 30t )\r\n"
           " Coupling (\r\n  Type ( Chain )\r\n )\r\n Name ( \"W\" )\r\n)\r\n");
    std::string vehicles;
    for (int i = 0; i < 140; ++i)
        vehicles += "Wagon ( WagonData ( \"First Class\" \"Old Coaches\" )\r\n UiD ( 0 )\r\n )\r\n";
    putSim(consistPath("long.con"), consistText("long", vehicles + "Wagon ( WagonData ( a b )\r\n )\r\n"));
    putSettings("Langage=Deutsch\r\n");
    const Ran ran = run({"open", "long", "--root", root()});
    EXPECT_EQ(ran.exitCode, 1);
    EXPECT_EQ(ran.json()["totals"]["vehicles"], 141) << ran.out.substr(0, 100);
    EXPECT_THAT(ran.json()["totals"]["text"].get<std::string>(), HasSubstr("2870 m"));
    putSim(consistPath("one.con"),
           consistText("one", "Wagon ( WagonData ( \"First Class\" \"Old Coaches\" )\r\n )\r\n"));
    EXPECT_THAT(run({"open", "one", "--root", root()}).json()["totals"]["text"].get<std::string>(),
                HasSubstr("20.5 m"));
}

TEST_F(TreeCommands, OpenShowsMissingStockAndFails) {
    std::filesystem::remove(stockPath("Diesels/Loco.eng"));
    const Ran ran = runOnTree({"open", "local.con"});
    EXPECT_EQ(ran.exitCode, 1);
    const json vehicle = ran.json()["vehicles"][0];
    EXPECT_EQ(vehicle["missing"], true);
    EXPECT_EQ(vehicle["file"], "Loco.eng");
    EXPECT_EQ(vehicle["folder"], "Diesels");
    EXPECT_EQ(ran.json()["totals"]["missing"], 1);
}

} // namespace
} // namespace zandor
