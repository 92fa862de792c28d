// A whole start on the real disk.
#include "app/application.h"
#include "editor/windows/principal.h"
#include "windows/window_fixture.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QTemporaryDir>

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

TEST_F(ApplicationTest, WithoutLanguageFileOrFolderTheRunEnds) {
    LaunchOptions options;
    options.picture = home.filePath("main.png");
    {
        Application application(options); // quiet: the question for the folder counts as cancelled
        EXPECT_EQ(application.run(), 1);
    }
    EXPECT_FALSE(QFile::exists(options.picture));
}

} // namespace
} // namespace zandor
