#include "common/dates.h"

#include "common/numbertext.h"

#include <QSet>
#include <QStringList>
#include <QTime>
#include <algorithm>
#include <array>
#include <vector>

namespace {

std::optional<QLocale>& PinnedDateLocale()
{
    static std::optional<QLocale> locale;
    return locale;
}

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

enum class DateOrder { MonthDayYear, DayMonthYear, YearMonthDay };

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

QString ShortDateIn(const QLocale& locale, QDate date)
{
    return WithAsciiDigits(locale.toString(date, QLocale::ShortFormat));
}

QString LongDateIn(const QLocale& locale, QDate date)
{
    return WithAsciiDigits(locale.toString(date, QLocale::LongFormat));
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

// ---- reading dates -------------------------------------------------------

struct Names {
    std::vector<std::pair<QString, int>> months;       // every written form, with its month
    std::vector<std::pair<QString, int>> longMonths;   // full names, for abbreviations typed by hand
    QStringList days;
};

Names NamesOf(const QLocale& locale)
{
    Names names;
    const QLocale english = QLocale::c();
    for (const QLocale* l : {&locale, &english}) {
        for (int m = 1; m <= 12; ++m) {
            for (auto type : {QLocale::LongFormat, QLocale::ShortFormat}) {
                names.months.emplace_back(WithoutClosingPeriod(l->monthName(m, type)), m);
                names.months.emplace_back(WithoutClosingPeriod(l->standaloneMonthName(m, type)), m);
            }
            names.months.emplace_back(ShortMonthNameIn(*l, m), m);
            names.longMonths.emplace_back(l->monthName(m, QLocale::LongFormat), m);
            names.longMonths.emplace_back(l->standaloneMonthName(m, QLocale::LongFormat), m);
        }
        for (int d = 1; d <= 7; ++d) {
            for (auto type : {QLocale::LongFormat, QLocale::ShortFormat}) {
                names.days.append(WithoutClosingPeriod(l->dayName(d, type)));
                names.days.append(WithoutClosingPeriod(l->standaloneDayName(d, type)));
            }
        }
    }
    return names;
}

// 0 when the word names no month, or more than one.
int MonthOfWord(const Names& names, QStringView word)
{
    for (const auto& [name, month] : names.months) {
        if (!name.isEmpty() && word.compare(name, Qt::CaseInsensitive) == 0)
            return month;
    }
    if (word.size() < 3)
        return 0;
    int found = 0;
    for (const auto& [name, month] : names.longMonths) {
        if (QStringView(name).startsWith(word, Qt::CaseInsensitive)) {
            if (found != 0 && found != month)
                return 0;
            found = month;
        }
    }
    return found;
}

bool IsDayName(const Names& names, QStringView word)
{
    for (const QString& name : names.days) {
        if (!name.isEmpty() && word.compare(name, Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

// The year, month and day markers of the East Asian date forms separate
// numbers just as a slash does.
bool IsDatePartMarker(QStringView word)
{
    static const QStringList markers = {QStringLiteral("年"), QStringLiteral("月"), QStringLiteral("日"),
                                        QStringLiteral("년"), QStringLiteral("월"), QStringLiteral("일")};
    return markers.contains(word);
}

struct Number {
    int value = 0;
    int digits = 0;
    bool fullYear() const { return digits == 4; }
    bool yearLike() const { return fullYear() || value > 31; }
};

// Two-digit years fall in 1930 to 2029, the Windows default window.
int FullYear(int value)
{
    if (value < 30)
        return 2000 + value;
    if (value < 100)
        return 1900 + value;
    return value;
}

std::optional<QDate> MakeDate(int year, int month, int day)
{
    const int full = FullYear(year);
    if (full < 100 || full > 9999)
        return std::nullopt;
    const QDate date(full, month, day);
    if (!date.isValid())
        return std::nullopt;
    return date;
}

// With a month name the first number is the day, unless it can only be a
// year; when the day does not fit the month the two are tried the other way.
std::optional<QDate> FromNumbersAndMonth(const std::vector<Number>& numbers, int month, int yearWhenMissing)
{
    if (numbers.size() == 1) {
        const Number& n = numbers[0];
        if (n.yearLike())
            return MakeDate(n.value, month, 1);
        if (yearWhenMissing == 0)
            return std::nullopt;
        return MakeDate(yearWhenMissing, month, n.value);
    }
    if (numbers.size() != 2)
        return std::nullopt;
    const Number& a = numbers[0];
    const Number& b = numbers[1];
    if (a.yearLike() && b.yearLike())
        return std::nullopt;
    if (a.yearLike())
        return MakeDate(a.value, month, b.value);
    if (b.yearLike())
        return MakeDate(b.value, month, a.value);
    if (auto date = MakeDate(b.value, month, a.value))
        return date;
    return MakeDate(a.value, month, b.value);
}

// A year comes first only when it is written with four digits;
// otherwise day and month follow the locale (month first only where the
// locale writes the month first), then the other way round, and a two-digit
// year in front is the last thing tried.
std::optional<QDate> FromThreeNumbers(const std::vector<Number>& numbers, DateOrder localeOrder)
{
    const Number& a = numbers[0];
    const Number& b = numbers[1];
    const Number& c = numbers[2];
    if (a.fullYear())
        return b.fullYear() || c.fullYear() ? std::nullopt : MakeDate(a.value, b.value, c.value);
    if (b.fullYear())
        return std::nullopt;
    const bool monthFirst = localeOrder == DateOrder::MonthDayYear;
    if (auto date = MakeDate(c.value, monthFirst ? a.value : b.value, monthFirst ? b.value : a.value))
        return date;
    if (auto date = MakeDate(c.value, monthFirst ? b.value : a.value, monthFirst ? a.value : b.value))
        return date;
    if (!c.fullYear())
        return MakeDate(a.value, b.value, c.value);
    return std::nullopt;
}

std::optional<QDate> FromTwoNumbers(const std::vector<Number>& numbers, DateOrder order, int yearWhenMissing)
{
    const Number& a = numbers[0];
    const Number& b = numbers[1];
    if (a.fullYear() && b.fullYear())
        return std::nullopt;
    // A month and a year: the first of that month.
    if (a.fullYear())
        return MakeDate(a.value, b.value, 1);
    if (b.fullYear())
        return MakeDate(b.value, a.value, 1);
    if (yearWhenMissing == 0)
        return std::nullopt;
    const bool dayFirst = order == DateOrder::DayMonthYear;
    if (auto date = MakeDate(yearWhenMissing, dayFirst ? b.value : a.value, dayFirst ? a.value : b.value))
        return date;
    return MakeDate(yearWhenMissing, dayFirst ? a.value : b.value, dayFirst ? b.value : a.value);
}

// The names of one locale, kept while the locale stays the same: a grid
// sorted by date reads many dates in a row.
const Names& NamesFor(const QLocale& locale)
{
    static QString key;
    static Names names;
    const QString name = locale.bcp47Name() + u'|' + locale.name();
    if (names.months.empty() || key != name) {
        names = NamesOf(locale);
        key = name;
    }
    return names;
}

struct Word {
    int month = 0;
    bool dayName = false;
};

// One month among the words. Some abbreviations name a month and a day
// (Spanish and Italian "mar"): a word that can only be a month wins, else
// the last of the doubtful ones is the month, as in "mar - 07 mar 2006".
std::optional<int> MonthAmong(const std::vector<Word>& words)
{
    int monthOnly = 0;
    int doubtful = 0;
    int doubtfulCount = 0;
    for (const Word& word : words) {
        if (word.month != 0 && !word.dayName) {
            if (monthOnly != 0)
                return std::nullopt;
            monthOnly = word.month;
        } else if (word.month != 0) {
            doubtful = word.month;
            ++doubtfulCount;
        }
    }
    if (monthOnly != 0)
        return monthOnly;
    if (doubtfulCount > 2)
        return std::nullopt;
    return doubtful;
}

std::optional<QDate> ParseIn(const QLocale& locale, QStringView text, int yearWhenMissing)
{
    std::vector<Number> numbers;
    std::vector<Word> words;

    qsizetype i = 0;
    while (i < text.size()) {
        const QChar c = text[i];
        if (c.isDigit()) {
            Number n;
            while (i < text.size() && text[i].isDigit()) {
                if (++n.digits > 4)
                    return std::nullopt;
                n.value = n.value * 10 + text[i].digitValue();
                ++i;
            }
            // Three digits are neither a day, a month nor a year the program writes.
            if (numbers.size() == 3 || n.digits == 3)
                return std::nullopt;
            numbers.push_back(n);
        } else if (c.isLetter()) {
            const qsizetype start = i;
            while (i < text.size() && text[i].isLetter())
                ++i;
            const QStringView letters = text.mid(start, i - start);
            if (IsDatePartMarker(letters))
                continue;
            const Names& names = NamesFor(locale);
            const Word word{MonthOfWord(names, letters), IsDayName(names, letters)};
            if (word.month == 0 && !word.dayName)
                return std::nullopt;
            if (words.size() == 3)
                return std::nullopt;
            words.push_back(word);
        } else {
            ++i;
        }
    }

    const std::optional<int> month = MonthAmong(words);
    if (!month)
        return std::nullopt;
    const DateOrder order = OrderOf(locale);
    if (*month != 0)
        return FromNumbersAndMonth(numbers, *month, yearWhenMissing);
    if (numbers.size() == 3)
        return FromThreeNumbers(numbers, order);
    if (numbers.size() == 2)
        return FromTwoNumbers(numbers, order, yearWhenMissing);
    return std::nullopt;
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

std::optional<QDate> ParseDate(QStringView text, int yearWhenMissing)
{
    return ParseIn(DateLocale(), text, yearWhenMissing);
}
