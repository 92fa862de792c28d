// The run-wide state that every module reads: flags, often-read settings, folders and file paths.
#pragma once

#include "frame/roots.h"

#include <string>

namespace zandor {

struct AppState {
    bool PrintNumber = false;
    bool PrintName = false;
    bool SplashUp = false;
    bool ProgressUp = false;
    bool MainReady = false; // the main window has finished its load
    bool Busy = false;      // a load or reload is running
    bool EditingMstsPath = false;
    bool NoAlertCoupling = false;
    bool PrintGreen = false;
    bool Optimize = false;
    bool UseCanvas = false; // setting sfCanvas
    bool PassIsBadCoupling = false;
    std::string Title;
    std::string ExePath;
    std::string LastAnswer;       // as a decimal text
    std::string ExecutableFolder; // where the executables stand; native, without a trailing separator
    std::string ProgramFolder;    // without a trailing separator; the settings file stands here
    Roots roots;
    std::string BackupDir; // with a trailing "\"
    std::string ProgramFilesDir;
    std::string IniPath;
    std::string Language;
    std::string LanguagePath;
    std::string HelpFile; // empty: none
};

} // namespace zandor
