// The rules that keep the source in order, held by reading it.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace zandor {
namespace {

namespace fs = std::filesystem;

// From the ground up: a folder uses itself and those before it.
constexpr std::array<std::string_view, 12> Folders{"platform",  "text",   "frame",  "simfiles",
                                                   "catalogue", "editor", "verify", "crossref",
                                                   "stockedit", "lists",  "cli",    "app"};

std::string readText(const fs::path& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
}

std::vector<std::string> linesOf(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);)
        lines.push_back(line);
    return lines;
}

bool startsWith(std::string_view text, std::string_view beginning) {
    return text.substr(0, beginning.size()) == beginning;
}

// What stands between the marks of an include line, with the opening mark in front: "<QString" or
// "\"text/text.h".
std::optional<std::string> includeOf(std::string_view line) {
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    if (!startsWith(line, "#include"))
        return std::nullopt;
    const std::size_t open = line.find_first_of("<\"");
    const std::size_t close = line.find_first_of(">\"", open + 1);
    if (open == std::string_view::npos || close == std::string_view::npos)
        return std::nullopt;
    return std::string(line.substr(open, close - open));
}

std::optional<std::size_t> rankOf(std::string_view path) {
    const auto found = std::find(Folders.begin(), Folders.end(), path.substr(0, path.find('/')));
    if (found == Folders.end())
        return std::nullopt;
    return static_cast<std::size_t>(found - Folders.begin());
}

bool mayUseQt(std::string_view file) {
    return file.find("/windows/") != std::string_view::npos || startsWith(file, "app/");
}

// Why this include may not stand in this file (a path under src/), or nothing.
std::string faultOf(std::string_view file, std::string_view include) {
    const std::string_view name = include.substr(1);
    if (startsWith(name, "Q"))
        return mayUseQt(file) ? "" : "logic that uses Qt";
    if (include.front() == '<' || name.find('/') == std::string_view::npos)
        return "";
    const auto own = rankOf(file), used = rankOf(name);
    if (!own || !used)
        return "a folder that has no place in the order";
    if (*used > *own)
        return "a folder that comes later";
    if (name.find("/windows/") != std::string_view::npos && !mayUseQt(file))
        return "logic that uses a window";
    return "";
}

std::vector<std::string> sourceFiles() {
    const fs::path source = fs::path(ZANDOR_SOURCE_DIR) / "src";
    std::vector<std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(source)) {
        const fs::path extension = entry.path().extension();
        if (extension == ".h" || extension == ".cpp")
            files.push_back(entry.path().lexically_relative(source).generic_string());
    }
    std::sort(files.begin(), files.end());
    return files;
}

std::string sourceText(const std::string& file) {
    return readText(fs::path(ZANDOR_SOURCE_DIR) / "src" / file);
}

TEST(HouseRules, AWrongIncludeIsNoticed) {
    struct Case {
        const char* file;
        const char* line;
        const char* fault;
    };
    const Case cases[] = {
        {"text/text.cpp", "#include \"frame/frame.h\"", "a folder that comes later"},
        {"cli/main/main.cpp", "  #include \"app/application.h\"", "a folder that comes later"},
        {"frame/windows/a.cpp", "#include \"editor/windows/b.h\"", "a folder that comes later"},
        {"editor/save.cpp", "#include \"frame/windows/b.h\"", "logic that uses a window"},
        {"editor/save.cpp", "#include <QString>", "logic that uses Qt"},
        {"cli/commands.cpp", "#include \"QtCore/QString\"", "logic that uses Qt"},
        {"editor/save.cpp", "#include \"elsewhere/a.h\"", "a folder that has no place in the order"},
        {"editor/windows/a.cpp", "#include <QString>", ""},
        {"editor/windows/a.cpp", "#include \"frame/windows/b.h\"", ""},
        {"app/application.cpp", "#include <QApplication>", ""},
        {"editor/save.cpp", "#include \"text/text.h\"", ""},
        {"editor/save.cpp", "#include <nlohmann/json.hpp>", ""},
    };
    for (const Case& c : cases)
        EXPECT_EQ(faultOf(c.file, includeOf(c.line).value_or("?")), c.fault) << c.file << ": " << c.line;
}

TEST(HouseRules, FoldersIncludeOnlyThoseBeforeThemAndLogicNoQt) {
    int includes = 0;
    for (const std::string& file : sourceFiles())
        for (const std::string& line : linesOf(sourceText(file)))
            if (const auto include = includeOf(line)) {
                ++includes;
                EXPECT_EQ(faultOf(file, *include), "") << file << ": " << line;
            }
    EXPECT_GT(includes, 100) << "the source was not found";
}

TEST(HouseRules, EveryHeaderIsReadOnce) {
    for (const std::string& file : sourceFiles()) {
        if (!file.ends_with(".h"))
            continue;
        const std::vector<std::string> lines = linesOf(sourceText(file));
        EXPECT_EQ(std::count(lines.begin(), lines.end(), "#pragma once"), 1) << file;
    }
}

// The scripts of the root, of tools/ and of CI.
std::vector<fs::path> scripts() {
    const fs::path root = ZANDOR_SOURCE_DIR;
    std::vector<fs::path> found{root / "run", root / "test", root / ".ci" / "run", root / "bench" / "run"};
    for (const auto& entry : fs::directory_iterator(root / "tools"))
        if (entry.path().extension() == ".sh")
            found.push_back(entry.path());
    return found;
}

std::vector<std::string> packages() {
    std::vector<std::string> names;
    for (const std::string& line : linesOf(readText(fs::path(ZANDOR_SOURCE_DIR) / "tools" / "packages"))) {
        if (line.empty() || line.front() == '#')
            continue;
        std::istringstream columns(line);
        std::string use, name, reason;
        columns >> use >> name >> reason;
        EXPECT_FALSE(reason.empty()) << "a package without its reason: " << line;
        names.push_back(name);
    }
    return names;
}

TEST(HouseRules, PackagesAreNamedInOnePlaceOnly) {
    const std::vector<std::string> names = packages();
    ASSERT_FALSE(names.empty());
    int installers = 0;
    for (const fs::path& script : scripts()) {
        const std::string text = readText(script);
        ASSERT_FALSE(text.empty()) << script;
        installers += text.find("apt-get") != std::string::npos;
        EXPECT_EQ(text.find("apt install"), std::string::npos) << script;
        for (const std::string& name : names) {
            const bool telling = name.ends_with("-dev") || name.find("qt6") != std::string::npos;
            EXPECT_FALSE(telling && text.find(name) != std::string::npos) << script << " names " << name;
        }
    }
    EXPECT_EQ(installers, 1) << "one script installs, for all";
}

// A line end that is not CR LF: how a version control system or an editor breaks these files. `wide`: UTF-16.
bool hasBareLineFeed(std::string_view bytes) {
    const bool wide = startsWith(bytes, "\xFF\xFE");
    const std::string_view lineFeed = wide ? std::string_view("\n\0", 2) : std::string_view("\n");
    const std::string_view carriageReturn = wide ? std::string_view("\r\0", 2) : std::string_view("\r");
    for (std::size_t at = bytes.find(lineFeed); at != std::string_view::npos;
         at = bytes.find(lineFeed, at + 1))
        if (at < carriageReturn.size() ||
            bytes.substr(at - carriageReturn.size(), carriageReturn.size()) != carriageReturn)
            return true;
    return false;
}

TEST(HouseRules, DemonstrationFilesKeepTheirBytes) {
    int texts = 0;
    for (const auto& entry : fs::recursive_directory_iterator(fs::path(ZANDOR_SOURCE_DIR) / "demo")) {
        const std::string extension = entry.path().extension().string();
        if (extension != ".con" && extension != ".wag" && extension != ".eng" && extension != ".act")
            continue;
        ++texts;
        EXPECT_FALSE(hasBareLineFeed(readText(entry.path()))) << entry.path();
    }
    EXPECT_GT(texts, 30);
}

} // namespace
} // namespace zandor
