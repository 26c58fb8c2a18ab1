#pragma once
// The record-level operations on a cookbook's files. Each one opens its
// files, does its work and closes them again; nothing stays open between two
// calls. A file that does not exist is created empty by opening it, reading
// past the end gives empty values, and nothing ever shortens a file. Every
// write says whether it held; a command stops at the first that did not.
//
// All recipes of a cookbook, of every type, share one space of slot numbers.
// A slot is free when past the end of the recipe file or not marked used;
// deleting leaves a hole that only FindFreeSlot fills again.
#include "common/filewrites.h"
#include "cookbook/logic/cookbooknames.h"
#include "cookbook/logic/reciperecords.h"

#include <QString>
#include <QStringList>

// FindFreeSlot looks at slots 1 to 30000 and, when all are used, gives back
// the slot after them. That slot is then overwritten by every later new
// recipe; a cookbook never counts as full.
inline constexpr int kLastScannedSlot = 30000;

struct StoredRecipe {
    RecipeRecord record;
    QString picturePath; // empty for no picture
};

// Slot `recordNumber` of the recipe file and of the extra file. A slot past
// the end, or a number below 1, reads as a zero-filled record and no picture.
StoredRecipe ReadRecipe(int cookbook, RecordNumber recordNumber);

// Writes both slots, the recipe first; when the recipe does not hold, the
// extra slot is not touched. A picture path over 246 characters is not
// written (the extra slot keeps what it held) and counts as a failed write of
// the extra file.
WriteOutcome WriteRecipe(int cookbook, RecordNumber recordNumber, const RecipeRecord& record,
                         QStringView picturePath);

// The lowest free slot (first fit), or 30001 when slots 1 to 30000 are all
// used. Creates the recipe file when it does not exist.
RecordNumber FindFreeSlot(int cookbook);

// True when any of slots 1 to 30000 holds a recipe.
bool CookbookHasRecipes(int cookbook);

// Every field blank, the slot marked "****" and the picture path empty. The
// slot stays in the file, free for the next new recipe.
WriteOutcome ClearRecipe(int cookbook, RecordNumber recordNumber);

// The entries of the type's name file in slot order, skipping cleared slots
// (all blanks) wherever they lie. Creates the file when it does not exist.
QStringList ReadNameList(int cookbook, RecipeType type);

// The text of one name slot: a single blank for a cleared slot, empty past
// the end of the file. The recipe screen tells "a name file without slots"
// from "a name file of blanks" by slot 1.
QString ReadNameSlot(int cookbook, RecipeType type, int slot);

// The one way a name file changes; no entry is ever changed in place. The
// new file holds what the classic two passes leave, byte for byte:
//  1. every existing slot, and one more after the last, a single blank, so
//     the file only grows;
//  2. `entries` in slots 1, 2, 3 ... in order, up to the first empty one;
//  3. a non-empty `newEntry` in the slot after them (slot 1 for none).
// It is made whole in memory and replaces the old file in one step, so a
// crash or a failed write leaves the old file as it was: no moment when the
// type's recipes are all blanks. An entry that does not fit its slot is not
// written: its slot holds a single blank, and the outcome names the file as
// not written whole.
WriteOutcome RebuildNameFile(int cookbook, RecipeType type, const QStringList& entries,
                             const QString& newEntry = {});
