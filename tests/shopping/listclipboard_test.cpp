// The list as clipboard text, byte for byte. The fixed measurer makes every
// character 10 twips wide per point, so at 10 points a character is 100
// twips and the item column of 2400 twips holds 24 characters.
#include "shopping/logic/listclipboard.h"

#include "common/dates.h"
#include "shopping/logic/groceryentry.h"

#include "fixed_measurer.h"

#include <gtest/gtest.h>

namespace {

TextFont ScreenFont(double size)
{
    TextFont font;
    font.name = QStringLiteral("Sans");
    font.size = size;
    return font;
}

GridRow Row(const QString& item, const QString& amount = {})
{
    return GridRow{item, amount, 0};
}

// A measurer that finds no width in any text.
class FlatMeasurer final : public TextMeasurer {
public:
    double textWidth(const TextFont&, const QString&) const override { return 0; }
    double lineHeight(const TextFont&) const override { return 0; }
};

const QByteArray kHead = "Shopping List\r\n"
                         "Sunday, November 15, 2026\r\n"
                         "\r\n"
                         "          Grocery Items                Amount to Purchase\r\n";

class ListClipboardTest : public ::testing::Test {
protected:
    ListClipboardTest() { SetDateLocale(QLocale(QLocale::English, QLocale::UnitedStates)); }
    ~ListClipboardTest() override { SetDateLocale(QLocale()); }

    FixedMeasurer measurer;
};

} // namespace

TEST_F(ListClipboardTest, TheHeadThenEachFilledRowFilledOutTo2400TwipsATabTheAmountAndACr)
{
    const QList<GridRow> rows = {Row("  Milk", "2 Gallons"), Row({}), Row("  Eggs", "1 Dozen"), Row("  Bread"),
                                 Row({}), Row({})};
    const QString text = ShoppingListClipboardText(rows, u"11/15/26", measurer, ScreenFont(10));
    const QByteArray expected = kHead
                              + "  Milk                  \t2 Gallons\r"  // 6 characters and 18 blanks
                                "  Eggs                  \t1 Dozen\r"
                                "  Bread                 \t\r";          // 7 characters and 17 blanks
    EXPECT_EQ(text.toLatin1(), expected);
}

TEST_F(ListClipboardTest, TheFillFollowsTheScreenFontsWidth)
{
    // At 8 points a character is 80 twips: 30 characters reach 2400.
    const QString text = ShoppingListClipboardText({Row("  Tea", "1 Box")}, u"11/15/26", measurer, ScreenFont(8));
    EXPECT_EQ(text.toLatin1(), kHead + "  Tea                         \t1 Box\r");
}

TEST_F(ListClipboardTest, ACellAlreadyWiderThanTheColumnTakesNoBlank)
{
    const QString cell = QStringLiteral("  Abcdefghijklmnopqrstuvwxyz");  // 28 characters, 2800 twips at 10 points
    const QString text = ShoppingListClipboardText({Row(cell, "3")}, u"11/15/26", measurer, ScreenFont(10));
    EXPECT_EQ(text.toLatin1(), kHead + "  Abcdefghijklmnopqrstuvwxyz\t3\r");
}

TEST_F(ListClipboardTest, AnEmptyListGivesTheHeadAlone)
{
    EXPECT_EQ(ShoppingListClipboardText({Row({}), Row({})}, u"11/15/26", measurer, ScreenFont(10)).toLatin1(), kHead);
}

TEST_F(ListClipboardTest, ADateBoxThatIsNoDateIsCopiedAsItStands)
{
    const QString text = ShoppingListClipboardText({}, u"11/", measurer, ScreenFont(10));
    EXPECT_EQ(text.toLatin1(), QByteArray("Shopping List\r\n11/\r\n\r\n") + kHead.mid(kHead.indexOf("\r\n\r\n") + 4));
}

TEST_F(ListClipboardTest, TheRowsComeInTheGridsOrderWhateverTheirEntries)
{
    const QList<GridRow> rows = {GridRow{"  Tea", {}, 2}, GridRow{"  Apples", {}, 0}};
    const QString text = ShoppingListClipboardText(rows, u"11/15/26", measurer, ScreenFont(12));
    // At 12 points a character is 120 twips: 20 characters reach 2400.
    EXPECT_EQ(text.toLatin1(), kHead + "  Tea               \t\r  Apples            \t\r");
}

TEST_F(ListClipboardTest, AFontWhoseBlanksMeasureNothingStillEndsItsLine)
{
    const QString text = ShoppingListClipboardText({Row("  Milk", "1")}, u"11/15/26", FlatMeasurer(), ScreenFont(10));
    ASSERT_TRUE(text.endsWith(QStringLiteral("\t1\r")));
    EXPECT_LT(text.size(), kHead.size() + 1000);
}
