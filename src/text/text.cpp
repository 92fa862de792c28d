#include "text/text.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace zandor {

namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

std::size_t afterDigits(std::string_view text, std::size_t from) {
    while (from < text.size() && isDigit(text[from]))
        ++from;
    return from;
}

// The end of a number without a sign that begins at 0; 0 when no digit is there.
std::size_t numberEnd(std::string_view text) {
    std::size_t end = afterDigits(text, 0);
    std::size_t digits = end;
    if (end < text.size() && text[end] == '.') {
        const std::size_t fraction = end + 1;
        end = afterDigits(text, fraction);
        digits += end - fraction;
    }
    if (digits == 0)
        return 0;
    if (end >= text.size() || (text[end] != 'e' && text[end] != 'E'))
        return end;
    std::size_t exponent = end + 1;
    if (exponent < text.size() && (text[exponent] == '+' || text[exponent] == '-'))
        ++exponent;
    const std::size_t exponentEnd = afterDigits(text, exponent);
    return exponentEnd > exponent ? exponentEnd : end;
}

std::string_view dropTabsAndBlanks(std::string_view text) {
    const auto isDropped = [](char c) { return c == ' ' || c == '\t'; };
    while (!text.empty() && isDropped(text.front()))
        text.remove_prefix(1);
    while (!text.empty() && isDropped(text.back()))
        text.remove_suffix(1);
    return text;
}

bool beginsWithQuote(std::string_view text) {
    return !text.empty() && text.front() == '"';
}
bool endsWithQuote(std::string_view text) {
    return !text.empty() && text.back() == '"';
}

// Every full stretch of `length` blanks becomes one blank.
void shortenStretches(std::string& line, std::size_t length) {
    std::size_t to = 0;
    for (std::size_t from = 0; from < line.size();) {
        if (line[from] != ' ') {
            line[to++] = line[from++];
            continue;
        }
        const std::size_t end = std::min(line.find_first_not_of(' ', from), line.size());
        const std::size_t blanks = (end - from) / length + (end - from) % length;
        line.replace(to, blanks, blanks, ' ');
        to += blanks;
        from = end;
    }
    line.resize(to);
}

} // namespace

std::string_view firstCharacters(std::string_view text, std::size_t count) {
    if (text.size() <= count)
        return text;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const bool beginsCharacter = (static_cast<unsigned char>(text[i]) & 0xC0) != 0x80;
        if (beginsCharacter && count-- == 0)
            return text.substr(0, i);
    }
    return text;
}

double numericValue(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t");
    if (first == std::string_view::npos)
        return 0;
    text.remove_prefix(first);
    const bool negative = text.front() == '-';
    if (negative || text.front() == '+')
        text.remove_prefix(1);
    double value = 0; // stays so when the number is too large or too small to hold
    const std::size_t end = numberEnd(text);
    if (end > 0 && std::from_chars(text.data(), text.data() + end, value).ec != std::errc())
        return 0;
    return negative ? -value : value;
}

int numericInt16(std::string_view text) {
    short whole = 0; // as nearly every number is
    const char* const end = text.data() + text.size();
    if (const auto read = std::from_chars(text.data(), end, whole); read.ec == std::errc() && read.ptr == end)
        return whole;
    const double rounded = std::nearbyint(numericValue(text));
    return rounded >= -32768 && rounded <= 32767 ? static_cast<int>(rounded) : 0;
}

std::string formatDurability(double value) {
    if (!std::isfinite(value))
        value = 0;
    char buffer[400]; // room for the largest double
    const auto result = std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, 5);
    const std::string text(buffer, result.ptr);
    return text == "-0.00000" ? text.substr(1) : text;
}

std::string_view StripQuotes(std::string_view text) {
    text = trim(text);
    if (beginsWithQuote(text))
        text.remove_prefix(1);
    if (endsWithQuote(text))
        text.remove_suffix(1);
    return text;
}

bool QuotesBalanced(std::string_view text) {
    text = trim(text);
    return beginsWithQuote(text) == endsWithQuote(text);
}

std::string_view CleanValue(std::string_view text) {
    text = dropTabsAndBlanks(text);
    if (!text.empty() && text.front() == '(')
        text.remove_prefix(1);
    if (!text.empty() && text.back() == ')')
        text.remove_suffix(1);
    text = trim(text);
    return QuotesBalanced(text) ? StripQuotes(text) : text;
}

void NormalizeLine(std::string& line) {
    for (char& c : line)
        if (c == '\t')
            c = ' ';
    const std::size_t last = line.find_last_not_of(' ');
    line.erase(last == std::string::npos ? 0 : last + 1);
    line.erase(0, line.find_first_not_of(' '));
    const std::size_t blank = line.find(' ');
    if (blank == std::string::npos)
        return;
    const std::size_t next = line.find_first_not_of(' ', blank);
    if (next - blank > 1 && line.find('(') == next)
        shortenStretches(line, next - blank);
}

std::string properCase(std::string_view text) {
    const std::string lower = lowerCase(text);
    std::string_view rest = lower;
    std::string proper;
    while (!rest.empty()) {
        const std::size_t word = std::min(rest.find_first_not_of(" \t"), rest.size());
        const std::size_t end = std::min(rest.find_first_of(" \t", word), rest.size());
        const std::string_view first = firstCharacters(rest.substr(word), 1);
        proper.append(rest.substr(0, word)).append(upperCase(first));
        proper.append(rest.substr(word + first.size(), end - word - first.size()));
        rest.remove_prefix(end);
    }
    return proper;
}

std::string_view lastToken(std::string_view text) {
    text = trim(text);
    return text.substr(text.rfind(' ') + 1); // npos + 1 is 0: a single token
}

} // namespace zandor
