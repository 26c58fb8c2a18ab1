// Sorting the weigh-ins by a heading click.
#include "tracker/logic/weighinsort.h"

#include "tracker/logic/trackermodel.h"
#include "tracker_fixture.h"

#include <QFile>

namespace {

class WeighInSort : public TrackerFolderTest {};

QStringList DatesOf(const QList<WeighInRow>& rows)
{
    QStringList dates;
    for (const WeighInRow& row : rows)
        dates.append(row.date);
    return dates;
}

} // namespace

TEST_F(WeighInSort, AscendingPutsBlankRowsAtTheEndAndKeepsTheRowCount)
{
    QList<WeighInRow> rows = RowsOf({{"", ""},
                                     {"May 03, 2026", "148"},
                                     {"  ", "151"},
                                     {"May 01, 2026", "150"},
                                     {"", ""}});
    SortByDate(rows, Qt::AscendingOrder, QStringLiteral("150"));
    EXPECT_EQ(DatesOf(rows), QStringList({"May 01, 2026", "May 03, 2026", "", "", ""}));
    EXPECT_EQ(rows[0].change, "N/A");
    EXPECT_EQ(rows[1].change, "-2");
    EXPECT_EQ(rows[2], WeighInRow{}) << "a row with a weight but no date is dropped";
}

TEST_F(WeighInSort, AscendingSortsByDateValueNotByText)
{
    QList<WeighInRow> rows = RowsOf({{"September 01, 2025", "150"}, {"April 30, 2026", "140"}, {"May 01, 2025", "155"}});
    SortByDate(rows, Qt::AscendingOrder, QString());
    EXPECT_EQ(DatesOf(rows), QStringList({"May 01, 2025", "September 01, 2025", "April 30, 2026"}));
}

TEST_F(WeighInSort, WithTheDateCheckerOffAFutureDateSortsAsAnyOtherDate)
{
    QList<WeighInRow> rows = RowsOf({{"January 01, 2099", "140"}, {"May 01, 2026", "150"}});
    SortByDate(rows, Qt::AscendingOrder, QString());
    EXPECT_EQ(DatesOf(rows), QStringList({"May 01, 2026", "January 01, 2099"}));
}

TEST_F(WeighInSort, DescendingTurnsTheOrderRoundAndLeavesTheComputedColumns)
{
    QList<WeighInRow> rows = RowsOf({{"May 01, 2026", "150"}, {"May 02, 2026", "149"}, {"", ""}});
    ComputeColumns(rows, QStringLiteral("150"));
    SortByDate(rows, Qt::DescendingOrder, QStringLiteral("150"));
    EXPECT_EQ(DatesOf(rows), QStringList({"May 02, 2026", "May 01, 2026", ""}));
    EXPECT_EQ(rows[0].change, "-1") << "the changes move with their rows";
    EXPECT_EQ(rows[1].change, "N/A");
}

TEST_F(WeighInSort, AHeadingClickTurnsTheOrderAbout)
{
    TrackerModel model;
    model.startCreating();
    model.rows() = RowsOf({{"May 01, 2026", "150"}, {"May 02, 2026", "149"}});
    EXPECT_EQ(model.sortByDate(), Qt::AscendingOrder);
    EXPECT_TRUE(model.changed());
    EXPECT_EQ(model.sortByDate(), Qt::DescendingOrder);
    EXPECT_EQ(model.rows()[0].date, "May 02, 2026");
    EXPECT_EQ(model.sortByDate(), Qt::AscendingOrder);
}

TEST_F(WeighInSort, TheOtherColumnsGoThroughTheScratchFileAndKeepTheOrder)
{
    QList<WeighInRow> rows = RowsOf({{"May 02, 2026", "149"}, {"May 01, 2026", "150"}});
    ComputeColumns(rows, QStringLiteral("150"));
    const QList<WeighInRow> before = rows;
    ASSERT_TRUE(WriteGridScratch(rows));
    EXPECT_EQ(folder.bytesOf(QStringLiteral("Temp.Fil")),
              QuotedLines({"May 02, 2026", "149", "N/A", "-1", "May 01, 2026", "150", "1", "0"}));
    std::swap(rows[0], rows[1]);
    ReadGridScratch(rows);
    EXPECT_EQ(DatesOf(rows), DatesOf(before));
    for (int r = 0; r < rows.size(); ++r) {
        EXPECT_EQ(rows[r].weight, before[r].weight);
        EXPECT_EQ(rows[r].change, before[r].change);
        EXPECT_EQ(rows[r].difference, before[r].difference);
    }
}
