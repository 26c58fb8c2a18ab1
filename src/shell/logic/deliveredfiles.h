#pragma once
// The file set that comes with the program (background pictures, splash and
// about pictures, face icons, help pages, meal lists) lives inside the
// executable and is copied into the program folder on first use.
#include <QString>

// Copies every delivered file that the folder lacks (in any case of its name)
// and gives a folder without GColor4.Fil cookbook 1 as the current cookbook.
// Existing files are never overwritten. Returns the number of files made.
int InstallDeliveredFiles(const QString& folder);
