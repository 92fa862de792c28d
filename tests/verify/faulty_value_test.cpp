#include "verify/faulty_value.h"

#include "verify/results_fixture.h"

namespace zandor {
namespace {

using Names = std::vector<std::string>;

struct FaultyValue : ResultsTest {
    // A fault as the checks report it.
    static ErrorLine fault(std::string key, std::string value, int line,
                           Message summary = message::ValueUnknownShort) {
        ErrorLine error;
        error.Key = std::move(key);
        error.Value = std::move(value);
        error.Line = line;
        error.summaryText = summary.number;
        return error;
    }
    static InvalidFile stockFile(std::string name = "x.eng") {
        return {Trainset, "F", std::move(name), "", {}};
    }
    std::string textOf(std::string_view name) {
        std::string text;
        decodeSimulatorText(files.get(wagonPath(name)).value_or(""), text);
        return text;
    }
    // The whole text behind signature and blank line after the value was written, or "refused".
    std::string written(const std::string& body, const ErrorLine& line, const std::string& value) {
        files.put(wagonPath("x.eng"), simText(body));
        const Outcome outcome = writeFaultyValue(frame, stockFile(), line, value);
        told = outcome.told;
        if (!outcome.done) {
            EXPECT_EQ(files.get(wagonPath("x.eng")), simText(body)) << body;
            return "refused";
        }
        std::string text;
        decodeSimulatorText(simText(""), text);
        return textOf("x.eng").substr(text.size());
    }
    int refusal(const std::string& key, const std::string& value) {
        const auto finding = refusalOf(frame, stockFile(), fault(key, "", 1), value);
        return finding ? finding->message.number : 0;
    }
};

TEST_F(FaultyValue, TheKeyPathIsCutAtItsBracket) {
    for (const auto& [key, path] : {std::pair{"Wagon\\Sound ( x.sms )", "wagon\\sound"},
                                    {"Wagon\t( A", "wagon"},
                                    {"Train\\TrainCfg ( ", "train\\traincfg"},
                                    {"SHAPE ( a.s", "shape"}})
        EXPECT_EQ(keyPathOf(fault(key, "", 1)), path);
}

// Line 3 is the first of the body.
TEST_F(FaultyValue, OnlyTheValueOfTheKeyOnItsLineChanges) {
    const ErrorLine type = fault("Wagon\\Type ( Fright )", "Fright", 4);
    const ErrorLine sound = fault("Wagon\\Sound ( \"a.sms\" )", "a.sms", 4, message::NamedFileMissingShort);
    const ErrorLine animation = fault("Wagon\\FreightAnim ( a.s 1 1 )", "a.s 1 1", 4);
    struct Case {
        const char* body;
        ErrorLine line;
        const char* value;
        const char* result;
    };
    for (const Case& one : {
             Case{"Wagon ( X\r\n\tType ( Fright )\t# as\r\n)", type, "Freight",
                  "Wagon ( X\r\n\tType ( Freight )\t# as\r\n)"},
             Case{"Wagon ( X\n\tType(Fright)\n)", type, "Freight", "Wagon ( X\n\tType(Freight)\n)"},
             Case{"Wagon ( X\r\n Fright ( 1 ) Type ( Fright )\r\n)", type, "Freight",
                  "Wagon ( X\r\n Fright ( 1 ) Type ( Freight )\r\n)"},
             Case{"Wagon ( X\r\n Type ( FRIGHT#old )\r\n)", type, "Freight",
                  "Wagon ( X\r\n Type ( Freight#old )\r\n)"},
             Case{"Wagon ( X\r\n Sound ( \"a.sms\" )\r\n)", sound, "b c.sms",
                  "Wagon ( X\r\n Sound ( \"b c.sms\" )\r\n)"},
             Case{"Wagon ( X\r\n Sound ( \"a.sms\" )\r\n)", sound, "b.sms",
                  "Wagon ( X\r\n Sound ( \"b.sms\" )\r\n)"},
             Case{"Wagon ( X\r\n Sound ( a.sms )\r\n)", sound, "b.sms", "Wagon ( X\r\n Sound ( b.sms )\r\n)"},
             Case{"Wagon ( X\r\n Sound ( a.sms )\r\n)", sound, "b (2).sms",
                  "Wagon ( X\r\n Sound ( \"b (2).sms\" )\r\n)"},
             Case{"Wagon ( X\r\n FreightAnim ( a.s 1 1 )\r\n)", animation, "b.s",
                  "Wagon ( X\r\n FreightAnim ( b.s 1 1 )\r\n)"},
             Case{"Wagon ( X\r\n Mass ( )\r\n)", fault("Wagon\\Mass ( )", "", 4), "9t",
                  "Wagon ( X\r\n Mass ( 9t )\r\n)"},
             Case{"Wagon ( X\r\n Mass ()\r\n)", fault("Wagon\\Mass ()", "", 4), "9t",
                  "Wagon ( X\r\n Mass ( 9t )\r\n)"},
             Case{"Wagon ( Old\r\n)", fault("Wagon ( Old", "Old", 3), "New name",
                  "Wagon ( \"New name\"\r\n)"},
             Case{"Wagon (\r\n Old\r\n Type ( x )\r\n)", fault("Old", "Old", 4), "New",
                  "Wagon (\r\n New\r\n Type ( x )\r\n)"},
             // shifted, gone, or another key's
             Case{"Wagon ( X\r\n\r\n\tType ( Fright )\r\n)", type, "Freight", "refused"},
             Case{"Wagon ( X\r\n Type ( Carriage )\r\n)", type, "Freight", "refused"},
             Case{"Wagon ( X\r\n Mass ( 8t )\r\n)", fault("Wagon\\Mass ( )", "", 4), "9t", "refused"},
             Case{"Wagon ( X )", type, "Freight", "refused"},
             Case{"Wagon ( X )", fault("Wagon\\Type ( Fright )", "Fright", 0), "Freight", "refused"},
         }) {
        EXPECT_EQ(written(one.body, one.line, one.value), one.result);
        ASSERT_EQ(told.size(), 1u);
        const bool refused = std::string_view(one.result) == "refused";
        EXPECT_EQ(told[0].message, refused ? message::ChangeFailed : message::ChangeWritten);
    }
}

TEST_F(FaultyValue, OfAVehiclesLineTheNameOrTheFolderChanges) {
    const char* key = "Train\\TrainCfg\\Wagon\\WagonData ( ";
    const ErrorLine name = fault(key, "a.wag", 6, message::WagonMissingShort),
                    folder = fault(key, "a", 6, message::StockFolderMissingShort);
    const InvalidFile file{Consists, "", "x.con", "", {}};
    struct Case {
        const char* data;
        ErrorLine line;
        const char* value;
        const char* result;
    };
    for (const Case& one :
         {Case{"a a", name, "b.wag", "b a"}, Case{"a a", folder, "My Folder", "a \"My Folder\""},
          Case{"\"a\" \"a\"", name, "b", "\"b\" \"a\""}, Case{"ab a", folder, "c", "ab c"}}) {
        putConsist("x.con", one.data);
        const auto before = files.get(std::string(Consists) + "x.con").value();
        ASSERT_TRUE(writeFaultyValue(frame, file, one.line, one.value).done) << one.data;
        putConsist("wanted.con", one.result);
        EXPECT_EQ(files.get(std::string(Consists) + "x.con"), files.get(std::string(Consists) + "wanted.con"))
            << one.data;
    }
}

TEST_F(FaultyValue, ValuesAreTestedByTheirKey) {
    for (const char* path : {"F\\Sound\\A.sms", "F\\s.s", "F\\p.ace"})
        files.put(Trainset + std::string(path), "");
    files.put(Trainset + std::string("F\\Cabview\\c.cvf"), "");
    struct Case {
        const char* key;
        const char* value;
        Message refused;
    };
    for (const Case& one : {
             Case{"Wagon\\Type ( x )", "FREIGHT", {}},
             Case{"Wagon\\Type ( x )", "Electric", message::ValueNotAllowed},
             Case{"Engine\\Type ( x )", "electric", {}},
             Case{"Wagon\\BrakeSystemType ( x )", "AIR_TWIN_PIPE", {}},
             Case{"Wagon\\Coupling\\Type ( x )", "Chains", message::ValueNotAllowed},
             Case{"Engine\\Sound ( x )", "a.SMS", {}},
             Case{"Wagon\\Inside\\Sound ( x )", "b.sms", message::OfferedFileMissing},
             Case{"Wagon\\Sound ( x )", "a", message::OfferedFileMissing},
             Case{"Engine\\CabView ( x )", "c.cvf", {}},
             Case{"Wagon\\Thumbnail ( x )", "q.ace", message::PictureFileMissing},
             Case{"Wagon\\Thumbnail ( x )", "p.ace", {}},
             Case{"Wagon\\WagonShape ( x )", "p.ace", message::ShapeMissing},
             Case{"shape ( x )", "s.s", {}},
             Case{"Train\\TrainCfg ( ", "Any text", {}},
             Case{"Wagon ( x", "with \" a quote", message::ValueNotAllowed},
             Case{"Wagon ( x", "", message::NewValueEmpty},
         })
        EXPECT_EQ(refusal(one.key, one.value), one.refused.number) << one.key << one.value;
    EXPECT_EQ(typedValue("  \"my sound.sms\" "), "my sound.sms");
    EXPECT_EQ(typedValue(" plain "), "plain");
    const auto finding = refusalOf(frame, stockFile(), fault("Wagon\\Thumbnail ( x )", "", 1), "q.ace");
    EXPECT_EQ(wordFinding(frame, *finding).find('|'), std::string::npos) << wordFinding(frame, *finding);
}

TEST_F(FaultyValue, TheFoldersOfferWhatFits) {
    const std::string cab = "SIMISA@@@@@@@@@@JINX0h0t______\r\n";
    for (const char* path : {"Sound\\b.SMS", "Sound\\a.sms", "Sound\\a.wav", "z.s", "y.sd"})
        files.put(Trainset + std::string("F\\") + path, "");
    files.put(Trainset + std::string("F\\Cabview\\good.cvf"), encodeText(cab, TextEncoding::Utf16));
    files.put(Trainset + std::string("F\\Cabview\\other.cvf"), "plain");
    const auto offered = [&](const char* key) {
        return offeredValues(frame, stockFile(), fault(key, "", 1));
    };
    EXPECT_EQ(offered("Wagon\\Sound ( x )"), (Names{"a.sms", "b.SMS"}));
    EXPECT_EQ(offered("Engine\\CabView ( x )"), Names{"good.cvf"});
    EXPECT_EQ(offered("Wagon\\FreightAnim ( x )"), Names{"z.s"});
    EXPECT_EQ(offered("Engine\\Type ( x )"), (Names{"Electric", "Diesel", "Steam"}));
    EXPECT_EQ(offered("Wagon ( x"), Names{});
}

TEST_F(FaultyValue, AnotherSignatureOrAMissingFileIsRefused) {
    const ErrorLine type = fault("Wagon\\Type ( Fright )", "Fright", 2);
    files.put(wagonPath("x.eng"), "SIMISA@@@@@@@@@@JINX0t1t______\r\nType ( Fright )\r\n");
    const auto before = files.get(wagonPath("x.eng"));
    EXPECT_FALSE(writeFaultyValue(frame, stockFile(), type, "Freight").done);
    EXPECT_EQ(files.get(wagonPath("x.eng")), before);
    const Outcome outcome = writeFaultyValue(frame, stockFile("none.eng"), type, "Freight");
    EXPECT_FALSE(outcome.done);
    EXPECT_EQ(outcome.told.at(0).params.at(1).second, "Wagon\\Type");
}

TEST_F(FaultyValue, TheDescriptionOfAShapeIsChangedWhereTheFaultStands) {
    putWagon("a.wag", "Freight )\r\n WagonShape ( body.s )\r\n FreightAnim ( load.s 1 1 ");
    const auto description = [this](const char* name, const char* text) {
        files.put(wagonPath(name),
                  encodeText("SIMISA@@@@@@@@@@JINX0t1t______\r\n" + std::string(text), TextEncoding::Utf16));
    };
    for (const char* shape : {"body.s", "load.s", "good.s"})
        files.put(wagonPath(shape), "");
    description("body.sd", "shape ( body.s\r\n ESD_Detail_Level ( 0 )\r\n)");
    description("load.sd", "shape ( gone.s\r\n ESD_Detail_Level ( 0 )\r\n)");
    results.InvalidFiles.clear();
    CheckStockFile(work, "F", "a.wag");
    ASSERT_EQ(results.InvalidFiles.size(), 1u);
    const Correction correction = correctFaultyValue(work, catalogue, 0, 0, "good.s");
    EXPECT_TRUE(correction.done);
    EXPECT_EQ(correction.file, std::nullopt);
    EXPECT_NE(textOf("load.sd").find("shape ( good.s\r\n ESD"), std::string::npos);
}

TEST_F(FaultyValue, ACorrectionIsCheckedAgainAndTellsWhatIsLeft) {
    files.put(wagonPath("b.wag"),
              simText("Wagon ( X\r\n\tType ( Fright )\r\n\tSize ( 1m 2m 3m )\r\n\tMass ( )\r\n"
                      "\tCoupling (\r\n\t\tType ( Chain )\r\n\t)\r\n)\r\n"));
    results = {};
    for (const char* name : {"a.wag", "b.wag"})
        CheckStockFile(work, "F", name);
    Correction correction = correctFaultyValue(work, catalogue, 1, 0, "Fraight");
    EXPECT_FALSE(correction.done);
    EXPECT_EQ(correction.told.at(0).message, message::ValueNotAllowed);
    correction = correctFaultyValue(work, catalogue, 1, 0, "Freight");
    EXPECT_TRUE(correction.done);
    EXPECT_EQ(correction.file, 1);
    EXPECT_EQ(correction.told.at(1).message, message::FaultsRemain);
    EXPECT_EQ(correction.told.at(1).params.at(1).second, "1");
    EXPECT_EQ(stock("b.wag")->Type, "Freight");
    correction = correctFaultyValue(work, catalogue, 1, 0, "9t");
    EXPECT_EQ(correction.file, std::nullopt);
    EXPECT_EQ(correction.told.at(1).message, message::NoFaultLeft);
    EXPECT_EQ(invalid(), Names{"a.wag"});
}

TEST_F(FaultyValue, TheOldOrTheNewBytesStandWholeWhateverFails) {
    struct Tree : FaultyValue {
        void TestBody() override {}
    };
    for (int call = 1;; ++call) {
        Tree tree;
        tree.files.setAttributes(wagonPath("a.wag"), {.readOnly = true});
        const std::string old = tree.textOf("a.wag");
        tree.files.failAt(call);
        const Correction correction = correctFaultyValue(tree.work, tree.catalogue, 0, 0, "Freight");
        const bool failed = tree.files.failed();
        std::string wanted = old;
        EXPECT_EQ(tree.textOf("a.wag"),
                  correction.done ? wanted.replace(wanted.find("Fright"), 6, "Freight") : old);
        EXPECT_TRUE(tree.files.attributes(wagonPath("a.wag")).readOnly);
        if (!failed)
            break;
        ASSERT_LT(call, 100);
    }
}

} // namespace
} // namespace zandor
