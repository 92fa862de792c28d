// What an operation has to tell and asks nothing about: returned by it, put into words and shown by whoever
// called it.
#pragma once

#include "frame/frame.h"

#include <iterator>
#include <string>
#include <utility>
#include <vector>

namespace zandor {

struct Finding {
    using Param = std::pair<std::string, std::string>; // placeholder and value
    // A further sentence of the same message.
    struct Addition {
        Message message{};
        std::vector<Param> params{};
        std::string before{}; // such as a line break
    };

    Message message{};
    int style = style::Exclamation; // the icon
    std::vector<Param> params{};
    std::string file{}; // what it is about, the simulator's path; may be empty
    int line = 0;       // of the file, from 1; 0: the whole file
    std::vector<Addition> additions{};
};
using Findings = std::vector<Finding>; // in the order in which they are told

// What became of an operation, and what its caller has to tell.
struct [[nodiscard]] Outcome {
    bool done = false; // false: refused, failed, or ended by the user
    Findings told{};
};

inline void addFindings(Findings& findings, Findings more) {
    findings.insert(findings.end(), std::make_move_iterator(more.begin()),
                    std::make_move_iterator(more.end()));
}

// In the language of the frame; additions follow the message without a blank between them.
std::string wordFinding(const Frame& frame, const Finding& finding);

// One message window after the other.
void showFindings(Frame& frame, const Findings& findings);
// The same. Returns what became of the operation.
bool showOutcome(Frame& frame, const Outcome& outcome);

} // namespace zandor
