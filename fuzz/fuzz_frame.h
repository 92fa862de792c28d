// A frame around the disk in memory that shows, asks and knows nothing.
#pragma once

#include "frame/frame.h"
#include "surroundings.h"

namespace zandor::fuzz {

class NoDialogs final : public Dialogs {
  public:
    int ShowMessage(const std::string&, int, const std::string&, const std::string&, int) override {
        return answer::No;
    }
    std::optional<std::string> askOpenFile(const std::string&, const std::string&, const std::string&,
                                           const std::string&) override {
        return std::nullopt;
    }
    std::optional<std::string> askSaveFile(const std::string&, const std::string&, const std::string&,
                                           const std::string&, const std::string&) override {
        return std::nullopt;
    }
};

class NoProgress final : public Progress {
  public:
    void ShowProgress(int, int, int, std::string_view) override {}
    bool yield() override { return true; }
};

class NoRegistry final : public Registry {
  public:
    std::string readString(RegistryHive, std::string_view, std::string_view) override { return {}; }
};

class NoProcesses final : public Processes {
  public:
    std::unique_ptr<Process> start(const std::string&, const std::vector<std::string>&) override {
        return nullptr;
    }
    bool openFile(const std::string&) override { return false; }
};

// The simulator's folder is "\sim".
struct FramedDisk : Surroundings {
    AppState state;
    NoRegistry registry;
    NoProcesses processes;
    NoDialogs dialogs;
    NoProgress progress;
    Frame frame{state, files, profiles, registry, processes, dialogs, progress, Language(profiles, state)};

    FramedDisk() {
        state.roots.RootMSTS = "\\sim";
        state.LanguagePath = "\\Langues.lng";
        state.Language = "x";
    }
};

} // namespace zandor::fuzz
