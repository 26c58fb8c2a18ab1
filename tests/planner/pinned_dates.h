#pragma once
// Pins the date locale for a test and the program's date setting with it:
// en_US writes month first ("USA"), en_GB day first ("OTHER"). The locale
// and the setting come back when the object goes.
#include "common/dates.h"
#include "shell/logic/processvalues.h"

class PinnedDates {
public:
    explicit PinnedDates(QLocale::Country country)
        : savedLocale_(DateLocale()), savedMode_(Process().DateFormatMode)
    {
        const QLocale locale(QLocale::English, country);
        SetDateLocale(locale);
        Process().DateFormatMode = DateFormatModeFor(locale);
    }
    ~PinnedDates()
    {
        SetDateLocale(savedLocale_);
        Process().DateFormatMode = savedMode_;
    }
    PinnedDates(const PinnedDates&) = delete;
    PinnedDates& operator=(const PinnedDates&) = delete;

private:
    QLocale savedLocale_;
    QString savedMode_;
};

inline constexpr QLocale::Country kUsa = QLocale::UnitedStates;
inline constexpr QLocale::Country kBritain = QLocale::UnitedKingdom;
