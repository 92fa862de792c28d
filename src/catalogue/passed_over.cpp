#include "catalogue/passed_over.h"
#include "catalogue/messages.h"

#include <algorithm>

namespace zandor {

namespace {

constexpr std::string_view LineBreak = "\r\n"; // in messages
constexpr std::size_t MostNamed = 5;

} // namespace

bool isPassedOver(ReadResult result) {
    return result == ReadResult::TooLarge || result == ReadResult::NoMemory;
}

bool isPassedOver(ReadOutcome outcome) {
    return outcome == ReadOutcome::TooLarge || outcome == ReadOutcome::NoMemory;
}

void notePassedOver(Catalogue& catalogue, std::string_view path, ReadResult result) {
    if (isPassedOver(result))
        catalogue.passedOver.emplace_back(path);
}

void notePassedOver(Catalogue& catalogue, std::string_view path, ReadOutcome outcome) {
    if (isPassedOver(outcome))
        catalogue.passedOver.emplace_back(path);
}

void tellPassedOver(Frame& frame, const Catalogue& catalogue) {
    const std::vector<std::string>& paths = catalogue.passedOver;
    const std::size_t named = std::min(paths.size(), MostNamed);
    std::string list;
    for (std::size_t i = 0; i < named; ++i) {
        const std::string native = frame.files.nativePath(paths[i]),
                          size = megabytesOf(frame.files, paths[i]);
        list.append(LineBreak).append(frame.text(message::FileAndSize, {{"|1", native}, {"|2", size}}));
    }
    const std::string others = std::to_string(paths.size() - named);
    if (others != "0")
        list.append(LineBreak).append(frame.text(message::AndMoreFiles, {{"|1", others}}));
    if (!list.empty())
        frame.show(frame.text(message::FilesPassedOver, {{"|1", list}}), style::Exclamation);
}

} // namespace zandor
