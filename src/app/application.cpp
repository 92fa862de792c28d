#include "app/application.h"

#include "app/quiet_dialogs.h"
#include "editor/windows/principal.h"
#include "frame/windows/qt_dialogs.h"
#include "frame/windows/qt_text.h"
#include "frame/windows/splash.h"
#include "platform/real_file_system.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QPixmap>
#include <QTimer>

#include <iostream>

namespace zandor {

namespace {

// The splash shows it on two lines.
constexpr std::string_view LegalLine = "Copyright © Zandor - Microsoft Train Simulator";
constexpr QSize PictureSize{1024, 700};
constexpr int PictureAfter = 300; // ms: the window has been laid out and painted

std::unique_ptr<Dialogs> makeDialogs(bool quiet, AppState& state, ProfileFiles& profiles) {
    if (quiet)
        return std::make_unique<QuietDialogs>();
    return std::make_unique<QtDialogs>(state, profiles);
}

} // namespace

Application::Application(LaunchOptions options)
    : options_(std::move(options)), files_(makeRealFileSystem(winePrefixFolder())),
      registry_(makeSystemRegistry(winePrefixFolder())), processes_(makeSystemProcesses()),
      profiles_(*files_), dialogs_(makeDialogs(!options_.picture.isEmpty(), state_, profiles_)),
      frame_{state_,      *files_,   profiles_, *registry_,
             *processes_, *dialogs_, progress_, Language(profiles_, state_)},
      folders_(findProgramFolders()), editor_{frame_, catalogue_, document_} {}

Application::~Application() = default;

int Application::run() {
    if (!prepareStart(frame_, folders_)) {
        reportMissingLanguages();
        return 1;
    }
    rememberRoots();
    showSplash();
    splash_->whenPainted([this] { loadThenShow(); });
    const int result = QApplication::exec();
    putRootsBack();
    return result;
}

void Application::reportMissingLanguages() {
    const QString text = toQt(LanguageFileMissing);
    if (options_.picture.isEmpty())
        QMessageBox::critical(nullptr, toQt(state_.Title), text);
    else
        std::cerr << LanguageFileMissing << '\n';
}

void Application::showSplash() {
    const std::string legal = frame_.text(Message::SplashText, {{"|1", LegalLine}});
    splash_ = std::make_unique<frmSplash>(toQt(state_.Title), toQt(legal.empty() ? LegalLine : legal));
    splash_->show();
    progress_.setView(splash_.get());
    state_.SplashUp = true;
    QApplication::setQuitOnLastWindowClosed(false); // the splash goes before the main window comes
}

void Application::loadThenShow() {
    const End end = load();
    if (end == End::GoOn)
        showMainWindow();
    else
        QApplication::exit(end == End::Failed ? 1 : 0);
}

Application::End Application::load() {
    loadSettings(frame_, folders_);
    initialiseDocument(editor_);
    window_ = std::make_unique<frmPrincipal>(editor_);
    window_->applyListColours();
    if (!chooseRoots())
        return splash_->ended() ? End::UserEnded : End::Failed;
    if (splash_->ended() || !LoadCatalogue(frame_, catalogue_) || splash_->ended())
        return End::UserEnded;
    window_->fillStockList();
    openFromCommandLine();
    return End::GoOn;
}

bool Application::chooseRoots() {
    if (options_.root.isEmpty())
        return findRoots(frame_);
    state_.RootMSTS = state_.RootPrimary = pathFromQt(QDir(options_.root).absolutePath());
    if (!FolderExists(*files_, state_.RootPrimary)) {
        frame_.show(
            frame_.text(Message::SimulatorNotFound, {{"|1", "Microsoft Train Simulator"}, {"|2", "\n"}}),
            style::Exclamation);
        return false;
    }
    state_.RootTStore.clear();
    state_.RootSecondary.clear();
    return true;
}

void Application::openFromCommandLine() {
    const std::string path = consistFromCommandLine(frame_, fromQt(options_.consist));
    if (!path.empty())
        window_->openFile(path);
}

void Application::showMainWindow() {
    state_.MainReady = true;
    window_->show();
    progress_.setView(nullptr);
    state_.SplashUp = false;
    splash_->hide();
    QApplication::setQuitOnLastWindowClosed(true);
    if (!options_.picture.isEmpty())
        savePicture();
}

void Application::savePicture() {
    window_->resize(PictureSize);
    QTimer::singleShot(PictureAfter, window_.get(), [this] {
        const bool saved = window_->grab().save(options_.picture, "PNG");
        QApplication::exit(saved ? 0 : 1);
    });
}

// A root that was given for one run doesn't become the one of the settings.
void Application::rememberRoots() {
    keptInstallDir_ = profiles_.ReadIniValue(GeneralSection, "InstallDir", state_.IniPath);
    keptTStoreDir_ = profiles_.ReadIniValue(GeneralSection, "TStoreDir", state_.IniPath);
}

void Application::putRootsBack() {
    if (options_.root.isEmpty() || !window_)
        return;
    profiles_.WriteIniValue(GeneralSection, "InstallDir", keptInstallDir_, state_.IniPath);
    profiles_.WriteIniValue(GeneralSection, "TStoreDir", keptTStoreDir_, state_.IniPath);
}

} // namespace zandor
