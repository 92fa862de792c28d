#include "app/application.h"

#include "app/messages.h"
#include "app/quiet_dialogs.h"
#include "app/single_instance.h"
#include "editor/windows/principal.h"
#include "frame/messages.h"
#include "frame/windows/qt_dialogs.h"
#include "frame/windows/qt_text.h"
#include "frame/windows/splash.h"
#include "options/windows/options_window.h"
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
constexpr QSize SavedPicture{1024, 700};
constexpr int AskAgainAfter = 200; // ms
constexpr int PictureAfter = 300;  // ms: the window has been laid out and painted

std::unique_ptr<Dialogs> makeDialogs(bool quiet, AppState& state, ProfileFiles& profiles, CHelp& help) {
    if (quiet)
        return std::make_unique<QuietDialogs>();
    return std::make_unique<QtDialogs>(state, profiles, &help);
}

} // namespace

Application::Application(LaunchOptions options)
    : options_(std::move(options)), files_(makeRealFileSystem(winePrefixFolder())),
      registry_(makeSystemRegistry(winePrefixFolder())), processes_(makeSystemProcesses()),
      association_(makeSystemAssociation(*files_, *processes_)), profiles_(*files_),
      help_(state_, profiles_, *processes_),
      dialogs_(makeDialogs(!options_.picture.isEmpty(), state_, profiles_, help_)),
      frame_{state_,      *files_,   profiles_, *registry_,
             *processes_, *dialogs_, progress_, Language(profiles_, state_)},
      folders_(findProgramFolders()), editor_{frame_, catalogue_, document_} {}

Application::~Application() {
    delete tools_;
}

int Application::run() {
    if (!prepareStart(frame_, folders_)) {
        reportMissingLanguages();
        return 1;
    }
    if (handedOver())
        return 0;
    rememberRoots();
    showSplash();
    splash_->whenPainted([this] { loadThenShow(); });
    const int result = QApplication::exec();
    putRootsBack();
    passOnGiven();
    return result;
}

// A consist goes to the program that runs already on the same settings and root.
bool Application::handedOver() {
    if (!options_.picture.isEmpty())
        return false;
    instance_ = std::make_unique<SingleInstance>(toQt(folders_.program) + u'\n' + options_.root);
    QObject::connect(instance_.get(), &SingleInstance::fileGiven, instance_.get(),
                     [this](const QString& path) { takeFile(path); });
    const std::string path = consistFromCommandLine(frame_, fromQt(options_.consist));
    return !path.empty() && instance_->handOver(toQt(files_->nativePath(path)));
}

void Application::takeFile(const QString& path) {
    given_.append(path);
    window_->setWindowState(window_->windowState() & ~Qt::WindowMinimized);
    QWidget* const message = QApplication::activeModalWidget(); // keeps the keyboard
    QWidget& top = message ? *message : *window_;
    top.raise();
    top.activateWindow();
    openNextGiven();
}

// A message that is open is answered first, and what the mouse holds is let go.
void Application::openNextGiven() {
    if (given_.isEmpty())
        return;
    const bool dragging = QGuiApplication::mouseButtons() != Qt::NoButton;
    if (!dragging && !QApplication::activeModalWidget() && !QApplication::activePopupWidget())
        window_->offerFile(pathFromQt(given_.takeFirst()));
    if (!given_.isEmpty())
        QTimer::singleShot(AskAgainAfter, window_.get(), [this] { openNextGiven(); });
}

// The answer to the message may have been to end the program: the files that wait get one of their own.
void Application::passOnGiven() {
    instance_.reset();
    for (const QString& path : std::exchange(given_, {})) {
        std::vector<std::string> arguments{fromQt(path)};
        if (!options_.root.isEmpty())
            arguments.insert(arguments.begin(), {"--root", fromQt(options_.root)});
        processes_->start(executablePath(folders_), arguments);
    }
}

void Application::reportMissingLanguages() {
    const std::string text = languageFileFault(frame_);
    if (options_.picture.isEmpty())
        QMessageBox::critical(nullptr, toQt(state_.Title), toQt(text));
    else
        std::cerr << text << '\n';
}

void Application::showSplash() {
    const std::string legal = frame_.text(message::SplashText, {{"|1", LegalLine}});
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
    applyAssociation(frame_, *association_, folders_);
    if (options_.picture.isEmpty())
        offerKnownLanguage(frame_);
    else
        state_.Language = languageInstead(frame_).value_or(state_.Language);
    toolkitTexts_.follow(toQt(state_.Language));
    help_.serveF1();
    initialiseDocument(editor_);
    window_ = std::make_unique<frmPrincipal>(editor_);
    window_->applyListColours();
    joinWindow();
    if (splash_->ended())
        return End::UserEnded;
    if (!chooseRoots())
        return splash_->ended() ? End::UserEnded : End::Failed;
    if (splash_->ended() || !LoadCatalogue(frame_, catalogue_) || splash_->ended())
        return End::UserEnded;
    window_->fillStockList();
    openFromCommandLine();
    return splash_->ended() ? End::UserEnded : End::GoOn;
}

void Application::joinWindow() {
    frmPrincipal* const window = window_.get();
    QObject::connect(window, &frmPrincipal::helpAsked, &help_, [this] { help_.Show(helpContext::Main); });
    QObject::connect(window, &frmPrincipal::optionsAsked, window, [this] { showOptions(); });
    QObject::connect(window, &frmPrincipal::languageChosen, window, [this] {
        toolkitTexts_.follow(toQt(state_.Language));
        help_.applyLanguage();
        if (tools_)
            tools_->applyLanguage();
    });
    QObject::connect(window, &frmPrincipal::closeAsked, &help_, &CHelp::CloseWindow);
    QObject::connect(window, &frmPrincipal::closed, window, [this] {
        if (tools_)
            tools_->close();
    });
}

// The one that there is comes to the front.
void Application::showOptions() {
    if (!tools_ || tools_->isClosed()) {
        tools_ = new frmOptions(editor_, verifyChoices_);
        QObject::connect(tools_, &frmOptions::catalogueChanged, window_.get(),
                         &frmPrincipal::catalogueChanged);
        QObject::connect(tools_, &frmOptions::helpAsked, &help_,
                         [this](int context) { help_.Show(context); });
    }
    tools_->setWindowState(tools_->windowState() & ~Qt::WindowMinimized);
    tools_->show();
    tools_->raise();
    tools_->activateWindow();
}

bool Application::chooseRoots() {
    if (options_.root.isEmpty())
        return findRoots(frame_);
    state_.roots = {pathFromQt(QDir(options_.root).absolutePath()), {}, Root::Simulator};
    if (!FolderExists(*files_, state_.roots.RootPrimary())) {
        frame_.show(
            frame_.text(message::SimulatorNotFound, {{"|1", "Microsoft Train Simulator"}, {"|2", "\n"}}),
            style::Exclamation);
        return false;
    }
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
    if (instance_)
        instance_->listen();
    if (!options_.picture.isEmpty())
        savePicture();
}

void Application::savePicture() {
    window_->resize(SavedPicture);
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
    const std::string section(GeneralSection);
    profiles_.WriteIniValues(
        {{section, "InstallDir", keptInstallDir_}, {section, "TStoreDir", keptTStoreDir_}}, state_.IniPath);
}

} // namespace zandor
