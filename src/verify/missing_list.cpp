#include "verify/missing_list.h"

#include "platform/letter_case.h"

#include <algorithm>

namespace zandor {

namespace {

template <typename Visit> void visitOwners(const VerifResults& results, MissingKind kind, Visit visit) {
    for (const MissingEntry& entry : results.MissingEntries)
        if (entry.Kind == kind && !entry.Owner.empty())
            visit(entry);
}

} // namespace

bool beginExamination(VerifWork& work, const CheckTarget& target) {
    return work.examined.insert(lowerCase(ownerOf(target))).second;
}

MissingEntry& missingEntryOf(VerifResults& results, MissingKind kind, const CheckTarget& target) {
    const std::string owner = ownerOf(target);
    std::vector<MissingEntry>& entries = results.MissingEntries;
    if (!entries.empty() && entries.back().Owner == owner)
        return entries.back();
    MissingEntry entry{kind, owner, {}, {}, {}};
    if (kind == MissingKind::Sound) {
        entry.File = target.File;
        entry.Dir = target.Dir;
    }
    return entries.emplace_back(std::move(entry));
}

void CompactMissingList(VerifResults& results) {
    std::erase_if(results.MissingEntries, [](const MissingEntry& entry) { return entry.Owner.empty(); });
}

int countMissing(const VerifResults& results, MissingKind kind) {
    std::size_t items = 0;
    visitOwners(results, kind, [&](const MissingEntry& entry) { items += entry.Items.size(); });
    return static_cast<int>(items);
}

int countMissingOwners(const VerifResults& results, MissingKind kind) {
    int owners = 0;
    visitOwners(results, kind, [&](const MissingEntry&) { ++owners; });
    return owners;
}

int countDistinctNames(const VerifResults& results, MissingKind kind) {
    std::unordered_set<std::string> names;
    visitOwners(results, kind, [&](const MissingEntry& entry) {
        for (const MissingItem& item : entry.Items)
            names.insert(lowerCase(item.Name));
    });
    return static_cast<int>(names.size());
}

} // namespace zandor
