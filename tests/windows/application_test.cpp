// A whole start on the real disk.
#include "app/application.h"
#include "editor/windows/principal.h"
#include "windows/window_fixture.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QTemporaryDir>

#include <optional>

namespace zandor {
namespace {

struct ApplicationTest : ::testing::Test {
    QTemporaryDir home, tree;

    ApplicationTest() {
        qputenv("ZANDOR_HOME", home.path().toUtf8());
        qputenv("WINEPREFIX", home.path().toUtf8());
        write(home.filePath("Langues.lng"), readSourceFile("src/frame/Langues.lng"));
        for (const StockSample& sample : Samples)
            write(tree.filePath(QString("Trains/Trainset/%1/%2").arg(sample.folder, sample.file)),
                  stockText(sample));
        QDir(tree.path()).mkpath("Trains/Consists");
    }
    ~ApplicationTest() override {
        qunsetenv("ZANDOR_HOME");
        qunsetenv("WINEPREFIX");
    }
    static void write(const QString& path, const std::string& bytes) {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray::fromStdString(bytes));
    }
    QByteArray settings() {
        QFile file(home.filePath("Zandor.ini"));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
};

TEST_F(ApplicationTest, APictureOfTheMainWindowIsSavedWithoutAScreen) {
    write(tree.filePath("Trains/Consists/one.con"),
          encodeConsist(std::string(ConsistSignature) +
                        "\r\nTrain (\r\nTrainCfg ( one\r\nName ( \"One\" )\r\nEngine ("
                        "\r\nUiD ( 0 )\r\nEngineData ( bb1 BB )\r\n)\r\n)\r\n)\r\n"));
    LaunchOptions options;
    options.root = tree.path();
    options.consist = tree.filePath("Trains/Consists/one.con");
    options.picture = home.filePath("main.png");
    Application application(options);
    EXPECT_EQ(application.run(), 0);
    const QImage picture(options.picture);
    EXPECT_EQ(picture.size(), QSize(1024, 700));
    ASSERT_TRUE(application.mainWindow());
    EXPECT_EQ(application.mainWindow()->findChild<StockView*>()->model()->rowCount(), 2);
    EXPECT_EQ(application.mainWindow()->findChild<QLineEdit*>("tbFULL_NAME")->text(), "One");
    EXPECT_FALSE(settings().contains(tree.path().section('/', -1).toUtf8()))
        << "the root was for this run only";
}

TEST_F(ApplicationTest, WithoutItsFolderTheRunEnds) {
    LaunchOptions options;
    options.picture = home.filePath("main.png");
    EXPECT_EQ(Application(options).run(), 1) << "quiet: the question for the folder counts as cancelled";
    EXPECT_FALSE(QFile::exists(options.picture));
}

// A copy of the program, since beside the built one stands a language file.
TEST_F(ApplicationTest, AMissingLanguageFileIsToldAndNothingStarts) {
    QFile::remove(home.filePath("Langues.lng"));
    const QString program = tree.filePath("zandor"), picture = home.filePath("main.png");
    ASSERT_TRUE(QFile::copy(QApplication::applicationDirPath() + "/zandor", program));
    QProcess process;
    process.start(program, {"--root", tree.path(), "--picture", picture});
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitCode(), 1);
    EXPECT_TRUE(process.readAllStandardError().contains(LanguageFileMissing.data()));
    EXPECT_FALSE(QFile::exists(picture) || QFile::exists(home.filePath("Zandor.ini")));
}

// ---- a later start beside a running program

struct HandOverTest : ApplicationTest {
    QTemporaryDir runtime;
    std::optional<Application> application;

    HandOverTest() {
        qputenv("XDG_RUNTIME_DIR", runtime.path().toUtf8());
        for (const char* name : {"one", "two", "three"})
            write(consist(name),
                  encodeConsist(std::string(ConsistSignature) + "\r\nTrain (\r\nTrainCfg ( " + name +
                                "\r\nEngine (\r\nUiD ( 0 )\r\nEngineData ( bb1 BB )\r\n)\r\n)\r\n)\r\n"));
        LaunchOptions options;
        options.root = tree.path();
        application.emplace(options);
    }
    ~HandOverTest() override { qunsetenv("XDG_RUNTIME_DIR"); }

    QString consist(const char* name) const {
        return tree.filePath(QString("Trains/Consists/%1.con").arg(name));
    }
    // What happens beside the running program, once it is there. Ends it.
    void whileRunning(const std::function<void()>& act) {
        auto* waiting = new QTimer(QApplication::instance());
        QObject::connect(waiting, &QTimer::timeout, waiting, [this, waiting, act] {
            if (!application->mainWindow() || !application->mainWindow()->isVisible())
                return;
            waiting->deleteLater();
            waiting->stop();
            act();
            QApplication::exit(0);
        });
        waiting->start(20);
        EXPECT_EQ(application->run(), 0);
    }
    // A program of its own: its exit code, or -1 when it goes on running after `longest` ms and was ended.
    int startAnother(const QString& file, int longest = 20000) {
        QProcess process;
        process.start(QApplication::applicationDirPath() + "/zandor", {"--root", tree.path(), file});
        if (QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, longest))
            return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -2;
        process.kill();
        process.waitForFinished();
        return -1;
    }
    QString shownName() { return application->mainWindow()->findChild<QLineEdit*>("tbFULL_NAME")->text(); }
    bool comesToShow(const char* name) {
        return QTest::qWaitFor([&] { return shownName() == name; }, 5000);
    }
    QString socketName() { // the one entry that is no lock
        const QStringList names = QDir(runtime.path()).entryList(QDir::System | QDir::Files);
        for (const QString& name : names)
            if (!name.endsWith(".lock"))
                return runtime.filePath(name);
        return {};
    }
};

TEST_F(HandOverTest, ALaterStartsConsistIsOpenedHere) {
    whileRunning([this] {
        for (const char* name : {"one", "two", "three"}) {
            EXPECT_EQ(startAnother(consist(name)), 0);
            EXPECT_TRUE(comesToShow(name)) << name << ", not " << shownName().toStdString();
        }
    });
}

TEST_F(HandOverTest, AConsistWaitsForTheQuestionThatIsOpen) {
    whileRunning([this] {
        ASSERT_EQ(startAnother(consist("one")), 0);
        ASSERT_TRUE(comesToShow("one"));
        QTest::keyClicks(application->mainWindow()->findChild<QLineEdit*>("tbFULL_NAME"), " changed");
        bool asked = false;
        auto* waiting = new QTimer(application->mainWindow()); // the question has an event loop of its own
        QObject::connect(waiting, &QTimer::timeout, waiting, [&, waiting] {
            if (!QApplication::activeModalWidget())
                return;
            waiting->deleteLater();
            waiting->stop();
            EXPECT_EQ(startAnother(consist("three")), 0);
            asked = true;
            QApplication::activeModalWidget()->findChild<QPushButton*>("Command2")->click(); // No
        });
        waiting->start(20);
        EXPECT_EQ(startAnother(consist("two")), 0);
        EXPECT_TRUE(comesToShow("three")) << shownName().toStdString();
        EXPECT_TRUE(asked);
    });
}

TEST_F(HandOverTest, WhatIsNoPathIsRefusedAndNothingComesUp) {
    whileRunning([this] {
        const QByteArray nothings[] = {QByteArray(1 << 20, 'x'), QByteArray(), QByteArray("/no/end.con"),
                                       QByteArray("/not/agreed.con", 16)};
        for (const QByteArray& said : nothings) {
            QLocalSocket socket;
            socket.connectToServer(socketName());
            ASSERT_TRUE(socket.waitForConnected(1000));
            socket.write(said);
            QTest::qWait(50);
            socket.abort();
            QTest::qWait(50);
        }
        EXPECT_FALSE(QApplication::activeModalWidget());
        EXPECT_EQ(shownName(), QString());
        EXPECT_EQ(startAnother(consist("one")), 0) << "and the next one is served";
    });
}

TEST_F(HandOverTest, AStartThatHandsOverToNobodyOpensItsOwnWindow) {
    QString name;
    whileRunning([&] { name = socketName(); });
    application.reset();
    EXPECT_EQ(startAnother(consist("one"), 3000), -1) << "it runs";
    QLocalServer::removeServer(name); // of the program that was just killed
    QLocalServer hanging;             // answers nothing
    ASSERT_TRUE(hanging.listen(name)) << name.toStdString();
    EXPECT_EQ(startAnother(consist("one"), 5000), -1) << "it runs";
}

} // namespace
} // namespace zandor
