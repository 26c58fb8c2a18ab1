#include "cookbook/logic/olddatabase.h"

#include "common/blanktext.h"
#include "common/programfolder.h"
#include "common/randomaccessfile.h"
#include "cookbook/logic/cookbooknames.h"

#include <QFile>
#include <QFileInfo>

#include <cstring>

namespace {

// The file the converted records are written to before it takes the
// recipe file's name.
const QString kConvertedFileName = QStringLiteral("Recipe3.db1");

// Old records per read: about 400 KB.
constexpr qint64 kConversionBlock = 256;

// Where the old right ingredient column starts in the new record.
constexpr int kRowShift = RecipeRecord::kRows / 2 - OldRecipeRecord::kColumnRows;

constexpr QByteArrayView kFull("Full");

QByteArrayView WithoutTrailingBlanks(QByteArrayView text)
{
    while (!text.isEmpty() && text.back() == ' ')
        text = text.chopped(1);
    return text;
}

QByteArrayView WithoutLeadingBlanks(QByteArrayView text)
{
    while (!text.isEmpty() && text.front() == ' ')
        text = text.sliced(1);
    return text;
}

// Whether any of the first `slotCount` records of `name` has a mark that
// `isMarked` accepts. One read: the slots looked at are a few megabytes.
bool AnyMarkIn(const QString& name, int recordLength, int markOffset, int slotCount, bool (*isMarked)(const char*))
{
    RandomAccessFile file(name, recordLength);
    const qint64 present = std::min<qint64>(file.recordCount(), slotCount);
    const QByteArray records = file.readRecords(1, present);
    for (qint64 i = 0; i < present; ++i) {
        if (isMarked(records.constData() + i * recordLength + markOffset))
            return true;
    }
    return false;
}

// Removes the file `name` in every spelling of its case; false when one
// could not be removed.
bool RemoveEverySpelling(const QString& name)
{
    for (QString found = ResolveFileName(name); QFileInfo::exists(found); found = ResolveFileName(name)) {
        if (!QFile::remove(found))
            return false;
    }
    return true;
}

// Slots 1 to 30000 of the old file into the same slots of `convertedName`;
// false at the first write that did not hold.
bool CopyOldRecipes(const QString& oldName, const QString& convertedName, const std::function<void(int)>& slotPassed)
{
    RandomAccessFile old(oldName, OldRecipeRecord::kSize);
    RandomAccessFile converted(convertedName, RecipeRecord::kSize);
    for (qint64 first = 1; first <= kOldSlotsConverted; first += kConversionBlock) {
        const qint64 count = std::min<qint64>(kConversionBlock, kOldSlotsConverted - first + 1);
        const QByteArray block = old.readRecords(first, count);
        for (qint64 i = 0; i < count; ++i) {
            const QByteArrayView record(block.constData() + i * OldRecipeRecord::kSize, OldRecipeRecord::kSize);
            const int slot = int(first + i);
            if (OldRecipeRecord::MarkTrimsToFull(record.data() + OldRecipeRecord::kSlotMarkOffset)
                && !converted.write(slot, ConvertOldRecord(OldRecipeRecord::FromBytes(record)).toBytes()))
                return false;
            if (slotPassed)
                slotPassed(slot);
        }
    }
    return true;
}

} // namespace

bool OldRecipeRecord::MarkEndsFull(const char* mark)
{
    return WithoutTrailingBlanks(QByteArrayView(mark, 5)) == kFull;
}

bool OldRecipeRecord::MarkTrimsToFull(const char* mark)
{
    return WithoutLeadingBlanks(WithoutTrailingBlanks(QByteArrayView(mark, 5))) == kFull;
}

OldRecipeRecord OldRecipeRecord::FromBytes(QByteArrayView bytes)
{
    OldRecipeRecord record; // zero-filled, so a short input leaves zeros past its end
    const auto count = std::size_t(std::min<qsizetype>(bytes.size(), kSize));
    if (count > 0)
        std::memcpy(static_cast<void*>(&record), bytes.data(), count);
    return record;
}

RecipeRecord ConvertOldRecord(const OldRecipeRecord& old)
{
    RecipeRecord record = RecipeRecord::Cleared();
    for (int row = 0; row < OldRecipeRecord::kRows; ++row) {
        const int to = row < OldRecipeRecord::kColumnRows ? row : row + kRowShift;
        record.amounts[to].setText(old.amounts[row].text());
        record.amountTypes[to].setText(old.amountTypes[row].text());
        record.ingredients[to].setText(old.ingredients[row].text());
    }
    record.directions.setText(old.directions.text());
    record.ovenTemperature.setText(old.ovenTemperature.text());
    record.yieldAmount.setText(old.yieldAmount.text());
    record.cookingTime.setText(old.cookingTime.text());
    record.yieldType.setText(old.yieldType.text());
    record.slotMark.setText(Trim(old.slotMark.text()) + u'1');
    return record;
}

int CheckOldDatabase(int cookbook)
{
    if (cookbook >= 2)
        return 0;
    return AnyMarkIn(RecipeFileName(1), OldRecipeRecord::kSize, OldRecipeRecord::kSlotMarkOffset, kOldSlotsChecked,
                     &OldRecipeRecord::MarkEndsFull)
        ? kConversionPending
        : 0;
}

bool RecipeFileIsCurrent()
{
    return AnyMarkIn(RecipeFileName(1), RecipeRecord::kSize, RecipeRecord::kSlotMarkOffset, kOldSlotsChecked,
                     &RecipeRecord::IsUsedMark);
}

WriteOutcome ConvertOldRecipeFile(const OldConversionSteps& steps)
{
    const QString oldName = ResolveFileName(RecipeFileName(1));
    if (!RemoveEverySpelling(kConvertedFileName))
        return WriteOutcome::FailedOn(kConvertedFileName);
    if (!CopyOldRecipes(oldName, kConvertedFileName, steps.slotPassed)) {
        RemoveEverySpelling(kConvertedFileName);
        return WriteOutcome::FailedOn(kConvertedFileName);
    }
    if (steps.copied)
        steps.copied();
    if (!ReplaceFile(ResolveFileName(kConvertedFileName), oldName)) {
        RemoveEverySpelling(kConvertedFileName);
        return WriteOutcome::FailedOn(oldName);
    }
    if (steps.replaced)
        steps.replaced();
    return WriteOutcome::Held();
}
