// The commands that list the index of routes.
#include "cli_fixture.h"

namespace zandor {
namespace {

using testing::HasSubstr;
using testing::Not;
using json = nlohmann::json;

class RouteCommands : public CliTest {
  protected:
    RouteCommands() {
        putBytes(routePath("Abandoned/readme.txt"), "Name ( nothing )");
        putBytes(routePath("Fell/fell.trk"), "Name ( \"The \x1b Fell\" )");
        putBytes(routePath("valley/valley.trk"), "Name ( Valley )");
        putBytes(routePath("valley/Services/up.srv"), "Name ( Up )\r\nTrain_Config ( LOCAL )\r\n");
        putBytes(routePath("valley/Services/lost.srv"), "Name ( Lost )\r\nTrain_Config ( gone )\r\n");
        putBytes(routePath("valley/Activities/day.act"),
                 "SIMISA@@@@@@@@@@JINX0a0t______\r\nTr_Activity (\r\nTr_Activity_Header (\r\nName ( Day "
                 ")\r\n)\r\nTrain_Config (\r\nTrainCfg ( x\r\nEngine (\r\nEngineData ( Loco Diesels "
                 ")\r\n)\r\nWagon (\r\nWagonData ( \"No such\" \"Old Coaches\" )\r\n)\r\n)\r\n)\r\n)\r\n");
        putBytes(routePath("valley/Activities/plain.act"), "Name ( Plain )\r\n");
    }
    std::string routePath(const std::string& name) const { return at("msts/ROUTES/" + name); }
    std::size_t listed(Args args) {
        args.emplace_back("--json");
        const Ran ran = runOnTree(args);
        return ran.exitCode == 2 ? 99 : ran.json().size();
    }
};

TEST_F(RouteCommands, PrintTheirRecordsAsJson) {
    EXPECT_EQ(runOnTree({"routes", "--json"}).json(),
              json::parse(R"([{"nom":"The \u001b Fell","dossier":"Fell\\","services":0,"activites":0},
                              {"nom":"Valley","dossier":"valley\\","services":2,"activites":1}])"));
    const Ran services = runOnTree({"services", "--json"});
    EXPECT_EQ(services.exitCode, 1) << "a consist is missing";
    EXPECT_EQ(services.json()[1], json({{"route", "Valley"},
                                        {"nom", "Up"},
                                        {"rame", "LOCAL"},
                                        {"fichier", routePath("valley/Services/up.srv")},
                                        {"ligne", 2},
                                        {"materielManquant", false},
                                        {"rameManquante", false}}));
    EXPECT_EQ(services.json()[0]["rameManquante"], true);
    EXPECT_EQ(runOnTree({"activities", "--json"}).json(),
              json({{{"route", "Valley"},
                     {"nom", "Day"},
                     {"fichier", routePath("valley/Activities/day.act")},
                     {"vehicules",
                      {{{"fichier", "Loco"},
                        {"dossier", "Diesels"},
                        {"texte", "EngineData ( Loco Diesels )"},
                        {"ligne", 9},
                        {"motrice", true},
                        {"manquant", false}},
                       {{"fichier", "No such"},
                        {"dossier", "Old Coaches"},
                        {"texte", "WagonData ( \"No such\" \"Old Coaches\" )"},
                        {"ligne", 12},
                        {"motrice", false},
                        {"manquant", true}}}}}}));
}

TEST_F(RouteCommands, TakeTheRouteAndTheReadingThatAreAskedFor) {
    struct Case {
        Args args;
        std::size_t listed; // 99: refused
    };
    const Case cases[] = {
        {{"services", "--route", "0"}, 0},
        {{"services", "--route", "1"}, 2},
        {{"services", "--route", "VALLEY"}, 2},
        {{"services", "--route", "2"}, 99},
        {{"services", "--route", "-1"}, 99},
        {{"activities", "--optimize", "1"}, 1},
        {{"activities", "--optimize", "0"}, 2}, // one has no signature
        {{"activities", "--optimize", "0", "--missing"}, 1},
        {{"activities", "--missing", "--route", "fell"}, 0},
        {{"activities", "--optimize", "2"}, 99},
    };
    for (const Case& c : cases)
        EXPECT_EQ(listed(c.args), c.listed) << testing::PrintToString(c.args);
}

TEST_F(RouteCommands, PrintTablesForPeople) {
    const Ran routes = runOnTree({"routes"});
    EXPECT_EQ(routes.exitCode, 0) << routes.err;
    EXPECT_EQ(routes.out, "N  Route          Folder   Services  Activities\n"
                          "0  The \\x1b Fell  Fell\\    0         0\n"
                          "1  Valley         valley\\  2         1\n");
    EXPECT_THAT(runOnTree({"services"}).out, HasSubstr("Valley  Lost      gone.con      Missing consist\n"));
    EXPECT_THAT(runOnTree({"activities"}).out,
                HasSubstr("Valley  Day       Old Coaches\\No such.wag  Missing stock\n"));
    EXPECT_EQ(runOnTree({"services", "--route", "0"}).out, "");
}

} // namespace
} // namespace zandor
