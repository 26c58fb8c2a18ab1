#include "cookbook/logic/nameentry.h"

#include "common/numbertext.h"

#include <limits>

namespace {

QStringView WithoutTrailingBlanks(QStringView text)
{
    qsizetype end = text.size();
    while (end > 0 && text[end - 1] == u' ')
        --end;
    return text.first(end);
}

} // namespace

QString MakeNameEntry(QStringView name, RecordNumber recordNumber)
{
    QString entry = WithoutTrailingBlanks(name.left(kNameEntryMaxName)).toString();
    entry = entry.leftJustified(kNameEntryPadWidth, u' ');
    entry += QString::number(recordNumber);
    return entry;
}

RecordNumber RecordNumberOf(QStringView entry)
{
    if (entry.size() < kNameEntryPadWidth)
        return 0;
    // The leading-number reading from the last pad blank on; a number that
    // does not fit a record number reads as none.
    const double number = Val(entry.sliced(kNameEntryPadWidth - 1));
    if (!(number >= 0 && number <= std::numeric_limits<RecordNumber>::max()))
        return 0;
    return RecordNumber(number);
}

QString RecipeNameOf(QStringView entry)
{
    return WithoutTrailingBlanks(entry.left(kRecipeNameWidth)).toString();
}

bool IsBlankText(QStringView text)
{
    return WithoutTrailingBlanks(text).isEmpty();
}
