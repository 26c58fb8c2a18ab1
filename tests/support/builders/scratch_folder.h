#pragma once
// A program folder of its own for a test or a benchmark: a new temporary
// folder, pinned as the program folder and made the current directory for
// the life of the object. The previous current directory comes back at the
// end and the folder is removed.
#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

class ScratchFolder {
public:
    ScratchFolder();
    ~ScratchFolder();
    ScratchFolder(const ScratchFolder&) = delete;
    ScratchFolder& operator=(const ScratchFolder&) = delete;

    // False when the folder could not be made or entered.
    bool isReady() const { return ready_; }
    QString path() const { return dir_.path(); }
    QString filePath(const QString& name) const { return dir_.filePath(name); }

    // Empty when the file is missing.
    QByteArray bytesOf(const QString& name) const;
    // Replaces the file's contents; false when the write failed.
    bool writeBytes(const QString& name, QByteArrayView bytes) const;

private:
    QTemporaryDir dir_;
    QString previous_;
    bool ready_ = false;
};

// The whole file, empty when it cannot be read.
QByteArray ReadFileBytes(const QString& path);
// Creates or truncates the file and writes all of `bytes`.
bool WriteFileBytes(const QString& path, QByteArrayView bytes);
