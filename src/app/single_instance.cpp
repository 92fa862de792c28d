#include "app/single_instance.h"

#include "platform/local_user.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QTimer>

namespace zandor {

namespace {

constexpr int LongestWait = 1000;  // ms, for one answer of a running program
constexpr int LongestVisit = 5000; // ms, for all that a later start has to say
constexpr qint64 LongestPath = 32768;
// What is said: the path and its end, Taken, Agreed. Only then is the file the running program's: a start
// that has given up waiting for Taken opens its own window, and the file must not come up twice.
constexpr char PathEnd = '\0', Taken = '+', Agreed = '!';

// One socket for each settings folder, in a folder of this user's.
QString socketPath(const QString& home) {
    const QString folder = QString::fromStdString(privateRuntimeFolder());
    const QByteArray place = (QDir::homePath() + u'\n' + home).toUtf8();
    const QByteArray mark = QCryptographicHash::hash(place, QCryptographicHash::Sha1).toHex().left(16);
    return folder.isEmpty() ? QString() : folder + "/zandor-" + QString::fromLatin1(mark);
}

bool isOwn(const QLocalSocket& socket) {
    return isSameUser(static_cast<int>(socket.socketDescriptor()));
}

} // namespace

// One connection of a later start. Ends by itself.
class SingleInstance::Visit final : public QObject {
  public:
    Visit(SingleInstance& host, QLocalSocket* socket) : QObject(&host), host_(host), socket_(socket) {
        socket_->setParent(this);
        connect(socket_, &QLocalSocket::readyRead, this, &Visit::listen);
        connect(socket_, &QLocalSocket::disconnected, this, &QObject::deleteLater);
        QTimer::singleShot(LongestVisit, this, &Visit::end);
        if (!isOwn(*socket_))
            end();
        else if (socket_->bytesAvailable() > 0)
            listen();
    }

  private:
    void listen() {
        said_ += socket_->read(LongestPath + 2 - said_.size());
        const qsizetype pathEnd = said_.indexOf(PathEnd);
        if (pathEnd < 0 && said_.size() > LongestPath)
            return end();
        if (pathEnd < 0)
            return;
        if (!answered_) {
            answered_ = true;
            socket_->write(&Taken, 1);
            socket_->flush();
        }
        if (said_.size() == pathEnd + 1)
            return;
        if (said_[pathEnd + 1] == Agreed)
            host_.deliverLater(QString::fromUtf8(said_.left(pathEnd)));
        end();
    }
    void end() {
        socket_->disconnect(this);
        socket_->abort();
        deleteLater();
    }

    SingleInstance& host_;
    QLocalSocket* socket_;
    QByteArray said_;
    bool answered_ = false;
};

SingleInstance::SingleInstance(const QString& home) : name_(socketPath(home)) {}

SingleInstance::~SingleInstance() = default;

bool SingleInstance::handOver(const QString& path) const {
    QLocalSocket socket;
    if (name_.isEmpty())
        return false;
    socket.connectToServer(name_);
    if (!socket.waitForConnected(LongestWait) || !isOwn(socket))
        return false;
    socket.write(path.toUtf8() + PathEnd);
    if (!socket.waitForReadyRead(LongestWait) || socket.read(1) != QByteArray(1, Taken))
        return false;
    socket.write(&Agreed, 1);
    return socket.waitForBytesWritten(LongestWait);
}

void SingleInstance::listen() {
    if (name_.isEmpty())
        return;
    lock_ = std::make_unique<QLockFile>(name_ + ".lock");
    lock_->setStaleLockTime(0); // only the end of the program that holds it ends it
    if (!lock_->tryLock(0))
        return;                        // the program that came first goes on taking the files
    QLocalServer::removeServer(name_); // left by one that was killed
    server_ = std::make_unique<QLocalServer>();
    server_->setSocketOptions(QLocalServer::UserAccessOption);
    connect(server_.get(), &QLocalServer::newConnection, this, &SingleInstance::welcome);
    server_->listen(name_);
}

void SingleInstance::welcome() {
    while (QLocalSocket* socket = server_->nextPendingConnection())
        new Visit(*this, socket); // its parent is this
}

// What is done with the file may open windows, whose event loops would end the connection beneath its own
// signal.
void SingleInstance::deliverLater(const QString& path) {
    QMetaObject::invokeMethod(
        this, [this, path] { emit fileGiven(path); }, Qt::QueuedConnection);
}

} // namespace zandor
