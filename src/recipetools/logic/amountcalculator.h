#pragma once
// Rescaling a recipe's amounts to a new yield. The calculator works on the
// decimal work list, snaps every result to a kitchen fraction by the table of
// amountformat.h, and fits each row's unit word to the new amount. It only
// computes: the recipe screen shows the messages and puts the results into
// its boxes.
#include "recipetools/logic/recipelifecycle.h"

#include <QString>
#include <array>

// The calculator's messages: one OK button and the information icon each.
inline constexpr char kNoServingInformationTitle[] = "Calculate Serving Information";
inline constexpr char kNoServingInformationText[] =
    "There is no current Serving Information\nto perform new calculations on!";
inline constexpr char kYieldEntryErrorTitle[] = "Yield Entry Error";
inline constexpr char kYieldEntryErrorText[] = "New Yield Amounts can only be between .5 and 999.";
// The spelling of this text is what users have always seen; keep it.
inline constexpr char kCalculatorErrorTitle[] = "Amount Calculator Error";
inline constexpr char kCalculatorErrorText[] =
    "A calculation Error has occured! Most likely an incorreect number was used for the Recipe Yield or the "
    "amount boxes contain an inappropriate number or the maximun amount limit of 999 was exceeded";

inline constexpr double kLowestNewYield = 0.5;
inline constexpr double kHighestNewYield = 999;

struct CalculatorInput {
    QString newYield;                               // Text9, "Change Yield To:"
    QString currentYield;                           // Label20, "Current Yield Is:"
    std::array<QString, kRecipeRows> workList;      // AmountWorkList, decimal texts
    std::array<QString, kRecipeRows> units;         // the unit boxes (Text4)
    bool modifyMode = false;                        // the boxes show decimals, not fractions
};

enum class CalculatorOutcome {
    Done,
    YieldOutOfRange,    // kYieldEntryError*: clear Text9 and put the focus in it
    CalculationError,   // kCalculatorError*: AmountsRecalculated cleared, the panel stays
};

struct CalculatorResult {
    CalculatorOutcome outcome = CalculatorOutcome::Done;
    // Rows 0 to rowsDone - 1 were rescaled: their amount box, work list entry
    // and unit box take these values. An error midway keeps what was done
    // before it. The entries of the rows not reached are the input's, with
    // the box as the work list shows in the mode.
    std::array<QString, kRecipeRows> amountBoxes;   // what each Text1 shows afterwards
    std::array<QString, kRecipeRows> workList;
    std::array<QString, kRecipeRows> units;
    int rowsDone = 0;
    // The new yield was accepted and the ratio taken: the yield box (Text6)
    // takes the text of Text9, also when a row fails afterwards. After Done
    // the screen copies it on to Label20 as well.
    bool newYieldTaken = false;
};

// "Calculate New Amounts". The new yield must lie from .5 to 999; the ratio of
// new to current yield is a single; each row's amount times the ratio is
// written in the standard format, read back (so 1,250.00 reads 1), split and
// snapped, and kept as its shortest decimal text (".125", "2.33", "1000").
CalculatorResult CalculateNewAmounts(const CalculatorInput& input);

// The decimal text a row's amount takes for an unrounded result `amount`:
// empty when the snapped value is 0 or less, so a result below .10 is lost.
QString SnappedAmountText(double amount);

// The unit box after a rescale to the unrounded `amount`. A rule on the
// letters only: up to and including 1.1 a final "s" goes ("cups" "cup",
// "pkgs." "pkg."), above it one is added ("cup" "cups", "pkg." "pkgs.",
// "dash" "dashs") to units of 1 to 9 characters. "dozen", "whole", "small",
// "medium" and "large" stay in any case. When no rule gives a new word, or
// it would be empty, the box keeps its text.
QString FitUnitWord(const QString& unit, double amount);

// The yield type label after the new yield `typedYield` was typed: 1 or less
// drops a final "s" ("Cakes" "Cake"); more than 1 adds one unless the label is
// empty, ends in "s" or ")" ("Serving(s)"), or is "Dozen" in any case.
QString YieldTypeForTyped(const QString& typedYield, const QString& label);

// The new yield box after a key: only a digit or "." may stand last; any
// other last character is cut, and a box of that one character is emptied.
QString FilterYieldBox(const QString& text);
