// What a command prints, held back until all of it stands: a run that fails half way prints nothing.
#pragma once

#include <deque>
#include <ostream>
#include <string>
#include <string_view>

namespace zandor {

class ResultText {
  public:
    ResultText& operator<<(std::string_view text);
    void clear() { pieces_.clear(); }
    // False: it could not be written, or only a part.
    bool writeTo(std::ostream& out) const;

  private:
    std::deque<std::string> pieces_; // none of which grows: so there is never a second copy of a long text
};

} // namespace zandor
