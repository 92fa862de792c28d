// A text of Langues.lng by its number. Each room names those that it uses in its own messages.h.
#pragma once

namespace zandor {

struct Message {
    int number = 0;
    bool operator==(const Message&) const = default;
};

} // namespace zandor
