#include "catalogue/routes.h"
#include "catalogue_fixture.h"
#include "simfiles/route_files.h"
#include "text/decode.h"

namespace zandor {
namespace {

struct RoutesTest : CatalogueTest {
    void put(std::string_view path, std::string_view bytes, std::string_view root = MstsRoot) {
        files.put(routesPath(root) + std::string(path), bytes);
    }
    // A route folder whose track file names it.
    void putRoute(const std::string& folder, std::string_view root = MstsRoot) {
        put(folder + "\\" + folder + ".trk", "Name ( \"" + folder + "\" )", root);
    }
    static std::string activityText(std::string_view body) {
        return std::string(signatureOf(FileKind::Activity)) + "\r\n" + std::string(body);
    }
    // An activity as the simulator writes it. Each vehicle is a line such as "EngineData ( loco Parc )".
    static std::string activityNamed(const std::string& name, const Names& vehicles) {
        std::string body = "Tr_Activity (\r\nTr_Activity_Header (\r\nName ( \"" + name +
                           "\" )\r\n)\r\nTr_Activity_File (\r\nActivityObjects (\r\nActivityObject (\r\n"
                           "Train_Config (\r\nTrainCfg ( \"\"\r\n";
        for (const std::string& vehicle : vehicles)
            body += (vehicle.starts_with("Engine") ? "Engine (\r\n" : "Wagon (\r\n") + vehicle + "\r\n)\r\n";
        return activityText(body + ")\r\n)\r\n)\r\n)\r\n)\r\n)\r\n");
    }
    bool readIndex() { return ReadRoutes(frame, catalogue) && ReadServicesActivites(frame, catalogue); }
    const std::vector<RouteMSTS>& routes() const { return catalogue.here().Routes; }
    // "name|consist|line" of every service of the first route.
    Names services() const {
        Names rows;
        for (const ServiceRoute& service : routes()[0].Services)
            rows.push_back(service.Nom + "|" + service.Rame + "|" + std::to_string(service.Ligne));
        return rows;
    }
    // Of every activity of the first route its name and "E" or "W", "file|folder|line", "!" when missing.
    Names activities() const {
        Names rows;
        for (const ActiviteRoute& activity : routes()[0].Activites) {
            rows.push_back(activity.Nom);
            for (const ActiviteMateriel& vehicle : activity.Vehicules)
                rows.push_back((vehicle.Motrice ? "E " : "W ") + vehicle.Fichier + "|" + vehicle.Dossier +
                               "|" + std::to_string(vehicle.Ligne) + (vehicle.Manquant ? "!" : ""));
        }
        return rows;
    }
    // The index of one route with this activity and one before it.
    Names activitiesOf(std::string_view bytes, bool full) {
        putRoute("Valley");
        put("Valley\\Activities\\a.act", activityNamed("first", {}));
        put("Valley\\Activities\\b.act", bytes);
        state.Optimize = full;
        EXPECT_TRUE(readIndex());
        return activities();
    }
};

TEST_F(RoutesTest, StockValuesAreTakenApartAtQuotesAndBlanks) {
    struct Case {
        const char *value, *file, *folder;
    };
    for (const Case& c : {
             Case{"loco Parc", "loco", "Parc"},
             Case{"loco  \"My Parc\" ", "loco", "My Parc"},
             Case{"\"My loco\" \"My Parc\"", "My loco", "My Parc"},
             Case{"\"My loco\"\"My Parc\"", "My loco", "My Parc\""}, // the character behind goes
             Case{"\"My loco\"ÉParc", "My loco", "Parc"},
             Case{"\"My loco\"", "My loco", ""},
             Case{"loco", "", "loco"},
             Case{"\"loco", "", "\"loco"},
             Case{"\"loco Parc", "loco", "Parc"},
             Case{"\"\" Parc", "\"", "Parc"},
             Case{"\"", "", ""},
             Case{"", "", ""},
         }) {
        std::string file, folder;
        SplitStockValue(c.value, file, folder);
        EXPECT_EQ(file, c.file) << c.value;
        EXPECT_EQ(folder, c.folder) << c.value;
    }
}

TEST_F(RoutesTest, ARouteHasTheNameOfItsFirstTrackFile) {
    struct Case {
        const char *folder, *file, *text, *name;
    };
    const Case cases[] = {
        {"a", "z.TRK", "RouteID ( r )\r\nNAME\t( \t\"The Valley\"\t)\r\nName ( \"Second\" )\r\n",
         "The Valley"},
        {"B", "b.trk", "Name ()\r\nName (\r\nName\r\n( Name ( Fell (light) )\r\n", "Name ( Fell (light"},
        {"c", "c.trk", "FileName ( no_such_line_before )\r\nName ( C )", "no_such_line_before"},
        {"D", "d.trk", "Name ( )\r\nName ( D )", ""},
        {"e", "e.trk", "", ""},
    };
    for (const Case& c : cases)
        put(std::string(c.folder) + "\\" + c.file, c.text);
    put("a\\zz.trk", "Name ( later )");
    put("Abandoned\\readme.txt", "Name ( none )");
    put("file.trk", "Name ( no folder )");
    ASSERT_TRUE(readIndex());
    Names rows;
    for (const RouteMSTS& route : routes())
        rows.push_back(route.Dossier + route.Nom);
    EXPECT_EQ(rows,
              (Names{"a\\The Valley", "", "B\\Name ( Fell (light", "c\\no_such_line_before", "D\\", "e\\"}));
    EXPECT_EQ(progressShown()[1], "0-5:1 route ");
}

TEST_F(RoutesTest, ServicesAreReadUntilBothValuesAreKnown) {
    struct Case {
        const char *text, *row;
    };
    const Case cases[] = {
        {"x\r\nName ( \"Up\" )\nTrain_Config ( \"Train One\" )\r\nName ( \"Later\" )", "Up|Train One|3"},
        {"Name(a)\rName ( Up (fast) )\rTRAIN_CONFIG ( t )\r", "Up (fast)|t|3"},
        {"Name ( x ( y ( z ) w ) )\r\nTrain_Config ( t )", "x ( y ( z ) w|t|2"},
        {"\tTrain_Config\t(\tt\t)\r\nName\r\nName ( a\r\nName ()\r\n", "|t|4"},
        {"Name ( Up ) Train_Config ( t )", "Up ) Train_Config ( t|Up ) Train_Config ( t|1"},
    };
    putRoute("Valley");
    Names expected;
    for (const Case& c : cases) {
        put("Valley\\SERVICES\\" + std::to_string(expected.size()) + ".srv",
            expected.size() % 2 ? c.text : encodeText(c.text, TextEncoding::Utf16));
        expected.emplace_back(c.row);
    }
    put("Valley\\Services\\none.srv", "Service_Definition ( Serial ( 1 ) )");
    ASSERT_TRUE(readIndex());
    EXPECT_EQ(services(), expected);
    EXPECT_EQ(routes()[0].Services[1].Fichier, "C:\\MSTS\\ROUTES\\Valley\\SERVICES\\1.srv");
}

TEST_F(RoutesTest, AServiceWithoutAConsistGivesItsPlaceToTheNext) {
    putRoute("Valley");
    put("Valley\\Services\\a.srv", "Name ( a )");
    put("Valley\\Services\\b.srv", encodeWindows1252("Name ( b )\r\nTrain_Config ( THE\té_train 2 )"));
    put("Valley\\Services\\c.srv", encodeText("Train_Config ( the É_TRAIN 2 )", TextEncoding::Utf16));
    put("Valley\\Services\\d.srv", "Name ( d )");
    ASSERT_TRUE(readIndex());
    EXPECT_EQ(services(), (Names{"b|THE é_train 2|2", "|the É_TRAIN 2|1", "d||1"}));
    EXPECT_EQ(catalogue.here().RamesEnService, (Names{".con", "The É_train 2.con"}));
}

TEST_F(RoutesTest, BothReadingsOfAnOrdinaryActivityGiveTheSame) {
    putStock("Parc\\loco.eng");
    putStock("My Parc\\My wagon.wag");
    const std::string text = activityNamed(
        "Night train", {"EngineData\t( loco  Parc )", "\tWagonData   ( \"My wagon\" \"My Parc\" )",
                        "WagonData ( loco Parc )", "EngineData ( Parc )", "EngineData ( )"});
    const Names expected = {"first",           "Night train", "E loco|Parc|12", "W My wagon|My Parc|15",
                            "W loco|Parc|18!", "E |Parc|21!", "E ||24!"};
    for (const bool full : {true, false}) {
        EXPECT_EQ(activitiesOf(text, full), expected) << full;
        EXPECT_EQ(activitiesOf(encodeText(text, TextEncoding::Utf16), full), expected) << full;
        EXPECT_EQ(routes()[0].Activites[1].Vehicules[2].Texte, "WagonData ( loco Parc )");
        EXPECT_EQ(routes()[0].Activites[1].Fichier, "C:\\MSTS\\ROUTES\\Valley\\ACTIVITIES\\b.act");
    }
}

TEST_F(RoutesTest, OddActivitiesAreReadAsEachReadingReads) {
    struct Case {
        std::string text;
        Names full, byLines;
    };
    const std::string late =
        "Tr_Activity (\r\nTrain_Config (\r\nTrainCfg ( x\r\nWagon (\r\nWagonData ( a b )\r\n)"
        "\r\n)\r\n)\r\nTr_Activity_Header (\r\nName ( Late )\r\n)\r\n)\r\n";
    const std::string twice = "Tr_Activity (\r\nTr_Activity_Header (\r\nFileName ( One )\r\nName ( \"\" )\r\n"
                              "Name ( Two )\r\n)\r\n)\r\n";
    for (const Case& c : {
             Case{activityText(late), {"first", "W a|b|6!", "Late"}, {"first", "W a|b|6!", "Late"}},
             Case{activityText(twice), {"first", "", "Two"}, {"first", "One"}},
             Case{"WagonData ( a b )", {"first"}, {"first", "W a|b|1!"}},
             Case{
                 activityText("x ( EngineData ( a b ) WagonData ( c d ) )"),
                 {"first"},
                 {"first", "E EngineData|a b ) WagonData ( c d|2!", "W EngineData|a b ) WagonData ( c d|2!"}},
             Case{activityText(std::string(40000, '\n') + "Name ( N )\nEngineData ( a b"),
                  {"first"},
                  {"first", "N"}},
             Case{activityText(std::string(40000, '\n') + "Name ( N )\nEngineData ( a b )"),
                  {"first"},
                  {"first", "N", "E a|b|40003!"}},
             Case{"", {"first"}, {"first"}},
         }) {
        EXPECT_EQ(activitiesOf(c.text, true), c.full) << c.text.substr(0, 99);
        EXPECT_EQ(activitiesOf(c.text, false), c.byLines) << c.text.substr(0, 99);
    }
}

TEST_F(RoutesTest, VehiclesBeforeTheFirstNameOfARouteWaitInABlankRecord) {
    putRoute("Valley");
    state.Optimize = false;
    put("Valley\\Activities\\a.act", "WagonData ( a b )");
    ASSERT_TRUE(readIndex());
    EXPECT_EQ(activities(), (Names{"", "W a|b|1!"}));
    EXPECT_EQ(routes()[0].Activites[0].Fichier, "");
    put("Valley\\Activities\\b.act", "Name ( B )\r\n");
    ASSERT_TRUE(readIndex());
    EXPECT_EQ(activities(), (Names{"B"}));
}

TEST_F(RoutesTest, StockOfTheOtherRootCountsInTheTrainStoreAlone) {
    putStock("Parc\\sim.eng");
    putStock("Parc\\store.eng", {}, StoreRoot);
    const std::string text = activityNamed("A", {"EngineData ( sim Parc )", "EngineData ( STORE Parc )"});
    for (const char* root : {MstsRoot, StoreRoot}) {
        putRoute("Valley", root);
        put("Valley\\Activities\\a.act", text, root);
    }
    ASSERT_TRUE(readIndex());
    EXPECT_EQ(activities(), (Names{"A", "E sim|Parc|12", "E STORE|Parc|15!"}));
    state.roots.first = catalogue.current = Root::Store;
    ASSERT_TRUE(readIndex());
    EXPECT_EQ(activities(), (Names{"A", "E sim|Parc|12", "E STORE|Parc|15"}));
}

TEST_F(RoutesTest, EachFolderOfStockIsListedOnceAndPathsLeadWhereTheyLead) {
    for (const char* name :
         {"Parc\\B.ENG", "Parc\\a.wag", "Parc\\c.eng", "Parc\\deep\\d.eng", "Parc\\e.eng\\f.eng"})
        putStock(name);
    putStock("Parc\\b2.eng", {}, StoreRoot);
    state.roots.first = Root::Store;
    StockPresence stock(files, rootsInReach(state.roots));
    files.log.clear();
    std::string found;
    for (int round = 0; round < 100; ++round)
        for (const char* name : {"b.eng", "A.wag", "B2.eng", "c.eng", "b.wag", "d.eng", "e.eng"})
            found += stock.has("Parc", name) ? 'y' : 'n';
    EXPECT_EQ(found.substr(693), "yyyynnn");
    EXPECT_EQ(files.log.size(), 2u) << "a listing in each root";
    EXPECT_TRUE(stock.has("Parc\\deep", "d.eng"));
    EXPECT_TRUE(stock.has("parc", "deep\\..\\c.eng"));
    EXPECT_FALSE(stock.has("", ".eng"));
    EXPECT_FALSE(stock.has("Nowhere", "a.wag"));
}

TEST_F(RoutesTest, FilesThatCannotBeReadGiveNoRecordAndNoEnd) {
    putRoute("Valley");
    putRoute("Fell");
    put("Valley\\Services\\a.srv", "Name ( a )\r\nTrain_Config ( t )");
    put("Valley\\Activities\\a.act", activityNamed("A", {}));
    for (const bool full : {true, false}) {
        state.Optimize = full;
        ASSERT_TRUE(readIndex());
        const std::vector<RouteMSTS> whole = routes();
        files.failAt(0);
        ASSERT_TRUE(readIndex());
        int lacking = 0;
        for (int call = 1, calls = files.calls(); call <= calls; ++call) {
            files.failAt(call);
            EXPECT_TRUE(readIndex());
            lacking += routes() != whole ? 1 : 0;
        }
        EXPECT_EQ(lacking, 9); // the list of routes; of each its list and track; two more lists and files
        files.failAt(0);
        ASSERT_TRUE(readIndex());
        EXPECT_TRUE(routes() == whole);
    }
    put("Valley\\Services\\huge.srv", std::string(LargestSimFile + 1, ' '));
    ASSERT_TRUE(readIndex());
    EXPECT_EQ(catalogue.passedOver, Names{"C:\\MSTS\\ROUTES\\Valley\\SERVICES\\huge.srv"});
}

TEST_F(RoutesTest, TheScanEndsAtOnceWhenTheUserWantsIt) {
    putRoute("A");
    putRoute("B");
    put("B\\Services\\a.srv", "Train_Config ( t )");
    ASSERT_TRUE(readIndex());
    const int all = progress.yields;
    for (int at = 1; at <= all; ++at) {
        progress.yields = 0;
        progress.cancelAtYield = at;
        EXPECT_FALSE(readIndex());
        EXPECT_EQ(progress.yields, at);
    }
}

TEST_F(RoutesTest, TellsTheFirstRouteThatRunsAConsistAndMarksThoseOfBothRoots) {
    for (const char* name : {"A", "B"})
        putRoute(name);
    putRoute("A", StoreRoot);
    put("A\\Services\\a.srv", "Name ( no consist )");
    put("B\\Services\\a.srv", encodeWindows1252("Train_Config ( Été )"));
    put("A\\Services\\a.srv", "Train_Config ( other )", StoreRoot);
    for (const char* root : {MstsRoot, StoreRoot})
        for (const char* file : {"été.con", "Other.CON"})
            putConsist(file, file, {}, root);
    ASSERT_TRUE(readIndex());
    ASSERT_NE(findRouteUsing(catalogue.here(), "ÉTÉ.Con"), nullptr);
    EXPECT_EQ(findRouteUsing(catalogue.here(), "ÉTÉ.Con")->Nom, "B");
    EXPECT_EQ(findRouteUsing(catalogue.here(), "other.con"), nullptr);
    EXPECT_EQ(findRouteUsing(catalogue.here(), "été"), nullptr);

    ASSERT_TRUE(ScanConsists(frame, catalogue));
    state.roots.first = catalogue.current = Root::Store;
    ASSERT_TRUE(readIndex());
    const auto used = [this] {
        std::string marks;
        for (const ConsistEntry& entry : catalogue.ConsistIndex)
            marks += entry.Used ? 'y' : 'n';
        return marks;
    };
    EXPECT_EQ(used(), "nnnn");
    markUsedConsists(catalogue, state.roots);
    EXPECT_EQ(used(), "nyyn"); // été.con, Other.CON of each root, in the order of the listing
    MarkRameUsed(catalogue, "OTHER", MstsRoot);
    EXPECT_EQ(used(), "yyyn");
}

} // namespace
} // namespace zandor
