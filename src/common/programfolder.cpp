#include "common/programfolder.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

QString& PinnedFolder()
{
    static QString folder;
    return folder;
}

// Files whose presence marks a folder as a Brindlepot data folder.
const QStringList kMarkerFiles = {
    "GColor1.Fil", "GColor2.Fil", "GColor3.Fil", "GColor4.Fil", "GQORB1.Fil",
    "QORBNAME.FIL", "SWR2.fil", "Recipe2.db1", "Recipe4.db1",
};

QString FindCaseBlind(const QDir& dir, const QString& fileName)
{
    // Folders count too: a folder in a file's place is found (and fails the
    // write loudly) rather than a second file made beside it in other case.
    const QStringList entries =
        dir.entryList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot | QDir::Hidden | QDir::System);
    for (const QString& entry : entries) {
        if (entry.compare(fileName, Qt::CaseInsensitive) == 0)
            return entry;
    }
    return {};
}

} // namespace

QString ProgramFolder()
{
    QString& folder = PinnedFolder();
    if (folder.isEmpty()) {
        const QString exeFolder = QCoreApplication::applicationDirPath();
        folder = FolderHoldsProgramData(exeFolder)
            ? exeFolder
            : QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    }
    return folder;
}

void SetProgramFolder(const QString& folder)
{
    PinnedFolder() = folder;
}

bool EnterProgramFolder()
{
    const QString folder = ProgramFolder();
    return QDir().mkpath(folder) && QDir::setCurrent(folder);
}

bool FolderHoldsProgramData(const QString& folder)
{
    const QDir dir(folder);
    if (folder.isEmpty() || !dir.exists())
        return false;
    for (const QString& marker : kMarkerFiles) {
        if (!FindCaseBlind(dir, marker).isEmpty())
            return true;
    }
    return false;
}

QString ResolveFileName(const QString& name)
{
    if (name.isEmpty() || QFileInfo::exists(name))
        return name;
    const QFileInfo info(name);
    const QString found = FindCaseBlind(info.dir(), info.fileName());
    if (found.isEmpty())
        return name;
    return info.path() == "." && !name.startsWith("./") ? found : info.dir().filePath(found);
}
