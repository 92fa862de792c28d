#include "pass_fixture.h"
#include "text/decode.h"

namespace zandor {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class StockCheck : public PassTest {
  protected:
    // The faults of a wagon whose third line this is, without the file's name.
    std::string faultOf(const std::string& line) {
        put("F\\a.wag", wagon(line + "\r\n"));
        pass(VerifiedKind::Wagons);
        std::string all;
        for (const std::string& fault : faults())
            all += fault.substr(fault.find(' ') + 1);
        return all;
    }
};

TEST_F(StockCheck, EachKeyIsHeldAgainstItsValuesAndFiles) {
    for (const char* name : {"F\\a.s", "F\\here.ace", "F\\Sound\\own.sms", "F\\Sound\\a #1.sms", "G\\far.s"})
        put(name);
    files.put("C:\\MSTS\\Sound\\common.sms", "x");
    const struct {
        const char* line;
        const char* fault;
    } cases[] = {
        {"BrakeSystemType ( \"AIR_Twin_Pipe\" )", ""},
        {"BrakeSystemType ( EP # both )", ""},
        {"BrakeSystemType ( none )", "3 302/303 none | Wagon\\BrakeSystemType ( none )"},
        {"Thumbnail ( HERE.ace )", ""},
        {"Thumbnail ( gone.ace )", "3 306/307 gone.ace | Wagon\\Thumbnail ( gone.ace )"},
        {"Thumbnail ( )", "3 306/307  | Wagon\\Thumbnail ( )"},
        {"WagonShape ( \"A.S\" )", ""},
        {"WagonShape ( ../G/far.s )", ""},
        {"WagonShape ( Gone.S )", "3 306/307 Gone.S | Wagon\\WagonShape ( Gone.S )"},
        {"FreightAnim ( a.s 1 0 # load )", ""},
        {"FreightAnim ( \"Load.S\" 1 0 )", "3 306/307 Load.S | Wagon\\FreightAnim ( \"Load.S\" 1 0 )"},
        {"FreightAnim ( \"..\\V.stuff\\a.s\" 1 )",
         "3 306/307 ..\\V.stuff\\a.s | Wagon\\FreightAnim ( \"..\\V.stuff\\a.s\" 1 )"},
        {"Sound ( own.sms )", ""},
        {"Sound ( \"Common.sms\" )", ""},
        {"Sound ( \"a #1.sms\" ) # wheels", ""},
        {"Sound ( own.sms # \"loud\" )", ""},
        {"Sound ( \"no (1).sms\" )", "3 306/307 no (1).sms | Wagon\\Sound ( \"no (1).sms\" )"},
        {"Inside ( Sound ( in.sms ) )", "3 306/307 in.sms | Wagon\\Inside\\Sound ( in.sms )"},
        {"Coupling ( Type ( Rope ) )", "3 302/303 Rope | Wagon\\Coupling\\Type ( Rope )"},
        {"Coupling ( Type ( \"Bar\" # rear ) )", ""},
    };
    for (const auto& c : cases)
        EXPECT_EQ(faultOf(c.line), c.fault) << c.line;
}

TEST_F(StockCheck, AnEnginesNamesAndCabAreTested) {
    put("F\\a.eng",
        stockText(
            "Wagon ( A\r\nType ( Engine )\r\nSize ( )\r\nMass ( \" \" )\r\nCoupling (\r\n"
            "Type ( Bar )\r\n)\r\nCoupling (\r\nType ( Rope )\r\n)\r\n)\r\nEngine ( b\r\nWagon ( c )\r\n"
            "Type ( Atomic )\r\nCabView ( a.cvf )\r\nName ( \"The engine\" )\r\n)\r\n"));
    options.CheckName = true;
    pass(VerifiedKind::Engines);
    EXPECT_THAT(faults(),
                ElementsAre("a.eng 4 304/305  | Wagon\\Size ( )", "a.eng 5 304/305   | Wagon\\Mass ( \" \" )",
                            "a.eng 13 300/301 b | Engine ( b", "a.eng 14 300/301 c | Engine\\Wagon ( c )",
                            "a.eng 15 302/303 Atomic | Engine\\Type ( Atomic )",
                            "a.eng 16 306/307 a.cvf | Engine\\CabView ( a.cvf )"));
    EXPECT_EQ(results.InvalidFiles[0].Name, "The engine");
    EXPECT_EQ(results.InvalidFiles[0].Root, inTrainset(""));
    EXPECT_THAT(mandatory(), IsEmpty()); // a key without a value is there

    options.CheckName = false;
    put("F\\Cabview\\a.cvf");
    pass(VerifiedKind::Engines);
    EXPECT_EQ(faults().size(), 3u);
}

TEST_F(StockCheck, ADescriptionsShapeIsLookedForBesideTheStock) {
    const std::string sign = std::string(signatureOf(FileKind::ShapeDescription)) + "\r\n\r\n";
    put("F\\a.wag", wagon("WagonShape ( ..\\G\\g.s )\r\nFreightAnim ( ..\\G\\g.s 1 )\r\n"));
    put("G\\g.s");
    put("G\\g.sd", sign + "shape ( g.s )");
    pass(VerifiedKind::Wagons);
    EXPECT_THAT(faults(), IsEmpty()) << "another stock's shape is described beside it";
    put("G\\g.sd", sign + "shape ( gone.s )");
    pass(VerifiedKind::Wagons);
    EXPECT_EQ(faults().size(), 1u) << "however many keys name it";
    put("F\\a.wag", wagon("WagonShape ( A.s )\r\n"));
    put("F\\a.s");
    const struct {
        const char* text;
        const char* fault;
    } cases[] = {
        {"shape ( a.s )\r\nESD_Detail_Level ( 0 )\r\n", ""},
        {"shape ( a.s\r\nESD_Detail_Level ( 0 )\r\n)\r\n", ""},
        {"SHAPE ( b.s )\r\nESD_Detail_Level ( 0 )\r\n", "a.wag 3 306/307 b.s | SHAPE ( b.s )"},
        {"shape ( \"b #1.s\"\r\nESD_Detail_Level ( 0 )\r\n)\r\n",
         "a.wag 3 306/307 b #1.s | shape ( \"b #1.s\""},
        {"shape ( b.s ESD_Detail_Level ( 0 )\r\n)\r\n",
         "a.wag 3 306/307 b.s | shape ( b.s ESD_Detail_Level ( 0 )"},
        {"ESD_Detail_Level ( 0 )\r\n", ""},
    };
    for (const auto& c : cases) {
        put("F\\A.SD", sign + c.text);
        pass(VerifiedKind::Wagons);
        EXPECT_EQ(faults(), *c.fault ? std::vector<std::string>{c.fault} : std::vector<std::string>())
            << c.text;
    }
}

TEST_F(StockCheck, WhatStockCantDoWithoutIsToldEachTimeUntilTheUserHasSeenEnough) {
    struct OneOnly final : Dialogs {
        std::vector<std::string> texts;
        int ShowMessage(const std::string& text, int, const std::string&, const std::string&, int) override {
            texts.push_back(text);
            return answer::Ok;
        }
        bool showRepeated(const std::string& text, int messageStyle, const std::string& title) override {
            ShowMessage(text, messageStyle, title, {}, 0);
            return false;
        }
        std::optional<std::string> askOpenFile(const std::string&, const std::string&, const std::string&,
                                               const std::string&) override {
            return std::nullopt;
        }
        std::optional<std::string> askSaveFile(const std::string&, const std::string&, const std::string&,
                                               const std::string&, const std::string&) override {
            return std::nullopt;
        }
    } impatient;
    put("F\\a.wag", stockText("Wagon ( a\r\nType ( Freight )\r\n)\r\n"));
    put("F\\b.wag", "something else");
    put("F\\c.wag", "");
    pass(VerifiedKind::Wagons);
    EXPECT_THAT(faults(), IsEmpty());
    EXPECT_THAT(mandatory(), ElementsAre("a.wag Size", "a.wag Coupling\\Type", "a.wag Mass", "b.wag Size",
                                         "b.wag Coupling\\Type", "b.wag Mass", "b.wag Type", "c.wag Size",
                                         "c.wag Coupling\\Type", "c.wag Mass", "c.wag Type"));
    EXPECT_EQ(dialogs.shown.size(), 11u);

    Frame quick{state, files, profiles, registry, processes, impatient, progress, Language(profiles, state)};
    VerifSelection selection = listCandidates(quick, VerifiedKind::Wagons, {});
    selection.chosen = {0, 1};
    RunVerification(quick, selection, options, results);
    EXPECT_EQ(results.mandatory.size(), 7u);
    EXPECT_EQ(impatient.texts.size(), 1u);
}

TEST_F(StockCheck, StockOfTheStoreNamesFilesOfTheSimulator) {
    state.roots.first = Root::Store;
    files.put("C:\\Store\\TRAINS\\TRAINSET\\F\\a.wag", wagon("WagonShape ( a.s )\r\nSound ( a.sms )\r\n"));
    files.put("C:\\Store\\TRAINS\\TRAINSET\\F\\a.s", "x");
    put("F\\Sound\\a.sms");
    options.CheckSounds = true;
    pass(VerifiedKind::Wagons);
    EXPECT_THAT(faults(), ElementsAre("a.wag 3 306/307 a.s | Wagon\\WagonShape ( a.s )"));
    EXPECT_EQ(results.InvalidFiles[0].Root, "C:\\Store\\TRAINS\\TRAINSET\\");
}

// ---- the repair of quotes

class QuoteRepair : public PassTest {
  protected:
    QuoteRepair() {
        options.RepairQuotes = true;
        put("F\\Sound\\a.sms");
    }
};

TEST_F(QuoteRepair, OnlyTheQuotesAreNewInTheFile) {
    const std::string before = "Wagon ( a\n\tSound(a.sms)Mass ( 1t )  # fünf\r"
                               "\tInside ( Sound ( a.sms #remark ) )\r\nType ( Freight ) Size ( 1 )\r\n"
                               "Coupling (\r\nType ( Bar )\r\n) )\r\nEngine (a\r\nSound ( \"a.sms\" )\r\n)";
    std::string after = before;
    after.replace(after.find("a.sms)"), 5, "\"a.sms\"");
    after.replace(after.find("a.sms #"), 5, "\"a.sms\"");
    for (const bool wide : {false, true}) {
        const auto encode = [&](const std::string& text) {
            return encodeText(stockText(text), wide ? TextEncoding::Utf16 : TextEncoding::Windows1252);
        };
        put("F\\a.eng", encode(before));
        files.setAttributes(inTrainset("F\\a.eng"), {.readOnly = true});
        pass(VerifiedKind::Engines);
        EXPECT_EQ(results.counters.QuoteRepairCount, 2);
        EXPECT_THAT(faults(), IsEmpty());
        EXPECT_EQ(*files.get(inTrainset("F\\a.eng")), encode(after));
        EXPECT_TRUE(files.attributes(inTrainset("F\\a.eng")).readOnly);
        files.log.clear();
        pass(VerifiedKind::Engines);
        EXPECT_EQ(results.counters.QuoteRepairCount, 0);
        EXPECT_THAT(files.log, testing::Not(testing::Contains(testing::HasSubstr("replace"))));
        files.setAttributes(inTrainset("F\\a.eng"), {});
    }
}

TEST_F(QuoteRepair, ASoundThatIsMissingIsReportedByItsRepairedText) {
    put("F\\a.wag", wagon("Sound ( gone one.sms )\r\n"));
    pass(VerifiedKind::Wagons);
    EXPECT_THAT(faults(), ElementsAre("a.wag 2 306/307 gone one.sms | Wagon\\Sound ( \"gone one.sms\" )"));
}

TEST_F(QuoteRepair, WhatCantBeRepairedIsCountedAndTold) {
    const std::string text = wagon("Sound ( a \"b\" c.sms )\r\n");
    put("F\\a.wag", text);
    pass(VerifiedKind::Wagons);
    EXPECT_EQ(results.counters.QuoteRepairFailures, 1);
    EXPECT_EQ(dialogs.shown.size(), 1u);
    EXPECT_EQ(*files.get(inTrainset("F\\a.wag")), text);
}

TEST_F(QuoteRepair, AFailingDiskLeavesTheOldOrTheNewFileWhole) {
    const std::string before = wagon("Sound ( a.sms )\r\n"), after = wagon("Sound ( \"a.sms\" )\r\n");
    int failures = 0;
    for (int call = 1; call < 100; ++call) {
        put("F\\a.wag", before);
        files.failAt(call);
        pass(VerifiedKind::Wagons);
        const bool failed = files.failed();
        files.failAt(0);
        EXPECT_EQ(*files.get(inTrainset("F\\a.wag")), results.counters.QuoteRepairCount == 1 ? after : before)
            << call;
        EXPECT_EQ(files.allFiles().size(), 3u) << call;
        failures += results.counters.QuoteRepairFailures;
        if (!failed)
            break;
    }
    EXPECT_GE(failures, 2);
}

} // namespace
} // namespace zandor
