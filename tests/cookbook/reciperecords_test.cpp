#include "cookbook/logic/reciperecords.h"

#include "layout_bytes.h"

#include <gtest/gtest.h>

namespace {

using layout::Padded;
using layout::U16;
using layout::Zeros;

// A recipe with something in every field, and its bytes built from the
// layout table.
RecipeRecord SampleRecord()
{
    RecipeRecord record;
    for (int row = 0; row < RecipeRecord::kRows; ++row) {
        record.amounts[row].setText(QString::number(row + 1) + ".5");
        record.amountTypes[row].setText(u"cups");
        record.ingredients[row].setText(QStringLiteral("ingredient %1").arg(row + 1));
    }
    record.directions.setText(u"Mix well.\r\nBake.");
    record.ovenTemperature.setText(u"350");
    record.yieldAmount.setText(u"12");
    record.cookingTime.setText(u"45 minutes");
    record.yieldType.setText(u"Serving(s)");
    record.markUsed();
    return record;
}

layout::Recipe SampleLayout()
{
    layout::Recipe recipe;
    for (int row = 0; row < 20; ++row) {
        recipe.amounts[row] = QByteArray::number(row + 1) + ".5";
        recipe.amountTypes[row] = "cups";
        recipe.ingredients[row] = "ingredient " + QByteArray::number(row + 1);
    }
    recipe.directions = "Mix well.\r\nBake.";
    recipe.ovenTemperature = "350";
    recipe.yieldAmount = "12";
    recipe.cookingTime = "45 minutes";
    recipe.yieldType = "Serving(s)";
    recipe.slotMark = "Full1";
    return recipe;
}

TEST(RecipeRecord, BytesFollowTheLayoutTable)
{
    const QByteArray expected = layout::RecipeSlot(SampleLayout());
    ASSERT_EQ(expected.size(), 2045);
    EXPECT_EQ(SampleRecord().toBytes(), expected);
}

TEST(RecipeRecord, FieldsSitAtTheirOffsets)
{
    const QByteArray bytes = SampleRecord().toBytes();
    EXPECT_EQ(bytes.mid(0, 5), "1.5  ");
    EXPECT_EQ(bytes.mid(95, 5), "20.5 ");
    EXPECT_EQ(bytes.mid(100, 16), "Mix well.\r\nBake.");
    EXPECT_EQ(bytes.mid(1099, 1), " ");
    EXPECT_EQ(bytes.mid(1100, 4), "350 ");
    EXPECT_EQ(bytes.mid(1104, 10), "cups      ");
    EXPECT_EQ(bytes.mid(1304, 35), Padded("ingredient 1", 35));
    EXPECT_EQ(bytes.mid(1969, 35), Padded("ingredient 20", 35));
    EXPECT_EQ(bytes.mid(2004, 5), "12   ");
    EXPECT_EQ(bytes.mid(2009, 20), Padded("45 minutes", 20));
    EXPECT_EQ(bytes.mid(2029, 11), "Serving(s) ");
    EXPECT_EQ(bytes.mid(2040, 5), "Full1");
}

TEST(RecipeRecord, ReadsBackWhatWasWrittenWithoutThePadding)
{
    const RecipeRecord record = RecipeRecord::FromBytes(SampleRecord().toBytes());
    EXPECT_EQ(record, SampleRecord());
    EXPECT_EQ(record.amounts[0].text(), "1.5");
    EXPECT_EQ(record.amounts[19].text(), "20.5");
    EXPECT_EQ(record.amountTypes[7].text(), "cups");
    EXPECT_EQ(record.ingredients[10].text(), "ingredient 11");
    EXPECT_EQ(record.directions.text(), "Mix well.\r\nBake.");
    EXPECT_EQ(record.ovenTemperature.text(), "350");
    EXPECT_EQ(record.yieldAmount.text(), "12");
    EXPECT_EQ(record.cookingTime.text(), "45 minutes");
    EXPECT_EQ(record.yieldType.text(), "Serving(s)");
    EXPECT_EQ(record.slotMark.text(), "Full1");
    EXPECT_TRUE(record.isUsed());
}

TEST(RecipeRecord, TextsLongerThanTheirFieldAreCut)
{
    RecipeRecord record;
    record.yieldType.setText(u"Casserole(s)");
    record.amounts[0].setText(u"1.33333");
    record.ovenTemperature.setText(u"35000");
    record.directions.setText(QString(1001, u'd'));
    const QByteArray bytes = record.toBytes();
    EXPECT_EQ(bytes.mid(2029, 11), "Casserole(s");
    EXPECT_EQ(record.yieldType.text(), "Casserole(s");
    EXPECT_EQ(bytes.mid(0, 5), "1.333");
    EXPECT_EQ(bytes.mid(1100, 4), "3500");
    EXPECT_EQ(bytes.mid(100, 1000), QByteArray(1000, 'd'));
    EXPECT_EQ(bytes[1100], '3'); // the cut directions do not run into the next field
}

TEST(RecipeRecord, AccentedLettersAreTheirWindows1252Bytes)
{
    RecipeRecord record;
    record.ingredients[2].setText(QString::fromUtf8("Crème brûlée"));
    record.directions.setText(QString::fromUtf8("Add the jalapeño – 1 €"));
    const QByteArray bytes = record.toBytes();
    EXPECT_EQ(bytes.mid(1304 + 2 * 35, 35), Padded("Cr\xE8me br\xFBl\xE9" "e", 35));
    EXPECT_EQ(bytes.mid(100, 22), "Add the jalape\xF1o \x96 1 \x80");
    EXPECT_EQ(RecipeRecord::FromBytes(bytes).ingredients[2].text(), QString::fromUtf8("Crème brûlée"));
    EXPECT_EQ(RecipeRecord::FromBytes(bytes).directions.text(), QString::fromUtf8("Add the jalapeño – 1 €"));
}

TEST(RecipeRecord, ClearedIsAllBlankAndMarkedDeleted)
{
    const QByteArray bytes = RecipeRecord::Cleared().toBytes();
    EXPECT_EQ(bytes, QByteArray(2040, ' ') + "**** ");
    EXPECT_FALSE(RecipeRecord::Cleared().isUsed());
    EXPECT_EQ(RecipeRecord::Cleared().slotMark.text(), "****");
}

TEST(RecipeRecord, AZeroFilledRecordHasEmptyFieldsAndIsFree)
{
    const RecipeRecord record = RecipeRecord::FromBytes(Zeros(2045));
    EXPECT_EQ(record, RecipeRecord{});
    EXPECT_EQ(record.directions.text(), "");
    EXPECT_EQ(record.amounts[5].text(), "");
    EXPECT_FALSE(record.isUsed());
}

TEST(RecipeRecord, ShortBytesReadAsZerosPastTheirEnd)
{
    const QByteArray full = SampleRecord().toBytes();
    const RecipeRecord record = RecipeRecord::FromBytes(full.left(1110));
    EXPECT_EQ(record.directions.text(), "Mix well.\r\nBake.");
    EXPECT_EQ(record.ovenTemperature.text(), "350");
    EXPECT_EQ(record.amountTypes[0].text(), "cups");
    EXPECT_EQ(record.amountTypes[1].text(), "");
    EXPECT_FALSE(record.isUsed());
    EXPECT_EQ(RecipeRecord::FromBytes(full + "extra").toBytes(), full);
}

TEST(RecipeRecord, ReadingStopsAtAZeroByteAndKeepsLeadingBlanks)
{
    QByteArray bytes = Zeros(2045);
    bytes.replace(2009, 20, QByteArray("  1 hour\0garbage    ", 20));
    EXPECT_EQ(RecipeRecord::FromBytes(bytes).cookingTime.text(), "  1 hour");
}

struct MarkRow {
    const char* label;
    QByteArray mark;
    bool used;
};

TEST(RecipeRecord, SlotMarkTable)
{
    const MarkRow rows[] = {
        {"written form", "Full1", true},
        {"upper case", "FULL1", true},
        {"lower case", "full1", true},
        {"mixed case", "fUlL1", true},
        {"deleted", "**** ", false},
        {"older format", "Full ", false},
        {"blanks", "     ", false},
        {"zeros", Zeros(5), false},
        {"other digit", "Full2", false},
        {"shifted", " Full", false},
        {"letter case does not turn a digit", QByteArray("Full\x11", 5), false},
    };
    for (const MarkRow& row : rows) {
        SCOPED_TRACE(row.label);
        QByteArray bytes = Zeros(2040) + row.mark;
        EXPECT_EQ(RecipeRecord::FromBytes(bytes).isUsed(), row.used);
        EXPECT_EQ(RecipeRecord::IsUsedMark(row.mark.constData()), row.used);
    }
}

TEST(RecipeRecord, MarkUsedAndDeletedWriteTheirBytes)
{
    RecipeRecord record;
    record.markUsed();
    EXPECT_EQ(record.toBytes().mid(2040), "Full1");
    record.markDeleted();
    EXPECT_EQ(record.toBytes().mid(2040), "**** ");
}

TEST(RecipeExtraRecord, PathIsKindEightLengthAndText)
{
    RecipeExtraRecord record;
    ASSERT_TRUE(record.setPicturePath(u"C:\\Pictures\\pie.jpg"));
    EXPECT_EQ(record.toBytes(), U16(8) + U16(19) + "C:\\Pictures\\pie.jpg" + Zeros(250 - 23));
    EXPECT_EQ(record.toBytes(), layout::ExtraSlot("C:\\Pictures\\pie.jpg"));
    EXPECT_EQ(RecipeExtraRecord::FromBytes(record.toBytes()).picturePath(), "C:\\Pictures\\pie.jpg");
}

TEST(RecipeExtraRecord, EmptyPathIsKindEightLengthZero)
{
    RecipeExtraRecord record;
    ASSERT_TRUE(record.setPicturePath(u""));
    EXPECT_EQ(record.toBytes(), U16(8) + U16(0) + Zeros(246));
    EXPECT_EQ(record.picturePath(), "");
}

TEST(RecipeExtraRecord, PathOf246FitsAndLongerIsRefused)
{
    const QString longest(246, u'p');
    RecipeExtraRecord record;
    ASSERT_TRUE(record.setPicturePath(longest));
    EXPECT_EQ(record.toBytes(), U16(8) + U16(246) + QByteArray(246, 'p'));
    EXPECT_EQ(record.picturePath(), longest);

    EXPECT_FALSE(record.setPicturePath(QString(247, u'q')));
    EXPECT_EQ(record.picturePath(), longest);
}

TEST(RecipeExtraRecord, PathWithAccentsIsWindows1252)
{
    RecipeExtraRecord record;
    ASSERT_TRUE(record.setPicturePath(QString::fromUtf8("C:\\Photos\\Crème.jpg")));
    EXPECT_EQ(record.toBytes(), layout::ExtraSlot("C:\\Photos\\Cr\xE8me.jpg"));
}

TEST(RecipeExtraRecord, ValuesThatAreNoPathReadAsNoPicture)
{
    const struct {
        const char* label;
        QByteArray bytes;
    } rows[] = {
        {"zero-filled", Zeros(250)},
        {"nothing", {}},
        {"a number", U16(3) + U16(5) + U16(0)},
        {"unknown kind", U16(9) + U16(3) + "abc"},
        {"length past the slot", U16(8) + U16(247) + QByteArray(246, 'x')},
        {"negative length", U16(8) + U16(0xFFFF) + "abc"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.label);
        EXPECT_EQ(RecipeExtraRecord::FromBytes(row.bytes).picturePath(), "");
    }
}

TEST(RecipeNameRecord, EntryIsLengthAndText)
{
    const QString entry = "Apple Pie" + QString(43, u' ') + "17";
    RecipeNameRecord record;
    ASSERT_TRUE(record.setNameEntry(entry));
    EXPECT_EQ(record.toBytes(), U16(54) + "Apple Pie" + QByteArray(43, ' ') + "17" + Zeros(4));
    EXPECT_EQ(record.nameEntry(), entry);
}

TEST(RecipeNameRecord, ClearedSlotIsASingleBlank)
{
    EXPECT_EQ(RecipeNameRecord::Cleared().toBytes(), U16(1) + " " + Zeros(57));
    EXPECT_EQ(RecipeNameRecord::Cleared().nameEntry(), " ");
}

TEST(RecipeNameRecord, TextOf58FitsAndLongerIsRefused)
{
    RecipeNameRecord record;
    ASSERT_TRUE(record.setNameEntry(QString(58, u'n')));
    EXPECT_EQ(record.toBytes(), U16(58) + QByteArray(58, 'n'));
    EXPECT_FALSE(record.setNameEntry(QString(59, u'm')));
    EXPECT_EQ(record.nameEntry(), QString(58, u'n'));
}

TEST(RecipeNameRecord, LengthsThatDoNotFitReadAsEmpty)
{
    EXPECT_EQ(RecipeNameRecord::FromBytes(Zeros(60)).nameEntry(), "");
    EXPECT_EQ(RecipeNameRecord::FromBytes({}).nameEntry(), "");
    EXPECT_EQ(RecipeNameRecord::FromBytes(U16(59) + QByteArray(58, 'x')).nameEntry(), "");
    EXPECT_EQ(RecipeNameRecord::FromBytes(U16(0x8000) + "abc").nameEntry(), "");
    // A slot cut short by the end of the file reads on into zeros.
    EXPECT_EQ(RecipeNameRecord::FromBytes(U16(3) + "ab").nameEntry(), QString("ab") + QChar(0));
}

} // namespace
