// What a command's line may hold. Each argument names the variable that takes its value. The parser stands
// behind it, so that a command needs no header of its.
#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
} // namespace CLI

namespace zandor {

// One argument, for what can be said of it further.
class Argument {
  public:
    Argument() = default;
    explicit Argument(CLI::Option* option) : option_(option) {}

    const Argument& excludes(const Argument& other) const; // not both on one line
    const Argument& needs(const Argument& other) const;
    bool given() const; // on the line that was parsed

  private:
    CLI::Option* option_ = nullptr;
};

class Arguments {
  public:
    explicit Arguments(CLI::App& app) : app_(app) {}

    // By their place; one value, one of a few words, one or more, or any number.
    Argument one(const char* name, std::string& value, const char* help);
    Argument oneOf(const char* name, std::string& value, const std::vector<std::string>& words,
                   const char* help);
    Argument several(const char* name, std::vector<std::string>& values, const char* help);
    Argument any(const char* name, std::vector<std::string>& values, const char* help);
    // By name: with a text (`type` is what the help shows for it), one of a few words, a number, or alone.
    Argument text(const char* name, std::string& value, const char* type, const char* help);
    Argument word(const char* name, std::string& value, const std::vector<std::string>& words,
                  const char* type, const char* help);
    Argument number(const char* name, int& value, int least, int most, const char* type, const char* help);
    Argument flag(const char* name, bool& value, const char* help);

  private:
    CLI::App& app_;
};

} // namespace zandor
