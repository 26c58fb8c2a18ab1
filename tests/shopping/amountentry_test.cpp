// The Amount Entry Panel's digit and unit buttons as a table of named rows.
#include "shopping/logic/amountentry.h"


#include <gtest/gtest.h>

namespace {

struct ButtonRow {
    const char* name;
    const char* before;
    int button;     // 0 to 9 a digit; 100 + index a unit
    const char* after;
};

const ButtonRow kRows[] = {
    {"digit on an empty box", "", 3, "3"},
    {"digit after a digit", "1", 2, "12"},
    {"digit after zero starts again", "0", 5, "5"},
    {"digit after a unit word alone starts again", " Bag", 4, "4"},
    {"digit after 1 Dozen replaces it", "1 Dozen", 2, "2"},
    {"digit after four digits appends", "1234", 5, "12345"},
    {"digit after five digits starts again", "12345", 6, "6"},
    {"unit at 0 (empty box)", "", 100, " Bag"},
    {"unit at 1", "1", 100, "1 Bag"},
    {"unit at 2", "2", 100, "2 Bags"},
    {"unit after a full box", "2 Dozen", 101, " Bottle"},
    {"boxes at 3", "3", 102, "3 Boxes"},
    {"dozen stays dozen", "6", 105, "6 Dozen"},
    {"loaves as the old program wrote them", "2", 107, "2 Loafes"},
    {"one loaf", "1", 107, "1 Loaf"},
    {"quarts", "4", 113, "4 Quarts"},
    {"below 2 is singular", "1.5", 112, "1.5 Pound"},
};

} // namespace

TEST(AmountEntry, EveryRowOfTheTable)
{
    for (const ButtonRow& row : kRows) {
        SCOPED_TRACE(row.name);
        const QString before = QString::fromLatin1(row.before);
        const QString after = row.button < 100 ? AmountAfterDigit(before, row.button)
                                               : AmountAfterUnit(before, row.button - 100);
        EXPECT_EQ(after, QString::fromLatin1(row.after));
    }
}

TEST(AmountEntry, FourteenUnitButtonsInTheirIndexOrder)
{
    const char* const captions[] = {"Bag(s)", "Bottle(s)", "Box(es)", "Can(s)", "Carton(s)", "Dozen", "Gallon(s)",
                                    "Loaf(es)", "Liter(s)", "Ounce(s)", "Package(s)", "Pint(s)", "Pound(s)",
                                    "Quart(s)"};
    const char* const plurals[] = {"Bags", "Bottles", "Boxes", "Cans", "Cartons", "Dozen", "Gallons",
                                   "Loafes", "Liters", "Ounces", "Packages", "Pints", "Pounds", "Quarts"};
    ASSERT_EQ(UnitButtons().size(), std::size(captions));
    for (std::size_t i = 0; i < std::size(captions); ++i) {
        EXPECT_STREQ(UnitButtons()[i].caption, captions[i]);
        EXPECT_STREQ(UnitButtons()[i].plural, plurals[i]);
        EXPECT_EQ(AmountAfterUnit(u"2", int(i)), QStringLiteral("2 ") + QString::fromLatin1(plurals[i]));
    }
}
