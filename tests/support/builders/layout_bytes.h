#pragma once
// File bytes built by hand from the record layouts, independent of the
// record structs under test: the expected bytes of the tests, and the
// cookbooks the tests and the benchmarks write.
#include <QByteArray>
#include <QList>

namespace layout {

// Text bytes left-justified and blank-padded to `width` (never cut: a test
// that wants a cut text writes the cut text).
inline QByteArray Padded(const QByteArray& text, int width)
{
    return text + QByteArray(width - text.size(), ' ');
}

inline QByteArray U16(int value)
{
    QByteArray out;
    out.append(char(value & 0xFF));
    out.append(char((value >> 8) & 0xFF));
    return out;
}

inline QByteArray Zeros(int count)
{
    return QByteArray(count, '\0');
}

// A recipe as its nine fields, each as the bytes it holds before padding.
// The row lists hold 20 rows; 14 for a recipe of the older format.
struct Recipe {
    QList<QByteArray> amounts = QList<QByteArray>(20);
    QByteArray directions;
    QByteArray ovenTemperature;
    QList<QByteArray> amountTypes = QList<QByteArray>(20);
    QList<QByteArray> ingredients = QList<QByteArray>(20);
    QByteArray yieldAmount;
    QByteArray cookingTime;
    QByteArray yieldType;
    QByteArray slotMark;
};

// The fields one after the other, each padded to its width; only the
// directions' width differs between the two formats.
inline QByteArray RecipeFields(const Recipe& recipe, int directionsWidth)
{
    QByteArray out;
    for (const QByteArray& amount : recipe.amounts)
        out += Padded(amount, 5);
    out += Padded(recipe.directions, directionsWidth);
    out += Padded(recipe.ovenTemperature, 4);
    for (const QByteArray& amountType : recipe.amountTypes)
        out += Padded(amountType, 10);
    for (const QByteArray& ingredient : recipe.ingredients)
        out += Padded(ingredient, 35);
    out += Padded(recipe.yieldAmount, 5);
    out += Padded(recipe.cookingTime, 20);
    out += Padded(recipe.yieldType, 11);
    out += Padded(recipe.slotMark, 5);
    return out;
}

// Offsets 0, 100, 1100, 1104, 1304, 2004, 2009, 2029, 2040; 2045 in all.
inline QByteArray RecipeSlot(const Recipe& recipe)
{
    return RecipeFields(recipe, 1000);
}

// A recipe of the older format: 14 rows, 800 characters of directions, the
// mark "Full " when used.
inline Recipe OldRecipe()
{
    Recipe recipe;
    recipe.amounts.resize(14);
    recipe.amountTypes.resize(14);
    recipe.ingredients.resize(14);
    recipe.slotMark = "Full ";
    return recipe;
}

// Offsets 0, 70, 870, 874, 1014, 1504, 1509, 1529, 1540; 1545 in all.
inline QByteArray OldRecipeSlot(const Recipe& recipe)
{
    return RecipeFields(recipe, 800);
}

// The older recipe that tests/cookbook/data/make-fixtures.py puts in slot
// `slot` of old_recipe2.db1: every text made from the slot number, 14
// distinct rows, 800 characters of directions.
inline Recipe OldSampleRecipe(int slot)
{
    Recipe recipe = OldRecipe();
    const QByteArray number = QByteArray::number(slot);
    for (int row = 1; row <= 14; ++row) {
        const QByteArray rr = QByteArray::number(row).rightJustified(2, '0');
        recipe.amounts[row - 1] = number + "." + rr;
        recipe.amountTypes[row - 1] = "unit " + number + "-" + rr;
        recipe.ingredients[row - 1] = "ingredient " + rr + " of recipe " + number;
    }
    recipe.directions = ("Stir the cr\xe8me of recipe " + number + ". ").repeated(40).left(800);
    recipe.ovenTemperature = "350";
    recipe.yieldAmount = number;
    recipe.cookingTime = QByteArray::number(slot * 10) + " minutes";
    recipe.yieldType = "Serving(s)";
    return recipe;
}

// Kind 8, length, path, zero filler to 250.
inline QByteArray ExtraSlot(const QByteArray& path)
{
    const QByteArray value = U16(8) + U16(int(path.size())) + path;
    return value + Zeros(250 - int(value.size()));
}

// Length, text, zero filler to 60.
inline QByteArray NameSlot(const QByteArray& text)
{
    const QByteArray value = U16(int(text.size())) + text;
    return value + Zeros(60 - int(value.size()));
}

// A name file of the given slot texts, slot 1 first; " " is a cleared slot.
inline QByteArray NameFile(const QList<QByteArray>& texts)
{
    QByteArray out;
    for (const QByteArray& text : texts)
        out += NameSlot(text);
    return out;
}

// A name entry by hand: name, blanks to 52, number.
inline QByteArray Entry(const QByteArray& name, int number)
{
    return Padded(name, 52) + QByteArray::number(number);
}

} // namespace layout
