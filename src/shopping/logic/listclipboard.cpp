#include "shopping/logic/listclipboard.h"

#include "common/blanktext.h"
#include "print/logic/textmeasurer.h"
#include "shopping/logic/datebox.h"

namespace {

// A font whose blank measures nothing would never fill the column; no item
// cell needs more blanks than this to pass 2400 twips in a readable font.
constexpr int kMostFillBlanks = 400;

QString FilledItemCell(const QString& cell, const TextMeasurer& measurer, const TextFont& font)
{
    QString filled = cell;
    for (int blanks = 0; blanks < kMostFillBlanks && measurer.textWidth(font, filled) < kCopiedItemWidth; ++blanks)
        filled.append(u' ');
    return filled;
}

} // namespace

QString ShoppingListClipboardText(const QList<GridRow>& rows, QStringView dateBox, const TextMeasurer& measurer,
                                  const TextFont& screenFont)
{
    const QString crlf = QStringLiteral("\r\n");
    QString text = QStringLiteral("Shopping List") + crlf + LongDateOfBox(dateBox) + crlf + crlf + QString(10, u' ')
                 + QStringLiteral("Grocery Items") + QString(16, u' ') + QStringLiteral("Amount to Purchase") + crlf;
    for (const GridRow& row : rows) {
        if (IsBlank(row.item))
            continue;
        text += FilledItemCell(row.item, measurer, screenFont) + u'\t' + row.amount + u'\r';
    }
    return text;
}
