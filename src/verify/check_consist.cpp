#include "catalogue/catalogue.h"
#include "simfiles/consist_file.h"
#include "verify/checks.h"
#include "verify/messages.h"

#include <utility>

namespace zandor {

namespace {

// What differs between the vehicles of a consist.
struct VehicleKind {
    std::string_view block, key, extension;
    Message missing, missingShort;
};
constexpr VehicleKind VehicleKinds[] = {
    {"Train\\TrainCfg\\Engine", "EngineData", ".eng", message::EngineMissing, message::EngineMissingShort},
    {"Train\\TrainCfg\\Wagon", "WagonData", ".wag", message::WagonMissing, message::WagonMissingShort}};

struct NamedStock {
    std::string name, folder;
};

// Not quite as the editor splits it: a lone word is a name, and a quote without a partner is part of one.
NamedStock namedStock(std::string_view value) {
    constexpr auto npos = std::string_view::npos;
    value = trim(value);
    const bool begun = value.starts_with('"');
    const std::size_t partner = begun ? value.find('"', 1) : npos;
    const bool isQuoted = partner != npos && partner > 1;
    if (!isQuoted && value.find(' ') == npos)
        return {std::string(value), {}};
    NamedStock stock;
    splitVehicleData(value, stock.name, stock.folder);
    if (begun && !isQuoted)
        stock.name.insert(0, 1, '"');
    return stock;
}

class ConsistCheck {
  public:
    ConsistCheck(VerifWork& work, std::string_view file, Quiet quiet)
        : work_(work), file_(file), isQuiet_(quiet == Quiet::Yes) {}

    bool run(std::string_view path) {
        const ReadAnswer answer = work_.reader.ReadSimFile(path);
        const SimKey* fullName = find("Name");
        if (fullName)
            name_ = StripQuotes(fullName->Value);
        if (answer.outcome == ReadOutcome::Malformed && !fullName)
            return false;
        if (const SimKey* block = find(""))
            checkName(*block);
        // What stands behind a vehicle that can't be read isn't known, nor then what stands before it.
        if (answer.outcome != ReadOutcome::Malformed)
            checkVehicles();
        return found_;
    }

  private:
    const SimKey* find(std::string_view name) const {
        for (const SimKey& key : work_.reader.SimKeys)
            if (nameIs(key.Key, name) && pathIs(key.Path, "Train\\TrainCfg"))
                return &key;
        return nullptr;
    }

    void checkName(const SimKey& block) {
        const std::string value(StripQuotes(block.Value));
        if (name_.empty())
            name_ = value;
        const std::string_view expected =
            file_.substr(0, file_.size() - std::min<std::size_t>(file_.size(), 4));
        if (!work_.options.CheckName || isQuiet_ || equalIgnoringCase(expected, value))
            return;
        const Frame& frame = work_.frame;
        report(
            {frame.text(message::NameDiffersShort, {{"|1", value}}),
             frame.text(
                 message::ConsistNameDiffers,
                 {{"|1", value}, {"|2", "'TrainCfg ('"}, {"|3", file_}, {"|4", std::to_string(block.Line)}}),
             value, "Train\\TrainCfg ( ", block.Line, message::NameDiffersShort.number,
             message::ConsistNameDiffers.number});
    }

    void checkVehicles() {
        for (const VehicleKind& kind : VehicleKinds)
            for (const SimKey& key : work_.reader.SimKeys)
                if (nameIs(key.Key, kind.key) && pathIs(key.Path, kind.block))
                    checkVehicle(kind, key);
    }

    void checkVehicle(const VehicleKind& kind, const SimKey& key) {
        const NamedStock stock = namedStock(key.Value);
        const std::string file = stock.name + std::string(kind.extension);
        const bool folderExists = isUnderARoot(&PassFiles::folderExists, stock.folder);
        if (folderExists && isUnderARoot(&PassFiles::fileExists, stock.folder + "\\" + file))
            return;
        if (isQuiet_)
            found_ = true;
        else if (folderExists)
            reportFile(kind, key, stock, file);
        else
            reportFolder(kind, key, stock.folder);
    }

    bool isUnderARoot(bool (PassFiles::*exists)(std::string_view), const std::string& name) const {
        const Roots& roots = work_.frame.state.roots;
        const auto isUnder = [&](const std::string& root) {
            return (work_.onDisk.*exists)(trainsetPath(root) + name);
        };
        return isUnder(roots.RootPrimary()) ||
               (!isQuiet_ && !roots.RootSecondary().empty() && isUnder(roots.RootSecondary()));
    }

    void reportFolder(const VehicleKind& kind, const SimKey& key, const std::string& folder) {
        const Frame& frame = work_.frame;
        report({frame.text(message::StockFolderMissingShort, {{"|1", folder}}),
                frame.text(message::StockFolderMissing,
                           {{"|1", folder}, {"|2", lineOf(kind, key)}, {"|3", std::to_string(key.Line)}}),
                folder, keyOf(kind), key.Line, message::StockFolderMissingShort.number,
                message::StockFolderMissing.number});
    }

    void reportFile(const VehicleKind& kind, const SimKey& key, const NamedStock& stock,
                    const std::string& file) {
        const Frame& frame = work_.frame;
        const std::string folder =
            frame.files.nativePath(trainsetPath(frame.state.roots.RootPrimary()) + stock.folder);
        report(
            {frame.text(kind.missingShort, {{"|1", file}}),
             frame.text(
                 kind.missing,
                 {{"|1", file}, {"|2", lineOf(kind, key)}, {"|3", folder}, {"|4", std::to_string(key.Line)}}),
             file, keyOf(kind), key.Line, kind.missingShort.number, kind.missing.number});
    }

    static std::string lineOf(const VehicleKind& kind, const SimKey& key) {
        return std::string(kind.key) + " ( " + std::string(key.Value) + " )";
    }
    static std::string keyOf(const VehicleKind& kind) {
        return std::string(kind.block) + "\\" + std::string(kind.key) + " ( ";
    }

    void report(ErrorLine line) {
        if (!found_)
            AddInvalidFile(
                work_.results,
                {consistsPath(work_.frame.state.roots.RootPrimary()), {}, std::string(file_), name_, {}});
        found_ = true;
        AddErrorLine(work_.results, std::move(line));
    }

    VerifWork& work_;
    std::string_view file_;
    bool isQuiet_;
    std::string name_;
    bool found_ = false;
};

// Empty: under neither root.
std::string findConsist(VerifWork& work, std::string_view file) {
    const Roots& roots = work.frame.state.roots;
    for (const std::string* root : {&roots.RootPrimary(), &roots.RootSecondary()}) {
        const std::string path = consistsPath(*root) + std::string(file);
        if (!root->empty() && work.onDisk.fileExists(path))
            return path;
    }
    return {};
}

} // namespace

void AddInvalidFile(VerifResults& results, InvalidFile file) {
    results.InvalidFiles.push_back(std::move(file));
}

void AddErrorLine(VerifResults& results, ErrorLine line) {
    results.InvalidFiles.back().Lines.push_back(std::move(line));
}

bool CheckConsistFile(VerifWork& work, std::string_view file, Quiet quiet, std::string_view fullPath) {
    const std::string path = fullPath.empty() ? findConsist(work, file) : std::string(fullPath);
    const std::string name = fullPath.empty() ? std::string(file) : GetFileName(fullPath);
    return !path.empty() && ConsistCheck(work, name, quiet).run(path);
}

} // namespace zandor
