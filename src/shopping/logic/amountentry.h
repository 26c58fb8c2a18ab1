#pragma once
// The Amount Entry Panel's buttons: digits 0 to 9 and fourteen units. A box
// of five or more characters holds a whole amount already ("1 Dozen"), so
// the next button starts a new one.
#include <QString>
#include <QStringView>
#include <array>

inline constexpr int kAmountBoxLength = 12;
inline constexpr int kUnitButtonCount = 14;

struct UnitButton {
    const char* caption;   // singular and plural in one: "Bag(s)"
    const char* singular;  // for a number below 2
    const char* plural;    // for 2 or more
};

// In button index order. "Loafes" stands as the old program wrote it.
const std::array<UnitButton, kUnitButtonCount>& UnitButtons();

// Digit `digit`: a box whose number is 0, or of five or more characters,
// starts again; then the digit is appended.
QString AmountAfterDigit(QStringView box, int digit);
// Unit `index`: a box of five or more characters starts again; then a blank
// and the word for the box's number: " Bag" on an empty box, "2 Bags".
QString AmountAfterUnit(QStringView box, int index);
