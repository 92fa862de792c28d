#include "catalogue/stock_use_index.h"

#include "catalogue/catalogue.h"
#include "text/text_hash.h"

#include <algorithm>

namespace zandor {

namespace {

constexpr std::uint64_t CaseBits = 0x2020202020202020; // sets the bit that tells apart A and a
constexpr std::uint64_t HighBits = 0x8080808080808080; // not ASCII
// Names that are equal but for case hash alike.
std::uint32_t hashOf(std::string_view folder, std::string_view file) {
    TextHasher hash;
    hash.add(folder, CaseBits);
    hash.add(file, CaseBits);
    if (hash.seen & HighBits) { // letters whose case needs the tables
        hash = TextHasher();
        hash.add(lowerCase(folder), CaseBits);
        hash.add(lowerCase(file), CaseBits);
    }
    return static_cast<std::uint32_t>(hash.value);
}

bool isSpelled(const StockUse& use, std::string_view folder, std::string_view file) {
    return use.FileName == file && use.Folder == folder;
}

// Asks for memory that is needed soon.
void fetch(const void* place) {
#ifdef __GNUC__
    __builtin_prefetch(place);
#else
    static_cast<void>(place);
#endif
}

} // namespace

void StockUseIndex::clear() {
    slots_.clear();
    used_ = 0;
}

template <typename Visit> void StockUseIndex::visitCandidates(std::uint32_t hash, Visit visit) const {
    if (slots_.empty())
        return;
    const std::size_t mask = slots_.size() - 1;
    for (std::size_t at = hash & mask; slots_[at].position >= 0; at = (at + 1) & mask)
        if (slots_[at].hash == hash && visit(slots_[at].position))
            return;
}

int StockUseIndex::firstCandidate(std::uint32_t hash) const {
    int first = -1;
    visitCandidates(hash, [&first](int position) {
        first = position;
        return true;
    });
    return first;
}

int StockUseIndex::findExact(const std::vector<StockUse>& usage, std::string_view folder,
                             std::string_view file) const {
    int found = -1;
    visitCandidates(hashOf(folder, file), [&](int position) {
        if (isSpelled(usage[static_cast<std::size_t>(position)], folder, file))
            found = position;
        return found >= 0;
    });
    return found;
}

void StockUseIndex::findExact(const std::vector<StockUse>& usage, const std::vector<StockPair>& pairs,
                              std::vector<int>& positions) const {
    positions.resize(pairs.size());
    std::vector<int>::iterator position = positions.begin();
    for (const StockPair& pair : pairs) {
        const std::uint32_t hash = hashOf(pair.Folder, pair.FileName);
        if (!slots_.empty())
            fetch(&slots_[hash & (slots_.size() - 1)]);
        *position++ = static_cast<int>(hash);
    }
    for (int& found : positions) {
        found = firstCandidate(static_cast<std::uint32_t>(found));
        if (found >= 0)
            fetch(&usage[static_cast<std::size_t>(found)]);
    }
    position = positions.begin();
    for (const StockPair& pair : pairs) {
        if (*position >= 0 &&
            !isSpelled(usage[static_cast<std::size_t>(*position)], pair.Folder, pair.FileName))
            *position = findExact(usage, pair.Folder, pair.FileName);
        ++position;
    }
}

int StockUseIndex::findAnyCase(const std::vector<StockUse>& usage, std::string_view folder,
                               std::string_view file) const {
    int found = -1;
    visitCandidates(hashOf(folder, file), [&](int position) {
        const StockUse& use = usage[static_cast<std::size_t>(position)];
        if (!equalIgnoringCase(use.FileName, file) || !equalIgnoringCase(use.Folder, folder))
            return false;
        if (found < 0 || use.Count > 0)
            found = position;
        return use.Count > 0;
    });
    return found;
}

void StockUseIndex::addLast(const std::vector<StockUse>& usage) {
    if (2 * (used_ + 1) > slots_.size())
        grow();
    const StockUse& added = usage.back();
    insert({hashOf(added.Folder, added.FileName), static_cast<int>(usage.size()) - 1});
    ++used_;
}

void StockUseIndex::insert(Slot added) {
    const std::size_t mask = slots_.size() - 1;
    std::size_t at = added.hash & mask;
    while (slots_[at].position >= 0)
        at = (at + 1) & mask;
    slots_[at] = added;
}

void StockUseIndex::grow() {
    std::vector<Slot> byPosition(used_);
    std::size_t next = 0;
    for (const Slot& slot : slots_)
        if (slot.position >= 0)
            byPosition[next++] = slot;
    std::sort(byPosition.begin(), byPosition.end(),
              [](const Slot& a, const Slot& b) { return a.position < b.position; });
    slots_.assign(std::max<std::size_t>(64, slots_.size() * 2), {});
    for (const Slot& slot : byPosition)
        insert(slot);
}

} // namespace zandor
