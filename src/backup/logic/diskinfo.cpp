#include "backup/logic/diskinfo.h"

#include "common/cp1252.h"
#include "common/numbertext.h"

#include <QFile>

namespace {

QByteArray InfoRecord(const QString& text)
{
    return ToCp1252(text).leftJustified(kDiskInfoRecord, ' ', true);
}

bool WriteRecord(BackupMedium& medium, const QString& fileName, int record, const QString& text)
{
    return medium.writeAt(fileName, qint64(record - 1) * kDiskInfoRecord, InfoRecord(text));
}

// Numbers as the old runtime reads them, kept to what a disk can mean.
qint64 NumberOf(const QString& text)
{
    const double value = Val(text);
    if (!(value > 0))
        return 0;
    return value > 1e9 ? qint64(1e9) : qint64(value);
}

QByteArray FileBytes(const QString& folder, const QString& fileName, qint64 limit)
{
    QFile file(FindInFolder(folder, fileName));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return file.read(limit);
}

} // namespace

bool StartDiskInfo(BackupMedium& medium, const QString& fileName, const QString& setName)
{
    return WriteRecord(medium, fileName, 1, setName) &&
           WriteRecord(medium, fileName, 6, QString::fromLatin1(kDiskInfoMark));
}

bool WriteDiskInfo(BackupMedium& medium, const QString& fileName, const DiskInfo& info)
{
    bool held = WriteRecord(medium, fileName, 1, info.setName) &&
                WriteRecord(medium, fileName, 2, QString::number(info.disk)) &&
                WriteRecord(medium, fileName, 3, QString::number(info.nextDisk)) &&
                WriteRecord(medium, fileName, 4, QString::number(info.count));
    if (held && info.disk == 1)
        held = WriteRecord(medium, fileName, 5, QString::number(info.total));
    return held && WriteRecord(medium, fileName, 6, QString::fromLatin1(kDiskInfoMark));
}

DiskInfo ParseDiskInfo(QByteArrayView bytes, int recordLength)
{
    auto record = [&](int number) {
        const qint64 start = qint64(number - 1) * recordLength;
        if (start >= bytes.size())
            return QString();
        QByteArray raw = bytes.sliced(start, std::min<qint64>(recordLength, bytes.size() - start)).toByteArray();
        raw.replace('\0', ' ');
        return FromCp1252(raw).trimmed();
    };
    DiskInfo info;
    info.setName = record(1);
    info.disk = int(std::min<qint64>(NumberOf(record(2)), 1000000));
    info.nextDisk = int(std::min<qint64>(NumberOf(record(3)), 1000000));
    info.count = NumberOf(record(4));
    info.total = NumberOf(record(5));
    info.mark = record(6);
    return info;
}

DiskInfo ReadDiskInfo(const QString& folder, const QString& fileName, int recordLength)
{
    return ParseDiskInfo(FileBytes(folder, fileName, 6 * recordLength), recordLength);
}

bool IsOldFormatInfo(const QString& folder, const QString& fileName)
{
    return !FindInFolder(folder, fileName).isEmpty() &&
           ReadDiskInfo(folder, fileName).mark != QLatin1String(kDiskInfoMark);
}
