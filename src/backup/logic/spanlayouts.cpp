#include "backup/logic/spanlayouts.h"

#include "backup/logic/backupmessages.h"
#include "backup/logic/diskinfo.h"
#include "cookbook/logic/cookbooknames.h"
#include "cookbook/logic/reciperecords.h"
#include "planner/logic/menudayrecord.h"
#include "planner/logic/menuplanfile.h"

namespace {

QStringList NameFiles(int cookbook)
{
    QStringList names;
    for (const RecipeType type : AllRecipeTypes())
        names << NameFileName(cookbook, type);
    return names;
}

std::function<QString(int)> Fixed(const QString& name)
{
    return [name](int) { return name; };
}

} // namespace

SpanLayout RecipeLayout(int cookbook)
{
    const QString backupSuffix = QStringLiteral(".bk%1").arg(cookbook);
    SpanLayout layout;
    layout.setName = QStringLiteral("Recipe");
    layout.infoFile = QStringLiteral("DiskInfo") + backupSuffix;
    layout.infoRecordLength = kDiskInfoRecord;
    layout.headFiles = NameFiles(cookbook);
    layout.streams = {
        {RecipeFileName(cookbook), Fixed(QStringLiteral("Recipe2") + backupSuffix), RecipeRecord::kSize},
        {ExtraFileName(cookbook), Fixed(QStringLiteral("Recipe4") + backupSuffix), RecipeExtraRecord::kSize},
    };
    layout.firstDiskSuffixes = {CookbookSuffix(cookbook), backupSuffix};
    layout.laterDiskSuffixes = {backupSuffix};
    layout.programSuffixes = {CookbookSuffix(cookbook)};
    layout.diskStatus = BackupStatus::MakingRecipeDisk;
    return layout;
}

SpanLayout MenuPlanLayout(int year)
{
    const QString yearFile = MenuPlanFileName(year);
    const QString backupFile = yearFile.chopped(4) + QStringLiteral(".Mb1");
    SpanLayout layout;
    layout.setName = QStringLiteral("MPlan");
    layout.infoFile = QStringLiteral("Disk%1.Mbk").arg(year);
    layout.infoRecordLength = kDiskInfoRecord;
    layout.streams = {{yearFile, Fixed(backupFile), MenuDayRecord::kSlotLength}};
    layout.mediumNames = {backupFile, layout.infoFile};
    layout.programNames = {yearFile};
    layout.diskStatus = BackupStatus::MakingMenuPlanDisk;
    return layout;
}

SpanLayout OldRecipeLayout()
{
    SpanLayout layout = RecipeLayout(1);
    layout.infoRecordLength = kOldDiskInfoRecord;
    layout.streams = {
        {RecipeFileName(1), [](int disk) { return QStringLiteral("Recipe2.bk%1").arg(disk); }, kOldRecipeRecord},
        {ExtraFileName(1), [](int disk) { return QStringLiteral("Recipe4.bk%1").arg(disk); }, kOldExtraRecord},
    };
    return layout;
}

SpanLayout LayoutOf(const BackupSet& set)
{
    return set.kind == BackupSetKind::MenuPlan ? MenuPlanLayout(set.year) : RecipeLayout(set.cookbook);
}
