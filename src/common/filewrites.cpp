#include "common/filewrites.h"

#include "common/programfolder.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace {

struct Seam {
    FileWriteSeam::BeforeWrite before;
    FileWriteSeam::AfterWrite after;
};

Seam& TheSeam()
{
    static Seam seam;
    return seam;
}

// The rename that replaced the file is durable only once the folder's own
// entry list is on the disk.
void SyncFolderOf(const QString& path)
{
    const QByteArray folder = QFileInfo(path).absolutePath().toLocal8Bit();
    const int fd = ::open(folder.constData(), O_RDONLY | O_DIRECTORY);
    if (fd < 0)
        return;
    ::fsync(fd);
    ::close(fd);
}

// The bytes of a file written in place reach the disk only when asked.
bool SyncFile(const QString& path)
{
    const int fd = ::open(QFile::encodeName(path).constData(), O_RDONLY);
    if (fd < 0)
        return false;
    const bool synced = ::fsync(fd) == 0;
    ::close(fd);
    return synced;
}

} // namespace

bool WriteWholeFile(const QString& name, QByteArrayView bytes)
{
    return WriteWholeFileAt(ResolveFileName(name), bytes);
}

bool WriteWholeFileAt(const QString& path, QByteArrayView bytes)
{
    if (!FileWriteSeam::allows(path))
        return false;
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    // The explicit flush matters: a write that fails while the buffer is
    // flushed inside commit() does not always make commit() return false,
    // and the cut-off content would replace the old file.
    if (file.write(bytes.data(), bytes.size()) != bytes.size() || !file.flush()
        || file.error() != QFileDevice::NoError) {
        file.cancelWriting();
        return false;
    }
    if (!file.commit())
        return false;
    SyncFolderOf(path);
    FileWriteSeam::held(path);
    return true;
}

bool ReplaceFile(const QString& from, const QString& to)
{
    if (!FileWriteSeam::allows(to) || !SyncFile(from))
        return false;
    if (::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) != 0)
        return false;
    SyncFolderOf(to);
    FileWriteSeam::held(to);
    return true;
}

namespace FileWriteSeam {

void set(BeforeWrite before, AfterWrite after)
{
    TheSeam() = {std::move(before), std::move(after)};
}

void clear()
{
    TheSeam() = {};
}

bool allows(const QString& fileName)
{
    return !TheSeam().before || TheSeam().before(fileName);
}

void held(const QString& fileName)
{
    if (TheSeam().after)
        TheSeam().after(fileName);
}

} // namespace FileWriteSeam
