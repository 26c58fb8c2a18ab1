// The shopping list on paper, read back from the composed document. Text is
// measured by a simple rule (every character 10 twips per point wide, lines
// 20 twips per point plus 40 high), so each expected position is worked out
// here from the page size and the placement rules.
#include "shopping/logic/shoppingprint.h"

#include "common/dates.h"
#include "print/logic/pagebuilder.h"
#include "shopping/logic/datebox.h"
#include "shopping/logic/groceryentry.h"

#include "fixed_measurer.h"


#include <gtest/gtest.h>

namespace {

constexpr double kW = 12240;  // letter paper, upright
constexpr double kH = 15840;
constexpr double kTop = 1440;  // the page's top margin

double Width(double size, const QString& text)
{
    return 10 * size * double(text.size());
}

double Line(double size)
{
    return 20 * size + 40;
}

TextFont FontOfSize(double size)
{
    TextFont font;
    font.size = size;
    return font;
}

QList<GridRow> RowsOf(const QStringList& entries)
{
    QList<GridRow> rows;
    for (int i = 0; i < entries.size(); ++i)
        rows.append(GridRow{ItemCellOf(entries[i]), AmountCellOf(entries[i]), i});
    return rows;
}

QStringList NumberedItems(int count)
{
    QStringList items;
    for (int i = 1; i <= count; ++i)
        items.append(QStringLiteral("Item %1").arg(i, 2, 10, QLatin1Char('0')));
    return items;
}

QString Ticked(const QString& name)
{
    return QStringLiteral("[   ]") + name.leftJustified(28);
}

class ShoppingPrintTest : public ::testing::Test {
protected:
    ShoppingPrintTest() { SetDateLocale(QLocale(QLocale::English, QLocale::UnitedStates)); }
    ~ShoppingPrintTest() override { SetDateLocale(QLocale()); }

    const PageDocument& compose(const QStringList& entries, double size = 12, bool dividers = true,
                                bool printDate = true, const QString& family = {})
    {
        ShoppingPrintout list;
        list.familyName = family;
        list.dateBox = QStringLiteral("11/15/26");
        list.rows = RowsOf(entries);
        list.entryCount = int(entries.size());
        list.dividers = dividers;
        list.printDate = printDate;
        ComposeShoppingList(page, list, FontOfSize(size));
        return page.document();
    }

    FixedMeasurer measurer;
    PageBuilder page{measurer};
};

} // namespace

TEST_F(ShoppingPrintTest, TheHeadIsTitleDateAnEmptyLineAndTheLeftHeadings)
{
    const PageDocument& doc = compose({"Milk"}, 12, true, true, "Smith");
    ASSERT_EQ(doc.pageCount(), 1);
    const Page& sheet = doc.pages[0];
    const QString title = "Smith Grocery Shopping List";
    const TextItem* titleItem = sheet.findText(title);
    ASSERT_NE(titleItem, nullptr);
    EXPECT_DOUBLE_EQ(titleItem->x, kW / 2 - Width(14, title) / 2);
    EXPECT_DOUBLE_EQ(titleItem->y, kTop);
    EXPECT_EQ(titleItem->font.size, 14);
    const QString date = "Sunday, November 15, 2026";
    const TextItem* dateItem = sheet.findText(date);
    ASSERT_NE(dateItem, nullptr);
    EXPECT_DOUBLE_EQ(dateItem->x, kW / 2 - Width(14, date) / 2);
    EXPECT_DOUBLE_EQ(dateItem->y, kTop + Line(14));
    const double headingY = kTop + 3 * Line(14);
    const TextItem* items = sheet.findText("Grocery Items");
    ASSERT_NE(items, nullptr);
    EXPECT_DOUBLE_EQ(items->x, kW / 6 - Width(12, "Grocery Items") / 2);
    EXPECT_DOUBLE_EQ(items->y, headingY);
    EXPECT_EQ(items->font.size, 12);
    const TextItem* amounts = sheet.findText("Amount to Purchase");
    ASSERT_NE(amounts, nullptr);
    EXPECT_DOUBLE_EQ(amounts->x, kW / 2.5 - Width(12, "Amount to Purchase") / 2);
    EXPECT_DOUBLE_EQ(amounts->y, headingY);
    const TextItem* milk = sheet.findText(Ticked("Milk"));
    ASSERT_NE(milk, nullptr);
    EXPECT_DOUBLE_EQ(milk->x, kW / 100);
    EXPECT_DOUBLE_EQ(milk->y, headingY + 2 * Line(12));
}

TEST_F(ShoppingPrintTest, WithoutAFamilyNameTheTitleStandsAloneAndTheDateCanBeLeftOut)
{
    const PageDocument& doc = compose({"Milk"}, 12, true, false);
    EXPECT_NE(doc.pages[0].findText("Grocery Shopping List"), nullptr);
    EXPECT_FALSE(doc.allTexts().contains("Sunday, November 15, 2026"));
    // The empty line keeps the date's place.
    EXPECT_DOUBLE_EQ(doc.pages[0].findText("Grocery Items")->y, kTop + 3 * Line(14));
}

TEST_F(ShoppingPrintTest, AnAmountIsCentredOnItsColumnOnTheItemsLine)
{
    const PageDocument& doc = compose({"Milk", MakeGroceryEntry(u"Eggs", u"1 Dozen")});
    const TextItem* eggs = doc.pages[0].findText(Ticked("Eggs"));
    const TextItem* dozen = doc.pages[0].findText("1 Dozen");
    ASSERT_NE(eggs, nullptr);
    ASSERT_NE(dozen, nullptr);
    EXPECT_DOUBLE_EQ(dozen->y, eggs->y);
    EXPECT_DOUBLE_EQ(dozen->x, kW / 2.5 - Width(12, "1 Dozen") / 2);
}

TEST_F(ShoppingPrintTest, OnlyRowsOneToTheNumberOfEntriesAreWalkedAndEmptyOnesSkipped)
{
    ShoppingPrintout list;
    list.rows = RowsOf({"Milk", "Eggs", "Tea"});
    list.rows[1].item = QString();
    list.entryCount = 2;
    ComposeShoppingList(page, list, FontOfSize(12));
    const QStringList texts = page.document().allTexts();
    EXPECT_TRUE(texts.contains(Ticked("Milk")));
    EXPECT_FALSE(texts.contains(Ticked("Eggs")));
    EXPECT_FALSE(texts.contains(Ticked("Tea")));
}

// At size 20 a line is 440 twips and the head 3 x 480 + 2 x 440 = 2320, so
// the items start at 1440 + 2320 = 3760. An item fits while the line after it
// would end by 15840 - 400 = 15440; every fifth item adds 13. After 25 items
// the next line starts at 3760 + 25 x 440 + 5 x 13 = 14825, and item 26 ends
// at 15265: its next line would pass the bound, so item 26 is the last of the
// left half. Items 27 to 52 fill the right half the same way, item 52 takes
// a new page, and items 53 to 70 stand on page 2 under a complete head.
TEST_F(ShoppingPrintTest, SeventyItemsFillTheLeftHalfGoOnAtTheTopOfTheRightHalfAndThenTakeANewPageWithACompleteHead)
{
    const PageDocument& doc = compose(NumberedItems(70), 20);
    ASSERT_EQ(doc.pageCount(), 2);
    const double itemsTop = kTop + 3 * Line(22) + 2 * Line(20);
    ASSERT_DOUBLE_EQ(itemsTop, 3760);
    const auto item = [&](int page, int number) {
        return doc.pages[page].findText(Ticked(QStringLiteral("Item %1").arg(number, 2, 10, QLatin1Char('0'))));
    };
    for (int number = 1; number <= 26; ++number) {
        ASSERT_NE(item(0, number), nullptr) << number;
        EXPECT_DOUBLE_EQ(item(0, number)->x, kW / 100) << number;
        EXPECT_DOUBLE_EQ(item(0, number)->y, itemsTop + (number - 1) * 440 + (number - 1) / 5 * 13) << number;
    }
    for (int number = 27; number <= 52; ++number) {
        ASSERT_NE(item(0, number), nullptr) << number;
        EXPECT_DOUBLE_EQ(item(0, number)->x, kW / 1.97) << number;
        EXPECT_DOUBLE_EQ(item(0, number)->y, itemsTop + (number - 27) * 440 + (number - 27) / 5 * 13) << number;
    }
    for (int number = 53; number <= 70; ++number) {
        ASSERT_NE(item(1, number), nullptr) << number;
        EXPECT_DOUBLE_EQ(item(1, number)->x, kW / 100) << number;
        EXPECT_DOUBLE_EQ(item(1, number)->y, itemsTop + (number - 53) * 440 + (number - 53) / 5 * 13) << number;
    }
    // The right half has headings of its own on the left half's heading row.
    const QList<TextItem> headings = doc.pages[0].textsAt(kTop + 3 * Line(22));
    ASSERT_EQ(headings.size(), 4);
    EXPECT_DOUBLE_EQ(headings[2].x, kW / 1.38 - Width(20, "Grocery Items") / 2);
    EXPECT_DOUBLE_EQ(headings[3].x, kW / 1.11 - Width(20, "Amount to Purchase") / 2);
    // Page 2 starts with the whole head.
    EXPECT_NE(doc.pages[1].findText("Grocery Shopping List"), nullptr);
    EXPECT_NE(doc.pages[1].findText("Sunday, November 15, 2026"), nullptr);
    EXPECT_NE(doc.pages[1].findText("Grocery Items"), nullptr);
}

TEST_F(ShoppingPrintTest, WithDividersOnEachColumnShowsALineAfterEveryFifthItem)
{
    const PageDocument& doc = compose(NumberedItems(70), 20);
    const QList<LineItem> first = doc.pages[0].lines();
    ASSERT_EQ(first.size(), 10);
    const double itemsTop = 3760;
    for (int i = 0; i < 5; ++i) {
        SCOPED_TRACE(i);
        const double y = itemsTop + (i + 1) * 5 * 440 + i * 13 + 10;
        EXPECT_DOUBLE_EQ(first[i].x1, kW / 100);
        EXPECT_DOUBLE_EQ(first[i].x2, kW / 2);
        EXPECT_DOUBLE_EQ(first[i].y1, y);
        EXPECT_DOUBLE_EQ(first[i].y2, y);
        EXPECT_DOUBLE_EQ(first[5 + i].x1, kW / 2);
        EXPECT_DOUBLE_EQ(first[5 + i].x2, kW - 2);
        EXPECT_DOUBLE_EQ(first[5 + i].y1, y);
    }
    EXPECT_EQ(doc.pages[1].lines().size(), 3) << "18 items on page 2";
}

TEST_F(ShoppingPrintTest, WithDividersOffNoLineIsDrawnButTheRoomStays)
{
    const PageDocument& doc = compose(NumberedItems(7), 12, false);
    EXPECT_TRUE(doc.pages[0].lines().isEmpty());
    const double top = doc.pages[0].findText(Ticked("Item 01"))->y;
    EXPECT_DOUBLE_EQ(doc.pages[0].findText(Ticked("Item 06"))->y, top + 5 * Line(12) + 13);
}

TEST_F(ShoppingPrintTest, ANameOf28CharactersPrintsAsThreeBlanksAnd26Characters)
{
    const QString name = "Abcdefghijklmnopqrstuvwxyz12";
    ASSERT_EQ(name.size(), 28);
    const PageDocument& doc = compose({MakeGroceryEntry(name)});
    EXPECT_TRUE(doc.allTexts().contains("[   ]   Abcdefghijklmnopqrstuvwxyz")) << doc.allTexts().join('|').toStdString();
}

TEST_F(ShoppingPrintTest, TheItemFieldIs28CharactersForNamesShownShorterThan27)
{
    EXPECT_EQ(PrintedItemText(u"  Milk"), QString("Milk").leftJustified(28));
    EXPECT_EQ(PrintedItemText(u"  Abcdefghijklmnopqrstuvwx"), QString("Abcdefghijklmnopqrstuvwx").leftJustified(28));
    EXPECT_EQ(PrintedItemText(u"  Abcdefghijklmnopqrstuvwxy"), "   Abcdefghijklmnopqrstuvwxy") << "27 as shown";
}

TEST_F(ShoppingPrintTest, TheWorksheetPrintsWithAnEmptyList)
{
    ComposeShoppingWorksheet(page, FontOfSize(12));
    const PageDocument& doc = page.document();
    ASSERT_EQ(doc.pageCount(), 1);
    const Page& sheet = doc.pages[0];
    const TextItem* title = sheet.findText("Shopping List Worksheet");
    ASSERT_NE(title, nullptr);
    EXPECT_DOUBLE_EQ(title->x, kW / 2 - Width(14, "Shopping List Worksheet") / 2);
    EXPECT_DOUBLE_EQ(title->y, kTop);
    const double headingY = kTop + Line(14);
    const QList<TextItem> headings = sheet.textsAt(headingY);
    ASSERT_EQ(headings.size(), 4);
    const double xs[] = {kW / 10, kW / 2.65, kW / 1.65, kW / 1.128};
    const char* const texts[] = {"Grocery Item", "Amount", "Grocery Item", "Amount"};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(headings[i].text, texts[i]);
        EXPECT_DOUBLE_EQ(headings[i].x, xs[i]);
    }
    const QList<LineItem> lines = sheet.lines();
    // Three rules at the head, one under each empty line until a line passes
    // H - 400, then six verticals.
    const double firstRow = headingY + Line(12);
    int rows = 0;
    for (double y = firstRow; y <= kH - 400; y += Line(12))
        ++rows;
    ASSERT_EQ(lines.size(), 3 + rows + 6);
    EXPECT_DOUBLE_EQ(lines[0].y1, kTop);
    EXPECT_DOUBLE_EQ(lines[0].x1, 5);
    EXPECT_DOUBLE_EQ(lines[0].x2, kW - 5);
    EXPECT_DOUBLE_EQ(lines[1].y1, headingY);
    EXPECT_DOUBLE_EQ(lines[2].y1, firstRow);
    const double bottom = firstRow + rows * Line(12);
    EXPECT_GT(bottom, kH - 400);
    EXPECT_DOUBLE_EQ(lines[2 + rows].y1, bottom);
    const double verticals[] = {5, kW - 5, kW / 3.1, kW / 2, kW / 1.99, kW / 1.2};
    for (int i = 0; i < 6; ++i) {
        const LineItem& vertical = lines[3 + rows + i];
        EXPECT_DOUBLE_EQ(vertical.x1, verticals[i]);
        EXPECT_DOUBLE_EQ(vertical.x2, verticals[i]);
        EXPECT_DOUBLE_EQ(vertical.y1, kTop);
        EXPECT_DOUBLE_EQ(vertical.y2, bottom);
    }
}

TEST_F(ShoppingPrintTest, NothingToPrintIsFoundByBothWalks)
{
    QList<GridRow> rows = RowsOf({"Milk", "Eggs"});
    EXPECT_TRUE(HasPrintableRows(rows, 2));
    EXPECT_FALSE(HasPrintableRows(rows, 0));
    EXPECT_FALSE(HasPrintableRows({}, 3));
    rows[0].item = "  ";
    rows[1].item.clear();
    EXPECT_FALSE(HasPrintableRows(rows, 2));
}

TEST_F(ShoppingPrintTest, ScreenFontsPrintInTimesNewRoman12AndAMissingFontGivesWay)
{
    TextFont font;
    font.name = "MS Sans Serif";
    font.size = 8;
    const auto all = [](const QString&) { return true; };
    EXPECT_EQ(ListPrintFont(font, all).name, "Times New Roman");
    EXPECT_EQ(ListPrintFont(font, all).size, 12);
    font.name = "MS Serif";
    EXPECT_EQ(ListPrintFont(font, all).name, "Times New Roman");
    font.name = "Arial";
    font.size = 9;
    EXPECT_EQ(ListPrintFont(font, all), font) << "other fonts stay as chosen";
    const auto onlyCourier = [](const QString& family) { return family == "Courier"; };
    EXPECT_EQ(ListPrintFont(font, onlyCourier).name, "Courier");
    const auto onlyTimes = [](const QString& family) { return family == "Times New Roman"; };
    EXPECT_EQ(ListPrintFont(font, onlyTimes).name, "Times New Roman");
    EXPECT_EQ(ListPrintFont(font, onlyTimes).size, 9);
}

TEST_F(ShoppingPrintTest, TheDateIsPrintedLongOrAsTheBoxHoldsIt)
{
    EXPECT_EQ(LongDateOfBox(u"11/15/26"), "Sunday, November 15, 2026");
    EXPECT_EQ(LongDateOfBox(u"someday"), "someday");
}
