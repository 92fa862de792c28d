// The registry as the text files of a Wine prefix: one section a key, one line a value.
#include "platform/registry.h"

#include "platform/letter_case.h"
#include "platform/utf8.h"

#include <algorithm>
#include <fstream>
#include <optional>
#include <vector>

namespace zandor {

namespace {

constexpr std::size_t kLongestValue = 1024; // bytes
constexpr std::string_view kSoftware = "Software\\";
constexpr std::string_view kView32 = "Software\\Wow6432Node\\";

// Puts UTF-16 code units together to characters; half a pair becomes U+FFFD.
class Utf16Joiner {
  public:
    explicit Utf16Joiner(std::string& text) : text_(text) {}
    ~Utf16Joiner() { flush(); }

    void add(char32_t unit) {
        if (high_ != 0 && unit >= 0xDC00 && unit < 0xE000) {
            appendCharacter(text_, 0x10000 + ((high_ - 0xD800) << 10) + (unit - 0xDC00));
            high_ = 0;
            return;
        }
        flush();
        if (unit >= 0xD800 && unit < 0xDC00)
            high_ = unit;
        else
            appendCharacter(text_, unit >= 0xDC00 && unit < 0xE000 ? U'\uFFFD' : unit);
    }

  private:
    void flush() {
        if (high_ != 0)
            appendCharacter(text_, U'\uFFFD');
        high_ = 0;
    }

    std::string& text_;
    char32_t high_ = 0; // the first half of a pair
};

int digitOf(char c, int base) {
    const int value = c >= '0' && c <= '9'   ? c - '0'
                      : c >= 'a' && c <= 'f' ? c - 'a' + 10
                      : c >= 'A' && c <= 'F' ? c - 'A' + 10
                                             : base;
    return value < base ? value : -1;
}

// The number of at most `longest` digits at the beginning of `rest`, which moves behind it.
std::optional<char32_t> takeNumber(std::string_view& rest, int base, std::size_t longest) {
    char32_t number = 0;
    std::size_t count = 0;
    for (; count < longest && count < rest.size() && digitOf(rest[count], base) >= 0; ++count)
        number = number * base + digitOf(rest[count], base);
    rest.remove_prefix(count);
    return count > 0 ? std::optional(number) : std::nullopt;
}

// What stands behind a backslash.
char32_t takeEscape(std::string_view& rest) {
    constexpr std::string_view names = "abtnvfre", meanings = "\a\b\t\n\v\f\r\x1b";
    if (const auto octal = takeNumber(rest, 8, 3))
        return *octal;
    const char name = rest.front();
    rest.remove_prefix(1);
    if (name == 'x')
        return takeNumber(rest, 16, 4).value_or('x');
    const std::size_t at = names.find(name);
    return static_cast<unsigned char>(at == std::string_view::npos ? name : meanings[at]);
}

// The text up to `end`, which is taken too; nothing when it doesn't come.
std::optional<std::string> takeEscaped(std::string_view& rest, char end) {
    std::string text;
    Utf16Joiner units(text);
    while (!rest.empty() && rest.front() != end) {
        const bool escaped = rest.front() == '\\' && rest.size() > 1;
        std::size_t length = 0;
        if (escaped)
            rest.remove_prefix(1);
        units.add(escaped ? takeEscape(rest) : nextCharacter(rest, length));
        rest.remove_prefix(length);
    }
    if (rest.empty())
        return std::nullopt;
    rest.remove_prefix(1);
    return text;
}

// UTF-16 as bytes in hexadecimal, separated by commas.
std::string decodeHex(std::string_view list) {
    std::string text;
    Utf16Joiner units(text);
    std::vector<char32_t> bytes;
    while (const auto byte = takeNumber(list, 16, 2)) {
        bytes.push_back(*byte);
        list.remove_prefix(std::min(list.find_first_not_of(", \t"), list.size()));
    }
    for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
        units.add(bytes[i] | bytes[i + 1] << 8);
    return text;
}

bool takeBeginning(std::string_view& rest, std::string_view beginning) {
    const bool found = rest.starts_with(beginning);
    rest.remove_prefix(found ? beginning.size() : 0);
    return found;
}

// The data behind the "=". Numbers and other kinds have no text.
std::string decodeData(std::string_view data) {
    for (const std::string_view kind : {"hex(1):", "hex(2):"})
        if (takeBeginning(data, kind))
            return decodeHex(data);
    takeBeginning(data, "str(2):");
    return takeBeginning(data, "\"") ? takeEscaped(data, '"').value_or("") : std::string();
}

// The data of a value line when it bears this name; "@" stands for the empty name.
std::optional<std::string_view> dataOf(std::string_view line, std::string_view name) {
    const bool unnamed = takeBeginning(line, "@");
    const auto found = unnamed                     ? std::optional<std::string>("")
                       : takeBeginning(line, "\"") ? takeEscaped(line, '"')
                                                   : std::nullopt;
    if (!found || !takeBeginning(line, "=") || !equalIgnoringCase(*found, name))
        return std::nullopt;
    return line;
}

bool readLine(std::istream& file, std::string& line) {
    if (!std::getline(file, line))
        return false;
    if (line.ends_with('\r'))
        line.pop_back();
    return true;
}

// One line of the file; the lines of a long list, each but the last ended by a backslash, are put together.
bool readLogicalLine(std::istream& file, std::string& line) {
    if (!readLine(file, line))
        return false;
    std::string more;
    while (!line.starts_with('[') && line.ends_with(",\\") && readLine(file, more)) {
        line.pop_back();
        line.append(more, std::min(more.find_first_not_of(" \t"), more.size()));
    }
    return true;
}

// The keys in order of preference, and the value found in the best of them so far.
struct Search {
    std::vector<std::string> keys;
    std::string_view name;
    std::size_t best; // index of its key
    std::string text;
};

// Which of the wanted keys a section line names; one that is no better than what was found is not wanted.
std::size_t wantedKey(const Search& search, std::string_view line) {
    line.remove_prefix(1);
    const auto key = takeEscaped(line, ']');
    std::size_t i = 0;
    while (i < search.best && !(key && equalIgnoringCase(*key, search.keys[i])))
        ++i;
    return i;
}

// Goes through the file line by line, since it may be large and a single value is wanted. True when it was
// found.
bool findValue(const std::string& path, Search& search) {
    std::ifstream file(path, std::ios::binary);
    search.best = search.keys.size();
    std::size_t key = search.best; // of the section that the line is in
    std::string line;
    while (search.best > 0 && readLogicalLine(file, line)) {
        if (line.starts_with('['))
            key = wantedKey(search, line);
        else if (key < search.best)
            if (const auto data = dataOf(line, search.name)) {
                search.text = decodeData(*data);
                search.best = key;
            }
    }
    return search.best < search.keys.size();
}

// The key as a 32-bit program sees it, and as it stands.
std::vector<std::string> viewsOf(std::string_view key) {
    while (key.ends_with('\\'))
        key.remove_suffix(1);
    std::vector<std::string> keys;
    if (beginsWithIgnoringCase(key, kSoftware) && !beginsWithIgnoringCase(key, kView32))
        keys.push_back(std::string(kView32).append(key.substr(kSoftware.size())));
    keys.emplace_back(key);
    return keys;
}

class WineRegistry final : public Registry {
  public:
    explicit WineRegistry(const std::string& winePrefix) : prefix_(winePrefix) {}

    std::string readString(RegistryHive hive, std::string_view key, std::string_view name) override {
        if (prefix_.empty())
            return {};
        const bool classes = hive == RegistryHive::ClassesRoot;
        const std::string path = classes ? std::string("Software\\Classes\\").append(key) : std::string(key);
        Search search{viewsOf(path), name, 0, {}};
        const bool found = (hive != RegistryHive::LocalMachine && findValue(prefix_ + "/user.reg", search)) ||
                           (hive != RegistryHive::CurrentUser && findValue(prefix_ + "/system.reg", search));
        return found ? limited(search.text) : std::string();
    }

  private:
    static std::string limited(std::string_view text) {
        text = cutBetweenCharacters(text, kLongestValue);
        while (text.ends_with('\0'))
            text.remove_suffix(1);
        return std::string(text);
    }

    std::string prefix_;
};

} // namespace

std::unique_ptr<Registry> makeSystemRegistry(const std::string& winePrefix) {
    return std::make_unique<WineRegistry>(winePrefix);
}

std::string ReadRegistryString(Registry& registry, RegistryHive hive, std::string_view key,
                               std::string_view name) {
    return registry.readString(hive, key, name);
}

} // namespace zandor
