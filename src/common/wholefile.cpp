#include "common/wholefile.h"

#include <QSaveFile>

bool WriteWholeFile(const QString& path, QByteArrayView bytes)
{
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
    return file.commit();
}
