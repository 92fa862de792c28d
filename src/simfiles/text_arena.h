// Storage for the texts that a read makes; they live until reset(), which keeps the memory for the next read.
#pragma once

#include <cstring>
#include <memory>
#include <string_view>
#include <vector>

namespace zandor {

class TextArena {
  public:
    std::string_view keep(std::string_view text) { return join(text, {}); }

    std::string_view join(std::string_view a, std::string_view b, std::string_view c = {}) {
        const std::size_t size = a.size() + b.size() + c.size();
        char* place = allocate(size);
        char* end = place;
        for (std::string_view part : {a, b, c}) {
            if (!part.empty())
                std::memcpy(end, part.data(), part.size());
            end += part.size();
        }
        return {place, size};
    }

    void reset() {
        large_.clear();
        block_ = 0;
        used_ = 0;
    }

  private:
    static constexpr std::size_t BlockSize = 32 * 1024;

    char* allocate(std::size_t size) {
        if (size > BlockSize / 4) {
            large_.push_back(std::make_unique<char[]>(size));
            return large_.back().get();
        }
        if (block_ < blocks_.size() && used_ + size > BlockSize) {
            ++block_;
            used_ = 0;
        }
        if (block_ == blocks_.size())
            blocks_.push_back(std::make_unique<char[]>(BlockSize));
        char* place = blocks_[block_].get() + used_;
        used_ += size;
        return place;
    }

    std::vector<std::unique_ptr<char[]>> blocks_;
    std::vector<std::unique_ptr<char[]>> large_;
    std::size_t block_ = 0;
    std::size_t used_ = 0;
};

} // namespace zandor
