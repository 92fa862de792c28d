// The script that opens the user's own editor, run with editors that write down what they were called with.
#include "platform/processes.h"
#include "platform/real_file_system.h"
#include "support/fakes.h"
#include "verify/recheck.h"
#include "verify/result_lists.h"

#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <random>
#include <thread>

namespace zandor {
namespace {

namespace fs = std::filesystem;

struct EditorScript : ::testing::Test {
    const fs::path folder =
        fs::temp_directory_path() / ("zandor_editor_" + std::to_string(std::random_device{}()));

    EditorScript() {
        fs::create_directories(folder / "my programs");
        for (const char* tool : {"basename", "grep", "head", "sed", "sleep"}) // and no editor of this system
            fs::create_symlink(fs::exists(fs::path("/bin") / tool) ? fs::path("/bin") / tool
                                                                   : fs::path("/usr/bin") / tool,
                               folder / tool);
        for (const char* name : {"ZANDOR_EDITOR", "VISUAL", "DISPLAY", "WAYLAND_DISPLAY"})
            keep(name, nullptr);
        keep("PATH", folder.c_str());
    }
    ~EditorScript() override {
        for (const auto& [name, value] : kept_)
            set(name, value ? value->c_str() : nullptr);
        fs::remove_all(folder);
    }
    // One that takes a moment before it writes: who doesn't wait for it finds nothing.
    void makeEditor(const std::string& name) {
        std::ofstream(folder / name) << "#!/bin/sh\nsleep 0.05\nprintf '<%s>' \"${0##*/}\" \"$@\" >'"
                                     << (folder / "called").string() << "'\nexit 3\n";
        fs::permissions(folder / name, fs::perms::owner_all);
    }
    // What the editor was called with; the exit code when there was none.
    std::string call(const std::vector<std::string>& arguments) {
        fs::remove(folder / "called");
        const auto process = makeSystemProcesses()->start(ZANDOR_SOURCE_DIR "/packaging/Skrivo", arguments);
        EXPECT_TRUE(process);
        while (process && !process->exitCode())
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        std::ifstream in(folder / "called");
        const std::string called{std::istreambuf_iterator<char>(in), {}};
        return called.empty() && process ? std::to_string(*process->exitCode()) : called;
    }
    static void set(const std::string& name, const char* value) {
        if (value)
            ::setenv(name.c_str(), value, 1);
        else
            ::unsetenv(name.c_str());
    }

  private:
    void keep(const std::string& name, const char* value) {
        const char* old = std::getenv(name.c_str());
        kept_.emplace_back(name, old ? std::optional<std::string>(old) : std::nullopt);
        set(name, value);
    }
    std::vector<std::pair<std::string, std::optional<std::string>>> kept_;
};

TEST_F(EditorScript, AnyPathAndTextReachTheEditorWhole) {
    makeEditor("kate");
    set("ZANDOR_EDITOR", "kate");
    struct Case {
        const char* path;
        const char* text;
    };
    for (const Case& one : {Case{"/a b/Élan \"x\" 'y'.eng", "old value"}, Case{"/a$(id)`id`*.wag", "/ 7 / §"},
                            Case{"/x\\y.eng", "-1"}, Case{"/§ / 9 -1", "%s\\n"}})
        EXPECT_EQ(call(editorArguments(one.path, one.text, 12)),
                  std::string("<kate><--block><--line=12><") + one.path + ">");
    EXPECT_EQ(call(editorArguments("/plain.eng", "", 0)), "<kate><--block></plain.eng>");
    EXPECT_EQ(call({"-odd.eng", "-1"}), "<kate><--block><./-odd.eng>");
    EXPECT_EQ(call({"/x.eng", "/§", "t", "/", "not a number", "-1"}), "<kate><--block></x.eng>");
}

TEST_F(EditorScript, EachEditorIsToldTheLineInItsOwnWay) {
    struct Case {
        const char* name;
        const char* called;
    };
    for (const Case& one :
         {Case{"gedit", "<gedit><--wait><+5></f>"}, Case{"geany", "<geany><--new-instance><--line=5></f>"},
          Case{"code", "<code><--wait><--goto></f:5>"},
          Case{"featherpad", "<featherpad><--standalone><+5></f>"}, Case{"subl", "<subl><--wait></f:5>"},
          Case{"vim", "<vim><+5></f>"}, Case{"unheard-of", "<unheard-of></f>"},
          Case{"mousepad", "<mousepad><--disable-server></f>"}}) { // whose help tells of no lines
        makeEditor(one.name);
        set("ZANDOR_EDITOR", one.name);
        EXPECT_EQ(call(editorArguments("/f", "text", 5)), one.called);
    }
}

TEST_F(EditorScript, TheUsersChoiceComesBeforeWhatIsInstalled) {
    makeEditor("kate");
    makeEditor("geany");
    makeEditor("my programs/own editor");
    set("VISUAL", "geany -m");
    EXPECT_EQ(call({"/f", "-1"}), "<geany><-m><--new-instance></f>");
    set("ZANDOR_EDITOR", (folder / "my programs/own editor").c_str());
    EXPECT_EQ(call({"/f", "-1"}), "<own editor></f>");
    set("ZANDOR_EDITOR", "not-there");
    EXPECT_EQ(call({"/f", "-1"}), "<geany><-m><--new-instance></f>");
    set("VISUAL", nullptr);
    EXPECT_EQ(call({"/f", "-1"}), "<kate><--block></f>");
}

struct ShortWait final : EditorWait {
    bool wait(std::chrono::milliseconds time) override {
        std::this_thread::sleep_for(time);
        return true;
    }
};

TEST_F(EditorScript, AFaultThatTheUserMendsThereLeavesTheList) {
    const std::string path = (folder / "M/Trains/Trainset/Coal cars/Élan #1.wag").string();
    fs::create_directories(fs::path(path).parent_path());
    std::ofstream(path)
        << "SIMISA@@@@@@@@@@JINX0D0t______\r\n\r\nWagon ( X\r\n Type ( Fright )\r\n"
           " Size ( 1m 2m 3m )\r\n Mass ( 9t )\r\n Coupling (\r\n  Type ( Bar )\r\n )\r\n)\r\n";
    std::ofstream(folder / "mender") << "#!/bin/sh\nsed -i \"s/Fright/Freight/\" \"$1\"\n";
    fs::permissions(folder / "mender", fs::perms::owner_all);
    set("ZANDOR_EDITOR", "mender");

    TestFrame test;
    const auto files = makeRealFileSystem("");
    const auto processes = makeSystemProcesses();
    Frame frame{test.state, *files,       test.profiles, test.registry,
                *processes, test.dialogs, test.progress, Language(test.profiles, test.state)};
    test.state.ProgramFolder = ZANDOR_SOURCE_DIR "/packaging";
    test.state.roots.RootMSTS = (folder / "M").string();
    Catalogue catalogue;
    const VerifOptions options;
    VerifResults results;
    VerifWork work{frame, options, results};
    CheckStockFile(work, "Coal cars", "Élan #1.wag");
    ASSERT_EQ(results.InvalidFiles.size(), 1u);
    const InvalidFile faulty = results.InvalidFiles[0];
    ShortWait wait;
    const EditorRun run =
        editAndRecheck(work, catalogue, invalidPath(faulty), invalidPath(faulty), &faulty.Lines.at(0), wait);
    EXPECT_TRUE(run.done && run.changed);
    EXPECT_TRUE(results.InvalidFiles.empty());
    EXPECT_TRUE(results.mandatory.empty());
}

TEST_F(EditorScript, WithoutAnEditorItSaysSo) {
    set("VISUAL", "not-there");
    EXPECT_EQ(call({"/f", "-1"}), std::to_string(EditorLaunchFailed));
}

} // namespace
} // namespace zandor
