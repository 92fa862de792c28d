#include "frame/windows/folder_window.h"

#include "frame/alert.h"
#include "frame/messages.h"
#include "frame/windows/background.h"
#include "frame/windows/elided_label.h"
#include "frame/windows/help.h"
#include "frame/windows/qt_text.h"
#include "frame/windows/window_parts.h"
#include "platform/real_file_system.h"
#include "platform/system.h"

#include <QComboBox>
#include <QDir>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace zandor {

namespace {

using Places = std::vector<FolderPlace>;

constexpr int PathRole = Qt::UserRole;
constexpr int RowsShown = 14;
constexpr int LettersShown = 76;
const QString Waiting = QStringLiteral("…"); // until the folder has answered

} // namespace

DiskMaker realDisks() {
    return [] { return std::shared_ptr<FileSystem>(makeRealFileSystem(winePrefixFolder())); };
}

FolderList::FolderList(DiskMaker disks, QWidget* parent) : QListWidget(parent), disks_(std::move(disks)) {
    setUniformItemSizes(true);
    const int icon = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
    setIconSize({icon, icon});
    connect(this, &QListWidget::itemDoubleClicked, this, &FolderList::goTo);
}

void FolderList::setPath(const std::string& path) {
    path_ = path;
    clear();
    const Places above = foldersAbove(path);
    for (std::size_t depth = 0; depth < above.size(); ++depth)
        addFolder(above[depth], static_cast<int>(depth), true);
    setCurrentRow(count() - 1);
    auto* waiting = new QListWidgetItem(Waiting, this);
    waiting->setFlags(Qt::NoItemFlags);
    const int read = ++reads_;
    readInBackground<Places>(
        this, [disks = disks_, path] { return listSubFolders(*disks(), path); },
        [this, read](const Places& folders) {
            if (read == reads_)
                showSubFolders(folders);
        });
}

void FolderList::showSubFolders(const Places& folders) {
    delete takeItem(count() - 1);
    const int depth = count();
    for (const FolderPlace& folder : folders)
        addFolder(folder, depth, false);
    scrollToItem(item(depth - 1), PositionAtTop);
}

// The way to the folder steps inwards as a tree does.
void FolderList::addFolder(const FolderPlace& place, int depth, bool open) {
    auto* row = new QListWidgetItem(QString(depth * 2, QChar::Nbsp) + toQt(place.name), this);
    row->setIcon(style()->standardIcon(open ? QStyle::SP_DirOpenIcon : QStyle::SP_DirIcon, nullptr, this));
    row->setData(PathRole, toQt(place.path));
    row->setData(Qt::AccessibleTextRole, toQt(place.name));
}

void FolderList::goTo(const QListWidgetItem* item) {
    const QString path = item ? item->data(PathRole).toString() : QString();
    if (path.isEmpty())
        return;
    setPath(fromQt(path));
    emit pathChanged();
}

void FolderList::goUp() {
    const Places above = foldersAbove(path_);
    if (above.size() < 2)
        return;
    setPath(above[above.size() - 2].path);
    emit pathChanged();
}

void FolderList::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        goTo(currentItem());
    else if (event->key() == Qt::Key_Backspace)
        goUp();
    else
        QListWidget::keyPressEvent(event);
}

FolderWindow::FolderWindow(Frame& frame, const FolderChoice& choice, DiskMaker disks, QWidget* parent)
    : QDialog(parent), files_(frame.files), drives_(new QComboBox(this)), list_(new FolderList(disks, this)),
      path_(new ElidedLabel(this, Qt::ElideMiddle)), ok_(new QPushButton(this)) {
    setWindowTitle(toQt(frame.text(choice.title)));
    setHelpContext(*this, helpContext::Folders);
    setModal(true);
    build(frame);
    ok_->setEnabled(choice.mayAcceptAtOnce);
    list_->setPath(choice.start);
    list_->setFocus();
    showPath();

    connect(list_, &FolderList::pathChanged, this, [this] {
        ok_->setEnabled(true);
        showPath();
    });
    keepFromWheel(*drives_);
    connect(drives_, &QComboBox::activated, this, [this](int index) {
        list_->setPath(driveList_[index].path);
        ok_->setEnabled(true);
        showPath();
    });
    readInBackground<Places>(
        this,
        [disks, home = pathFromQt(QDir::homePath())] {
            return listDrives(*disks(), home, winePrefixFolder());
        },
        [this](const Places& drives) { fillDrives(drives); });
}

void FolderWindow::build(const Frame& frame) {
    std::string drives = frame.text(message::FolderDrives), folders = frame.text(message::FolderFolders),
                ok = frame.text(message::ButtonOk), cancel = frame.text(message::Cancel);
    makeMnemonicsUnique({&drives, &folders, &ok, &cancel});
    const QString chosen = toQt(frame.text(message::FolderChosen));
    drives_->setObjectName("LstLecteur");
    list_->setObjectName("LstDir");
    path_->setObjectName("lblCHEMIN");
    ok_->setObjectName("cmdOK");
    ok_->setText(toQt(ok));
    ok_->setDefault(true);
    auto* cancelButton = new QPushButton(toQt(cancel), this);
    cancelButton->setObjectName("cmdCANCEL");
    makeSameWidth({ok_, cancelButton});
    connect(ok_, &QPushButton::clicked, this, &QDialog::accept);
    connect(cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    list_->setMinimumSize(fontMetrics().averageCharWidth() * LettersShown / 2,
                          fontMetrics().lineSpacing() * 6);

    auto* layout = new QVBoxLayout(this);
    const auto addLabelled = [&](const QString& caption, QWidget* control, int stretch) {
        auto* label = new QLabel(caption, this);
        label->setBuddy(control);
        control->setAccessibleName(QString(caption).remove(u'&'));
        layout->addWidget(label);
        layout->addWidget(control, stretch);
        layout->addSpacing(fontMetrics().height() / 3);
    };
    addLabelled(toQt(drives), drives_, 0);
    addLabelled(toQt(folders), list_, 1);
    addLabelled(chosen, path_, 0);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(ok_);
    buttons->addWidget(cancelButton);
    layout->addLayout(buttons);
    resize(fontMetrics().averageCharWidth() * LettersShown,
           fontMetrics().lineSpacing() * RowsShown + sizeHint().height() - list_->sizeHint().height());
}

void FolderWindow::fillDrives(const Places& drives) {
    driveList_ = drives;
    for (const FolderPlace& drive : drives)
        drives_->addItem(style()->standardIcon(QStyle::SP_DriveHDIcon, nullptr, this), toQt(drive.name));
    showPath();
}

void FolderWindow::showPath() {
    const QString path = toQt(files_.nativePath(list_->path()));
    path_->setText(path);
    drives_->setCurrentIndex(driveOf(driveList_, list_->path()));
}

frmPathMSTS::frmPathMSTS(Frame& frame, QWidget* parent, DiskMaker disks)
    : FolderWindow(frame, chooseRootFolder(frame), std::move(disks), parent), state_(frame.state) {
    setObjectName("frmPathMSTS");
}

void frmPathMSTS::accept() {
    acceptRootFolder(state_, chosen());
    QDialog::accept();
}

frmPath::frmPath(Frame& frame, QWidget* parent, DiskMaker disks)
    : FolderWindow(frame, chooseBackupFolder(frame), std::move(disks), parent), state_(frame.state) {
    setObjectName("frmPath");
}

void frmPath::accept() {
    acceptBackupFolder(state_, chosen());
    QDialog::accept();
}

} // namespace zandor
