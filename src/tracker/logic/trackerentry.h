#pragma once
// The rules of typing and picking on the weight tracker screen.
#include <QDate>
#include <QDateTime>
#include <QSizeF>
#include <QString>

// The fields of the individual's name and texts, and their limits.
inline constexpr int kNameLimit = 25;
inline constexpr int kBeginningDateLimit = 25;
inline constexpr int kBeginningWeightLimit = 15;
inline constexpr int kGoalWeightLimit = 20;
inline constexpr int kDaysPerWeekLimit = 20;
inline constexpr int kTimePerPeriodLimit = 20;
inline constexpr int kExerciseTypesLimit = 100;
inline constexpr int kPhotoDateLimit = 20;
inline constexpr int kCommentsLimit = 1000;
inline constexpr int kGridDateLimit = 20;

// Each change of a field is judged by its last character only. The weight
// and days fields take digits, ',', '.', '/' and, as the first character,
// '+'; any other field refuses only the double quote, which would end the
// value in the file. The text as it stands after the rule: the last
// character dropped when it is refused.
QString FilterNumberField(const QString& text);
QString FilterTextField(const QString& text);

// The form a calendar writes a date in: "mmmm dd, yyyy".
QString TrackerDateText(QDate date);

// A date picked from a calendar that the date checker refuses: one after
// the present moment. The calendar gives the date at midnight, so today
// always passes.
bool DateCheckRefuses(QDate picked, const QDateTime& now, bool checkerOn);

// The factor a thumbnail is drawn at: from 1.0 down by .001, never below
// .001, until the picture is at most 0.2 of the panel's width and 0.18 of
// its height.
double ThumbnailFactor(const QSizeF& picture, const QSizeF& panel);
