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

// Offsets 0, 100, 1100, 1104, 1304, 2004, 2009, 2029, 2040; 2045 in all.
inline QByteArray RecipeSlot(const Recipe& recipe)
{
    QByteArray out;
    for (const QByteArray& amount : recipe.amounts)
        out += Padded(amount, 5);
    out += Padded(recipe.directions, 1000);
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
