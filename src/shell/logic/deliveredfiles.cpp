#include "shell/logic/deliveredfiles.h"

#include "common/programfolder.h"
#include "shell/settings/settingsregistry.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>

namespace {

const QString kResourceRoot = QStringLiteral(":/delivered");

// Relative to the current folder.
bool ExistsCaseBlind(const QString& relativePath)
{
    return QFile::exists(ResolveFileName(relativePath));
}

} // namespace

int InstallDeliveredFiles(const QString& folder)
{
    const QDir target(folder);
    if (!QDir().mkpath(folder))
        return 0;
    const QString previous = QDir::currentPath();
    QDir::setCurrent(folder); // the case-blind resolver works in the current folder

    int made = 0;
    QDirIterator it(kResourceRoot, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        const QString source = it.next();
        const QString relative = source.mid(kResourceRoot.size() + 1);
        if (ExistsCaseBlind(relative))
            continue;
        const QString destination = target.filePath(relative);
        QDir().mkpath(QFileInfo(destination).path());
        if (QFile::copy(source, destination)) {
            // Copies out of the resources are read-only; the user's files are not.
            QFile::setPermissions(destination, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup
                                                   | QFile::ReadOther);
            ++made;
        }
    }
    if (!ExistsCaseBlind(QString::fromLatin1(GColor4.name))) {
        if (WriteSlotText(Settings::CurrentCookbook, u" 1"))
            ++made;
    }
    QDir::setCurrent(previous);
    return made;
}
