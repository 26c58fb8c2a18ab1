#include "cookbook/logic/cookbookfiles.h"

#include "common/filewrites.h"
#include "common/randomaccessfile.h"
#include "cookbook/logic/nameentry.h"


namespace {

// Records per read when scanning a whole file: 256 recipe records are about
// half a megabyte, large enough that the scan costs what a plain read does.
constexpr qint64 kRecipeScanBlock = 256;
constexpr qint64 kNameReadBlock = 4096;

// The first of slots 1 to 30000 (and inside the file) whose used state is
// `used`; 0 when there is none. Only the five mark bytes of each record
// decide; the records are read in blocks because a whole file of used slots
// is tens of megabytes.
qint64 FirstSlotWhoseMarkIs(int cookbook, bool used, qint64* present = nullptr)
{
    RandomAccessFile recipes(RecipeFileName(cookbook), RecipeRecord::kSize);
    const qint64 inFile = std::min<qint64>(recipes.recordCount(), kLastScannedSlot);
    if (present)
        *present = inFile;
    for (qint64 first = 1; first <= inFile; first += kRecipeScanBlock) {
        const qint64 count = std::min(kRecipeScanBlock, inFile - first + 1);
        const QByteArray block = recipes.readRecords(first, count);
        const char* record = block.constData();
        for (qint64 i = 0; i < count; ++i, record += RecipeRecord::kSize) {
            if (RecipeRecord::IsUsedMark(record + RecipeRecord::kSlotMarkOffset) == used)
                return first + i;
        }
    }
    return 0;
}

} // namespace

StoredRecipe ReadRecipe(int cookbook, RecordNumber recordNumber)
{
    RandomAccessFile recipes(RecipeFileName(cookbook), RecipeRecord::kSize);
    RandomAccessFile extras(ExtraFileName(cookbook), RecipeExtraRecord::kSize);
    StoredRecipe stored;
    stored.record = RecipeRecord::FromBytes(recipes.read(recordNumber));
    stored.picturePath = RecipeExtraRecord::FromBytes(extras.read(recordNumber)).picturePath();
    return stored;
}

WriteOutcome WriteRecipe(int cookbook, RecordNumber recordNumber, const RecipeRecord& record,
                         QStringView picturePath)
{
    {
        RandomAccessFile recipes(RecipeFileName(cookbook), RecipeRecord::kSize);
        if (!recipes.write(recordNumber, record.toBytes()))
            return WriteOutcome::FailedOn(RecipeFileName(cookbook));
    }
    RandomAccessFile extras(ExtraFileName(cookbook), RecipeExtraRecord::kSize);
    RecipeExtraRecord extra;
    if (!extra.setPicturePath(picturePath) || !extras.write(recordNumber, extra.toBytes()))
        return WriteOutcome::FailedOn(ExtraFileName(cookbook));
    return WriteOutcome::Held();
}

RecordNumber FindFreeSlot(int cookbook)
{
    qint64 present = 0;
    const qint64 free = FirstSlotWhoseMarkIs(cookbook, false, &present);
    // Else the first slot past the end, or 30001 when the scan ran through.
    return RecordNumber(free > 0 ? free : present + 1);
}

bool CookbookHasRecipes(int cookbook)
{
    return FirstSlotWhoseMarkIs(cookbook, true) > 0;
}

WriteOutcome ClearRecipe(int cookbook, RecordNumber recordNumber)
{
    return WriteRecipe(cookbook, recordNumber, RecipeRecord::Cleared(), {});
}

QStringList ReadNameList(int cookbook, RecipeType type)
{
    RandomAccessFile names(NameFileName(cookbook, type), RecipeNameRecord::kSize);
    const qint64 slotCount = names.recordCount();
    QStringList entries;
    for (qint64 first = 1; first <= slotCount; first += kNameReadBlock) {
        const qint64 count = std::min(kNameReadBlock, slotCount - first + 1);
        const QByteArray block = names.readRecords(first, count);
        for (qint64 i = 0; i < count; ++i) {
            const QByteArrayView slot(block.constData() + i * RecipeNameRecord::kSize,
                                      RecipeNameRecord::kSize);
            QString entry = RecipeNameRecord::FromBytes(slot).nameEntry();
            if (!IsBlankText(entry))
                entries.append(std::move(entry));
        }
    }
    return entries;
}

QString ReadNameSlot(int cookbook, RecipeType type, int slot)
{
    RandomAccessFile names(NameFileName(cookbook, type), RecipeNameRecord::kSize);
    return RecipeNameRecord::FromBytes(names.read(slot)).nameEntry();
}

WriteOutcome RebuildNameFile(int cookbook, RecipeType type, const QStringList& entries,
                             const QString& newEntry)
{
    const QString fileName = NameFileName(cookbook, type);
    // The file as the two classic passes leave it, made whole in memory:
    // every slot there was and one more, blank, then the entries from slot 1
    // up to the first empty one and the new entry after them.
    qint64 slotCount = 0;
    {
        const RandomAccessFile names(fileName, RecipeNameRecord::kSize);
        slotCount = names.recordCount() + 1;
    }
    QStringList written;
    for (const QString& entry : entries) {
        if (entry.isEmpty())
            break;
        written << entry;
    }
    if (!newEntry.isEmpty())
        written << newEntry;
    slotCount = std::max<qint64>(slotCount, written.size());
    const QByteArray blank = RecipeNameRecord::Cleared().toBytes();
    QByteArray bytes = blank.repeated(slotCount);
    bool allFit = true;
    for (qsizetype i = 0; i < written.size(); ++i) {
        // An entry too long for its slot is skipped; its slot keeps the blank.
        RecipeNameRecord record = RecipeNameRecord::Cleared();
        allFit = record.setNameEntry(written[i]) && allFit;
        bytes.replace(i * RecipeNameRecord::kSize, RecipeNameRecord::kSize, record.toBytes());
    }
    // One step: a crash or a full disk leaves the old file whole.
    return WriteWholeFile(fileName, bytes) && allFit ? WriteOutcome::Held() : WriteOutcome::FailedOn(fileName);
}
