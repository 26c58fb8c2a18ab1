// The order of a grid's header sort, one named row per case.
#include "shell/logic/gridorder.h"

#include <QStringList>
#include <algorithm>
#include <gtest/gtest.h>

namespace {

struct OrderRow {
    const char* name;
    const char* left;
    const char* right;
    bool less;
};

void PrintTo(const OrderRow& row, std::ostream* os) { *os << row.name; }

class GridOrder : public ::testing::TestWithParam<OrderRow> {};

} // namespace

TEST_P(GridOrder, ComparesAsTheOldGridsGenericSort)
{
    const OrderRow& row = GetParam();
    EXPECT_EQ(GridCellLess(QString::fromUtf8(row.left), QString::fromUtf8(row.right)), row.less);
}

INSTANTIATE_TEST_SUITE_P(
    Cells, GridOrder,
    ::testing::Values(OrderRow{"NumbersByValue", "9", "10", true},
                      OrderRow{"NumbersByValueNotText", "10", "9", false},
                      OrderRow{"DecimalsAndSigns", "-2.5", "1.25", true},
                      OrderRow{"ThousandsSeparator", "1,250", "999", false},
                      OrderRow{"EqualNumbers", "150", "150.0", false},
                      OrderRow{"DatesByDate", "March 05, 2006", "November 12, 2006", true},
                      OrderRow{"DatesAcrossYears", "January 02, 2007", "December 30, 2006", false},
                      OrderRow{"ShortDates", "9/30/06", "10/1/06", true},
                      OrderRow{"TextIgnoresCase", "apples", "Beans", true},
                      OrderRow{"TextIgnoresCaseTheOtherWay", "Beans", "apples", false},
                      OrderRow{"EqualTextButCase", "Rice", "rice", false},
                      OrderRow{"EmptyBeforeText", "", "apples", true},
                      OrderRow{"EmptyBeforeNumbers", "", "-5", true},
                      OrderRow{"BlanksAreEmpty", "   ", "0", true},
                      OrderRow{"NothingBeforeEmpty", "apples", "", false},
                      OrderRow{"TwoEmptiesAreEqual", "", "  ", false},
                      OrderRow{"NumbersBeforeDates", "2", "March 05, 2006", true},
                      OrderRow{"DatesBeforeText", "March 05, 2006", "7 Up", true},
                      OrderRow{"NumberLikeTextIsText", "2 lb.", "10", false},
                      OrderRow{"NanIsText", "nan", "5", false}));

// With numbers, texts that start with digits and dates mixed, the order is
// still one order: sorting any arrangement gives the same sequence.
TEST(GridOrder, AMixedColumnHasOneOrder)
{
    QStringList cells = {"2", "10", "1a", "", "March 05, 2006", "beans", "9/30/06", "Apples", "-1"};
    std::sort(cells.begin(), cells.end(), [](const QString& a, const QString& b) { return GridCellLess(a, b); });
    EXPECT_EQ(cells, (QStringList{"", "-1", "2", "10", "March 05, 2006", "9/30/06", "1a", "Apples", "beans"}));
    for (int i = 0; i < cells.size(); ++i)
        for (int j = i + 1; j < cells.size(); ++j)
            EXPECT_FALSE(GridCellLess(cells[j], cells[i])) << cells[j].toStdString() << " < " << cells[i].toStdString();
}
