// One run of the program without a window, for what is measured.
#pragma once

#include "catalogue/catalogue.h"
#include "platform/real_file_system.h"

#include <memory>
#include <optional>
#include <string>

namespace zandor::bench {

class SilentDialogs final : public Dialogs {
  public:
    int ShowMessage(const std::string&, int, const std::string&, const std::string&, int) override {
        return answer::Ok;
    }
    std::optional<std::string> askOpenFile(const std::string&, const std::string&, const std::string&,
                                           const std::string&) override {
        return {};
    }
    std::optional<std::string> askSaveFile(const std::string&, const std::string&, const std::string&,
                                           const std::string&, const std::string&) override {
        return {};
    }
};

class SilentProgress final : public Progress {
  public:
    void ShowProgress(int, int, int, std::string_view) override {}
    bool yield() override { return true; }
};

class EmptyRegistry final : public Registry {
  public:
    std::string readString(RegistryHive, std::string_view, std::string_view) override { return {}; }
};

// One run of the program on a tree, nothing kept from the run before.
struct Session {
    std::unique_ptr<FileSystem> files = makeRealFileSystem("");
    AppState state;
    ProfileFiles profiles{*files};
    EmptyRegistry registry;
    std::unique_ptr<Processes> processes = makeSystemProcesses();
    SilentDialogs dialogs;
    SilentProgress progress;
    Frame frame{state, *files, profiles, registry, *processes, dialogs, progress, Language(profiles, state)};
    Catalogue catalogue;

    explicit Session(const std::string& root) {
        state.roots.RootMSTS = root;
        state.Language = "English";
        state.LanguagePath = ZANDOR_SOURCE_DIR "/src/frame/Langues.lng";
    }
};

} // namespace zandor::bench
