#include "common/writefailure.h"

#include <QDir>
#include <QFileInfo>

Message WriteFailedMessage(const QString& fileName)
{
    const QString path = QDir::toNativeSeparators(QFileInfo(fileName).absoluteFilePath());
    return {QStringLiteral("File Not Saved"),
            QStringLiteral("The file \"%1\" could not be written.\n"
                           "What it held before is unchanged, and what you entered is still on the screen.\n\n"
                           "Check that the folder may be written to and that the disk is not full, "
                           "then try again.")
                .arg(path),
            Buttons::Ok, Icon::Exclamation, 1};
}
