#include "shell/screens/singleinstance.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>

namespace {

constexpr int kWaitMilliseconds = 2000;
const QByteArray kRaise = QByteArrayLiteral("raise\n");

QString CanonicalFolder(const QString& folder)
{
    const QString canonical = QFileInfo(folder).canonicalFilePath();
    return canonical.isEmpty() ? QDir::cleanPath(QFileInfo(folder).absoluteFilePath()) : canonical;
}

} // namespace

SingleInstance::SingleInstance(const QString& folder, QObject* parent)
    : QObject(parent), folder_(CanonicalFolder(folder)), lock_(QDir(folder_).filePath(QString::fromLatin1(kLockFileName)))
{
    // A lock is stale only when the copy that holds it is gone, however old.
    lock_.setStaleLockTime(0);
}

SingleInstance::~SingleInstance() = default;

QString SingleInstance::serverNameFor(const QString& folder)
{
    const QByteArray hash = QCryptographicHash::hash(CanonicalFolder(folder).toUtf8(), QCryptographicHash::Sha1);
    return QStringLiteral("brindlepot-") + QString::fromLatin1(hash.toHex().left(16));
}

QString SingleInstance::alreadyOpenText(const QString& folder)
{
    return QStringLiteral("Brindlepot is already open with this folder:\n%1\n\n"
                          "Switch to the open window, or close it before starting Brindlepot again.")
        .arg(QDir::toNativeSeparators(CanonicalFolder(folder)));
}

SingleInstance::Start SingleInstance::start()
{
    if (lock_.tryLock()) {
        listen();
        return Start::First;
    }
    QLocalSocket socket;
    socket.connectToServer(serverNameFor(folder_));
    if (socket.waitForConnected(kWaitMilliseconds)) {
        socket.write(kRaise);
        if (socket.waitForBytesWritten(kWaitMilliseconds)) {
            socket.disconnectFromServer();
            return Start::HandedOver;
        }
    }
    return Start::AlreadyOpen;
}

void SingleInstance::listen()
{
    server_ = new QLocalServer(this);
    // A name left by a copy that crashed would keep the server from starting.
    QLocalServer::removeServer(serverNameFor(folder_));
    if (!server_->listen(serverNameFor(folder_)))
        return;
    connect(server_, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket* socket = server_->nextPendingConnection()) {
            const auto read = [this, socket] {
                if (socket->readAll().contains(kRaise.trimmed()))
                    emit raiseRequested();
            };
            connect(socket, &QLocalSocket::readyRead, this, read);
            connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            if (socket->bytesAvailable() > 0)
                read();
        }
    });
}
