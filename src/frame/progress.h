// Progress of a long operation, and the point at which it lets the interface live.
#pragma once

#include <string>
#include <string_view>

namespace zandor {

class Progress {
  public:
    virtual ~Progress() = default;
    // Bounds and current value of the bar, and its text. Nothing is drawn when upper is 0. Cheap to call once
    // a file: an implementation draws only as often as an eye can follow.
    virtual void ShowProgress(int lower, int upper, int current, std::string_view text) = 0;
    // Which file is read next, for those who tell what was at work when a run ends early. Cheap.
    virtual void atFile(std::string_view) {}
    // Serves the interface; called once a file. False: the user has ended the operation, which stops at once.
    virtual bool yield() = 0;
};

} // namespace zandor
