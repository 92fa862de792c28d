#include "verify/result_rows.h"

#include "catalogue/catalogue.h"
#include "catalogue/name_key.h"
#include "verify/messages.h"
#include "verify/result_lists.h"

#include <unordered_map>
#include <utility>

namespace zandor {

namespace {

const InvalidFile& recordOf(const VerifResults& results, const FaultyFile& file) {
    return results.InvalidFiles[static_cast<std::size_t>(file.invalid)];
}

// Of a file without a record.
const MandatoryFault& firstKey(const VerifResults& results, const FaultyFile& file) {
    return results.mandatory[static_cast<std::size_t>(file.mandatory.front())];
}

// As the record of a file without one would be.
InvalidFile bareRecordOf(const Frame& frame, const VerifResults& results, const FaultyFile& file) {
    const MandatoryFault& key = firstKey(results, file);
    return {trainsetPath(frame.state.roots.RootPrimary()), key.folder, key.file, {}, {}};
}

} // namespace

// ---- candidates

std::vector<std::string> candidateTexts(const VerifSelection& candidates) {
    std::vector<std::string> texts;
    texts.reserve(static_cast<std::size_t>(candidates.size()));
    for (const std::string& consist : candidates.consists)
        texts.push_back(lowerCase(consist));
    for (const StockFileEntry& stock : candidates.stock)
        texts.push_back(lowerCase(stock.Folder + "\\" + stock.File));
    return texts;
}

std::string candidatePath(const Frame& frame, const VerifSelection& candidates, int index) {
    const auto position = static_cast<std::size_t>(index);
    if (candidates.kind == VerifiedKind::Consists)
        return consistsPath(frame.state.roots.RootPrimary()) + candidates.consists[position];
    const StockFileEntry& stock = candidates.stock[position];
    return stock.BasePath + stock.Folder + "\\" + stock.File;
}

// ---- files with faults

std::vector<FaultyFile> faultyFiles(const VerifResults& results, const ResultFinder& finder,
                                    const ResultFilter& filter) {
    std::unordered_map<std::string, FaultyFile> lacking; // keys, by file
    for (std::size_t i = 0; i < results.mandatory.size(); ++i)
        lacking[foldedNameKey(results.mandatory[i].folder, results.mandatory[i].file)].mandatory.push_back(
            static_cast<int>(i));
    for (std::size_t i = 0; i < results.InvalidFiles.size(); ++i) {
        const InvalidFile& record = results.InvalidFiles[i];
        const auto found = lacking.find(foldedNameKey(record.Folder, record.File));
        if (found != lacking.end())
            found->second.invalid = static_cast<int>(i);
    }
    std::vector<FaultyFile> files;
    for (const int position : finder.invalidFiles(filter)) {
        const InvalidFile& record = results.InvalidFiles[static_cast<std::size_t>(position)];
        if (record.File.empty())
            continue;
        const auto found = lacking.find(foldedNameKey(record.Folder, record.File));
        files.push_back(found == lacking.end() ? FaultyFile{position, {}} : found->second);
    }
    for (const int position : finder.mandatory(filter)) {
        const MandatoryFault& fault = results.mandatory[static_cast<std::size_t>(position)];
        FaultyFile& file = lacking[foldedNameKey(fault.folder, fault.file)];
        if (file.invalid < 0 && !file.mandatory.empty())
            files.push_back({-1, std::exchange(file.mandatory, {})});
    }
    return files;
}

std::string fileOf(const VerifResults& results, const FaultyFile& file) {
    return file.invalid < 0 ? firstKey(results, file).file : recordOf(results, file).File;
}

std::string folderOf(const VerifResults& results, const FaultyFile& file) {
    return file.invalid < 0 ? firstKey(results, file).folder : recordOf(results, file).Folder;
}

std::vector<int> recordsFor(const Frame& frame, VerifResults& results, const std::vector<FaultyFile>& files) {
    std::vector<int> records;
    for (const FaultyFile& file : files) {
        records.push_back(file.invalid);
        if (file.invalid >= 0)
            continue;
        records.back() = static_cast<int>(results.InvalidFiles.size());
        results.InvalidFiles.push_back(bareRecordOf(frame, results, file));
    }
    return records;
}

void dropBareRecords(VerifResults& results) {
    std::erase_if(results.InvalidFiles, [](const InvalidFile& file) { return file.Lines.empty(); });
}

std::string pathOf(const Frame& frame, const VerifResults& results, const FaultyFile& file) {
    if (file.invalid >= 0)
        return invalidPath(recordOf(results, file));
    return invalidPath(bareRecordOf(frame, results, file));
}

// ---- their faults

std::vector<FileFault> faultsOf(const VerifResults& results, const FaultyFile& file) {
    std::vector<FileFault> faults;
    if (file.invalid >= 0) {
        const std::vector<ErrorLine>& lines = recordOf(results, file).Lines;
        for (std::size_t i = 0; i < lines.size(); ++i)
            faults.push_back({static_cast<int>(i), -1, {FaultGroup::Line, lines[i].summaryText}});
    }
    for (const int position : file.mandatory)
        faults.push_back({-1, position, {FaultGroup::MandatoryKey, 0}});
    return faults;
}

std::string summaryOf(const Frame& frame, const VerifResults& results, const FaultyFile& file,
                      const FileFault& fault) {
    if (fault.line >= 0)
        return recordOf(results, file).Lines[static_cast<std::size_t>(fault.line)].Summary;
    const std::string& key = results.mandatory[static_cast<std::size_t>(fault.mandatory)].key;
    return frame.text(message::MandatoryKeyName, {{"|1", key}});
}

std::string detailsOf(const Frame& frame, const VerifResults& results, const FaultyFile& file,
                      const FileFault& fault) {
    if (fault.line >= 0)
        return recordOf(results, file).Lines[static_cast<std::size_t>(fault.line)].Long;
    const MandatoryFault& lack = results.mandatory[static_cast<std::size_t>(fault.mandatory)];
    return frame.text(message::MandatoryKeyMissing, {{"|1", " " + lack.file + " – "},
                                                     {"|2", "'" + lack.key + "'"},
                                                     {"|3", "'Wagon'"},
                                                     {"|4", " "},
                                                     {"|5", frame.state.Title}});
}

std::optional<FaultRow> seekFault(const VerifResults& results, const std::vector<FaultyFile>& files,
                                  FaultRow from, const std::optional<FaultKind>& kind) {
    const int count = static_cast<int>(files.size());
    for (int step = 0; step <= count && count > 0; ++step, from.fault = 0) {
        const int row = (from.file + step) % count;
        const std::vector<FileFault> faults = faultsOf(results, files[static_cast<std::size_t>(row)]);
        for (std::size_t i = static_cast<std::size_t>(from.fault); i < faults.size(); ++i)
            if (!kind || *kind == faults[i].kind)
                return FaultRow{row, static_cast<int>(i)};
    }
    return std::nullopt;
}

} // namespace zandor
