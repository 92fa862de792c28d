// Progress, splash, and what the start is told.
#include "app/launch_options.h"
#include "frame/windows/qt_dialogs.h"
#include "frame/windows/qt_progress.h"
#include "frame/windows/qt_text.h"
#include "frame/windows/splash.h"
#include "frame/windows/toolkit_language.h"
#include "support/fakes.h"

#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QKeySequence>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace zandor {
namespace {

TEST(ToolkitLanguage, NamesKeysInTheProgramsLanguage) {
    ToolkitLanguage toolkit;
    const std::pair<const char*, const char*> cases[] = {
        {"Français", "Suppr"}, {"Deutsch", "Entf"}, {"English", "Del"}, {"Italiano", "Canc"}, {"", "Del"}};
    for (const auto& [language, name] : cases) {
        toolkit.follow(QString::fromUtf8(language));
        EXPECT_EQ(QKeySequence(Qt::Key_Delete).toString(QKeySequence::NativeText), name) << language;
    }
}

TEST(FileDialogFilter, IsTurnedIntoTheToolkitsForm) {
    EXPECT_EQ(fileDialogFilter("Programmes (*.exe)|*.exe"), "Programmes (*.exe)");
    EXPECT_EQ(fileDialogFilter("Rames|*.con"), "Rames (*.con)");
    EXPECT_EQ(fileDialogFilter("Stock|*.eng;*.wag"), "Stock (*.eng *.wag)");
}

// A name is typed, after so many steps down the list of kinds.
std::optional<std::string> saveName(const QString& folder, const char* name, int steps) {
    TestFrame test;
    QtDialogs dialogs(test.state, test.profiles);
    QTimer::singleShot(10, qApp, [name, steps] {
        QWidget* dialog = QApplication::activeModalWidget();
        ASSERT_TRUE(dialog);
        auto* kinds = dialog->findChild<QComboBox*>("fileTypeCombo");
        auto* edit = dialog->findChild<QLineEdit*>("fileNameEdit");
        ASSERT_TRUE(kinds && edit);
        for (int i = 0; i < steps; ++i)
            QTest::keyClick(kinds, Qt::Key_Down);
        EXPECT_EQ(edit->text(), "proposed");
        edit->setText(name);
        QTest::keyClick(edit, Qt::Key_Return);
    });
    return dialogs.askSaveFile("Save", "Rich text (*.rtf)|*.rtf|Text (*.txt)|*.txt", fromQt(folder),
                               "proposed", ".rtf");
}

TEST(SaveDialog, GivesANameTheExtensionOfTheKindThatIsChosen) {
    const QTemporaryDir folder;
    const std::string path = pathFromQt(folder.path() + "/");
    EXPECT_EQ(saveName(folder.path(), "list", 0), path + "list.rtf");
    EXPECT_EQ(saveName(folder.path(), "list", 1), path + "list.txt");
    EXPECT_EQ(saveName(folder.path(), "list.log", 1), path + "list.log");
}

struct CountingView final : ProgressView {
    int drawn = 0;
    QString last;
    bool stop = false;
    void showStep(int, int, int, const QString& text) override {
        ++drawn;
        last = text;
    }
    bool ended() const override { return stop; }
};

TEST(QtProgress, DrawsAtThePaceOfTheEyeAndServesEvents) {
    QtProgress progress;
    CountingView view;
    progress.setView(&view);
    int served = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, [&served] { ++served; });
    timer.start(5);
    QElapsedTimer clock;
    clock.start();
    int steps = 0;
    while (steps < 30000 || clock.elapsed() < 200) {
        progress.ShowProgress(0, 1000000, ++steps, "step");
        EXPECT_TRUE(progress.yield());
    }
    EXPECT_GE(view.drawn, 2);
    EXPECT_LE(view.drawn, clock.elapsed() / 30 + 1);
    EXPECT_GE(served, 2);
}

TEST(QtProgress, TheEndOfItsWindowEndsTheOperation) {
    QtProgress progress;
    EXPECT_TRUE(progress.yield()) << "without a window nobody can end it";
    CountingView view;
    progress.setView(&view);
    progress.ShowProgress(0, 0, 0, "nothing");
    EXPECT_EQ(view.drawn, 0);
    progress.ShowProgress(0, 10, 1, "first");
    EXPECT_EQ(view.last, "first");
    view.stop = true;
    EXPECT_FALSE(progress.yield());
}

TEST(Splash, IsPaintedBeforeTheLoadAndEndsByEscapeOrClosing) {
    for (const bool byKey : {true, false}) {
        frmSplash splash("Zandor 1.00", "Line one - line two");
        bool loaded = false;
        splash.show();
        splash.whenPainted([&] { loaded = true; });
        EXPECT_FALSE(loaded);
        EXPECT_TRUE(QTest::qWaitFor([&] { return loaded; }, 3000));
        splash.showStep(0, 200, 50, "bb1.eng");
        auto* bar = splash.findChild<ProgressBar*>("pctPROGRESS");
        ASSERT_TRUE(bar);
        EXPECT_DOUBLE_EQ(bar->share(), 0.25);
        EXPECT_EQ(bar->text(), "bb1.eng");
        EXPECT_FALSE(splash.ended());
        if (byKey)
            QTest::keyClick(&splash, Qt::Key_Escape);
        else
            splash.close();
        EXPECT_TRUE(splash.ended());
    }
}

TEST(LaunchOptions, AreReadInAnyOrder) {
    struct Case {
        QStringList arguments;
        QString consist, root, picture;
    };
    const Case cases[] = {
        {{}, "", "", ""},
        {{"a.con"}, "a.con", "", ""},
        {{"--root", "/m", "a.con", "--picture=p.png"}, "a.con", "/m", "p.png"},
        {{"--picture", "p.png", "--unknown", "x y.con", "b.con"}, "x y.con", "", "p.png"},
        {{"--root"}, "", "", ""},
    };
    for (const Case& c : cases) {
        const LaunchOptions options = parseLaunchOptions(c.arguments);
        EXPECT_EQ(options.consist, c.consist);
        EXPECT_EQ(options.root, c.root);
        EXPECT_EQ(options.picture, c.picture);
    }
}

} // namespace
} // namespace zandor
