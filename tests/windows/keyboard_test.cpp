// The main window by the keyboard alone, its menus, and what comes from outside.
#include "catalogue/messages.h"
#include "windows/window_fixture.h"

#include <QAction>
#include <QMenu>
#include <QShortcut>
#include <QUrl>

namespace zandor {
namespace {

struct KeyboardTest : WindowTest {
    KeyboardTest() {
        window->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
    }
    // What the source of the drag is told that became of the file.
    Qt::DropAction dropFile(const QString& path, Qt::DropActions offered = Qt::CopyAction,
                            const char* onto = nullptr) {
        QWidget& target = onto ? get<QWidget>(onto) : *window;
        QMimeData data;
        data.setUrls({QUrl("https://example.org/a.con"), QUrl::fromLocalFile(path)});
        data.setText(path);
        QDragEnterEvent enter({5, 5}, offered, &data, Qt::LeftButton, Qt::ShiftModifier);
        enter.ignore();
        QApplication::sendEvent(&target, &enter);
        if (!enter.isAccepted())
            return Qt::IgnoreAction;
        QDragMoveEvent move({6, 5}, offered, &data, Qt::LeftButton, Qt::ShiftModifier);
        QApplication::sendEvent(&target, &move);
        EXPECT_EQ(move.dropAction(), enter.dropAction());
        QDropEvent drop({6, 5}, offered, &data, Qt::LeftButton, Qt::ShiftModifier);
        QApplication::sendEvent(&target, &drop);
        QTest::qWait(5);
        return drop.isAccepted() ? drop.dropAction() : Qt::IgnoreAction;
    }
    // Every key that works in the whole window.
    std::vector<std::pair<QString, QKeySequence>> windowKeys() {
        std::vector<std::pair<QString, QKeySequence>> keys;
        for (const QAction* action : window->actions())
            for (const QKeySequence& key : action->shortcuts())
                keys.emplace_back(action->objectName(), key);
        for (const QShortcut* shortcut : window->findChildren<QShortcut*>())
            for (const QKeySequence& key : shortcut->keys())
                keys.emplace_back("shortcut", key);
        return keys;
    }
};

TEST_F(KeyboardTest, AConsistIsMadeWithoutTheMouse) {
    list().setFocus();
    QTest::keyClick(&list(), Qt::Key_Return);                           // BB 9288
    QTest::keyClick(&list(), Qt::Key_Down);                             // CC 6500
    QTest::keyClick(window.get(), Qt::Key_Return, Qt::ControlModifier); // at the end
    strip().setFocus();
    QTest::keyClick(&strip(), Qt::Key_End);
    EXPECT_EQ(selected(), "CC 6500");
    QTest::keyClick(window.get(), Qt::Key_I, Qt::ControlModifier); // one more in front of it
    EXPECT_EQ(vehicles(), (Names{"BB 9288", "CC 6500", "CC 6500"}));
    EXPECT_EQ(document.selected, 1) << "the new one";
    QTest::keyClick(&strip(), Qt::Key_Left);
    QTest::keyClick(&strip(), Qt::Key_Left);
    QTest::keyClick(&strip(), Qt::Key_Left); // not beyond the first
    EXPECT_EQ(selected(), "BB 9288");
    QTest::keyClick(&strip(), Qt::Key_Right, Qt::ControlModifier);
    EXPECT_EQ(vehicles(), (Names{"CC 6500", "BB 9288", "CC 6500"}));
    QTest::keyClick(&strip(), Qt::Key_T, Qt::ControlModifier);
    EXPECT_TRUE(document.Vehicules[1].Flipped);
    QTest::keyClick(&strip(), Qt::Key_Home);
    QTest::keyClick(&strip(), Qt::Key_Delete);
    EXPECT_EQ(vehicles(), (Names{"BB 9288", "CC 6500"}));
    EXPECT_TRUE(get<QLabel>("lblSTATUS").text().contains("BB 9288"));
    EXPECT_TRUE(get<QPushButton>("cmdSAVE").isEnabled());
}

TEST_F(KeyboardTest, TheMenusOpenWithoutAMenuKey) {
    build({"BB 9288"});
    for (const auto& [place, menu] : {std::pair<QWidget*, const char*>{&strip(), "mnuSTRIP"},
                                      std::pair<QWidget*, const char*>{&list(), "mnuSTOCK"}}) {
        place->setFocus();
        QTest::keyClick(place, Qt::Key_F10, Qt::ShiftModifier);
        QWidget* const open = QApplication::activePopupWidget();
        ASSERT_TRUE(open) << menu;
        EXPECT_EQ(open->objectName(), menu);
        open->close();
    }
}

// What edits a line of text on any desktop is no key of ours: where the keyboard is in a box, the box takes
// it.
TEST_F(KeyboardTest, NoKeyOfTheWindowIsOneOfATextBox) {
    QList<QKeySequence> ofBoxes;
    for (const char letter : std::string_view("ABCDEFHKUVWXYZ"))
        ofBoxes += QKeySequence(Qt::CTRL | static_cast<Qt::Key>(letter));
    for (int key = QKeySequence::MoveToNextChar; key <= QKeySequence::DeleteEndOfLine; ++key)
        ofBoxes += QKeySequence::keyBindings(static_cast<QKeySequence::StandardKey>(key));
    for (const auto key : {QKeySequence::Delete, QKeySequence::Backspace, QKeySequence::Cut,
                           QKeySequence::Copy, QKeySequence::Paste, QKeySequence::Undo, QKeySequence::Redo,
                           QKeySequence::SelectAll, QKeySequence::Deselect, QKeySequence::DeleteCompleteLine})
        ofBoxes += QKeySequence::keyBindings(key);
    const auto keys = windowKeys();
    EXPECT_GE(keys.size(), 8u);
    for (const auto& [name, key] : keys)
        EXPECT_FALSE(ofBoxes.contains(key)) << name.toStdString() << " " << key.toString().toStdString();
}

TEST_F(KeyboardTest, TheWheelTurnsOnlyWhatHasTheKeyboard) {
    get<QComboBox>("cmbMATERIEL").setCurrentIndex(1);
    get<QSlider>("Slider1").setValue(500);
    for (const char* name : {"cmbMATERIEL", "Slider1"}) {
        QWidget& turned = get<QWidget>(name);
        const auto value = [&] {
            return get<QComboBox>("cmbMATERIEL").currentIndex() * 10000 + get<QSlider>("Slider1").value();
        };
        for (const bool focused : {false, true}) {
            (focused ? turned : static_cast<QWidget&>(strip())).setFocus();
            const int before = value();
            const QPointF middle = turned.rect().center();
            QWheelEvent wheel(middle, turned.mapToGlobal(middle), {}, {0, -120}, {}, {}, Qt::NoScrollPhase,
                              false);
            QApplication::sendEvent(&turned, &wheel);
            EXPECT_EQ(value() != before, focused) << name;
            EXPECT_EQ(wheel.isAccepted(), focused) << name << ": what is around it scrolls";
        }
        EXPECT_FALSE((turned.focusPolicy() & Qt::WheelFocus) == Qt::WheelFocus) << name;
    }
}

TEST_F(KeyboardTest, TheMenuOffersWhatMakesSense) {
    const auto enabled = [this](const char* name) { return window->findChild<QAction*>(name)->isEnabled(); };
    EXPECT_FALSE(enabled("actREMOVE"));
    EXPECT_FALSE(get<QPushButton>("cmdVEHICLE").isEnabled());
    build({"BB 9288"});
    EXPECT_FALSE(enabled("actREMOVE")) << "none is selected";
    QTest::mouseClick(&strip(), Qt::LeftButton, {}, onVehicle(0));
    for (const char* name : {"actREMOVE", "actFLIP", "actFIND", "actINSERT_BEFORE", "actRENUMBER"})
        EXPECT_TRUE(enabled(name)) << name;
    document.Vehicules[0].Missing = true;
    window->refresh();
    EXPECT_FALSE(enabled("actFLIP"));
    EXPECT_TRUE(enabled("actREMOVE"));
    get<QComboBox>("cmbMATERIEL").setCurrentIndex(2); // no stock
    EXPECT_FALSE(enabled("actINSERT_END"));
}

TEST_F(KeyboardTest, AnotherLanguageIsShownAtOnceAndKept) {
    build({"BB 9288"});
    const QString before = get<QPushButton>("cmdNEW").text();
    window->chooseLanguage("English");
    EXPECT_NE(get<QPushButton>("cmdNEW").text(), before);
    EXPECT_EQ(get<QComboBox>("cmbMATERIEL").itemText(1).toStdString(), test.frame.text(message::ClassDiesel));
    EXPECT_EQ(vehicles().size(), 1u);
    const auto entries = window->findChild<QMenu*>("mnuLANGUAGE")->actions();
    ASSERT_EQ(entries.size(), 6);
    for (const QAction* entry : entries)
        EXPECT_EQ(entry->isChecked(), entry->text() == "English") << entry->text().toStdString();
    window->close();
    EXPECT_EQ(test.setting("Langage"), "English");
}

TEST_F(KeyboardTest, ADroppedConsistOpensAfterTheQuestion) {
    test.files.put("\\given\\given.con",
                   encodeConsist(std::string(ConsistSignature) +
                                 "\r\nTrain (\r\nTrainCfg ( given\r\nEngine (\r\nUiD ( 7 )\r\n"
                                 "EngineData ( bb1 BB )\r\n)\r\n)\r\n)\r\n"));
    build({"CC 6500"});
    document.Modified = true;
    test.dialogs.answers = {answer::Yes, answer::Ok};
    dropFile("/given/given.con");
    EXPECT_EQ(vehicles(), Names{"CC 6500"}) << "the save that was wanted had no name";
    test.dialogs.answers = {answer::No};
    dropFile("/given/given.con");
    EXPECT_EQ(vehicles(), Names{"BB 9288"});
    test.dialogs.shown.clear();
    dropFile("/given/readme.txt");
    EXPECT_TRUE(test.dialogs.shown.empty());
}

// A source that is told of a move deletes its file.
TEST_F(KeyboardTest, ADroppedFileIsNeverMoved) {
    struct Case {
        Qt::DropActions offered;
        Qt::DropAction told;
    };
    const Case cases[] = {{Qt::CopyAction | Qt::MoveAction, Qt::CopyAction},
                          {Qt::CopyAction | Qt::MoveAction | Qt::LinkAction, Qt::CopyAction},
                          {Qt::MoveAction, Qt::IgnoreAction},
                          {Qt::MoveAction | Qt::LinkAction, Qt::IgnoreAction}};
    for (const char* onto : {static_cast<const char*>(nullptr), "tbFULL_NAME", "tbNAME"})
        for (const Case& c : cases)
            EXPECT_EQ(dropFile("/given/given.con", c.offered, onto), c.told) << (onto ? onto : "window");
    EXPECT_EQ(dropFile("/given/readme.txt", Qt::MoveAction, "tbFULL_NAME"), Qt::IgnoreAction);
    EXPECT_EQ(get<QLineEdit>("tbFULL_NAME").text(), "");
}

TEST_F(KeyboardTest, TheWindowComesBackAsItWas) {
    window->resize(1100, 650);
    QTest::qWait(1);
    window->close();
    frmPrincipal next(editor);
    const QSize size = next.size();
    EXPECT_EQ(size, QSize(1100, 650).boundedTo(next.screen()->availableSize()));
    next.show();
    next.setWindowState(Qt::WindowMaximized);
    QTest::qWait(200);
    next.close();
    EXPECT_EQ(test.profiles.ReadIniValue("Window", "MainWidth", state.IniPath), std::to_string(size.width()));
    EXPECT_TRUE(frmPrincipal(editor).isMaximized());
}

} // namespace
} // namespace zandor
