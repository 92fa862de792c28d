#include "verify/sound_scan.h"

#include "simfiles/sim_lines.h"
#include "text/lines.h"

#include <algorithm>
#include <optional>

namespace zandor {

namespace {

constexpr std::size_t npos = std::string_view::npos;
constexpr std::string_view WaveEnding = ".wav";

// A word of ASCII letters, in any case.
std::size_t findWord(std::string_view text, std::string_view word, std::size_t from = 0) {
    for (; from + word.size() <= text.size(); ++from)
        if (nameIs(text.substr(from, word.size()), word))
            return from;
    return npos;
}

std::size_t findLastWord(std::string_view text, std::string_view word) {
    for (std::size_t at = text.size(); at >= word.size(); --at)
        if (nameIs(text.substr(at - word.size(), word.size()), word))
            return at - word.size();
    return npos;
}

std::size_t findWave(std::string_view text, std::size_t from) {
    for (from = text.find('.', from); from != npos; from = text.find('.', from + 1))
        if (nameIs(text.substr(from, WaveEnding.size()), WaveEnding))
            return from;
    return npos;
}

std::size_t behindFirstLine(std::string_view text) {
    return text.empty() ? 0 : LineCursor(text).lineOf(0).next;
}

// The stretches of a text between the brackets of "skip" and "comment".
class Passages {
  public:
    explicit Passages(std::string_view text) : text_(text) {
        LineCursor lines(text);
        for (std::size_t at = nextWord(0); at != npos;) {
            const LineCursor::Line line = lines.lineOf(at);
            takeLine(line.text);
            at = line.next >= text.size() ? npos : nextWord(line.next);
        }
    }

    // Ascending places.
    bool hold(std::size_t at) {
        while (next_ < passages_.size() && passages_[next_].begin <= at)
            end_ = std::max<std::size_t>(end_, passages_[next_++].end);
        return at < end_;
    }

  private:
    struct Word {
        std::string_view name;
        std::size_t found = 0; // at or behind the last place asked for; npos: none
    };

    std::size_t nextWord(std::size_t from) {
        for (Word& word : words_)
            if (word.found != npos && (word.found < from || from == 0))
                word.found = findWord(text_, word.name, from);
        return std::min(words_[0].found, words_[1].found);
    }

    // The words of a line that stand outside of quotes, each with the first bracket behind it.
    void takeLine(std::string_view line) {
        bool named = false;
        findUnquoted(line, 0, [&](std::size_t at) {
            for (const Word& word : words_)
                named = named || nameIs(line.substr(at, word.name.size()), word.name);
            if (named && line[at] == '(') {
                takeOpening(line, at);
                named = false;
            }
            return false;
        });
    }

    // Without a ")" behind it on its line, the bracket goes on to its own one.
    void takeOpening(std::string_view line, std::size_t open) {
        const auto lineBegin = static_cast<std::size_t>(line.data() - text_.data());
        const std::size_t lineEnd = lineBegin + line.size(), begin = lineBegin + open;
        const std::size_t own = closingOf(begin);
        if (nextClosing_ != npos && nextClosing_ < begin)
            nextClosing_ = text_.find(')', begin);
        const std::size_t end = own >= lineEnd && nextClosing_ < lineEnd ? nextClosing_ : own;
        if (end != npos)
            passages_.push_back({static_cast<std::uint32_t>(begin), static_cast<std::uint32_t>(end)});
    }

    std::size_t closingOf(std::size_t open) {
        if (!matched_)
            matchBrackets();
        const auto found = std::lower_bound(pairs_.begin(), pairs_.end(), open,
                                            [](const Pair& pair, std::size_t at) { return pair.open < at; });
        return found != pairs_.end() && found->open == open ? found->close : npos;
    }

    // All pairs of the text, once.
    void matchBrackets() {
        matched_ = true;
        std::vector<std::size_t> unclosed;
        LineCursor lines(text_);
        for (std::size_t at = 0; at < text_.size();) {
            const LineCursor::Line line = lines.lineOf(at);
            findUnquoted(line.text, 0, [&](std::size_t i) {
                matchBracket(line.text[i], at + i, unclosed);
                return false;
            });
            at = line.next;
        }
        std::erase_if(pairs_, [](const Pair& pair) { return pair.close == npos; });
    }

    void matchBracket(char character, std::size_t at, std::vector<std::size_t>& unclosed) {
        if (character == '(') {
            unclosed.push_back(pairs_.size());
            pairs_.push_back({at, npos});
        } else if (character == ')' && !unclosed.empty()) {
            pairs_[unclosed.back()].close = at;
            unclosed.pop_back();
        }
    }

    struct Pair {
        std::size_t open = 0, close = npos;
    };

    std::string_view text_;
    Word words_[2] = {{"skip"}, {"comment"}};
    std::vector<TextSpan> passages_; // by their begin
    std::size_t next_ = 0, end_ = 0;
    std::vector<Pair> pairs_; // by their opening
    bool matched_ = false;
    std::size_t nextClosing_ = 0; // the first ")" behind the last bracket that was taken; npos: none
};

// Where the name that ends at the end of `stretch` begins: behind the quote that is open there, otherwise
// behind the bracket of the last "file".
std::optional<std::size_t> beginOfName(std::string_view stretch) {
    const std::size_t quote = stretch.rfind('"');
    if (std::count(stretch.begin(), stretch.end(), '"') % 2 == 1)
        return quote + 1;
    const std::size_t file = findLastWord(stretch, "file");
    const std::size_t bracket = file == npos ? npos : stretch.find('(', file);
    if (bracket != npos && (quote == npos || bracket > quote))
        return bracket + 1;
    return quote == npos ? std::nullopt : std::optional(quote + 1);
}

// Behind a name, its blanks and its closing quote.
std::size_t behindName(std::string_view line, std::size_t end) {
    const std::size_t next = line.find_first_not_of(" \t", end);
    return next != npos && line[next] == '"' ? next + 1 : end;
}

// The names of one line, which counts from its first "file" on, if a quote follows that. What looks like the
// word in a name is none.
void readLine(std::string_view text, const LineCursor::Line& line, Passages& passages,
              std::vector<WaveName>& waves) {
    bool counts = false;
    std::size_t from = static_cast<std::size_t>(line.text.data() - text.data());
    text = text.substr(0, from + line.text.size());
    const std::size_t lastQuote = text.rfind('"');
    for (std::size_t wave; (wave = findWave(text, from)) != npos;) {
        const std::size_t end = wave + WaveEnding.size();
        const std::optional<std::size_t> begin = beginOfName(text.substr(from, wave - from));
        if (!counts) {
            const std::size_t file = findWord(text.substr(0, from + begin.value_or(0)), "file", from);
            counts = file != npos && lastQuote != npos && lastQuote > file;
        }
        if (counts && begin && !passages.hold(wave))
            waves.push_back({{static_cast<std::uint32_t>(text.find_first_not_of(" \t", from + *begin)),
                              static_cast<std::uint32_t>(end)},
                             line.text,
                             line.number});
        from = behindName(text, end);
    }
}

} // namespace

std::vector<WaveName> findWaves(std::string_view text) {
    std::vector<WaveName> waves;
    std::size_t wave = findWave(text, behindFirstLine(text));
    if (wave == npos)
        return waves;
    Passages passages(text);
    LineCursor lines(text);
    while (wave != npos) {
        const LineCursor::Line line = lines.lineOf(wave);
        readLine(text, line, passages, waves);
        wave = findWave(text, line.next);
    }
    return waves;
}

std::string textOf(std::string_view text, const WaveName& wave) {
    std::string name(text.substr(wave.place.begin, wave.place.size()));
    std::replace(name.begin(), name.end(), '\t', ' ');
    return name;
}

} // namespace zandor
