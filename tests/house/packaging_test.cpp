// What is installed with the programs says the same as they do.
#include "cli/command_line.h"
#include "frame/association.h"
#include "support/fakes.h"

#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <sstream>

namespace zandor {
namespace {

std::string packagingFile(const std::string& name) {
    const std::string text = readSourceFile("packaging/" + name);
    EXPECT_FALSE(text.empty()) << name;
    return text;
}

std::string fromTo(const std::string& text, const std::string& begin, const std::string& end) {
    const std::size_t at = text.find(begin), to = text.find(end, at);
    return to == std::string::npos ? "" : text.substr(at, to - at);
}

// The file of one ending that the program itself writes for its user.
std::string writtenFile(const std::string& ending) {
    TestFrame test;
    test.files.put(userDataFolder() + "/anchor", "");
    test.set("Associate", "1");
    applyAssociation(test.frame, *makeSystemAssociation(test.files, test.processes), test.folders());
    for (const std::string& path : test.files.allFiles())
        if (path.ends_with(ending))
            return test.files.get(path).value_or("");
    return {};
}

TEST(Packaging, TheDesktopKnowsConsistsByTheSameSigns) {
    const std::string signs = fromTo(packagingFile("zandor.xml"), "<icon", "</mime-type>");
    ASSERT_NE(signs, "");
    EXPECT_EQ(signs, fromTo(writtenFile(".xml"), "<icon", "</mime-type>"));
    const std::string type = fromTo(packagingFile("zandor.desktop"), "MimeType=", "\n");
    ASSERT_NE(type, "");
    EXPECT_EQ(type, fromTo(writtenFile(".desktop"), "MimeType=", "\n"));
}

TEST(Packaging, TheKindOfFileIsNamedInEveryLanguage) {
    TestFrame test;
    const std::string file = packagingFile("zandor.xml");
    for (const LanguageChoice& choice : test.frame.language.ListLanguages()) {
        test.state.Language = choice.name;
        const std::string name = test.frame.text(Message::FileTypeName);
        EXPECT_NE(file.find(">" + name + "</comment>"), std::string::npos) << choice.name << ": " << name;
    }
}

TEST(Packaging, TheReleaseIsThatOfTheProgram) {
    const std::string version = std::to_string(VersionMajor) + "." + std::to_string(VersionMinor);
    EXPECT_NE(packagingFile("zandor.metainfo.xml").find("<release version=\"" + version), std::string::npos);
    EXPECT_NE(packagingFile("man/zandor.1").find("\"" + makeTitle() + "\""), std::string::npos);
    EXPECT_NE(packagingFile("man/zandor-cli.1").find("\"" + makeTitle() + "\""), std::string::npos);
}

std::string helpOf(const std::vector<std::string>& command) {
    TestFrame test;
    std::vector<std::string> args = command;
    args.push_back("--help");
    std::ostringstream out, err;
    runCommandLine(args, {test.files, test.registry, test.processes, test.folders()}, out, err);
    return out.str();
}

std::set<std::string> wordsLike(const std::string& text, const std::string& pattern) {
    const std::regex word(pattern);
    std::set<std::string> found;
    for (std::sregex_iterator at(text.begin(), text.end(), word), end; at != end; ++at)
        found.insert(at->str(1));
    return found;
}

TEST(Packaging, TheManualNamesEveryCommandAndOption) {
    const std::string manual =
        std::regex_replace(packagingFile("man/zandor-cli.1"), std::regex("\\\\-"), "-");
    const std::string help = helpOf({});
    const std::set<std::string> commands = wordsLike(help.substr(help.find("Subcommands:")), "\n  ([a-z]+) ");
    EXPECT_GE(commands.size(), 6u) << help;
    for (const std::string& command : commands) {
        EXPECT_NE(manual.find("\n.B " + command + "\n"), std::string::npos) << command;
        for (const std::string& option : wordsLike(helpOf({command}), "(--[a-z]+)"))
            EXPECT_NE(manual.find(option), std::string::npos) << command << " " << option;
    }
}

} // namespace
} // namespace zandor
