#include "tracker/logic/trackerentry.h"

#include "common/dates.h"

namespace {

bool NumberFieldTakes(QChar c, bool first)
{
    return (c.isDigit() && c.unicode() < 128) || c == u',' || c == u'.' || c == u'/' || (first && c == u'+');
}

QString WithoutLast(const QString& text)
{
    return text.left(text.size() - 1);
}

} // namespace

QString FilterNumberField(const QString& text)
{
    if (text.isEmpty() || NumberFieldTakes(text.back(), text.size() == 1))
        return text;
    return WithoutLast(text);
}

QString FilterTextField(const QString& text)
{
    if (text.endsWith(u'"'))
        return WithoutLast(text);
    return text;
}

QString TrackerDateText(QDate date)
{
    return FormatDate(date, u"mmmm dd, yyyy");
}

bool DateCheckRefuses(QDate picked, const QDateTime& now, bool checkerOn)
{
    return checkerOn && picked.startOfDay() > now;
}

double ThumbnailFactor(const QSizeF& picture, const QSizeF& panel)
{
    // Whole thousandths, so the steps do not drift.
    int thousandths = 1000;
    const auto fits = [&] {
        const double factor = thousandths / 1000.0;
        return picture.width() * factor <= 0.2 * panel.width() && picture.height() * factor <= 0.18 * panel.height();
    };
    while (thousandths > 1 && !fits())
        --thousandths;
    return thousandths / 1000.0;
}
