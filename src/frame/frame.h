// What every operation may use from outside its own records: handed down by reference, owned by the
// application (or by a test).
#pragma once

#include "frame/app_state.h"
#include "frame/dialogs.h"
#include "frame/language.h"
#include "frame/progress.h"
#include "frame/settings.h"
#include "platform/file_system.h"
#include "platform/processes.h"
#include "platform/registry.h"

namespace zandor {

struct Frame {
    AppState& state;
    FileSystem& files;
    ProfileFiles& profiles;
    Registry& registry;
    Processes& processes;
    Dialogs& dialogs;
    Progress& progress;
    Language language;

    std::string text(Message id, std::initializer_list<TextParam> params = {}) const {
        return language.GetLangText(id, params);
    }
    int show(const std::string& message, int messageStyle) {
        return dialogs.ShowMessage(message, messageStyle, state.Title, state.HelpFile, 0);
    }
};

} // namespace zandor
