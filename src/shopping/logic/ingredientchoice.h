#pragma once
// The Recipe Select panel's check boxes: one per ingredient of the recipe
// shown, the data in the caption alone.
//
//   with an amount      " " name " => " amount " " unit-padded-to-10
//   without an amount   " " name " " " " unit-padded-to-10
//
// The amount is written as the shopping list writes kitchen amounts, with a
// fraction table of its own (the recipe screen has another): the decimal is
// split into Int and the rest in double precision, so 1.2 leaves a rest just
// below .2 and shows "1 1/8".
#include <QString>
#include <QStringList>

struct RecipeRecord;

inline constexpr int kIngredientChoiceCount = 20;
// The separator between a name and its amount; the heading above the boxes
// shows it too.
inline const char* const kIngredientSeparator = " => ";

struct ChoiceAmount {
    int whole = 0;
    QString fraction;          // "1/8" ... "3/4", or empty
    double numericFraction = 0;
};
// Val(amount) split as the panel splits it; a rest above .85 raises the
// whole number and leaves no fraction text.
ChoiceAmount ChoiceAmountOf(QStringView amount);

// The ingredient's name as the grocer needs it: right-trimmed, first letter
// in upper case, cut before a "(" that stands after the first character.
QString ChoiceNameOf(QStringView ingredient);
// Name and amount: the name and one blank, or the name, " => " and the amount.
QString ChoiceText(QStringView ingredient, QStringView amount);
// The caption of the box, or empty when the row has neither name nor amount.
QString ChoiceCaption(QStringView ingredient, QStringView amount, QStringView unit);
// The captions of a recipe's 20 rows in row order, rows that take no box left
// out: the boxes shown, from the first, without gaps.
QStringList ChoiceCaptions(const RecipeRecord& record);

// What "E&xit and Add All Checked Selections to Item Grid" appends for a
// box: the name before the separator (or the first 30 characters), trimmed
// and cut to 30; empty when blank.
QString ItemOfChoice(QStringView caption);
// What the command with amounts appends: the name padded to 30 and the
// amount after the separator ("2 1/2 Cup"); a box without a separator gives
// its whole text, cut to 30. Empty when blank.
QString EntryOfChoice(QStringView caption);
