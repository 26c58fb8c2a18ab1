// The year files of the planner: the date rule, the file name, the day
// record byte for byte, reading and saving a day.
#include "planner/logic/menuplanfile.h"

#include "temp_program_folder.h"
#include "test_data.h"

#include <QDir>
#include <QFile>
#include <QSet>
#include <gtest/gtest.h>

namespace {

QByteArray Padded(const char* text, int width)
{
    return QByteArray(text).leftJustified(width, ' ');
}

// The 682 bytes of a saved day whose lines are `lines` (the rest blank).
QByteArray SavedBytes(const QList<QByteArray>& lines)
{
    QByteArray bytes;
    for (int i = 0; i < kMenuLines; ++i)
        bytes += (i < lines.size() ? lines[i] : QByteArray()).leftJustified(32, ' ', true);
    return bytes + Padded("Full", 10);
}

MenuLines Lines(std::initializer_list<std::pair<int, QString>> filled)
{
    MenuLines lines;
    for (const auto& [index, text] : filled)
        lines[size_t(index)] = text;
    return lines;
}

struct SlotRow {
    const char* name;
    QDate date;
    int slot;
};

class MenuSlotTable : public ::testing::TestWithParam<SlotRow> {};

} // namespace

TEST_P(MenuSlotTable, GivesTheSlot)
{
    EXPECT_EQ(MenuSlotOf(GetParam().date), GetParam().slot);
    EXPECT_EQ(MenuPlaceOf(GetParam().date), (MenuPlace{GetParam().date.year(), GetParam().slot}));
}

INSTANTIATE_TEST_SUITE_P(
    Dates, MenuSlotTable,
    ::testing::Values(SlotRow{"FirstOfJanuary", QDate(2026, 1, 1), 11}, SlotRow{"TenthOfJanuary", QDate(2026, 1, 10), 101},
                      SlotRow{"FifthOfMarch", QDate(2026, 3, 5), 53}, SlotRow{"FifteenthOfMarch", QDate(2026, 3, 15), 153},
                      SlotRow{"LeapDay", QDate(2028, 2, 29), 292}, SlotRow{"LastOfAugust", QDate(2026, 8, 31), 318},
                      SlotRow{"NinthOfSeptember", QDate(2026, 9, 9), 99},
                      SlotRow{"LastOfSeptember", QDate(2026, 9, 30), 309},
                      SlotRow{"FirstOfOctober", QDate(2026, 10, 1), 321}, SlotRow{"LastOfOctober", QDate(2026, 10, 31), 351},
                      SlotRow{"FirstOfNovember", QDate(2026, 11, 1), 361},
                      SlotRow{"LastOfNovember", QDate(2026, 11, 30), 390},
                      SlotRow{"FirstOfDecember", QDate(2026, 12, 1), 401},
                      SlotRow{"LastOfDecember", QDate(2026, 12, 31), 431}, SlotRow{"ThirdOfApril", QDate(2026, 4, 3), 34},
                      SlotRow{"FourthOfMarch", QDate(2026, 3, 4), 43}),
    [](const ::testing::TestParamInfo<SlotRow>& info) { return std::string(info.param.name); });

// Edge case: 1 January gives slot 11, 1 October 321, 31 December 431, 31
// August 318: no two dates of a year share a slot.
TEST(MenuPlanFile, NoTwoDatesOfAYearShareASlot)
{
    for (const int year : {2027, 2028}) {
        QSet<int> seen;
        for (QDate date(year, 1, 1); date.year() == year; date = date.addDays(1)) {
            const int slot = MenuSlotOf(date);
            EXPECT_GE(slot, 11) << date.toString().toStdString();
            EXPECT_LE(slot, 431) << date.toString().toStdString();
            EXPECT_FALSE(seen.contains(slot)) << date.toString().toStdString();
            seen.insert(slot);
        }
        EXPECT_EQ(seen.size(), QDate(year, 1, 1).daysInYear());
    }
}

TEST(MenuPlanFile, TheYearFileIsNamedWithTheBlankOfTheSignPlace)
{
    EXPECT_EQ(MenuPlanFileName(2026), QStringLiteral(" 2026.Mnu"));
    EXPECT_EQ(MenuPlanFileName(1999), QStringLiteral(" 1999.Mnu"));
}

// Edge case: " 2026.Mnu" with its leading blank is what opens for a date in
// 2026, and a file named without the blank is not seen.
TEST(MenuPlanFile, TheFileWithTheLeadingBlankIsTheOneRead)
{
    TempProgramFolder folder;
    folder.copyIn(TestDataFile(QStringLiteral(" 2026.Mnu")));
    ASSERT_TRUE(QFile::rename(folder.filePath(QStringLiteral(" 2026.Mnu")), folder.filePath(QStringLiteral("2026.Mnu"))));
    EXPECT_FALSE(ReadDay(QDate(2026, 3, 15)).isFull()) << "2026.Mnu is not the year's file";
    EXPECT_TRUE(QFile::exists(folder.filePath(QStringLiteral(" 2026.Mnu"))));
    folder.copyIn(TestDataFile(QStringLiteral(" 2026.Mnu")));
    const MenuDayRecord record = ReadDay(QDate(2026, 3, 15));
    EXPECT_TRUE(record.isFull());
    EXPECT_EQ(record.line(0), QStringLiteral("Oatmeal"));
}

TEST(MenuPlanFile, AStoredDayReadsLineByLine)
{
    TempProgramFolder folder;
    folder.copyIn(TestDataFile(QStringLiteral(" 2026.Mnu")));
    const MenuLines lines = ReadDay(QDate(2026, 3, 15)).shownLines();
    EXPECT_EQ(lines[0], QStringLiteral("Oatmeal"));
    EXPECT_EQ(lines[1], QStringLiteral("Orange juice"));
    EXPECT_EQ(lines[7], QStringLiteral("Tomato soup"));
    EXPECT_EQ(lines[14], QStringLiteral("Roast chicken with potatoes, gra")) << "all 32 characters";
    EXPECT_EQ(lines[15], QStringLiteral("Green salad"));
    EXPECT_EQ(lines[20], QString());
    EXPECT_EQ(ReadDay(QDate(2026, 4, 3)).line(1), QStringLiteral("Caf\u00e9 au lait")) << "Windows-1252";
}

TEST(MenuPlanFile, OnlyTheExactMarkFullIsASavedDay)
{
    TempProgramFolder folder;
    folder.copyIn(TestDataFile(QStringLiteral(" 2026.Mnu")));
    EXPECT_TRUE(ReadDay(QDate(2026, 3, 15)).isFull());
    const MenuDayRecord upper = ReadDay(QDate(2026, 1, 10));
    EXPECT_FALSE(upper.isFull()) << "FULL is another mark";
    EXPECT_EQ(upper.shownLines(), MenuLines{}) << "a day never saved shows blank lines";
    EXPECT_FALSE(ReadDay(QDate(2026, 6, 1)).isFull()) << "a slot never written";
    MenuDayRecord zeros = MenuDayRecord::FromBytes(SavedBytes({}).left(672) + QByteArray("Full\0\0\0\0\0\0", 10));
    EXPECT_FALSE(zeros.isFull()) << "zeros are no blanks";
}

TEST(MenuPlanFile, NulsAndControlBytesInALineReadAsBlanks)
{
    TempProgramFolder folder;
    folder.copyIn(TestDataFile(QStringLiteral(" 2026.Mnu")));
    const MenuDayRecord record = ReadDay(QDate(2026, 3, 5));
    ASSERT_TRUE(record.isFull());
    EXPECT_EQ(record.line(0), QStringLiteral("Toast"));
    EXPECT_EQ(record.line(1), QStringLiteral("Jam and butter"));
}

TEST(MenuPlanFile, ReadingAYearWithoutAFileCreatesItEmpty)
{
    TempProgramFolder folder;
    EXPECT_FALSE(ReadDay(QDate(2031, 5, 5)).isFull());
    EXPECT_TRUE(QFile::exists(folder.filePath(QStringLiteral(" 2031.Mnu"))));
    EXPECT_EQ(folder.bytesOf(QStringLiteral(" 2031.Mnu")), QByteArray());
    EXPECT_EQ(YearFileLength(2031), 0);
}

TEST(MenuPlanFile, SavingTheFifteenthOfMarchInAnEmptyFolder)
{
    TempProgramFolder folder;
    ASSERT_TRUE(SaveDay(MenuPlaceOf(QDate(2026, 3, 15)), Lines({{0, QStringLiteral("Eggs  ")}, {20, QStringLiteral("Pie")}})));
    const QByteArray bytes = folder.bytesOf(QStringLiteral(" 2026.Mnu"));
    ASSERT_EQ(bytes.size(), 107082);
    EXPECT_EQ(bytes.left(106400), QByteArray(106400, '\0'));
    QList<QByteArray> lines(21);
    lines[0] = "Eggs";
    lines[20] = "Pie";
    EXPECT_EQ(bytes.mid(106400), SavedBytes(lines));
    EXPECT_EQ(YearFileLength(2026), 107082);
}

TEST(MenuPlanFile, SavingOnlyTheLastOfDecemberEndsTheFileAtItsRecord)
{
    TempProgramFolder folder;
    ASSERT_TRUE(SaveDay(MenuPlaceOf(QDate(2027, 12, 31)), Lines({{3, QStringLiteral("Cake")}})));
    EXPECT_EQ(folder.bytesOf(QStringLiteral(" 2027.Mnu")).size(), 301682);
}

TEST(MenuPlanFile, ASaveLeavesTheTailOfItsSlotAndEveryOtherByte)
{
    TempProgramFolder folder;
    folder.copyIn(TestDataFile(QStringLiteral(" 2026.Mnu")));
    const QByteArray before = folder.bytesOf(QStringLiteral(" 2026.Mnu"));
    ASSERT_TRUE(SaveDay(MenuPlaceOf(QDate(2026, 3, 15)), Lines({{0, QStringLiteral("Porridge")}})));
    const QByteArray after = folder.bytesOf(QStringLiteral(" 2026.Mnu"));
    ASSERT_EQ(after.size(), before.size());
    const int offset = 152 * 700;
    EXPECT_EQ(after.left(offset), before.left(offset));
    QList<QByteArray> lines(21);
    lines[0] = "Porridge";
    EXPECT_EQ(after.mid(offset, 682), SavedBytes(lines));
    EXPECT_EQ(after.mid(offset + 682, 18), QByteArray(18, '\xa5')) << "the slot's tail";
    EXPECT_EQ(after.mid(offset + 700), before.mid(offset + 700));
}

// Edge case: a day saved with all lines blank reads back with Mark "Full"
// and 21 blank lines.
TEST(MenuPlanFile, ADaySavedBlankReadsBackFullAndBlank)
{
    TempProgramFolder folder;
    ASSERT_TRUE(SaveDay(MenuPlaceOf(QDate(2026, 7, 4)), MenuLines{}));
    const MenuDayRecord record = ReadDay(QDate(2026, 7, 4));
    EXPECT_TRUE(record.isFull());
    EXPECT_EQ(record.shownLines(), MenuLines{});
    EXPECT_EQ(record.toBytes(), SavedBytes({}));
}

TEST(MenuPlanFile, TheLeapDayRoundTrips)
{
    TempProgramFolder folder;
    const MenuLines lines = Lines({{0, QStringLiteral("Leap-day waffles")}, {13, QStringLiteral("Soup")}});
    ASSERT_TRUE(SaveDay(MenuPlaceOf(QDate(2028, 2, 29)), lines));
    EXPECT_EQ(ReadDay(QDate(2028, 2, 29)).shownLines(), lines);
    EXPECT_EQ(folder.bytesOf(QStringLiteral(" 2028.Mnu")).size(), 291 * 700 + 682);
    EXPECT_FALSE(ReadDay(QDate(2028, 2, 28)).isFull());
}

TEST(MenuPlanFile, ALineIsCutAt32CharactersAndRightTrimmed)
{
    const MenuDayRecord record = MenuDayRecord::Saved(
        Lines({{0, QStringLiteral("A line of thirty-three characters")}, {1, QStringLiteral("  indented  ")}}));
    EXPECT_EQ(record.line(0), QStringLiteral("A line of thirty-three character"));
    EXPECT_EQ(record.line(1), QStringLiteral("  indented"));
}

TEST(MenuPlanFile, ATenMegabyteYearFileReadsItsSlotsAndIsNeverShortened)
{
    TempProgramFolder folder;
    QByteArray big = ReadFileBytes(TestDataFile(QStringLiteral(" 2026.Mnu")));
    big.append(QByteArray(10 * 1024 * 1024 - big.size(), 'x'));
    folder.writeBytes(QStringLiteral(" 2026.Mnu"), big);
    EXPECT_EQ(ReadDay(QDate(2026, 3, 15)).line(0), QStringLiteral("Oatmeal"));
    ASSERT_TRUE(SaveDay(MenuPlaceOf(QDate(2026, 4, 3)), Lines({{0, QStringLiteral("Crepes")}})));
    const QByteArray after = folder.bytesOf(QStringLiteral(" 2026.Mnu"));
    EXPECT_EQ(after.size(), big.size());
    EXPECT_EQ(after.mid(33 * 700 + 682), big.mid(33 * 700 + 682));
}

TEST(MenuPlanFile, ASaveIntoAFolderOfTheFilesNameFails)
{
    TempProgramFolder folder;
    ASSERT_TRUE(QDir().mkdir(QStringLiteral(" 2026.Mnu")));
    EXPECT_FALSE(SaveDay(MenuPlaceOf(QDate(2026, 3, 15)), Lines({{0, QStringLiteral("Eggs")}})));
    EXPECT_FALSE(ReadDay(QDate(2026, 3, 15)).isFull());
    EXPECT_EQ(YearFileLength(2026), 0);
}

TEST(MenuPlanFile, EachMealHasItsSevenLines)
{
    EXPECT_EQ(MealOfLine(0), Meal::Breakfast);
    EXPECT_EQ(MealOfLine(6), Meal::Breakfast);
    EXPECT_EQ(MealOfLine(7), Meal::Lunch);
    EXPECT_EQ(MealOfLine(13), Meal::Lunch);
    EXPECT_EQ(MealOfLine(14), Meal::Dinner);
    EXPECT_EQ(MealOfLine(20), Meal::Dinner);
}
