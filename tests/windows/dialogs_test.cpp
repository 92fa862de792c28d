// The frame's windows under the user's keys and mouse.
#include "frame/windows/alert.h"
#include "frame/windows/confirmation.h"
#include "frame/windows/folder_window.h"
#include "frame/windows/help.h"
#include "frame/windows/help_window.h"
#include "frame/windows/progress_window.h"
#include "frame/windows/qt_dialogs.h"
#include "frame/windows/question.h"
#include "frame/windows/window_parts.h"
#include "support/fakes.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScreen>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

#include <atomic>

namespace zandor {
namespace {

// ---- what a user does

template <class Widget> Widget& part(QWidget& window, const char* name) {
    auto* found = window.findChild<Widget*>(name);
    if (!found)
        throw std::runtime_error(std::string("no control ") + name);
    return *found;
}

void press(QWidget& window, const char* name) {
    QTest::mouseClick(&part<QPushButton>(window, name), Qt::LeftButton);
}

QWidget& focused(QWidget& window) {
    return window.focusWidget() ? *window.focusWidget() : window;
}

// Runs in the next modal window, once it is up.
void inModalWindow(std::function<void(QWidget&)> action) {
    QTimer::singleShot(10, qApp, [action = std::move(action)] {
        QWidget* window = QApplication::activeModalWidget();
        ASSERT_TRUE(window);
        action(*window);
    });
}

// The letter behind the "&" of the button's caption, with Alt.
void pressLetterOf(QWidget& window, const char* name) {
    const QString caption = part<QAbstractButton>(window, name).text();
    QTest::keyClick(&focused(window), caption[caption.indexOf(u'&') + 1].toLower().toLatin1(),
                    Qt::AltModifier);
}

struct FrameWindow : ::testing::Test {
    TestFrame test;
    AppState& state = test.state;

    static frmHelp* shownHelp() {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* found = qobject_cast<frmHelp*>(window); found && found->isVisible())
                return found;
        return nullptr;
    }
};

// ---- messages

struct AlertWindow : FrameWindow {
    CHelp help{test.state, test.profiles, test.processes};
    QtDialogs dialogs{test.state, test.profiles, &help};

    int show(int style, std::function<void(QWidget&)> action, const std::string& text = "text") {
        inModalWindow(std::move(action));
        return dialogs.ShowMessage(text, style, "title");
    }
    static auto key(Qt::Key key) {
        return [key](QWidget& window) { QTest::keyClick(&focused(window), key); };
    }
    static auto button(const char* name) {
        return [name](QWidget& window) { press(window, name); };
    }
    static auto letter(const char* name) {
        return [name](QWidget& window) { pressLetterOf(window, name); };
    }
};

TEST_F(AlertWindow, KeysAndButtonsGiveTheAnswersOfTheStyle) {
    struct Case {
        int style;
        std::function<void(QWidget&)> action;
        int answer;
    };
    const Case cases[] = {
        {style::Ok, key(Qt::Key_Escape), answer::Ok},
        {style::OkCancel, key(Qt::Key_Escape), answer::Cancel},
        {style::OkCancel, key(Qt::Key_Enter), answer::Ok},
        {style::OkCancel + 16384, letter("Command2"), answer::Cancel},
        {style::AbortRetryIgnore + 512, key(Qt::Key_Return), answer::Ignore},
        {style::AbortRetryIgnore, button("Command2"), answer::Retry},
        {style::YesNoCancel, letter("Command2"), answer::No},
        {style::YesNoCancel, [](QWidget& window) { window.close(); }, answer::Cancel},
        {style::YesNo + style::Question, button("Command2"), answer::No},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(show(c.style, c.action), c.answer) << c.style;
        EXPECT_EQ(state.LastAnswer, std::to_string(c.answer));
    }
}

TEST_F(AlertWindow, AQuestionWithoutAHarmlessAnswerWaitsForOne) {
    const int given = show(style::YesNo + style::Question, [](QWidget& window) {
        QTest::keyClick(&focused(window), Qt::Key_Escape);
        EXPECT_TRUE(window.isVisible());
        EXPECT_FALSE(window.findChild<QWidget*>("Command3"));
        press(window, "Command1");
    });
    EXPECT_EQ(given, answer::Yes);
}

TEST_F(AlertWindow, ALongPathStaysOnTheScreenAndIsCopiedAsItIs) {
    const std::string path = "C:\\" + std::string(900, 'x') + "\\a.con";
    show(
        style::Ok,
        [&](QWidget& window) {
            EXPECT_LT(window.width(), 900);
            const auto& text = part<WrappedText>(window, "Label1");
            EXPECT_GE(text.viewport()->height(), text.document()->size().height()) << "the text is cut";
            QTest::keyClick(&focused(window), Qt::Key_C, Qt::ControlModifier);
            QTest::keyClick(&focused(window), Qt::Key_Escape);
        },
        path);
    EXPECT_EQ(QApplication::clipboard()->text().toStdString(), path);
}

TEST_F(AlertWindow, AnEndlessTextScrollsAndItsButtonsStayOnTheScreen) {
    std::string text;
    for (int line = 0; line < 400; ++line)
        text += "line " + std::to_string(line) + "\r\n";
    show(
        style::Ok,
        [](QWidget& window) {
            EXPECT_LT(window.height(), window.screen()->availableGeometry().height());
            EXPECT_TRUE(part<WrappedText>(window, "Label1").scrolls());
            press(window, "Command1");
        },
        text);
}

TEST_F(AlertWindow, TheHelpButtonOpensThePageAndTheMessageStays) {
    inModalWindow([](QWidget& window) {
        press(window, "Command4");
        EXPECT_TRUE(window.isVisible());
        press(window, "Command1");
    });
    EXPECT_EQ(dialogs.ShowMessage("text", style::YesNo + 16384, "title", {}, helpContext::Saving),
              answer::Yes);
    ASSERT_TRUE(shownHelp());
    EXPECT_EQ(shownHelp()->page(), "1008");
    inModalWindow([](QWidget& window) {
        press(window, "Command4");
        press(window, "Command1");
    });
    dialogs.ShowMessage("text", style::Ok + 16384, "title", "\\program\\Zandor.hlp", 5);
    EXPECT_EQ(test.processes.opened.size(), 1u);
}

// ---- help

struct HelpWindow : FrameWindow {
    CHelp help{test.state, test.profiles, test.processes};
    static bool exists(const QString& folder, int context) {
        return QFile::exists(QString(":/help/%1/%2.md").arg(folder).arg(context));
    }
};

TEST_F(HelpWindow, EveryContextHasAPageInBothLanguagesAndEveryLinkLeadsSomewhere) {
    for (const int context :
         {helpContext::Main, helpContext::OpenConsist, helpContext::Messages, helpContext::Folders,
          helpContext::Stock, helpContext::Couplings, helpContext::Saving, helpContext::Verify,
          helpContext::Settings, helpContext::Keyboard}) {
        EXPECT_TRUE(exists("fr", context)) << context;
        EXPECT_TRUE(exists("en", context)) << context;
    }
    const QRegularExpression link("\\]\\(([^)]+)\\)");
    int links = 0;
    for (const char* folder : {":/help/fr/", ":/help/en/"})
        for (const QString& page : QDir(folder).entryList()) {
            QFile file(folder + page);
            ASSERT_TRUE(file.open(QIODevice::ReadOnly));
            const QString text = QString::fromUtf8(file.readAll());
            for (auto match = link.globalMatch(text); match.hasNext(); ++links) {
                const QString target = match.next().captured(1);
                EXPECT_TRUE(QFile::exists(folder + target)) << page.toStdString() << target.toStdString();
            }
        }
    EXPECT_GT(links, 20);
}

TEST_F(HelpWindow, GoesBackAndForwardAndFollowsTheLanguage) {
    help.Show(helpContext::Main);
    frmHelp* window = shownHelp();
    ASSERT_TRUE(window);
    auto& browser = part<QTextBrowser>(*window, "txtHELP");
    EXPECT_TRUE(browser.toPlainText().startsWith("La fenêtre principale"));
    press(*window, "cmdCONTENTS");
    EXPECT_EQ(window->page(), "contents");
    press(*window, "cmdBACK");
    EXPECT_EQ(window->page(), "1001");
    press(*window, "cmdFORWARD");
    EXPECT_EQ(window->page(), "contents");
    help.Show(helpContext::Main);
    state.Language = "Deutsch";
    help.applyLanguage();
    EXPECT_TRUE(browser.toPlainText().startsWith("The main window"));
    QTest::keyClick(&focused(*window), Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(HelpWindow, AHelpFileBesideTheProgramGoesToTheDesktopsViewer) {
    state.HelpFile = "\\program\\Zandor.chm";
    help.Show(helpContext::Main);
    EXPECT_EQ(test.processes.opened, (std::vector<std::string>{test.files.nativePath(state.HelpFile)}));
    EXPECT_FALSE(shownHelp());
    test.processes.works = false;
    help.Show(helpContext::Main);
    EXPECT_TRUE(shownHelp()) << "without a viewer the program's own pages serve";
}

TEST_F(HelpWindow, F1OpensThePageOfItsWindow) {
    help.serveF1();
    QWidget window;
    QPushButton button(&window);
    setHelpContext(window, helpContext::Couplings);
    window.show();
    button.setFocus();
    QTest::keyClick(&button, Qt::Key_F1);
    ASSERT_TRUE(shownHelp());
    EXPECT_EQ(shownHelp()->page(), "1006");
    QTest::keyClick(&focused(*shownHelp()), Qt::Key_F1);
    EXPECT_EQ(shownHelp()->page(), "contents");
}

// ---- questions

TEST_F(FrameWindow, TheQuestionForTheOtherFolderIsAskedUntilTheBoxIsChecked) {
    state.roots.RootTStore = "C:\\Store";
    bool ask = false;
    frmQuestion window(test.frame, ask);
    EXPECT_TRUE(ask);
    window.show();
    EXPECT_TRUE(part<WrappedText>(window, "Label1").toPlainText().contains("Store"));
    QTest::keyClick(&part<QCheckBox>(window, "chkShowWindow"), Qt::Key_Space);
    EXPECT_FALSE(ask);
    press(window, "cmdLOAD");
    EXPECT_EQ(window.result(), QDialog::Accepted);
    window.show();
    QTest::keyClick(&focused(window), Qt::Key_Escape);
    EXPECT_EQ(window.result(), QDialog::Rejected);
}

TEST_F(FrameWindow, AThumbnailIsOnlyReplacedWhenThatWasConfirmed) {
    struct Case {
        const char* option;
        Replacement answer;
    };
    for (const Case& c :
         {Case{"optRENAME", Replacement::ReplaceThis}, Case{"optNO_RENAME", Replacement::KeepThis},
          Case{"optALL_RENAME", Replacement::ReplaceAll}, Case{"optALL_NO_RENAME", Replacement::KeepAll}})
        for (const bool confirmed : {true, false}) {
            frmConfirmation window(test.frame, "C:\\MSTS\\a.bmp");
            window.show();
            QTest::mouseClick(&part<QRadioButton>(window, c.option), Qt::LeftButton, {}, QPoint(8, 8));
            QTest::keyClick(&focused(window), confirmed ? Qt::Key_Return : Qt::Key_Escape);
            EXPECT_EQ(window.answer(), confirmed ? c.answer : Replacement::KeepThis) << c.option;
        }
}

// ---- progress

TEST_F(FrameWindow, ClosingTheWindowOfAReloadStopsItAtItsNextStep) {
    for (const bool byKey : {true, false}) {
        QtProgress progress;
        frmProgress window(test.frame);
        int steps = 0;
        const bool whole = window.run(progress, [&] {
            for (; progress.yield() && steps < 1000; ++steps) {
                if (steps == 3 && byKey)
                    QTest::keyClick(&window, Qt::Key_Escape);
                else if (steps == 3)
                    window.close();
            }
            EXPECT_TRUE(window.isVisible() && state.ProgressUp) << "it stays until the reload has stopped";
        });
        EXPECT_FALSE(state.ProgressUp);
        EXPECT_TRUE(progress.yield()) << "no window is left that could end an operation";
        EXPECT_FALSE(whole);
        EXPECT_EQ(steps, 4);
        EXPECT_FALSE(window.isVisible());
    }
}

// ---- folders

struct FolderWindows : FrameWindow {
    // shared with the reads, which may outlast the test
    std::shared_ptr<std::atomic<bool>> slow = std::make_shared<std::atomic<bool>>(false);
    FolderWindows() {
        for (const char* file :
             {"C:\\MSTS\\ROUTES\\a", "C:\\MSTS\\TRAINS\\a", "C:\\Games\\a", "\\media\\cd\\a"})
            test.files.put(file, "");
        state.roots.RootMSTS = "C:\\MSTS";
        state.EditingMstsPath = true;
    }
    // Each read gets a copy, as it would a disk of its own.
    DiskMaker disks() {
        return [waits = slow, copy = test.files] {
            while (*waits)
                QThread::msleep(5);
            return std::make_shared<MemoryFileSystem>(copy);
        };
    }
    static bool waitForRow(FolderList& list, const QString& name) {
        return QTest::qWaitFor([&] { return rowOf(list, name) >= 0; }, 3000);
    }
    static int rowOf(FolderList& list, const QString& name) {
        for (int row = 0; row < list.count(); ++row)
            if (list.item(row)->text().trimmed() == name)
                return row;
        return -1;
    }
    static void doubleClick(FolderList& list, const QString& name) {
        const QPoint at = list.visualItemRect(list.item(rowOf(list, name))).center();
        QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, at);
    }
};

TEST_F(FolderWindows, ADoubleClickGoesToAFolderAndOkKeepsIt) {
    frmPathMSTS window(test.frame, nullptr, disks());
    window.show();
    auto& list = part<FolderList>(window, "LstDir");
    auto& ok = part<QPushButton>(window, "cmdOK");
    EXPECT_FALSE(ok.isEnabled());
    ASSERT_TRUE(waitForRow(list, "TRAINS"));
    doubleClick(list, "TRAINS");
    EXPECT_TRUE(ok.isEnabled());
    EXPECT_EQ(part<QLabel>(window, "lblCHEMIN").text().toStdString(),
              test.files.nativePath("C:\\MSTS\\TRAINS"));
    QTest::keyClick(&list, Qt::Key_Backspace);
    QTest::keyClick(&list, Qt::Key_Backspace);
    ASSERT_TRUE(waitForRow(list, "Games"));
    list.setCurrentRow(rowOf(list, "Games"));
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_TRUE(window.isVisible()) << "Enter in the list opens a folder";
    EXPECT_EQ(state.roots.RootMSTS, "C:\\MSTS");
    press(window, "cmdOK");
    EXPECT_EQ(state.roots.RootMSTS, "C:\\Games");
    EXPECT_FALSE(window.isVisible());
}

TEST_F(FolderWindows, ADriveLeadsToItsRootAndCancelKeepsNothing) {
    frmPathMSTS window(test.frame, nullptr, disks());
    window.show();
    auto& drives = part<QComboBox>(window, "LstLecteur");
    ASSERT_TRUE(QTest::qWaitFor([&] { return drives.count() > 1; }, 3000));
    drives.setFocus();
    QTest::keyClick(&drives, Qt::Key_End);
    EXPECT_EQ(part<QLabel>(window, "lblCHEMIN").text().toStdString(), test.files.nativePath("\\media\\cd"));
    press(window, "cmdCANCEL");
    EXPECT_EQ(state.roots.RootMSTS, "C:\\MSTS");
}

TEST_F(FolderWindows, AFolderThatDoesNotAnswerKeepsNobodyWaiting) {
    *slow = true;
    {
        frmPathMSTS window(test.frame, nullptr, disks());
        window.show();
        auto& list = part<FolderList>(window, "LstDir");
        QTest::qWait(30);
        EXPECT_EQ(list.count(), 3) << "the way to the folder, and the sign that it is being read";
        QTest::keyClick(&list, Qt::Key_Backspace);
        *slow = false;
        ASSERT_TRUE(waitForRow(list, "Games"));
        QTest::qWait(60);
        EXPECT_EQ(rowOf(list, "TRAINS"), -1) << "the answer for the folder that was left is no longer wanted";
        *slow = true;
        QTest::keyClick(&list, Qt::Key_Backspace);
    }
    *slow = false; // what still waits ends without its window
    QTest::qWait(60);
}

} // namespace
} // namespace zandor
