// A program that is started with a consist while another one runs hands the consist over to it. Both sides
// make sure that the other is the same user.
#pragma once

#include <QLockFile>
#include <QObject>
#include <QString>

#include <memory>

class QLocalServer;
class QLocalSocket;

namespace zandor {

class SingleInstance final : public QObject {
    Q_OBJECT
  public:
    // `home` tells apart programs that have settings of their own. Each user has their own in any case.
    explicit SingleInstance(const QString& home);
    ~SingleInstance() override;

    // True: a running program has taken the file, and this one need not start. `path` is absolute. Takes a
    // few seconds at most, when a program that hangs doesn't answer.
    bool handOver(const QString& path) const;
    // From now on later starts hand their files over to this program, unless another one listens already.
    void listen();

  signals:
    void fileGiven(const QString& path); // from the event loop, with no connection open

  private:
    class Visit;
    void welcome();
    void deliverLater(const QString& path);

    QString name_; // native path of the socket; empty: there is no folder that is this user's alone
    std::unique_ptr<QLockFile> lock_; // held by the program that listens
    std::unique_ptr<QLocalServer> server_;
};

} // namespace zandor
