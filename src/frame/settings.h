// Zandor.ini and every file of its form. There are no settings in memory: each reader asks the file, each
// writer writes through. A parsed file is kept only while its time stamp and size stand. Windows-1252 unless
// the file begins with a byte-order mark.
#pragma once

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

// A new settings file with the default of every key. `title` goes into its first line.
void WriteDefaultIni(FileSystem& files, std::string_view path, std::string_view title,
                     std::string_view programFolder);

// A setting of [General]: what the file says, or the default of a key that it lacks. A file that is missing,
// empty or cut off means the same as a new one.
std::string readSetting(ProfileFiles& profiles, std::string_view key, std::string_view file);
// The two ways in which a boolean is read; each reader keeps its own.
bool readNumericFlag(ProfileFiles& profiles, std::string_view key,
                     std::string_view file); // value is exactly 1
bool readExactFlag(ProfileFiles& profiles, std::string_view key,
                   std::string_view file); // text is exactly "1"

} // namespace zandor
