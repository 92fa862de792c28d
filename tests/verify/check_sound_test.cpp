#include "target_fixture.h"
#include "verify/sound_scan.h"

namespace zandor {

using SoundCheck = TargetFixture;

namespace {

// "name|line" of each.
std::vector<std::string> wavesOf(std::string_view body) {
    const std::string whole = "signature \"file.wav\"\r\n" + std::string(body);
    std::vector<std::string> rows;
    for (const WaveName& wave : findWaves(whole))
        rows.push_back(textOf(whole, wave) + "|" + std::to_string(wave.number));
    return rows;
}

} // namespace

TEST(SoundScan, FindsTheNamesOfWaves) {
    struct Row {
        const char* body;
        std::vector<std::string> found;
    };
    const Row rows[] = {
        {"File ( \"a.wav\" -1 )\r\n\tFILE\t(\t\" b c.WAV\" )\n", {"a.wav|2", "b c.WAV|3"}},
        {"file ( a.wav )", {}},
        {"file ( a.wav ) file ( \"b.wav\" )", {"a.wav|2", "b.wav|2"}},
        {"File(\"a.wav\" -1)File ( \"..\\\\x\\b.wav\" ) File(\"c.wav\")",
         {"a.wav|2", "..\\\\x\\b.wav|2", "c.wav|2"}},
        {"File ( \"a.wav \" ) File ( \"b.wav\" )", {"a.wav|2", "b.wav|2"}},
        {"Name ( \"horn\" ) File ( \"a.wav\" )", {"a.wav|2"}},
        {"\"a.wav\" file (", {}},
        {"Comment ( \"file a.wav\" ) File ( \"b.wav\" )", {"b.wav|2"}},
        {"SKIP ( File ( \"a.wav\" ) File ( \"b.wav\" ) )", {}},
        {"Skip ( :-( File ( \"a.wav\" ) File ( \"b.wav\" )", {"b.wav|2"}},
        {"Skip (\n File ( \"a.wav\" )\n Stream ( \")\" 1 )\n)\nFile ( \"b.wav\" )", {"b.wav|6"}},
        {"Skip (\nFile ( \"a.wav\"", {"a.wav|3"}},
        {"File ( \"skip.wav\" ) File ( \"comment (1).wav\" )", {"skip.wav|2", "comment (1).wav|2"}},
        {"File ( \"\" .wav", {".wav|2"}},
        {"\"file\\.wav\" )", {}},
        {"", {}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(wavesOf(row.body), row.found) << row.body;
}

TEST(SoundScan, GarbageEndsQuickly) {
    const auto repeated = [](std::string_view text) {
        std::string all;
        while (all.size() < 3000000)
            all += text;
        return all;
    };
    for (const char* garbage : {"skip(", "comment ( .wav", "file (\"x.wav", "file (x.wav ", ".wav",
                                "skip ( \"", "skip\n(\n", "\"", "skip (\nfile \".wav\n"})
        wavesOf(repeated(garbage) + ")");
}

TEST_F(SoundCheck, LooksWhereTheSimulatorDoes) {
    files.put(inTrainset("A\\Sound\\Own.wav"), "");
    files.put(inTrainset("B\\Sound\\b1.wav"), "");
    files.put(inTrainset("B\\Sound\\b2.wav"), "");
    files.put(inTrainset("A\\SOUND\\x.sms"),
              text("File ( \"own.WAV\" )\r\nFile ( \"../../b/sound/b1.wav\" )\r\nFile ( \"b2.wav\" )\r\n"
                   "File ( \"else\\DEFAULT.wav\" )\r\n\tFile ( \"gone1.wav\" ) File ( \"q/gone2.wav\" )\r\n"
                   "File ( \"q\\gone3.wav\" )\r\n",
                   FileKind::Sound));
    CheckSoundFile(*work, soundTarget("A", "x.sms"));
    EXPECT_EQ(missing(), (Rows{"A\\Sound\\x.sms|gone1.wav     -     gone2.wav|"
                               "File ( \"gone1.wav\" ) File ( \"q/gone2.wav\" )|6",
                               "A\\Sound\\x.sms|gone3.wav|File ( \"q\\gone3.wav\" )|7"}));
    EXPECT_EQ(results.MissingEntries[0].File, "x.sms");
    EXPECT_EQ(results.MissingEntries[0].Dir, inTrainset("A\\Sound\\"));
    files.put(inTrainset("A\\Sound\\y.sms"), text("File ( \"b2.wav\" )", FileKind::Sound));
    CheckSoundFile(*work, soundTarget("A", "y.sms"));
    EXPECT_EQ(results.MissingEntries.size(), 2u) << "the folder of a wave is remembered within one set";
}

TEST_F(SoundCheck, AWaveBesideItsSetIsThereHoweverTheSetIsNamed) {
    files.put(inTrainset("B\\Sound\\b.wav"), "");
    files.put(inTrainset("B\\Sound\\x.sms"), text("File ( \"b.wav\" )", FileKind::Sound));
    for (const char* name :
         {"..\\..\\B\\Sound\\x.sms", "..\\\\..\\\\b\\\\sound\\\\x.sms", "../../B/Sound/x.sms"})
        CheckSoundFile(*work, soundTarget("A", name));
    EXPECT_EQ(missing(), Rows{});
}

TEST_F(SoundCheck, TheMissingListLosesItsBlankEntriesAlone) {
    for (const char* owner : {"a", "", "b", "", ""})
        results.MissingEntries.push_back(
            {MissingKind::Sound, owner, {}, {}, {{"X.wav", "", 1}, {"x.WAV", "", 2}}});
    CompactMissingList(results);
    ASSERT_EQ(results.MissingEntries.size(), 2u);
    EXPECT_EQ(missing(), (Rows{"a|X.wav||1", "a|x.WAV||2", "b|X.wav||1", "b|x.WAV||2"}));
    EXPECT_EQ(countMissing(results, MissingKind::Sound), 4);
    EXPECT_EQ(countMissingOwners(results, MissingKind::Sound), 2);
    EXPECT_EQ(countDistinctNames(results, MissingKind::Sound), 1);
    EXPECT_EQ(countMissing(results, MissingKind::Texture), 0);
}

} // namespace zandor
