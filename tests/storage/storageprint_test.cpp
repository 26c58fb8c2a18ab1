// The printed storage form on the recorded page document, measured with
// round numbers: a character is 120 twips wide and a line 280 twips high
// at size 12.
#include "storage/logic/storageprint.h"

#include "common/dates.h"
#include "print/logic/pagebuilder.h"
#include "storage/logic/storagecalc.h"
#include "fixed_measurer.h"
#include "storage_fixture.h"
#include "storage_samples.h"

namespace {

constexpr double kWidth = 12240;
constexpr double kHeight = 15840;
const QDate kToday(2026, 4, 3);

class StoragePrint : public StorageFolderTest {
protected:
    PageDocument compose(const StorageTable& table, StoragePrintChoice choice, bool asOf = true, bool lines = true,
                         const QString& caption = QStringLiteral("Basic Food Storage"))
    {
        PageBuilder page(measurer);
        StoragePrintSettings settings;
        settings.choice = choice;
        settings.asOfDate = asOf;
        settings.gridLines = lines;
        settings.font.name = QStringLiteral("Arial");
        settings.font.size = 12;
        ComposeStoragePages(page, caption, table, settings, kToday);
        return page.document();
    }

    static double Centre(const TextItem& item) { return item.x + item.width / 2; }

    static QList<LineItem> Lines(const Page& page)
    {
        QList<LineItem> lines;
        for (const PageItem& item : page.items)
            if (const auto* line = std::get_if<LineItem>(&item))
                lines.append(*line);
        return lines;
    }

    FixedMeasurer measurer;
};

StorageTable SmallTable()
{
    StorageTable table;
    table.setCell(1, kItemColumn, QStringLiteral("Grains"));
    const QStringList grains{"Grains", "4", "300 lbs", "1200 lbs", "150 lbs", "*", "*", "*"};
    const QStringList wheat{"    Wheat", "*", "*", "*", "150 lbs", "4/3/26", "25", ""};
    for (int column = 0; column < kStorageColumns; ++column) {
        table.setCell(1, column, grains[column]);
        table.setCell(2, column, wheat[column]);
    }
    table.setCell(3, kItemColumn, QStringLiteral("    Rice"));
    return table;
}

} // namespace

TEST_F(StoragePrint, TheCaptionTrimmedBoldAndCentredThenTheAsOfDate)
{
    const PageDocument document = compose(SmallTable(), StoragePrintChoice::AllColumns, true, true,
                                          QStringLiteral("  Basic Food Storage "));
    const Page& page = document.pages[0];
    const TextItem* caption = page.findText("Basic Food Storage");
    ASSERT_NE(caption, nullptr);
    EXPECT_TRUE(caption->font.bold);
    EXPECT_EQ(caption->y, 720);
    EXPECT_DOUBLE_EQ(Centre(*caption), kWidth / 2);
    const TextItem* asOf = page.findText("As of  " + LongDate(kToday));
    ASSERT_NE(asOf, nullptr);
    EXPECT_FALSE(asOf->font.bold);
    EXPECT_GT(asOf->y, caption->y);
    EXPECT_DOUBLE_EQ(Centre(*asOf), kWidth / 2);
}

TEST_F(StoragePrint, WithoutTheAsOfCheckNoDateIsPrinted)
{
    const PageDocument document = compose(SmallTable(), StoragePrintChoice::AllColumns, false);
    for (const QString& text : document.allTexts())
        EXPECT_FALSE(text.startsWith("As of")) << text.toStdString();
}

TEST_F(StoragePrint, AllEightColumnsStandOnTheirFractionsOfThePage)
{
    const PageDocument document = compose(SmallTable(), StoragePrintChoice::AllColumns);
    const Page& page = document.pages[0];
    const TextItem* grains = page.findText("Grains");
    ASSERT_NE(grains, nullptr);
    EXPECT_DOUBLE_EQ(grains->x, kWidth / 40);
    const QList<TextItem> row1 = page.textsAt(grains->y);
    ASSERT_EQ(row1.size(), 5) << "the three \"*\" print blank";
    const double divisors[] = {3.0, 2.33, 1.86, 1.53};
    for (int column = 1; column <= 4; ++column)
        EXPECT_NEAR(Centre(row1[column]), kWidth / divisors[column - 1], 1e-6) << column;
    const TextItem* wheat = page.findText("    Wheat");
    ASSERT_NE(wheat, nullptr);
    const QList<TextItem> row2 = page.textsAt(wheat->y);
    ASSERT_EQ(row2.size(), 4);
    EXPECT_EQ(row2[1].text, "150 lbs");
    EXPECT_NEAR(Centre(row2[1]), kWidth / 1.53, 1e-6);
    EXPECT_NEAR(Centre(row2[2]), kWidth / 1.31, 1e-6);
    EXPECT_NEAR(Centre(row2[3]), kWidth / 1.16, 1e-6);
    EXPECT_FALSE(document.allTexts().contains("*"));
}

TEST_F(StoragePrint, FiveColumnsStandOnTheirOwnFractions)
{
    const PageDocument document = compose(SmallTable(), StoragePrintChoice::FirstFiveColumns);
    const Page& page = document.pages[0];
    const QList<TextItem> row1 = page.textsAt(page.findText("Grains")->y);
    ASSERT_EQ(row1.size(), 5);
    const double divisors[] = {2.4, 1.75, 1.35, 1.1};
    for (int column = 1; column <= 4; ++column)
        EXPECT_NEAR(Centre(row1[column]), kWidth / divisors[column - 1], 1e-6) << column;
    EXPECT_FALSE(document.allTexts().contains("4/3/26")) << "no last action columns";
    EXPECT_FALSE(document.allTexts().contains("Action"));
}

TEST_F(StoragePrint, HeadingsAreStackedWords)
{
    const PageDocument document = compose(SmallTable(), StoragePrintChoice::AllColumns);
    const Page& page = document.pages[0];
    const TextItem* storage = page.findText("Storage");
    ASSERT_NE(storage, nullptr);
    EXPECT_DOUBLE_EQ(storage->x, kWidth / 40);
    QStringList first, second, third;
    for (const TextItem& item : page.textsAt(storage->y))
        first << item.text;
    for (const TextItem& item : page.textsAt(storage->y + 280))
        second << item.text;
    for (const TextItem& item : page.textsAt(storage->y + 560))
        third << item.text;
    EXPECT_EQ(first, QStringList({"Storage", "Number", "Amount", "Total", "Amount", "Last", "Last", "Last"}));
    EXPECT_EQ(second, QStringList({"Item", "In", "Per", "Amount", "On", "Action", "Action", "Action"}));
    EXPECT_EQ(third, QStringList({"Family", "Person", "Needed", "Hand", "Date", "Added", "Used"}));
    EXPECT_EQ(page.textsAt(storage->y)[1].text, "Number");
    EXPECT_NEAR(Centre(page.textsAt(storage->y + 560)[0]), kWidth / 3.0, 1e-6);
}

TEST_F(StoragePrint, OnlyLinesWithOnHandDataSkipTheOthers)
{
    StorageTable table = SmallTable();
    table.setCell(4, kOnHandColumn, kNotApplicable);
    table.setCell(4, kItemColumn, QStringLiteral("Marked"));
    const PageDocument document = compose(table, StoragePrintChoice::OnHandFiveColumns);
    EXPECT_TRUE(document.allTexts().contains("Grains"));
    EXPECT_TRUE(document.allTexts().contains("    Wheat"));
    EXPECT_FALSE(document.allTexts().contains("    Rice"));
    EXPECT_FALSE(document.allTexts().contains("Marked"));
    const PageDocument all = compose(table, StoragePrintChoice::OnHandAllColumns);
    EXPECT_TRUE(all.allTexts().contains("4/3/26"));
    EXPECT_FALSE(all.allTexts().contains("    Rice"));
}

TEST_F(StoragePrint, ANewPageStartsWithin400TwipsOfTheBottomWithBothHeadings)
{
    const StorageTable table = samples::FullStorageTable(StorageKind::Emergency);
    const PageDocument document = compose(table, StoragePrintChoice::AllColumns, true, true,
                                          QStringLiteral("Emergency Storage"));
    ASSERT_EQ(document.pageCount(), 2);
    for (const Page& page : document.pages) {
        EXPECT_NE(page.findText("Emergency Storage"), nullptr);
        EXPECT_NE(page.findText("As of  " + LongDate(kToday)), nullptr);
        EXPECT_NE(page.findText("Storage"), nullptr);
        EXPECT_NE(page.findText("Family"), nullptr);
        double lastTop = 0;
        for (const TextItem& item : page.texts())
            lastTop = qMax(lastTop, item.y);
        EXPECT_LT(lastTop, kHeight - 400) << "no row starts within 400 twips of the bottom";
    }
    // Every row once, in order.
    QStringList items;
    for (const QString& text : document.allTexts())
        if (text.startsWith("Stored item"))
            items << text;
    ASSERT_EQ(items.size(), 60);
    EXPECT_EQ(items.first(), "Stored item 1");
    EXPECT_EQ(items.last(), "Stored item 60");
    const QList<TextItem> second = document.pages[1].texts();
    ASSERT_FALSE(second.isEmpty());
    EXPECT_EQ(second.first().text, "Emergency Storage");
    EXPECT_EQ(second.first().y, 720);
    // The last row of page 1 ended within 400 twips of the bottom.
    double lastRow = 0;
    for (const TextItem& item : document.pages[0].texts())
        if (item.text.startsWith("Stored item"))
            lastRow = qMax(lastRow, item.y);
    EXPECT_GE(lastRow + 280, kHeight - 400);
}

TEST_F(StoragePrint, GridLinesRuleTheHeadingsAndEveryRow)
{
    const PageDocument ruled = compose(SmallTable(), StoragePrintChoice::AllColumns, true, true);
    ASSERT_EQ(ruled.pageCount(), 2);
    QList<LineItem> all;
    for (const Page& page : ruled.pages)
        all += Lines(page);
    EXPECT_EQ(all.size(), 60 + 2) << "under the headings of each page and under each of the 60 rows";
    const QList<LineItem> lines = Lines(ruled.pages[0]);
    for (const LineItem& line : lines) {
        EXPECT_DOUBLE_EQ(line.x1, kWidth / 40);
        EXPECT_DOUBLE_EQ(line.x2, kWidth - kWidth / 40);
        EXPECT_EQ(line.y1, line.y2);
    }
    const TextItem* grains = ruled.pages[0].findText("Grains");
    EXPECT_EQ(lines[1].y1, grains->y + 280) << "the line under row 1";
    const PageDocument plain = compose(SmallTable(), StoragePrintChoice::AllColumns, true, false);
    for (const Page& page : plain.pages)
        EXPECT_TRUE(Lines(page).isEmpty());
}

TEST_F(StoragePrint, TheChoicesCaptionsInOrder)
{
    EXPECT_EQ(StoragePrintChoiceCaptions(),
              QStringList({"Complete Form (First 5 Columns)", "Complete Form (All 8 Columns)",
                           "Only Lines w/OnHand Data(5 Cols.)", "Only Lines w/OnHand Data(All Cols.)"}));
}
