// The verifier's tab as a user works with it: passes, filters, corrections, moving and deleting, the editor.
#include "options/windows/options_window.h"
#include "verify/messages.h"
#include "verify/windows/file_view.h"
#include "verify/windows/report_pane.h"
#include "verify/windows/result_view.h"
#include "windows/window_fixture.h"

#include <QCheckBox>
#include <QPointer>
#include <QProgressBar>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

namespace zandor {
namespace {

constexpr const char* Root = "C:\\MSTS";

std::string wagonText(const std::string& name, const std::string& type) {
    return encodeConsist(std::string(ConsistSignature) + "\r\n\r\nWagon ( " + name + "\r\nType ( " + type +
                         " )\r\nSize ( 3m 4m 18.5m )\r\nMass ( 80t )\r\nCoupling (\r\nType ( Chain )\r\n)\r\n"
                         "BrakeSystemType ( EP )\r\n)\r\n");
}

struct VerifyTest : ::testing::Test {
    TestFrame test;
    Catalogue catalogue;
    ConsistDocument document;
    Editor editor{test.frame, catalogue, document};
    VerifyChoices choices{VerifiedKind::Wagons, {.CheckName = true, .CheckDuplicates = true}};
    QPointer<frmOptions> window;
    int changes = 0; // of the catalogue, told to the main window

    VerifyTest() {
        test.state.Language = "English";
        test.state.roots.RootMSTS = Root;
        test.state.Optimize = test.state.PrintGreen = true;
        test.files.put(consistsPath(Root) + "empty.txt", "");
        test.files.put(test.state.ProgramFolder + "\\Skrivo", "");
        test.dialogs.defaultAnswer = answer::Yes;
    }
    ~VerifyTest() override { delete window; }

    // Wagons w0, w1 ... of the folder F; the odd ones have a faulty type.
    void putWagons(int count) {
        for (int i = 0; i < count; ++i) {
            const std::string name = "w" + std::to_string(i);
            test.files.put(wagonPath(name), wagonText(name, i % 2 ? "Fright" : "Freight"));
        }
    }
    static std::string wagonPath(const std::string& name) {
        return trainsetPath(Root) + "F\\" + name + ".wag";
    }

    void open() {
        LoadCatalogue(test.frame, catalogue, ReadOnlyLoad);
        initialiseDocument(editor);
        window = new frmOptions(editor, choices);
        QObject::connect(window, &frmOptions::catalogueChanged, window, [this] { ++changes; });
        window->resize(1000, 700);
        window->show();
        window->activateWindow();
        QTest::qWait(1);
    }
    template <class Widget> Widget& get(const char* name) {
        auto* found = window->findChild<Widget*>(name);
        if (!found)
            throw std::runtime_error(std::string("no control ") + name);
        return *found;
    }
    ResultView& list(const char* name) { return get<ResultView>(name); }
    ResultView& invalid() { return list("lstFILES_INVALIDES"); }
    void press(const char* button) { QTest::mouseClick(&get<QPushButton>(button), Qt::LeftButton); }
    void verifyAll() {
        list("lstFILES").setFocus();
        QTest::keyClick(&list("lstFILES"), Qt::Key_A, Qt::ControlModifier);
        press("cmdVERIF");
    }
    void openVerified(int wagons) {
        putWagons(wagons);
        open();
        verifyAll();
    }
    std::vector<std::string> shown(const char* name, int column = 0) {
        std::vector<std::string> texts;
        for (const ListRow& row : list(name).rows().rows())
            texts.push_back(row.texts[static_cast<std::size_t>(column)].toStdString());
        return texts;
    }
    // Acts once, in the midst of the next pass.
    void duringPass(std::function<void()> act) {
        auto* looking = new QTimer(window);
        QObject::connect(looking, &QTimer::timeout, window, [looking, act = std::move(act)] {
            looking->deleteLater();
            looking->stop();
            act();
        });
        looking->start(0);
    }
    // Acts in the next dialog, once it is up.
    void inDialog(std::function<void(QWidget*)> act) {
        auto* waiting = new QTimer(window);
        QObject::connect(waiting, &QTimer::timeout, window, [waiting, act = std::move(act)] {
            QWidget* const dialog = QApplication::activeModalWidget();
            if (!dialog)
                return;
            waiting->deleteLater();
            waiting->stop();
            act(dialog);
        });
        waiting->start(10);
    }
    bool isOn(const char* name) { return get<QWidget>(name).isEnabled(); }
};

TEST_F(VerifyTest, APassFillsTheListsAndSaysWhatItFound) {
    openVerified(6);
    EXPECT_EQ(shown("lstFILES_INVALIDES"), (Names{"w1.wag", "w3.wag", "w5.wag"}));
    EXPECT_EQ(get<QTabWidget>("tbsVERIF").currentIndex(), 1) << "the results";
    EXPECT_TRUE(get<QWidget>("fmINVALIDE").isVisible());
    EXPECT_FALSE(isOn("optDOUBLONS"));
    EXPECT_EQ(get<QLabel>("lblDossier").text(), "( TRAINSET\\F\\w1.wag )");
    EXPECT_EQ(get<FileView>("txtFILE").markedLine(), 4);
    ASSERT_FALSE(test.dialogs.shown.empty());
    EXPECT_NE(test.dialogs.lastText().find('3'), std::string::npos) << "the closing report counts them";
    EXPECT_TRUE(isOn("cmdSAVE"));
    EXPECT_EQ(get<QPushButton>("cmdVERIF").text().remove('&'), "Check");
}

TEST_F(VerifyTest, TheBoxesFollowTheKindOfFile) {
    choices.options = {.CheckName = true, .CheckTextures = true, .CheckSounds = true};
    putWagons(1);
    test.files.put(consistsPath(Root) + "a.con", "x");
    open();
    EXPECT_TRUE(isOn("chkRepairSound"));
    QTest::mouseClick(&get<QCheckBox>("chkSONS"), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_FALSE(isOn("chkRepairSound")) << "only with the sounds";
    get<QRadioButton>("optRAMES").click();
    EXPECT_EQ(shown("lstFILES"), (Names{"a.con"}));
    for (const char* off : {"chkSHAPES", "chkSONS", "chkDOUBLONS", "chkRepairQuotes", "chkRepairSound"})
        EXPECT_FALSE(isOn(off)) << off;
    EXPECT_TRUE(isOn("chkSHORTNAME"));
    EXPECT_FALSE(get<QCheckBox>("chkSHAPES").isChecked());
    get<QRadioButton>("optMOTRICES").click();
    EXPECT_EQ(list("lstFILES").rows().rowCount(), 0);
    for (const char* off : {"chkSELECT", "chkDESELECT", "cmdVERIF", "cmdEditeur", "chkSHORTNAME"})
        EXPECT_FALSE(isOn(off)) << "nothing to check: " << off;
}

TEST_F(VerifyTest, TheFilterNarrowsTheCandidatesAndAllOfThemAreSelectedAtOnce) {
    putWagons(30);
    open();
    EXPECT_FALSE(isOn("cmdVERIF"));
    QTest::keyClick(window, Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(&get<QLineEdit>("tbFILTER"), "W1");
    EXPECT_EQ(list("lstFILES").rows().rowCount(), 11) << "w1 and w10 to w19";
    get<QCheckBox>("chkSELECT").click();
    EXPECT_EQ(list("lstFILES").chosenCount(), 11);
    EXPECT_TRUE(isOn("cmdVERIF"));
    EXPECT_FALSE(isOn("cmdEditeur")) << "none of them is the current one";
    QTest::keyClicks(&get<QLineEdit>("tbFILTER"), "9");
    EXPECT_EQ(list("lstFILES").chosenCount(), 1) << "what is still seen stays selected";
    EXPECT_TRUE(get<QCheckBox>("chkSELECT").isChecked());
    get<QCheckBox>("chkDESELECT").click();
    EXPECT_FALSE(isOn("cmdVERIF"));
    QTest::keyClick(&get<QLineEdit>("tbFILTER"), Qt::Key_Escape);
    EXPECT_EQ(list("lstFILES").rows().rowCount(), 30);
    EXPECT_TRUE(window->isVisible()) << "Escape has emptied the line first";
}

TEST_F(VerifyTest, APassIsStoppedAndWhatItFoundIsShown) {
    putWagons(12000);
    open();
    bool off = true, bar = false;
    duringPass([&] {
        for (const char* name : {"lstFILES", "optRAMES", "chkSHORTNAME", "chkSELECT", "cmdEditeur", "cmdHELP",
                                 "cmdCANCEL", "tbsVERIF"})
            off = off && !isOn(name);
        off = off && !get<QTabWidget>("TabStrip1").tabBar()->isEnabled();
        bar = get<QProgressBar>("ProgressBar1").isVisible();
        EXPECT_EQ(get<QPushButton>("cmdVERIF").text().remove('&'), "Stop");
        press("cmdVERIF");
        EXPECT_FALSE(isOn("cmdVERIF")) << "until the pass has ended";
    });
    verifyAll();
    EXPECT_TRUE(off) << "all other controls are off during a pass";
    EXPECT_TRUE(bar);
    EXPECT_LT(invalid().rows().rowCount(), 6000);
    for (const char* on : {"lstFILES", "optRAMES", "cmdHELP", "cmdCANCEL", "cmdVERIF", "tbsVERIF"})
        EXPECT_TRUE(isOn(on)) << on;
    EXPECT_FALSE(test.dialogs.shown.empty()) << "the closing report";
}

TEST_F(VerifyTest, ClosingTheWindowEndsThePass) {
    putWagons(12000);
    open();
    const QPointer<frmOptions> watched = window;
    duringPass([this] { window->close(); });
    verifyAll();
    EXPECT_TRUE(test.dialogs.shown.empty()) << "nobody is there to read a report";
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTest::qWait(1);
    EXPECT_FALSE(watched);
    EXPECT_NE(test.profiles.ReadIniValue("Window", "OptionsWidth", test.state.IniPath), "");
}

TEST_F(VerifyTest, FaultsAreFilteredByKindAndByWords) {
    putWagons(6);
    test.files.put(wagonPath("odd"), wagonText("even", "Freight"));
    test.files.put(trainsetPath(Root) + "G\\w0.wag", wagonText("w0", "Freight"));
    open();
    verifyAll();
    EXPECT_EQ(invalid().rows().rowCount(), 4);
    const auto kinds = get<QWidget>("kinds").findChildren<QToolButton*>();
    ASSERT_EQ(kinds.size(), 4) << "all, names, values, duplicates";
    QTest::mouseClick(kinds[1], Qt::LeftButton);
    EXPECT_EQ(shown("lstFILES_INVALIDES"), (Names{"odd.wag"}));
    for (QToolButton* kind : get<QWidget>("kinds").findChildren<QToolButton*>())
        if (kind->isVisible() && kind->text().startsWith("Duplicate"))
            kind->click();
    EXPECT_TRUE(get<QWidget>("fmDOUBLONS").isVisible()) << "a kind brings up its list";
    EXPECT_TRUE(get<ReportView>("rtbLISTE_DOUBLONS").toPlainText().contains("G\\w0.wag"));
    EXPECT_TRUE(get<ReportView>("rtbLISTE_DOUBLONS").textCursor().atStart())
        << "it is read from its beginning";
    get<QRadioButton>("optINVALIDES").click();
    EXPECT_EQ(invalid().rows().rowCount(), 4) << "another list ends the filter";
    QTest::keyClick(window, Qt::Key_F, Qt::ControlModifier);
    QTest::keyClicks(&get<QLineEdit>("tbSEARCH"), "W3");
    QTest::keyClick(&get<QLineEdit>("tbSEARCH"), Qt::Key_Return);
    EXPECT_EQ(shown("lstFILES_INVALIDES"), (Names{"w3.wag"}));
}

TEST_F(VerifyTest, TheNextFaultIsOneKeyAwayAndComesRoundToTheFirst) {
    test.files.put(wagonPath("a"), wagonText("other", "Fright"));
    test.files.put(wagonPath("b"), wagonText("b", "Fright"));
    open();
    verifyAll();
    const auto place = [this] {
        return std::pair(invalid().currentNumber(), list("lstLINES_ERROR").currentNumber());
    };
    EXPECT_EQ(place(), std::pair(0, 0));
    for (const auto& expected : {std::pair(0, 1), std::pair(1, 0), std::pair(0, 0)}) {
        QTest::keyClick(window, Qt::Key_F8);
        EXPECT_EQ(place(), expected);
    }
}

TEST_F(VerifyTest, AFileThatLacksAKeyAloneCanBeDeletedToo) {
    std::string text = wagonText("bare", "Freight");
    text[text.find(std::string("S\0i\0z", 5))] = 'W'; // in UTF-16
    test.files.put(wagonPath("bare"), text);
    open();
    verifyAll();
    ASSERT_EQ(shown("lstFILES_INVALIDES"), (Names{"bare.wag"}));
    QTest::keyClick(&invalid(), Qt::Key_Delete);
    EXPECT_FALSE(test.files.fileExists(wagonPath("bare")));
    EXPECT_EQ(invalid().rows().rowCount(), 0);
}

TEST_F(VerifyTest, SeveralFilesAreDeletedAfterOneQuestionAndTheListGoesOnBehindThem) {
    openVerified(12);
    test.dialogs.shown.clear();
    invalid().showRow(1);
    QTest::keyClick(&invalid(), Qt::Key_Down, Qt::ShiftModifier);
    test.dialogs.whenShown = [this] {
        EXPECT_EQ(get<QPushButton>("cmdVERIF").text().remove('&'), "Check") << "nothing to stop yet";
        EXPECT_FALSE(isOn("cmdVERIF"));
    };
    QTest::keyClick(&invalid(), Qt::Key_Delete);
    test.dialogs.whenShown = nullptr;
    EXPECT_EQ(test.dialogs.shown.size(), 1u) << test.dialogs.lastText();
    EXPECT_FALSE(test.files.fileExists(wagonPath("w11")));
    EXPECT_FALSE(test.files.fileExists(wagonPath("w3")));
    EXPECT_EQ(shown("lstFILES_INVALIDES"), (Names{"w1.wag", "w5.wag", "w7.wag", "w9.wag"}));
    EXPECT_EQ(invalid().currentNumber(), 1) << "the one behind them";
    EXPECT_EQ(list("lstFILES").rows().rowCount(), 10) << "there is nothing to check any more";
    EXPECT_EQ(changes, 1);
    test.dialogs.defaultAnswer = answer::No;
    QTest::keyClick(&invalid(), Qt::Key_Delete);
    EXPECT_EQ(invalid().rows().rowCount(), 4);
    EXPECT_EQ(changes, 1);
}

TEST_F(VerifyTest, TheLastFileLeavesEmptyLabelsAndButtonsThatAreOff) {
    openVerified(2);
    press("cmdSAVE"); // the file dialog is cancelled
    EXPECT_EQ(invalid().rows().rowCount(), 1);
    test.dialogs.saveFile = test.state.BackupDir + "Wagons\\w1.wag";
    press("cmdSAVE");
    EXPECT_TRUE(test.files.fileExists(*test.dialogs.saveFile));
    EXPECT_EQ(invalid().rows().rowCount(), 0);
    for (const char* off : {"cmdSAVE", "cmdDELETE", "cmdCORRECT", "cmdEDIT", "cmdNEXT"})
        EXPECT_FALSE(isOn(off)) << off;
    for (const char* label : {"lblSelection", "lblDossier", "lblERREURS"})
        EXPECT_EQ(get<QLabel>(label).text(), "") << label;
}

TEST_F(VerifyTest, AValueIsCorrectedByTheKeyboardAndTheFileLeavesTheList) {
    openVerified(4);
    test.dialogs.shown.clear();
    inDialog([this](QWidget* dialog) {
        QTimer::singleShot(200, dialog, [dialog] { dialog->close(); }); // if it is still there
        auto& offered = *dialog->findChild<QComboBox*>("cmbREPLACE");
        EXPECT_EQ(dialog->findChild<QLineEdit*>("tbVALUE")->text(), "Fright");
        EXPECT_EQ(offered.count(), 4) << "the types of wagon";
        EXPECT_EQ(dialog->focusWidget()->objectName(), "tbNewValue");
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
        EXPECT_EQ(test.dialogs.shown.size(), 1u) << "an empty value is refused";
        QTest::keyClicks(dialog->focusWidget(), "Freight");
        QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
    });
    QTest::keyClick(&invalid(), Qt::Key_Return);
    std::string bytes;
    test.files.readFile(wagonPath("w1"), bytes);
    EXPECT_EQ(bytes, wagonText("w1", "Freight")) << "nothing else has changed";
    EXPECT_EQ(shown("lstFILES_INVALIDES"), (Names{"w3.wag"}));
    EXPECT_EQ(changes, 1);
}

// An editor that runs for a while and has then saved the file.
struct Editing final : Processes {
    std::function<void()> act;
    int looks = 0;
    std::vector<std::string> given;
    struct Running final : Process {
        explicit Running(Editing& owner) : owner(owner) {}
        std::optional<int> exitCode() override {
            if (++owner.looks < 3)
                return std::nullopt;
            owner.act();
            return 0;
        }
        Editing& owner;
    };
    std::unique_ptr<Process> start(const std::string&, const std::vector<std::string>& arguments) override {
        given = arguments;
        return std::make_unique<Running>(*this);
    }
    bool openFile(const std::string&) override { return true; }
};

struct EditorRoundTrip : VerifyTest {
    Editing processes;
    Frame outer{test.state, test.files,   test.profiles, test.registry,
                processes,  test.dialogs, test.progress, test.frame.language};
    Editor editing{outer, catalogue, document};

    void openEditing() {
        putWagons(4);
        LoadCatalogue(outer, catalogue, ReadOnlyLoad);
        window = new frmOptions(editing, choices);
        window->show();
        verifyAll();
    }
};

TEST_F(EditorRoundTrip, AFileThatTheEditorHasMendedLeavesTheList) {
    openEditing();
    bool disabled = false;
    processes.act = [&] {
        disabled = !window->isEnabled();
        EXPECT_EQ(get<QLabel>("lblANALYSE").text(), "Waiting for the text editor…");
        test.files.put(wagonPath("w1"), wagonText("w1", "Freight") + " ");
    };
    QTest::qWait(1); // the page that has just come up is laid out
    const QModelIndex fault = list("lstLINES_ERROR").rows().index(0, 0);
    QWidget* const faults = list("lstLINES_ERROR").viewport();
    const QPoint at = list("lstLINES_ERROR").visualRect(fault).center();
    QTest::mouseClick(faults, Qt::LeftButton, {}, at);
    QTest::mouseDClick(faults, Qt::LeftButton, {}, at);
    EXPECT_TRUE(disabled);
    EXPECT_TRUE(window->isEnabled());
    EXPECT_EQ(processes.given.size(), 6u) << "file, text, line";
    EXPECT_EQ(shown("lstFILES_INVALIDES"), (Names{"w3.wag"}));
}

TEST_F(EditorRoundTrip, TheWindowMayBeClosedWhileTheEditorRuns) {
    openEditing();
    const QPointer<frmOptions> watched = window;
    processes.act = [] {};
    QTimer::singleShot(20, window, [this] { window->close(); });
    press("cmdEDIT");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTest::qWait(1);
    EXPECT_FALSE(watched);
}

TEST_F(VerifyTest, ThousandsOfFaultyFilesAreShownAndWalkedWithoutAPause) {
    VerifResults many;
    putWagons(2);
    open();
    verifyAll();
    auto& session = *window->findChild<VerifySession*>();
    for (int i = 0; i < 60000; ++i) {
        InvalidFile file = session.results().InvalidFiles.front();
        file.File = "n" + std::to_string(i) + ".wag";
        session.results().InvalidFiles.push_back(std::move(file));
    }
    QElapsedTimer time;
    time.start();
    session.tellChange();
    EXPECT_LT(time.elapsed(), 2000) << "linear";
    EXPECT_EQ(invalid().rows().rowCount(), 60001);
    time.restart();
    invalid().showRow(60000);
    QTest::keyClick(window, Qt::Key_F8);
    EXPECT_LT(time.elapsed(), 500);
    EXPECT_EQ(invalid().currentNumber(), 0);
}

} // namespace
} // namespace zandor
