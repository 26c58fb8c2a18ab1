#pragma once
// The family name of QORBNAME.FIL slot 1, shown in captions and headings.
#include <QString>

inline constexpr int kFamilyNameLength = 15;

QString ReadFamilyName();
// Cuts the name to 15 characters, writes it and returns what was written.
QString WriteFamilyName(const QString& name);
// The main window's caption: " Brindlepot", with the family name in front.
QString MainCaption(const QString& familyName);
