#pragma once
// The program's data files are random-access files of fixed-length records
// numbered from 1: record n starts at byte (n - 1) x record length.
//
// Opening a file that does not exist creates it empty. Reading past the end
// gives zero bytes; writing past the end extends the file (the gap reads as
// zeros). Nothing here ever shortens a file. The file is closed when the
// object goes out of scope, so an operation keeps nothing open.
#include <QByteArray>
#include <QFile>
#include <QString>

class RandomAccessFile {
public:
    // `name` is resolved case-blind against the current folder.
    RandomAccessFile(const QString& name, int recordLength);

    bool isOpen() const { return file_.isOpen(); }
    int recordLength() const { return recordLength_; }
    // Number of records that start inside the file (a short last one counts).
    qint64 recordCount() const;

    // Always exactly recordLength() bytes; what lies past the end is zero.
    QByteArray read(qint64 recordNumber);
    // `count` consecutive records in one read, zero-filled past the end.
    QByteArray readRecords(qint64 firstRecord, qint64 count);
    // Writes the whole record: `bytes` cut or zero-padded to the record
    // length. Returns false when the write failed or the number is below 1.
    bool write(qint64 recordNumber, QByteArrayView bytes);
    // Consecutive whole records from `firstRecord` in one write; `bytes` is
    // zero-padded to a whole number of records.
    bool writeRecords(qint64 firstRecord, QByteArrayView bytes);
    // Writes `bytes` (at most a record) at the start of the record and
    // nothing else: the rest of the record keeps what it holds, and a write
    // past the end extends the file only to the last byte written.
    bool writePart(qint64 recordNumber, QByteArrayView bytes);

private:
    QFile file_;
    int recordLength_;
};
