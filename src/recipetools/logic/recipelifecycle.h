#pragma once
// What the recipe screen's commands do to a cookbook's files: saving a new
// or an existing recipe, deleting and renaming. The order of the writes is
// always the recipe file, the extra file and only then the name file, so a
// failure between them leaves a used slot without a name, never a name
// without a slot.
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
// rewritten at its number; the name file is not touched.
bool SaveExistingRecipe(int cookbook, RecordNumber recordNumber, const RecipeFields& fields,
                        const QString& picturePath);

struct SavedNewRecipe {
    RecordNumber recordNumber = 0;
    QString entry;        // its NameEntry
};
// A new recipe: the lowest free slot, both files written there, then the
// name file rebuilt from `currentNames` (the "Current Recipe Names" list, in
// its order) with the new entry last. The name is cut to 41 characters and
// its trailing blanks removed before the entry is made. An empty name writes
// nothing and gives record number 0 and no entry.
SavedNewRecipe SaveNewRecipe(int cookbook, RecipeType type, const QString& name, const RecipeFields& fields,
                             const QString& picturePath, const QStringList& currentNames);

// Clears the slot, then rebuilds the name file from `pickList` without the
// entry at `listIndex`. Returns the pick list as it now is.
QStringList DeleteRecipe(int cookbook, RecipeType type, RecordNumber recordNumber, QStringList pickList,
                         int listIndex);

// Replaces the entry at `listIndex` by one for `newName` with the same record
// number, sorts, and rebuilds the name file from the result. Returns it.
// An empty new name changes nothing and gives the pick list back as it was.
QStringList RenameRecipe(int cookbook, RecipeType type, RecordNumber recordNumber, QStringList pickList,
                         int listIndex, const QString& newName);
