// zandor_shots FOLDER: opens every window on the demonstration tree and saves a picture of each, in French
// and in English, to be looked at. The names end in the scale that QT_SCALE_FACTOR gives.
#include "app/messages.h"
#include "catalogue/messages.h"
#include "editor/consist_io.h"
#include "editor/messages.h"
#include "editor/windows/open_window.h"
#include "editor/windows/principal.h"
#include "frame/alert.h"
#include "frame/windows/about.h"
#include "frame/windows/alert.h"
#include "frame/windows/confirmation.h"
#include "frame/windows/folder_window.h"
#include "frame/windows/help_window.h"
#include "frame/windows/loading.h"
#include "frame/windows/progress_window.h"
#include "frame/windows/qt_text.h"
#include "frame/windows/question.h"
#include "frame/windows/splash.h"
#include "frame/windows/theme.h"
#include "frame/windows/toolkit_language.h"
#include "options/windows/options_window.h"
#include "support/fakes.h"
#include "text/decode.h"
#include "verify/messages.h"
#include "verify/windows/faulty_value_window.h"
#include "verify/windows/result_view.h"

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

#include <cstdio>
#include <filesystem>

namespace zandor {
namespace {

constexpr int Settled = 300; // ms until a window has been laid out and its folders or consists are read

// The files of a folder of this machine's disk.
void putFolder(MemoryFileSystem& files, const std::filesystem::path& folder, const std::string& to) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(folder)) {
        if (!entry.is_regular_file())
            continue;
        std::ifstream file(entry.path(), std::ios::binary);
        std::string name = entry.path().lexically_relative(folder).generic_string();
        std::ranges::replace(name, '/', '\\');
        files.put(to + name, std::string(std::istreambuf_iterator<char>(file), {}));
    }
}

class Shots {
  public:
    // The demonstration tree is read into memory, so that nothing of it changes.
    Shots(const QDir& folder, const char* language, bool dark) : folder_(folder), dark_(dark) {
        putFolder(test_.files, ZANDOR_SOURCE_DIR "/demo/Train Simulator", "C:\\MSTS\\");
        putFolder(test_.files, ZANDOR_THUMBNAILS, test_.state.ProgramFolder + "\\Thumbnails\\");
        test_.state.roots.RootMSTS = "C:\\MSTS";
        test_.state.Language = language;
        test_.state.PrintName = test_.state.PrintGreen = test_.state.Optimize = true;
        LoadCatalogue(test_.frame, catalogue_, ReadOnlyLoad);
        initialiseDocument(editor_);
    }

    void takeAll() {
        takePrincipal();
        takeFrameWindows();
        takeMessages();
        takeFolders();
        takeOptions();
    }

  private:
    void save(QWidget& window, const char* name) {
        window.show();
        QTest::qWait(Settled);
        const QString language = toQt(test_.state.Language).left(2).toLower();
        const QString file =
            QString("%1-%2-%3%4.png")
                .arg(QLatin1String(name), language, QString::number(qRound(window.devicePixelRatioF() * 100)),
                     QLatin1String(dark_ ? "-dark" : ""));
        if (!window.grab().save(folder_.filePath(file)))
            std::fprintf(stderr, "Can't write %s\n", qPrintable(file));
        window.hide();
    }

    void takePrincipal() {
        frmPrincipal window(editor_);
        window.resize(1024, 700);
        save(window, "frmPrincipal-empty");
        for (const char* consist : {"orme_ore_down.con", "fell_mail.con"}) {
            window.openFile(consistsPath(test_.state.roots.RootMSTS) + consist);
            save(window, QByteArray("frmPrincipal-").append(consist).chopped(4));
        }
        window.resize(1024, 600);
        save(window, "frmPrincipal-low");
        if (auto* menu = window.findChild<QMenu*>("mnuSTRIP"))
            save(*menu, "menu");
        frmOpen open(
            test_.frame, catalogue_, [](const std::string&) { return false; }, &window);
        save(open, "frmOpen");
    }

    void takeFrameWindows() {
        const Frame& frame = test_.frame;
        frmSplash splash(toQt(test_.state.Title),
                         toQt(frame.text(message::SplashText,
                                         {{"|1", "Copyright © Zandor - Microsoft Train Simulator"}})));
        splash.showStep(0, 100, 60, toQt(frame.text(message::ReadingConsists)));
        save(splash, "frmSplash");
        frmProgress progress(test_.frame);
        progress.showStep(0, 100, 60, toQt(frame.text(message::ListingEngines)));
        save(progress, "frmProgress");
        frmAbout about(test_.frame);
        save(about, "frmAbout");
        bool ask = true;
        frmQuestion question(test_.frame, ask);
        save(question, "frmQuestion");
        frmConfirmation confirmation(test_.frame, "Orme_First.bmp");
        save(confirmation, "frmConfirmation");
        frmLoading loading(toQt(frame.text(message::OpeningConsist, {{"|1", "fell_mail.con"}})));
        save(loading, "frmLoading");
        frmHelp help(test_.state, frame.language);
        help.showPage(1001);
        save(help, "CHelp");
    }

    void takeMessages() {
        const Frame& frame = test_.frame;
        const std::string path =
            "C:\\Program Files\\Microsoft Games\\Train Simulator\\TRAINS\\CONSISTS\\a_long_name.con";
        struct Case {
            const char* name;
            int style;
            std::string text;
        };
        const Case cases[] = {
            {"frmAlert-yesno", style::YesNo + style::Question, frame.text(message::AskSaveNew)},
            {"frmAlert-misfit", style::Exclamation, frame.text(message::CouplingsDoNotFit)},
            {"frmAlert-failed", style::Exclamation + 16384,
             frame.text(message::SaveFailed, {{"|1", path}, {"|2", "\n"}})},
            {"frmAlert-three", style::AbortRetryIgnore + style::Stop, frame.text(message::ShortNameEmpty)},
        };
        for (const Case& c : cases) {
            const Alert alert = decodeAlertStyle(c.style);
            frmAlert window(alert, alertCaptions(frame.language, alert), toQt(test_.state.Title),
                            toQt(c.text));
            save(window, c.name);
        }
    }

    void takeFolders() {
        test_.state.BackupDir = "\\usr\\share\\";
        frmPathMSTS simulator(test_.frame);
        save(simulator, "frmPathMSTS");
        frmPath backup(test_.frame);
        save(backup, "frmPath");
    }

    // The verifier before, during and after a pass over stock with faults.
    void takeOptions() {
        putFaults();
        test_.dialogs.whenShown = nullptr;
        VerifyChoices choices;
        choices.kind = VerifiedKind::Wagons;
        frmOptions window(editor_, choices);
        window.resize(1000, 680);
        window.findChild<ResultView*>("lstFILES")->selectAll();
        save(window, "frmOptions-files");
        takeDuring(window);
        QTest::mouseClick(window.findChild<QPushButton*>("cmdVERIF"), Qt::LeftButton);
        save(window, "frmOptions-results");
        window.resize(window.minimumSizeHint());
        save(window, "frmOptions-small");
        window.resize(1000, 680);
        for (const auto& [option, name] : {std::pair{"optDOUBLONS", "frmOptions-duplicates"},
                                           std::pair{"optINTROUVABLES", "frmOptions-missing"}}) {
            window.findChild<QRadioButton*>(option)->click();
            save(window, name);
        }
        VerifySession& session = *window.findChild<VerifySession*>();
        frmModifieValeur correct(session, 0, 0, &window);
        save(correct, "frmModifieValeur");
    }

    void takeDuring(QWidget& window) {
        auto& session = *window.findChild<VerifySession*>();
        (void)session.carryOut([&](Editor& editor) {
            const std::string text = editor.frame.text(message::VerifyingFile, {{"|1", "Orme_Hopper.wag"}});
            editor.frame.progress.ShowProgress(0, 100, 60, text);
            save(window, "frmOptions-pass");
        });
    }

    void putFaults() {
        const std::string folder = trainsetPath(test_.state.roots.RootMSTS) + "Wagons à revoir\\";
        const auto wagon = [](const std::string& name, const std::string& type, const std::string& sound) {
            return encodeText(
                "SIMISA@@@@@@@@@@JINX0D0t______\r\n\r\nWagon ( " + name +
                    "\r\n\tcomment( made for the pictures )\r\n\tType ( " + type + " )\r\n\tWagonShape ( " +
                    name + ".s )\r\n\tSize ( 3m 4m 18.5m )\r\n\tMass ( 80t )\r\n\tCoupling (" +
                    "\r\n\t\tType ( Chaine )\r\n\t)\r\n\tBrakeSystemType ( \"Air_tvin_pipe\" )\r\n" +
                    "\tSound ( " + sound + " )\r\n)\r\n",
                TextEncoding::Utf16);
        };
        for (int i = 1; i <= 24; ++i) {
            const std::string name = "Wagon_" + std::to_string(i);
            test_.files.put(folder + name + ".wag",
                            wagon(name, i % 3 ? "Freight" : "Frieght", i % 4 ? "freight.sms" : "Wagon.sms"));
        }
        test_.files.put(trainsetPath(test_.state.roots.RootMSTS) + "Autres\\Wagon_7.wag",
                        wagon("Wagon_7", "Freight", "freight.sms"));
        test_.files.put(
            folder + "Sound\\Wagon.sms",
            encodeText(
                "SIMISA@@@@@@@@@@JINX0x1t______\r\n\r\nTr_SMS (\r\n\tFile ( \"nowhere.wav\" -1 )\r\n)\r\n",
                TextEncoding::Utf16));
        test_.files.put(test_.state.ProgramFolder + "\\Skrivo", "#!/bin/sh");
    }

    QDir folder_;
    bool dark_;
    TestFrame test_;
    Catalogue catalogue_;
    ConsistDocument document_;
    Editor editor_{test_.frame, catalogue_, document_};
};

// The colours of a dark desktop.
QPalette darkColours() {
    QPalette palette(QColor(49, 54, 59), QColor(41, 44, 48));
    palette.setColor(QPalette::Base, QColor(27, 30, 32));
    palette.setColor(QPalette::AlternateBase, QColor(35, 38, 41));
    palette.setColor(QPalette::Highlight, QColor(61, 174, 233));
    palette.setColor(QPalette::HighlightedText, QColor(252, 252, 252));
    return palette;
}

} // namespace
} // namespace zandor

int main(int argc, char** argv) {
    const bool dark = argc == 3 && std::string_view(argv[2]) == "--dark";
    if (argc != 2 && !dark)
        return 2;
    QApplication application(argc, argv);
    QApplication::setWindowIcon(QIcon(":/art/zandor.png"));
    zandor::applyTheme(application);
    if (dark)
        QApplication::setPalette(zandor::darkColours());
    zandor::ToolkitLanguage toolkitTexts;
    const QDir folder(argv[1]);
    folder.mkpath(".");
    for (const char* language : {"Français", "English"}) {
        toolkitTexts.follow(language);
        zandor::Shots(folder, language, dark).takeAll();
    }
    return 0;
}
