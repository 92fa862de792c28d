// By the desktop's own files in the user's data folder: one says what a consist file is, one that this
// program opens it. Each bears a mark of ours; a file without it is another program's, or the user's own.
#include "platform/association.h"

#include "platform/desktop_templates.h"
#include "platform/system.h"

#include <initializer_list>
#include <string_view>
#include <utility>

namespace zandor {

namespace {

constexpr std::string_view Mark = "X-Zandor";

// What the desktop entry would read otherwise than it is written.
std::string escapedValue(std::string_view text) {
    std::string escaped;
    for (const char c : text)
        switch (c) {
        case '\\':
            escaped += "\\\\";
            break;
        case '\n':
            escaped += "\\n";
            break;
        case '\r':
            escaped += "\\r";
            break;
        case '\t':
            escaped += "\\t";
            break;
        default:
            escaped += c;
        }
    return escaped;
}

// A program's path as the first word of a command line, where "%" begins a field.
std::string quotedWord(std::string_view path) {
    std::string quoted = "\"";
    for (const char c : path) {
        if (std::string_view("\"`$\\").find(c) != std::string_view::npos)
            quoted += '\\';
        quoted.append(c == '%' ? 2 : 1, c);
    }
    return quoted + '"';
}

std::string escapedXml(std::string_view text) {
    std::string escaped;
    for (const char c : text)
        if (c == '&' || c == '<')
            escaped += c == '&' ? "&amp;" : "&lt;";
        else
            escaped += c;
    return escaped;
}

std::string markLine(const std::string& executable) {
    return std::string(Mark) + "=" + escapedValue(executable);
}

using Fills = std::initializer_list<std::pair<std::string_view, std::string>>;

// The template with each @NAME@ replaced.
std::string filled(std::string_view text, Fills fills) {
    std::string result(text);
    for (const auto& [name, value] : fills)
        if (const std::size_t at = result.find(name); at != std::string::npos)
            result.replace(at, name.size(), value);
    return result;
}

// A desktop hides the entry when the program that it names has gone.
std::string desktopEntry(const std::string& executable, const AssociationNames& names) {
    return filled(DesktopEntryTemplate, {{"@NAMES@", "Comment=" + escapedValue(names.fileType)},
                                         {"@EXEC@", escapedValue(quotedWord(executable))},
                                         {"@TRY_EXEC@", escapedValue(executable)},
                                         {"@MARK@", markLine(executable)}});
}

std::string typeDescription(const AssociationNames& names) {
    return filled(FileTypeTemplate,
                  {{"@MARK@", std::string(Mark) + ": written by Zandor, which replaces and removes it"},
                   {"@NAMES@", "    <comment>" + escapedXml(names.fileType) + "</comment>"}});
}

class DesktopAssociation final : public FileAssociation {
  public:
    DesktopAssociation(FileSystem& files, Processes& processes, std::string dataFolder)
        : files_(files), processes_(processes), data_(std::move(dataFolder)) {}

    bool add(const std::string& executable, const AssociationNames& names) override;
    bool remove(const std::string& executable) override;

  private:
    enum class Outcome { Same, Changed, Failed };

    std::string entryPath() const { return data_ + "/applications/zandor.desktop"; }
    std::string typePath() const { return data_ + "/mime/packages/zandor.xml"; }
    std::string markedText(const std::string& path);
    Outcome put(const std::string& path, const std::string& text);
    Outcome take(const std::string& path);
    bool makeFolders(const std::string& path);
    bool isOthers(const std::string& entry, const std::string& executable);
    bool tellDesktop(Outcome entry, Outcome type);

    FileSystem& files_;
    Processes& processes_;
    std::string data_;
};

// Empty for a file that isn't ours, or isn't there.
std::string DesktopAssociation::markedText(const std::string& path) {
    std::string text;
    return files_.readFile(path, text) && text.find(Mark) != std::string::npos ? text : std::string();
}

bool DesktopAssociation::makeFolders(const std::string& path) {
    for (std::size_t end = path.find('/', 1); end != std::string::npos; end = path.find('/', end + 1))
        if (const std::string folder = path.substr(0, end);
            !files_.folderExists(folder) && !files_.createFolder(folder))
            return false;
    return true;
}

DesktopAssociation::Outcome DesktopAssociation::put(const std::string& path, const std::string& text) {
    const std::string old = markedText(path);
    if (old == text || (old.empty() && files_.stamp(path)))
        return Outcome::Same;
    return makeFolders(path) && replaceFile(files_, path, text) ? Outcome::Changed : Outcome::Failed;
}

DesktopAssociation::Outcome DesktopAssociation::take(const std::string& path) {
    if (markedText(path).empty())
        return Outcome::Same;
    return files_.deleteFile(path) ? Outcome::Changed : Outcome::Failed;
}

// True for an entry that another copy of this program, with settings of its own, has added and still needs.
bool DesktopAssociation::isOthers(const std::string& entry, const std::string& executable) {
    const std::size_t mark = entry.find(std::string("\n").append(Mark).append("="));
    if (mark == std::string::npos)
        return false;
    const std::string line = entry.substr(mark + 1, entry.find('\n', mark + 1) - mark - 1);
    return line != markLine(executable) && files_.fileExists(line.substr(Mark.size() + 1));
}

// The desktop reads its files through tables, which the programs that come with it renew; without them it
// reads the files themselves.
bool DesktopAssociation::tellDesktop(Outcome entry, Outcome type) {
    if (type == Outcome::Changed)
        processes_.start("update-mime-database", {data_ + "/mime"});
    if (entry == Outcome::Changed)
        processes_.start("update-desktop-database", {data_ + "/applications"});
    return entry != Outcome::Failed && type != Outcome::Failed;
}

bool DesktopAssociation::add(const std::string& executable, const AssociationNames& names) {
    const Outcome type = put(typePath(), typeDescription(names));
    return tellDesktop(put(entryPath(), desktopEntry(executable, names)), type);
}

bool DesktopAssociation::remove(const std::string& executable) {
    if (isOthers(markedText(entryPath()), executable))
        return true;
    const Outcome type = take(typePath());
    return tellDesktop(take(entryPath()), type);
}

} // namespace

std::unique_ptr<FileAssociation> makeSystemAssociation(FileSystem& files, Processes& processes) {
    return std::make_unique<DesktopAssociation>(files, processes, userDataFolder());
}

} // namespace zandor
