#pragma once
// Dates as the program writes and reads them. Every date text follows one
// process-wide locale, the system's unless a test pins another, the way the
// old Windows runtime followed the control panel's regional settings.
//
// Format patterns are the classic Basic ones, letters in either case:
//
//   d dd          day, without / with a leading zero
//   ddd dddd      abbreviated (no closing period) / full day name
//   ddddd dddddd  the whole date in the short / long form
//   w ww          weekday number (1 = Sunday) / week of the year
//   m mm          month, without / with a leading zero (minutes after h or hh)
//   mmm mmmm      abbreviated (see ShortMonthName) / full month name
//   q             quarter
//   y yy yyyy     day of the year / two-digit year / four-digit year
//   h hh n nn s ss  hours, minutes, seconds
//   AM/PM am/pm A/P a/p   12-hour clock with that marker; AMPM the locale's
//   /  :          the locale's date and time separators
//   "text" \c     literal text
//
// "/" is the locale's date separator, as it always was in the original
// runtime: "m/d/yy" gives 9/30/06 in the USA and 9.30.06 in Germany. Any
// other character stands for itself. The named formats "Short Date", "Long
// Date", "Medium Date", "General Date", "Long Time", "Medium Time" and
// "Short Time" are understood as well.
//
// Numbers always come out in ASCII digits, whatever digits the locale uses.
#include <QDate>
#include <QDateTime>
#include <QLocale>
#include <QString>
#include <optional>

// The locale of every date text: the default locale (the system's) until a test pins one.
QLocale DateLocale();
void SetDateLocale(const QLocale& locale);

// The locale's short and long date forms.
QString ShortDate(QDate date);
QString LongDate(QDate date);

QString FormatDate(QDate date, QStringView pattern);
QString FormatDateTime(const QDateTime& at, QStringView pattern);

// "mmm": the locale's abbreviated month name without its closing period, cut
// to three characters when the twelve cuts stay distinct (Sep, not Sept.),
// since list files are named by it and read back by its three characters.
// Locales whose cuts would clash (French juin and juillet) keep the whole
// abbreviation. `month` is 1 to 12.
QString ShortMonthName(int month);

// The date form of the locale: "USA" when its short date of 30 September
// 2006 starts with the number 9 (month first), "OTHER" for anything else.
QString DateFormatModeFor(const QLocale& locale);

// A typed or stored date text, read much as the old runtime read dates:
//   - numbers, month names and day names, with anything else between them
//     (blanks, "/", "-", ".", ","); any other word makes the text no date;
//   - month names of the locale (full, abbreviated, or the first letters of
//     a full name) or in English; day names are passed over;
//   - numbers of one, two or four digits; four digits are always a year;
//   - with a month name the first number is the day, unless it can only be
//     a year (four digits, or above 31);
//   - three numbers: a first one of four digits is the year, in the order
//     year, month, day; otherwise day and month come in the
//     locale's order and then the other way round when that gives no date
//     (30/9/06 is 30 September even where the month comes first), and the
//     last number is the year;
//   - two numbers: a month and a year when one has four digits (9/2006 is
//     1 September 2006); otherwise month and day, in the locale's
//     order, of `yearWhenMissing`; with 0 there such a text is no date;
//   - two-digit years 00 to 29 fall in the 2000s, 30 to 99 in the 1900s.
// So every form that FormatDate writes for the program comes back: "9/30/06",
// "30.9.06", "September 30, 2006", "Sep/30/06", "30Sep06", "Saturday,
// September 30, 2006".
std::optional<QDate> ParseDate(QStringView text, int yearWhenMissing = 0);
