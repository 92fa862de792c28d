// JSON a record at a time, so that a list of any length needs no memory of its own. Always valid UTF-8: what
// isn't a character, such as half of a surrogate pair, is written as U+FFFD.
#pragma once

#include <nlohmann/json.hpp>

#include <ostream>
#include <string>
#include <string_view>

namespace zandor {

using Json = nlohmann::ordered_json;

std::string jsonText(const Json& value);

// A list, one element a line. close() ends it.
class JsonList {
  public:
    explicit JsonList(std::ostream& out) : out_(out) { out_ << '['; }
    void add(const Json& element);
    void close() { out_ << (empty_ ? "]" : "\n]"); }

  private:
    std::ostream& out_;
    bool empty_ = true;
};

// An object whose members may be long lists, each closed before the next member. close() ends it and the
// line.
class JsonObject {
  public:
    explicit JsonObject(std::ostream& out) : out_(out) { out_ << '{'; }
    void member(std::string_view name, const Json& value);
    JsonList list(std::string_view name);
    void close() { out_ << "\n}\n"; }

  private:
    void begin(std::string_view name);

    std::ostream& out_;
    bool empty_ = true;
};

} // namespace zandor
