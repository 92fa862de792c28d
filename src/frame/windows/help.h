// The help window.
#pragma once

#include "frame/frame.h"

#include <QObject>

#include <memory>

class QWidget;

namespace zandor {

class frmHelp;

// The numbers of the help's pages.
namespace helpContext {
inline constexpr int Contents = 0;
inline constexpr int Main = 1001;
inline constexpr int OpenConsist = 1002;
inline constexpr int Messages = 1003;
inline constexpr int Folders = 1004;
inline constexpr int Stock = 1005;
inline constexpr int Couplings = 1006;
inline constexpr int Verify = 1007;
inline constexpr int Saving = 1008;
inline constexpr int Settings = 1013;
inline constexpr int Keyboard = 1014;
} // namespace helpContext

// The page that F1 opens in this window.
void setHelpContext(QWidget& window, int context);

// Shows a help file that stands beside the program with the desktop's viewer for it, otherwise the
// program's own pages, French ones in a French program and English ones in any other.
class CHelp final : public QObject {
    Q_OBJECT
  public:
    CHelp(AppState& state, ProfileFiles& profiles, Processes& processes);
    ~CHelp() override;

    void Show(int context = helpContext::Contents);
    // Of a given help file; without one as Show().
    void ShowFile(const std::string& helpFile, int context);
    void CloseWindow();
    // The window's captions and page in the language at hand, when it is open.
    void applyLanguage();
    // F1 shows, everywhere in the program, the page of the window that it is pressed in.
    void serveF1();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void showPage(int context);
    void putOver(QWidget* modal);

    AppState& state_;
    FileSystem& files_;
    Processes& processes_;
    Language language_;
    std::unique_ptr<frmHelp> window_;
};

} // namespace zandor
