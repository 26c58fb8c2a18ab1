// The recipe's fixed word lists and the choice between singular and plural
// units.
#include "recipetools/logic/recipewords.h"

#include <gtest/gtest.h>

TEST(RecipeWords, UnitListsPairUpSingularAndPlural)
{
    EXPECT_EQ(SingularUnits(), (QStringList{"bottle", "can", "cup", "dash", "gallon", "large", "lb.", "medium", "oz.",
                                            "piece", "pkg.", "quart", "slice", "small", "Tbsp.", "tsp.", "whole"}));
    EXPECT_EQ(PluralUnits(), (QStringList{"bottles", "cans", "cups", "dashes", "gallons", "large", "lbs.", "medium",
                                          "ozs.", "pieces", "pkgs.", "quarts", "slices", "small", "Tbsps.", "tsps.",
                                          "whole"}));
}

TEST(RecipeWords, YieldTypesKeepTheirOwnOrder)
{
    EXPECT_EQ(YieldTypes(), (QStringList{"Serving(s)", "Casserole(s)", "Cake(s)", "Pie(s)", "Dozen", "Loaf(s)",
                                         "Pieces", "Gallon(s)", "Quart(s)"}));
}

TEST(RecipeWords, AmountsAboveOneTakeThePluralUnits)
{
    const std::pair<const char*, bool> rows[] = {
        {"", false}, {".5", false}, {"1", false}, {"1.01", true}, {"1.5", true}, {"2", true}, {"12", true},
    };
    for (const auto& [amount, plural] : rows)
        EXPECT_EQ(TakesPluralUnits(QString::fromLatin1(amount)), plural) << amount;
}
