#include "editor/editor_parts.h"

#include <array>

#include <algorithm>
#include <iterator>

namespace zandor {

namespace {

// What the names of files can't hold, and two marks that not every code page has.
constexpr std::array<std::string_view, 11> Forbidden{"*", "/", ":", "<", ">", "?", "\\", "|", "\"", "¦", "¨"};

std::string_view forbiddenAt(std::string_view text) {
    for (std::string_view character : Forbidden)
        if (text.starts_with(character))
            return character;
    return {};
}

// Bytes: what a file system takes is 255, of which ".con" and the mark of a file not yet complete need their
// share.
constexpr std::size_t LongestShortName = 240;

bool isControl(char c) {
    return static_cast<unsigned char>(c) < 0x20;
}

} // namespace

std::string_view withinFileName(std::string_view name) {
    if (name.size() <= LongestShortName)
        return name;
    std::size_t end = LongestShortName;
    while ((static_cast<unsigned char>(name[end]) & 0xC0) == 0x80) // inside a character
        --end;
    return name.substr(0, end);
}

std::string filterShortName(std::string_view text) {
    std::string kept;
    while (!text.empty()) {
        const std::string_view dropped = forbiddenAt(text);
        if (dropped.empty() && !isControl(text.front()))
            kept += text.front();
        text.remove_prefix(dropped.empty() ? 1 : dropped.size());
    }
    return kept;
}

void changeShortName(Editor& editor, std::string_view text) {
    EditorControls& controls = editor.document.controls;
    const std::string allowed = filterShortName(text);
    std::string filtered(withinFileName(allowed));
    if (filtered == controls.shortName)
        return;
    controls.shortName = std::move(filtered);
    controls.shortNameRed = false;
    editor.document.Modified = hasVehicles(editor.document);
}

void changeFullName(Editor& editor, std::string_view text) {
    EditorControls& controls = editor.document.controls;
    if (text == controls.fullName)
        return;
    controls.fullName.clear();
    std::copy_if(text.begin(), text.end(), std::back_inserter(controls.fullName),
                 [](char c) { return static_cast<unsigned char>(c) >= 0x20; }); // a file has it on one line
    std::ranges::replace(controls.fullName, '"', '\''); // and in quotes: one within would end it
    if (controls.shortNameEnabled)
        changeShortName(editor, text);
    editor.document.Modified = hasVehicles(editor.document);
}

void changeDurability(Editor& editor, int value) {
    EditorControls& controls = editor.document.controls;
    if (value == controls.durability)
        return;
    controls.durability = value;
    updateResistance(editor);
    editor.document.Modified = hasVehicles(editor.document);
}

std::string doubleName(const Rame& rame) {
    return filterShortName(std::string(StripQuotes(rame.CfgName)) + " - " + rame.FileName);
}

} // namespace zandor
