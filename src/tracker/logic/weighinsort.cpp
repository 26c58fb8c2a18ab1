#include "tracker/logic/weighinsort.h"

#include "common/dates.h"
#include "common/quotedlinefile.h"

#include <algorithm>
#include <tuple>

namespace {

// Blank first, then texts that are no date (by their text), then dates.
struct DateKey {
    int kind;   // 0 blank, 1 no date, 2 date
    QDate date;
    QString text;

    bool operator<(const DateKey& other) const
    {
        if (kind != other.kind)
            return kind < other.kind;
        if (kind == 2)
            return date < other.date;
        return text < other.text;
    }
};

DateKey KeyOf(const QString& date)
{
    const QString text = date.trimmed();
    if (text.isEmpty())
        return {0, {}, {}};
    if (const std::optional<QDate> value = ParseDate(text))
        return {2, *value, {}};
    return {1, {}, text};
}

constexpr int kScratchColumns = 4;

} // namespace

void SortByDate(QList<WeighInRow>& rows, Qt::SortOrder order, const QString& beginningWeight)
{
    const int rowCount = int(rows.size());
    QList<std::pair<DateKey, WeighInRow>> keyed;
    keyed.reserve(rowCount);
    for (const WeighInRow& row : rows)
        keyed.append({KeyOf(row.date), row});
    if (order == Qt::AscendingOrder)
        std::stable_sort(keyed.begin(), keyed.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    else
        std::stable_sort(keyed.begin(), keyed.end(), [](const auto& a, const auto& b) { return b.first < a.first; });
    rows.clear();
    for (const auto& [key, row] : keyed)
        rows.append(row);
    if (order == Qt::DescendingOrder)
        return;
    while (!rows.isEmpty() && rows.first().date.trimmed().isEmpty())
        rows.removeFirst();
    rows.resize(rowCount);
    ComputeColumns(rows, beginningWeight);
}

bool WriteGridScratch(const QList<WeighInRow>& rows)
{
    QStringList values;
    values.reserve(rows.size() * kScratchColumns);
    for (const WeighInRow& row : rows)
        values << row.date << row.weight << row.change << row.difference;
    return WriteQuotedLineFile(QString::fromLatin1(kGridScratchFile), values);
}

void ReadGridScratch(QList<WeighInRow>& rows)
{
    const QStringList values = ReadQuotedLineFile(QString::fromLatin1(kGridScratchFile));
    for (int row = 0; row < rows.size() && (row + 1) * kScratchColumns <= values.size(); ++row) {
        const int at = row * kScratchColumns;
        std::tie(rows[row].date, rows[row].weight, rows[row].change, rows[row].difference) =
            std::tie(values[at], values[at + 1], values[at + 2], values[at + 3]);
    }
}
