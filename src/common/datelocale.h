#pragma once
// What writing and reading dates share: the process-wide date locale and
// the locale's names and order, as both sides need them alike.
#include "common/dates.h"

// Day, month and year in the order the locale's short date writes them.
enum class DateOrder { MonthDayYear, DayMonthYear, YearMonthDay };
DateOrder OrderOf(const QLocale& locale);

// A locale's name with its abbreviating period dropped ("Sept." -> "Sept").
QString WithoutClosingPeriod(QString name);
// Qt date and time formats quote literal text with apostrophes; the parts
// outside the quotes, where the field letters are.
QString UnquotedPart(const QString& format);
// ShortMonthName in `locale`.
QString ShortMonthNameIn(const QLocale& locale, int month);
