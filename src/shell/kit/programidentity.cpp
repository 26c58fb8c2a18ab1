#include "shell/kit/programidentity.h"

#include <QApplication>
#include <QFile>

#ifndef BRINDLEPOT_APP_ID
#error "BRINDLEPOT_APP_ID comes from CMakeLists.txt"
#endif

QString ProgramAppId()
{
    return QStringLiteral(BRINDLEPOT_APP_ID);
}

QList<int> ProgramIconSizes()
{
    return {16, 24, 32, 48, 64, 128, 256};
}

QIcon ProgramIcon()
{
    QIcon icon;
    for (const int size : ProgramIconSizes()) {
        const QString file = QStringLiteral(":/icons/hicolor/%1x%1/apps/%2.png").arg(size).arg(ProgramAppId());
        if (QFile::exists(file))
            icon.addFile(file, QSize(size, size));
    }
    return icon;
}

void InstallProgramIdentity()
{
    QApplication::setWindowIcon(ProgramIcon());
    QGuiApplication::setDesktopFileName(ProgramAppId());
}
