// Bytes to text and back. Inside the program every text is UTF-8; a lone UTF-16 surrogate is kept as its
// three-byte form, so that writing UTF-16 gives back every code unit that was read. Nothing here fails: bytes
// that make no sense give what a reader of these rules gives.
#pragma once

#include <string>
#include <string_view>

namespace zandor {

enum class TextEncoding { Utf16, Windows1252, Utf8 };

bool hasUtf16Mark(std::string_view bytes); // FF FE
bool hasUtf8Mark(std::string_view bytes);  // EF BB BF

// A simulator file: FF FE begins UTF-16 little-endian (an odd last byte is dropped), anything else is
// Windows-1252. The mark is not part of the text. `text` keeps its storage from call to call.
void decodeSimulatorText(std::string_view bytes, std::string& text);
// A settings or language file: as above, and EF BB BF begins UTF-8 (bad sequences are read as Windows-1252).
TextEncoding decodeSettingsText(std::string_view bytes, std::string& text);

std::string encodeUtf16(std::string_view text);       // little-endian, without the mark
std::string encodeWindows1252(std::string_view text); // a character that it lacks becomes "?"
std::string encodeText(std::string_view text,
                       TextEncoding encoding); // with the mark where the encoding has one

} // namespace zandor
