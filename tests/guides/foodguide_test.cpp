// The food guide's pages as data: every cell against the printed guide, the
// titles, headings and column shares, the caption and the width fitting.
#include "guides/logic/foodguidepages.h"
#include "foodguide_expected.h"

#include <gtest/gtest.h>
#include <numeric>

namespace {

QString Q(const char* text)
{
    return QString::fromLatin1(text);
}

} // namespace

TEST(FoodGuidePages, ThereAreFivePagesInButtonOrder)
{
    ASSERT_EQ(kFoodGuidePageCount, 5);
    ASSERT_EQ(expected::GuidePages().size(), 5u);
    for (int page = 1; page <= kFoodGuidePageCount; ++page)
        EXPECT_EQ(FoodGuidePageOf(page).title, Q(expected::GuidePages()[page - 1].title)) << page;
    EXPECT_EQ(&FoodGuidePageOf(FoodGuidePage::HealthySubstitutes), &FoodGuidePageOf(5));
}

TEST(FoodGuidePages, TitlesAndHeadings)
{
    for (int page = 1; page <= kFoodGuidePageCount; ++page) {
        const GuidePage& shown = FoodGuidePageOf(page);
        const expected::GuidePage& want = expected::GuidePages()[page - 1];
        EXPECT_EQ(shown.title, Q(want.title)) << page;
        ASSERT_EQ(shown.columns.size(), qsizetype(want.headings.size())) << page;
        for (std::size_t column = 0; column < want.headings.size(); ++column)
            EXPECT_EQ(shown.columns[qsizetype(column)].heading, Q(want.headings[column])) << page << "/" << column;
    }
}

TEST(FoodGuidePages, EveryCellReadsAsPrinted)
{
    for (int page = 1; page <= kFoodGuidePageCount; ++page) {
        const GuidePage& shown = FoodGuidePageOf(page);
        const expected::GuidePage& want = expected::GuidePages()[page - 1];
        ASSERT_EQ(shown.rows.size(), qsizetype(want.rows.size())) << "rows of page " << page;
        for (std::size_t row = 0; row < want.rows.size(); ++row) {
            const QStringList& cells = shown.rows[qsizetype(row)];
            ASSERT_EQ(cells.size(), qsizetype(want.rows[row].size())) << page << ":" << row;
            for (std::size_t column = 0; column < want.rows[row].size(); ++column)
                EXPECT_EQ(cells[qsizetype(column)], Q(want.rows[row][column]))
                    << "page " << page << " row " << row << " column " << column;
        }
    }
}

TEST(FoodGuidePages, RowCounts)
{
    EXPECT_EQ(FoodGuidePageOf(FoodGuidePage::FoodGuide).rows.size(), 17);
    EXPECT_EQ(FoodGuidePageOf(FoodGuidePage::CommonMeasures).rows.size(), 27);
    EXPECT_EQ(FoodGuidePageOf(FoodGuidePage::MenuIdeas).rows.size(), 80);
    EXPECT_EQ(FoodGuidePageOf(FoodGuidePage::HelpfulHints).rows.size(), 30);
    EXPECT_EQ(FoodGuidePageOf(FoodGuidePage::HealthySubstitutes).rows.size(), 9);
}

TEST(FoodGuidePages, MisspellingsAreKept)
{
    EXPECT_EQ(FoodGuidePageOf(FoodGuidePage::FoodGuide).rows[2][1], "Teenages - 4 servings");
    EXPECT_TRUE(FoodGuidePageOf(FoodGuidePage::HealthySubstitutes).rows[1][1].contains("low-fat yogart"));
    EXPECT_TRUE(FoodGuidePageOf(FoodGuidePage::HealthySubstitutes).rows[7][1].contains("commerically"));
    EXPECT_EQ(FoodGuidePageOf(FoodGuidePage::HelpfulHints).rows[26][1], "To keep bacon from shrinking when fryed.");
}

TEST(FoodGuidePages, DoubleBlanksInsideATextAreKept)
{
    EXPECT_TRUE(FoodGuidePageOf(FoodGuidePage::HealthySubstitutes).rows[3][1].contains("mixture.  Add chopped"));
}

TEST(FoodGuidePages, GroupLinesRunDownFromTheGroupsFirstRow)
{
    const GuidePage& page = FoodGuidePageOf(FoodGuidePage::FoodGuide);
    EXPECT_EQ(page.rows[0][0], "Milk");
    EXPECT_EQ(page.rows[3][1], "");
    EXPECT_EQ(page.rows[3][2], "1 1/2 cups cottage cheese.");
    EXPECT_EQ(page.rows[4][0], "Meat");
    EXPECT_EQ(page.rows[8][0], "Fruits and Vegetables");
    EXPECT_EQ(page.rows[12][0], "Breads and Cereals");
    EXPECT_EQ(page.rows[16][0], "");
}

TEST(FoodGuidePages, MealBlocksStartTogetherInBothMenuColumns)
{
    const GuidePage& page = FoodGuidePageOf(FoodGuidePage::MenuIdeas);
    EXPECT_EQ(page.rows[0], QStringList({"Breakfast", "Orange Juice", "Grapefruit half"}));
    EXPECT_EQ(page.rows[24], QStringList({"Lunch", "Cream of tomato soup", "Swiss bubbly"}));
    EXPECT_EQ(page.rows[50], QStringList({"Dinner", "Chicken Rice casserole", "Tomato juice cocktail"}));
    EXPECT_EQ(page.rows[79], QStringList({"", "Fruit cocktail dessert & Milk", "Gingerbread with lemon sauce"}));
    // The shorter list of a block leaves its last rows blank.
    EXPECT_EQ(page.rows[23][2], "");
    EXPECT_EQ(page.rows[49][1], "");
}

TEST(FoodGuidePages, HintsAreNumberedOneToThirty)
{
    const GuidePage& page = FoodGuidePageOf(FoodGuidePage::HelpfulHints);
    for (int row = 0; row < page.rows.size(); ++row)
        EXPECT_EQ(page.rows[row][0], QString::number(row + 1));
}

TEST(FoodGuidePages, SharesOfEveryPageAddUpToTheWholeGrid)
{
    for (int page = 1; page <= kFoodGuidePageCount; ++page) {
        double total = 0;
        for (const GuideColumn& column : FoodGuidePageOf(page).columns) {
            EXPECT_GT(column.share, 0.0) << page;
            total += column.share;
        }
        EXPECT_NEAR(total, 1.0, 1e-9) << page;
    }
}

TEST(FoodGuidePages, AnOutOfRangePageNumberGivesTheFirstPage)
{
    EXPECT_EQ(&FoodGuidePageOf(0), &FoodGuidePageOf(1));
    EXPECT_EQ(&FoodGuidePageOf(6), &FoodGuidePageOf(1));
}

// ---- Edge cases -----------------------------------------------------------------------------

TEST(FoodGuidePages, AnEmptyCellStaysEmptyNotZero)
{
    const GuidePage& page = FoodGuidePageOf(FoodGuidePage::CommonMeasures);
    struct Blank { int row, column; };
    // green pepper, hamburger, poultry, raisins, roast, ground beef, sugar
    for (const Blank blank : {Blank{11, 2}, Blank{12, 1}, Blank{20, 1}, Blank{21, 2}, Blank{22, 1}, Blank{23, 1},
                              Blank{25, 2}}) {
        EXPECT_TRUE(page.rows[blank.row][blank.column].isEmpty()) << blank.row << "/" << blank.column;
    }
    EXPECT_EQ(page.rows[11][0], "1 lb. green pepper");
}

// ---- Caption and widths -----------------------------------------------------------------------

TEST(FoodGuideCaption, FamilyNameInFront)
{
    EXPECT_EQ(FoodGuideCaption("Smith"), "Smith Food Guide");
}

TEST(FoodGuideCaption, WithoutAFamilyNameTheBlankStays)
{
    EXPECT_EQ(FoodGuideCaption(""), " Food Guide");
}

TEST(ColumnWidthsByShare, FollowTheSharesAndFillTheGrid)
{
    for (int page = 1; page <= kFoodGuidePageCount; ++page) {
        const GuidePage& shown = FoodGuidePageOf(page);
        for (int width : {0, 1, 97, 640, 1000, 1277}) {
            const QList<int> widths = ColumnWidthsByShare(shown, width);
            ASSERT_EQ(widths.size(), shown.columns.size());
            EXPECT_EQ(std::accumulate(widths.begin(), widths.end(), 0), width) << page << " at " << width;
            for (qsizetype column = 0; column + 1 < widths.size(); ++column)
                EXPECT_LE(std::abs(widths[column] - width * shown.columns[column].share), 0.5);
        }
    }
}

TEST(ColumnWidthsByShare, ANegativeWidthGivesZeroWidths)
{
    for (int width : ColumnWidthsByShare(FoodGuidePageOf(1), -20))
        EXPECT_EQ(width, 0);
}
