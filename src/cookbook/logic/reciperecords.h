#pragma once
// The three records of a cookbook, byte for byte as they sit in their files.
// Every byte is a Windows-1252 character; 16-bit numbers are little-endian.
#include "common/cp1252.h"

#include <QByteArray>
#include <QString>
#include <algorithm>
#include <array>
#include <cstddef>
#include <type_traits>

// A text field of fixed width: left-justified, padded with blanks, cut to the
// width when longer. Reading stops at the first zero byte (a slot past the
// end of a file is all zeros) and drops the trailing blanks.
template <std::size_t Width>
struct FixedText {
    static constexpr std::size_t kWidth = Width;

    std::array<char, Width> bytes{};

    QString text() const
    {
        const auto end = std::find(bytes.begin(), bytes.end(), '\0');
        auto last = end;
        while (last != bytes.begin() && *(last - 1) == ' ')
            --last;
        return FromCp1252(QByteArrayView(bytes.data(), last - bytes.begin()));
    }

    void setText(QStringView text)
    {
        // One byte per character, so cutting the characters cuts the bytes.
        const QByteArray encoded = ToCp1252(text.left(qsizetype(Width)));
        bytes.fill(' ');
        std::copy(encoded.begin(), encoded.end(), bytes.begin());
    }

    bool operator==(const FixedText&) const = default;
};

// One recipe: 2045 bytes, nine fields, no length bytes and no separators.
// The record holds neither the recipe's name nor its type; those live only
// in the name file that lists the record's number. Rows 0 to 9 of the three
// row arrays are the left ingredient column of the recipe screen, rows 10 to
// 19 the right one.
//
// A default-constructed record is all zeros, as a slot past the end of the
// file reads; a record meant for writing starts from Cleared() or has every
// field set, so that no zero byte reaches the file.
struct RecipeRecord {
    static constexpr int kSize = 2045;
    static constexpr int kRows = 20;

    std::array<FixedText<5>, kRows> amounts;       //    0  20 x 5: decimal text ("1.5", ".25"), never a fraction
    FixedText<1000> directions;                    //  100  free text, may hold line breaks
    FixedText<4> ovenTemperature;                  // 1100  degrees
    std::array<FixedText<10>, kRows> amountTypes;  // 1104  20 x 10: the unit of each row
    std::array<FixedText<35>, kRows> ingredients;  // 1304  20 x 35
    FixedText<5> yieldAmount;                      // 2004  decimal text
    FixedText<20> cookingTime;                     // 2009
    FixedText<11> yieldType;                       // 2029  "Casserole(s)" is one too long and comes back "Casserole(s"
    FixedText<5> slotMark;                         // 2040  "Full1" used, "****" deleted

    static constexpr int kSlotMarkOffset = 2040;

    // Written as "Full1" but tested in upper case: any slot whose first five
    // mark characters upper-case to "FULL1" is used; anything else ("****",
    // blanks, zeros, the older format's "Full ") is free. `mark` points at
    // the five mark bytes.
    static bool IsUsedMark(const char* mark)
    {
        return (mark[0] | 0x20) == 'f' && (mark[1] | 0x20) == 'u' && (mark[2] | 0x20) == 'l'
            && (mark[3] | 0x20) == 'l' && mark[4] == '1';
    }
    bool isUsed() const { return IsUsedMark(slotMark.bytes.data()); }
    void markUsed() { slotMark.setText(u"Full1"); }
    void markDeleted() { slotMark.setText(u"****"); }

    // Every field blank and the slot marked deleted: what deleting a recipe
    // leaves in its slot.
    static RecipeRecord Cleared();

    // Short input reads as zeros past its end; longer input is cut.
    static RecipeRecord FromBytes(QByteArrayView bytes);
    QByteArray toBytes() const;

    bool operator==(const RecipeRecord&) const = default;
};

static_assert(std::is_standard_layout_v<RecipeRecord> && std::is_trivially_copyable_v<RecipeRecord>);
static_assert(sizeof(RecipeRecord) == RecipeRecord::kSize);
static_assert(offsetof(RecipeRecord, amounts) == 0);
static_assert(offsetof(RecipeRecord, directions) == 100);
static_assert(offsetof(RecipeRecord, ovenTemperature) == 1100);
static_assert(offsetof(RecipeRecord, amountTypes) == 1104);
static_assert(offsetof(RecipeRecord, ingredients) == 1304);
static_assert(offsetof(RecipeRecord, yieldAmount) == 2004);
static_assert(offsetof(RecipeRecord, cookingTime) == 2009);
static_assert(offsetof(RecipeRecord, yieldType) == 2029);
static_assert(offsetof(RecipeRecord, slotMark) == RecipeRecord::kSlotMarkOffset);

// The picture path of the recipe in the same slot of the recipe file:
// 250 bytes holding one self-describing value.
//
//   0  2  value kind: 8 for text; 0 when nothing was ever stored
//   2  2  text length L
//   4  L  the path, empty for none; the rest of the slot has no meaning
//
// L is at most 246. A path that does not fit is not stored at all.
struct RecipeExtraRecord {
    static constexpr int kSize = 250;
    static constexpr int kMaxPathLength = 246;

    std::array<char, 2> kind{};                  //   0
    std::array<char, 2> length{};                //   2
    std::array<char, kMaxPathLength> path{};     //   4

    // Empty for no picture: a zero-filled slot, a kind other than text, or a
    // length that does not fit the slot.
    QString picturePath() const;
    // False, and the record unchanged, when the path is over 246 characters.
    bool setPicturePath(QStringView path);

    static RecipeExtraRecord FromBytes(QByteArrayView bytes);
    QByteArray toBytes() const;

    bool operator==(const RecipeExtraRecord&) const = default;
};

static_assert(std::is_standard_layout_v<RecipeExtraRecord> && std::is_trivially_copyable_v<RecipeExtraRecord>);
static_assert(sizeof(RecipeExtraRecord) == RecipeExtraRecord::kSize);
static_assert(offsetof(RecipeExtraRecord, length) == 2);
static_assert(offsetof(RecipeExtraRecord, path) == 4);

// One slot of a name file: 60 bytes holding a length-prefixed text.
//
//   0  2  text length L
//   2  L  the name entry; a single blank for a cleared slot; the rest of
//         the slot has no meaning
struct RecipeNameRecord {
    static constexpr int kSize = 60;
    static constexpr int kMaxTextLength = 58;

    std::array<char, 2> length{};                // 0
    std::array<char, kMaxTextLength> text{};     // 2

    // Empty when nothing fits: past the end of the file, a zero or negative
    // length, or a length longer than the slot.
    QString nameEntry() const;
    // False, and the record unchanged, when the text does not fit.
    bool setNameEntry(QStringView entry);

    static RecipeNameRecord Cleared();

    static RecipeNameRecord FromBytes(QByteArrayView bytes);
    QByteArray toBytes() const;

    bool operator==(const RecipeNameRecord&) const = default;
};

static_assert(std::is_standard_layout_v<RecipeNameRecord> && std::is_trivially_copyable_v<RecipeNameRecord>);
static_assert(sizeof(RecipeNameRecord) == RecipeNameRecord::kSize);
static_assert(offsetof(RecipeNameRecord, text) == 2);
