#pragma once
// The family name of QORBNAME.FIL slot 1, shown in captions and headings.
#include <QString>
#include <optional>

inline constexpr int kFamilyNameLength = 15;

QString ReadFamilyName();
// Cuts the name to 15 characters, writes it and returns what was written;
// nothing when the write did not hold.
std::optional<QString> WriteFamilyName(const QString& name);
// The main window's caption: " Brindlepot", with the family name in front.
QString MainCaption(const QString& familyName);
