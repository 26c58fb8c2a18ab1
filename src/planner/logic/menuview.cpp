#include "planner/logic/menuview.h"

#include "common/dates.h"
#include "common/numbertext.h"

#include <algorithm>

namespace {

// One meal's cell: its lines right-trimmed, the blank ones left out.
QString MealCell(const MenuDayRecord& record, Meal meal, int& count)
{
    QStringList lines;
    const int first = (int(meal) - 1) * kLinesPerMeal;
    for (int i = first; i < first + kLinesPerMeal; ++i) {
        const QString line = record.line(i);
        if (!line.isEmpty())
            lines.append(line);
    }
    count = int(lines.size());
    return lines.join(u'\n');
}

} // namespace

QString ViewDayText(QDate date, const QString& dateFormatMode)
{
    return FormatDate(date, dateFormatMode == QLatin1String("OTHER") ? QStringView(u"ddd - dd mmm yyyy")
                                                                       : QStringView(u"ddd - mmm dd, yyyy"));
}

bool MenuView::found() const
{
    return std::any_of(rows.begin(), rows.end(), [](const MenuViewRow& row) { return row.found; });
}

QString NoMenuItemsText()
{
    return QStringLiteral("No menu items were found");
}

MenuViewRow ViewRowOf(QDate date, const MenuDayRecord& record, const QString& dateFormatMode)
{
    MenuViewRow row;
    row.date = date;
    row.day = ViewDayText(date, dateFormatMode);
    if (!record.isFull()) {
        row.breakfast = NoMenuItemsText();
        return row;
    }
    row.found = true;
    int counts[3] = {};
    row.breakfast = MealCell(record, Meal::Breakfast, counts[0]);
    row.lunch = MealCell(record, Meal::Lunch, counts[1]);
    row.dinner = MealCell(record, Meal::Dinner, counts[2]);
    row.largestCount = *std::max_element(std::begin(counts), std::end(counts));
    return row;
}

MenuView BuildMenuView(QDate start, int following, const QString& dateFormatMode, const DayReader& read)
{
    MenuView view;
    for (int i = 0; i <= following; ++i) {
        const QDate date = start.addDays(i);
        view.rows.append(ViewRowOf(date, read(date), dateFormatMode));
    }
    return view;
}

int FollowingDaysOf(const QString& listText)
{
    const int days = int(Val(listText));
    return days < 1 ? 1 : std::min(days, kLongestRun);
}
