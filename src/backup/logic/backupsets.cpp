#include "backup/logic/backupsets.h"

#include "cookbook/logic/cookbooknames.h"
#include "planner/logic/menuplanfile.h"

namespace {

QList<BackupFile> RenamedFiles(const QStringList& stems, const QString& mediumSuffix)
{
    QList<BackupFile> files;
    for (const QString& stem : stems)
        files << BackupFile{stem + QStringLiteral(".Fil"), stem + mediumSuffix};
    return files;
}

BackupSet StorageSet(BackupSetKind kind, const QString& kindWord, const QString& restoreWord,
                     const QStringList& stems, const QString& mediumSuffix)
{
    BackupSet set;
    set.kind = kind;
    set.name = kindWord + QStringLiteral(" Food Storage Files");
    set.backupWord = kindWord;
    set.restoreWord = restoreWord;
    set.restoreStatus = QStringLiteral("Restoring ") + set.name;
    set.files = RenamedFiles(stems, mediumSuffix);
    return set;
}

std::optional<BackupSet> BackupSetOf(int backupCode, BackupTarget target)
{
    BackupSet set;
    switch (backupCode) {
    case kRecipeBackupMode:
        set.kind = BackupSetKind::Recipes;
        set.name = QStringLiteral("Recipes from Cookbook # %1").arg(target.cookbook);
        set.backupWord = set.restoreWord = QStringLiteral("Recipe");
        set.restoreStatus = QStringLiteral("Restoring Recipe Files");
        return set;
    case 14:
        return StorageSet(BackupSetKind::Basic, QStringLiteral("Basic"), QStringLiteral("Basic"),
                          {"FdsB1", "FdsB2", "FdsB3", "FdsB4"}, QStringLiteral(".Fds"));
    case 16:
        return StorageSet(BackupSetKind::Emergency, QStringLiteral("Emergency"), QStringLiteral("Emerg."),
                          {"EmerE1", "EmerE3", "EmerE4"}, QStringLiteral(".EmE"));
    case 18:
        return StorageSet(BackupSetKind::Additional, QStringLiteral("Additional"), QStringLiteral("Addt'l."),
                          {"AddA1", "AddA3", "AddA4"}, QStringLiteral(".AdA"));
    case 34:
        set.kind = BackupSetKind::MenuPlan;
        set.name = QStringLiteral(" Menu Planner File");
        set.restoreWord = QStringLiteral("Menu Planner");
        set.restoreStatus = QStringLiteral("Restoring Menu Planner Files");
        return set;
    case kWeightTrackerBackupMode:
        set.kind = BackupSetKind::WeightTracker;
        set.name = QStringLiteral("Weight Tracker Files");
        set.backupWord = QStringLiteral("Weight Tracker");
        // The restore question has said "Auto" since the tracker took over
        // another set's routine; users know it so.
        set.restoreWord = QStringLiteral("Auto");
        set.restoreStatus = QStringLiteral("Restoring Weight Tracker Files");
        set.files = {{QString::fromLatin1(kWeightListFile), QString::fromLatin1(kWeightListBackup)}};
        return set;
    default:
        return std::nullopt;
    }
}

} // namespace

std::optional<BackupSet> BackupSetFor(int mode, BackupTarget target)
{
    if (mode < 0)
        return std::nullopt;
    std::optional<BackupSet> set = BackupSetOf(mode - mode % 2, target);
    if (!set)
        return std::nullopt;
    set->restore = mode % 2 == 1;
    set->cookbook = target.cookbook;
    set->year = target.year;
    return set;
}

bool IsFileCopySet(BackupSetKind kind)
{
    return kind != BackupSetKind::Recipes && kind != BackupSetKind::MenuPlan;
}

bool IsSafeIndividualName(const QString& name)
{
    if (name.trimmed().isEmpty() || name.contains(QLatin1String("..")))
        return false;
    for (const QChar c : name) {
        if (c == u'/' || c == u'\\' || c.unicode() < 0x20 || c.unicode() == 0x7f)
            return false;
    }
    return true;
}
