// Zandor.ini and every file of its form. There are no settings in memory: each reader asks the file, each
// writer writes through. A parsed file is kept only while its time stamp and size stand. Windows-1252 unless
// the file begins with a byte-order mark.
#pragma once

#include "frame/app_state.h"
#include "platform/file_system.h"
#include "text/text.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace zandor {

inline constexpr std::string_view GeneralSection = "General";
inline constexpr std::string_view DefaultLanguage = "Français";

// A larger file isn't read, has no values, and is never written over.
inline constexpr std::uint64_t LargestProfile = std::uint64_t(16) << 20; // bytes
bool isProfileTooLarge(FileSystem& files, std::string_view file);

struct IniValue {
    std::string section, key, value;
};

class ProfileFiles {
  public:
    explicit ProfileFiles(FileSystem& files) : files_(files) {}

    // Section and key ignore case. Trimmed, without a pair of quotes around it, cut at 1023 characters; a
    // missing file, section or key gives an empty text.
    std::string ReadIniValue(std::string_view section, std::string_view key, std::string_view file);
    // The same; nothing when the key is missing, as is one at which the file was cut off before its value.
    std::optional<std::string> findIniValue(std::string_view section, std::string_view key,
                                            std::string_view file);
    // Keeps every other line as it stands; makes file, section and key as needed. The result isn't looked at
    // by the operations: a read-only file keeps its values.
    bool WriteIniValue(std::string_view section, std::string_view key, std::string_view value,
                       std::string_view file);
    // The same of several values, in one replacement of the file: all of them are in it afterwards, or none.
    bool WriteIniValues(const std::vector<IniValue>& values, std::string_view file);

    FileSystem& files() { return files_; }

  private:
    struct Parsed {
        FileStamp stamp;
        // section and key in lower case, joined by a NUL
        std::unordered_map<std::string, std::string, TextHash, std::equal_to<>> values;
    };
    const Parsed* load(std::string_view file);

    FileSystem& files_;
    std::map<std::string, Parsed, std::less<>> kept_;
};

enum class SettingKind {
    NumericFlag, // on when the number that the text begins with is 1
    ExactFlag,   // on when the text is "1"
    Colour,      // decimal RGB with blue in the high byte
    Folder,      // as a person would write it; empty: none
    Text,
};

// A key of [General].
struct Setting {
    std::string_view key;
    SettingKind kind;
    std::string_view fallback;                                    // what a file without the key means
    bool AppState::*flag = nullptr;                               // where readSettings() keeps it
    const std::string& (*keptAtClose)(const AppState&) = nullptr; // what writeClosingSettings() writes
};

// In the order of a new file.
inline constexpr Setting GeneralSettings[] = {
    {"Inst", SettingKind::NumericFlag, "1"},
    {"Associate", SettingKind::NumericFlag, "0"},
    {"PrintName", SettingKind::NumericFlag, "1", &AppState::PrintName},
    {"PrintNumber", SettingKind::ExactFlag, "0", &AppState::PrintNumber},
    {"ControlThumbnails", SettingKind::NumericFlag, "0"},
    {"NoAlertCoupling", SettingKind::NumericFlag, "0", &AppState::NoAlertCoupling},
    {"PassIsBadCoupling", SettingKind::ExactFlag, "0", &AppState::PassIsBadCoupling},
    {"PrintGreen", SettingKind::ExactFlag, "1", &AppState::PrintGreen},
    {"Optimize", SettingKind::ExactFlag, "1", &AppState::Optimize},
    {"sfCanvas", SettingKind::ExactFlag, "0", &AppState::UseCanvas},
    {"Color1", SettingKind::Colour, "12582847"},
    {"Color2", SettingKind::Colour, "8388608"},
    {"Color3", SettingKind::Colour, "12582911"},
    {"Color4", SettingKind::Colour, "128"},
    {"Color5", SettingKind::Colour, "16777151"},
    {"Color6", SettingKind::Colour, "0"},
    {"Color7", SettingKind::Colour, "16777151"},
    {"Color8", SettingKind::Colour, "8388608"},
    {"Color9", SettingKind::Colour, "15713940"},
    {"NewFile", SettingKind::NumericFlag, "1"},
    {"BakFile", SettingKind::NumericFlag, "1"},
    {"CPBakFile", SettingKind::NumericFlag, "1"}, // which nobody reads
    {"Backup", SettingKind::Folder, ""},          // a new file names the folder in the program's
    {"InstallDir", SettingKind::Folder, "", nullptr,
     [](const AppState& state) -> const std::string& { return state.roots.RootMSTS; }},
    {"TStoreDir", SettingKind::Folder, "", nullptr,
     [](const AppState& state) -> const std::string& { return state.roots.RootTStore; }},
    {"InitialiseMSTS", SettingKind::NumericFlag, "1"},
    {"Langage", SettingKind::Text, DefaultLanguage, nullptr,
     [](const AppState& state) -> const std::string& { return state.Language; }},
};

// A new settings file with the default of every key. `title` goes into its first line.
std::string defaultIni(FileSystem& files, std::string_view title, std::string_view programFolder);
void WriteDefaultIni(FileSystem& files, std::string_view path, std::string_view title,
                     std::string_view programFolder);

// A setting of [General]: what the file says, or the default of a key that it lacks. A file that is missing,
// empty or cut off means the same as a new one.
std::string readSetting(ProfileFiles& profiles, std::string_view key, std::string_view file);
// A flag of [General], read in the way of its kind.
bool readFlag(ProfileFiles& profiles, std::string_view key, std::string_view file);

} // namespace zandor
