// One character of UTF-8 at a time. Bytes that aren't UTF-8 pass through unharmed.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace zandor {

// A byte that belongs to no character is given as this plus the byte, and is appended as that byte again.
inline constexpr char32_t kStrayByte = 0x110000;

// The character that begins at `at`, which moves behind it. `at` must be inside the text.
char32_t nextCharacter(std::string_view text, std::size_t& at);
void appendCharacter(std::string& text, char32_t character);
bool isUtf8(std::string_view text);

// At most `bytes` bytes of the text, cut between two characters.
std::string_view cutBetweenCharacters(std::string_view text, std::size_t bytes);

} // namespace zandor
