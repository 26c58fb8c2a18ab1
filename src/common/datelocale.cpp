#include "common/datelocale.h"

#include <QSet>
#include <array>
#include <optional>

namespace {

std::optional<QLocale>& PinnedDateLocale()
{
    static std::optional<QLocale> locale;
    return locale;
}

} // namespace

QLocale DateLocale()
{
    const std::optional<QLocale>& pinned = PinnedDateLocale();
    return pinned ? *pinned : QLocale(); // the system's, unless the process set a default
}

void SetDateLocale(const QLocale& locale)
{
    PinnedDateLocale() = locale;
}

QString WithoutClosingPeriod(QString name)
{
    if (name.endsWith(u'.'))
        name.chop(1);
    return name;
}

// Qt date and time formats quote literal text with apostrophes; the parts
// outside the quotes, where the field letters are.
QString UnquotedPart(const QString& format)
{
    QString out;
    bool quoted = false;
    for (QChar c : format) {
        if (c == u'\'')
            quoted = !quoted;
        else if (!quoted)
            out.append(c);
    }
    return out;
}

DateOrder OrderOf(const QLocale& locale)
{
    for (QChar c : UnquotedPart(locale.dateFormat(QLocale::ShortFormat))) {
        if (c == u'y')
            return DateOrder::YearMonthDay;
        if (c == u'M')
            return DateOrder::MonthDayYear;
        if (c == u'd')
            return DateOrder::DayMonthYear;
    }
    return DateOrder::MonthDayYear;
}

QString ShortMonthNameIn(const QLocale& locale, int month)
{
    if (month < 1 || month > 12)
        return {};
    std::array<QString, 12> names;
    QSet<QString> cuts;
    for (int m = 1; m <= 12; ++m) {
        names[m - 1] = WithoutClosingPeriod(locale.monthName(m, QLocale::ShortFormat));
        cuts.insert(names[m - 1].left(3).toCaseFolded());
    }
    const QString& name = names[month - 1];
    return cuts.size() == 12 ? name.left(3) : name;
}
