#include "planner/logic/menuitemlist.h"

#include "common/quotedlinefile.h"

#include <algorithm>

namespace {

bool ComesBefore(const QString& a, const QString& b)
{
    return QString::compare(a, b, Qt::CaseInsensitive) < 0;
}

} // namespace

QString MenuListFileName(Meal meal)
{
    return QStringLiteral("Menu%1.Fil").arg(int(meal));
}

MenuItemList::MenuItemList(const QStringList& values) : items_(values.mid(0, kMenuListCapacity))
{
    std::stable_sort(items_.begin(), items_.end(), ComesBefore);
}

MenuItemList MenuItemList::Load(Meal meal)
{
    return MenuItemList(ReadQuotedLineFile(MenuListFileName(meal)));
}

bool MenuItemList::save(Meal meal) const
{
    return WriteQuotedLineFile(MenuListFileName(meal), items_);
}

int MenuItemList::find(const QString& text) const
{
    const QString wanted = text.toUpper();
    for (int i = 0; i < count(); ++i) {
        if (items_[i].toUpper() == wanted)
            return i;
    }
    return -1;
}

bool MenuItemList::insert(const QString& text)
{
    if (isFull())
        return false;
    items_.insert(std::upper_bound(items_.begin(), items_.end(), text, ComesBefore), text);
    return true;
}

bool MenuItemList::remove(const QString& text)
{
    const int at = find(text);
    if (at < 0)
        return false;
    items_.removeAt(at);
    return true;
}

LineOffer OfferLine(MenuItemList& list, const QString& line)
{
    const QString trimmed = RightTrimmed(line);
    if (trimmed.size() < 2)
        return LineOffer::TooShort;
    if (list.find(trimmed) >= 0)
        return LineOffer::Listed;
    if (!list.insert(trimmed))
        return LineOffer::ListFull;
    return LineOffer::Added;
}

namespace {

QString MealName(Meal meal)
{
    switch (meal) {
    case Meal::Breakfast:
        return QStringLiteral("Breakfast");
    case Meal::Lunch:
        return QStringLiteral("Lunch");
    case Meal::Dinner:
        return QStringLiteral("Dinner");
    }
    return {};
}

} // namespace

QString EditListHeading(Meal meal)
{
    return QStringLiteral("Edit %1 List").arg(MealName(meal));
}

QString EditListInstructions(Meal meal)
{
    const QString word = MealName(meal) + QStringLiteral(" Item");
    return QStringList{QStringLiteral("To Add a New ") + word + u':',
                       QStringLiteral("Type New ") + word + QStringLiteral(" and then"),
                       QStringLiteral("Press the Enter Key."),
                       QString(),
                       QStringLiteral("To Delete an Existing ") + word + u':',
                       QStringLiteral("First select ") + word + QStringLiteral(" from Drop-Down list."),
                       QStringLiteral("Then Click Delete Command Button")}
        .join(u'\n');
}
