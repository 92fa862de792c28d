// One run of the program: owns everything that lives from its start to its end, and knows the order of the
// start.
#pragma once

#include "app/launch_options.h"
#include "editor/consist_document.h"
#include "frame/association.h"
#include "frame/startup.h"
#include "frame/windows/help.h"
#include "frame/windows/qt_progress.h"
#include "frame/windows/toolkit_language.h"
#include "verify/windows/verify_session.h"

#include <QPointer>

#include <memory>

namespace zandor {

class frmOptions;
class frmPrincipal;
class frmSplash;
class SingleInstance;

class Application {
  public:
    explicit Application(LaunchOptions options);
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    // From the splash to the end of the main window. Returns the process's exit code.
    int run();
    frmPrincipal* mainWindow() const { return window_.get(); } // nullptr until the load

  private:
    enum class End { GoOn, UserEnded, Failed };

    bool handedOver();
    void takeFile(const QString& path);
    void openNextGiven();
    void passOnGiven();
    void reportMissingLanguages();
    void showSplash();
    void loadThenShow();
    End load();
    bool chooseRoots();
    void openFromCommandLine();
    void showMainWindow();
    void savePicture();
    void rememberRoots();
    void putRootsBack();
    void joinWindow();
    void showOptions();

    LaunchOptions options_;
    std::unique_ptr<FileSystem> files_;
    std::unique_ptr<Registry> registry_;
    std::unique_ptr<Processes> processes_;
    std::unique_ptr<FileAssociation> association_;
    AppState state_;
    ProfileFiles profiles_;
    CHelp help_;
    std::unique_ptr<Dialogs> dialogs_;
    QtProgress progress_;
    Frame frame_;
    ProgramFolders folders_;
    Catalogue catalogue_;
    ConsistDocument document_;
    Editor editor_;
    ToolkitLanguage toolkitTexts_;
    std::unique_ptr<frmSplash> splash_;
    VerifyChoices verifyChoices_;
    std::unique_ptr<frmPrincipal> window_;
    QPointer<frmOptions> tools_;                 // deletes itself when it is closed
    std::unique_ptr<SingleInstance> instance_;   // none in a run that saves a picture
    QStringList given_;                          // by later starts, and not yet opened
    std::string keptInstallDir_, keptTStoreDir_; // of the settings, in a run with a root of its own
};

} // namespace zandor
