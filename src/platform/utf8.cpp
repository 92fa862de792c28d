#include "platform/utf8.h"

namespace zandor {

namespace {

// Bytes of the character that `lead` begins, or 0 when it begins none.
unsigned lengthOf(unsigned char lead) {
    if (lead < 0x80)
        return 1;
    if (lead < 0xC2)
        return 0;
    return lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 0;
}

bool isCharacter(char32_t code, unsigned length) {
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    return code >= smallest[length] && code < kStrayByte && (code < 0xD800 || code > 0xDFFF);
}

} // namespace

char32_t nextCharacter(std::string_view text, std::size_t& at) {
    const auto lead = static_cast<unsigned char>(text[at]);
    const unsigned length = lengthOf(lead);
    if (length == 1) {
        ++at;
        return lead;
    }
    char32_t code = length == 0 ? 0 : lead & (0xFFu >> (length + 1));
    unsigned taken = 1;
    while (taken < length && at + taken < text.size() && (text[at + taken] & 0xC0) == 0x80)
        code = code << 6 | (text[at + taken++] & 0x3F);
    if (length == 0 || taken < length || !isCharacter(code, length)) {
        ++at;
        return kStrayByte + lead;
    }
    at += length;
    return code;
}

void appendCharacter(std::string& text, char32_t character) {
    const auto add = [&text](char32_t byte) { text += static_cast<char>(byte); };
    if (character < 0x80 || character >= kStrayByte)
        return add(character & 0xFF);
    if (character < 0x800) {
        add(0xC0 | character >> 6);
    } else if (character < 0x10000) {
        add(0xE0 | character >> 12);
        add(0x80 | (character >> 6 & 0x3F));
    } else {
        add(0xF0 | character >> 18);
        add(0x80 | (character >> 12 & 0x3F));
        add(0x80 | (character >> 6 & 0x3F));
    }
    add(0x80 | (character & 0x3F));
}

bool isUtf8(std::string_view text) {
    for (std::size_t at = 0; at < text.size();)
        if (nextCharacter(text, at) >= kStrayByte)
            return false;
    return true;
}

std::string_view cutBetweenCharacters(std::string_view text, std::size_t bytes) {
    if (text.size() <= bytes)
        return text;
    std::size_t end = bytes;
    while (end > 0 && bytes - end < 3 && (text[end] & 0xC0) == 0x80)
        --end;
    return text.substr(0, (text[end] & 0xC0) == 0x80 ? bytes : end);
}

} // namespace zandor
