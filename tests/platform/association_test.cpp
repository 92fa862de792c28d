#include "platform/association.h"

#include "support/fakes.h"

#include <gtest/gtest.h>

#include <stdlib.h>

namespace zandor {
namespace {

const AssociationNames Names{"Rame", "&Ouvrir"};
const std::string Program = "/opt/zandor/bin/zandor";

class AssociationTest : public testing::Test {
  protected:
    AssociationTest() {
        if (const char* before = getenv("XDG_DATA_HOME"))
            old = before;
        setenv("XDG_DATA_HOME", "/home/me/data/", 1);
    }
    ~AssociationTest() override {
        old ? setenv("XDG_DATA_HOME", old->c_str(), 1) : unsetenv("XDG_DATA_HOME");
    }

    std::unique_ptr<FileAssociation> association() { return makeSystemAssociation(files, processes); }
    bool add(const std::string& executable = Program, const AssociationNames& names = Names) {
        return association()->add(executable, names);
    }
    bool remove(const std::string& executable = Program) { return association()->remove(executable); }

    std::string entry() const { return files.get(Entry).value_or("none"); }
    std::string type() const { return files.get(Type).value_or("none"); }
    // The value of a key of the desktop entry.
    std::string value(const std::string& key) const {
        const std::string text = entry();
        const std::size_t at = text.find("\n" + key + "=") + key.size() + 2;
        return text.substr(at, text.find('\n', at) - at);
    }
    int changes() const {
        int count = 0;
        for (const std::string& call : files.log)
            count += call.starts_with("writeFile") || call.starts_with("createFolder") ||
                     call.starts_with("deleteFile");
        return count;
    }

    std::optional<std::string> old; // of the environment
    const std::string Entry = "/home/me/data/applications/zandor.desktop";
    const std::string Type = "/home/me/data/mime/packages/zandor.xml";
    MemoryFileSystem files;
    FakeProcesses processes;
};

TEST_F(AssociationTest, IsAddedForThisUserAndTheDesktopIsTold) {
    files.put("/home/anchor", "");
    ASSERT_TRUE(add());
    EXPECT_EQ(value("Exec"), "\"/opt/zandor/bin/zandor\" %f");
    EXPECT_EQ(value("Comment"), "Rame");
    EXPECT_EQ(value("MimeType"), "application/x-msts-consist;");
    EXPECT_NE(type().find("<comment>Rame</comment>"), std::string::npos) << type();
    const std::vector<std::vector<std::string>> told{
        {"update-mime-database", "/home/me/data/mime"},
        {"update-desktop-database", "/home/me/data/applications"}};
    EXPECT_EQ(processes.started, told);
}

TEST_F(AssociationTest, ASecondStartChangesNothing) {
    files.put("/home/anchor", "");
    add();
    files.log.clear();
    processes.started.clear();
    EXPECT_TRUE(add());
    EXPECT_EQ(changes(), 0);
    EXPECT_TRUE(processes.started.empty());
    EXPECT_TRUE(add(Program, {"Consist", "&Open"}));
    EXPECT_EQ(value("Comment"), "Consist") << "the language has changed";
}

TEST_F(AssociationTest, IsRemovedWhole) {
    files.put("/home/me/data/applications/other.desktop", "other");
    add();
    processes.started.clear();
    EXPECT_TRUE(remove());
    EXPECT_EQ(files.allFiles(), std::vector<std::string>{"\\home\\me\\data\\applications\\other.desktop"});
    EXPECT_EQ(processes.started.size(), 2u);
}

TEST_F(AssociationTest, AnotherProgramsFilesAreLeftAlone) {
    for (const std::string& path : {Entry, Type}) {
        files = {};
        files.put(path, "installed by another");
        EXPECT_TRUE(add());
        EXPECT_EQ(files.get(path), "installed by another");
        EXPECT_TRUE(remove());
        EXPECT_EQ(files.get(path), "installed by another");
        EXPECT_EQ(files.allFiles().size(), 1u) << "what was added beside it has gone again";
    }
}

TEST_F(AssociationTest, ACopyOfTheProgramRemovesOnlyItsOwnOrThatOfOneThatHasGone) {
    files.put("/opt/zandor/bin/zandor", "");
    files.put("/home/anchor", "");
    add();
    EXPECT_TRUE(remove("/build/bin/zandor"));
    EXPECT_EQ(value("TryExec"), Program);
    files.deleteFile(Program);
    EXPECT_TRUE(remove("/build/bin/zandor"));
    EXPECT_EQ(entry() + type(), "nonenone");
}

TEST_F(AssociationTest, PathsAndNamesAreWrittenAsEachFileWantsThem) {
    files.put("/home/anchor", "");
    const struct {
        std::string path, exec, tryExec;
    } cases[] = {
        {"/a b/z", R"("/a b/z" %f)", "/a b/z"},
        {"/é%f/z", R"("/é%%f/z" %f)", "/é%f/z"},
        {R"(/"q"`$x/z)", R"("/\\"q\\"\\`\\$x/z" %f)", R"(/"q"`$x/z)"},
        {R"(/back\slash)", R"("/back\\\\slash" %f)", R"(/back\\slash)"},
        {"/two\nlines", R"("/two\nlines" %f)", R"(/two\nlines)"},
    };
    for (const auto& c : cases) {
        ASSERT_TRUE(add(c.path));
        EXPECT_EQ(value("Exec"), c.exec);
        EXPECT_EQ(value("TryExec"), c.tryExec);
        EXPECT_TRUE(remove(c.path));
        EXPECT_EQ(entry(), "none") << c.path;
    }
    add(Program, {"A & B <1>\nC", ""});
    EXPECT_EQ(value("Comment"), R"(A & B <1>\nC)");
    EXPECT_NE(type().find("<comment>A &amp; B &lt;1>\nC</comment>"), std::string::npos) << type();
}

// Whatever fails, the next start can put it right.
TEST_F(AssociationTest, AFailureIsToldAndLeavesNothingHalf) {
    bool failed = true;
    for (int call = 1; failed; ++call) {
        files = {};
        files.put("/home/anchor", "");
        files.failAt(call);
        const bool added = add();
        failed = files.failed();
        files.failAt(0);
        EXPECT_TRUE(!failed || !added || entry() != "none") << call;
        EXPECT_TRUE(add()) << call;
        EXPECT_EQ(value("Exec"), "\"/opt/zandor/bin/zandor\" %f");
        EXPECT_TRUE(type().ends_with("</mime-info>\n"));
        files.failAt(call);
        remove();
        files.failAt(0);
        EXPECT_TRUE(remove()) << call;
        EXPECT_EQ(entry() + type(), "nonenone") << call;
        ASSERT_LT(call, 100);
    }
}

} // namespace
} // namespace zandor
