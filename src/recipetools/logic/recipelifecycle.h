#pragma once
// What the recipe screen's commands do to a cookbook's files: saving a new
// or an existing recipe, deleting and renaming. The order of the writes is
// always the recipe file, the extra file and only then the name file, so a
// failure between them leaves a used slot without a name, never a name
// without a slot.
#include "common/filewrites.h"
#include "cookbook/logic/cookbooknames.h"
#include "cookbook/logic/reciperecords.h"

#include <QString>
#include <QStringList>
#include <array>

// The screen's fields take what the record's fields hold.
inline constexpr int kRecipeRows = RecipeRecord::kRows;
inline constexpr int kAmountLength = int(decltype(RecipeRecord::amounts)::value_type::kWidth);
inline constexpr int kUnitLength = int(decltype(RecipeRecord::amountTypes)::value_type::kWidth);
inline constexpr int kIngredientLength = int(decltype(RecipeRecord::ingredients)::value_type::kWidth);
inline constexpr int kDirectionsLength = int(decltype(RecipeRecord::directions)::kWidth);
inline constexpr int kOvenTemperatureLength = int(decltype(RecipeRecord::ovenTemperature)::kWidth);
inline constexpr int kCookingTimeLength = int(decltype(RecipeRecord::cookingTime)::kWidth);
inline constexpr int kYieldLength = int(decltype(RecipeRecord::yieldAmount)::kWidth);
inline constexpr int kYieldTypeLength = int(decltype(RecipeRecord::yieldType)::kWidth);
// The name box takes 40 characters; the name entry keeps up to 41.
inline constexpr int kRecipeNameLength = 40;
// The directions' length shows red above this.
inline constexpr int kDirectionsRedAbove = 950;

// The recipe as the screen holds it. `amounts` is the AmountWorkList: the
// decimal texts, never the fractions shown in View mode.
struct RecipeFields {
    std::array<QString, kRecipeRows> amounts;
    std::array<QString, kRecipeRows> units;
    std::array<QString, kRecipeRows> ingredients;
    QString directions;
    QString ovenTemperature;
    QString cookingTime;
    QString yieldAmount;
    QString yieldType;

    bool operator==(const RecipeFields&) const = default;
};

// The record to save: every field from the screen, the yield type cut to its
// 11 characters ("Casserole(s)" is stored as "Casserole(s"), marked "Full1".
RecipeRecord BuildRecipeRecord(const RecipeFields& fields);
// The screen's fields of a stored record, trailing blanks removed.
RecipeFields FieldsOfRecord(const RecipeRecord& record);

// Sorted as the screen's sorted lists sort: case-blind, by the whole entry.
void SortEntries(QStringList& entries);

// An existing recipe (Modify, or after the calculator): both slots are
// rewritten at its number; the name file is not touched. A record number
// below 1 has no slot to go to (a name entry that points nowhere): nothing
// is written and the outcome names the recipe file.
WriteOutcome SaveExistingRecipe(int cookbook, RecordNumber recordNumber, const RecipeFields& fields,
                                const QString& picturePath);

struct SavedNewRecipe {
    RecordNumber recordNumber = 0;
    QString entry;        // its NameEntry; empty when nothing was saved
    WriteOutcome outcome;
};
// A new recipe: the lowest free slot, both files written there, then the
// name file rebuilt from `currentNames` (the "Current Recipe Names" list, in
// its order) with the new entry last. The name is cut to 41 characters and
// its trailing blanks removed before the entry is made. An empty name writes
// nothing and gives record number 0 and no entry.
//
// Each write is checked before the next: a recipe that could not be written
// gets no name, and when the name file could not be written the slot is
// freed again, so no list ever names a slot that holds no recipe.
SavedNewRecipe SaveNewRecipe(int cookbook, RecipeType type, const QString& name, const RecipeFields& fields,
                             const QString& picturePath, const QStringList& currentNames);

struct ChangedNames {
    QStringList pickList;  // the pick list as it now is (as it was when nothing changed)
    WriteOutcome outcome;
};

// Rebuilds the name file from `pickList` without the entry at `listIndex`,
// then clears the slot. The name goes first: should the slot not clear, the
// recipe is merely unlisted, never listed without its recipe.
ChangedNames DeleteRecipe(int cookbook, RecipeType type, RecordNumber recordNumber, QStringList pickList,
                          int listIndex);

// Replaces the entry at `listIndex` by one for `newName` with the same record
// number, sorts, and rebuilds the name file from the result. An empty new
// name changes nothing and gives the pick list back as it was.
ChangedNames RenameRecipe(int cookbook, RecipeType type, RecordNumber recordNumber, QStringList pickList,
                          int listIndex, const QString& newName);
