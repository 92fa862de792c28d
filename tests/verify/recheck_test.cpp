#include "verify/recheck.h"

#include "verify/results_fixture.h"

namespace zandor {
namespace {

using Names = std::vector<std::string>;

// Counts the waits, and does something at one of them.
struct FakeWait final : EditorWait {
    int waits = 0, at = 1;
    std::function<void()> edit = [] {};
    bool stays = true;

    bool wait(std::chrono::milliseconds time) override {
        EXPECT_EQ(time, EditorWaitStep);
        if (++waits == at)
            edit();
        return stays;
    }
};

struct Recheck : ResultsTest {
    FakeWait wait;

    // An editor that ends with `code` when it has been asked after `asked` times.
    void editorEnds(int code, int asked = 3) {
        files.put("\\program\\Skrivo", "");
        processes.exitCode = [code, left = asked]() mutable {
            return --left > 0 ? std::nullopt : std::optional(code);
        };
    }
    EditorRun edit(std::string_view name, const ErrorLine* line = nullptr) {
        return editAndRecheck(work, catalogue, wagonPath(name), wagonPath(name), line, wait);
    }
};

TEST_F(Recheck, AFileThatIsSoundNowLeavesTheListAndTheCatalogueFollows) {
    putWagon("b.wag", "Freight");
    EXPECT_EQ(RecheckAfterEdit(work, catalogue, wagonPath("B.WAG")), std::nullopt);
    EXPECT_EQ(invalid(), (Names{"a.wag", "c.wag"}));
    EXPECT_EQ(stock("b.wag")->Type, "Freight");
    EXPECT_TRUE(work.queues.ShapeTargets.empty());
}

TEST_F(Recheck, AFileThatIsStillFaultyKeepsItsPlaceWithFreshLines) {
    putWagon("b.wag", "Worse");
    EXPECT_EQ(RecheckAfterEdit(work, catalogue, wagonPath("b.wag")), 1);
    EXPECT_EQ(invalid(), (Names{"a.wag", "b.wag", "c.wag"}));
    ASSERT_EQ(results.InvalidFiles[1].Lines.size(), 1u);
    EXPECT_EQ(results.InvalidFiles[1].Lines[0].Value, "Worse");
    putWagon("sound.wag", "Bad"); // one that had no fault comes last
    EXPECT_EQ(RecheckAfterEdit(work, catalogue, wagonPath("sound.wag")), 3);
}

TEST_F(Recheck, MandatoryKeysAreLookedForAnew) {
    files.put(wagonPath("a.wag"), simText("Wagon ( X\r\n\tType ( Freight )\r\n)\r\n"));
    RecheckAfterEdit(work, catalogue, wagonPath("a.wag"));
    EXPECT_EQ(results.mandatory.size(), 3u);
    RecheckAfterEdit(work, catalogue, wagonPath("a.wag"));
    EXPECT_EQ(results.mandatory.size(), 3u);
    putWagon("a.wag", "Freight");
    RecheckAfterEdit(work, catalogue, wagonPath("a.wag"));
    EXPECT_TRUE(results.mandatory.empty());
}

TEST_F(Recheck, AFileThatHasVanishedHasNoFaults) {
    files.deleteFile(wagonPath("a.wag"));
    EXPECT_EQ(RecheckAfterEdit(work, catalogue, wagonPath("a.wag")), std::nullopt);
    EXPECT_EQ(invalid(), (Names{"b.wag", "c.wag"}));
    EXPECT_TRUE(results.mandatory.empty());
    EXPECT_TRUE(dialogs.shown.empty());
}

TEST_F(Recheck, AConsistIsCheckedByItsPath) {
    CheckConsistFile(work, "used.con");
    putConsist("used.con", "a F");
    EXPECT_EQ(RecheckAfterEdit(work, catalogue, std::string(Consists) + "used.con"), std::nullopt);
    EXPECT_EQ(invalid(), (Names{"a.wag", "b.wag", "c.wag"}));
    EXPECT_EQ(countOf("gone.wag"), 1); // of the other consist
}

TEST_F(Recheck, TheEditorIsWaitedForAndAChangedFileIsCheckedAgain) {
    editorEnds(0, 4);
    wait.edit = [this] { putWagon("a.wag", "Freight"); };
    const ErrorLine fault = results.InvalidFiles[0].Lines[0];
    const EditorRun run = edit("a.wag", &fault);
    EXPECT_TRUE(run.done && run.changed && run.told.empty());
    EXPECT_EQ(wait.waits, 3);
    EXPECT_EQ(processes.started.at(0), (Names{"\\program\\Skrivo", wagonPath("a.wag"), "/§", "Fright", "/",
                                              std::to_string(fault.Line), "-1"}));
    EXPECT_EQ(invalid(), (Names{"b.wag", "c.wag"}));
}

TEST_F(Recheck, AnUnchangedFileIsNotCheckedAgain) {
    editorEnds(3); // whatever it says of itself
    results.InvalidFiles[0].Name = "mark";
    const EditorRun run = edit("a.wag");
    EXPECT_TRUE(run.done && !run.changed);
    EXPECT_EQ(results.InvalidFiles[0].Name, "mark");
    EXPECT_EQ(processes.started.at(0), (Names{"\\program\\Skrivo", wagonPath("a.wag"), "-1"}));
}

TEST_F(Recheck, AWindowThatIsGoneEndsTheWaitWithoutARecheck) {
    editorEnds(0, 100);
    wait.edit = [this] { putWagon("a.wag", "Freight"); };
    wait.stays = false;
    const EditorRun run = edit("a.wag");
    EXPECT_FALSE(run.done || run.changed);
    EXPECT_EQ(wait.waits, 1);
    EXPECT_EQ(invalid().size(), 3u);
}

TEST_F(Recheck, AnEditorThatIsMissingOrFailsIsTold) {
    const EditorRun missing = edit("a.wag");
    EXPECT_FALSE(missing.done);
    EXPECT_EQ(missing.told.at(0).message, message::EditorMissing);
    EXPECT_TRUE(processes.started.empty());
    editorEnds(EditorLaunchFailed);
    EXPECT_EQ(edit("a.wag").told.at(0).message, message::EditorFailed);
    processes.works = false;
    EXPECT_EQ(edit("a.wag").told.at(0).message, message::EditorFailed);
}

TEST_F(Recheck, AnEditorThatDoesNotStartGivesWayToTheNextOne) {
    state.ExecutableFolder = "\\usr\\bin";
    for (const char* path : {"\\program\\Skrivo.exe", "\\usr\\bin\\Skrivo", "\\program\\Skrivo"})
        files.put(path, "");
    EXPECT_EQ(editorPrograms(frame),
              (Names{"\\program\\Skrivo.exe", "\\program\\Skrivo", "\\usr\\bin\\Skrivo"}));
    processes.works = false;
    EXPECT_EQ(edit("a.wag").told.at(0).message, message::EditorFailed);
    EXPECT_EQ(processes.started.size(), 3u);
}

TEST(ExternalEditor, ArgumentsAreNeverCutApart) {
    EXPECT_EQ(editorArguments("/a b/é \"c\".eng", "old \"value\" / §", 7),
              (Names{"/a b/é \"c\".eng", "/§", "old \"value\" / §", "/", "7", "-1"}));
    EXPECT_EQ(editorArguments("/f", "x", 0), (Names{"/f", "-1"}));
    EXPECT_EQ(editorArguments("/f", "", 3), (Names{"/f", "-1"}));
}

} // namespace
} // namespace zandor
