#pragma once
// The shopping list as plain text for the clipboard: a head of three lines,
// then one line per filled grid row in the order the grid shows, the item
// cell as shown (its two leading blanks included) filled out with blanks to
// a width of 2400 twips in the screen's font, a TAB and the amount. The head
// lines end in CR LF, the rows in a CR alone, as other programs have always
// pasted this list.
#include "common/textfont.h"
#include "shopping/logic/shoppinglist.h"

#include <QList>
#include <QString>

class TextMeasurer;

// The width, in twips, that the item column fills with blanks.
inline constexpr double kCopiedItemWidth = 2400;

QString ShoppingListClipboardText(const QList<GridRow>& rows, QStringView dateBox, const TextMeasurer& measurer,
                                  const TextFont& screenFont);
