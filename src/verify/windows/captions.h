// The captions of a window, each with a letter of its own.
#pragma once

#include "frame/alert.h"
#include "frame/windows/qt_text.h"
#include "frame/windows/window_parts.h"

#include <QLineEdit>
#include <QShortcut>
#include <QString>

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace zandor {

// Captions that are seen together are collected, and then put on: the first ones keep their letters.
class Captions {
  public:
    using Put = std::function<void(const QString&)>;

    explicit Captions(const Frame& frame) : frame_(frame) {}

    void add(Message message, const char* french, Put put) {
        rows_.push_back({textOr(frame_.language, message, french), std::move(put)});
    }
    template <class Button> void add(Button* button, Message message, const char* french) {
        add(message, french, [button](const QString& text) { button->setText(text); });
    }
    void put() {
        std::vector<std::string*> texts;
        for (auto& [text, put] : rows_)
            texts.push_back(&text);
        makeMnemonicsUnique(texts);
        for (const auto& [text, put] : rows_)
            put(toQt(text));
    }

  private:
    const Frame& frame_;
    std::vector<std::pair<std::string, Put>> rows_;
};

// Escape empties a line that holds a text; in an empty one it is the window's.
inline void clearByEscape(QLineEdit& line) {
    auto* key = new QShortcut(Qt::Key_Escape, &line, nullptr, nullptr, Qt::WidgetShortcut);
    key->setEnabled(false);
    QObject::connect(&line, &QLineEdit::textChanged, key,
                     [key](const QString& text) { key->setEnabled(!text.isEmpty()); });
    QObject::connect(key, &QShortcut::activated, &line, &QLineEdit::clear);
}

} // namespace zandor
