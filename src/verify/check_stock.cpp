#include "catalogue/catalogue.h"
#include "platform/sim_path.h"
#include "verify/checks.h"
#include "verify/messages.h"
#include "verify/quote_repair.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>

namespace zandor {

namespace {

using Values = std::span<const std::string_view>;

constexpr std::string_view WagonTypes[] = {"carriage", "engine", "freight", "tender"};
constexpr std::string_view CouplingTypes[] = {"bar", "automatic", "chain", "hydraulic"};
constexpr std::string_view BrakeSystems[] = {
    "air_twin_pipe", "air_single_pipe", "vacuum_single_pipe", "vacuum_twin_pipe", "ep",
    "ecp",           "air_piped",       "vacuum_piped"};
constexpr std::string_view EngineTypes[] = {"diesel", "electric", "steam"};

// The keys that the simulator can't do without.
struct MandatoryKey {
    std::string_view path, key, name;
};
constexpr MandatoryKey MandatoryKeys[] = {{"Wagon", "Size", "Size"},
                                          {"Wagon\\Coupling", "Type", "Coupling\\Type"},
                                          {"Wagon", "Mass", "Mass"},
                                          {"Wagon", "Type", "Type"}};

const DescribedShape& describedShape(VerifWork& work, const std::string& path) {
    const auto [found, isNew] = work.descriptions.try_emplace(lowerCase(path));
    if (isNew)
        found->second = readDescription(work.reader, path);
    return found->second;
}

// The keys of one stock file, tested in the order of the file.
class StockCheck {
  public:
    StockCheck(VerifWork& work, std::string_view folder, std::string_view file)
        : work_(work), folder_(folder), file_(file),
          beside_(work.places.trainset + std::string(folder) + "\\") {}

    void run(const std::vector<SimHit>& hits) {
        for (const SimHit& hit : hits)
            if (hit.Key == "Name" && hit.Path == "Engine")
                name_ = StripQuotes(hit.Value);
        bool couplingSeen = false;
        for (const SimHit& hit : hits) {
            const bool isCoupling = hit.Path == "Wagon\\Coupling";
            if (!isCoupling || !couplingSeen)
                test(hit);
            couplingSeen = couplingSeen || isCoupling;
        }
        for (const std::string& description : descriptions_)
            testDescription(description);
        for (const MandatoryKey& key : MandatoryKeys)
            if (std::ranges::none_of(
                    hits, [&](const SimHit& hit) { return hit.Key == key.key && hit.Path == key.path; }))
                tellMandatory(key.name);
    }

  private:
    // A key that is tested, how, and for a closed list the values that it may have.
    struct KeyTest {
        std::string_view path, key;
        void (StockCheck::*test)(const SimHit&, Values);
        Values allowed{};
    };
    static const std::array<KeyTest, 19> Tests;

    void test(const SimHit& hit) {
        for (const KeyTest& row : Tests)
            if (hit.Key == row.key && hit.Path == row.path) // most differ in the key's length
                return (this->*row.test)(hit, row.allowed);
    }

    void takeName(const SimHit& hit, Values) { name_ = StripQuotes(hit.Value); }

    void testName(const SimHit& hit, Values) {
        const std::string_view value = StripQuotes(hit.Value);
        if (name_.empty())
            name_ = value;
        const std::string_view expected =
            file_.substr(0, file_.size() - std::min<std::size_t>(file_.size(), 4));
        if (!work_.options.CheckName || equalIgnoringCase(expected, value))
            return;
        report(message::NameDiffers, message::NameDiffersShort, hit, value, hit.Key.empty(),
               {{"|1", value}, {"|2", hit.Tail}, {"|3", file_}, {"|4", std::to_string(hit.FirstLine)}});
    }

    void testAllowed(const SimHit& hit, Values allowed) {
        const std::string tested = lowerCase(StripQuotes(cutComment(hit.Value)));
        if (std::ranges::find(allowed, tested) != allowed.end())
            return;
        const std::string_view value = StripQuotes(hit.Value);
        report(message::ValueUnknown, message::ValueUnknownShort, hit, value, false,
               {{"|1", value}, {"|2", hit.Tail}, {"|3", std::to_string(hit.FirstLine)}});
    }

    void testFilled(const SimHit& hit, Values) {
        const std::string_view value = StripQuotes(hit.Value);
        if (trim(value).empty())
            report(message::ValueEmpty, message::ValueEmptyShort, hit, value, false,
                   {{"|1", hit.Tail}, {"|2", std::to_string(hit.FirstLine)}});
    }

    void testCabView(const SimHit& hit, Values) {
        const std::string value(StripQuotes(hit.Value));
        const std::string folder = folderWith("Cabview\\", value);
        if (folder.empty())
            reportMissing(hit, value);
        else if (work_.options.CheckTextures)
            work_.queues.ShapeTargets.push_back({folder, folder_ + "\\Cabview\\", value});
    }

    void testSound(const SimHit& hit, Values) {
        const std::string value(StripQuotes(hit.Value));
        const std::string own = folderWith("Sound\\", value);
        const std::string& common = work_.places.sounds;
        const bool isOwn = !own.empty();
        if (!isOwn && (common.empty() || !work_.onDisk.fileExists(common + value)))
            reportMissing(hit, value);
        else if (work_.options.CheckSounds)
            work_.queues.SoundTargets.push_back({isOwn ? own : common, folder_ + "\\Sound\\", value});
    }

    void testThumbnail(const SimHit& hit, Values) {
        const std::string value(StripQuotes(hit.Value));
        if (folderWith("", value).empty())
            reportMissing(hit, value);
    }

    // Where this value is found: the folder of this stock, with what is below it. Stock that isn't installed
    // yet may name what other, installed stock has. Empty: nowhere.
    std::string folderWith(std::string_view below, const std::string& value) {
        std::string folder = beside_ + std::string(below);
        if (work_.onDisk.fileExists(folder + value))
            return folder;
        if (work_.places.installed.empty() || value.find("..") == std::string::npos)
            return {};
        folder = work_.places.installed + folder_ + "\\" + std::string(below);
        return work_.onDisk.fileExists(folder + value) ? folder : std::string();
    }

    void testShape(const SimHit& hit, Values) {
        const std::string_view value = shapeNamedBy(hit);
        const std::string name(value);
        if (const std::string folder = folderWith("", name + "d"); !folder.empty())
            addDescription(folder + name + "d");
        const std::string folder = folderWith("", name);
        if (folder.empty())
            reportMissing(hit, value);
        else if (work_.options.CheckTextures)
            work_.queues.ShapeTargets.push_back({folder, folder_ + "\\", name});
    }

    // Two keys may name one shape.
    void addDescription(std::string path) {
        if (std::ranges::none_of(
                descriptions_, [&path](const std::string& known) { return equalIgnoringCase(known, path); }))
            descriptions_.push_back(std::move(path));
    }

    // The shape lies in the stock's folder, or where its description does.
    void testDescription(const std::string& path) {
        const DescribedShape& shape = describedShape(work_, path);
        if (!shape.found || work_.onDisk.fileExists(beside_ + shape.value) ||
            work_.onDisk.fileExists(std::string(folderPart(path)) + shape.value))
            return;
        SimHit hit;
        hit.Tail = shape.tail;
        hit.FirstLine = shape.line;
        reportMissing(hit, shape.value, true);
    }

    void reportMissing(const SimHit& hit, std::string_view value, bool bare = false) {
        report(message::NamedFileMissing, message::NamedFileMissingShort, hit, value, bare,
               {{"|1", value}, {"|2", hit.Tail}, {"|3", std::to_string(hit.FirstLine)}});
    }

    // `bare`: the key's block goes without saying. The summary's |1 is that of the long text.
    void report(Message longText, Message summary, const SimHit& hit, std::string_view value, bool bare,
                std::initializer_list<TextParam> params) {
        const Frame& frame = work_.frame;
        if (!std::exchange(isInvalid_, true))
            AddInvalidFile(work_.results, {work_.places.stock, folder_, std::string(file_), name_, {}});
        AddErrorLine(work_.results, {frame.text(summary, {*params.begin()}), frame.text(longText, params),
                                     std::string(value), bare ? hit.Tail : hit.Path + "\\" + hit.Tail,
                                     hit.FirstLine, summary.number, longText.number});
    }

    void tellMandatory(std::string_view key) {
        work_.results.mandatory.push_back({folder_, std::string(file_), std::string(key)});
        if (!work_.showsMandatory)
            return;
        Frame& frame = work_.frame;
        const std::string path =
            frame.files.nativePath(work_.places.stock + folder_ + "\\" + std::string(file_));
        const std::string text =
            frame.text(message::MandatoryKeyMissing, {{"|1", "\r\n\r\n" + path + "\r\n\r\n"},
                                                      {"|2", "'" + std::string(key) + "'"},
                                                      {"|3", "'Wagon'"},
                                                      {"|4", "\r\n\r\n"},
                                                      {"|5", frame.state.Title}});
        work_.showsMandatory = frame.dialogs.showRepeated(text, style::Exclamation, frame.state.Title);
    }

    VerifWork& work_;
    std::string folder_;
    std::string_view file_;
    std::string beside_; // where the files lie that this stock names
    std::string name_;
    bool isInvalid_ = false;
    std::vector<std::string> descriptions_; // paths
};

const std::array<StockCheck::KeyTest, 19> StockCheck::Tests{{
    {"Wagon", "Name", &StockCheck::takeName},
    {"Wagon", "", &StockCheck::testName},
    {"Wagon", "Type", &StockCheck::testAllowed, WagonTypes},
    {"Wagon", "Mass", &StockCheck::testFilled},
    {"Wagon", "Size", &StockCheck::testFilled},
    {"Wagon\\Coupling", "Type", &StockCheck::testAllowed, CouplingTypes},
    {"Wagon", "BrakeSystemType", &StockCheck::testAllowed, BrakeSystems},
    {"Engine", "", &StockCheck::testName},
    {"Engine", "Wagon", &StockCheck::testName},
    {"Engine", "Type", &StockCheck::testAllowed, EngineTypes},
    {"Engine", "CabView", &StockCheck::testCabView},
    {"Engine", "Sound", &StockCheck::testSound},
    {"Wagon", "Sound", &StockCheck::testSound},
    {"Engine\\Inside", "Sound", &StockCheck::testSound},
    {"Wagon\\Inside", "Sound", &StockCheck::testSound},
    {"Wagon", "Thumbnail", &StockCheck::testThumbnail},
    {"Wagon", "WagonShape", &StockCheck::testShape},
    {"Wagon\\Inside", "PassengerCabinFile", &StockCheck::testShape},
    {"Wagon", "FreightAnim", &StockCheck::testShape},
}};

bool wasOpened(const StockToCheck& reading) {
    return reading.outcome != ReadOutcome::NoFile && reading.outcome != ReadOutcome::Unreadable;
}

bool needsQuotes(const VerifWork& work, const StockToCheck& reading) {
    return work.options.RepairQuotes && std::ranges::any_of(reading.hits, lacksQuotes);
}

} // namespace

VerifPlaces placesOf(const Roots& roots) {
    const std::string& simulator = roots.RootMSTS.empty() ? roots.RootPrimary() : roots.RootMSTS;
    return {trainsetPath(roots.RootPrimary()), trainsetPath(simulator), simulator + "\\Sound\\", {}, {}};
}

VerifPlaces placesAround(const Roots& roots, const StockFileEntry& stock) {
    VerifPlaces places{stock.BasePath, stock.BasePath, {}, stock.Folder, {}};
    if (!roots.RootMSTS.empty()) {
        places.sounds = roots.RootMSTS + "\\Sound\\";
        places.installed = trainsetPath(roots.RootMSTS);
    }
    return places;
}

void CheckStockFile(VerifWork& work, std::string_view folder, std::string_view file) {
    const std::string path = work.places.stock + std::string(folder) + "\\" + std::string(file);
    StockToCheck reading;
    readStock(work.reader, path, reading);
    if (!wasOpened(reading))
        return;
    if (needsQuotes(work, reading))
        repairQuotes(work, path, reading.hits);
    StockCheck(work, folder, file).run(reading.hits);
}

bool checkReadStock(VerifWork& work, std::string_view folder, std::string_view file, StockToCheck& reading) {
    if (reading.outcome == ReadOutcome::NoMemory || needsQuotes(work, reading))
        return false;
    for (auto& [path, shape] : reading.descriptions)
        work.descriptions.try_emplace(std::move(path), std::move(shape));
    if (wasOpened(reading))
        StockCheck(work, folder, file).run(reading.hits);
    return true;
}

} // namespace zandor
