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
    QuickLines(Materiel& materiel, std::string& normal) : materiel_(materiel), normal_(normal) {}

    void take(std::string_view line) {
        line = withoutEnds(line);
        if (nameFollows_) {
            nameFollows_ = false;
            if (!line.empty() && line.find_first_of("()") == std::string_view::npos) {
                materiel_.WagonName = StripQuotes(line);
                return;
            }
        }
        if (line.size() < 5 || !mayBeKey(line.front()))
            return;
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
        return StripQuotes(value_.substr(0, value_.empty() ? 0 : value_.size() - 1));
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
        addCouplingType(materiel_, closedValue());
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

    Materiel& materiel_;
    std::string& normal_;    // the line in hand in its normal form
    std::string_view value_; // of normal_, behind the bracket
    bool inEngine_ = false;
    bool inCoupling_ = false;
    bool nameFollows_ = false;
};

} // namespace

void QuickStockReader::QuickReadStock(Materiel& materiel) {
    path_.assign(materiel.BasePath).append(materiel.Folder).append(1, '\\').append(materiel.FileName);
    if (!files_.readFile(path_, bytes_))
        return;
    decodeSimulatorText(bytes_, text_);
    QuickLines lines(materiel, line_);
    forEachLine(text_, [&lines](std::string_view line) { lines.take(line); });
}

} // namespace zandor
