// The computed columns in single precision, their bold flags, and the trend.
#include "tracker/logic/weighins.h"

#include "tracker_fixture.h"

namespace {

QList<WeighInRow> Computed(QList<WeighInRow> rows, const char* beginning = "")
{
    ComputeColumns(rows, QString::fromLatin1(beginning));
    return rows;
}

} // namespace

TEST(WeighInColumns, SinglePrecisionTable)
{
    const struct {
        const char* name;
        const char* beginning;
        const char* first;
        const char* second;
        const char* change;
        const char* difference;
        TrendPicture lastEntry;
    } cases[] = {
        {"a fall just short of 1.4", "151.4", "151.4", "150", "-1.399994", "-1.4", TrendPicture::Smile},
        {"a fall of 1.4", "2.4", "2.4", "1", "-1.4", "-1.4", TrendPicture::BigSmile},
        {"a fall of ten", "150", "150", "140", "-10", "-10", TrendPicture::BigSmile},
    };
    for (const auto& row : cases) {
        const QList<WeighInRow> rows =
            Computed(RowsOf({{"May 01, 2026", row.first}, {"May 02, 2026", row.second}}), row.beginning);
        EXPECT_EQ(rows[1].change, row.change) << row.name;
        EXPECT_EQ(rows[1].difference, row.difference) << row.name;
        EXPECT_EQ(JudgeTrend(rows, QString()).lastEntry, row.lastEntry) << row.name;
    }
}

TEST(WeighInColumns, TheDifferenceGoesThroughItsTextOnce)
{
    const QList<WeighInRow> rows = Computed(RowsOf({{"May 01, 2026", "140.3"}}), "150.3");
    EXPECT_EQ(rows[0].difference, "-9.999997");
    EXPECT_EQ(ShownWeightText(rows[0].difference), "-10.");
    EXPECT_EQ(JudgeTrend(rows, QString()).beginning, TrendPicture::Smile);
}

TEST(WeighInColumns, RowOneReadsNAAndTheHeadingSort)
{
    const QList<WeighInRow> rows = Computed(RowsOf({{"May 01, 2026", "150"}, {"May 02, 2026", "149"}}), "150");
    EXPECT_EQ(rows[0].change, "N/A");
    EXPECT_EQ(rows[1].change, "-1");
    EXPECT_EQ(QString::fromLatin1(kSortHeading), "Sort");
}

TEST(WeighInColumns, NegativeIsBoldPositiveClearsItZeroKeepsIt)
{
    QList<WeighInRow> rows = RowsOf({{"d1", "150"}, {"d2", "149"}, {"d3", "149"}, {"d4", "151"}, {"d5", "151"}});
    rows[1].changeBold = false;
    rows[2].changeBold = true;
    rows[3].changeBold = true;
    rows[4].changeBold = false;
    ComputeColumns(rows, QStringLiteral("150"));
    EXPECT_TRUE(rows[1].changeBold);
    EXPECT_TRUE(rows[2].changeBold) << "a change of 0 keeps the flag the cell had";
    EXPECT_FALSE(rows[3].changeBold);
    EXPECT_FALSE(rows[4].changeBold) << "a change of 0 keeps the flag the cell had";
    EXPECT_TRUE(rows[1].differenceBold);
    EXPECT_FALSE(rows[3].differenceBold);
    EXPECT_FALSE(rows[0].differenceBold) << "a difference of 0 leaves the flag off";
}

TEST(WeighInColumns, AWeightThatIsNoPlainNumberKeepsTheLastValue)
{
    const QList<WeighInRow> rows =
        Computed(RowsOf({{"d1", "150"}, {"d2", "148"}, {"d3", "147 lbs"}, {"d4", "-146"}}), "150");
    EXPECT_EQ(rows[2].weight, "147 lbs");
    EXPECT_EQ(rows[2].change, "0") << "current and previous both stay 148";
    EXPECT_EQ(rows[2].difference, rows[1].difference);
    EXPECT_EQ(rows[3].difference, rows[1].difference);
}

TEST(WeighInColumns, PlainNumbers)
{
    for (const char* text : {"150", "+150", "150.", ".5", " 150.5 "})
        EXPECT_TRUE(PlainNumber(QString::fromLatin1(text))) << text;
    for (const char* text : {"", "+", ".", "-5", "1.2.3", "1,5", "1/2", "1e3", "15+", "abc"})
        EXPECT_FALSE(PlainNumber(QString::fromLatin1(text))) << text;
}

TEST(WeighInColumns, TheRowBelowABlankRowKeepsThePreviousOfTheLastReadableRow)
{
    const QList<WeighInRow> rows =
        Computed(RowsOf({{"d1", "150"}, {"d2", "148"}, {"", ""}, {"d4", "147"}}), "150");
    EXPECT_EQ(rows[2].change, "");
    EXPECT_EQ(rows[3].change, "-3") << "the previous stays 150, from row 2's turn";
    // With the blank row second, no previous was read yet: it is still 0.
    const QList<WeighInRow> early = Computed(RowsOf({{"d1", "150"}, {"", ""}, {"d3", "147"}}), "150");
    EXPECT_EQ(early[2].change, "147");
}

TEST(WeighInColumns, CellsShowOneDecimalPlace)
{
    EXPECT_EQ(ShownWeightText(QStringLiteral("150")), "150.");
    EXPECT_EQ(ShownWeightText(QStringLiteral("0")), ".");
    EXPECT_EQ(ShownWeightText(QStringLiteral("149.96")), "150.");
    EXPECT_EQ(ShownWeightText(QStringLiteral("-1.399994")), "-1.4");
    EXPECT_EQ(ShownWeightText(QStringLiteral("N/A")), "N/A");
    EXPECT_EQ(ShownWeightText(QStringLiteral("150 lbs")), "150 lbs");
}

TEST(WeighInTrend, OnlyOneEntryChangeReadsNACountsAsZeroAndIsSad)
{
    const QList<WeighInRow> rows = Computed(RowsOf({{"May 01, 2026", "150"}, {"", ""}}), "160");
    EXPECT_EQ(rows[0].change, "N/A");
    EXPECT_EQ(LastEntryRow(rows), 1);
    EXPECT_EQ(JudgeTrend(rows, QStringLiteral("140")).lastEntry, TrendPicture::Sad);
}

TEST(WeighInTrend, AChangeOfExactlyMinus1Point4AndADifferenceOfExactlyMinus10GiveTheBigSmile)
{
    const QList<WeighInRow> rows = Computed(RowsOf({{"d1", "12.4"}, {"d2", "11"}, {"d3", "0"}}), "10");
    EXPECT_EQ(rows[1].change, "-1.4");
    EXPECT_EQ(rows[2].difference, "-10");
    QList<WeighInRow> upToSecond = rows.mid(0, 2);
    EXPECT_EQ(JudgeTrend(upToSecond, QStringLiteral("-50")).lastEntry, TrendPicture::BigSmile);
    EXPECT_EQ(JudgeTrend(rows, QStringLiteral("-50")).beginning, TrendPicture::BigSmile);
    EXPECT_EQ(TrendPictureFile(TrendPicture::BigSmile), "2.ico");
}

TEST(WeighInTrend, AChangeOfZeroIsSad)
{
    const QList<WeighInRow> rows = Computed(RowsOf({{"d1", "150"}, {"d2", "150"}}), "150");
    const Trend trend = JudgeTrend(rows, QStringLiteral("100"));
    EXPECT_EQ(trend.lastEntry, TrendPicture::Sad);
    EXPECT_EQ(trend.beginning, TrendPicture::Sad);
    EXPECT_EQ(TrendPictureFile(trend.lastEntry), "Sad1.ico");
}

TEST(WeighInTrend, AWeightEqualToTheGoalAnnouncesTheGoal)
{
    const QList<WeighInRow> rows = Computed(RowsOf({{"d1", "150"}, {"d2", "140"}}), "150");
    const Trend trend = JudgeTrend(rows, QStringLiteral("140"));
    EXPECT_TRUE(trend.goalReached);
    EXPECT_EQ(trend.beginning, TrendPicture::BigSmile);
    EXPECT_FALSE(JudgeTrend(rows, QStringLiteral("139.9")).goalReached);
}

TEST(WeighInTrend, AnEmptyGoalIsReachedByNoWeightAndNoDateMeansNoPictures)
{
    const QList<WeighInRow> rows = Computed(RowsOf({{"d1", "150"}, {"d2", "151"}}), "150");
    EXPECT_FALSE(JudgeTrend(rows, QString()).goalReached);
    EXPECT_EQ(JudgeTrend(rows, QString()).beginning, TrendPicture::Sad);
    EXPECT_EQ(JudgeTrend(RowsOf({{"", "150"}}), QStringLiteral("200")), Trend{});
}

TEST(WeighInTrend, TheMildAndTheStrongSmileByTheBeginningDifference)
{
    const QList<WeighInRow> mild = Computed(RowsOf({{"d1", "145"}}), "150");
    EXPECT_EQ(JudgeTrend(mild, QStringLiteral("100")).beginning, TrendPicture::Smile);
    EXPECT_EQ(TrendPictureFile(TrendPicture::Smile), "1.ico");
    const QList<WeighInRow> strong = Computed(RowsOf({{"d1", "139"}}), "150");
    EXPECT_EQ(JudgeTrend(strong, QStringLiteral("100")).beginning, TrendPicture::BigSmile);
}
