#include "simfiles/stock_reader.h"

#include "simfiles/coupling_fields.h"
#include "simfiles/sim_keys.h"
#include "text/decode.h"
#include "text/lines.h"
#include "text/text.h"

namespace zandor {

namespace {

std::string_view withoutEnds(std::string_view line) {
    while (!line.empty() && (line.front() == ' ' || line.front() == '\t'))
        line.remove_prefix(1);
    while (!line.empty() && (line.back() == ' ' || line.back() == '\t'))
        line.remove_suffix(1);
    return line;
}

// True when the line begins with the key (lower case) and its bracket.
bool beginsWithKey(std::string_view line, std::string_view key) {
    if (line.size() <= key.size() || !nameIs(line.substr(0, key.size()), key))
        return false;
    const std::size_t bracket = line.find_first_not_of(" \t", key.size());
    return bracket != std::string_view::npos && line[bracket] == '(';
}

class QuickLines {
  public:
    // The lines taken are those of `text`; `normal` is room for one.
    QuickLines(std::string_view text, Materiel& materiel, std::string& normal)
        : text_(text), materiel_(materiel), normal_(normal), remarkEnd_(text.data()) {}

    void take(std::string_view line) {
        if (line.data() < remarkEnd_) {
            if (line.data() + line.size() <= remarkEnd_)
                return;
            line.remove_prefix(static_cast<std::size_t>(remarkEnd_ - line.data()));
        }
        line = withoutEnds(line);
        if (nameFollows_) {
            nameFollows_ = false;
            if (!line.empty() && line.find_first_of("()") == std::string_view::npos) {
                materiel_.WagonName = StripQuotes(line);
                return;
            }
        }
        if (line.size() < 5 || !mayBeKey(line.front())) {
            if (line.starts_with("(*"))
                beginRemark(line);
            return;
        }
        if (inCoupling_)
            takeCoupling(line);
        else if (inEngine_)
            takeEngineLine(line);
        else
            takeWagonLine(line);
    }

  private:
    // The first letters of all keys below.
    static bool mayBeKey(char c) {
        switch (c | 0x20) {
        case 'w':
        case 'n':
        case 't':
        case 's':
        case 'm':
        case 'c':
        case 'b':
        case 'e':
            return true;
        default:
            return false;
        }
    }

    // The keys of a remark "(* ... *)" aren't the file's. One without its end, or with another one before
    // that, holds no lines.
    void beginRemark(std::string_view line) {
        const auto behind = static_cast<std::size_t>(line.data() - text_.data()) + 1;
        const std::size_t end = nextMark(ending_, "*)", behind);
        if (end < nextMark(beginning_, "(*", behind))
            remarkEnd_ = text_.data() + end + 2;
    }
    // `known`: the place found last, from which the next one is looked for.
    std::size_t nextMark(std::size_t& known, std::string_view mark, std::size_t from) const {
        if (known < from)
            known = text_.find(mark, from);
        return known;
    }

    // The value of a line that begins with the key; false when it doesn't.
    bool value(std::string_view line, std::string_view key) {
        return (line.front() | 0x20) == key.front() && beginsWithKey(line, key) && takeValue(line);
    }
    bool takeValue(std::string_view line) {
        normal_.assign(line);
        NormalizeLine(normal_);
        const std::size_t begin = normal_.find('(') + 1;
        value_ = std::string_view(normal_).substr(begin);
        return true;
    }
    std::string_view closedValue() const { // less the closing bracket
        std::string_view value = value_;
        constexpr unsigned continuing = 0x80, kind = 0xC0; // of the bytes of a character
        while (!value.empty() && (static_cast<unsigned char>(value.back()) & kind) == continuing)
            value.remove_suffix(1);
        return StripQuotes(value.substr(0, value.empty() ? 0 : value.size() - 1));
    }
    void fillEmpty(std::string& field) {
        if (field.empty())
            field = closedValue();
    }
    // The rest of the line is the name, or the next line when nothing stands there.
    void takeBlockName() {
        const std::string_view name = StripQuotes(value_);
        nameFollows_ = name.empty();
        if (!nameFollows_)
            materiel_.WagonName = name;
    }

    void takeCoupling(std::string_view line) {
        if (!value(line, "type"))
            return;
        couplings_.add(materiel_, closedValue());
        inCoupling_ = false;
    }

    void takeWagonLine(std::string_view line) {
        if (value(line, "wagon"))
            takeBlockName();
        else if (value(line, "name"))
            materiel_.WagonName = closedValue();
        else if (value(line, "type"))
            fillEmpty(materiel_.Type);
        else if (value(line, "size"))
            fillEmpty(materiel_.Size);
        else if (value(line, "mass"))
            fillEmpty(materiel_.Mass);
        else if (value(line, "coupling"))
            inCoupling_ = true;
        else if (value(line, "couplinguniquetype"))
            setCouplingUnique(materiel_, closedValue());
        else if (value(line, "brakesystemtype"))
            fillEmpty(materiel_.BrakeSystem);
        else if (value(line, "engine")) {
            inEngine_ = true;
            takeBlockName();
        }
    }

    void takeEngineLine(std::string_view line) {
        if (value(line, "type"))
            fillEmpty(materiel_.EngineType);
        else if (value(line, "maxpower"))
            fillEmpty(materiel_.MaxPower);
        else if (value(line, "cabview"))
            fillEmpty(materiel_.CabView);
        else if (value(line, "name"))
            fillEmpty(materiel_.EngineName);
    }

    std::string_view text_;
    Materiel& materiel_;
    CouplingTypes couplings_;
    std::string& normal_;                    // the line in hand in its normal form
    std::string_view value_;                 // of normal_, behind the bracket
    const char* remarkEnd_;                  // what stands before it isn't taken
    std::size_t ending_ = 0, beginning_ = 0; // see nextMark()
    bool inEngine_ = false;
    bool inCoupling_ = false;
    bool nameFollows_ = false;
};

} // namespace

ReadResult QuickStockReader::QuickReadStock(Materiel& materiel) {
    path_.assign(materiel.BasePath).append(materiel.Folder).append(1, '\\').append(materiel.FileName);
    const ReadResult result = files_.read(path_, bytes_, LargestSimFile);
    if (result != ReadResult::Done)
        return result;
    try {
        decodeSimulatorText(bytes_, text_);
        QuickLines lines(text_, materiel, line_);
        forEachLine(text_, [&lines](std::string_view line) { lines.take(line); });
    } catch (const std::bad_alloc&) {
        bytes_ = text_ = line_ = std::string();
        return ReadResult::NoMemory;
    }
    return result;
}

} // namespace zandor
