#pragma once
// Who the program is to the desktop: its application id (the name of its
// desktop entry, its icon and its AppStream metainfo, all installed under
// that one name) and its icon, embedded from the same hicolor set that
// `cmake --install` lays out.
#include <QIcon>
#include <QList>
#include <QString>

// "io.github.brindlepot.Brindlepot"; the build takes it from CMakeLists.txt.
QString ProgramAppId();

// The pixel sizes the embedded icon holds, smallest first.
QList<int> ProgramIconSizes();

// The program's icon at every embedded size; null only when the resources
// were not linked in.
QIcon ProgramIcon();

// Gives every window and dialog the program's icon (they inherit the
// application's window icon) and names the desktop entry, so the desktop
// pairs the running windows with the menu entry. Called once in main.
void InstallProgramIdentity();
