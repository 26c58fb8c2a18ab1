#pragma once
// The recipe file of the program's earlier versions, and its conversion.
// Their records held 14 ingredient rows and 800 characters of directions in
// 1545 bytes; such a file still sits as "Recipe2.db1" in folders carried
// over from them. Only cookbook 1 ever had it. Converting rewrites the
// recipe file alone, slot for slot: record numbers stay, so the name files
// and the extra file stay valid as they are.
#include "common/filewrites.h"
#include "cookbook/logic/reciperecords.h"

#include <functional>

// One recipe of the earlier format: the fields of RecipeRecord, narrower.
// Rows 0 to 6 were the left ingredient column of the old screen, rows 7 to
// 13 the right one.
struct OldRecipeRecord {
    static constexpr int kSize = 1545;
    static constexpr int kRows = 14;
    static constexpr int kColumnRows = 7;

    std::array<FixedText<5>, kRows> amounts;       //    0  14 x 5
    FixedText<800> directions;                     //   70
    FixedText<4> ovenTemperature;                  //  870
    std::array<FixedText<10>, kRows> amountTypes;  //  874  14 x 10
    std::array<FixedText<35>, kRows> ingredients;  // 1014  14 x 35
    FixedText<5> yieldAmount;                      // 1504
    FixedText<20> cookingTime;                     // 1509
    FixedText<11> yieldType;                       // 1529
    FixedText<5> slotMark;                         // 1540  "Full " in a used slot

    static constexpr int kSlotMarkOffset = 1540;

    // The search for an older file takes a slot as used when its mark with
    // the trailing blanks removed is exactly "Full", case and all: "FULL ",
    // "full " and the current "Full1" are not. The conversion itself trims
    // both ends, so a mark of " Full" is converted but finds nothing.
    // `mark` points at the five mark bytes.
    static bool MarkEndsFull(const char* mark);
    static bool MarkTrimsToFull(const char* mark);

    // Short input reads as zeros past its end; longer input is cut.
    static OldRecipeRecord FromBytes(QByteArrayView bytes);
};

static_assert(std::is_standard_layout_v<OldRecipeRecord> && std::is_trivially_copyable_v<OldRecipeRecord>);
static_assert(sizeof(OldRecipeRecord) == OldRecipeRecord::kSize);
static_assert(offsetof(OldRecipeRecord, amounts) == 0);
static_assert(offsetof(OldRecipeRecord, directions) == 70);
static_assert(offsetof(OldRecipeRecord, ovenTemperature) == 870);
static_assert(offsetof(OldRecipeRecord, amountTypes) == 874);
static_assert(offsetof(OldRecipeRecord, ingredients) == 1014);
static_assert(offsetof(OldRecipeRecord, yieldAmount) == 1504);
static_assert(offsetof(OldRecipeRecord, cookingTime) == 1509);
static_assert(offsetof(OldRecipeRecord, yieldType) == 1529);
static_assert(offsetof(OldRecipeRecord, slotMark) == OldRecipeRecord::kSlotMarkOffset);

// The record in the current format: every field without its trailing
// blanks, padded to its new width. The old left column fills rows 1 to 7
// of the new left column and the old right column rows 11 to 17 of the new
// right one; rows 8 to 10 and 18 to 20 are blank. The mark is the old one
// trimmed with "1" after it: "Full1".
RecipeRecord ConvertOldRecord(const OldRecipeRecord& old);

// The value of the recipe screen's ConversionPending when an older file
// waits to be converted.
inline constexpr int kConversionPending = 9;
// Slots of "Recipe2.db1" the search for an older file reads.
inline constexpr int kOldSlotsChecked = 1000;
// Slots the conversion runs through, used or not.
inline constexpr int kOldSlotsConverted = 30000;

// kConversionPending when `cookbook` is 1 (or below) and one of slots 1 to
// 1000 of "Recipe2.db1", read as 1545-byte records, is used; 0 otherwise.
int CheckOldDatabase(int cookbook);

// True when one of slots 1 to 1000 of "Recipe2.db1" is a used recipe of
// the current format. A current file read in 1545-byte steps can show
// "Full " where an old mark would stand (in the middle of a row's
// ingredient or of the directions); converting it would wipe the cookbook,
// so such a file is never converted.
bool RecipeFileIsCurrent();

// What the conversion tells the screen as it goes: each slot passed, the
// recipes all copied into "Recipe3.db1", and that file in the place of
// "Recipe2.db1". Any of them may be left empty.
struct OldConversionSteps {
    std::function<void(int slot)> slotPassed{};
    std::function<void()> copied{};
    std::function<void()> replaced{};
};

// Rewrites "Recipe2.db1" into the current format. Every one of slots 1 to
// 30000 is read; a used one goes to the same slot of a new "Recipe3.db1",
// any other is left a hole there, which reads as free. Then the new file
// takes the old one's name.
//
// Deliberately more careful than a delete followed by a rename:
//  - names are resolved case-blind, so a "RECIPE2.DB1" carried over from
//    Windows is the file converted and replaced, and no second recipe file
//    differing from it in case is left behind;
//  - "Recipe3.db1" starts empty, so a leftover of an interrupted run cannot
//    leave a stale used record in a hole;
//  - the new file replaces the old one in one rename: there is no moment
//    when the recipes exist only as "Recipe3.db1";
//  - when a write fails, "Recipe3.db1" is removed and "Recipe2.db1" stays as
//    it was; the outcome names the file that failed.
WriteOutcome ConvertOldRecipeFile(const OldConversionSteps& steps = {});
