#include "simfiles/route_files.h"

#include "text/decode.h"
#include "text/lines.h"
#include "text/text.h"

#include <algorithm>
#include <new>
#include <optional>

namespace zandor {

namespace {

constexpr std::string_view Blank = " ";

// True when the word (lower case, ASCII) stands anywhere in the line, in any case. Every line of every file
// comes here.
bool holdsWord(std::string_view line, std::string_view word) {
    if (line.size() < word.size())
        return false;
    const std::size_t last = line.size() - word.size();
    for (std::size_t at = 0; at <= last; ++at)
        if ((line[at] | 0x20) == word.front() && nameIs(line.substr(at, word.size()), word))
            return true;
    return false;
}

// The line as its values are taken from it: tabs count as blanks. `room` holds it.
std::string_view withoutTabs(std::string_view line, std::string& room) {
    room.assign(line);
    std::replace(room.begin(), room.end(), '\t', ' ');
    return room;
}

// What stands behind the line's first bracket up to its ")"; when more brackets open behind the first one, up
// to the second ")", so that a value may hold one pair. Nothing: they don't close.
std::optional<std::string_view> bracketValue(std::string_view line) {
    const std::size_t begin = line.find('(') + 1;
    std::size_t end = line.find(')', begin);
    if (end != std::string_view::npos && line.find('(', begin) != std::string_view::npos)
        end = line.find(')', end + 1);
    if (end == std::string_view::npos)
        return std::nullopt;
    return line.substr(begin, end - begin);
}

// The value in its quotes or without; nothing when the brackets hold no character.
std::optional<std::string_view> quotedValue(std::string_view line) {
    const std::optional<std::string_view> value = bracketValue(line);
    return value && !value->empty() ? std::optional(StripQuotes(*value)) : std::nullopt;
}

// Takes lines until one gives the name.
class TrackLines {
  public:
    TrackLines(std::string& nom, std::string& room) : nom_(nom), room_(room) {}

    // False: no more are wanted.
    bool take(std::string_view line, int) {
        const std::size_t begin = line.find('(') + 1;
        const std::size_t end = begin == 0 ? std::string_view::npos : line.find(')', begin);
        if (end == std::string_view::npos || end == begin || !holdsWord(line, "name"))
            return true;
        nom_ = StripQuotes(withoutTabs(line.substr(begin, end - begin), room_));
        return false;
    }

  private:
    std::string& nom_;
    std::string& room_; // for one line
};

class ServiceLines {
  public:
    ServiceLines(ServiceRoute& service, std::string& room) : service_(service), room_(room) {}

    bool take(std::string_view line, int number) {
        service_.Ligne = number;
        if (line.find('(') == std::string_view::npos)
            return true;
        takeValue(line, "name", service_.Nom);
        takeValue(line, "train_config", service_.Rame);
        return service_.Nom.empty() || service_.Rame.empty();
    }

  private:
    void takeValue(std::string_view line, std::string_view word, std::string& field) {
        if (holdsWord(line, word))
            if (const auto value = quotedValue(withoutTabs(line, room_)))
                field = *value;
    }

    ServiceRoute& service_;
    std::string& room_; // for one line
};

// Collects the names and vehicles of an activity file.
class ActivityParts {
  public:
    ActivityParts(ActivityFile& activity, std::string_view path) : activity_(activity), path_(path) {}

    bool hasName() const { return !activity_.named.empty(); }
    void open(std::string_view nom) {
        ActiviteRoute& opened = activity_.named.emplace_back();
        opened.Nom = nom;
        opened.Fichier = path_;
    }
    void add(bool isEngine, std::string_view value, std::string_view source, int line) {
        ActiviteMateriel& added =
            (hasName() ? activity_.named.back().Vehicules : activity_.before).emplace_back();
        SplitStockValue(value, added.Fichier, added.Dossier);
        added.Texte = source;
        added.Ligne = line;
        added.Motrice = isEngine;
    }

  private:
    ActivityFile& activity_;
    std::string_view path_;
};

class ActivityLines {
  public:
    ActivityLines(ActivityParts& parts, std::string& room, std::string& source)
        : parts_(parts), room_(room), source_(source) {}

    bool take(std::string_view line, int number) {
        if (line.find('(') == std::string_view::npos)
            return true;
        if (!parts_.hasName() && holdsWord(line, "name"))
            if (const auto value = quotedValue(withoutTabs(line, room_)); value && !value->empty())
                parts_.open(*value);
        if (!holdsWord(line, "data")) // as few lines do
            return true;
        if (holdsWord(line, "enginedata"))
            add(true, line, number);
        if (holdsWord(line, "wagondata"))
            add(false, line, number);
        return true;
    }

  private:
    void add(bool isEngine, std::string_view line, int number) {
        const std::optional<std::string_view> value = bracketValue(withoutTabs(line, room_));
        if (!value)
            return;
        source_ = line;
        NormalizeLine(source_);
        parts_.add(isEngine, trim(*value), source_, number);
    }

    ActivityParts& parts_;
    std::string& room_;   // for one line
    std::string& source_; // for one in its normal form
};

constexpr std::string_view HeaderPath = "Tr_Activity\\Tr_Activity_Header";
constexpr std::string_view EnginePath = "Train_Config\\TrainCfg\\Engine";
constexpr std::string_view WagonPath = "Train_Config\\TrainCfg\\Wagon";

// True when these blocks stand anywhere in the path, markers left out; mostly they are its end.
bool hasBlocks(std::string_view path, std::string_view blocks) {
    std::size_t end = path.rfind('\\');
    for (int component = 0; component < 2 && end != std::string_view::npos && end > 0; ++component)
        end = path.rfind('\\', end - 1);
    return pathIs(path.substr(end + 1), blocks) || containsIgnoringCase(StripOccurrence(path), blocks);
}

void takeKey(ActivityParts& parts, const SimKey& key) {
    if (nameIs(key.Key, "name")) {
        if (pathIs(key.Path, HeaderPath))
            parts.open(StripQuotes(key.Value));
        return;
    }
    const bool isEngine = nameIs(key.Key, "enginedata");
    if ((isEngine || nameIs(key.Key, "wagondata")) && hasBlocks(key.Path, isEngine ? EnginePath : WagonPath))
        parts.add(isEngine, key.Value, key.Tail, key.Line);
}

// Where the stock file's name ends, and from where on the folder stands: bytes from 0.
struct StockSplit {
    std::string_view name;
    std::size_t folder = 0;
};

StockSplit splitQuoted(std::string_view value) {
    const std::size_t closing = value.find('"', 1);
    if (closing != std::string_view::npos && closing > 1) {
        // one character behind the closing quote goes too, which is a blank in what the simulator writes
        const std::size_t behind = closing + 1;
        return {value.substr(1, closing - 1), behind + firstCharacters(value.substr(behind), 1).size()};
    }
    const std::size_t blank = value.find(Blank);
    if (blank == std::string_view::npos)
        return {};
    return {value.substr(1, blank - 1), blank + 1};
}

StockSplit splitAtBlank(std::string_view value) {
    const std::size_t blank = value.find(Blank);
    return blank == std::string_view::npos ? StockSplit() : StockSplit{value.substr(0, blank), blank + 1};
}

} // namespace

void SplitStockValue(std::string_view value, std::string& fichier, std::string& dossier) {
    const StockSplit split = value.starts_with('"') ? splitQuoted(value) : splitAtBlank(value);
    fichier = split.name;
    dossier = CleanValue(split.name.empty() ? value : value.substr(split.folder));
}

template <typename Take> ReadOutcome RouteFilesReader::readLines(std::string_view path, Take take) {
    const ReadResult result = files_.read(path, bytes_, LargestSimFile);
    if (result != ReadResult::Done)
        return unreadAnswer(files_, path, result).outcome;
    try {
        decodeSimulatorText(bytes_, text_);
        int number = 0;
        bool wanted = true;
        forEachLine(text_, [&](std::string_view line) { wanted = wanted && take(line, ++number); });
    } catch (const std::bad_alloc&) {
        bytes_ = text_ = line_ = source_ = std::string();
        return ReadOutcome::NoMemory;
    }
    return ReadOutcome::Read;
}

ReadOutcome RouteFilesReader::readTrack(std::string_view path, std::string& nom) {
    nom.clear();
    TrackLines lines(nom, line_);
    return readLines(path, [&](std::string_view line, int number) { return lines.take(line, number); });
}

ReadOutcome RouteFilesReader::readService(std::string_view path, ServiceRoute& service) {
    service = ServiceRoute();
    service.Fichier = path;
    ServiceLines lines(service, line_);
    return readLines(path, [&](std::string_view line, int number) { return lines.take(line, number); });
}

ReadOutcome RouteFilesReader::readActivity(std::string_view path, ActivityReading reading,
                                           ActivityFile& activity) {
    activity.before.clear();
    activity.named.clear();
    ActivityParts parts(activity, path);
    if (reading == ActivityReading::ByLines) {
        ActivityLines lines(parts, line_, source_);
        return readLines(path, [&](std::string_view line, int number) { return lines.take(line, number); });
    }
    const ReadAnswer answer = reader_.ReadSimFile(path);
    for (const SimKey& key : reader_.SimKeys)
        takeKey(parts, key);
    return answer.outcome;
}

} // namespace zandor
