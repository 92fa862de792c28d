#include "pass_fixture.h"

namespace zandor {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Verification : public PassTest {
  protected:
    static std::string consist(const std::string& name, const std::string& vehicles) {
        return stockText("Train (\r\nTrainCfg ( " + name + "\r\nName ( \"In full\" )\r\n" + vehicles +
                         ")\r\n)\r\n");
    }
    void putConsist(const std::string& file, const std::string& bytes, const std::string& root = "C:\\MSTS") {
        files.put(consistsPath(root) + file, bytes);
    }
    // Stock that need not be on the disk.
    static VerifSelection stockAt(const std::vector<std::string>& places, std::vector<int> chosen) {
        VerifSelection selection;
        for (const std::string& place : places)
            selection.stock.push_back(
                {place.substr(place.find('\\') + 1), place.substr(0, place.find('\\')), inTrainset("")});
        selection.chosen = std::move(chosen);
        return selection;
    }
    // A wagon whose sound set names waves: one that G has, and one that nobody has.
    void putSounds(int sets) {
        put("G\\Sound\\known.wav");
        for (int i = 0; i < sets; ++i) {
            const std::string folder = "F" + std::to_string(i);
            put(folder + "\\a.wag", wagon("Sound ( \"a.sms\" )\r\n"));
            put(folder + "\\Sound\\a.sms",
                std::string(signatureOf(FileKind::Sound)) +
                    "\r\nFile ( \"x/known.wav\" -1 )\r\nFile ( \"lost.wav\" -1 )\r\n");
        }
        options.CheckSounds = true;
    }
    std::vector<std::string> missing() const {
        std::vector<std::string> rows;
        for (const MissingEntry& entry : results.MissingEntries)
            for (const MissingItem& item : entry.Items)
                rows.push_back(entry.Owner + ": " + item.Name);
        return rows;
    }
};

TEST_F(Verification, AConsistsNameFoldersAndStockAreHeldAgainstBothRoots) {
    put("Here\\Loco A.eng");
    files.put("C:\\Store\\TRAINS\\TRAINSET\\There\\w.wag", "x");
    putConsist("good.con", consist("GOOD", "Engine (\r\nEngineData ( \"loco a\" here )\r\n)\r\n"
                                           "Wagon (\r\nWagonData ( w \"There\" )\r\n)\r\n"));
    putConsist("bad.con", consist("\"other name\"", "Wagon (\r\nWagonData ( w Here )\r\n)\r\n"
                                                    "Engine (\r\nEngineData ( w \"No where\" )\r\n)\r\n"
                                                    "Engine (\r\nEngineData ( alone )\r\n)\r\n"
                                                    "Engine (\r\nEngineData ( \"Loco Here )\r\n)\r\n"));
    putConsist("cut.con",
               consist("cut", "Wagon (\r\nWagonData ( w Here )\r\n)\r\nWagon (\r\nWagonData w\r\n"));
    options = {true, true, true, true, true, true};
    pass(VerifiedKind::Consists);
    EXPECT_THAT(faults(),
                ElementsAre("bad.con 3 316/301 other name | Train\\TrainCfg ( ",
                            "bad.con 9 318/319 No where | Train\\TrainCfg\\Engine\\EngineData ( ",
                            "bad.con 12 320/321 alone.eng | Train\\TrainCfg\\Engine\\EngineData ( ",
                            "bad.con 15 320/321 \"Loco.eng | Train\\TrainCfg\\Engine\\EngineData ( ",
                            "bad.con 6 322/323 w.wag | Train\\TrainCfg\\Wagon\\WagonData ( "));
    EXPECT_EQ(results.InvalidFiles[0].Name, "In full");
    EXPECT_THAT(results.InvalidFiles[0].Lines[0].Long, HasSubstr("bad.con"));

    putConsist("far.con", consist("far", "Wagon (\r\nWagonData ( w Here )\r\n)\r\n"), "C:\\Store");
    VerifWork work{frame, options, results};
    EXPECT_TRUE(CheckConsistFile(work, "far.con", Quiet::Yes));
    EXPECT_FALSE(CheckConsistFile(work, "gone.con"));
    EXPECT_EQ(results.InvalidFiles.size(), 1u);
}

TEST_F(Verification, LikeNamedFilesBelowAChosenOneAreItsDuplicates) {
    const std::vector<std::string> places{"A\\x.wag", "B\\y.wag", "C\\X.wag", "D\\x.WAG", "E\\y.wag"};
    const struct {
        std::vector<int> chosen;
        const char* found;
    } cases[] = {
        {{0, 1, 2, 3, 4}, "A\\x.wag=C\\X.wag,D\\x.WAG B\\y.wag=E\\y.wag "},
        {{2}, "C\\X.wag=D\\x.WAG "},
        {{3, 4}, ""},
    };
    options.CheckDuplicates = true;
    for (const auto& c : cases) {
        RunVerification(frame, stockAt(places, c.chosen), options, results);
        std::string found;
        for (const DuplicateEntry& entry : results.DuplicateEntries) {
            found += entry.Name + '=' + entry.Others[0];
            for (std::size_t i = 1; i < entry.Others.size(); ++i)
                found += ',' + entry.Others[i];
            found += ' ';
        }
        EXPECT_EQ(found, c.found) << testing::PrintToString(c.chosen);
    }
}

TEST_F(Verification, TheUserIsAskedBeforeTheNextBatch) {
    VerifSelection selection;
    for (int i = 0; i < 60000; ++i) {
        selection.stock.push_back({std::to_string(i % 59999) + ".wag", std::to_string(i), inTrainset("")});
        selection.chosen.push_back(i);
    }
    options.CheckDuplicates = true;
    for (const int reply : {answer::Yes, answer::No}) {
        dialogs.answers = {reply};
        RunVerification(frame, selection, options, results);
        EXPECT_EQ(results.counters.files, reply == answer::Yes ? 60000 : VerifBatch);
        EXPECT_EQ(results.DuplicateEntries.size(), 1u);
        EXPECT_THAT(dialogs.lastText(), testing::AllOf(HasSubstr("50000"), HasSubstr("10000")));
    }
    EXPECT_EQ(dialogs.shown.size(), 2u);
}

TEST_F(Verification, SoundSetsAreRepairedAndLookedIntoAgain) {
    putSounds(2);
    pass(VerifiedKind::Wagons);
    EXPECT_THAT(missing(), ElementsAre("F0\\Sound\\a.sms: known.wav", "F0\\Sound\\a.sms: lost.wav",
                                       "F1\\Sound\\a.sms: known.wav", "F1\\Sound\\a.sms: lost.wav"));
    options.RepairSounds = true;
    pass(VerifiedKind::Wagons);
    EXPECT_EQ(results.counters.RepairedSoundFiles, 2);
    EXPECT_THAT(missing(), ElementsAre("F0\\Sound\\a.sms: lost.wav", "F1\\Sound\\a.sms: lost.wav"));
    EXPECT_EQ(results.counters.MissingSounds, 2);
    EXPECT_THAT(*files.get(inTrainset("F0\\Sound\\a.sms")), HasSubstr("\"../../G/Sound/known.wav\""));
}

TEST_F(Verification, AnEndAtAnyPointKeepsWhatWasFound) {
    putSounds(3);
    options.RepairSounds = options.CheckDuplicates = true;
    std::size_t invalid = 0, most = 0;
    for (int end = 1; end < 100; ++end) {
        putSounds(3);
        progress.yields = 0;
        progress.cancelAtYield = end;
        if (pass(VerifiedKind::Wagons) == PassEnd::Complete)
            break;
        EXPECT_GE(results.DuplicateEntries.size(), invalid) << end;
        EXPECT_GE(results.MissingEntries.size(), most) << end;
        EXPECT_FALSE(closingReport(frame, {}, options, results).empty());
        invalid = results.DuplicateEntries.size();
        most = results.MissingEntries.size();
    }
    EXPECT_EQ(most, 3u);
    EXPECT_EQ(invalid, 1u);
}

TEST_F(Verification, WhatCantBeOpenedAddsNothing) {
    put("F\\a.wag", wagon(""));
    VerifSelection selection = listCandidates(frame, VerifiedKind::Wagons, {});
    selection.chosen = {0};
    files.deleteFile(inTrainset("F\\a.wag"));
    RunVerification(frame, selection, options, results);
    EXPECT_THAT(results.InvalidFiles, IsEmpty());
    EXPECT_THAT(mandatory(), IsEmpty());
    EXPECT_EQ(results.counters.files, 1);
}

TEST_F(Verification, TheClosingReportCountsEachKindOfFault) {
    state.Language = "English";
    const VerifSelection selection;
    const auto report = [&] { return closingReport(frame, selection, options, results); };
    EXPECT_EQ(report(), "The check is finished.\r\nInvalid files: 0\r\n");
    results.mandatory = {{"F", "a.wag", "Size"}};
    EXPECT_THAT(report(), HasSubstr("mandatory keys are missing"));
    results.DuplicateEntries.resize(2);
    results.MissingEntries = {{MissingKind::Sound, "a", "a", "b", {{"x", "", 1}, {"X", "", 3}}}};
    results.counters.MissingSounds = 2;
    results.counters.MissingTextures = 1;
    results.counters.QuoteRepairCount = 3;
    results.counters.QuoteRepairFailures = 1;
    results.counters.RepairedSoundFiles = 1;
    results.mandatory.clear();
    EXPECT_EQ(report(), "The check is finished.\r\n"
                        "The checked files are valid, but they name files that cannot be found.\r\n"
                        "2 duplicate files\r\n1 sound file repaired\r\n1 missing texture\r\n"
                        "1 missing sound, named 2 times in 1 sound set (*.sms file).\r\n"
                        "3 lines 'Sound ( xxx )' repaired: the quotes were missing\r\n"
                        "1 line could not be repaired\r\n");
    results.InvalidFiles.resize(1);
    options.CheckSounds = options.RepairSounds = true;
    EXPECT_THAT(report(), testing::AllOf(HasSubstr("Invalid files: 1\r\n"), HasSubstr("exist in no folder"),
                                         testing::Not(HasSubstr("could not be repaired\r\n1"))));
}

} // namespace
} // namespace zandor
