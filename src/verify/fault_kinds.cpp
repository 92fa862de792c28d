#include "verify/fault_kinds.h"

#include "catalogue/name_key.h"
#include "platform/letter_case.h"
#include "verify/messages.h"

#include <algorithm>
#include <map>
#include <set>
#include <unordered_set>

namespace zandor {

namespace {

constexpr FaultKind MandatoryKind{FaultGroup::MandatoryKey, 0};
constexpr FaultKind DuplicateKind{FaultGroup::Duplicate, 0};

FaultKind kindOf(const ErrorLine& line) {
    return {FaultGroup::Line, line.summaryText};
}

FaultKind kindOf(const MissingEntry& entry) {
    return {entry.Kind == MissingKind::Texture ? FaultGroup::MissingTexture : FaultGroup::MissingSound, 0};
}

struct KindOrder {
    bool operator()(const FaultKind& a, const FaultKind& b) const {
        return std::pair(a.group, a.summaryText) < std::pair(b.group, b.summaryText);
    }
};

class Counter {
  public:
    // A file's faults one after another: the file is counted once for each kind.
    void beginFile() { seen_.clear(); }
    void add(const FaultKind& kind, int faults = 1) {
        FaultCount& count = counts_.try_emplace(kind, FaultCount{kind, 0, 0}).first->second;
        count.faults += faults;
        if (seen_.insert(kind).second)
            ++count.files;
    }
    std::vector<FaultCount> counts() const {
        std::vector<FaultCount> all;
        for (const auto& [kind, count] : counts_)
            all.push_back(count);
        return all;
    }

  private:
    std::map<FaultKind, FaultCount, KindOrder> counts_;
    std::set<FaultKind, KindOrder> seen_;
};

// The faults of one file need not stand together.
void countMandatory(const VerifResults& results, Counter& counter) {
    std::unordered_set<std::string> files;
    for (const MandatoryFault& fault : results.mandatory) {
        if (files.insert(foldedNameKey(fault.folder, fault.file)).second)
            counter.beginFile();
        counter.add(MandatoryKind);
    }
}

// The texts of a record, apart from each other, so that nothing is found that begins in one of them and ends
// in another.
std::string joined(std::initializer_list<std::string_view> texts) {
    std::string all;
    for (const std::string_view text : texts)
        all.append(text).append(1, '\n');
    return lowerCase(all);
}

void addOnce(std::vector<FaultKind>& kinds, const FaultKind& kind) {
    if (std::ranges::find(kinds, kind) == kinds.end())
        kinds.push_back(kind);
}

// Of the text of a summary: what stands before its placeholder, without the mark that leads to it.
std::string withoutValue(std::string text) {
    static constexpr std::string_view NoBreakSpace = "\u00A0", NarrowSpace = "\u202F";
    const auto drop = [&text](std::string_view ending) {
        const bool ends = text.ends_with(ending);
        if (ends)
            text.erase(text.size() - ending.size());
        return ends;
    };
    while (drop(" ") || drop(":") || drop(NoBreakSpace) || drop(NarrowSpace)) {
    }
    return text;
}

} // namespace

std::vector<FaultCount> countFaults(const VerifResults& results) {
    Counter counter;
    for (const InvalidFile& file : results.InvalidFiles) {
        counter.beginFile();
        if (!file.File.empty())
            for (const ErrorLine& line : file.Lines)
                counter.add(kindOf(line));
    }
    countMandatory(results, counter);
    for (const MissingEntry& entry : results.MissingEntries) {
        counter.beginFile();
        if (!entry.Owner.empty() && !entry.Items.empty())
            counter.add(kindOf(entry), static_cast<int>(entry.Items.size()));
    }
    for (const DuplicateEntry& entry : results.DuplicateEntries) {
        counter.beginFile();
        if (!entry.Name.empty())
            counter.add(DuplicateKind, static_cast<int>(entry.Others.size()));
    }
    return counter.counts();
}

std::string faultKindText(const Frame& frame, const FaultKind& kind) {
    switch (kind.group) {
    case FaultGroup::MandatoryKey:
        return frame.text(message::KindMandatoryKey);
    case FaultGroup::MissingTexture:
        return frame.text(message::KindMissingTexture);
    case FaultGroup::MissingSound:
        return frame.text(message::KindMissingSound);
    case FaultGroup::Duplicate:
        return frame.text(message::KindDuplicate);
    case FaultGroup::Line:
        break;
    }
    return withoutValue(frame.text(Message{kind.summaryText}, {{"|1", ""}}));
}

ResultFinder::ResultFinder(const VerifResults& results) {
    std::unordered_set<std::string> lacking;
    for (const MandatoryFault& fault : results.mandatory) {
        lacking.insert(foldedNameKey(fault.folder, fault.file));
        mandatory_.push_back({joined({fault.folder, fault.file, fault.key}), {MandatoryKind}});
    }
    for (const InvalidFile& file : results.InvalidFiles) {
        Row& row = files_.emplace_back(Row{joined({file.Folder + "\\" + file.File, file.Name}), {}});
        for (const ErrorLine& line : file.Lines) {
            row.text += joined({line.Summary, line.Key, line.Value});
            addOnce(row.kinds, kindOf(line));
        }
        if (lacking.contains(foldedNameKey(file.Folder, file.File)))
            row.kinds.push_back(MandatoryKind);
    }
    for (const MissingEntry& entry : results.MissingEntries) {
        Row& row = missing_.emplace_back(Row{joined({entry.Owner}), {kindOf(entry)}});
        for (const MissingItem& item : entry.Items)
            row.text += joined({item.Name, item.Detail});
    }
    for (const DuplicateEntry& entry : results.DuplicateEntries) {
        Row& row = duplicates_.emplace_back(Row{joined({entry.Name}), {DuplicateKind}});
        for (const std::string& other : entry.Others)
            row.text += joined({other});
    }
}

std::vector<int> ResultFinder::matching(const std::vector<Row>& rows, const ResultFilter& filter) {
    const std::string wanted = lowerCase(filter.text);
    std::vector<int> found;
    int position = -1;
    for (const Row& row : rows) {
        ++position;
        if (filter.kind && std::ranges::find(row.kinds, *filter.kind) == row.kinds.end())
            continue;
        if (row.text.find(wanted) != std::string::npos)
            found.push_back(position);
    }
    return found;
}

std::vector<int> ResultFinder::invalidFiles(const ResultFilter& filter) const {
    return matching(files_, filter);
}

std::vector<int> ResultFinder::missingEntries(const ResultFilter& filter) const {
    return matching(missing_, filter);
}

std::vector<int> ResultFinder::duplicateEntries(const ResultFilter& filter) const {
    return matching(duplicates_, filter);
}

std::vector<int> ResultFinder::mandatory(const ResultFilter& filter) const {
    return matching(mandatory_, filter);
}

std::optional<FaultPlace> nextFault(const VerifResults& results, const std::vector<int>& shown,
                                    FaultPlace place) {
    const auto linesOf = [&results](int file) {
        return static_cast<int>(results.InvalidFiles[static_cast<std::size_t>(file)].Lines.size());
    };
    const auto own = std::ranges::lower_bound(shown, place.file);
    const bool isShown = own != shown.end() && *own == place.file;
    if (isShown && place.line + 1 < linesOf(place.file))
        return FaultPlace{place.file, place.line + 1};
    auto next = isShown ? own + 1 : own;
    for (std::size_t tried = 0; tried < shown.size(); ++tried, ++next) {
        if (next == shown.end())
            next = shown.begin();
        if (const FaultPlace first{*next, 0}; linesOf(*next) > 0)
            return first == place ? std::nullopt : std::optional(first);
    }
    return std::nullopt;
}

} // namespace zandor
