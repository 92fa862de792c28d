// The look-up beside StockUsage: the records of a folder and file, with case ignored or not, without a walk
// and without a copy of any name. Records are only ever appended, in the order of their positions, from 0.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace zandor {

struct StockPair;
struct StockUse;

class StockUseIndex {
  public:
    void clear();
    // Records the last element of `usage`.
    void addLast(const std::vector<StockUse>& usage);

    // The position of the record spelled so, or -1.
    int findExact(const std::vector<StockUse>& usage, std::string_view folder, std::string_view file) const;
    // The same for several. What they need from memory is asked for together, not one after another.
    void findExact(const std::vector<StockUse>& usage, const std::vector<StockPair>& pairs,
                   std::vector<int>& positions) const;
    // The position of the first record of this stock whose Count is above 0, else of its first record, else
    // -1.
    int findAnyCase(const std::vector<StockUse>& usage, std::string_view folder, std::string_view file) const;

  private:
    struct Slot {
        std::uint32_t hash = 0;
        int position = -1; // -1: free
    };
    template <typename Visit> void visitCandidates(std::uint32_t hash, Visit visit) const;
    int firstCandidate(std::uint32_t hash) const;
    void insert(Slot added);
    void grow();

    std::vector<Slot>
        slots_; // open addressing; a later record of one hash never stands before an earlier one
    std::size_t used_ = 0;
};

} // namespace zandor
