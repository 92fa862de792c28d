#include "cli_fixture.h"

namespace zandor {
namespace {

using testing::HasSubstr;
using json = nlohmann::json;

class VerifyCommand : public CliTest {
  protected:
    VerifyCommand() {
        putSim(stockPath("Odd/quoteless.wag"), wagonText("other") + "\r\nWagon ( Sound ( hum.sms ) )\r\n");
        putSim(stockPath("Odd/half.wag"), "Wagon ( half\r\n Type ( Cart )\r\n Sound ( hum.sms )\r\n)\r\n");
        putBytes(stockPath("Odd/Sound/hum.sms"),
                 std::string(signatureOf(FileKind::Sound)) + "\r\nFile ( \"lost.wav\" -1 )\r\n");
        putSim(stockPath("Old Coaches/HALF.wag"), wagonText("half"));
    }
};

TEST_F(VerifyCommand, JsonHasTheMembersThatScriptsKnow) {
    const Ran ran = runOnTree({"verify", "wagons", "--json", "--sounds", "--duplicates", "Odd/half"});
    EXPECT_EQ(ran.exitCode, 1) << ran.err;
    const json line{{"summary", "Unknown value: Cart"},
                    {"long", "The simulator does not know the value “Cart”. Line 4: Type ( Cart )"},
                    {"summaryText", 303},
                    {"longText", 302},
                    {"value", "Cart"},
                    {"key", "Wagon\\Type ( Cart )"},
                    {"line", 4}};
    const json item{{"name", "lost.wav"}, {"detail", "File ( \"lost.wav\" -1 )"}, {"line", 2}};
    const json expected{{"invalidFiles",
                         {{{"root", at("msts/Trains/Trainset/")},
                           {"folder", "Odd"},
                           {"file", "half.wag"},
                           {"name", "half"},
                           {"lines", {line}}}}},
                        {"duplicates", {{{"name", "Odd\\half.wag"}, {"others", {"Old Coaches\\HALF.wag"}}}}},
                        {"missing",
                         {{{"kind", 0},
                           {"owner", "Odd\\Sound\\hum.sms"},
                           {"file", "hum.sms"},
                           {"dir", at("msts/Trains/Trainset/Odd/Sound/")},
                           {"items", {item}}}}},
                        {"mandatory",
                         {{{"folder", "Odd"}, {"file", "half.wag"}, {"key", "Size"}},
                          {{"folder", "Odd"}, {"file", "half.wag"}, {"key", "Coupling\\Type"}},
                          {{"folder", "Odd"}, {"file", "half.wag"}, {"key", "Mass"}}}},
                        {"counters",
                         {{"files", 1},
                          {"invalidFiles", 1},
                          {"missingTextures", 0},
                          {"missingSounds", 1},
                          {"quoteRepairs", 0},
                          {"quoteFailures", 0},
                          {"repairedSoundFiles", 0}}},
                        {"messages", ran.json()["messages"]}};
    EXPECT_EQ(ran.json(), expected);
    EXPECT_EQ(ran.json()["messages"].size(), 3u);
}

TEST_F(VerifyCommand, ExitCodesTellCleanFaultyAndImpossible) {
    const struct {
        Args args;
        int exitCode;
    } cases[] = {
        {{"consists"}, 0},
        {{"Engines", "--names", "--textures"}, 0},
        {{"wagons"}, 1},
        {{"wagons", "Old Coaches\\bar.WAG", "Bar"}, 0},
        {{"wagons", "--names", "Old Coaches/First Class.wag"}, 1},
        {{"wagons", "Diesels/Bar.wag"}, 2},
        {{"consists", "local", "gone.con"}, 2},
        {{"boats"}, 2},
        {{"wagons", "--repair-sounds"}, 2},
        {{"consists", "--folder", at("home")}, 2},
        {{"wagons", "--folder", at("gone")}, 2},
    };
    for (const auto& c : cases) {
        Args args{"verify"};
        args.insert(args.end(), c.args.begin(), c.args.end());
        const Ran ran = runOnTree(args);
        EXPECT_EQ(ran.exitCode, c.exitCode) << testing::PrintToString(args) << ran.out << ran.err;
        EXPECT_EQ(c.exitCode == 2, isOneLine(ran.err)) << ran.err;
    }
}

TEST_F(VerifyCommand, AFolderIsCheckedWhereverItLies) {
    putSim(at("work/My Wagons/new.wag"),
           wagonText("new") + "Wagon ( WagonShape ( new.s ) Thumbnail ( ..\\Diesels\\Loco.eng ) Sound ( "
                              "\"new.sms\" ) )");
    putBytes(at("work/My Wagons/Sound/NEW.sms"), "");
    const Ran ran = runOnTree({"verify", "wagons", "--folder", at("work/My Wagons/"), "--json"});
    EXPECT_EQ(ran.exitCode, 1) << ran.err;
    const json found = ran.json();
    ASSERT_EQ(found["invalidFiles"].size(), 1u);
    EXPECT_EQ(found["invalidFiles"][0]["root"], at("work/"));
    EXPECT_EQ(found["invalidFiles"][0]["folder"], "My Wagons");
    EXPECT_EQ(found["invalidFiles"][0]["lines"].size(), 1u);
    EXPECT_EQ(found["invalidFiles"][0]["lines"][0]["value"], "new.s");
}

TEST_F(VerifyCommand, QuotesAreRepairedOnceAndTheReportTellsIt) {
    const Ran first = runOnTree({"verify", "wagons", "Odd/quoteless", "--repair-quotes"});
    EXPECT_EQ(first.exitCode, 1) << first.out;
    EXPECT_THAT(first.out,
                HasSubstr("The check is finished.\nInvalid files: 0\n1 line 'Sound ( xxx )' repaired"));
    EXPECT_EQ(runOnTree({"verify", "wagons", "Odd/quoteless", "--repair-quotes"}).exitCode, 0);
    const Ran faulty = runOnTree({"verify", "wagons"});
    EXPECT_THAT(faulty.out, HasSubstr("Odd\\half.wag\n  4: The simulator does not know"));
}

} // namespace
} // namespace zandor
