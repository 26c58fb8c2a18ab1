#pragma once
// Which of the eight cookbooks the recipe screen works in, and their titles:
// GColor4.Fil slot 1 holds the current number as text with a leading blank
// (" 2"), slots 2 to 9 the titles of cookbooks 1 to 8, up to 30 characters.
#include "common/filewrites.h"

#include <QString>
#include <QStringList>

inline constexpr int kCookbookTitleLength = 30;

// The number as it stands in slot 1, read with the leading-number rule: an
// empty slot gives 0 (no cookbook ticked; its files carry the suffix ".db0").
int ReadCurrentCookbook();
// Writes " n" to slot 1, through the name "Gcolor4.fil" that the cookbook
// menus use; the case-blind resolver makes it the same file as GColor4.Fil.
WriteOutcome WriteCurrentCookbook(int cookbook);

// The eight titles, blanks trimmed.
QStringList ReadCookbookTitles();
// Writes the eight titles to slots 2 to 9 in order, each cut to 30
// characters, stopping at the first slot that does not hold.
WriteOutcome WriteCookbookTitles(const QStringList& titles);

// "Cookbook #3 - " followed by the title.
QString CookbookMenuCaption(int cookbook, const QString& title);
// The recipe screen's window caption: the family name, then
// " Recipe File - Cookbook #", the number with its leading blank, " - " and
// the title: "Smith Recipe File - Cookbook # 2 - Holidays".
QString CookbookCaption(const QString& familyName, int cookbook, const QString& title);
