#include "recipetools/logic/recipelifecycle.h"

#include "common/listorder.h"
#include "cookbook/logic/cookbookfiles.h"
#include "cookbook/logic/cookbooknames.h"
#include "cookbook/logic/nameentry.h"

#include <QCoreApplication>

namespace {

void LetPendingEventsRun()
{
    if (QCoreApplication::instance())
        QCoreApplication::processEvents();
}

bool IsValidIndex(const QStringList& list, int index)
{
    return index >= 0 && index < list.size();
}

} // namespace

RecipeRecord BuildRecipeRecord(const RecipeFields& fields)
{
    RecipeRecord record = RecipeRecord::Cleared();
    for (int row = 0; row < kRecipeRows; ++row) {
        record.amounts[row].setText(fields.amounts[row]);
        record.amountTypes[row].setText(fields.units[row]);
        record.ingredients[row].setText(fields.ingredients[row]);
    }
    record.directions.setText(fields.directions);
    record.ovenTemperature.setText(fields.ovenTemperature);
    record.yieldAmount.setText(fields.yieldAmount);
    record.cookingTime.setText(fields.cookingTime);
    // The screen's yield type list may hold a longer text than the record
    // takes: "Casserole(s)" is one character too long and is stored
    // "Casserole(s".
    record.yieldType.setText(QStringView(fields.yieldType).left(kYieldTypeLength));
    record.markUsed();
    return record;
}

RecipeFields FieldsOfRecord(const RecipeRecord& record)
{
    RecipeFields fields;
    for (int row = 0; row < kRecipeRows; ++row) {
        fields.amounts[row] = record.amounts[row].text();
        fields.units[row] = record.amountTypes[row].text();
        fields.ingredients[row] = record.ingredients[row].text();
    }
    fields.directions = record.directions.text();
    fields.ovenTemperature = record.ovenTemperature.text();
    fields.cookingTime = record.cookingTime.text();
    fields.yieldAmount = record.yieldAmount.text();
    fields.yieldType = record.yieldType.text();
    return fields;
}

void SortEntries(QStringList& entries)
{
    SortListTexts(entries);
}

WriteOutcome SaveExistingRecipe(int cookbook, RecordNumber recordNumber, const RecipeFields& fields,
                                const QString& picturePath)
{
    if (recordNumber < 1)
        return WriteOutcome::FailedOn(RecipeFileName(cookbook));
    const StoredRecipe before = ReadRecipe(cookbook, recordNumber);
    const WriteOutcome outcome = WriteRecipe(cookbook, recordNumber, BuildRecipeRecord(fields), picturePath);
    // The recipe went in but its picture path did not: the slot gets back
    // what it held, so the saved recipe is the old one whole, not half new.
    if (!outcome.held() && outcome.failedFile != RecipeFileName(cookbook))
        WriteRecipe(cookbook, recordNumber, before.record, before.picturePath);
    return outcome;
}

SavedNewRecipe SaveNewRecipe(int cookbook, RecipeType type, const QString& name, const RecipeFields& fields,
                             const QString& picturePath, const QStringList& currentNames)
{
    SavedNewRecipe saved;
    // Only an empty name stops the save; the screen has already refused it
    // with its message, so this is the last guard against a nameless slot.
    if (name.isEmpty())
        return saved;
    // Recipe file and extra file first, the name file last: a failure in
    // between leaves a used slot without a name, never a name without a slot.
    const RecordNumber slot = FindFreeSlot(cookbook);
    saved.outcome = WriteRecipe(cookbook, slot, BuildRecipeRecord(fields), picturePath);
    if (!saved.outcome.held()) {
        // A recipe half written is no recipe: its slot is offered again.
        ClearRecipe(cookbook, slot);
        return saved;
    }
    // MakeNameEntry cuts the name to 41 characters and drops trailing blanks.
    const QString entry = MakeNameEntry(name, slot);
    saved.outcome = RebuildNameFile(cookbook, type, currentNames, entry);
    if (!saved.outcome.held()) {
        ClearRecipe(cookbook, slot);
        return saved;
    }
    saved.recordNumber = slot;
    saved.entry = entry;
    return saved;
}

ChangedNames DeleteRecipe(int cookbook, RecipeType type, RecordNumber recordNumber, QStringList pickList,
                          int listIndex)
{
    ChangedNames changed{pickList, {}};
    // An index outside the list removes nothing; the name file is still
    // rebuilt, from the whole list.
    if (IsValidIndex(pickList, listIndex))
        pickList.removeAt(listIndex);
    changed.outcome = RebuildNameFile(cookbook, type, pickList);
    if (!changed.outcome.held())
        return changed;
    changed.pickList = pickList;
    LetPendingEventsRun();
    changed.outcome = ClearRecipe(cookbook, recordNumber);
    return changed;
}

ChangedNames RenameRecipe(int cookbook, RecipeType type, RecordNumber recordNumber, QStringList pickList,
                          int listIndex, const QString& newName)
{
    ChangedNames changed{pickList, {}};
    // An empty new name is refused by the rename panel before it gets here;
    // should one arrive, nothing changes.
    if (newName.isEmpty())
        return changed;
    if (IsValidIndex(pickList, listIndex))
        pickList.removeAt(listIndex);
    pickList.append(MakeNameEntry(newName, recordNumber));
    SortEntries(pickList);
    changed.outcome = RebuildNameFile(cookbook, type, pickList);
    if (changed.outcome.held())
        changed.pickList = pickList;
    return changed;
}
