// The rules that keep the source in order, held by reading it.
#include <gtest/gtest.h>

#include <algorithm>
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
constexpr std::string_view Folders[] = {"platform", "text",    "frame",    "simfiles",  "catalogue",
                                        "editor",   "verify",  "crossref", "stockedit", "shapes",
                                        "lists",    "options", "cli",      "app"};

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

// What stands between the marks of an include line, with the opening mark in front: "<QString" or
// "\"text/text.h".
std::optional<std::string> includeOf(std::string_view line) {
    line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size()));
    if (!line.starts_with("#include"))
        return std::nullopt;
    const std::size_t open = line.find_first_of("<\"");
    const std::size_t close = line.find_first_of(">\"", open + 1);
    if (open == std::string_view::npos || close == std::string_view::npos)
        return std::nullopt;
    return std::string(line.substr(open, close - open));
}

std::optional<std::size_t> rankOf(std::string_view path) {
    const auto found = std::ranges::find(Folders, path.substr(0, path.find('/')));
    if (found == std::end(Folders))
        return std::nullopt;
    return static_cast<std::size_t>(found - std::begin(Folders));
}

bool mayUseQt(std::string_view file) {
    return file.find("/windows/") != std::string_view::npos || file.starts_with("app/");
}

// Why this include may not stand in this file (a path under src/), or nothing.
std::string faultOf(std::string_view file, std::string_view include) {
    const std::string_view name = include.substr(1);
    if (name.starts_with("Q"))
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

} // namespace
} // namespace zandor
