// The planner's printout on the recorded document, measured by the fixed
// measurer (a character is 10 twips wide per point, a line 20 twips per
// point plus 40): the head, a day's block, empty days, page breaks with
// " [Continued]", the page number, grid lines; and the stored print font.
#include "planner/logic/menuprint.h"

#include "print/logic/pagebuilder.h"

#include "fixed_measurer.h"
#include "pinned_dates.h"
#include "raw_slots.h"
#include "temp_program_folder.h"
#include "test_data.h"

#include <gtest/gtest.h>

namespace {

constexpr double kWidth = 12240;
constexpr double kHeight = 15840;

MenuDayRecord FullDay(int rows)
{
    MenuLines lines;
    for (int row = 0; row < rows; ++row) {
        lines[size_t(row)] = QStringLiteral("Breakfast %1").arg(row + 1);
        lines[size_t(row + 7)] = QStringLiteral("Lunch %1").arg(row + 1);
        lines[size_t(row + 14)] = QStringLiteral("Dinner %1").arg(row + 1);
    }
    return MenuDayRecord::Saved(lines);
}

class MenuPrintTest : public ::testing::Test {
protected:
    MenuPrintTest() { request.font.size = 12; }

    PageDocument compose(const DayReader& read)
    {
        PageBuilder page(measurer);
        ComposeMenuPages(page, request, read);
        return page.document();
    }

    static QList<LineItem> LinesOf(const Page& page)
    {
        QList<LineItem> lines;
        for (const PageItem& item : page.items) {
            if (const auto* line = std::get_if<LineItem>(&item))
                lines.append(*line);
        }
        return lines;
    }

    PinnedDates dates{kUsa};
    FixedMeasurer measurer;
    MenuPrintRequest request{QDate(2026, 4, 3), 0, {}, true, true, QString(), QDate(2026, 11, 21)};
};

} // namespace

TEST_F(MenuPrintTest, TheHeadCentresTheTitleAndThePrintingDate)
{
    request.familyName = QStringLiteral("Smith");
    const PageDocument document = compose([](QDate) { return FullDay(1); });
    const Page& page = document.pages[0];
    const TextItem* title = page.findText(QStringLiteral("Smith Menu Planner"));
    ASSERT_NE(title, nullptr);
    EXPECT_EQ(title->font.size, 14);
    EXPECT_DOUBLE_EQ(title->x, kWidth / 2 - 10 * 14 * 18 / 2);
    EXPECT_DOUBLE_EQ(title->y, 0);
    const TextItem* date = page.findText(QStringLiteral("Printed on Saturday, November 21, 2026"));
    ASSERT_NE(date, nullptr);
    EXPECT_EQ(date->font.size, 10);
    EXPECT_DOUBLE_EQ(date->x, kWidth / 2 - 10 * 10 * 38 / 2);
    EXPECT_DOUBLE_EQ(date->y, 320);
}

TEST_F(MenuPrintTest, WithoutAFamilyNameTheTitleIsMenuPlanner)
{
    EXPECT_EQ(MenuPrintTitle(QString()), QStringLiteral("Menu Planner"));
    EXPECT_EQ(MenuPrintTitle(QStringLiteral("Jones")), QStringLiteral("Jones Menu Planner"));
    const PageDocument document = compose([](QDate) { return FullDay(1); });
    EXPECT_NE(document.pages[0].findText(QStringLiteral("Menu Planner")), nullptr);
}

TEST_F(MenuPrintTest, WithoutThePrintingDateAnEmptyLineTakesItsPlace)
{
    request.printDate = false;
    const PageDocument document = compose([](QDate) { return FullDay(1); });
    for (const QString& text : document.allTexts())
        EXPECT_FALSE(text.startsWith(QStringLiteral("Printed on"))) << text.toStdString();
    const TextItem* day = document.pages[0].findText(QStringLiteral(" Friday, April 3, 2026"));
    ASSERT_NE(day, nullptr);
    EXPECT_DOUBLE_EQ(day->y, 560) << "the date line's height is kept";
}

TEST_F(MenuPrintTest, ADayBlockHasItsDateHeadingsAndRowsInPlace)
{
    MenuLines lines;
    lines[0] = QStringLiteral("Pancakes");
    lines[1] = QStringLiteral("Coffee");
    lines[8] = QStringLiteral("Soup");
    lines[20] = QStringLiteral("Pie");
    const PageDocument document = compose([&lines](QDate) { return MenuDayRecord::Saved(lines); });
    ASSERT_EQ(document.pageCount(), 1);
    const Page& page = document.pages[0];
    const TextItem* day = page.findText(QStringLiteral(" Friday, April 3, 2026"));
    ASSERT_NE(day, nullptr);
    EXPECT_TRUE(day->font.bold);
    EXPECT_DOUBLE_EQ(day->x, 0);
    EXPECT_DOUBLE_EQ(day->y, 560);
    const struct { const char* text; double centre; } headings[] = {
        {"Breakfast", kWidth / 6.5}, {"Lunch", kWidth / 2.05}, {"Dinner", kWidth / 1.22}};
    for (const auto& heading : headings) {
        const TextItem* item = page.findText(QString::fromLatin1(heading.text));
        ASSERT_NE(item, nullptr) << heading.text;
        EXPECT_FALSE(item->font.bold);
        EXPECT_DOUBLE_EQ(item->x + item->width / 2, heading.centre) << heading.text;
        EXPECT_DOUBLE_EQ(item->y, 840) << heading.text;
    }
    // Rows are the height of a line and 10 twips; row 3, all blank, takes no room.
    const QList<TextItem> first = page.textsAt(1120);
    ASSERT_EQ(first.size(), 1);
    EXPECT_EQ(first[0].text, QStringLiteral(" Pancakes"));
    EXPECT_DOUBLE_EQ(first[0].x, 30);
    const QList<TextItem> second = page.textsAt(1410);
    ASSERT_EQ(second.size(), 2);
    EXPECT_EQ(second[0].text, QStringLiteral(" Coffee"));
    EXPECT_EQ(second[1].text, QStringLiteral(" Soup"));
    EXPECT_DOUBLE_EQ(second[1].x, kWidth / 2.95);
    const QList<TextItem> last = page.textsAt(1700);
    ASSERT_EQ(last.size(), 1);
    EXPECT_EQ(last[0].text, QStringLiteral(" Pie"));
    EXPECT_DOUBLE_EQ(last[0].x, kWidth / 1.5);
}

TEST_F(MenuPrintTest, GridLinesCrossTheDayAndPartTheColumns)
{
    const PageDocument document = compose([](QDate) { return FullDay(2); });
    const QList<LineItem> lines = LinesOf(document.pages[0]);
    ASSERT_EQ(lines.size(), 4);
    EXPECT_DOUBLE_EQ(lines[0].x1, 2);
    EXPECT_DOUBLE_EQ(lines[0].x2, kWidth - 2);
    EXPECT_DOUBLE_EQ(lines[0].y1, 840);
    EXPECT_DOUBLE_EQ(lines[1].y1, 1120);
    // The separators run from under the day's line to the end of its rows.
    EXPECT_DOUBLE_EQ(lines[2].x1, kWidth / 3.04);
    EXPECT_DOUBLE_EQ(lines[3].x1, kWidth / 1.52);
    EXPECT_DOUBLE_EQ(lines[2].y1, 840);
    EXPECT_DOUBLE_EQ(lines[2].y2, 1120 + 2 * 290);
}

TEST_F(MenuPrintTest, WithoutGridLinesNoLineIsDrawn)
{
    request.gridLines = false;
    request.following = 12;
    const PageDocument document = compose([](QDate) { return FullDay(7); });
    for (const Page& page : document.pages)
        EXPECT_TRUE(LinesOf(page).isEmpty());
}

// The tops of a document's first 100 blocks are remembered for their column
// separators; a block past them has no top to start from and is not parted.
TEST_F(MenuPrintTest, OnlyTheFirstHundredBlocksArePartedIntoColumns)
{
    request.following = 119;
    const PageDocument document = compose([](QDate) { return FullDay(1); });
    int separators = 0;
    for (const Page& page : document.pages) {
        for (const LineItem& line : LinesOf(page)) {
            if (line.x1 == line.x2) {
                EXPECT_GE(line.y1, 200);
                ++separators;
            }
        }
    }
    EXPECT_EQ(separators, 2 * 100);
    // The last day still has its block, only without separators.
    EXPECT_NE(document.pages.last().findText(QStringLiteral(" Friday, July 31, 2026")), nullptr);
}

TEST_F(MenuPrintTest, ADayNeverSavedTakesOneLine)
{
    request.following = 1;
    const PageDocument document = compose([](QDate date) { return date.day() == 3 ? FullDay(1) : MenuDayRecord{}; });
    const Page& page = document.pages[0];
    const TextItem* day = page.findText(QStringLiteral(" Saturday, April 4, 2026"));
    ASSERT_NE(day, nullptr);
    EXPECT_TRUE(day->font.bold);
    const TextItem* none = page.findText(QStringLiteral("No menu items were found for this date."));
    ASSERT_NE(none, nullptr);
    EXPECT_FALSE(none->font.bold);
    EXPECT_DOUBLE_EQ(none->x, kWidth / 2.95);
    EXPECT_DOUBLE_EQ(none->y, day->y);
}

// Edge case: a long day reaching the page's end repeats its day line with
// " [Continued]".
TEST_F(MenuPrintTest, ALongDayReachingThePagesEndGoesOnUnderContinued)
{
    request.following = 5;
    const PageDocument document = compose([](QDate) { return FullDay(7); });
    ASSERT_EQ(document.pageCount(), 2);
    // Five days fill the first page to 13510; the sixth breaks after its
    // fourth row, which ends at 15230, beyond 15840 - 700.
    const Page& first = document.pages[0];
    EXPECT_NE(first.findText(QStringLiteral(" Wednesday, April 8, 2026")), nullptr);
    EXPECT_NE(first.findText(QStringLiteral(" Breakfast 4")), nullptr);
    const Page& second = document.pages[1];
    EXPECT_NE(second.findText(QStringLiteral("Menu Planner")), nullptr) << "each page has its head";
    const TextItem* continued = second.findText(QStringLiteral(" Wednesday, April 8, 2026 [Continued]"));
    ASSERT_NE(continued, nullptr);
    EXPECT_TRUE(continued->font.bold);
    EXPECT_DOUBLE_EQ(continued->y, 560);
    EXPECT_NE(second.findText(QStringLiteral("Breakfast")), nullptr) << "the headings again";
    const QList<TextItem> fifth = second.textsAt(1120);
    ASSERT_EQ(fifth.size(), 3);
    EXPECT_EQ(fifth[0].text, QStringLiteral(" Breakfast 5"));
    EXPECT_EQ(second.textsAt(1120 + 2 * 290).at(2).text, QStringLiteral(" Dinner 7"));
    // The head's grid line on the new page, under the printing date.
    const QList<LineItem> lines = LinesOf(second);
    ASSERT_FALSE(lines.isEmpty());
    EXPECT_DOUBLE_EQ(lines[0].y1, 560);
}

TEST_F(MenuPrintTest, ADayBrokenAfterItsSeventhRowIsNotContinued)
{
    // Four full days end at 10920 and a day of four rows at 12640; the next
    // full day's seventh row ends at 15230, past 15840 - 700, and the page
    // breaks with nothing of the day left to continue.
    request.following = 5;
    const PageDocument document = compose([](QDate date) { return date.day() == 7 ? FullDay(4) : FullDay(7); });
    ASSERT_EQ(document.pageCount(), 2);
    EXPECT_NE(document.pages[0].findText(QStringLiteral(" Dinner 7")), nullptr);
    for (const QString& text : document.allTexts())
        EXPECT_FALSE(text.endsWith(QStringLiteral("[Continued]"))) << text.toStdString();
    EXPECT_EQ(document.pages[1].texts().size(), 3) << "the head and the page number only";
    EXPECT_NE(document.pages[1].findText(QStringLiteral("Page 2")), nullptr);
}

TEST_F(MenuPrintTest, ADayStartingTooLowGoesToTheNextPageWhole)
{
    // Five full days end at 13510, a day of three rows at 14940: the next
    // day starts more than 15840 - 1200 down and opens the second page.
    request.following = 6;
    const PageDocument document = compose([](QDate date) { return date.day() == 8 ? FullDay(3) : FullDay(7); });
    ASSERT_EQ(document.pageCount(), 2);
    EXPECT_EQ(document.pages[0].findText(QStringLiteral(" Thursday, April 9, 2026")), nullptr);
    const TextItem* ninth = document.pages[1].findText(QStringLiteral(" Thursday, April 9, 2026"));
    ASSERT_NE(ninth, nullptr);
    EXPECT_DOUBLE_EQ(ninth->y, 560);
}

TEST_F(MenuPrintTest, EveryPageEndsWithItsNumber)
{
    request.following = 12;
    const PageDocument document = compose([](QDate) { return FullDay(7); });
    ASSERT_GE(document.pageCount(), 3);
    for (int index = 0; index < document.pageCount(); ++index) {
        const TextItem* number = document.pages[index].findText(QStringLiteral("Page %1").arg(index + 1));
        ASSERT_NE(number, nullptr) << index;
        EXPECT_DOUBLE_EQ(number->y, kHeight - 200);
        EXPECT_DOUBLE_EQ(number->x + number->width / 2, kWidth / 2);
    }
}

// Edge case: a body font larger than 10 gives a page number at size 10.
TEST_F(MenuPrintTest, ABodyFontLargerThanTenGivesAPageNumberAtTen)
{
    request.font.size = 14;
    const PageDocument large = compose([](QDate) { return FullDay(1); });
    EXPECT_EQ(large.pages[0].findText(QStringLiteral("Page 1"))->font.size, 10);
    EXPECT_EQ(large.pages[0].findText(QStringLiteral(" Breakfast 1"))->font.size, 14);
    request.font.size = 8;
    const PageDocument small = compose([](QDate) { return FullDay(1); });
    EXPECT_EQ(small.pages[0].findText(QStringLiteral("Page 1"))->font.size, 8);
}

TEST_F(MenuPrintTest, ARunOverNewYearReadsEachDayByTheDateRule)
{
    TempProgramFolder folder;
    MenuLines eve;
    eve[14] = QStringLiteral("Fondue");
    MenuLines day;
    day[0] = QStringLiteral("Brunch");
    ASSERT_TRUE(SaveDay(MenuPlaceOf(QDate(2026, 12, 31)), eve));
    ASSERT_TRUE(SaveDay(MenuPlaceOf(QDate(2027, 1, 1)), day));
    request.start = QDate(2026, 12, 30);
    request.following = 2;
    PageBuilder page(measurer);
    ComposeMenuPages(page, request);
    const QStringList texts = page.document().allTexts();
    EXPECT_TRUE(texts.contains(QStringLiteral(" Fondue")));
    EXPECT_TRUE(texts.contains(QStringLiteral(" Brunch")));
    EXPECT_TRUE(texts.contains(QStringLiteral(" Friday, January 1, 2027")));
    EXPECT_EQ(texts.count(QStringLiteral("No menu items were found for this date.")), 1);
}

TEST(MenuPrintFont, TheStoredNameAndSizeAreRead)
{
    TempProgramFolder folder;
    WriteSlotTagged(GColor4, 26, QStringLiteral("Arial"));
    WriteSlotTagged(GColor4, 27, qint32(9));
    const TextFont font = ReadMenuPrintFont(TextFont{});
    EXPECT_EQ(font.name, QStringLiteral("Arial"));
    EXPECT_EQ(font.size, 9);
}

// Edge case: "MS Sans Serif" stored as the font prints in "Times New Roman".
TEST(MenuPrintFont, MsSansSerifPrintsInTimesNewRoman)
{
    TempProgramFolder folder;
    folder.copyIn(TestDataFile(QStringLiteral("GColor4.Fil")));
    TextFont current;
    current.name = QStringLiteral("Liberation Sans");
    const TextFont font = ReadMenuPrintFont(current);
    EXPECT_EQ(font.name, QStringLiteral("Times New Roman"));
    EXPECT_EQ(font.size, 12);
    EXPECT_EQ(MenuPrintFontFrom(current, QStringLiteral("MS Serif"), qint32(12)).name,
              QStringLiteral("Times New Roman"));
}

TEST(MenuPrintFont, ASizeOutsideFourToThirtyBecomesFourteen)
{
    const TextFont current;
    EXPECT_EQ(MenuPrintFontFrom(current, {}, {}).size, 14) << "an empty slot";
    EXPECT_EQ(MenuPrintFontFrom(current, {}, qint32(3)).size, 14);
    EXPECT_EQ(MenuPrintFontFrom(current, {}, qint32(31)).size, 14);
    EXPECT_EQ(MenuPrintFontFrom(current, {}, qint32(4)).size, 4);
    EXPECT_EQ(MenuPrintFontFrom(current, {}, qint32(30)).size, 30);
}

TEST(MenuPrintFont, ASizeStoredAsTextIsReadAsANumber)
{
    const TextFont current;
    EXPECT_EQ(MenuPrintFontFrom(current, {}, QStringLiteral(" 11")).size, 11);
    EXPECT_EQ(MenuPrintFontFrom(current, {}, QStringLiteral("big")).size, 14);
}

TEST(MenuPrintFont, AnEmptyNameKeepsTheFontInUse)
{
    TextFont current;
    current.name = QStringLiteral("Liberation Serif");
    current.bold = true;
    const TextFont font = MenuPrintFontFrom(current, {}, qint32(10));
    EXPECT_EQ(font.name, QStringLiteral("Liberation Serif"));
    EXPECT_TRUE(font.bold) << "only the name and the size are stored";
    EXPECT_EQ(MenuPrintFontFrom(current, qint32(5), qint32(10)).name, QStringLiteral("Liberation Serif"));
}
