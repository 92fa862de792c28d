// What is installed with the programs says the same as they do.
#include "cli/command_line.h"
#include "frame/messages.h"
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

TEST(Packaging, TheKindOfFileIsNamedInEveryLanguage) {
    TestFrame test;
    const std::string file = packagingFile("mime-names.txt");
    for (const LanguageChoice& choice : test.frame.language.ListLanguages()) {
        test.state.Language = choice.name;
        const std::string name = test.frame.text(message::FileTypeName);
        EXPECT_NE(file.find(">" + name + "</comment>"), std::string::npos) << choice.name << ": " << name;
    }
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
        std::regex_replace(packagingFile("man/zandor-cli.1.in"), std::regex("\\\\-"), "-");
    const std::string help = helpOf({});
    const std::set<std::string> commands = wordsLike(help.substr(help.find("Subcommands:")), "\n  ([a-z]+) ");
    EXPECT_GE(commands.size(), 6u) << help;
    for (const std::string& command : commands) {
        EXPECT_NE(manual.find("\n.B " + command + "\n"), std::string::npos) << command;
        for (const std::string& option : wordsLike(helpOf({command}), "(--[a-z-]+)"))
            EXPECT_NE(manual.find(option), std::string::npos) << command << " " << option;
    }
}

} // namespace
} // namespace zandor
