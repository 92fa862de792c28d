#include "verify/report.h"

#include "platform/letter_case.h"
#include "text/decode.h"
#include "text/lines.h"
#include "verify/messages.h"
#include "verify/missing_list.h"

#include <utility>

namespace zandor {

namespace {

constexpr std::string_view LineBreak = "\r\n", BlankLine = "\r\n\r\n";
constexpr TextStyle Heading{true, true, false, TextColour::Red};
constexpr TextStyle Bold{true, false, false, TextColour::Plain};
constexpr TextStyle Italic{false, false, true, TextColour::Plain};
constexpr std::size_t RuleLength = 68;

// Puts a report together from texts that hold line breaks.
class ReportText {
  public:
    void add(std::string_view text, TextStyle style = {}) {
        for (;;) {
            const std::size_t end = text.find_first_of("\r\n");
            Paragraph& paragraph = last();
            if (end != 0 && !text.empty())
                paragraph.runs.push_back({std::string(text.substr(0, end)), style});
            if (end == std::string_view::npos)
                return;
            text.remove_prefix(end + (text.substr(end).starts_with(LineBreak) ? 2 : 1));
            breakLine();
        }
    }
    // Goes for the paragraph in hand and for those behind it.
    void align(bool centred) {
        centred_ = centred;
        last().centred = centred;
    }
    void addRule() {
        add(BlankLine);
        align(true);
        add(std::string(RuleLength, '_'));
        breakLine();
        align(false);
    }
    Report take() {
        std::vector<Paragraph>& all = report_.paragraphs;
        while (!all.empty() && all.back().runs.empty())
            all.pop_back();
        report_.hasContent = true;
        return std::move(report_);
    }

  private:
    void breakLine() { report_.paragraphs.push_back({centred_, {}}); }
    Paragraph& last() {
        if (report_.paragraphs.empty())
            breakLine();
        return report_.paragraphs.back();
    }

    Report report_;
    bool centred_ = false;
};

// What follows the name is put in last: it may hold what looks like a placeholder.
std::string textWith(const Frame& frame, Message id, std::string_view first,
                     std::string_view second = LineBreak) {
    return frame.text(id, {{"|2", second}, {"|1", first}});
}

// A text for one, which has its line break as |1, or the one for several, which has the count before it.
std::string countedText(const Frame& frame, Message one, Message several, int count,
                        std::string_view breaks) {
    return count == 1 ? frame.text(one, {{"|1", breaks}})
                      : textWith(frame, several, std::to_string(count), breaks);
}

void addDuplicate(ReportText& text, const Frame& frame, const DuplicateEntry& entry) {
    text.add(frame.text(message::TheFile) + " ..\\");
    text.add(entry.Name, Bold);
    const int others = static_cast<int>(entry.Others.size());
    text.add(" " + countedText(frame, message::OneOther, message::ManyOthers, others, LineBreak));
    for (const std::string& other : entry.Others)
        text.add(std::string(LineBreak) + "   - ..\\" + other);
    text.add(LineBreak);
}

Report noDuplicates(const Frame& frame) {
    ReportText text;
    text.add(frame.text(message::NoDuplicates, {{"|1", BlankLine}}));
    Report report = text.take();
    report.hasContent = false;
    return report;
}

// How the two parts of the list of missing files differ.
struct MissingPart {
    MissingKind kind;
    Message one, several; // headings
    Message listing;      // told while it is made
};
constexpr MissingPart MissingParts[] = {
    {MissingKind::Texture, message::OneTextureMissing, message::ManyTexturesMissing,
     message::ListingTextures},
    {MissingKind::Sound, message::OneSoundMissing, message::ManySoundsMissing, message::ListingSound}};

void addItem(ReportText& text, const Frame& frame, const MissingItem& item) {
    text.add(textWith(frame, message::MissingItem, item.Name) + " ");
    const bool isEmpty = item.Detail == EmptyFileMark;
    text.add(textWith(frame, isEmpty ? message::MissingItemEmptyFile : message::MissingItemLine,
                      isEmpty ? item.Name : item.Detail) +
             "   ");
    text.add(frame.text(message::MissingItemSeek, {{"|1", std::string(LineBreak) + item.Name}}));
    text.add(LineBreak);
}

void addEntry(ReportText& text, const Frame& frame, const MissingEntry& entry) {
    text.add(frame.text(message::TheFile) + " ");
    text.add(entry.Owner, Bold);
    const bool one = entry.Items.size() == 1;
    text.add(" " +
             textWith(frame, one ? message::NamesOneMissing : message::NamesManyMissing,
                      std::to_string(entry.Items.size())) +
             " ");
    for (const MissingItem& item : entry.Items)
        addItem(text, frame, item);
    text.add(LineBreak);
}

void addPart(ReportText& text, Frame& frame, const VerifResults& results, const MissingPart& part) {
    const int items = countMissing(results, part.kind);
    if (items == 0)
        return;
    text.align(true);
    text.add(countedText(frame, part.one, part.several, items, BlankLine), Heading);
    text.align(false);
    const std::string listing = frame.text(part.listing, {{"|1", "..."}});
    const int owners = countMissingOwners(results, part.kind);
    int done = 0;
    for (const MissingEntry& entry : results.MissingEntries)
        if (entry.Kind == part.kind && !entry.Owner.empty()) {
            addEntry(text, frame, entry);
            frame.progress.ShowProgress(0, owners, ++done, listing);
        }
    text.addRule();
}

// ---- rich text

void addUnit(std::string& rich, unsigned unit) {
    // Numbers are signed and of sixteen bits; the "?" is for readers that know no Unicode.
    rich += "\\u" + std::to_string(static_cast<std::int16_t>(static_cast<std::uint16_t>(unit))) + "?";
}

void addEscaped(std::string& rich, std::string_view text) {
    const std::string units = encodeUtf16(text);
    for (std::size_t i = 0; i + 1 < units.size(); i += 2) {
        const unsigned unit = static_cast<unsigned char>(units[i]) |
                              static_cast<unsigned>(static_cast<unsigned char>(units[i + 1])) << 8;
        const char character = static_cast<char>(unit);
        if (unit >= 0x7F)
            addUnit(rich, unit);
        else if (character == '\t')
            rich += "\\tab ";
        else if (character == '\\' || character == '{' || character == '}')
            rich.append(1, '\\') += character;
        else
            rich += unit < 0x20 ? ' ' : character;
    }
}

void addRun(std::string& rich, const TextRun& run) {
    rich += '{';
    if (run.style.bold)
        rich += "\\b";
    if (run.style.underline)
        rich += "\\ul";
    if (run.style.italic)
        rich += "\\i";
    if (run.style.colour != TextColour::Plain)
        rich += "\\cf" + std::to_string(static_cast<int>(run.style.colour));
    if (rich.back() != '{')
        rich += ' ';
    addEscaped(rich, run.text);
    rich += '}';
}

std::string colourTable() {
    const RedGreenBlue red = valueOf(TextColour::Red);
    return "{\\colortbl ;\\red" + std::to_string(red.red) + "\\green" + std::to_string(red.green) + "\\blue" +
           std::to_string(red.blue) + ";}";
}

} // namespace

RedGreenBlue valueOf(TextColour colour) {
    return colour == TextColour::Red ? RedGreenBlue{255, 0, 0} : RedGreenBlue{};
}

Report duplicatesReport(Frame& frame, const VerifResults& results) {
    const int count = static_cast<int>(results.DuplicateEntries.size());
    if (count == 0)
        return noDuplicates(frame);
    ReportText text;
    text.align(true);
    text.add(countedText(frame, message::OneDuplicate, message::ManyDuplicates, count, LineBreak), Heading);
    text.align(false);
    text.add(frame.text(message::DuplicatesIntro, {{"|1", BlankLine}}), Italic);
    const std::string listing = frame.text(message::ListingDuplicates);
    for (int i = 0; i < count; ++i) {
        addDuplicate(text, frame, results.DuplicateEntries[static_cast<std::size_t>(i)]);
        frame.progress.ShowProgress(0, count, i + 1, listing);
    }
    text.addRule();
    return text.take();
}

Report missingReport(Frame& frame, const VerifResults& results) {
    ReportText text;
    for (const MissingPart& part : MissingParts)
        addPart(text, frame, results, part);
    Report report = text.take();
    report.hasContent = !report.empty();
    return report;
}

std::string plainText(const Report& report) {
    std::string plain;
    for (const Paragraph& paragraph : report.paragraphs) {
        for (const TextRun& run : paragraph.runs)
            plain += run.text;
        plain += LineBreak;
    }
    return plain;
}

std::string richText(const Report& report) {
    std::string rich = std::string("{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fswiss ") + ReportFont +
                       ";}}" + colourTable() + "\\uc1\r\n";
    for (const Paragraph& paragraph : report.paragraphs) {
        rich += paragraph.centred ? "\\pard\\qc\\f0\\fs20 " : "\\pard\\ql\\f0\\fs20 ";
        for (const TextRun& run : paragraph.runs)
            addRun(rich, run);
        rich += "\\par\r\n";
    }
    return rich + "}\r\n";
}

bool saveReport(FileSystem& files, std::string_view path, const Report& report) {
    return replaceFile(files, path,
                       endsWithIgnoringCase(path, ".rtf")
                           ? richText(report)
                           : encodeText(plainText(report), TextEncoding::Utf8));
}

} // namespace zandor
