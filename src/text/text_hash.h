// A quick hash of a text, eight bytes at a time: tells texts apart, and guards against nothing.
#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>

namespace zandor {

struct TextHasher {
    std::uint64_t value = 0;
    std::uint64_t seen = 0; // all bytes of the texts, eight to a word, or-ed together

    // `sameAs`: bits set in every word first, such as those that tell capitals from small letters.
    void add(std::string_view text, std::uint64_t sameAs = 0) {
        addWord(text.size());
        for (; text.size() >= sizeof value; text.remove_prefix(sizeof value))
            addBytes(text.data(), sizeof value, sameAs);
        if (!text.empty())
            addBytes(text.data(), text.size(), sameAs);
    }

  private:
    void addBytes(const char* bytes, std::size_t count, std::uint64_t sameAs) {
        std::uint64_t word = 0;
        std::memcpy(&word, bytes, count);
        seen |= word;
        addWord(word | sameAs);
    }
    void addWord(std::uint64_t word) {
        value = (value ^ word) * 0x9E3779B97F4A7C15; // 2 to the 64 over the golden ratio
        value ^= value >> 32;
    }
};

} // namespace zandor
