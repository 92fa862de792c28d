#include "verify/fault_kinds.h"

#include "verify/results_fixture.h"

namespace zandor {
namespace {

struct FaultKinds : ::testing::Test {
    VerifResults results;
    static constexpr FaultKind Unknown{FaultGroup::Line, message::ValueUnknownShort.number},
        Missing{FaultGroup::Line, message::NamedFileMissingShort.number},
        Mandatory{FaultGroup::MandatoryKey, 0}, Texture{FaultGroup::MissingTexture, 0},
        Sound{FaultGroup::MissingSound, 0}, Duplicate{FaultGroup::Duplicate, 0};

    static ErrorLine fault(const FaultKind& kind, std::string value) {
        ErrorLine line;
        line.Summary = "summary";
        line.Value = std::move(value);
        line.Key = "Wagon\\Type";
        line.summaryText = kind.summaryText;
        return line;
    }
    FaultKinds() {
        results.InvalidFiles = {
            {"C:\\T\\",
             "Coal",
             "hopper.wag",
             "Ore Hopper",
             {fault(Unknown, "Fright"), fault(Unknown, "Bra")}},
            {"C:\\T\\", "Coal", "van.wag", "Van", {fault(Missing, "Élan.sms")}},
            {"C:\\T\\", "Post", "mail.wag", "Mail", {fault(Missing, "x.s"), fault(Unknown, "y")}}};
        results.mandatory = {
            {"Coal", "Van.wag", "Mass"}, {"coal", "van.wag", "Size"}, {"Post", "z.wag", "Mass"}};
        results.MissingEntries = {
            {MissingKind::Texture, "Coal\\a.s", "", "", {{"1.ace", "", 1}, {"2.ace", "", 2}}},
            {MissingKind::Sound, "Coal\\Sound\\b.sms", "b.sms", "C:\\", {{"w.wav", "", 3}}}};
        results.DuplicateEntries = {{"Coal\\van.wag", {"Post\\van.wag", "Old\\van.wag"}}};
    }
};

TEST_F(FaultKinds, EachKindIsCountedWithItsFiles) {
    std::vector<std::string> rows;
    for (const FaultCount& count : countFaults(results))
        rows.push_back(std::to_string(static_cast<int>(count.kind.group)) + "/" +
                       std::to_string(count.kind.summaryText) + ": " + std::to_string(count.faults) + " in " +
                       std::to_string(count.files));
    EXPECT_EQ(rows, (std::vector<std::string>{"0/303: 3 in 2", "0/307: 2 in 2", "1/0: 3 in 2", "2/0: 2 in 1",
                                              "3/0: 1 in 1", "4/0: 2 in 1"}));
    EXPECT_TRUE(countFaults({}).empty());
}

TEST_F(FaultKinds, AFilterLetsThroughItsKindAndItsText) {
    using Positions = std::vector<int>;
    const ResultFinder finder(results);
    struct Case {
        std::optional<FaultKind> kind;
        const char* text;
        Positions files;
    };
    for (const Case& one : {Case{{}, "", {0, 1, 2}}, Case{Unknown, "", {0, 2}}, Case{Missing, "", {1, 2}},
                            Case{Mandatory, "", {1}}, Case{{}, "HOPPER", {0}}, Case{{}, "coal\\van", {1}},
                            Case{{}, "éLAN", {1}}, Case{{}, "wagon\\type", {0, 1, 2}},
                            Case{Unknown, "coal", {0}}, Case{{}, "VanSummary", {}}, Case{Texture, "", {}}})
        EXPECT_EQ(finder.invalidFiles({one.kind, one.text}), one.files) << one.text;
    EXPECT_EQ(finder.missingEntries({Sound, ""}), Positions{1});
    EXPECT_EQ(finder.missingEntries({{}, "2.ACE"}), Positions{0});
    EXPECT_EQ(finder.duplicateEntries({Duplicate, "old"}), Positions{0});
    EXPECT_EQ(finder.mandatory({Mandatory, "mass"}), (Positions{0, 2}));
}

TEST_F(FaultKinds, TheNextFaultGoesRoundThroughTheFilesShown) {
    const std::vector<int> all{0, 1, 2}, ends{0, 2};
    EXPECT_EQ(nextFault(results, all, {0, 0}), (FaultPlace{0, 1}));
    EXPECT_EQ(nextFault(results, all, {0, 1}), (FaultPlace{1, 0}));
    EXPECT_EQ(nextFault(results, ends, {0, 1}), (FaultPlace{2, 0}));
    EXPECT_EQ(nextFault(results, ends, {1, 0}), (FaultPlace{2, 0})); // not shown itself
    EXPECT_EQ(nextFault(results, all, {2, 1}), (FaultPlace{0, 0}));
    EXPECT_EQ(nextFault(results, {1}, {1, 0}), std::nullopt);
    EXPECT_EQ(nextFault(results, {}, {0, 0}), std::nullopt);
}

TEST_F(ResultsTest, EveryKindHasANameWithoutTheMarksOfAValue) {
    const FaultKind kinds[] = {FaultKinds::Unknown, FaultKinds::Missing, FaultKinds::Mandatory,
                               FaultKinds::Texture, FaultKinds::Sound,   FaultKinds::Duplicate};
    for (const LanguageChoice& language : frame.language.ListLanguages()) {
        state.Language = language.name;
        for (const FaultKind& kind : kinds) {
            const std::string text = faultKindText(frame, kind);
            EXPECT_GT(text.size(), 8u) << language.name;
            EXPECT_EQ(text.find_first_of("|:"), std::string::npos) << text;
            EXPECT_NE(text.back(), ' ');
        }
    }
    state.Language = "Français";
    EXPECT_EQ(faultKindText(frame, FaultKinds::Unknown), "Valeur inconnue");
}

} // namespace
} // namespace zandor
