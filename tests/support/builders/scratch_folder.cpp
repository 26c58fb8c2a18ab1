#include "scratch_folder.h"

#include "common/programfolder.h"

#include <QDir>
#include <QFile>

ScratchFolder::ScratchFolder() : previous_(QDir::currentPath())
{
    if (dir_.isValid()) {
        SetProgramFolder(dir_.path());
        ready_ = EnterProgramFolder();
    }
}

ScratchFolder::~ScratchFolder()
{
    QDir::setCurrent(previous_);
    SetProgramFolder({});
}

QByteArray ScratchFolder::bytesOf(const QString& name) const
{
    return ReadFileBytes(filePath(name));
}

bool ScratchFolder::writeBytes(const QString& name, QByteArrayView bytes) const
{
    return WriteFileBytes(filePath(name), bytes);
}

QByteArray ReadFileBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool WriteFileBytes(const QString& path, QByteArrayView bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly | QIODevice::Truncate)
        && file.write(bytes.data(), bytes.size()) == bytes.size();
}
