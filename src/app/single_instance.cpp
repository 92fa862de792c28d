#include "app/single_instance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>

namespace zandor {

namespace {

constexpr int LongestWait = 1000; // ms, for a running program to answer
constexpr char Taken = '+';
constexpr qint64 LongestPath = 32768;

// One name for each user and settings folder.
QString serverName(const QString& home) {
    const QByteArray place = (QDir::homePath() + u'\n' + home).toUtf8();
    return "zandor-" + QString::fromLatin1(QCryptographicHash::hash(place, QCryptographicHash::Sha1).toHex());
}

} // namespace

SingleInstance::SingleInstance(const QString& home) : name_(serverName(home)) {}

SingleInstance::~SingleInstance() = default;

bool SingleInstance::handOver(const QString& path) const {
    QLocalSocket socket;
    socket.connectToServer(name_);
    if (!socket.waitForConnected(LongestWait))
        return false;
    socket.write(path.toUtf8() + '\n');
    return socket.waitForBytesWritten(LongestWait) && socket.waitForReadyRead(LongestWait) &&
           socket.read(1) == QByteArray(1, Taken);
}

void SingleInstance::listen() {
    server_ = std::make_unique<QLocalServer>();
    server_->setSocketOptions(QLocalServer::UserAccessOption);
    connect(server_.get(), &QLocalServer::newConnection, this, &SingleInstance::take);
    QLocalSocket other;
    other.connectToServer(name_);
    if (other.waitForConnected(LongestWait))
        return;                        // the program that came first goes on taking the files
    QLocalServer::removeServer(name_); // left by one that was killed
    server_->listen(name_);
}

void SingleInstance::take() {
    while (QLocalSocket* socket = server_->nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] {
            if (!socket->canReadLine()) {
                if (socket->bytesAvailable() > LongestPath)
                    socket->abort();
                return;
            }
            const QString path = QString::fromUtf8(socket->readLine(LongestPath).chopped(1));
            socket->write(&Taken, 1);
            socket->flush();
            emit fileGiven(path);
        });
    }
}

} // namespace zandor
