#pragma once
// Weigh-ins for the tests and the benchmarks: one a day from 1 January
// 2020, the weight falling a tenth of a pound a day from 200, dates in the
// calendar's form.
#include "tracker/logic/trackerentry.h"
#include "tracker/logic/weighins.h"

namespace samples {

inline QList<WeighInRow> DailyWeighIns(int count)
{
    QList<WeighInRow> rows;
    rows.reserve(count);
    for (int day = 0; day < count; ++day)
        rows.append(StoredRow(TrackerDateText(QDate(2020, 1, 1).addDays(day)), QString::number(200 - day / 10.0)));
    return rows;
}

} // namespace samples
