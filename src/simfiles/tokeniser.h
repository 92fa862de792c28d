// Lines of a simulator text file to keys: walks the lines with the paths of the open blocks as its only
// stack.
#pragma once

#include "simfiles/read_request.h"
#include "simfiles/remarks.h"
#include "simfiles/sim_keys.h"
#include "simfiles/sim_lines.h"
#include "simfiles/text_arena.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zandor {

class Tokeniser {
  public:
    Tokeniser(std::vector<SimKey>& keys, std::vector<SimHit>& hits, TextArena& arena);

    struct Outcome {
        bool found = false; // a match ended the search, or the final pass made a hit
        int badLine = 0;    // a consist's vehicle line whose brackets don't fit, from 1; 0: none
        bool closeMissing = false;
    };
    // `lines` stand in `text`. Both arrays are filled anew.
    Outcome run(std::string_view text, const std::vector<SimLine>& lines, const ReadRequest& request,
                bool isConsist);

  private:
    Outcome walk(std::string_view text, const std::vector<SimLine>& lines, const ReadRequest& request,
                 bool isConsist);

    // A path text met in this read.
    struct PathEntry {
        std::string_view text;
        std::size_t hash = 0;
        int records = 0;         // how many of the keys carry it now
        signed char wanted = -1; // is it the section asked for? -1: not looked at yet
    };
    // Of a line: the first opening, then the first closing or opening behind it, and a closing before it.
    // With a closing, nextOpen is the opening behind that.
    struct Brackets {
        std::size_t open = npos, nextOpen = npos, close = npos, earlyClose = npos;
    };
    static constexpr std::size_t npos = std::string_view::npos;
    // What stands below the line in hand.
    struct Below {
        std::size_t line = 0;
        std::string_view text;   // from where it counts; empty: the file ends
        std::size_t open = npos; // the first "(" of text
    };
    // A part of a line that was put together from two, and where it stands in the file.
    struct Part {
        std::string_view text;
        TextSpan place; // nowhere when it was put together itself
    };

    Brackets findBrackets(std::string_view line) const;
    bool plainLine(const SimLine& line);
    bool workLine(std::string_view line);
    bool workKey(std::string_view& line);
    static bool closeVehicle(std::string_view line, Brackets& at);
    void leaveRemark(std::string_view& line);
    std::string_view behindRemark(Remarks::Place open, std::size_t& line);
    Below lineBelow(bool namesBlock);
    bool keysFollow();
    std::size_t owedClosings() const;
    void takeInHand(std::string_view text);
    std::string_view putTogether(std::string_view line, std::string_view below);
    TextSpan placeOf(std::string_view part) const;
    TextSpan placeOfPart(std::string_view part) const;
    void extendPlace(std::string_view piece);
    bool simpleKey(std::string_view& line, const Brackets& at);
    bool openBlock(std::string_view name, std::string_view value, std::string_view tail,
                   std::optional<TextSpan> place = std::nullopt);
    int pathOfNewBlock(std::string_view name);
    std::string_view upToClosing(std::string_view text);
    bool openWithRest(std::string_view& line, const Brackets& at);
    bool close(std::string_view& line, std::size_t at);
    static std::string_view cutBehindClosing(std::string_view& line);
    bool leaveQuoted(std::string_view line);
    bool continueQuoted(std::string_view line);
    bool appendQuoted(std::string_view line);
    bool bareWord(std::string_view& rest);
    void takeAsOwnValue(std::string_view text);

    bool matchLast();
    bool matchStockKey();
    bool finalPass();
    void addHit(const SimKey& key, std::string_view section, std::string_view name);

    SimKey& addRecord(int path, std::string_view key, std::string_view value, std::string_view tail);
    void setPath(SimKey& key, int path);
    void appendToValue(std::string_view more);
    void settleValue(); // makes the value being joined the last record's

    int internPath(std::string_view text);
    int currentPath() const { return openBlocks_.empty() ? TopPath : openBlocks_.back(); }
    std::string_view textOf(int path) const { return paths_[static_cast<std::size_t>(path)].text; }
    void popPath();
    bool isWanted(int path);
    void growTable();

    std::vector<SimKey>& keys_;
    std::vector<SimHit>& hits_;
    TextArena& arena_;
    std::vector<PathEntry> paths_;
    std::vector<int> table_; // open addressing over paths_, -1 free
    const std::vector<SimLine>* lines_ = nullptr;
    std::string_view text_;
    ReadRequest request_;
    bool searching_ = false;
    bool isConsist_ = false;
    bool badVehicle_ = false; // the line in hand holds a vehicle whose bracket doesn't close
    Remarks remarks_;

    static constexpr int TopPath = 0; // the empty one, which is the first to be interned
    std::vector<int> openBlocks_;     // the paths of the blocks that are open, outermost first
    std::string path_;                // while one is put together
    std::size_t deepBlocks_ = 0;      // blocks open below the deepest path that is kept apart
    int quotedIn_ = -1;               // the path in which a quoted value's bracket is still open
    std::string joined_;              // the last record's value while pieces are being joined
    bool joining_ = false;
    std::size_t lineNumber_ = 0;
    std::size_t skipLine_ = 0;          // already worked on together with the line above
    std::string_view inHand_;           // the line in hand, or that and the one below it put together
    std::array<Part, 2> parts_;         // of the last line that was put together
    bool valueOpen_ = false;            // what comes next may be more value of the last record's block
    const char* nextClosing_ = nullptr; // see upToClosing()
    bool closingKnown_ = false;
    unsigned stockSeen_ = 0;
};

} // namespace zandor
