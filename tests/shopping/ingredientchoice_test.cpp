// The Recipe Select panel's captions: the shopping list's own fraction table
// in double precision, the composition of name, separator, amount and unit,
// and what the two add commands take from a caption.
#include "shopping/logic/ingredientchoice.h"

#include "cookbook/logic/reciperecords.h"


#include <gtest/gtest.h>

namespace {

struct FractionRow {
    const char* name;
    const char* amount;
    const char* text;  // name "Flour", amount composed, no unit
};

// The table's thresholds, and amounts whose double rest falls just beside
// them (1.2 leaves .19999..., 1.6 leaves .60000..., 1.85 leaves .85000...).
const FractionRow kFractions[] = {
    {"no amount", "", "Flour "},
    {"0.05 has no fraction and no whole", "0.05", "Flour "},
    {"0.1 is an eighth", "0.1", "Flour => 1/8"},
    {"0.2 is a quarter", "0.2", "Flour => 1/4"},
    {"1.2 is one and an eighth", "1.2", "Flour => 1 1/8"},
    {"0.25 is a quarter", "0.25", "Flour => 1/4"},
    {"0.33 is a third", "0.33", "Flour => 1/3"},
    {"0.4 is still a third", "0.4", "Flour => 1/3"},
    {"0.5 is a half", "0.5", "Flour => 1/2"},
    {"1.6 is one and two thirds", "1.6", "Flour => 1 2/3"},
    {"0.67 is two thirds", "0.67", "Flour => 2/3"},
    {"0.75 is three quarters", "0.75", "Flour => 3/4"},
    {"0.85 is still three quarters", "0.85", "Flour => 3/4"},
    {"1.85 rounds up to 2", "1.85", "Flour => 2 "},
    {"0.9 rounds up to 1", "0.9", "Flour => 1 "},
    {"0.95 rounds up to 1", "0.95", "Flour => 1 "},
    {"a whole number", "3", "Flour => 3"},
    {"a whole number with a tiny rest", "2.05", "Flour => 2 "},
};

} // namespace

TEST(IngredientChoice, TheFractionTableRowByRow)
{
    for (const FractionRow& row : kFractions) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(ChoiceText(u"flour", QString::fromLatin1(row.amount)), QString::fromLatin1(row.text));
    }
}

TEST(IngredientChoice, TheSplitOf1Point2IsDoneInDoublePrecision)
{
    const ChoiceAmount split = ChoiceAmountOf(u"1.2");
    EXPECT_EQ(split.whole, 1);
    EXPECT_LT(split.numericFraction, 0.2);
    EXPECT_EQ(split.fraction, "1/8");
}

TEST(IngredientChoice, TheCaptionIsABlankTheTextABlankAndTheUnitPaddedTo10)
{
    EXPECT_EQ(ChoiceCaption(u"sugar", u"1.5", u"cups"), " Sugar => 1 1/2 cups      ");
    EXPECT_EQ(ChoiceCaption(u"", u"", u""), "") << "a row with neither name nor amount takes no box";
    EXPECT_EQ(ChoiceCaption(u"", u"", u"cup"), "");
}

TEST(IngredientChoice, TheNameTakesACapitalAndLosesTrailingBlanks)
{
    EXPECT_EQ(ChoiceNameOf(u"brown sugar   "), "Brown sugar");
    EXPECT_EQ(ChoiceNameOf(u""), "");
}

TEST(IngredientChoice, RowsWithoutNameOrAmountLeaveNoGapsBetweenTheBoxes)
{
    RecipeRecord record = RecipeRecord::Cleared();
    record.ingredients[0].setText(u"flour");
    record.amounts[0].setText(u"2");
    record.amountTypes[0].setText(u"cups");
    record.ingredients[4].setText(u"salt");
    record.amounts[4].setText(u".125");
    record.amountTypes[4].setText(u"tsp.");
    record.ingredients[19].setText(u"eggs");
    record.amounts[19].setText(u"3");
    EXPECT_EQ(ChoiceCaptions(record), QStringList({" Flour => 2 cups      ", " Salt => 1/8 tsp.      ",
                                                   " Eggs => 3           "}));
}

TEST(IngredientChoice, AddingNamesTakesTheNameBeforeTheSeparator)
{
    EXPECT_EQ(ItemOfChoice(u" Sugar => 1 1/2 cups      "), "Sugar");
    EXPECT_EQ(ItemOfChoice(u" Milk  cup       "), "Milk  cup");
    EXPECT_EQ(ItemOfChoice(u" Abcdefghijklmnopqrstuvwxyz1234567 => 2 cups"), "Abcdefghijklmnopqrstuvwxyz1234");
    EXPECT_EQ(ItemOfChoice(u" Abcdefghijklmnopqrstuvwxyz1234567  cups"), "Abcdefghijklmnopqrstuvwxyz1234");
    // Trimmed, a box without a name no longer holds " => ": its whole text is the item.
    EXPECT_EQ(ItemOfChoice(u"  => 2 eggs      "), "=> 2 eggs");
}

TEST(IngredientChoice, AddingNamesAndAmountsPadsTheNameTo30AndAddsTheAmount)
{
    EXPECT_EQ(EntryOfChoice(u" Sugar => 1 1/2 cups      "), QString("Sugar").leftJustified(30) + "1 1/2 cups");
    EXPECT_EQ(EntryOfChoice(u" Milk  cup       "), "Milk  cup");
    EXPECT_EQ(EntryOfChoice(u"  => 2 eggs      "), "=> 2 eggs");
}
