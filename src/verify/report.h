// The lists of duplicate and of missing files as styled text, which a window shows and a file keeps.
#pragma once

#include "frame/frame.h"
#include "verify/verify_records.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace zandor {

enum class TextColour : std::uint8_t { Plain, Red }; // Plain: the one that texts have where it is shown
struct RedGreenBlue {
    int red = 0, green = 0, blue = 0; // to 255
};
RedGreenBlue valueOf(TextColour colour);

struct TextStyle {
    bool bold = false, underline = false, italic = false;
    TextColour colour = TextColour::Plain;
    bool operator==(const TextStyle&) const = default;
};

struct TextRun {
    std::string text; // UTF-8, without line breaks
    TextStyle style;
};

struct Paragraph {
    bool centred = false;
    std::vector<TextRun> runs; // none: a blank line
};

inline constexpr const char* ReportFont = "Arial";

struct Report {
    std::vector<Paragraph> paragraphs;
    bool hasContent = false; // something to save, rather than the news that there is nothing

    bool empty() const { return paragraphs.empty(); }
};

// In the language of the frame; what is being listed is told through Frame::progress.
Report duplicatesReport(Frame& frame, const VerifResults& results);
// Empty when nothing is missing.
Report missingReport(Frame& frame, const VerifResults& results);

std::string plainText(const Report& report); // UTF-8, lines end in CR LF
std::string richText(const Report& report);  // RTF, pure ASCII

// A name that ends in ".rtf" gets the rich text, any other the plain text as UTF-8 with its mark. False: it
// couldn't be written, and what stood there stands.
bool saveReport(FileSystem& files, std::string_view path, const Report& report);

} // namespace zandor
