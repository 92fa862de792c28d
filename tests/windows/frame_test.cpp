// Messages, progress and splash.
#include "app/launch_options.h"
#include "frame/windows/qt_dialogs.h"
#include "frame/windows/qt_progress.h"
#include "frame/windows/splash.h"
#include "support/fakes.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace zandor {
namespace {

struct DialogTest : ::testing::Test {
    TestFrame test;
    QtDialogs dialogs{test.state, test.profiles};
    QMessageBox::Icon icon{};
    QString defaultButton;
    QStringList captions;
    bool closedByEscape = false;

    // Shows a message and, once it is up, answers with the button of that name, or with Escape.
    int show(int style, const char* button, const std::string& text = "text") {
        QTimer::singleShot(20, qApp, [this, button] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_TRUE(box);
            EXPECT_EQ(box->objectName(), "frmAlert");
            icon = box->icon();
            defaultButton = box->defaultButton() ? box->defaultButton()->objectName() : QString();
            captions.clear();
            for (int i = 1; i <= 4; ++i)
                if (auto* found = box->findChild<QPushButton*>(QString("Command%1").arg(i)))
                    captions << found->text();
            QTest::keyClick(box, Qt::Key_Escape);
            closedByEscape = !box->isVisible();
            if (auto* wanted = box->findChild<QPushButton*>(button); wanted && !closedByEscape)
                wanted->click();
        });
        return dialogs.ShowMessage(text, style, "title");
    }
};

TEST_F(DialogTest, StylesGiveTheirButtonsIconsAndAnswers) {
    struct Case {
        int style;
        const char* button;
        int answer;
        int buttons;
        QMessageBox::Icon icon;
        bool escapes;
        const char* defaultButton;
    };
    const Case cases[] = {
        {style::Ok + style::Information, "Command1", answer::Ok, 1, QMessageBox::Information, true,
         "Command1"},
        {style::OkCancel, "Command1", answer::Cancel, 2, QMessageBox::NoIcon, true, "Command1"},
        {style::AbortRetryIgnore + style::Stop, "Command3", answer::Ignore, 3, QMessageBox::Critical, false,
         "Command1"},
        {style::YesNoCancel + 512, "Command1", answer::Cancel, 3, QMessageBox::NoIcon, true, "Command3"},
        {style::YesNo + style::Question, "Command1", answer::Yes, 2, QMessageBox::Question, false,
         "Command1"},
        {style::YesNo + style::Question + 256, "Command2", answer::No, 2, QMessageBox::Question, false,
         "Command2"},
        {style::RetryCancel + style::Exclamation, "Command1", answer::Cancel, 2, QMessageBox::Warning, true,
         "Command1"},
        {style::YesNo + 16384, "Command2", answer::No, 3, QMessageBox::NoIcon, false, "Command1"},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(show(c.style, c.button), c.answer) << c.style;
        EXPECT_EQ(captions.size(), c.buttons) << c.style;
        EXPECT_EQ(icon, c.icon) << c.style;
        EXPECT_EQ(closedByEscape, c.escapes) << c.style;
        EXPECT_EQ(defaultButton, c.defaultButton) << c.style;
        EXPECT_EQ(test.state.LastAnswer, std::to_string(c.answer));
        for (const QString& caption : captions)
            EXPECT_TRUE(caption.contains(u'&')) << caption.toStdString();
    }
}

TEST_F(DialogTest, AMessageWithALongPathStaysOnTheScreen) {
    show(style::Ok, "Command1", std::string(900, 'x'));
    int width = 0;
    QTimer::singleShot(20, qApp, [&width] {
        width = QApplication::activeModalWidget()->width();
        QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape);
    });
    dialogs.ShowMessage(std::string(900, 'x'), style::Ok, "title");
    EXPECT_GT(width, 0);
    EXPECT_LT(width, 900);
}

TEST(FileDialogFilter, IsTurnedIntoTheToolkitsForm) {
    EXPECT_EQ(fileDialogFilter("Programmes (*.exe)|*.exe"), "Programmes (*.exe)");
    EXPECT_EQ(fileDialogFilter("Rames|*.con"), "Rames (*.con)");
    EXPECT_EQ(fileDialogFilter("Stock|*.eng;*.wag"), "Stock (*.eng *.wag)");
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
