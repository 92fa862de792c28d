// The commands that look at single files.
#include "cli_fixture.h"

namespace zandor {
namespace {

using testing::HasSubstr;
using json = nlohmann::json;

class ReadCommands : public CliTest {};

TEST_F(ReadCommands, KeysPrintsEachKeyInOrderWithItsLine) {
    const Ran ran = run({"keys", stockPath("Old Coaches/First Class.wag")});
    EXPECT_EQ(ran.exitCode, 0) << ran.err;
    const json keys = ran.json();
    ASSERT_EQ(keys.size(), 7u) << ran.out;
    EXPECT_EQ(keys[0],
              json::parse(R"({"path":"Wagon","key":"","value":"First","tail":"Wagon ( First","line":3})"));
    EXPECT_EQ(keys[5]["path"], "Wagon\\Coupling");
    EXPECT_EQ(keys[6]["value"], "\"First shown\"");
    EXPECT_EQ(keys[6]["line"], 10);
}

TEST_F(ReadCommands, KeysOfAFileWithoutKeysIsAnEmptyArray) {
    putSim(at("bare.wag"), "");
    const Ran ran = run({"keys", at("bare.wag")});
    EXPECT_EQ(ran.exitCode, 0);
    EXPECT_EQ(ran.json(), json::array());
}

TEST_F(ReadCommands, KeysFindsWhatIsAskedFor) {
    const std::string coupling = " Coupling (\r\n  Type ( Chain )\r\n )\r\n";
    putSim(at("two.wag"), "Wagon ( Two\r\n Mass ( 30t # full )\r\n" + coupling + coupling + ")\r\n");
    struct Case {
        Args args;
        bool result;
        std::vector<int> firstLines;
    };
    const Case cases[] = {
        {{"--section", "wagon", "--key", "MASS"}, true, {4}},
        {{"--section", "Wagon"}, true, {3}},
        {{"--section", "Wagon\\Coupling", "--key", "Type"}, true, {6}},
        {{"--section", "Wagon\\Coupling", "--key", "Type", "--count", "0"}, true, {6, 9}},
        {{"--section", "Wagon", "--key", "Size"}, false, {}},
        {{"--stock"}, false, {3, 4, 6, 9}},
    };
    for (const Case& c : cases) {
        Args args{"keys", at("two.wag")};
        args.insert(args.end(), c.args.begin(), c.args.end());
        const Ran ran = run(args);
        ASSERT_EQ(ran.exitCode, 0) << ran.err;
        const json found = ran.json();
        std::vector<int> firstLines;
        for (const json& hit : found["hits"])
            firstLines.push_back(hit["firstLine"]);
        EXPECT_EQ(firstLines, c.firstLines) << ran.out;
        if (c.args.front() != "--stock") {
            EXPECT_EQ(found["result"], c.result) << ran.out;
        }
    }
    EXPECT_EQ(run({"keys", at("two.wag"), "--section", "Wagon", "--key", "Mass"}).json()["hits"][0],
              json::parse(R"json({"path":"Wagon","key":"Mass","value":"30t","tail":"Mass ( 30t # full )",
                                  "firstLine":4,"lastLine":0})json"));
}

TEST_F(ReadCommands, KeysCutsTailsUnlessToldNotTo) {
    std::string line = "Wagon ( Long ";
    for (int i = 0; i < 300; ++i)
        line += "a ( é )  ";
    putSim(at("long.wag"), line + ")\r\n");
    for (const Args& sought : {Args{}, Args{"--section", "Wagon"}}) {
        Args args{"keys", at("long.wag")};
        args.insert(args.end(), sought.begin(), sought.end());
        const auto tail = [&] {
            const json found = run(args).json();
            return (sought.empty() ? found : found["hits"])[0]["tail"].get<std::string>();
        };
        EXPECT_EQ(tail(), std::string(firstCharacters(line, 1000)));
        args.push_back("--whole-tails");
        EXPECT_TRUE(tail().starts_with(line));
    }
}

TEST_F(ReadCommands, NoControlCharacterReachesTheTerminal) {
    putSim(at("odd.wag"), "Wagon ( Odd\r\n Name ( \"a\x1B[1m\x7F\xC2\x9B-é\" )\r\n)\r\n");
    const Ran ran = run({"keys", at("odd.wag")});
    EXPECT_EQ(ran.json()[1]["value"], "\"a\x1B[1m\x7F\xC2\x9B-é\"");
    EXPECT_THAT(ran.out, HasSubstr("a\\u001b[1m\\u007f\\u009b-é"));
}

TEST_F(ReadCommands, HalfASurrogatePairStaysValidJson) {
    putSim(at("odd.wag"), "Wagon ( Odd\r\n Name ( \"a\xED\xA0\xBD-b\" )\r\n)\r\n");
    const Ran ran = run({"keys", at("odd.wag")});
    EXPECT_EQ(ran.exitCode, 0);
    EXPECT_THAT(ran.json()[1]["value"].get<std::string>(), HasSubstr("-b"));
    EXPECT_EQ(ran.out.find('\xED'), std::string::npos);
}

TEST_F(ReadCommands, ABrokenConsistShowsWhatWasReadAndTheFault) {
    putSim(consistPath("broken.con"),
           consistText(
               "broken",
               "Engine (\r\n EngineData ( Loco Diesels )\r\n )\r\nEngine (\r\n EngineData ( x y\r\n )\r\n"));
    const Ran keys = run({"keys", consistPath("broken.con"), "--language", "English"});
    EXPECT_EQ(keys.exitCode, 1);
    EXPECT_GT(keys.json().size(), 4u);
    EXPECT_TRUE(isOneLine(keys.err)) << keys.err;
    EXPECT_THAT(keys.err, HasSubstr("EngineData ( x y"));

    const Ran consist = run({"consist", consistPath("broken.con")});
    EXPECT_EQ(consist.exitCode, 1);
    EXPECT_EQ(consist.json()["items"].size(), 1u) << consist.out;
    EXPECT_TRUE(isOneLine(consist.err)) << consist.err;
}

TEST_F(ReadCommands, ConsistPrintsTheRecordAndItsVehicles) {
    const Ran ran = run({"consist", consistPath("local.con")});
    EXPECT_EQ(ran.exitCode, 0) << ran.err;
    EXPECT_EQ(ran.json(), json::parse(R"({
        "rame": {"Serial":0,"NextWagonUID":0,"CfgName":"local","Name":"local in full","FileName":"local.con",
                 "DefaultKey":"","MaxVelocity":"40.00000 1.00000","Durability":"1.00000"},
        "items": [{"IsEngine":true,"UiD":0,"Flip":false,"Name":"Loco","Folder":"Diesels","EngineVariables":""},
                  {"IsEngine":false,"UiD":7,"Flip":true,"Name":"First Class","Folder":"Old Coaches",
                   "EngineVariables":""}]})"));
}

TEST_F(ReadCommands, StockPrintsTheFieldsOfEachFile) {
    const std::string file = stockPath("Old Coaches/First Class.wag");
    for (const Args& mode : {Args{}, Args{"--quick"}}) {
        Args args{"stock", file, stockPath("Diesels/Loco.eng")};
        args.insert(args.end(), mode.begin(), mode.end());
        const Ran ran = run(args);
        EXPECT_EQ(ran.exitCode, 0) << ran.err;
        const json stock = ran.json();
        ASSERT_EQ(stock.size(), 2u);
        EXPECT_EQ(stock[0]["file"], file);
        EXPECT_EQ(stock[0]["FileName"], "First Class.wag");
        EXPECT_EQ(stock[0]["Folder"], "Old Coaches");
        EXPECT_EQ(stock[0]["Type"], "Carriage");
        EXPECT_EQ(stock[0]["Coupling"], "Chain");
        EXPECT_FALSE(stock[0].contains("error"));
        EXPECT_EQ(stock[1]["EngineType"], "Diesel");
        EXPECT_EQ(stock[1]["EngineName"], "Loco shown");
        EXPECT_EQ(stock[1].size(), 20u) << "all fields of the record, and the file";
    }
}

TEST_F(ReadCommands, StockTellsOfAFileTooLargeToReadInBothWays) {
    putSim(at("huge.wag"), "Wagon ( Huge\r\n)\r\n");
    std::filesystem::resize_file(at("huge.wag"), LargestSimFile + 1);
    for (const Args& args : {Args{"stock", at("huge.wag")}, Args{"stock", "--quick", at("huge.wag")}}) {
        const Ran ran = run(args);
        EXPECT_EQ(ran.exitCode, 1);
        EXPECT_EQ(ran.json()[0]["error"]["number"], FileTooLarge);
    }
}

TEST_F(ReadCommands, StockTellsWhatIsWrongWithAFileAndGoesOn) {
    putSim(at("poor.wag"), "Wagon ( Poor\r\n Type ( Freight )\r\n Coupling ( Type ( Bar ) )\r\n)\r\n");
    putBytes(at("binary.eng"), std::string("\0\1\2SIMISA", 9));
    putBytes(at("empty.eng"), "");
    const Ran ran = run({"stock", at("poor.wag"), at("binary.eng"), at("empty.eng"), consistPath("local.con"),
                         stockPath("Diesels/Loco.eng")});
    EXPECT_EQ(ran.exitCode, 1);
    const json stock = ran.json();
    ASSERT_EQ(stock.size(), 5u);
    EXPECT_EQ(stock[0]["error"]["number"], MissingStockKeyError);
    EXPECT_THAT(stock[0]["error"]["text"].get<std::string>(), HasSubstr("Wagon\\Mass"));
    EXPECT_EQ(stock[1]["error"]["number"], 0);
    EXPECT_EQ(stock[2]["error"]["number"], EmptyFile);
    EXPECT_EQ(stock[3]["error"]["number"], 0);
    EXPECT_FALSE(stock[4].contains("error"));

    const Ran missing = run({"stock", at("none.wag"), stockPath("Diesels/Loco.eng")});
    EXPECT_EQ(missing.exitCode, 2);
    EXPECT_EQ(missing.json().size(), 1u);
    EXPECT_TRUE(isOneLine(missing.err)) << missing.err;
}

TEST_F(ReadCommands, StockRewritesAFileOnlyWhenToldTo) {
    putSim(at("names.wag"),
           "Wagon ( Names\r\n Type ( Freight )\r\n Size ( 1m 1m 1m )\r\n Mass ( 1t )\r\n"
           " Name ( \"One\" )\r\n Coupling (\r\n  Type ( Bar )\r\n )\r\n Name ( \"Two\" )\r\n)\r\n");
    const std::string before = bytesOf(at("names.wag"));
    EXPECT_EQ(run({"stock", at("names.wag")}).exitCode, 0);
    EXPECT_EQ(run({"stock", "--quick", at("names.wag")}).exitCode, 0);
    EXPECT_EQ(bytesOf(at("names.wag")), before);

    const Ran ran = run({"stock", "--repair", at("names.wag")});
    EXPECT_EQ(ran.exitCode, 0) << ran.err;
    EXPECT_EQ(ran.json()[0]["repaired"], true);
    EXPECT_NE(bytesOf(at("names.wag")), before);
    EXPECT_EQ(run({"stock", at("names.wag")}).json()[0]["EngineName"], "One");
}

} // namespace
} // namespace zandor
