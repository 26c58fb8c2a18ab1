#pragma once
// Recipes for the lifecycle tests and the benchmarks, each twice: as the
// screen's fields and as the bytes its slot must hold, the latter built from
// the layout tables.
#include "recipetools/logic/recipelifecycle.h"

#include "layout_bytes.h"

#include <QByteArray>
#include <QString>

namespace samples {

struct Sample {
    RecipeFields fields;
    layout::Recipe slot;

    // One ingredient row, in both forms. `row` counts from 0; rows 10 to 19
    // are the right column.
    void setRow(int row, const QByteArray& amount, const QByteArray& unit, const QByteArray& ingredient)
    {
        fields.amounts[row] = QString::fromLatin1(amount);
        fields.units[row] = QString::fromLatin1(unit);
        fields.ingredients[row] = QString::fromLatin1(ingredient);
        slot.amounts[row] = amount;
        slot.amountTypes[row] = unit;
        slot.ingredients[row] = ingredient;
    }
    void setOthers(const QByteArray& directions, const QByteArray& oven, const QByteArray& time,
                   const QByteArray& yieldAmount, const QByteArray& yieldType)
    {
        fields.directions = QString::fromLatin1(directions);
        fields.ovenTemperature = QString::fromLatin1(oven);
        fields.cookingTime = QString::fromLatin1(time);
        fields.yieldAmount = QString::fromLatin1(yieldAmount);
        fields.yieldType = QString::fromLatin1(yieldType);
        slot.directions = directions;
        slot.ovenTemperature = oven;
        slot.cookingTime = time;
        slot.yieldAmount = yieldAmount;
        slot.yieldType = yieldType;
    }
    // The slot as saved: marked used.
    QByteArray savedBytes() const
    {
        layout::Recipe used = slot;
        used.slotMark = "Full1";
        return layout::RecipeSlot(used);
    }
};

inline Sample LemonBars()
{
    Sample s;
    s.setRow(0, "1", "cup", "flour");
    s.setRow(1, ".25", "cup", "powdered sugar");
    s.setRow(2, ".5", "cup", "butter, softened");
    s.setRow(10, "2", "large", "eggs");
    s.setRow(11, ".33", "cup", "lemon juice");
    s.setOthers("Press the crust into the pan.\r\nBake, then pour the filling over it.", "350", "45 minutes", "16",
                "Pieces");
    return s;
}

// Lemon bars after the calculator doubled the yield: snapped decimals, and
// the unit words fitted to the new amounts.
inline Sample LemonBarsDoubled()
{
    Sample s;
    s.setRow(0, "2", "cups", "flour");
    s.setRow(1, ".5", "cup", "powdered sugar");
    s.setRow(2, "1", "cup", "butter, softened");
    s.setRow(10, "4", "large", "eggs");
    s.setRow(11, ".67", "cup", "lemon juice");
    s.setOthers("Press the crust into the pan.\r\nBake, then pour the filling over it.", "350", "45 minutes", "32",
                "Pieces");
    return s;
}

inline Sample AppleCrisp()
{
    Sample s;
    s.setRow(0, "6", "medium", "apples, sliced");
    s.setRow(1, ".75", "cup", "oats");
    s.setRow(19, ".125", "tsp.", "salt");
    s.setOthers("Layer and bake.", "375", "40 minutes", "8", "Serving(s)");
    return s;
}

inline Sample Brownies()
{
    Sample s;
    s.setRow(0, "1.5", "cups", "sugar");
    s.setRow(1, "3", "whole", "eggs");
    s.setOthers("Stir, spread, bake.", "350", "25 minutes", "2", "Dozen");
    return s;
}

inline Sample Fudge()
{
    Sample s;
    s.setRow(0, "3", "cups", "chocolate chips");
    s.setRow(1, "1", "can", "condensed milk");
    s.setOthers("Melt together and chill.", "", "2 hours", "1", "Pie(s)");
    return s;
}

// Every row filled and the directions near their limit: the largest recipe
// of the benchmarks' cookbooks.
inline Sample FullRecipe()
{
    Sample s;
    for (int row = 0; row < kRecipeRows; ++row)
        s.setRow(row, "1.5", "cups", "flour, sifted");
    s.setOthers(QByteArray(900, 'x'), "350", "45 minutes", "12", "Serving(s)");
    return s;
}

// The slot ClearRecipe leaves: every field blank, marked deleted.
inline QByteArray ClearedSlot()
{
    layout::Recipe cleared;
    cleared.slotMark = "****";
    return layout::RecipeSlot(cleared);
}

} // namespace samples
