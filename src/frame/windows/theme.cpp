#include "frame/windows/theme.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

namespace zandor {

namespace {

struct RoleColour {
    QPalette::ColorRole role;
    QColor colour;
};

constexpr RoleColour Roles[] = {
    {QPalette::Window, {241, 244, 248}},
    {QPalette::WindowText, theme::Ink},
    {QPalette::Base, {255, 255, 255}},
    {QPalette::AlternateBase, {246, 248, 251}},
    {QPalette::Text, theme::Ink},
    {QPalette::Button, {251, 252, 254}},
    {QPalette::ButtonText, theme::Ink},
    {QPalette::Highlight, theme::Accent},
    {QPalette::HighlightedText, {255, 255, 255}},
    {QPalette::ToolTipBase, {255, 255, 255}},
    {QPalette::ToolTipText, theme::Ink},
    {QPalette::PlaceholderText, theme::QuietInk},
    {QPalette::Link, theme::Accent},
};

constexpr QColor DisabledInk{154, 163, 175};

constexpr const char* Sheet = R"(
QFrame[card="true"] { background: white; border: 1px solid #d5dce6; border-radius: 8px; }
QLabel[quiet="true"] { color: #5b6778; }
QLabel[heading="true"] { font-weight: 600; }
QPushButton { border: 1px solid #c3ccd8; border-radius: 6px; padding: 6px 14px; background: #fbfcfe; color: #1f2937; }
QPushButton:hover { background: #eef4fb; border-color: #8fb3d9; }
QPushButton:pressed { background: #dce9f7; }
QPushButton:focus { border: 2px solid #1f5fa0; padding: 5px 13px; }
QPushButton:disabled { color: #9aa3af; background: #f3f5f8; border-color: #dfe4ea; }
QPushButton[primary="true"]:enabled { background: #1f5fa0; border-color: #1f5fa0; color: white; }
QPushButton[primary="true"]:enabled:hover { background: #2a70b8; }
QPushButton[primary="true"]:enabled:pressed { background: #184c80; }
QPushButton[primary="true"]:enabled:focus { border: 2px solid #0b2f56; }
QToolTip { border: 1px solid #c3ccd8; padding: 3px; background: white; color: #1f2937; }
QHeaderView::section { background: #eef2f7; border: none; border-right: 1px solid #d5dce6;
                       border-bottom: 1px solid #d5dce6; padding: 5px 6px; }
QScrollBar:horizontal { height: 14px; background: #e8edf3; border-radius: 7px; margin: 0; }
QScrollBar::handle:horizontal { background: #a9b7c8; border-radius: 5px; min-width: 48px; margin: 2px; }
QScrollBar::handle:horizontal:hover { background: #8698ae; }
QScrollBar:horizontal:focus { background: #d3e2f3; }
QScrollBar::handle:horizontal:focus { background: #1f5fa0; }
QScrollBar::handle:horizontal:disabled { background: transparent; }
QScrollBar::add-line:horizontal, QScrollBar::sub-line:horizontal { width: 0; }
)";

QPalette makePalette() {
    QPalette palette;
    for (const RoleColour& row : Roles)
        palette.setColor(row.role, row.colour);
    for (auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, DisabledInk);
    return palette;
}

} // namespace

void applyTheme(QApplication& application) {
    application.setStyle(QStyleFactory::create("Fusion"));
    application.setPalette(makePalette());
    application.setStyleSheet(Sheet);
}

} // namespace zandor
