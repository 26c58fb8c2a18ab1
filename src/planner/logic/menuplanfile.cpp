#include "planner/logic/menuplanfile.h"

#include "common/numbertext.h"
#include "common/programfolder.h"
#include "common/randomaccessfile.h"

#include <QFileInfo>

int MenuSlotOf(QDate date)
{
    const int day = date.day();
    switch (date.month()) {
    case 10:
        return 320 + day;
    case 11:
        return 360 + day;
    case 12:
        return 400 + day;
    default:
        // Joined without the sign blanks that Str would put in front of each
        // number: " 15" + " 3" would read as 15.
        return int(Val(ShortestText(day) + ShortestText(date.month())));
    }
}

MenuPlace MenuPlaceOf(QDate date)
{
    if (!date.isValid())
        return {};
    return {date.year(), MenuSlotOf(date)};
}

QString MenuPlanFileName(int year)
{
    return Str(year) + QStringLiteral(".Mnu");
}

MenuDayRecord ReadDay(const MenuPlace& place)
{
    if (!place.isValid())
        return {};
    RandomAccessFile file(MenuPlanFileName(place.year), MenuDayRecord::kSlotLength);
    return MenuDayRecord::FromBytes(file.read(place.slot));
}

MenuDayRecord ReadDay(QDate date)
{
    return ReadDay(MenuPlaceOf(date));
}

bool SaveDay(const MenuPlace& place, const MenuLines& lines)
{
    if (!place.isValid())
        return false;
    RandomAccessFile file(MenuPlanFileName(place.year), MenuDayRecord::kSlotLength);
    return file.writePart(place.slot, MenuDayRecord::Saved(lines).toBytes());
}

qint64 YearFileLength(int year)
{
    const QFileInfo info(ResolveFileName(MenuPlanFileName(year)));
    return info.isFile() ? info.size() : 0;
}
