// Dates written: the short and long forms, the Basic format patterns and
// the date form of the locale.
#include "common/datelocale.h"

#include "common/numbertext.h"

#include <QTime>

namespace {

// Qt writes some locales' numbers in their own digits; the old runtime wrote
// ASCII digits everywhere, and the files depend on it.
QString WithAsciiDigits(QString text)
{
    for (QChar& c : text) {
        if (c.unicode() >= 0x80 && c.isDigit())
            c = QChar(u'0' + c.digitValue());
    }
    return text;
}

// The characters between the first and the second field of a Qt format, with
// blanks and direction marks dropped: "/" of M/d/yy, "." of dd.MM.yy.
QString SeparatorOf(const QString& format, const QString& fallback)
{
    const QString plain = UnquotedPart(format);
    qsizetype i = 0;
    while (i < plain.size() && !plain[i].isLetter())
        ++i;
    while (i < plain.size() && plain[i].isLetter())
        ++i;
    QString separator;
    for (; i < plain.size() && !plain[i].isLetter(); ++i) {
        const QChar c = plain[i];
        if (!c.isSpace() && c.category() != QChar::Other_Format)
            separator.append(c);
    }
    return separator.isEmpty() ? fallback : separator;
}

QString DateSeparator(const QLocale& locale)
{
    return SeparatorOf(locale.dateFormat(QLocale::ShortFormat), QStringLiteral("/"));
}

QString TimeSeparator(const QLocale& locale)
{
    return SeparatorOf(locale.timeFormat(QLocale::ShortFormat), QStringLiteral(":"));
}

bool UsesTwelveHourClock(const QLocale& locale)
{
    const QString plain = UnquotedPart(locale.timeFormat(QLocale::ShortFormat));
    return plain.contains(u'a', Qt::CaseInsensitive);
}

QString ShortDateIn(const QLocale& locale, QDate date)
{
    return WithAsciiDigits(locale.toString(date, QLocale::ShortFormat));
}

QString LongDateIn(const QLocale& locale, QDate date)
{
    return WithAsciiDigits(locale.toString(date, QLocale::LongFormat));
}

QString Padded(int value, int width)
{
    return QString::number(value).rightJustified(width, u'0');
}

// Weeks start on Sunday and week 1 holds 1 January, the old defaults.
int WeekdayNumber(QDate date)
{
    return date.dayOfWeek() % 7 + 1;
}

int WeekOfYear(QDate date)
{
    const QDate first(date.year(), 1, 1);
    return (date.dayOfYear() - 1 + WeekdayNumber(first) - 1) / 7 + 1;
}

int RunLength(QStringView pattern, qsizetype at, char16_t lower)
{
    int run = 0;
    while (at + run < pattern.size() && pattern[at + run].toLower() == QChar(lower))
        ++run;
    return run;
}

bool StartsWithAt(QStringView pattern, qsizetype at, QStringView token)
{
    return pattern.mid(at).startsWith(token, Qt::CaseInsensitive);
}

bool HasAmPm(QStringView pattern)
{
    bool quoted = false;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        if (pattern[i] == u'"')
            quoted = !quoted;
        else if (!quoted && (StartsWithAt(pattern, i, u"am/pm") || StartsWithAt(pattern, i, u"a/p")
                             || StartsWithAt(pattern, i, u"ampm")))
            return true;
    }
    return false;
}

QString FormatIn(const QLocale& locale, QDate date, QTime time, QStringView pattern);

QString LongTimeIn(const QLocale& locale, QTime time)
{
    return FormatIn(locale, {}, time,
                    UsesTwelveHourClock(locale) ? QStringView(u"h:nn:ss AMPM") : QStringView(u"hh:nn:ss"));
}

std::optional<QString> NamedFormat(const QLocale& locale, QDate date, QTime time, QStringView pattern)
{
    const QStringView name = pattern.trimmed();
    auto is = [&](QStringView candidate) { return name.compare(candidate, Qt::CaseInsensitive) == 0; };
    if (is(u"Short Date"))
        return ShortDateIn(locale, date);
    if (is(u"Long Date"))
        return LongDateIn(locale, date);
    if (is(u"Medium Date"))
        return FormatIn(locale, date, time, u"dd-mmm-yy");
    if (is(u"General Date")) {
        QString text = ShortDateIn(locale, date);
        if (time.isValid() && time != QTime(0, 0))
            text += u' ' + LongTimeIn(locale, time);
        return text;
    }
    if (is(u"Long Time"))
        return LongTimeIn(locale, time);
    if (is(u"Medium Time"))
        return FormatIn(locale, date, time, u"hh:nn AM/PM");
    if (is(u"Short Time"))
        return FormatIn(locale, date, time, u"hh:nn");
    return std::nullopt;
}

QString FormatIn(const QLocale& locale, QDate date, QTime time, QStringView pattern)
{
    if (std::optional<QString> named = NamedFormat(locale, date, time, pattern))
        return *named;
    if (!time.isValid())
        time = QTime(0, 0);

    const bool twelveHour = HasAmPm(pattern);
    const int hour12 = time.hour() % 12 == 0 ? 12 : time.hour() % 12;
    const int hour = twelveHour ? hour12 : time.hour();
    const bool dateOk = date.isValid();
    QString out;
    bool afterHour = false;  // "m" right after an hour field means minutes

    qsizetype i = 0;
    while (i < pattern.size()) {
        const QChar c = pattern[i];
        const char16_t lower = c.toLower().unicode();
        if (c == u'"') {
            const qsizetype end = pattern.indexOf(u'"', i + 1);
            const qsizetype stop = end < 0 ? pattern.size() : end;
            out += pattern.mid(i + 1, stop - i - 1);
            i = stop + 1;
            continue;
        }
        if (c == u'\\') {
            if (i + 1 < pattern.size())
                out += pattern[i + 1];
            i += 2;
            continue;
        }
        if (StartsWithAt(pattern, i, u"am/pm")) {
            out += time.hour() < 12 ? pattern.mid(i, 2) : pattern.mid(i + 3, 2);
            i += 5;
            continue;
        }
        if (StartsWithAt(pattern, i, u"ampm")) {
            out += time.hour() < 12 ? locale.amText() : locale.pmText();
            i += 4;
            continue;
        }
        if (StartsWithAt(pattern, i, u"a/p")) {
            out += time.hour() < 12 ? pattern[i] : pattern[i + 2];
            i += 3;
            continue;
        }
        if (c == u'/') {
            out += DateSeparator(locale);
            ++i;
            continue;
        }
        if (c == u':') {
            out += TimeSeparator(locale);
            ++i;
            continue;
        }

        const int run = RunLength(pattern, i, lower);
        int used = 1;
        switch (lower) {
        case u'd':
            used = std::min(run, 6);
            if (dateOk) {
                switch (used) {
                case 1: out += QString::number(date.day()); break;
                case 2: out += Padded(date.day(), 2); break;
                case 3: out += WithoutClosingPeriod(locale.dayName(date.dayOfWeek(), QLocale::ShortFormat)); break;
                case 4: out += locale.dayName(date.dayOfWeek(), QLocale::LongFormat); break;
                case 5: out += ShortDateIn(locale, date); break;
                default: out += LongDateIn(locale, date); break;
                }
            }
            afterHour = false;
            break;
        case u'm':
            used = std::min(run, 4);
            if (used <= 2 && afterHour) {
                out += used == 1 ? QString::number(time.minute()) : Padded(time.minute(), 2);
            } else if (dateOk) {
                switch (used) {
                case 1: out += QString::number(date.month()); break;
                case 2: out += Padded(date.month(), 2); break;
                case 3: out += ShortMonthNameIn(locale, date.month()); break;
                default: out += locale.monthName(date.month(), QLocale::LongFormat); break;
                }
            }
            afterHour = false;
            break;
        case u'y':
            used = run >= 4 ? 4 : run >= 2 ? 2 : 1;
            if (dateOk) {
                if (used == 4)
                    out += Padded(date.year(), 4);
                else if (used == 2)
                    out += Padded(date.year() % 100, 2);
                else
                    out += QString::number(date.dayOfYear());
            }
            afterHour = false;
            break;
        case u'w':
            used = std::min(run, 2);
            if (dateOk)
                out += QString::number(used == 1 ? WeekdayNumber(date) : WeekOfYear(date));
            afterHour = false;
            break;
        case u'q':
            if (dateOk)
                out += QString::number((date.month() - 1) / 3 + 1);
            afterHour = false;
            break;
        case u'c':
            if (dateOk)
                out += ShortDateIn(locale, date);
            if (time != QTime(0, 0))
                out += (dateOk ? QStringLiteral(" ") : QString()) + LongTimeIn(locale, time);
            afterHour = false;
            break;
        case u'h':
            used = std::min(run, 2);
            out += used == 1 ? QString::number(hour) : Padded(hour, 2);
            afterHour = true;
            break;
        case u'n':
            used = std::min(run, 2);
            out += used == 1 ? QString::number(time.minute()) : Padded(time.minute(), 2);
            afterHour = false;
            break;
        case u's':
            used = std::min(run, 2);
            out += used == 1 ? QString::number(time.second()) : Padded(time.second(), 2);
            afterHour = false;
            break;
        default:
            out += c;
            break;
        }
        i += used;
    }
    return out;
}

} // namespace

QString ShortDate(QDate date)
{
    return ShortDateIn(DateLocale(), date);
}

QString LongDate(QDate date)
{
    return LongDateIn(DateLocale(), date);
}

QString FormatDate(QDate date, QStringView pattern)
{
    return FormatIn(DateLocale(), date, QTime(0, 0), pattern);
}

QString FormatDateTime(const QDateTime& at, QStringView pattern)
{
    return FormatIn(DateLocale(), at.date(), at.time(), pattern);
}

QString ShortMonthName(int month)
{
    return ShortMonthNameIn(DateLocale(), month);
}

QString DateFormatModeFor(const QLocale& locale)
{
    const QString text = ShortDateIn(locale, QDate(2006, 9, 30));
    return Val(text) == 9 ? QStringLiteral("USA") : QStringLiteral("OTHER");
}
