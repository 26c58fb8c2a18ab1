#include "recipetools/logic/recipewords.h"

#include "common/numbertext.h"

const QStringList& SingularUnits()
{
    static const QStringList units = {"bottle", "can",    "cup",   "dash",  "gallon", "large",
                                      "lb.",    "medium", "oz.",   "piece", "pkg.",   "quart",
                                      "slice",  "small",  "Tbsp.", "tsp.",  "whole"};
    return units;
}

const QStringList& PluralUnits()
{
    static const QStringList units = {"bottles", "cans",   "cups",   "dashes", "gallons", "large",
                                      "lbs.",    "medium", "ozs.",   "pieces", "pkgs.",   "quarts",
                                      "slices",  "small",  "Tbsps.", "tsps.",  "whole"};
    return units;
}

const QStringList& YieldTypes()
{
    static const QStringList types = {"Serving(s)", "Casserole(s)", "Cake(s)",   "Pie(s)",   "Dozen",
                                      "Loaf(s)",    "Pieces",       "Gallon(s)", "Quart(s)"};
    return types;
}

bool TakesPluralUnits(QStringView amount)
{
    return Val(amount) > 1;
}
