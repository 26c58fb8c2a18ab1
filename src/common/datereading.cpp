// Dates read: a typed or stored date text, much as the old runtime read it.
#include "common/datelocale.h"

#include <QStringList>
#include <vector>

namespace {

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

std::optional<QDate> ParseDate(QStringView text, int yearWhenMissing)
{
    return ParseIn(DateLocale(), text, yearWhenMissing);
}
