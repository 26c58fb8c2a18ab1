#pragma once
// The file sets the backup screen copies, chosen by the caller's mode: an
// even code backs a set up, the next odd code restores it.
//
//   0 / 1    recipes of cookbook N   Recipe2.dbN, Recipe4.dbN, 22 name files
//   14 / 15  Basic food storage      FdsB1..4.Fil        -> .Fds
//   16 / 17  Emergency food storage  EmerE1/3/4.Fil      -> .EmE
//   18 / 19  Additional food storage AddA1/3/4.Fil       -> .AdA
//   34 / 35  menu plan of year Y     " Y.Mnu"            -> " Y.Mb1", "DiskY.Mbk"
//   42 / 43  weight tracker          WeightTrker.Fil and each listed <name>.Fil -> .Wtp
//
// Recipes and menu plans are copied record by record and may span several
// media; the other sets are copied file by file.
#include <QList>
#include <QString>
#include <optional>

enum class BackupSetKind { Recipes, Basic, Emergency, Additional, MenuPlan, WeightTracker };

// What the caller names besides the mode: the cookbook on screen (recipes)
// and the year on screen (menu plans).
struct BackupTarget {
    int cookbook = 1;
    int year = 0;
};

// A file of the program folder and its name on the backup medium.
struct BackupFile {
    QString programName;
    QString mediumName;
    bool operator==(const BackupFile&) const = default;
};

struct BackupSet {
    BackupSetKind kind = BackupSetKind::Recipes;
    bool restore = false;
    int cookbook = 1;
    int year = 0;
    // The set's name in the screen's title, text and restore button.
    QString name;
    // The word of the "Delete Files" question, backing up and restoring.
    QString backupWord;
    QString restoreWord;
    // The status while a file-copy set is restored.
    QString restoreStatus;
    // File-copy sets: the files in copy order (the weight tracker: the list
    // only; the individuals come from it).
    QList<BackupFile> files;
};

inline constexpr int kRecipeBackupMode = 0;
inline constexpr int kWeightTrackerBackupMode = 42;

// The set of a mode; nothing for a code that no screen of this program sets.
std::optional<BackupSet> BackupSetFor(int mode, BackupTarget target);

bool IsFileCopySet(BackupSetKind kind);

// The weight tracker's list of individuals and an individual's file name.
inline constexpr const char* kWeightListFile = "WeightTrker.Fil";
inline constexpr const char* kWeightListBackup = "WeightTrker.Wtp";
// A name read from a list becomes a file name only when it cannot leave the
// folder: no path separator, no "..", no control character, not empty.
bool IsSafeIndividualName(const QString& name);
