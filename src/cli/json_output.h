// JSON a record at a time, so that a list of any length needs no more memory than its text. Always valid
// UTF-8: what isn't a character, such as half of a surrogate pair, is written as U+FFFD.
#pragma once

#include "cli/result_text.h"

#include <nlohmann/json.hpp>

#include <string>
#include <string_view>

namespace zandor {

using Json = nlohmann::ordered_json;

// All control characters are escaped, those that a terminal obeys behind the ASCII ones too.
std::string jsonText(const Json& value);

// A list, one element a line. close() ends it.
class JsonList {
  public:
    explicit JsonList(ResultText& out) : out_(out) { out_ << "["; }
    void add(const Json& element);
    void close() { out_ << (empty_ ? "]" : "\n]"); }

  private:
    ResultText& out_;
    bool empty_ = true;
};

// An object whose members may be long lists, each closed before the next member. close() ends it and the
// line.
class JsonObject {
  public:
    explicit JsonObject(ResultText& out) : out_(out) { out_ << "{"; }
    void member(std::string_view name, const Json& value);
    JsonList list(std::string_view name);
    void close() { out_ << "\n}\n"; }

  private:
    void begin(std::string_view name);

    ResultText& out_;
    bool empty_ = true;
};

} // namespace zandor
