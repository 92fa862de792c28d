// The window that shows the program's own help pages.
#pragma once

#include "frame/language.h"

#include <QTextBrowser>
#include <QWidget>

class QLabel;
class QPushButton;

namespace zandor {

// A browser of the pages among the program's resources. A page that isn't there gives way to the contents.
class HelpBrowser final : public QTextBrowser {
    Q_OBJECT
  public:
    explicit HelpBrowser(QWidget* parent);

  signals:
    void pageMissing(const QString& page);

  protected:
    void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;
};

class frmHelp final : public QWidget {
    Q_OBJECT
  public:
    explicit frmHelp(const AppState& state, const Language& language);

    void applyLanguage();
    void showPage(int context); // 0: the contents
    QString page() const;       // its name without the folder, such as "1001"

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void build();
    void showSource(const QString& page);
    void showMissing(const QString& page);

    const AppState& state_;
    const Language& language_;
    QPushButton *back_, *forward_, *contents_, *close_;
    QLabel* missing_; // what is told of a missing page
    HelpBrowser* browser_;
};

} // namespace zandor
