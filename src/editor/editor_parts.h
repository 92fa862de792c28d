// What the operations of this folder share among themselves.
#pragma once

#include "editor/consist_document.h"

#include <charconv>
#include <string>
#include <string_view>

namespace zandor {

inline constexpr std::string_view LineBreak = "\r\n"; // in messages

// Position of the last vehicle, 0 for the empty strip.
inline int lastPosition(const ConsistDocument& document) {
    return document.Vehicules.empty() ? 0 : static_cast<int>(document.Vehicules.size()) - 1;
}

inline bool isPosition(const ConsistDocument& document, int position) {
    return position >= 0 && position < vehicleCount(document);
}

// Where the vehicle at a position begins, in pixels of the strip.
inline int leftOf(const ConsistDocument& document, int position) {
    int left = 0;
    for (int i = 0; i < position; ++i)
        left += document.Vehicules[static_cast<std::size_t>(i)].Width;
    return left;
}

// A figure of up to 15 significant digits, "." as the point in every locale. Texts of the screen give it the
// mark of their language.
inline std::string figureText(double value) {
    char text[64];
    const auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::general, 15).ptr;
    return std::string(text, end);
}

// That the strip holds as many vehicles as positions can number.
Finding stripFull(const ConsistDocument& document);

// The empty editor and a Rame with the defaults of a new consist; asks nothing.
void beginNewConsist(Editor& editor);

// The use counts after the stock of a consist has changed: once per entry of a list; what stands in both
// lists, however often, is left alone.
void countDifference(Catalogue& catalogue, const std::vector<StockPair>& before,
                     const std::vector<StockPair>& now);

// True when both name one folder, whatever their case, separators, end and drive.
bool sameFolder(FileSystem& files, std::string_view a, std::string_view b);

// What tbNAME shows of a consist whose file is named otherwise than the consist itself.
std::string doubleName(const Rame& rame);

} // namespace zandor
