// The windows that choose a folder.
#pragma once

#include "frame/folder_choice.h"

#include <QDialog>
#include <QListWidget>

#include <functional>
#include <memory>

class QComboBox;
class QPushButton;

namespace zandor {

class ElidedLabel;

// A disk of its own for each folder that is read, since that happens aside from the program's own disk.
using DiskMaker = std::function<std::shared_ptr<FileSystem>()>;
DiskMaker realDisks();

// The folders above the current one, itself and the folders in it. A double click, or Enter, goes to a
// folder; Backspace goes up.
class FolderList final : public QListWidget {
    Q_OBJECT
  public:
    FolderList(DiskMaker disks, QWidget* parent);
    void setPath(const std::string& path);
    const std::string& path() const { return path_; }

  signals:
    void pathChanged();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void goTo(const QListWidgetItem* item);
    void goUp();
    void addFolder(const FolderPlace& place, int depth, bool open);
    void showSubFolders(const std::vector<FolderPlace>& folders);

    DiskMaker disks_;
    std::string path_;
    int reads_ = 0; // a folder that answers after another was asked for is no longer wanted
};

class FolderWindow : public QDialog {
    Q_OBJECT
  protected:
    FolderWindow(Frame& frame, const FolderChoice& choice, DiskMaker disks, QWidget* parent);
    const std::string& chosen() const { return list_->path(); }

  private:
    void build(const Frame& frame);
    void fillDrives(const std::vector<FolderPlace>& drives);
    void showPath();

    FileSystem& files_;
    std::vector<FolderPlace> driveList_;
    QComboBox* drives_;
    FolderList* list_;
    ElidedLabel* path_;
    QPushButton* ok_;
};

// The simulator's folder or Train Store's, by EditingMstsPath.
class frmPathMSTS final : public FolderWindow {
    Q_OBJECT
  public:
    explicit frmPathMSTS(Frame& frame, QWidget* parent = nullptr, DiskMaker disks = realDisks());

  public slots:
    void accept() override;

  private:
    AppState& state_;
};

// The backup folder.
class frmPath final : public FolderWindow {
    Q_OBJECT
  public:
    explicit frmPath(Frame& frame, QWidget* parent = nullptr, DiskMaker disks = realDisks());

  public slots:
    void accept() override;

  private:
    AppState& state_;
};

} // namespace zandor
