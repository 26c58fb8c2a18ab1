#include "storage/logic/storagemodel.h"

#include "storage/logic/storageedits.h"
#include "storage/logic/storagefiles.h"

void StorageModel::switchKind(StorageKind kind)
{
    kind_ = kind;
    load();
}

QString StorageModel::caption() const
{
    return QString::fromLatin1(KindInfo(kind_).caption);
}

void StorageModel::load()
{
    table_ = ReadTableFile(kind_);
    IndentItemNames(table_, kind_);
    familySize_ = FamilySizeOnLoad(ReadFamilyFile());
    RecalculateAll(table_, kind_, familySize_);
    category_ = kAllCategory;
    dataChanged_ = false;
}

StorageSaveResult StorageModel::save()
{
    if (allView())
        RestoreMarkers(table_, kind_);
    category_ = kAllCategory;
    if (!WriteTableFile(kind_, table_))
        return {QString::fromLatin1(KindInfo(kind_).tableFile)};
    if (!WriteFamilyFile(familySize_))
        return {QString::fromLatin1(kFamilyFile)};
    dataChanged_ = false;
    return {};
}

void StorageModel::setFamilySize(const QString& familySize)
{
    if (familySize != familySize_)
        dataChanged_ = true;
    familySize_ = familySize;
    if (allView())
        RecalculateAll(table_, kind_, familySize_);
}

void StorageModel::showCategory(int category)
{
    if (CategoryRows(kind_, category).count() > 0)
        category_ = category;
}

int StorageModel::tableRow(int gridRow) const
{
    const RowRange rows = shownRows();
    const int row = rows.first + gridRow;
    return gridRow >= 0 && rows.contains(row) ? row : 0;
}

CursorOutcome StorageModel::cursorRule(int row, int column) const
{
    return CursorRuleFor(table_, row, column, allView());
}

CommitOutcome StorageModel::commit(int row, int column, const QString& typed)
{
    const CommitOutcome outcome = CommitValue(table_, kind_, row, column, typed, familySize_, allView());
    if (!outcome.refused)
        dataChanged_ = true;
    return outcome;
}

void StorageModel::applyDefaultTitles()
{
    ApplyDefaultTitles(table_, kind_, ReadDefaultTitles(kind_));
    dataChanged_ = true;
}

void StorageModel::applyDefaultAmounts()
{
    ApplyDefaultAmounts(table_, kind_, ReadDefaultAmounts(kind_));
    RecalculateAll(table_, kind_, familySize_);
    dataChanged_ = true;
}

void StorageModel::clearLastActions()
{
    ClearLastActions(table_);
    dataChanged_ = true;
}
