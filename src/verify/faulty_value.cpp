#include "verify/faulty_value.h"

#include "simfiles/text_edit.h"
#include "verify/messages.h"
#include "verify/recheck.h"
#include "verify/result_lists.h"

#include <algorithm>
#include <span>
#include <unordered_set>

namespace zandor {

namespace {

constexpr std::string_view LineBreak = "\r\n";
constexpr std::string_view ShapeKey = "shape"; // of a shape's description

// ---- what a key may hold

constexpr std::string_view WagonTypes[] = {"Engine", "Carriage", "Freight", "Tender"};
constexpr std::string_view EngineTypes[] = {"Electric", "Diesel", "Steam"};
constexpr std::string_view Couplings[] = {"Automatic", "Bar", "Chain", "Hydraulic"};
constexpr std::string_view Brakes[] = {
    "Air_Single_Pipe", "Air_Twin_Pipe", "Vacuum_Single_Pipe", "Vacuum_Twin_Pipe", "EP", "ECP",
    "Air_Piped",       "Vacuum_Piped"};

struct ClosedRow {
    std::string_view key;
    std::span<const std::string_view> values;
};
constexpr ClosedRow ClosedKeys[] = {
    {"wagon\\type", WagonTypes},
    {"engine\\type", EngineTypes},
    {"wagon\\coupling\\type", Couplings},
    {"wagon\\brakesystemtype", Brakes},
};

// Files of one kind in a folder of the stock's.
struct FileRule {
    std::string_view subfolder; // of the stock's folder
    std::string_view extension;
    Message missing;
    std::string_view name;      // in that message
    std::string_view signature; // in the first line; empty: any
};
constexpr FileRule SoundSets{"Sound\\", ".sms", message::OfferedFileMissing, "SOUND", ""};
constexpr FileRule CabViews{"Cabview\\", ".cvf", message::OfferedFileMissing, "CABVIEW",
                            "SIMISA@@@@@@@@@@JINX0h0t______"};
constexpr FileRule Thumbnails{"", ".ace", message::PictureFileMissing, "'Thumbnail'", ""};
constexpr FileRule Shapes{"", ".s", message::ShapeMissing, "", ""};

struct FileRow {
    std::string_view key;
    const FileRule* rule;
};
constexpr FileRow FileKeys[] = {
    {"wagon\\sound", &SoundSets},    {"wagon\\inside\\sound", &SoundSets},
    {"engine\\sound", &SoundSets},   {"engine\\inside\\sound", &SoundSets},
    {"engine\\cabview", &CabViews},  {"wagon\\thumbnail", &Thumbnails},
    {"wagon\\wagonshape", &Shapes},  {"wagon\\inside\\passengercabinfile", &Shapes},
    {"wagon\\freightanim", &Shapes}, {ShapeKey, &Shapes},
};

template <typename Row, std::size_t N> const Row* rowOf(const Row (&rows)[N], const std::string& key) {
    const auto found = std::ranges::find(rows, std::string_view(key), &Row::key);
    return found == std::end(rows) ? nullptr : found;
}

// Where a rule's files lie: where the checks look for them, then beside the stock file itself.
std::vector<std::string> foldersOf(const Frame& frame, const InvalidFile& file, const FileRule& rule) {
    std::vector<std::string> folders;
    const std::string& simulator = frame.state.roots.RootMSTS;
    if (!simulator.empty())
        folders.push_back(trainsetPath(simulator) + file.Folder + "\\" + std::string(rule.subfolder));
    const std::string own = file.Root + file.Folder + "\\" + std::string(rule.subfolder);
    if (folders.empty() || !equalIgnoringCase(folders.front(), own))
        folders.push_back(own);
    return folders;
}

bool hasSignature(FileSystem& files, const std::string& path, std::string_view signature) {
    constexpr std::size_t enough = 512; // bytes, for any first line that can be right
    std::string bytes, text;
    if (files.read(path, bytes, LargestSimFile) != ReadResult::Done)
        return false;
    decodeSimulatorText(std::string_view(bytes).substr(0, enough), text);
    return containsIgnoringCase(text.substr(0, text.find_first_of("\r\n")), signature);
}

std::vector<std::string> filesOffered(Frame& frame, const InvalidFile& file, const FileRule& rule) {
    std::vector<std::string> names;
    std::unordered_set<std::string> known;
    for (const std::string& folder : foldersOf(frame, file, rule))
        for (std::string& name : listFiles(frame.files, folder, rule.extension)) {
            const bool fits =
                rule.signature.empty() || hasSignature(frame.files, folder + name, rule.signature);
            if (fits && known.insert(lowerCase(name)).second)
                names.push_back(std::move(name));
        }
    return names;
}

bool isThere(Frame& frame, const InvalidFile& file, const FileRule& rule, const std::string& value) {
    return endsWithIgnoringCase(value, rule.extension) &&
           std::ranges::any_of(foldersOf(frame, file, rule), [&](const std::string& folder) {
               return FileExists(frame.files, folder + value);
           });
}

Finding fileRefusal(Frame& frame, const InvalidFile& file, const FileRule& rule, const std::string& value) {
    Finding finding{.message = rule.missing, .params = {{"|1", value}}};
    if (!rule.name.empty())
        finding.params.push_back({"|2", std::string(rule.name)});
    if (rule.missing == message::PictureFileMissing) {
        const std::string folder = foldersOf(frame, file, rule).front();
        finding.params.push_back({"|3", std::string(LineBreak)});
        finding.params.push_back({"|4", frame.files.nativePath(folder)});
        finding.params.push_back({"|5", std::string(rule.extension)});
    }
    return finding;
}

bool isAllowed(std::span<const std::string_view> values, const std::string& value) {
    return std::ranges::any_of(
        values, [&value](std::string_view allowed) { return equalIgnoringCase(allowed, value); });
}

// No text that the file could hold as one value.
bool isUnwritable(const std::string& value) {
    return std::ranges::any_of(value, [](char c) { return c == '"' || static_cast<unsigned char>(c) < ' '; });
}

// ---- where the old value stands

// A stretch of the text, and which of several alike in it.
struct Sought {
    TextSpan within;
    std::string value;
    bool last = false;
};

bool alike(std::string_view a, std::string_view b, bool anyCase) {
    return anyCase ? equalIgnoringCase(a, b) : a == b;
}

bool isBound(std::string_view text, TextSpan within, std::size_t begin, std::size_t end) {
    constexpr std::string_view bounds = " \t\"()#\r\n";
    return (begin == within.begin || bounds.find(text[begin - 1]) != std::string_view::npos) &&
           (end == within.end || bounds.find(text[end]) != std::string_view::npos);
}

std::optional<TextSpan> findValue(std::string_view text, const Sought& sought, bool whole, bool anyCase) {
    std::optional<TextSpan> found;
    const std::size_t length = sought.value.size();
    for (std::size_t at = sought.within.begin; at + length <= sought.within.end; ++at) {
        if (!alike(text.substr(at, length), sought.value, anyCase) ||
            (whole && !isBound(text, sought.within, at, at + length)))
            continue;
        found = TextSpan{static_cast<std::uint32_t>(at), static_cast<std::uint32_t>(at + length)};
        if (!sought.last)
            break;
    }
    return found;
}

// A word of its own rather than a part of one, spelled so rather than in another case.
std::optional<TextSpan> findValue(std::string_view text, const Sought& sought) {
    for (const bool whole : {true, false})
        for (const bool anyCase : {false, true})
            if (const auto found = findValue(text, sought, whole, anyCase))
                return found;
    return std::nullopt;
}

struct OldValue {
    TextSpan span;
    bool quoted = false;
};

// With the quotes around it, also when one of the two is missing.
OldValue withQuotes(std::string_view text, TextSpan within, TextSpan span) {
    OldValue old{span, text[span.begin] == '"'};
    if (span.begin > within.begin && text[span.begin - 1] == '"') {
        --old.span.begin;
        old.quoted = true;
    }
    if (old.quoted && span.end < within.end && text[span.end] == '"')
        ++old.span.end;
    return old;
}

// The place of the key on its line, as the reader knows it.
std::optional<TextSpan> placeOfKey(FileSystem& files, const std::string& path, const EditableText& file,
                                   const ErrorLine& line) {
    const std::string wanted = keyPathOf(line);
    const TextSpan whole = lineSpan(file.text, line.Line);
    SimReader reader(files);
    reader.readBytes(path, file.bytes);
    for (const SimKey& key : reader.SimKeys) {
        if (key.Line != line.Line || key.place.nowhere())
            continue;
        std::string keyPath = StripOccurrence(key.Path);
        if (!key.Key.empty())
            keyPath.append(keyPath.empty() ? "" : "\\").append(key.Key);
        if (equalIgnoringCase(keyPath, wanted) && key.place.begin >= whole.begin &&
            key.place.end <= whole.end)
            return key.place;
    }
    return std::nullopt;
}

bool namesVehicle(const ErrorLine& line) {
    const std::string key = keyPathOf(line);
    return key.ends_with("\\enginedata") || key.ends_with("\\wagondata");
}

// A vehicle's line names its stock without the extension.
std::string withoutStockExtension(std::string value) {
    if (endsWithIgnoringCase(value, ".eng") || endsWithIgnoringCase(value, ".wag"))
        value.resize(value.size() - 4);
    return value;
}

// What of the fault's value is a name: behind that of a freight animation stand its measures.
std::string nameIn(const ErrorLine& line) {
    std::string value(trim(line.Value));
    if (namesVehicle(line) && line.summaryText != message::StockFolderMissingShort.number)
        return withoutStockExtension(std::move(value));
    if (keyPathOf(line) != "wagon\\freightanim")
        return value;
    const std::size_t end = lowerCase(value).find(".s");
    if (end == std::string::npos)
        return value;
    const std::size_t behind = end + 2;
    return value.substr(0, value.size() > behind && value[behind] == '"' ? behind + 1 : behind);
}

std::optional<OldValue> findOld(FileSystem& files, const std::string& path, const EditableText& file,
                                const ErrorLine& line) {
    const TextSpan whole = lineSpan(file.text, line.Line);
    const std::optional<TextSpan> place = placeOfKey(files, path, file, line);
    const std::string value = nameIn(line);
    if (value.empty()) { // a key that holds nothing: the value is put in
        const bool holdsNothing =
            place && trim(std::string_view(file.text).substr(place->begin, place->size())).empty();
        return holdsNothing ? std::optional(OldValue{*place, false}) : std::nullopt;
    }
    const bool folder = namesVehicle(line) && line.summaryText == message::StockFolderMissingShort.number;
    for (const TextSpan within : {place.value_or(whole), whole})
        if (const auto span = findValue(file.text, {within, value, folder}))
            return withQuotes(file.text, within, *span);
    return std::nullopt;
}

// ---- writing

std::string displayedKey(const ErrorLine& line) {
    std::string key = line.Key.substr(0, line.Key.find('('));
    std::ranges::replace(key, '\t', ' ');
    return std::string(trim(key));
}

Outcome notChanged(Frame& frame, const std::string& path, const ErrorLine& line) {
    return {false,
            {{.message = message::ChangeFailed,
              .params = {{"|1", frame.files.nativePath(path)}, {"|2", displayedKey(line)}},
              .file = path,
              .line = line.Line}}};
}

bool beginsWithSignature(const EditableText& file, const std::string& path) {
    const std::string_view text = file.text;
    const std::string_view signature = signatureOf(kindOfFile(path));
    return !signature.empty() && containsIgnoringCase(text.substr(0, text.find_first_of("\r\n")), signature);
}

std::string written(const ErrorLine& line, const std::string& value, bool quoted) {
    const std::string name = namesVehicle(line) ? withoutStockExtension(value) : value;
    const bool needsQuotes = name.find_first_of(" ()#") != std::string::npos;
    return quoted || needsQuotes ? '"' + name + '"' : name;
}

// A value put between brackets that hold none stands apart from them.
TextEdit editOf(std::string_view text, const OldValue& old, std::string value) {
    if (old.span.size() == 0) {
        const auto isBlank = [text](std::size_t at) {
            return at < text.size() && trim(text.substr(at, 1)).empty();
        };
        value.insert(0, isBlank(old.span.begin - 1) ? "" : " ");
        value.append(isBlank(old.span.end) ? "" : " ");
    }
    return {old.span, std::move(value)};
}

// ---- descriptions of shapes

constexpr std::string_view ShapeNamingKeys[] = {"wagon\\wagonshape", "wagon\\inside\\passengercabinfile",
                                                "wagon\\freightanim"};

std::string shapeNameIn(std::string_view value) {
    std::string name(StripQuotes(value));
    const std::size_t end = lowerCase(name).find(".s");
    return end == std::string::npos ? name : name.substr(0, end + 2);
}

std::vector<std::string> descriptionsOf(Frame& frame, const InvalidFile& file) {
    std::vector<std::string> paths;
    SimReader reader(frame.files);
    reader.ReadSimFile(invalidPath(file));
    for (const SimKey& key : reader.SimKeys) {
        const std::string path = lowerCase(StripOccurrence(key.Path) + "\\" + std::string(key.Key));
        if (std::ranges::find(ShapeNamingKeys, path) != std::end(ShapeNamingKeys))
            for (const std::string& folder : foldersOf(frame, file, Shapes))
                paths.push_back(folder + shapeNameIn(key.Value) + "d");
    }
    return paths;
}

bool holdsFault(FileSystem& files, const std::string& path, const ErrorLine& line) {
    std::string bytes;
    if (files.read(path, bytes, LargestSimFile) != ReadResult::Done)
        return false;
    const EditableText file = editableText(std::move(bytes));
    const TextSpan span = lineSpan(file.text, line.Line);
    return containsIgnoringCase(std::string_view(file.text).substr(span.begin, span.size()), line.Value);
}

} // namespace

std::string keyPathOf(const ErrorLine& line) {
    return lowerCase(displayedKey(line));
}

std::string faultyPath(Frame& frame, const InvalidFile& file, const ErrorLine& line) {
    if (keyPathOf(line) == ShapeKey && kindOf(file) != VerifiedKind::Consists)
        for (std::string& path : descriptionsOf(frame, file))
            if (holdsFault(frame.files, path, line))
                return std::move(path);
    return invalidPath(file);
}

std::vector<std::string> offeredValues(Frame& frame, const InvalidFile& file, const ErrorLine& line) {
    const std::string key = keyPathOf(line);
    if (const ClosedRow* row = rowOf(ClosedKeys, key))
        return {row->values.begin(), row->values.end()};
    if (const FileRow* row = rowOf(FileKeys, key))
        return filesOffered(frame, file, *row->rule);
    return {};
}

std::string typedValue(const std::string& text) {
    const std::string_view value = trim(text);
    const bool quoted = value.size() > 1 && value.front() == '"' && value.back() == '"';
    return std::string(quoted ? CleanValue(value) : value);
}

std::optional<Finding> refusalOf(Frame& frame, const InvalidFile& file, const ErrorLine& line,
                                 const std::string& value) {
    const std::string key = keyPathOf(line);
    if (value.empty())
        return Finding{.message = message::NewValueEmpty};
    const ClosedRow* closed = rowOf(ClosedKeys, key);
    if (isUnwritable(value) || (closed && !isAllowed(closed->values, value)))
        return Finding{.message = message::ValueNotAllowed, .params = {{"|1", value}}};
    const FileRow* named = rowOf(FileKeys, key);
    if (named && !isThere(frame, file, *named->rule, value))
        return fileRefusal(frame, file, *named->rule, value);
    return std::nullopt;
}

Outcome writeFaultyValue(Frame& frame, const InvalidFile& file, const ErrorLine& line,
                         const std::string& value) {
    const std::string path = faultyPath(frame, file, line);
    std::string bytes;
    if (line.Line <= 0 || frame.files.read(path, bytes, LargestSimFile) != ReadResult::Done)
        return notChanged(frame, path, line);
    EditableText text = editableText(std::move(bytes));
    if (!beginsWithSignature(text, path))
        return notChanged(frame, path, line);
    const auto old = findOld(frame.files, path, text, line);
    if (!old)
        return notChanged(frame, path, line);
    const TextEdit edit = editOf(text.text, *old, written(line, value, old->quoted));
    if (!replaceSpans(text.text, {&edit, 1}))
        return notChanged(frame, path, line);
    switch (writeEdited(frame.files, path, text)) {
    case EditOutcome::Written:
        return {true, {{.message = message::ChangeWritten}}};
    case EditOutcome::Same:
        return {true, {}};
    default:
        return notChanged(frame, path, line);
    }
}

Correction correctFaultyValue(VerifWork& work, Catalogue& catalogue, int file, int line,
                              const std::string& text) {
    const InvalidFile record = work.results.InvalidFiles.at(static_cast<std::size_t>(file));
    const ErrorLine fault = record.Lines.at(static_cast<std::size_t>(line));
    const std::string value = typedValue(text);
    if (const auto refusal = refusalOf(work.frame, record, fault, value))
        return {false, file, {*refusal}};
    Outcome outcome = writeFaultyValue(work.frame, record, fault, value);
    if (!outcome.done)
        return {false, file, std::move(outcome.told)};
    Correction correction{true, RecheckAfterEdit(work, catalogue, invalidPath(record)),
                          std::move(outcome.told)};
    Finding left{.message = message::NoFaultLeft, .style = style::Information};
    if (correction.file) {
        const std::size_t count =
            work.results.InvalidFiles[static_cast<std::size_t>(*correction.file)].Lines.size();
        left.message = message::FaultsRemain;
        left.params = {{"|1", record.File}, {"|2", std::to_string(count)}};
    }
    correction.told.push_back(std::move(left));
    return correction;
}

} // namespace zandor
