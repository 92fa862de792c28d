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

bool isControl(char c) {
    return static_cast<unsigned char>(c) < 0x20;
}

} // namespace

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
    std::string filtered = filterShortName(text);
    if (filtered == controls.shortName)
        return;
    controls.shortName = std::move(filtered);
    controls.shortNameRed = false;
    setModified(editor, hasVehicles(editor.document));
}

void changeFullName(Editor& editor, std::string_view text) {
    EditorControls& controls = editor.document.controls;
    if (text == controls.fullName)
        return;
    controls.fullName.clear();
    std::copy_if(text.begin(), text.end(), std::back_inserter(controls.fullName),
                 [](char c) { return static_cast<unsigned char>(c) >= 0x20; }); // a file has it on one line
    if (controls.shortNameEnabled)
        changeShortName(editor, text);
    setModified(editor, hasVehicles(editor.document));
}

void changeDurability(Editor& editor, int value) {
    EditorControls& controls = editor.document.controls;
    if (value == controls.durability)
        return;
    controls.durability = value;
    updateResistance(editor);
    setModified(editor, hasVehicles(editor.document));
}

std::string doubleName(const Rame& rame) {
    return filterShortName(std::string(StripQuotes(rame.CfgName)) + " - " + rame.FileName);
}

} // namespace zandor
