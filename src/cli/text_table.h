// A table for people: columns as wide as their widest cell. Controls in cells are escaped.
#pragma once

#include "cli/result_text.h"

#include <string>
#include <vector>

namespace zandor {

class TextTable {
  public:
    // The heads tell how many cells a row has.
    explicit TextTable(std::vector<std::string> heads) { add(std::move(heads)); }

    void add(std::vector<std::string> cells);
    // Nothing when there is no row below the heads.
    void print(ResultText& out) const;

  private:
    std::vector<std::vector<std::string>> rows_;
    std::vector<std::size_t> widths_; // characters
};

} // namespace zandor
