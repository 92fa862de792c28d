// JSON a record at a time, so that a list of any length needs no more memory than its text. Always valid
// UTF-8: what isn't a character, such as half of a surrogate pair, is written as U+FFFD.
#pragma once

#include "cli/result_text.h"

#include <concepts>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace zandor {

struct JsonMember;

// A value, kept as its text. All control characters are escaped, those that a terminal obeys behind the ASCII
// ones too. An object's members stay in their order.
class Json {
  public:
    Json(bool value) : text_(value ? "true" : "false") {}
    template <std::integral Number>
    requires(!std::same_as<Number, bool>) Json(Number value) : text_(std::to_string(value)) {}
    template <std::convertible_to<std::string_view> Text>
    Json(const Text& text) : text_(quoted(std::string_view(text))) {}
    Json(const std::vector<std::string>& texts);     // a list
    Json(std::initializer_list<JsonMember> members); // an object

    static Json list() { return Json(Raw{}, "[]"); }
    static Json object() { return Json(Raw{}, "{}"); }
    void add(const Json& element);                      // to a list
    void set(std::string_view name, const Json& value); // to an object; a name that it hasn't yet

    const std::string& text() const { return text_; }

  private:
    struct Raw {};
    Json(Raw, const char* text) : text_(text) {}
    static std::string quoted(std::string_view text);
    void append(std::string_view element);

    std::string text_;
};

struct JsonMember {
    std::string_view name;
    Json value;
};

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
