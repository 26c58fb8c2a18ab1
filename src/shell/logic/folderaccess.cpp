#include "shell/logic/folderaccess.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryFile>

bool FolderTakesWrites(const QString& folder)
{
    if (!QFileInfo(folder).isDir())
        return false;
    QTemporaryFile probe(QDir(folder).filePath(QStringLiteral(".brindlepot-probe-XXXXXX")));
    return probe.open() && probe.write("x", 1) == 1 && probe.flush();
}

std::optional<Message> ReadOnlyFolderWarning(const QString& folder)
{
    if (FolderTakesWrites(folder))
        return std::nullopt;
    return Message{QStringLiteral("Brindlepot"),
                   QStringLiteral("The data folder\n%1\ncannot be written to.\n\n"
                                  "Brindlepot opens so that you can read your recipes and lists, but nothing you "
                                  "change can be saved until the folder can be written to again.")
                       .arg(QDir::toNativeSeparators(QFileInfo(folder).absoluteFilePath())),
                   Buttons::Ok, Icon::Exclamation, 1};
}
