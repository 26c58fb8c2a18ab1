#pragma once
// All file names of the program are relative to the program folder, which is
// the current directory while the program runs.
#include <QString>

// The folder chosen at start: the executable's folder when it already holds
// Brindlepot data files (a portable or migrated folder), otherwise the
// per-user data folder. Chosen once and kept for the life of the process.
QString ProgramFolder();
// Pins the folder (tests give each test its own).
void SetProgramFolder(const QString& folder);
// Creates the folder when needed and makes it the current directory.
bool EnterProgramFolder();

// True when `folder` holds any of the program's data files, in any case.
bool FolderHoldsProgramData(const QString& folder);

// Data folders copied from Windows spell names in any case (GColor4.Fil,
// Gcolor4.fil, MENU1.FIL). An existing file whose name matches `name`
// case-blind is used; otherwise `name` itself, which is how it is created.
QString ResolveFileName(const QString& name);
