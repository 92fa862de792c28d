#include "cli/arguments.h"

#include <CLI/CLI.hpp>

namespace zandor {

const Argument& Argument::excludes(const Argument& other) const {
    option_->excludes(other.option_);
    return *this;
}

const Argument& Argument::needs(const Argument& other) const {
    option_->needs(other.option_);
    return *this;
}

bool Argument::given() const {
    return option_->count() > 0;
}

Argument Arguments::one(const char* name, std::string& value, const char* help) {
    return Argument(app_.add_option(name, value, help)->required());
}

Argument Arguments::oneOf(const char* name, std::string& value, const std::vector<std::string>& words,
                          const char* help) {
    return Argument(
        app_.add_option(name, value, help)->required()->check(CLI::IsMember(words, CLI::ignore_case)));
}

Argument Arguments::several(const char* name, std::vector<std::string>& values, const char* help) {
    return Argument(app_.add_option(name, values, help)->required());
}

Argument Arguments::any(const char* name, std::vector<std::string>& values, const char* help) {
    return Argument(app_.add_option(name, values, help));
}

Argument Arguments::text(const char* name, std::string& value, const char* type, const char* help) {
    return Argument(app_.add_option(name, value, help)->type_name(type));
}

Argument Arguments::word(const char* name, std::string& value, const std::vector<std::string>& words,
                         const char* type, const char* help) {
    return Argument(
        app_.add_option(name, value, help)->type_name(type)->check(CLI::IsMember(words, CLI::ignore_case)));
}

Argument Arguments::number(const char* name, int& value, int least, int most, const char* type,
                           const char* help) {
    return Argument(app_.add_option(name, value, help)->type_name(type)->check(CLI::Range(least, most)));
}

Argument Arguments::flag(const char* name, bool& value, const char* help) {
    return Argument(app_.add_flag(name, value, help));
}

} // namespace zandor
