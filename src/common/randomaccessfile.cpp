#include "common/randomaccessfile.h"

#include "common/filewrites.h"
#include "common/programfolder.h"

RandomAccessFile::RandomAccessFile(const QString& name, int recordLength)
    : file_(ResolveFileName(name)), recordLength_(recordLength > 0 ? recordLength : 1)
{
    if (!file_.open(QIODevice::ReadWrite))
        (void)file_.open(QIODevice::ReadOnly); // a read-only file still reads
}

qint64 RandomAccessFile::recordCount() const
{
    if (!file_.isOpen())
        return 0;
    return (file_.size() + recordLength_ - 1) / recordLength_;
}

QByteArray RandomAccessFile::read(qint64 recordNumber)
{
    return readRecords(recordNumber, 1);
}

QByteArray RandomAccessFile::readRecords(qint64 firstRecord, qint64 count)
{
    if (count < 1)
        return {};
    QByteArray out(count * recordLength_, '\0');
    if (firstRecord < 1 || !file_.isOpen())
        return out;
    const qint64 offset = (firstRecord - 1) * recordLength_;
    if (offset >= file_.size() || !file_.seek(offset))
        return out;
    const qint64 got = file_.read(out.data(), out.size());
    if (got < out.size())
        std::fill(out.begin() + std::max<qint64>(got, 0), out.end(), '\0');
    return out;
}

bool RandomAccessFile::write(qint64 recordNumber, QByteArrayView bytes)
{
    return writeRecords(recordNumber, bytes.first(std::min<qsizetype>(bytes.size(), recordLength_)));
}

bool RandomAccessFile::writeRecords(qint64 firstRecord, QByteArrayView bytes)
{
    if (firstRecord < 1 || !file_.isOpen() || !file_.isWritable())
        return false;
    const qsizetype records = std::max<qsizetype>(1, (bytes.size() + recordLength_ - 1) / recordLength_);
    QByteArray block(records * recordLength_, '\0');
    std::copy(bytes.begin(), bytes.end(), block.begin());
    if (!FileWriteSeam::allows(file_.fileName()) || !file_.seek((firstRecord - 1) * recordLength_))
        return false;
    if (file_.write(block) != block.size() || !file_.flush())
        return false;
    FileWriteSeam::held(file_.fileName());
    return true;
}

bool RandomAccessFile::writePart(qint64 recordNumber, QByteArrayView bytes)
{
    if (recordNumber < 1 || !file_.isOpen() || !file_.isWritable())
        return false;
    const QByteArrayView part = bytes.first(std::min<qsizetype>(bytes.size(), recordLength_));
    if (!file_.seek((recordNumber - 1) * recordLength_))
        return false;
    return file_.write(part.data(), part.size()) == part.size() && file_.flush();
}
