#include "shopping/logic/datebox.h"

#include "common/dates.h"

QString DateBoxText(QStringView typed, QChar localeSeparator)
{
    QString kept;
    for (const QChar c : typed) {
        if ((c >= u'0' && c <= u'9') || c == u'/' || c == localeSeparator)
            kept.append(c);
    }
    return kept;
}

QChar ShortDateSeparator()
{
    // A date with day and month of two digits shows where the separator stands.
    const QString sample = ShortDate(QDate(2006, 11, 30));
    for (const QChar c : sample) {
        if (!c.isDigit())
            return c;
    }
    return u'/';
}

QString LongDateOfBox(QStringView dateBox)
{
    const std::optional<QDate> date = ParseDate(dateBox);
    return date ? LongDate(*date) : dateBox.toString();
}
