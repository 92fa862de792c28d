// Test doubles for everything outside: messages, progress, registry, and a frame with a disk in memory.
#pragma once

#include "frame/frame.h"
#include "frame/startup.h"
#include "platform/memory_file_system.h"

#include <deque>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace zandor {

// Records what is shown. Answers are given in the order queued, then `defaultAnswer`.
class FakeDialogs final : public Dialogs {
  public:
    struct Shown {
        std::string text;
        int style = 0;
        std::string title;
    };
    struct Asked {
        std::string title, filter, folder, proposedName, defaultExtension;
    };
    std::vector<Shown> shown;
    std::vector<Asked> asked; // calls of askOpenFile() and askSaveFile()
    std::deque<int> answers;
    int defaultAnswer = answer::Ok;
    std::function<void()> whenShown;               // while a message stands there
    std::optional<std::string> openFile, saveFile; // nothing: the user cancels

    int ShowMessage(const std::string& text, int messageStyle, const std::string& title, const std::string&,
                    int) override {
        shown.push_back({text, messageStyle, title});
        if (whenShown)
            whenShown();
        if (answers.empty())
            return defaultAnswer;
        const int next = answers.front();
        answers.pop_front();
        return next;
    }
    std::optional<std::string> askOpenFile(const std::string& title, const std::string& filter,
                                           const std::string& folder,
                                           const std::string& proposedName) override {
        asked.push_back({title, filter, folder, proposedName, {}});
        return openFile;
    }
    std::optional<std::string> askSaveFile(const std::string& title, const std::string& filter,
                                           const std::string& folder, const std::string& proposedName,
                                           const std::string& defaultExtension) override {
        asked.push_back({title, filter, folder, proposedName, defaultExtension});
        return saveFile;
    }
    std::string lastText() const { return shown.empty() ? std::string() : shown.back().text; }
};

// Records each step; can end the operation at the n-th yield.
class FakeProgress final : public Progress {
  public:
    struct Step {
        int lower = 0, upper = 0, current = 0;
        std::string text;
    };
    std::vector<Step> steps;
    int yields = 0;
    int cancelAtYield = 0; // 1 is the first one; 0 never cancels. Later yields answer false as well.

    void ShowProgress(int lower, int upper, int current, std::string_view text) override {
        steps.push_back({lower, upper, current, std::string(text)});
    }
    bool yield() override {
        ++yields;
        return cancelAtYield == 0 || yields < cancelAtYield;
    }
};

// Values that a test puts in. Key and name ignore case, as in a real registry.
class FakeRegistry final : public Registry {
  public:
    void put(RegistryHive hive, std::string_view key, std::string_view name, std::string_view value) {
        values_[id(hive, key, name)] = value;
    }
    std::string readString(RegistryHive hive, std::string_view key, std::string_view name) override {
        const auto found = values_.find(id(hive, key, name));
        return found == values_.end() ? std::string() : found->second;
    }

  private:
    static std::string id(RegistryHive hive, std::string_view key, std::string_view name) {
        return std::to_string(static_cast<int>(hive)) + lowerCase(key) + '\n' + lowerCase(name);
    }
    std::map<std::string, std::string> values_;
};

// Records what is started; nothing runs, unless a test says how it ends.
class FakeProcesses final : public Processes {
  public:
    std::vector<std::vector<std::string>> started; // program and arguments
    std::vector<std::string> opened;
    bool works = true;
    std::function<std::optional<int>()> exitCode = [] { return 0; }; // of each, each time it is asked for

    std::unique_ptr<Process> start(const std::string& program,
                                   const std::vector<std::string>& arguments) override {
        started.push_back({program});
        started.back().insert(started.back().end(), arguments.begin(), arguments.end());
        return works ? std::make_unique<Started>(exitCode) : nullptr;
    }
    bool openFile(const std::string& path) override {
        opened.push_back(path);
        return works;
    }

  private:
    struct Started final : Process {
        explicit Started(std::function<std::optional<int>()> code) : code_(std::move(code)) {}
        std::optional<int> exitCode() override { return code_(); }
        std::function<std::optional<int>()> code_;
    };
};

// A file of the source tree, such as "src/frame/Langues.lng"; empty when it isn't there.
inline std::string readSourceFile(const std::string& name) {
    std::ifstream file(std::string(ZANDOR_SOURCE_DIR) + "/" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// Everything an operation needs, on a disk in memory. The program folder "\program" holds the language file
// and no settings yet. The language is French.
struct TestFrame {
    MemoryFileSystem files;
    AppState state;
    ProfileFiles profiles{files};
    FakeRegistry registry;
    FakeProcesses processes;
    FakeDialogs dialogs;
    FakeProgress progress;
    Frame frame{state, files, profiles, registry, processes, dialogs, progress, Language(profiles, state)};

    TestFrame() {
        static const std::string texts = readSourceFile("src/frame/Langues.lng");
        files.put("\\program\\Langues.lng", texts);
        state.Title = makeTitle();
        state.ProgramFolder = "\\program";
        state.IniPath = "\\program\\Zandor.ini";
        state.LanguagePath = "\\program\\Langues.lng";
        state.Language = "Français";
        state.BackupDir = "\\program\\Backup\\";
    }
    TestFrame(const TestFrame&) = delete;
    TestFrame& operator=(const TestFrame&) = delete;

    // A value of the section [General].
    void set(std::string_view key, std::string_view value) {
        profiles.WriteIniValue(GeneralSection, key, value, state.IniPath);
    }
    std::string setting(std::string_view key) {
        return profiles.ReadIniValue(GeneralSection, key, state.IniPath);
    }
    ProgramFolders folders() const { return {"\\program", "\\program", "Zandor"}; }
};

} // namespace zandor
