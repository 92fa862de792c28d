// A program that is started with a consist while another one runs hands the consist over to it.
#pragma once

#include <QObject>
#include <QString>

#include <memory>

class QLocalServer;

namespace zandor {

class SingleInstance final : public QObject {
    Q_OBJECT
  public:
    // `home` tells apart programs that have settings of their own. Each user has their own in any case.
    explicit SingleInstance(const QString& home);
    ~SingleInstance() override;

    // True: a running program has taken the file, and this one need not start. `path` is absolute.
    bool handOver(const QString& path) const;
    // From now on later starts hand their files over to this program.
    void listen();

  signals:
    void fileGiven(const QString& path);

  private:
    void take();

    QString name_;
    std::unique_ptr<QLocalServer> server_;
};

} // namespace zandor
