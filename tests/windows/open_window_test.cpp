#include "editor/windows/open_window.h"

#include "editor/consist_io.h"
#include "editor/messages.h"
#include "support/fakes.h"
#include "text/decode.h"

#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <QTreeView>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace zandor {
namespace {

using Names = std::vector<std::string>;

class OpenWindowTest : public ::testing::Test, protected TestFrame {
  protected:
    Catalogue catalogue;
    ConsistDocument document;
    Editor editor{frame, catalogue, document};
    std::unique_ptr<frmOpen> window;
    Names opened;
    bool opens = true;

    OpenWindowTest() {
        state.roots.RootMSTS = "C:\\MSTS";
        set("Color1", "12582847"); // 191, 255, 191
        set("Color2", "8388608");  // 0, 0, 128
        files.put(trainsetPath(state.roots.RootMSTS) + "Parc\\loco.eng", "stock");
        catalogue.here().ConsistFiles.clear();
        addConsist("mistral.con", "Le Mistral", "loco");
        addConsist("broken.con", "Ancien train", "gone");
        addConsist("zephyr.con", "Zéphyr", "loco");
        addConsist("aquilon.con", "aquilon", "loco", 2);
        catalogue.here().RamesEnService = {"Mistral.con"};
    }
    void addConsist(const std::string& file, const std::string& name, const std::string& engine,
                    int engines = 1) {
        std::string text = std::string(ConsistSignature) + "\r\n\r\nTrain (\r\nTrainCfg ( x\r\nName ( \"" +
                           name + "\" )\r\n";
        for (int i = 0; i < engines; ++i)
            text += "Engine (\r\nEngineData ( " + engine + " Parc )\r\n)\r\n";
        files.put(consistsPath(state.roots.RootMSTS) + file, encodeConsist(text + ")\r\n)\r\n"));
        catalogue.here().ConsistFiles.push_back(file);
    }
    void addMany(int count) {
        for (int i = 0; i < count; ++i)
            addConsist("train" + std::to_string(i) + ".con", "Train " + std::to_string(i), "loco");
    }

    void slowDown() {
        files.atEachCall = [] { QThread::msleep(1); };
    }

    void build() {
        window = std::make_unique<frmOpen>(
            frame, catalogue,
            [this](const std::string& path) {
                opened.push_back(path);
                return opens && showOutcome(frame, openConsist(editor, path));
            },
            nullptr);
    }
    // The dialog as it stands when everything has been read.
    void show() {
        build();
        window->setModal(true);
        window->show();
        window->activateWindow();
        ASSERT_TRUE(QTest::qWaitFor([this] { return !get<QProgressBar>("ProgressBar1").isVisible(); }));
    }
    template <class Widget> Widget& get(const char* name) {
        auto* found = window->findChild<Widget*>(name);
        if (!found)
            throw std::runtime_error(std::string("no control ") + name);
        return *found;
    }
    QTreeView& list() { return get<QTreeView>("lsvCONSISTS"); }
    std::string label() { return get<QLabel>("Label1").text().toStdString(); }
    std::string text(int row, int column) {
        return list().model()->index(row, column).data().toString().toStdString();
    }
    Names listed() {
        Names names;
        for (int row = 0; row < list().model()->rowCount(); ++row)
            names.push_back(text(row, 0));
        return names;
    }
    std::string selected() {
        return list().currentIndex().siblingAtColumn(0).data().toString().toStdString();
    }
    void clickColumn(int column) {
        QHeaderView& header = *list().header();
        const QPoint at(header.sectionViewportPosition(column) + 20, header.height() / 2);
        QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, at);
    }
    std::string pathOf(const char* file) const { return consistsPath(state.roots.RootMSTS) + file; }
};

TEST_F(OpenWindowTest, TheListTellsEverythingOfEachConsist) {
    show();
    EXPECT_EQ(window->objectName(), "frmOpen");
    EXPECT_EQ(window->windowTitle().toStdString(), frame.text(message::OpenTitle, {{"|1", state.Title}}));
    EXPECT_EQ(listed(), (Names{"aquilon", "Le Mistral", "Zéphyr", "Ancien train"}));
    EXPECT_EQ(text(0, 1), "2 motrices");
    EXPECT_EQ(text(0, 2), "aquilon.con");
    const Names columns{"C_NAME", "C_COMPO", "C_FILE"};
    for (int column = 0; column < 3; ++column)
        EXPECT_EQ(list().model()->headerData(column, Qt::Horizontal, Qt::UserRole).toString().toStdString(),
                  columns[static_cast<std::size_t>(column)]);
    EXPECT_EQ(selected(), "aquilon");
    EXPECT_NE(label().find("aquilon (aquilon.con)"), std::string::npos) << label();
    EXPECT_NE(get<QLabel>("lblCOUNT").text().indexOf("4"), -1);
    const auto tip = [this](int row) {
        return list().model()->index(row, 0).data(Qt::ToolTipRole).toString().toStdString();
    };
    EXPECT_NE(tip(1).find(frame.text(message::TipUsedByService)), std::string::npos);
    EXPECT_NE(tip(0).find(frame.text(message::TipUsedByNoService)), std::string::npos);
    EXPECT_NE(tip(3).find(frame.text(message::TipIncomplete)), std::string::npos);
}

TEST_F(OpenWindowTest, ColoursAreThoseOfTheSettingsAndIncompleteConsistsBoldRed) {
    show();
    EXPECT_EQ(list().palette().color(QPalette::Base), QColor(191, 255, 191));
    for (int column = 0; column < 3; ++column) {
        const auto of = [&](int row, int role) { return list().model()->index(row, column).data(role); };
        EXPECT_EQ(of(0, Qt::ForegroundRole).value<QColor>(), QColor(0, 0, 128));
        EXPECT_FALSE(of(0, Qt::FontRole).value<QFont>().bold());
        EXPECT_EQ(of(3, Qt::ForegroundRole).value<QColor>(), QColor(255, 0, 0));
        EXPECT_TRUE(of(3, Qt::FontRole).value<QFont>().bold());
    }
}

// ---- opening

TEST_F(OpenWindowTest, EveryWayOfOpeningOpensTheSelectedConsist) {
    const std::function<void()> ways[] = {
        [this] {
            const QPoint at = list().visualRect(list().model()->index(2, 2)).center();
            QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, at);
            QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, at);
        },
        [this] {
            QTest::keyClick(&list(), Qt::Key_End);
            QTest::keyClick(&list(), Qt::Key_Home);
            QTest::keyClick(&list(), Qt::Key_Down);
            QTest::keyClick(&list(), Qt::Key_Down);
            QTest::keyClick(&list(), Qt::Key_Enter);
        },
        [this] {
            QTest::keyClicks(&list(), "z");
            QTest::mouseClick(&get<QPushButton>("cmdOPEN"), Qt::LeftButton);
        },
    };
    for (const auto& way : ways) {
        opened.clear();
        initialiseDocument(editor);
        show();
        way();
        EXPECT_EQ(opened, Names{pathOf("zephyr.con")});
        EXPECT_EQ(window->result(), QDialog::Accepted);
        EXPECT_FALSE(window->isVisible());
        EXPECT_TRUE(document.HasFile);
        EXPECT_EQ(document.rame.Name, "Zéphyr");
    }
}

TEST_F(OpenWindowTest, AConsistThatVanishedLeavesTheDialogAndTheStripAsTheyWere) {
    ASSERT_TRUE(openConsist(editor, pathOf("mistral.con")).done);
    show();
    files.deleteFile(pathOf("aquilon.con"));
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ(dialogs.shown.size(), 1u);
    EXPECT_TRUE(window->isVisible());
    EXPECT_EQ(document.rame.Name, "Le Mistral");
    EXPECT_TRUE(document.HasFile);
}

TEST_F(OpenWindowTest, WithoutConsistsThereIsNothingToOpen) {
    catalogue.here().ConsistFiles.clear();
    show();
    EXPECT_EQ(label(), frame.text(message::OpenNone));
    QTest::mouseClick(&get<QPushButton>("cmdOPEN"), Qt::LeftButton);
    QTest::keyClick(&list(), Qt::Key_Return);
    clickColumn(1);
    EXPECT_TRUE(opened.empty());
    EXPECT_TRUE(window->isVisible());
}

// ---- the list

TEST_F(OpenWindowTest, ColumnClicksToggleTheOrderAndKeepTheSelectionInView) {
    addMany(60);
    addConsist("train9a.con", "AAA", "loco", 10);
    show();
    QTest::keyClicks(&list(), "Train 7");
    const std::string chosen = selected();
    struct Case {
        int column;
        const char* first;
    };
    const Case cases[] = {{0, "AAA"}, {0, "Zéphyr"}, {1, "Zéphyr"}, {1, "AAA"}, {2, "aquilon"}};
    for (const Case& c : cases) {
        clickColumn(c.column);
        EXPECT_EQ(text(0, 0), c.first) << c.column;
        EXPECT_EQ(selected(), chosen);
        EXPECT_TRUE(list().viewport()->rect().contains(list().visualRect(list().currentIndex()))) << c.column;
    }
    clickColumn(0);
    clickColumn(0);
    Names names = listed();
    EXPECT_LT(std::ranges::find(names, "Train 9"), std::ranges::find(names, "Train 10"));
    EXPECT_EQ(names[1], "Ancien train") << "red ones stand among the others once the list is sorted";
}

// ---- reading

TEST_F(OpenWindowTest, TheReadingEndsAtOnceWhenTheUserCancelsIt) {
    addMany(300);
    slowDown();
    const std::function<void()> ways[] = {
        [this] { QTest::keyClick(&list(), Qt::Key_Escape); },
        [this] { QTest::mouseClick(&get<QPushButton>("cmdCANCEL"), Qt::LeftButton); },
        [this] { window->close(); },
    };
    for (const auto& way : ways) {
        build();
        QTimer when;
        QObject::connect(&when, &QTimer::timeout, window.get(), [&] {
            if (get<QProgressBar>("ProgressBar1").value() < 1)
                return;
            when.stop();
            QTest::keyClick(&list(), Qt::Key_Return); // there is nothing to open yet
            way();
        });
        when.start(1);
        files.log.clear();
        EXPECT_EQ(window->exec(), QDialog::Rejected);
        EXPECT_LT(files.log.size(), 300u);
        EXPECT_TRUE(opened.empty());
        EXPECT_FALSE(catalogue.here().summariesRead);
        EXPECT_EQ(list().model()->rowCount(), 0);
    }
    show();
    EXPECT_EQ(list().model()->rowCount(), 304) << "the next opening reads again";
}

TEST_F(OpenWindowTest, NothingIsCutInAnyLanguage) {
    for (const char* language : {"Français", "English", "Deutsch", "Italiano", "Español", "Nederlands"}) {
        state.Language = language;
        show();
        window->resize(window->minimumSizeHint());
        QTest::qWait(1);
        EXPECT_LE(window->width(), 640) << language;
        for (const QPushButton* button : window->findChildren<QPushButton*>())
            EXPECT_GE(button->width(), button->sizeHint().width()) << language;
        auto& count = get<QLabel>("lblCOUNT");
        EXPECT_GE(count.width(), count.minimumSizeHint().width()) << language;
    }
}

} // namespace
} // namespace zandor
