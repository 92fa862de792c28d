#include "verify/repair_sounds.h"

#include "target_fixture.h"

#include <algorithm>

namespace zandor {

struct SoundSetRepair : TargetFixture {
    SoundSetRepair() {
        files.put(inTrainset("B\\Sound\\Here.wav"), "");
        files.put(inTrainset("C\\SOUND\\here.wav"), "");
        files.put(inTrainset("C\\SOUND\\only_c.wav"), "");
        files.put(inTrainset("D (2)\\Sound\\only_d.wav"), "");
    }
    void putSet(const std::string& path, const std::string& body,
                TextEncoding encoding = TextEncoding::Utf16) {
        files.put(path, text(body, FileKind::Sound, encoding));
    }
    SoundRepair repair(std::vector<CheckTarget> targets) {
        work->queues.RepairTargets = std::move(targets);
        return RepairSoundFiles(*work);
    }
    std::string bodyOf(const std::string& path) {
        std::string decoded;
        decodeSimulatorText(files.get(path).value_or(""), decoded);
        return decoded.substr(std::min(decoded.size(), decoded.find('\n') + 1));
    }
};

TEST_F(SoundSetRepair, WritesTheWayToTheFirstWaveOfThatName) {
    struct Row {
        const char *folder, *before, *after; // folder of the set
    };
    const std::string a = inTrainset("A\\Sound\\"), own = "\\sim\\Sound\\",
                      deep = inTrainset("A\\Sound\\sub\\");
    const Row rows[] = {
        {a.c_str(), "File ( \"here.wav\" )", "File ( \"../../B/Sound/here.wav\" )"},
        {a.c_str(), "File ( \"q\\x/Here.WAV\" -1 ) // é", "File ( \"../../B/Sound/Here.WAV\" -1 ) // é"},
        {a.c_str(), "File ( \" only_c.wav \" )", "File ( \" ../../C/Sound/only_c.wav \" )"},
        {a.c_str(), "File ( \"..\\..\\C\\Sound\\here.wav\" )", "File ( \"..\\..\\C\\Sound\\here.wav\" )"},
        {a.c_str(), "File ( \"q\\Default.wav\" )", "File ( \"Default.wav\" )"},
        {a.c_str(), "File ( \"default.wav\" )", "File ( \"default.wav\" )"},
        {a.c_str(), "File ( \"q\\gone.wav\" )", "File ( \"q\\gone.wav\" )"},
        {a.c_str(), "File(\"x/here.wav\")File(\"gone.wav\")File(\"y/only_c.wav\")",
         "File(\"../../B/Sound/here.wav\")File(\"gone.wav\")File(\"../../C/Sound/only_c.wav\")"},
        {a.c_str(), "Comment ( \"file here.wav\" )", "Comment ( \"file here.wav\" )"},
        {a.c_str(), "File ( only_d.wav ) \"", "File ( \"../../D (2)/Sound/only_d.wav\" ) \""},
        {own.c_str(), "File ( \"here.wav\" )", "File ( \"../TRAINS/TRAINSET/B/Sound/here.wav\" )"},
        {deep.c_str(), "File ( \"here.wav\" )", "File ( \"../../../B/Sound/here.wav\" )"},
    };
    for (const Row& row : rows) {
        const std::string path = std::string(row.folder) + "x.sms";
        for (const TextEncoding encoding : {TextEncoding::Utf16, TextEncoding::Windows1252}) {
            beginPass();
            const std::string before =
                text("\tA ( 1 )\n" + std::string(row.before) + "\rB", FileKind::Sound, encoding);
            files.put(path, before);
            const SoundRepair result = repair({{row.folder, "A\\Sound\\", "x.sms"}});
            EXPECT_EQ(*files.get(path),
                      text("\tA ( 1 )\n" + std::string(row.after) + "\rB", FileKind::Sound, encoding));
            EXPECT_EQ(result.repaired, *files.get(path) == before ? 0 : 1) << row.before;
            CheckSoundFile(*work, {row.folder, "A\\Sound\\", "x.sms"});
            const bool lasts = std::string_view(row.before).find("gone") != std::string_view::npos;
            EXPECT_EQ(missing().size(), lasts ? 1u : 0u) << row.before;
        }
        EXPECT_EQ(std::count_if(files.log.begin(), files.log.end(),
                                [](const std::string& call) { return call.starts_with("writeFile"); }),
                  std::string_view(row.before) == row.after ? 0 : 2)
            << "what wouldn't change isn't written: " << row.before;
        files.log.clear();
    }
}

TEST_F(SoundSetRepair, OneSetOfSeveralStocksIsRepairedAndCountedOnce) {
    putSet(inTrainset("A\\Sound\\x.sms"), "File ( \"here.wav\" )");
    const SoundRepair result = repair(
        {soundTarget("A", "x.sms"), soundTarget("a", "X.SMS"), soundTarget("B", "..\\..\\A/Sound\\x.sms")});
    EXPECT_EQ(result.repaired, 1);
    EXPECT_TRUE(result.failed.empty());
    EXPECT_EQ(progress.steps.back().text, frame.text(Message{388}, {{"|1", "..\\..\\A/Sound\\x.sms"}}));
}

TEST_F(SoundSetRepair, LeavesAloneWhatIsNotItsOwn) {
    putSet("\\elsewhere\\x.sms", "File ( \"here.wav\" )");
    files.put(inTrainset("A\\Sound\\packed.sms"), "SIMISA@F File ( \"here.wav\" )");
    const std::string outside = *files.get("\\elsewhere\\x.sms");
    const SoundRepair result = repair({soundTarget("A", "..\\..\\..\\..\\..\\elsewhere\\x.sms"),
                                       soundTarget("A", "packed.sms"), soundTarget("A", "gone.sms")});
    EXPECT_EQ(result.repaired, 0);
    EXPECT_EQ(result.failed.size(), 1u);
    EXPECT_EQ(*files.get("\\elsewhere\\x.sms"), outside);
    putSet("\\author\\Sound\\x.sms", "File ( \"q/default.wav\" )");
    EXPECT_EQ(repair({{"\\author\\Sound\\", "author\\Sound\\", "x.sms"}}).repaired, 1)
        << "a folder that is checked where it lies is its author's";
}

TEST_F(SoundSetRepair, ANameThatTheEncodingLacksIsNotWritten) {
    files.put(inTrainset("Łódź\\Sound\\polish.wav"), "");
    putSet(inTrainset("A\\Sound\\x.sms"), "File ( \"polish.wav\" )", TextEncoding::Windows1252);
    const std::string before = *files.get(inTrainset("A\\Sound\\x.sms"));
    EXPECT_EQ(repair({soundTarget("A", "x.sms")}).failed, (Rows{inTrainset("A\\Sound\\x.sms")}));
    EXPECT_EQ(*files.get(inTrainset("A\\Sound\\x.sms")), before);
}

TEST_F(SoundSetRepair, AFailingDiskLeavesOldOrNewBytesAndTheAttributes) {
    const std::string path = inTrainset("A\\Sound\\x.sms");
    const std::string before = text("File ( \"here.wav\" )", FileKind::Sound);
    // Of a folder that can't be listed, nothing is known.
    const Rows after = {text("File ( \"../../B/Sound/here.wav\" )", FileKind::Sound),
                        text("File ( \"../../C/Sound/here.wav\" )", FileKind::Sound)};
    bool failed = true;
    for (int call = 1; failed; ++call) {
        for (const bool andAllAfter : {false, true}) {
            beginPass();
            files.put(path, before);
            files.setAttributes(path, {true});
            files.failAt(call, andAllAfter);
            const SoundRepair result = repair({soundTarget("A", "x.sms")});
            failed = files.failed();
            files.failAt(0);
            const bool isNew = std::count(after.begin(), after.end(), *files.get(path)) == 1;
            EXPECT_TRUE(result.repaired == 1 ? isNew : *files.get(path) == before) << call;
            EXPECT_TRUE(files.attributes(path).readOnly);
            EXPECT_TRUE(failed || result.repaired == 1);
        }
        ASSERT_LT(call, 100);
    }
}

TEST_F(SoundSetRepair, ThePlantedFaultsAreFoundAndRepaired) {
    const std::string trainset = "demo/Train Simulator/Trains/trainset/";
    for (const char* file :
         {"Yard_Faults\\Sound\\snd_moved.sms", "Yard_Faults\\Sound\\snd_nowhere.sms",
          "Yard_Faults\\Cabview\\shp_cab.cvf", "Yard_Faults\\Cabview\\shp_front.ace",
          "Yard_Faults\\shp_textures.s", "Yard_Faults\\shp_empty.s", "Yard_Faults\\shp_here.ace",
          "OrmeCoach\\Sound\\coach_joint.wav", "OrmeDiesel\\odx12.ace"}) {
        std::string path = trainset + file;
        std::replace(path.begin(), path.end(), '\\', '/');
        files.put(inTrainset(file), readSourceFile(path));
    }
    files.put("\\sim\\Sound\\horn_low.wav", "");
    for (const char* file : {"shp_textures.s", "shp_empty.s", "Cabview\\shp_cab.cvf"})
        CheckShapeFile(*work, shapeTarget("Yard_Faults", file));
    EXPECT_EQ(missing(),
              (Rows{"Yard_Faults\\shp_textures.s|shp_gone.ace|image ( shp_gone.ace )|7",
                    "Yard_Faults\\shp_textures.s|\"shp gone #2.ace\"|image ( \"shp gone #2.ace\" )|8",
                    "Yard_Faults\\shp_empty.s|Yard_Faults\\shp_empty.s|ZERO_OCTET_FILE|0",
                    "Yard_Faults\\Cabview\\shp_cab.cvf|\"shp_left_gone.ace\"|"
                    "CabViewFile ( \"shp_left_gone.ace\" )|6"}));
    const CheckTarget moved = soundTarget("Yard_Faults", "snd_moved.sms"),
                      nowhere = soundTarget("Yard_Faults", "snd_nowhere.sms");
    for (const std::size_t left : {2u, 1u}) { // the second pass follows the repair
        beginPass();
        CheckSoundFile(*work, moved);
        CheckSoundFile(*work, nowhere);
        EXPECT_EQ(results.MissingEntries.size(), left);
        EXPECT_EQ(results.MissingEntries.back().Items.at(0).Name, "snd_nowhere.wav");
        EXPECT_EQ(repair({moved, nowhere}).repaired, left == 2 ? 1 : 0);
    }
    EXPECT_NE(bodyOf(inTrainset("Yard_Faults\\Sound\\snd_moved.sms"))
                  .find("\"../../OrmeCoach/Sound/coach_joint.wav\" -1"),
              std::string::npos);
}

TEST_F(SoundSetRepair, EndsWhenTheUserWishes) {
    for (const char* file : {"x.sms", "y.sms"})
        putSet(inTrainset("A\\Sound\\") + file, "File ( \"here.wav\" )");
    progress.cancelAtYield = 6; // four stock folders, then the sets
    const SoundRepair result = repair({soundTarget("A", "x.sms"), soundTarget("A", "y.sms")});
    EXPECT_FALSE(result.done);
    EXPECT_EQ(result.repaired, 1);
    EXPECT_EQ(bodyOf(inTrainset("A\\Sound\\y.sms")), "File ( \"here.wav\" )");
}

} // namespace zandor
