#pragma once
// One program per data folder. Two copies working on one folder would each
// keep their own lists, and one's rewrite of a name file would drop the
// recipes the other saved. The first copy holds a lock in the folder and
// listens under a name made from the folder; a second start asks it to
// bring its window forward and ends. A lock left by a copy that crashed is
// taken over.
#include <QLockFile>
#include <QObject>
#include <QString>

class QLocalServer;

class SingleInstance final : public QObject {
    Q_OBJECT
public:
    enum class Start {
        First,        // this copy holds the folder
        HandedOver,   // another copy holds it and was asked to come forward
        AlreadyOpen,  // another copy holds it and could not be reached
    };

    explicit SingleInstance(const QString& folder, QObject* parent = nullptr);
    ~SingleInstance() override;

    Start start();
    // The message for a copy that could not be reached.
    static QString alreadyOpenText(const QString& folder);
    static QString serverNameFor(const QString& folder);
    static constexpr const char* kLockFileName = ".brindlepot.lock";

signals:
    // A second start asked this copy to bring its window forward.
    void raiseRequested();

private:
    void listen();

    QString folder_;
    QLockFile lock_;
    QLocalServer* server_ = nullptr;
};
