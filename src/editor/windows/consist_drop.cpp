#include "editor/windows/consist_drop.h"

#include "frame/windows/qt_text.h"

#include <QDropEvent>
#include <QMimeData>
#include <QTimer>
#include <QUrl>
#include <QWidget>

namespace zandor {

namespace {

// The first consist file among what is dragged; empty when there is none.
QString draggedConsist(const QMimeData* data) {
    for (const QUrl& url : data->urls())
        if (const QString path = url.toLocalFile(); path.endsWith(".con", Qt::CaseInsensitive))
            return path;
    return {};
}

// A file is read where it lies: its owner must not take it for moved, and delete it.
void takeAsCopy(QDropEvent* event) {
    if (!event->possibleActions().testFlag(Qt::CopyAction) || draggedConsist(event->mimeData()).isEmpty())
        return event->ignore();
    event->setDropAction(Qt::CopyAction);
    event->accept();
}

} // namespace

ConsistDrop::ConsistDrop(QWidget& window) : QObject(&window) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

bool ConsistDrop::eventFilter(QObject* watched, QEvent* event) {
    const bool isDrop = event->type() == QEvent::Drop;
    if (!isDrop && event->type() != QEvent::DragEnter && event->type() != QEvent::DragMove)
        return QObject::eventFilter(watched, event);
    auto* drag = static_cast<QDropEvent*>(event);
    takeAsCopy(drag);
    if (isDrop && drag->isAccepted()) // a question must not stand in the middle of the system's drag
        QTimer::singleShot(
            0, this, [this, path = pathFromQt(draggedConsist(drag->mimeData()))] { emit dropped(path); });
    return true;
}

} // namespace zandor
