#include "cli/json_output.h"

namespace zandor {

std::string jsonText(const Json& value) {
    return value.dump(-1, ' ', false, Json::error_handler_t::replace);
}

void JsonList::add(const Json& element) {
    out_ << (empty_ ? "\n" : ",\n") << jsonText(element);
    empty_ = false;
}

void JsonObject::begin(std::string_view name) {
    out_ << (empty_ ? "\n" : ",\n") << jsonText(Json(name)) << ": ";
    empty_ = false;
}

void JsonObject::member(std::string_view name, const Json& value) {
    begin(name);
    out_ << jsonText(value);
}

JsonList JsonObject::list(std::string_view name) {
    begin(name);
    return JsonList(out_);
}

} // namespace zandor
