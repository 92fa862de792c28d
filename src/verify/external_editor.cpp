#include "verify/external_editor.h"

#include "verify/messages.h"

#include <iterator>
#include <memory>
#include <optional>

namespace zandor {

namespace {

#ifdef _WIN32
constexpr std::string_view EditorFiles[] = {"Skrivo.exe"};
#else
constexpr std::string_view EditorFiles[] = {"Skrivo.exe", EditorName};
#endif
constexpr std::string_view PositionMark = "/§", NumberMark = "/", ReloadMark = "-1";
constexpr std::string_view LineBreak = "\r\n";

std::vector<std::string> editorFolders(const AppState& state) {
    std::vector<std::string> folders{state.ProgramFolder};
    if (!state.ExecutableFolder.empty() && state.ExecutableFolder != state.ProgramFolder)
        folders.push_back(state.ExecutableFolder);
    return folders;
}

Findings editorMissing(Frame& frame) {
    return {{.message = message::EditorMissing,
             .params = {{"|1", std::string(std::end(EditorFiles)[-1])},
                        {"|2", std::string(LineBreak)},
                        {"|3", frame.files.nativePath(frame.state.ProgramFolder)}}}};
}

Findings editorFailed() {
    return {{.message = message::EditorFailed, .params = {{"|1", std::string(LineBreak)}}}};
}

// The first of them that starts.
std::unique_ptr<Process> startEditor(Frame& frame, const std::vector<std::string>& programs,
                                     const std::vector<std::string>& arguments) {
    for (const std::string& program : programs)
        if (std::unique_ptr<Process> process = frame.processes.start(program, arguments))
            return process;
    return nullptr;
}

// Nothing: nobody waits any longer.
std::optional<int> waitForEnd(Process& process, EditorWait& wait) {
    std::optional<int> code = process.exitCode();
    while (!code) {
        if (!wait.wait(EditorWaitStep))
            return std::nullopt;
        code = process.exitCode();
    }
    return code;
}

} // namespace

std::vector<std::string> editorPrograms(Frame& frame) {
    std::vector<std::string> programs;
    for (const std::string& folder : editorFolders(frame.state))
        for (const std::string_view name : EditorFiles)
            if (const std::string path = AddBackslash(folder).append(name); FileExists(frame.files, path))
                programs.push_back(frame.files.nativePath(path));
    return programs;
}

std::vector<std::string> editorArguments(const std::string& nativePath, const std::string& searchText,
                                         int line) {
    std::vector<std::string> arguments{nativePath};
    if (!searchText.empty() && line > 0)
        arguments.insert(arguments.end(), {std::string(PositionMark), searchText, std::string(NumberMark),
                                           std::to_string(line)});
    arguments.emplace_back(ReloadMark);
    return arguments;
}

EditorRun EditFileExternal(Frame& frame, std::string_view path, bool reload, const std::string& searchText,
                           int line, EditorWait& wait) {
    const std::vector<std::string> programs = editorPrograms(frame);
    if (programs.empty())
        return {false, false, editorMissing(frame)};
    const std::optional<FileStamp> before = reload ? frame.files.stamp(path) : std::nullopt;
    const std::unique_ptr<Process> process =
        startEditor(frame, programs, editorArguments(frame.files.nativePath(path), searchText, line));
    const std::optional<int> code = process ? waitForEnd(*process, wait) : EditorLaunchFailed;
    if (code == EditorLaunchFailed)
        return {false, false, editorFailed()};
    return {code.has_value(), code && reload && frame.files.stamp(path) != before, {}};
}

} // namespace zandor
