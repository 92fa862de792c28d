#include "frame/finding.h"

namespace zandor {

namespace {

std::string worded(const Frame& frame, Message message, const std::vector<Finding::Param>& params) {
    std::vector<TextParam> views;
    views.reserve(params.size());
    for (const auto& [placeholder, value] : params)
        views.push_back({placeholder, value});
    return frame.language.GetLangText(message, views);
}

} // namespace

std::string wordFinding(const Frame& frame, const Finding& finding) {
    std::string text = worded(frame, finding.message, finding.params);
    for (const Finding::Addition& addition : finding.additions)
        text += addition.before + worded(frame, addition.message, addition.params);
    return text;
}

void showFindings(Frame& frame, const Findings& findings) {
    for (const Finding& finding : findings)
        frame.show(wordFinding(frame, finding), finding.style);
}

bool showOutcome(Frame& frame, const Outcome& outcome) {
    showFindings(frame, outcome.told);
    return outcome.done;
}

} // namespace zandor
