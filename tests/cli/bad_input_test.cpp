// What the program says when it is called wrongly.
#include "cli_fixture.h"
#include "platform/memory_file_system.h"

#include <new>

namespace zandor {
namespace {

using testing::HasSubstr;

class BadInput : public CliTest {};

TEST_F(BadInput, IsToldInOneLine) {
    putBytes(at("garbage.wag"), std::string("\xFF\xFE\0\0\1\2\3", 7));
    putBytes(at("wrong.con"), "SIMISA@@@@@@@@@@JINX0s1t______\r\n");
    putBytes(at("empty.con"), "");
    putBytes(at("notes.txt"), "text");
    struct Case {
        Args args;
        int exitCode;
        std::string told;
    };
    const Case cases[] = {
        {{}, 2, "command"},
        {{""}, 2, "command"},
        {{"polish"}, 2, "polish"},
        {{"--polish"}, 2, "--polish"},
        {{"keys"}, 2, "FILE"},
        {{"keys", at("notes.txt"), at("notes.txt")}, 2, "notes.txt"},
        {{"keys", ""}, 2, "no file"},
        {{"keys", at("none.wag")}, 2, "none.wag"},
        {{"keys", at("a \"quoted\" name.wag")}, 2, "a \"quoted\" name.wag"},
        {{"keys", at("two\nlines\x1B[31m\x7F\xC2\x9B.wag")}, 2, "two\\nlines\\x1b[31m\\x7f\\x9b.wag"},
        {{"pol\tish\x9B"}, 2, "pol\\tish\\x9b"},
        {{"keys", at("home")}, 2, "home"},
        {{"keys", at("notes.txt")}, 1, "notes.txt"},
        {{"keys", at("garbage.wag")}, 1, "garbage.wag"},
        {{"keys", at("wrong.con")}, 1, "wrong.con"},
        {{"keys", at("empty.con")}, 1, "empty.con"},
        {{"keys", at("wrong.con"), "--count", "many"}, 2, "--count"},
        {{"keys", at("wrong.con"), "--count", "-1"}, 2, "--count"},
        {{"keys", at("wrong.con"), "--stock", "--key", "Name"}, 2, "--stock"},
        {{"stock"}, 2, "FILE"},
        {{"consist", at("none.con")}, 2, "none.con"},
        {{"consist", at("wrong.con")}, 1, "wrong.con"},
        {{"consist", stockPath("Diesels/Loco.eng")}, 1, "Loco.eng"},
        {{"catalogue", "--primary", "both", "--root", root()}, 2, "both"},
        {{"catalogue", "--root", root(), "--language", "Klingon"}, 2, "Klingon"},
        {{"catalogue", "--root", root(), "--settings", at("none.ini")}, 2, "none.ini"},
        {{"catalogue", "--root"}, 2, "--root"},
        {{"compose", "name", "--root", root()}, 2, "FOLDER/FILE"},
        {{"compose", "na\x7Fme", "x/y", "--root", root()}, 2, "na\\x7fme"},
        {{"open", "none", "--root", root()}, 2, "none"},
        {{"open", at("wrong.con"), "--root", root()}, 1, "wrong.con"},
    };
    for (const Case& c : cases) {
        const Ran ran = run(c.args);
        const std::string shown = testing::PrintToString(c.args) + ": " + ran.err;
        EXPECT_EQ(ran.exitCode, c.exitCode) << shown;
        EXPECT_EQ(ran.out, "") << shown;
        EXPECT_TRUE(isOneLine(ran.err)) << shown;
        EXPECT_THAT(ran.err, HasSubstr(c.told)) << shown;
    }
}

TEST_F(BadInput, NamesWithBlanksQuotesAndDashesAreNames) {
    for (const char* name :
         {"a \"quoted\" name.wag", "'single'.wag", "-dash.wag", "a,b;c.wag", "été.wag", "keys"}) {
        const std::string path = at(name) + (std::string(name) == "keys" ? ".wag" : "");
        putSim(path, wagonText("w"));
        EXPECT_EQ(run({"keys", path}).exitCode, 0) << path;
        EXPECT_EQ(run({"stock", "--", path}).json()[0]["FileName"], GetFileName(path));
    }
}

TEST_F(BadInput, HelpComesAtEveryLevelAndNeedsNoLanguageFile) {
    std::ostringstream out, err;
    const ProgramFolders nowhere{at("home"), at("home"), "zandor-cli"};
    for (const Args& args : {Args{"--help"}, Args{"stock", "-h"}, Args{"open", "--help"}}) {
        out.str({});
        EXPECT_EQ(runCommandLine(args, {*files, registry, processes, nowhere}, out, err), 0);
        EXPECT_THAT(out.str(), HasSubstr(args.size() > 1 ? args[0] : "compose"));
    }
    EXPECT_EQ(err.str(), "");

    EXPECT_EQ(runCommandLine({"keys", "x.wag"}, {*files, registry, processes, nowhere}, out, err), 2);
    EXPECT_THAT(err.str(), HasSubstr(std::string(LanguageFileMissing)));
}

// Memory runs out at each call of the disk in turn.
TEST_F(BadInput, MemoryThatRunsOutIsToldWithTheFileAndLeavesNoHalfOfAResult) {
    MemoryFileSystem disk;
    const std::string tree = "/msts/TRAINS/TRAINSET/A/";
    disk.put("/lang/Langues.lng", bytesOf(ZANDOR_SOURCE_DIR "/src/frame/Langues.lng"));
    for (const char* name : {"one.wag", "two.wag"})
        disk.put(tree + name, bytesOf(stockPath("Old Coaches/Bar.wag")));
    for (const Args& args : {Args{"stock", tree + "one.wag", tree + "two.wag"},
                             Args{"keys", tree + "two.wag"}, Args{"catalogue", "--list", "--root", "/msts"},
                             Args{"compose", "two.wag", "A/one", "--root", "/msts"}}) {
        std::string told;
        for (int call = 1;; ++call) {
            int calls = 0;
            disk.atEachCall = [&] { ++calls == call ? throw std::bad_alloc() : void(); };
            std::ostringstream out, err;
            const int exitCode =
                runCommandLine(args, {disk, registry, processes, {"/home", "/lang", "zandor-cli"}}, out, err);
            if (calls < call)
                break;
            EXPECT_EQ(exitCode, 2);
            EXPECT_EQ(out.str(), "");
            EXPECT_TRUE(isOneLine(err.str())) << err.str();
            EXPECT_THAT(err.str(), HasSubstr("not enough memory for /"));
            told += err.str();
        }
        EXPECT_THAT(told, HasSubstr("two.wag")) << args.front();
    }
}

TEST_F(BadInput, OutputThatCannotBeWrittenIsNoSuccess) {
    std::ostringstream out, err;
    out.setstate(std::ios::badbit);
    const ProgramFolders folders{at("home"), ZANDOR_SOURCE_DIR "/src/frame", "zandor-cli"};
    EXPECT_EQ(runCommandLine({"consist", consistPath("local.con")}, {*files, registry, processes, folders},
                             out, err),
              2);
    EXPECT_TRUE(isOneLine(err.str())) << err.str();
}

} // namespace
} // namespace zandor
