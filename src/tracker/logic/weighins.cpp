#include "tracker/logic/weighins.h"

#include "common/numberformat.h"
#include "common/numbertext.h"

namespace {

constexpr double kChangeLimit = -1.4;
constexpr double kDifferenceLimit = -10;

// Bold for a negative result, cleared for a positive one, kept at 0.
void MarkBold(bool& bold, float value)
{
    if (value < 0)
        bold = true;
    else if (value > 0)
        bold = false;
}

TrendPicture Judge(double value, double limit)
{
    if (value >= 0)
        return TrendPicture::Sad;
    return value > limit ? TrendPicture::Smile : TrendPicture::BigSmile;
}

} // namespace

std::optional<double> PlainNumber(const QString& text)
{
    const QString trimmed = text.trimmed();
    int digits = 0;
    int points = 0;
    for (int at = 0; at < trimmed.size(); ++at) {
        const QChar c = trimmed[at];
        if (c.isDigit() && c.unicode() < 128)
            ++digits;
        else if (c == u'.')
            ++points;
        else if (!(c == u'+' && at == 0))
            return std::nullopt;
    }
    if (digits == 0 || points > 1)
        return std::nullopt;
    return Val(trimmed);
}

QString ShownWeightText(const QString& text)
{
    // The worked-out columns hold negative numbers too.
    const QString trimmed = text.trimmed();
    const bool negative = trimmed.startsWith(u'-');
    if (const std::optional<double> value = PlainNumber(negative ? trimmed.mid(1) : trimmed))
        return Format(negative ? -*value : *value, u"###.#");
    return text;
}

void ComputeColumns(QList<WeighInRow>& rows, const QString& beginningWeight)
{
    float current = 0;
    float previous = 0;
    float difference = 0;
    const std::optional<double> beginning = PlainNumber(beginningWeight);
    for (int r = 0; r < rows.size(); ++r) {
        WeighInRow& row = rows[r];
        if (row.weight.trimmed().isEmpty())
            continue;
        if (const std::optional<double> value = PlainNumber(row.weight))
            current = ToSingle(*value);
        if (r > 0) {
            // The row directly above, even when it is blank: then the last
            // readable value stays.
            if (const std::optional<double> value = PlainNumber(rows[r - 1].weight))
                previous = ToSingle(*value);
            const float change = current - previous;
            MarkBold(row.changeBold, change);
            row.change = ShortestText(change);
        }
        // The difference goes through its text once before it is held as a
        // Single; a beginning weight that is no number leaves it as it was.
        if (beginning)
            difference = ToSingle(Val(ShortestText(double(current) - *beginning)));
        MarkBold(row.differenceBold, difference);
        row.difference = ShortestText(difference);
    }
    if (!rows.isEmpty())
        rows[0].change = QString::fromLatin1(kFirstChangeText);
}

QString TrendPictureFile(TrendPicture picture)
{
    switch (picture) {
    case TrendPicture::Smile:
        return QStringLiteral("1.ico");
    case TrendPicture::BigSmile:
        return QStringLiteral("2.ico");
    case TrendPicture::Sad:
        return QStringLiteral("Sad1.ico");
    case TrendPicture::None:
        break;
    }
    return {};
}

int LastEntryRow(const QList<WeighInRow>& rows)
{
    for (int r = 1; r <= rows.size(); ++r) {
        if (rows[r - 1].date.trimmed().isEmpty())
            return r - 1;
    }
    return int(rows.size());
}

Trend JudgeTrend(const QList<WeighInRow>& rows, const QString& goalWeight)
{
    Trend trend;
    const int last = LastEntryRow(rows);
    if (last == 0)
        return trend;
    const WeighInRow& entry = rows[last - 1];
    const double change = last == 1 ? 0 : Val(entry.change);
    const double difference = Val(entry.difference);
    const double weight = Val(entry.weight);
    trend.lastEntry = Judge(change, kChangeLimit);
    if (Val(goalWeight) >= weight) {
        trend.goalReached = true;
        trend.beginning = TrendPicture::BigSmile;
        return trend;
    }
    trend.beginning = Judge(difference, kDifferenceLimit);
    return trend;
}
