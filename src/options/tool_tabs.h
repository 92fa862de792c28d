// The tabs of the tool window.
#pragma once

#include "frame/message.h"

#include <span>
#include <string_view>

namespace zandor {

struct ToolTab {
    std::string_view key;
    Message caption;
    const char* french;
    int helpPage = 0;
};

// In the order in which they stand; those that have no widget aren't shown.
std::span<const ToolTab> toolTabs();

} // namespace zandor
