#pragma once
// The day on the clipboard as text: a title line, then the three meals in
// columns parted by tabs, the first two columns padded with blanks to the
// width of their widest line as the screen's font measures it, so the
// columns line up when pasted where that font is used.
//
//   Menu Planner for  Friday, April 3, 2026:<CR><LF>
//   <CR><LF>
//   Breakfast   <TAB>Lunch    <TAB>Dinner<CR><LF>
//   <CR><LF>
//   Eggs        <TAB>Soup     <TAB>Roast<CR><LF>
#include "common/textfont.h"
#include "planner/logic/menudayrecord.h"

#include <QDate>
#include <QString>

class TextMeasurer;

QString MenuCopyText(QDate day, const MenuLines& lines, const TextMeasurer& measurer, const TextFont& font);
