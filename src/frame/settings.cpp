#include "frame/settings.h"

#include "platform/letter_case.h"
#include "text/decode.h"
#include "text/lines.h"

#include <algorithm>
#include <iterator>
#include <unordered_set>
#include <utility>

namespace zandor {

namespace {

constexpr std::size_t ValueLimit = 1023; // characters
constexpr std::string_view LineEnd = "\r\n";

std::string_view withoutSpace(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

// ---- the parts of a line

std::optional<std::string_view> sectionOf(std::string_view line) {
    line = withoutSpace(line);
    if (!line.starts_with('['))
        return std::nullopt;
    line.remove_prefix(1);
    return withoutSpace(line.substr(0, line.find(']')));
}

struct Entry {
    std::string_view key;      // empty: the line holds no entry
    std::string_view rawValue; // all that stands behind "="
};

Entry entryOf(std::string_view line) {
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos || withoutSpace(line).starts_with(';'))
        return {};
    return {withoutSpace(line.substr(0, equals)), line.substr(equals + 1)};
}

bool isQuoted(std::string_view value) {
    return value.size() >= 2 && value.front() == value.back() &&
           (value.front() == '"' || value.front() == '\'');
}

std::string_view valueOf(std::string_view rawValue) {
    std::string_view value = withoutSpace(rawValue);
    if (isQuoted(value))
        value = value.substr(1, value.size() - 2);
    return withoutSpace(firstCharacters(value, ValueLimit));
}

// A value that reads back with its own quotes: the outermost pair is what the reader strips.
std::string rawValueOf(std::string_view value) {
    return isQuoted(withoutSpace(value)) ? '"' + std::string(value) + '"' : std::string(value);
}

std::string lookupKey(std::string_view section, std::string_view key) {
    std::string joined = lowerCase(section);
    joined += '\0';
    joined += lowerCase(key);
    return joined;
}

// ---- a file to be changed

// The lines with their line ends.
std::vector<std::string_view> wholeLines(std::string_view text) {
    std::vector<std::size_t> starts;
    forEachLine(text, [&](std::string_view line) {
        starts.push_back(static_cast<std::size_t>(line.data() - text.data()));
    });
    std::vector<std::string_view> lines;
    for (std::size_t i = 0; i < starts.size(); ++i)
        lines.push_back(
            text.substr(starts[i], (i + 1 < starts.size() ? starts[i + 1] : text.size()) - starts[i]));
    return lines;
}

std::string_view withoutEnd(std::string_view line) {
    return line.substr(0, line.find_first_of("\r\n"));
}

// Where an entry stands, or where it is to go.
struct Place {
    bool hasSection = false;
    bool hasKey = false;
    std::size_t line = 0;      // of the key, otherwise of the section's last line that isn't blank
    std::string_view rawValue; // of the key
};

Place findPlace(const std::vector<std::string_view>& lines, std::string_view section, std::string_view key) {
    Place place;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string_view line = withoutEnd(lines[i]);
        if (const auto name = sectionOf(line)) {
            if (place.hasSection)
                return place;
            place.hasSection = equalIgnoringCase(*name, section);
        }
        if (!place.hasSection)
            continue;
        const Entry entry = entryOf(line);
        if (!entry.key.empty() && equalIgnoringCase(entry.key, key))
            return {true, true, i, entry.rawValue};
        if (!withoutSpace(line).empty())
            place.line = i;
    }
    return place;
}

bool fitsWindows1252(const std::string& text) {
    std::string back;
    decodeSettingsText(encodeWindows1252(' ' + text), back); // the blank: never taken for a mark
    return back == ' ' + text;
}

bool endsLine(std::string_view text) {
    return text.ends_with('\r') || text.ends_with('\n');
}

struct Change {
    Place place;
    std::string section, key, value; // in the encoding of the lines
};

std::string changedBody(std::string_view body, const Change& change) {
    const std::string entry = change.key + '=' + change.value;
    std::string result;
    if (!change.place.hasSection) {
        result.append(body);
        if (!body.empty() && !endsLine(body))
            result.append(LineEnd);
        return result.append("[" + change.section + "]").append(LineEnd).append(entry).append(LineEnd);
    }
    const std::vector<std::string_view> lines = wholeLines(body);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const std::string_view line = withoutEnd(lines[i]), end = lines[i].substr(line.size());
        if (i != change.place.line)
            result.append(lines[i]);
        else if (change.place.hasKey)
            result.append(line.substr(0, line.find('=') + 1)).append(change.value).append(end);
        else
            result.append(line).append(end.empty() ? LineEnd : end).append(entry).append(LineEnd);
    }
    return result;
}

// The whole file with the change in it. Bytes of the other lines stay as they are, also where they make no
// sense in the file's encoding; only characters that Windows-1252 lacks turn such a file into UTF-8.
std::string changedFile(const std::string& bytes, const std::string& text, TextEncoding encoding,
                        Change change) {
    switch (encoding) {
    case TextEncoding::Utf16:
        return encodeText(changedBody(text, change), encoding);
    case TextEncoding::Utf8:
        return encodeText(changedBody(std::string_view(bytes).substr(3), change), encoding);
    case TextEncoding::Windows1252:
        break;
    }
    if (!fitsWindows1252(change.section + change.key + change.value))
        return encodeText(changedBody(text, change), TextEncoding::Utf8);
    change.section = encodeWindows1252(change.section);
    change.key = encodeWindows1252(change.key);
    change.value = encodeWindows1252(change.value);
    return changedBody(bytes, change);
}

bool isOneLine(std::string_view text) {
    return text.find_first_of("\r\n") == std::string_view::npos;
}

bool isWritable(const IniValue& value) {
    return isOneLine(value.section) && isOneLine(value.key) && isOneLine(value.value);
}

// Puts the value into the bytes of a file. False: it is there already.
bool putValue(std::string& bytes, const IniValue& value) {
    std::string text;
    const TextEncoding encoding = decodeSettingsText(bytes, text);
    const std::string_view section = withoutSpace(value.section), key = withoutSpace(value.key);
    Change change{findPlace(wholeLines(text), section, key), std::string(section), std::string(key),
                  rawValueOf(value.value)};
    if (change.place.hasKey && valueOf(change.place.rawValue) == valueOf(change.value))
        return false;
    bytes = changedFile(bytes, text, encoding, std::move(change));
    return true;
}

} // namespace

bool isProfileTooLarge(FileSystem& files, std::string_view file) {
    const std::optional<FileStamp> stamp = files.stamp(file);
    return stamp && stamp->size > LargestProfile;
}

const ProfileFiles::Parsed* ProfileFiles::load(std::string_view file) {
    auto kept = kept_.find(file);
    const std::optional<FileStamp> stamp = files_.stamp(file);
    if (stamp && kept != kept_.end() && kept->second.stamp == *stamp)
        return &kept->second;
    if (kept != kept_.end())
        kept_.erase(kept);
    std::string bytes;
    if (!stamp || files_.read(file, bytes, LargestProfile) != ReadResult::Done)
        return nullptr;
    std::string text;
    decodeSettingsText(bytes, text);

    Parsed parsed{*stamp, {}};
    std::unordered_set<std::string> sections;
    std::optional<std::string> section; // nothing before the first one and in one that stood before
    forEachLine(text, [&](std::string_view line) {
        if (const auto name = sectionOf(line)) {
            section = lowerCase(*name);
            if (!sections.insert(*section).second)
                section.reset();
            return;
        }
        const Entry entry = entryOf(line);
        const bool cutOff = entry.rawValue.data() == text.data() + text.size();
        if (section && !entry.key.empty() && !cutOff)
            parsed.values.emplace(lookupKey(*section, entry.key), valueOf(entry.rawValue));
    });
    return &kept_.emplace(std::string(file), std::move(parsed)).first->second;
}

std::string ProfileFiles::ReadIniValue(std::string_view section, std::string_view key,
                                       std::string_view file) {
    return findIniValue(section, key, file).value_or(std::string());
}

std::optional<std::string> ProfileFiles::findIniValue(std::string_view section, std::string_view key,
                                                      std::string_view file) {
    const Parsed* parsed = load(file);
    if (!parsed)
        return std::nullopt;
    const auto found = parsed->values.find(lookupKey(withoutSpace(section), withoutSpace(key)));
    return found == parsed->values.end() ? std::nullopt : std::optional(found->second);
}

bool ProfileFiles::WriteIniValue(std::string_view section, std::string_view key, std::string_view value,
                                 std::string_view file) {
    return WriteIniValues({{std::string(section), std::string(key), std::string(value)}}, file);
}

bool ProfileFiles::WriteIniValues(const std::vector<IniValue>& values, std::string_view file) {
    if (!std::ranges::all_of(values, isWritable))
        return false;
    std::string bytes;
    // A file that is there and can't be read must not be taken for a missing one: its values would be lost.
    const ReadResult result = files_.read(file, bytes, LargestProfile);
    const bool isMissing = result == ReadResult::Missing && !files_.stamp(file) && !files_.fileExists(file);
    if (result != ReadResult::Done && !isMissing)
        return false;
    const auto changes = std::ranges::count_if(values, [&](const IniValue& v) { return putValue(bytes, v); });
    if (changes == 0)
        return true;
    const bool written = replaceFile(files_, file, bytes);
    // Two writes may fall into one tick of the disk's clock: what was parsed before is never used again.
    std::erase_if(kept_, [&](const auto& kept) { return equalIgnoringCase(kept.first, file); });
    return written;
}

namespace {

// Nothing for a key that isn't one of [General].
const Setting* findSetting(std::string_view key) {
    const auto* const row = std::ranges::find_if(
        GeneralSettings, [key](const Setting& setting) { return equalIgnoringCase(setting.key, key); });
    return row == std::end(GeneralSettings) ? nullptr : row;
}

void appendLine(std::string& text, std::initializer_list<std::string_view> parts) {
    for (const std::string_view part : parts)
        text.append(part);
    text.append(LineEnd);
}

} // namespace

std::string defaultIni(FileSystem& files, std::string_view title, std::string_view programFolder) {
    std::string text;
    appendLine(text, {";Informations de configuration de ", title,
                      " un éditeur de rames pour Microsoft Train Simulator"});
    appendLine(text, {});
    appendLine(text, {"[", GeneralSection, "]"});
    const std::string backup = files.nativePath(std::string(programFolder) + "\\Backup\\");
    for (const Setting& row : GeneralSettings)
        appendLine(text, {row.key, "=", row.key == "Backup" ? std::string_view(backup) : row.fallback});
    appendLine(text, {});
    const TextEncoding encoding = fitsWindows1252(text) ? TextEncoding::Windows1252 : TextEncoding::Utf8;
    return encodeText(text, encoding);
}

void WriteDefaultIni(FileSystem& files, std::string_view path, std::string_view title,
                     std::string_view programFolder) {
    replaceFile(files, path, defaultIni(files, title, programFolder));
}

std::string readSetting(ProfileFiles& profiles, std::string_view key, std::string_view file) {
    if (auto value = profiles.findIniValue(GeneralSection, key, file))
        return *std::move(value);
    const Setting* const row = findSetting(key);
    return row ? std::string(row->fallback) : std::string();
}

bool readFlag(ProfileFiles& profiles, std::string_view key, std::string_view file) {
    const Setting* const row = findSetting(key);
    const std::string text = readSetting(profiles, key, file);
    return row && row->kind == SettingKind::ExactFlag ? text == "1" : numericValue(text) == 1;
}

} // namespace zandor
