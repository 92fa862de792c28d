#include "simfiles/tokeniser.h"

#include "simfiles/stock_keys.h"
#include "text/text.h"
#include "text/text_hash.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace zandor {

namespace {

bool hasMarker(std::string_view path) {
    return path.find(OccurrenceMarker) != std::string_view::npos;
}

// No real file comes near it; a file of garbage that opens a block on every line must not grow with the
// square.
constexpr std::size_t MaxPathLength = 512;

bool endsInPlus(std::string_view text) {
    return !text.empty() && text.back() == '+';
}

bool isVehicleKey(std::string_view name) {
    return nameIs(name, "EngineData") || nameIs(name, "WagonData");
}

// A value that begins with the misspelt default marker counts from behind it; a vehicle may be called so.
std::string_view withoutDefault(std::string_view key, std::string_view value) {
    constexpr std::string_view marker = "defaut";
    if (!nameIs(value.substr(0, marker.size()), marker) || isVehicleKey(key))
        return value;
    return trim(value.substr(std::min(value.size(), marker.size() + 2)));
}

bool isVehicleData(std::string_view line) {
    constexpr std::string_view engine = "EngineData", wagon = "WagonData";
    return nameIs(line.substr(0, engine.size()), engine) || nameIs(line.substr(0, wagon.size()), wagon);
}

// Could this be the name of a block, its bracket below it? Words and numbers belong to a value.
bool isBlockName(std::string_view text) {
    return text.find(' ') == std::string_view::npos &&
           std::string_view("0123456789+-.#").find(text.front()) == std::string_view::npos;
}

bool isBlank(const SimKey& key) {
    return key.Line == 0 && key.Path.empty() && key.Key.empty() && key.Value.empty();
}

// Beyond the end of `whole` when `part` doesn't stand in there.
std::size_t offsetIn(std::string_view whole, std::string_view part) {
    return reinterpret_cast<std::uintptr_t>(part.data()) - reinterpret_cast<std::uintptr_t>(whole.data());
}

TextSpan spanAt(std::size_t begin, std::string_view part) {
    return {static_cast<std::uint32_t>(begin), static_cast<std::uint32_t>(begin + part.size())};
}

// Position behind the first run of two blanks in `text`, or npos.
std::size_t behindTwoBlanks(std::string_view text) {
    const std::size_t run = text.find("  ");
    return run == std::string_view::npos ? run : text.find_first_not_of(' ', run);
}

} // namespace

Tokeniser::Tokeniser(std::vector<SimKey>& keys, std::vector<SimHit>& hits, TextArena& arena)
    : keys_(keys), hits_(hits), arena_(arena) {}

Tokeniser::Outcome Tokeniser::run(std::string_view text, const std::vector<SimLine>& lines,
                                  const ReadRequest& request, bool isConsist) {
    keys_.assign(1, {});
    hits_.clear();
    const Outcome outcome = walk(text, lines, request, isConsist);
    if (isBlank(keys_.front()))
        keys_.clear();
    return outcome;
}

Tokeniser::Outcome Tokeniser::walk(std::string_view text, const std::vector<SimLine>& lines,
                                   const ReadRequest& request, bool isConsist) {
    text_ = text;
    lines_ = &lines;
    request_ = request;
    searching_ = request.stockMode || !request.section.empty() || !request.key.empty();
    paths_.clear();
    table_.assign(256, -1);
    deepBlocks_ = 0;
    openBlocks_.clear();
    quotedIn_ = -1;
    joining_ = false;
    valueOpen_ = false;
    parts_ = {};
    skipLine_ = 0;
    stockSeen_ = 0;
    isConsist_ = isConsist;
    badVehicle_ = false;
    remarks_.begin(lines);
    keys_[0].pathId = internPath({});

    bool waiting = !request.stockMode && equalIgnoringCase(request.section, "engine");
    Outcome outcome;
    for (lineNumber_ = 1; lineNumber_ < lines.size(); ++lineNumber_) {
        const SimLine& line = lines[lineNumber_];
        if (line.text.empty() || lineNumber_ <= skipLine_)
            continue;
        if (waiting && !beginsWithIgnoringCase(line.text, "engine"))
            continue;
        waiting = false;
        if (isConsist && (line.firstOpen < 0 || line.firstClose < 0) && isVehicleData(line.text)) {
            settleValue();
            outcome.badLine = static_cast<int>(lineNumber_);
            outcome.closeMissing = line.firstOpen >= 0;
            return outcome;
        }
        if (plainLine(line)) {
            settleValue();
            outcome.found = !badVehicle_;
            outcome.closeMissing = badVehicle_;
            outcome.badLine = badVehicle_ ? static_cast<int>(lineNumber_) : 0;
            return outcome;
        }
    }
    settleValue();
    if (searching_ && !request.stockMode && request.count != 1)
        outcome.found = finalPass();
    else if (request.stockMode)
        outcome.found = !hits_.empty();
    return outcome;
}

// The common forms, whose brackets the cutter has already found; everything else goes the long way.
bool Tokeniser::plainLine(const SimLine& line) {
    if (!line.hasQuote && !line.severalOpen && !line.severalClose && line.firstOpen > 0) {
        const auto open = static_cast<std::size_t>(line.firstOpen);
        const std::string_view name = trim(line.text.substr(0, open));
        if (line.firstClose < 0)
            return openBlock(name, trim(line.text.substr(open + 1)), line.text);
        const auto close = static_cast<std::size_t>(line.firstClose);
        if (close > open && close + 1 == line.text.size()) {
            addRecord(currentPath(), name, trim(line.text.substr(open + 1, close - open - 1)), line.text);
            return matchLast();
        }
    }
    if (line.text.size() == 1 && line.firstClose == 0 && quotedIn_ < 0) {
        const bool stop = matchLast();
        popPath();
        return stop;
    }
    return workLine(line.text);
}

bool Tokeniser::workLine(std::string_view line) {
    takeInHand(line);
    for (line = trim(line); !line.empty(); line = trim(line)) {
        if (line.front() == '(') {
            leaveRemark(line);
        } else if (line.front() == '"') {
            const std::string_view rest = cutBehindClosing(line);
            if (continueQuoted(line))
                return true;
            line = rest;
        } else if (workKey(line)) {
            return true;
        }
    }
    return false;
}

void Tokeniser::takeInHand(std::string_view text) {
    inHand_ = text;
    closingKnown_ = false;
}

std::string_view Tokeniser::putTogether(std::string_view line, std::string_view below) {
    const TextSpan ofLine = placeOf(line), ofBelow = placeOf(below);
    const std::string_view whole = arena_.join(line, " ", below);
    parts_ = {Part{whole.substr(0, line.size()), ofLine}, Part{whole.substr(line.size() + 1), ofBelow}};
    takeInHand(whole);
    return whole;
}

// Where a part of the line in hand stands in the file.
inline TextSpan Tokeniser::placeOf(std::string_view part) const {
    const std::size_t begin = offsetIn(text_, part);
    return begin <= text_.size() ? spanAt(begin, part) : placeOfPart(part);
}

TextSpan Tokeniser::placeOfPart(std::string_view part) const {
    for (const Part& known : parts_) {
        const std::size_t offset = offsetIn(known.text, part);
        if (!known.place.nowhere() && offset <= known.text.size() &&
            offset + part.size() <= known.text.size())
            return spanAt(known.place.begin + offset, part);
    }
    return {};
}

// More value of the last record.
void Tokeniser::extendPlace(std::string_view piece) {
    TextSpan& place = keys_.back().place;
    const TextSpan more = placeOf(piece);
    if (place.nowhere() || more.nowhere()) {
        place = {};
        return;
    }
    if (place.size() == 0)
        place.begin = more.begin;
    place.end = more.end;
}

// One piece of a line; leaves what stands behind it.
bool Tokeniser::workKey(std::string_view& line) {
    Brackets at = findBrackets(line);
    if (at.earlyClose != npos)
        return close(line, at.earlyClose);
    if (at.open == npos)
        return bareWord(line);
    if (isConsist_ && isVehicleKey(trim(line.substr(0, at.open))) && !closeVehicle(line, at))
        return badVehicle_ = true;
    if (at.close != npos)
        return simpleKey(line, at);
    if (at.nextOpen != npos)
        return openWithRest(line, at);
    const std::string_view whole = std::exchange(line, {});
    return openBlock(trim(whole.substr(0, at.open)), trim(whole.substr(at.open + 1)), whole);
}

// The value of a vehicle's key may hold brackets: names of files and folders do.
bool Tokeniser::closeVehicle(std::string_view line, Brackets& at) {
    at.close = closingOf(line, at.open);
    at.nextOpen = at.close == npos ? npos : line.find('(', at.close);
    return at.close != npos;
}

void Tokeniser::leaveRemark(std::string_view& line) {
    const std::string_view whole = (*lines_)[lineNumber_].text;
    if (inHand_.data() != whole.data()) { // put together from two lines: the remark ends on it
        const std::size_t closing = closingOf(line, 0);
        line = closing == npos ? std::string_view() : line.substr(closing + 1);
        return;
    }
    line = behindRemark({lineNumber_, static_cast<std::size_t>(line.data() - whole.data())}, lineNumber_);
    takeInHand((*lines_)[lineNumber_].text);
}

// What counts behind a remark, and the line on which that stands: words without a bracket are part of it.
std::string_view Tokeniser::behindRemark(Remarks::Place open, std::size_t& line) {
    const Remarks::Place end = remarks_.behind(open, owedClosings());
    line = end.line;
    const std::string_view rest = trim((*lines_)[line].text.substr(end.offset));
    return rest.find_first_of("()\"") == npos ? std::string_view() : rest;
}

std::size_t Tokeniser::owedClosings() const {
    return openBlocks_.size() + deepBlocks_ + (quotedIn_ >= 0 ? 1 : 0);
}

// Blank lines and remarks are left out. `namesBlock`: the line in hand may be the name of a block, and a
// bracket below it that block's.
Tokeniser::Below Tokeniser::lineBelow(bool namesBlock) {
    Below below;
    below.line = std::max(lineNumber_, skipLine_) + 1;
    for (; below.line < lines_->size(); ++below.line) {
        const SimLine& line = (*lines_)[below.line];
        below.text = line.text;
        below.open = line.firstOpen < 0 ? npos : static_cast<std::size_t>(line.firstOpen);
        while (below.open == 0 && (below.text.starts_with("(*") || (!namesBlock && below.text.size() > 1))) {
            const std::string_view whole = (*lines_)[below.line].text;
            const auto offset = static_cast<std::size_t>(below.text.data() - whole.data());
            below.text = behindRemark({below.line, offset}, below.line);
            below.open = below.text.find('(');
        }
        if (!below.text.empty())
            return below;
    }
    return {};
}

// Brackets inside a pair of quotes don't count; a quote without a partner is an ordinary character.
Tokeniser::Brackets Tokeniser::findBrackets(std::string_view line) const {
    Brackets at;
    for (std::size_t i = 0; i < line.size(); ++i) {
        const char c = line[i];
        if (c == '"') {
            const std::size_t partner = line.find('"', i + 1);
            if (partner != npos)
                i = partner;
        } else if (c == '(') {
            (at.open == npos ? at.open : at.nextOpen) = i;
            if (at.nextOpen != npos)
                break;
        } else if (c == ')') {
            // A bracket that closes before any opens belongs to the block in hand.
            (at.open == npos ? at.earlyClose : at.close) = i;
            break;
        }
    }
    if (at.close != npos && at.nextOpen == npos)
        at.nextOpen = line.find('(', at.close);
    return at;
}

bool Tokeniser::simpleKey(std::string_view& line, const Brackets& at) {
    const std::string_view rest = line.substr(at.close + 1);
    // A line that ends in "+" goes on with the next one, unless another key follows the bracket.
    const bool goesOn = endsInPlus(line) && at.nextOpen == npos;
    const bool textRemains = !rest.empty() && !goesOn;
    const std::string_view name = trim(line.substr(0, at.open));
    addRecord(currentPath(), name, trim(line.substr(at.open + 1, at.close - at.open - 1)),
              textRemains ? line.substr(0, at.close + 1) : line);
    const bool stop = matchLast();
    if (goesOn && !endsInPlus(keys_.back().Value))
        keys_.back().Value = arena_.join(keys_.back().Value, "+");
    line = textRemains ? rest : std::string_view();
    return stop;
}

// The text before the next closing bracket of the line in hand, trimmed; empty when there is none. The
// bracket is looked for once, however many openings stand before it.
std::string_view Tokeniser::upToClosing(std::string_view text) {
    if (!closingKnown_ || (nextClosing_ && nextClosing_ < text.data())) {
        const std::size_t at = text.find(')');
        nextClosing_ = at == npos ? nullptr : text.data() + at;
        closingKnown_ = true;
    }
    return nextClosing_ ? trim(text.substr(0, static_cast<std::size_t>(nextClosing_ - text.data())))
                        : std::string_view();
}

// Two openings before a closing: the first name opens a block and the line goes on behind its bracket.
bool Tokeniser::openWithRest(std::string_view& line, const Brackets& at) {
    const std::string_view whole = line;
    const std::string_view name = trim(line.substr(0, at.open));
    const std::string_view between = line.substr(at.open + 1, at.nextOpen - at.open - 1);
    std::string_view value;
    std::size_t nextName = at.open + 1;
    const std::size_t textStart = between.find_first_not_of(' ');
    std::optional<TextSpan> place;
    if (nameIs(name, "comment")) {
        place = TextSpan(); // the brackets in it are taken for keys
        value = upToClosing(line.substr(at.open + 1));
    } else if (textStart != npos && between[textStart] == '"' && between.find('"', textStart + 1) != npos) {
        const std::size_t end = between.find('"', textStart + 1) + 1;
        value = between.substr(textStart, end - textStart);
        nextName += end;
    } else if (textStart != npos) {
        const std::size_t next = behindTwoBlanks(between.substr(textStart));
        if (next != npos) {
            value = trim(between.substr(textStart, next));
            nextName += textStart + next;
        }
    }
    const bool stop = openBlock(name, value, whole, place);
    line = whole.substr(nextName);
    return stop;
}

// `place`: the value's, when it isn't where `value` stands.
bool Tokeniser::openBlock(std::string_view name, std::string_view value, std::string_view tail,
                          std::optional<TextSpan> place) {
    if (name.empty())
        return false;
    const bool tooDeep = textOf(currentPath()).size() + name.size() > MaxPathLength;
    if (tooDeep)
        ++deepBlocks_;
    else
        openBlocks_.push_back(pathOfNewBlock(name));
    SimKey& record = addRecord(currentPath(), {}, value, tail);
    if (place)
        record.place = *place;
    valueOpen_ = !tooDeep;
    return matchLast();
}

int Tokeniser::pathOfNewBlock(std::string_view name) {
    path_.assign(textOf(currentPath()));
    if (!path_.empty())
        path_ += '\\';
    path_ += name;
    const int path = internPath(path_);
    if (paths_[static_cast<std::size_t>(path)].records == 0)
        return path;
    char digits[16];
    const auto end = std::to_chars(digits, digits + sizeof digits, keys_.size() - 1).ptr;
    path_ += OccurrenceMarker;
    path_.append(digits, static_cast<std::size_t>(end - digits));
    return internPath(path_);
}

bool Tokeniser::close(std::string_view& line, std::size_t at) {
    const bool stop = matchLast();
    const std::string_view before = trim(line.substr(0, at));
    if (!before.empty() && valueOpen_)
        extendPlace(before);
    if (quotedIn_ >= 0 && currentPath() == quotedIn_)
        quotedIn_ = -1; // the bracket of a quoted value, whose block was left when the value began
    else
        popPath();
    if (!before.empty())
        appendToValue(before);
    std::string_view rest = line.substr(at + 1);
    if (trim(rest) == "+") {
        appendToValue("+");
        rest = {};
    }
    line = rest;
    return stop;
}

// Ends a quoted line at the bracket behind its text; returns what follows that.
std::string_view Tokeniser::cutBehindClosing(std::string_view& line) {
    const std::size_t partner = line.find('"', 1);
    if (partner == npos)
        return {};
    const std::size_t closing = line.find_first_not_of(' ', partner + 1);
    if (closing == npos || line[closing] != ')')
        return {};
    const std::string_view rest = trim(line.substr(closing + 1));
    if (rest == "+")
        return {};
    line = line.substr(0, closing + 1);
    return rest;
}

// A closing bracket at the end of a line of text that isn't taken.
bool Tokeniser::leaveQuoted(std::string_view line) {
    if (line.back() == ')' && quotedIn_ >= 0 && currentPath() == quotedIn_)
        quotedIn_ = -1;
    return false;
}

bool Tokeniser::continueQuoted(std::string_view line) {
    SimKey& last = keys_.back();
    if (!last.Key.empty())
        return appendQuoted(line);
    if (last.pathId != currentPath() || openBlocks_.empty())
        return false; // the block has been closed: the text belongs to nothing
    settleValue();
    const bool isWhole = !endsInPlus(last.Value) && !endsInPlus(line) && line.back() != ')';
    if (isWhole && (openBlocks_.size() == 1 || keysFollow())) { // the name of a block, below its bracket
        takeAsOwnValue(line);
        return false;
    }
    // The block was in truth a key with a long value.
    const std::string_view whole = textOf(currentPath());
    openBlocks_.pop_back();
    const std::string_view parent = textOf(currentPath());
    const std::string_view name = parent.empty() ? whole : whole.substr(parent.size() + 1);
    last.Key = hasMarker(name) ? arena_.keep(StripOccurrence(name)) : name;
    setPath(last, currentPath());
    quotedIn_ = currentPath();
    valueOpen_ = false;
    if (endsInPlus(last.Value))
        return appendQuoted(line);
    last.Tail = line;
    last.Line = static_cast<int>(lineNumber_);
    const bool closes = line.back() == ')';
    if (closes)
        line = trim(line.substr(0, line.size() - 1));
    last.place = placeOf(line);
    last.Value = withoutDefault(last.Key, closes ? StripQuotes(line) : line);
    if (!closes)
        return false;
    quotedIn_ = -1;
    return matchLast();
}

bool Tokeniser::appendQuoted(std::string_view line) {
    if (!joining_) {
        if (!endsInPlus(keys_.back().Value))
            return leaveQuoted(line);
        const std::string_view value = keys_.back().Value;
        joined_ = StripQuotes(value.substr(0, value.size() - 1));
        joining_ = true;
    } else if (!endsInPlus(joined_)) {
        return leaveQuoted(line);
    } else {
        joined_.pop_back();
        if (!joined_.empty() && joined_.back() == '"')
            joined_.pop_back();
    }
    const bool goesOn = endsInPlus(line);
    const std::string_view whole = line;
    if (goesOn)
        line = trim(line.substr(0, line.size() - 1));
    const bool closes = !line.empty() && line.back() == ')';
    if (closes)
        line = trim(line.substr(0, line.size() - 1));
    extendPlace(closes ? line : whole);
    joined_ += StripQuotes(line);
    if (goesOn)
        joined_ += '+';
    if (!closes)
        return false;
    const bool stop = matchLast();
    if (quotedIn_ >= 0 && currentPath() == quotedIn_)
        quotedIn_ = -1;
    else if (quotedIn_ < 0 && keys_.back().pathId != currentPath())
        popPath();
    return stop;
}

// Does the block in hand hold keys, rather than a text?
bool Tokeniser::keysFollow() {
    const Below below = lineBelow(false);
    return below.open != npos && below.text.front() != '"' && below.text.find(')') > below.open;
}

void Tokeniser::takeAsOwnValue(std::string_view text) {
    SimKey& last = keys_.back();
    joining_ = false;
    last.Value = text;
    last.Tail = text;
    last.Line = static_cast<int>(lineNumber_);
    last.place = placeOf(text);
}

// A line of neither brackets nor quote: what comes below it tells what it is.
bool Tokeniser::bareWord(std::string_view& rest) {
    const std::string_view line = std::exchange(rest, {});
    const Below below = lineBelow(line.size() == inHand_.size() && isBlockName(line));
    if (below.text.empty())
        return false;
    if (below.open == 0) {
        skipLine_ = below.line;
        if (below.text.size() == 1)
            return openBlock(line, line, line, placeOf(below.text.substr(1)));
        rest = putTogether(line, below.text);
        return false;
    }
    SimKey& last = keys_.back();
    if (below.open == npos) {
        if (last.Key.empty() && !openBlocks_.empty()) {
            setPath(last, currentPath());
            last.Tail = line;
            last.Line = static_cast<int>(lineNumber_);
        }
        if (valueOpen_)
            extendPlace(line);
        appendToValue(line);
    } else if (last.Key.empty()) { // the name of a block, below its bracket; behind a key it is a remark
        takeAsOwnValue(line);
    }
    return request_.stockMode && matchLast();
}

SimKey& Tokeniser::addRecord(int path, std::string_view key, std::string_view value, std::string_view tail) {
    settleValue();
    if (nameIs(key, "skip")) {
        const std::string_view owner = keys_.back().Key;
        const std::string_view block = paths_[static_cast<std::size_t>(path)].text;
        path = internPath(arena_.join(block, block.empty() ? "" : "\\", owner));
    }
    if (!keys_.back().Path.empty())
        keys_.emplace_back();
    SimKey& record = keys_.back();
    record.pathId = -1;
    setPath(record, path);
    record.Key = key;
    record.Value = key.empty() ? value : withoutDefault(key, value);
    record.Tail = tail;
    record.Line = static_cast<int>(lineNumber_);
    record.place = placeOf(record.Value);
    valueOpen_ = false;
    return record;
}

void Tokeniser::setPath(SimKey& key, int path) {
    if (key.pathId >= 0 && paths_[static_cast<std::size_t>(key.pathId)].records > 0)
        --paths_[static_cast<std::size_t>(key.pathId)].records;
    PathEntry& entry = paths_[static_cast<std::size_t>(path)];
    ++entry.records;
    key.pathId = path;
    key.Path = entry.text;
}

void Tokeniser::appendToValue(std::string_view more) {
    if (!joining_) {
        joined_ = keys_.back().Value;
        joining_ = true;
    }
    if (!joined_.empty() && more != "+")
        joined_ += ' ';
    joined_ += more;
}

void Tokeniser::settleValue() {
    if (!joining_)
        return;
    keys_.back().Value = arena_.keep(joined_);
    joining_ = false;
}

bool Tokeniser::matchLast() {
    if (!searching_)
        return false;
    const SimKey& last = keys_.back();
    if (last.Path.empty() && last.Key.empty())
        return false;
    if (request_.stockMode)
        return matchStockKey();
    if (request_.count != 1 || !equalIgnoringCase(last.Key, request_.key) || !isWanted(last.pathId))
        return false;
    settleValue();
    addHit(last, request_.section, request_.key);
    return true;
}

bool Tokeniser::matchStockKey() {
    constexpr unsigned all = (1u << StockKeys.size()) - 1;
    constexpr unsigned lengths = [] {
        unsigned bits = 0;
        for (const StockKey& wanted : StockKeys)
            bits |= 1u << wanted.key.size();
        return bits;
    }();
    const SimKey& last = keys_.back();
    if (last.Key.size() >= 32 || (lengths >> last.Key.size() & 1) == 0)
        return false; // most keys end here
    for (std::size_t i = 0; i < StockKeys.size(); ++i) {
        const StockKey& wanted = StockKeys[i];
        if (!nameIs(last.Key, wanted.key) || !pathIs(last.Path, wanted.path))
            continue;
        const bool seen = stockSeen_ & (1u << i);
        if (seen && i != CouplingTypeKey)
            break;
        // A coupling's type is looked at again when its block closes: one record gives one hit.
        if (seen && !hits_.empty() && hits_.back().FirstLine == last.Line && hits_.back().Tail == last.Tail)
            break;
        settleValue();
        if (wanted.key.empty() && last.Value.empty())
            break;
        stockSeen_ |= 1u << i;
        addHit(last, wanted.path, wanted.key);
        break;
    }
    return stockSeen_ == all;
}

bool Tokeniser::finalPass() {
    const std::size_t limit = request_.count > 0 ? static_cast<std::size_t>(request_.count) : keys_.size();
    for (const SimKey& key : keys_) {
        if (key.Path.empty() || !equalIgnoringCase(key.Key, request_.key) || !isWanted(key.pathId))
            continue;
        addHit(key, request_.section, request_.key);
        if (hits_.size() >= limit)
            break;
    }
    return !hits_.empty();
}

void Tokeniser::addHit(const SimKey& key, std::string_view section, std::string_view name) {
    SimHit& hit = hits_.emplace_back();
    hit.Path = section;
    hit.Key = name;
    hit.Tail = key.Tail;
    hit.Value = commentRuleApplies(section, name) ? cutComment(key.Value) : key.Value;
    hit.place = key.place;
    if (hit.place.size() == key.Value.size()) // otherwise several pieces make the value
        hit.place.end = hit.place.begin + static_cast<std::uint32_t>(hit.Value.size());
    hit.FirstLine = key.Line;
    if (name != "Description")
        return;
    if (key.Tail.find("Description (") == npos)
        hit.FirstLine = key.Line - 1;
    hit.LastLine = static_cast<int>(std::min(lineNumber_, lines_->size() - 1));
}

void Tokeniser::popPath() {
    valueOpen_ = false;
    if (deepBlocks_ > 0)
        --deepBlocks_;
    else if (!openBlocks_.empty())
        openBlocks_.pop_back();
}

bool Tokeniser::isWanted(int path) {
    PathEntry& entry = paths_[static_cast<std::size_t>(path)];
    if (entry.wanted < 0)
        entry.wanted = equalIgnoringCase(StripOccurrence(entry.text), request_.section);
    return entry.wanted == 1;
}

int Tokeniser::internPath(std::string_view text) {
    TextHasher hasher;
    hasher.add(text);
    const std::size_t hash = hasher.value;
    std::size_t mask = table_.size() - 1;
    std::size_t slot = hash & mask;
    for (; table_[slot] >= 0; slot = (slot + 1) & mask) {
        const PathEntry& entry = paths_[static_cast<std::size_t>(table_[slot])];
        if (entry.hash == hash && entry.text == text)
            return table_[slot];
    }
    const int id = static_cast<int>(paths_.size());
    paths_.push_back({arena_.keep(text), hash, 0, -1});
    table_[slot] = id;
    if (paths_.size() * 2 > table_.size())
        growTable();
    return id;
}

void Tokeniser::growTable() {
    table_.assign(table_.size() * 2, -1);
    const std::size_t mask = table_.size() - 1;
    for (std::size_t id = 0; id < paths_.size(); ++id) {
        std::size_t slot = paths_[id].hash & mask;
        while (table_[slot] >= 0)
            slot = (slot + 1) & mask;
        table_[slot] = static_cast<int>(id);
    }
}

} // namespace zandor
