#pragma once
// What the weight tracker keeps in the settings files, read when the screen
// opens and written at once by the commands that change it: the date
// checker (GColor1.Fil slot 83: "OFF" is off, anything else on), the trend
// display (GColor4.Fil slot 34: "OFF" hides it, "ON" or blank shows it),
// and the folder of the last picture chosen (GColor14.Fil, one quoted value).
#include "common/filewrites.h"

#include <QString>

inline constexpr const char* kPictureFolderFile = "GColor14.Fil";

bool ReadDateCheckerOn();
// "OFF", or an empty text when it is turned on.
WriteOutcome StoreDateCheckerOn(bool on);

bool ReadTrendDisplayOn();
// "ON" or "OFF".
WriteOutcome StoreTrendDisplayOn(bool on);

// Empty when the file is missing or blank.
QString ReadPictureFolder();
WriteOutcome StorePictureFolder(const QString& folder);
