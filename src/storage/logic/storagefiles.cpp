#include "storage/logic/storagefiles.h"

#include "common/quotedlinefile.h"

namespace {

QString NameOf(const char* fileName)
{
    return QString::fromLatin1(fileName);
}

} // namespace

StorageTable ReadTableFile(StorageKind kind)
{
    return StorageTable::fromValues(ReadQuotedLineFile(NameOf(KindInfo(kind).tableFile)));
}

// The old program emptied the file before writing it again; the whole file
// is now written beside the old one and takes its place in one step, which
// gives the same bytes and never leaves a half-written table.
bool WriteTableFile(StorageKind kind, const StorageTable& table)
{
    return WriteQuotedLineFile(NameOf(KindInfo(kind).tableFile), table.values());
}

QString ReadFamilyFile()
{
    return ReadQuotedLineFile(NameOf(kFamilyFile)).value(0);
}

bool WriteFamilyFile(const QString& familySize)
{
    return WriteQuotedLineFile(NameOf(kFamilyFile), {familySize});
}

QStringList ReadDefaultTitles(StorageKind kind)
{
    return ReadQuotedLineFile(NameOf(KindInfo(kind).titlesFile)).mid(0, kStorageRows);
}

QStringList ReadDefaultAmounts(StorageKind kind)
{
    return ReadQuotedLineFile(NameOf(KindInfo(kind).amountsFile)).mid(0, DefaultAmountRows(kind).size());
}
