#include "options/windows/options_window.h"

#include "frame/windows/help.h"
#include "frame/windows/place_keeper.h"
#include "frame/windows/qt_text.h"
#include "frame/windows/window_parts.h"
#include "options/messages.h"
#include "options/tool_tabs.h"
#include "verify/windows/verify_tab.h"

#include <QBoxLayout>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>

namespace zandor {

namespace {

constexpr QSize DefaultSize{1000, 680};
constexpr const char *PlaceSection = "Window", *PlacePrefix = "Options"; // in the settings

} // namespace

frmOptions::frmOptions(Editor& editor, VerifyChoices& choices)
    : frame_(editor.frame), TabStrip1_(named(new QTabWidget(this), "TabStrip1")),
      verify_(new VerifyTab(editor, choices, this)) {
    setObjectName("frmOptions");
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(12, 12, 12, 12);
    column->addWidget(TabStrip1_);
    addTab(verify_, "VERIF_FILE");
    connect(verify_, &VerifyTab::closeAsked, this, &QWidget::close);
    connect(verify_, &VerifyTab::catalogueChanged, this, &frmOptions::catalogueChanged);
    connect(verify_, &VerifyTab::helpAsked, this, [this] { emit helpAsked(helpContext::Verify); });
    connect(verify_, &VerifyTab::runStarted, this, [this] { TabStrip1_->tabBar()->setEnabled(false); });
    connect(verify_, &VerifyTab::runEnded, this, &frmOptions::runEnded);
    applyLanguage();
    place_ = new PlaceKeeper(*this, frame_, PlaceSection, PlacePrefix, DefaultSize);
}

// In the order of the table; the help page is the tab's.
void frmOptions::addTab(QWidget* page, std::string_view key) {
    const auto tabs = toolTabs();
    const auto rank = [&](std::string_view wanted) {
        return std::ranges::find(tabs, wanted, &ToolTab::key) - tabs.begin();
    };
    int at = 0;
    while (at < TabStrip1_->count() && rank(fromQt(TabStrip1_->tabBar()->tabData(at).toString())) < rank(key))
        ++at;
    at = TabStrip1_->insertTab(at, page, {});
    TabStrip1_->tabBar()->setTabData(at, toQt(key));
    setHelpContext(*page, tabs[static_cast<std::size_t>(rank(key))].helpPage);
}

void frmOptions::applyLanguage() {
    setWindowTitle(toQt(frame_.text(message::ToolTitle, {{"|1", frame_.state.Title}})));
    for (int i = 0; i < TabStrip1_->count(); ++i) {
        const std::string key = fromQt(TabStrip1_->tabBar()->tabData(i).toString());
        const auto tab = std::ranges::find(toolTabs(), std::string_view(key), &ToolTab::key);
        TabStrip1_->setTabText(i, textOr(frame_, tab->caption, tab->french));
    }
    verify_->applyLanguage();
}

void frmOptions::runEnded() {
    TabStrip1_->tabBar()->setEnabled(true);
    if (closed_)
        deleteLater();
}

void frmOptions::closeEvent(QCloseEvent* event) {
    QWidget::closeEvent(event);
    if (closed_)
        return;
    closed_ = true;
    frame_.profiles.WriteIniValues(place_->values(), frame_.state.IniPath);
    verify_->close();
    if (!verify_->running())
        deleteLater();
}

void frmOptions::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && !verify_->holdsResults()) // which would be gone with the window
        close();
    else
        QWidget::keyPressEvent(event);
}

} // namespace zandor
