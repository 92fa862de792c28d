#include "cli/json_output.h"

#include <nlohmann/json.hpp>

namespace zandor {

namespace {

// The length of a DEL or C1 control, which may stand in JSON as it is; 0 when there is none at `at`.
std::size_t highControlAt(std::string_view text, std::size_t at) {
    if (text[at] == '\x7F')
        return 1;
    const bool isC1 = at + 1 < text.size() && static_cast<unsigned char>(text[at + 1]) < 0xA0;
    return text[at] == '\xC2' && isC1 ? 2 : 0;
}

std::string withoutHighControls(std::string text) {
    constexpr char Digits[] = "0123456789abcdef", Leads[] = "\x7F\xC2";
    std::size_t at = text.find_first_of(Leads), taken = 0;
    std::string escaped;
    for (; at != std::string::npos; at = text.find_first_of(Leads, at + 1)) {
        const std::size_t length = highControlAt(text, at);
        if (length == 0)
            continue;
        const auto code = static_cast<unsigned char>(text[at + length - 1]);
        escaped.append(text, taken, at - taken).append("\\u00");
        escaped.append(1, Digits[code >> 4]).append(1, Digits[code & 15]);
        taken = at + length;
    }
    return taken == 0 ? text : escaped.append(text, taken);
}

} // namespace

std::string Json::quoted(std::string_view text) {
    const nlohmann::json value(text);
    return withoutHighControls(value.dump(-1, ' ', false, nlohmann::json::error_handler_t::replace));
}

Json::Json(const std::vector<std::string>& texts) : Json(list()) {
    for (const std::string& text : texts)
        add(text);
}

Json::Json(std::initializer_list<JsonMember> members) : Json(object()) {
    for (const JsonMember& member : members)
        set(member.name, member.value);
}

void Json::append(std::string_view element) {
    const bool first = text_.size() == 2; // the brackets alone
    text_.insert(text_.size() - 1, (first ? "" : ",") + std::string(element));
}

void Json::add(const Json& element) {
    append(element.text_);
}

void Json::set(std::string_view name, const Json& value) {
    append(quoted(name) + ':' + value.text_);
}

void JsonList::add(const Json& element) {
    out_ << (empty_ ? "\n" : ",\n") << element.text();
    empty_ = false;
}

void JsonObject::begin(std::string_view name) {
    out_ << (empty_ ? "\n" : ",\n") << Json(name).text() << ": ";
    empty_ = false;
}

void JsonObject::member(std::string_view name, const Json& value) {
    begin(name);
    out_ << value.text();
}

JsonList JsonObject::list(std::string_view name) {
    begin(name);
    return JsonList(out_);
}

} // namespace zandor
