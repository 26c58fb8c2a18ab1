#pragma once
// The Recipe Select panel's cookbook: the shopping list keeps a cookbook
// number of its own in GColor4.Fil slot 11, apart from the recipe screen's,
// and shows the titles the recipe screen keeps in slots 2 to 9.
#include <QString>

// The number in slot 11. A slot that holds no cookbook number (an empty
// slot reads 0) gives cookbook 1, and nothing is written.
int ReadShoplistCookbook();
// Stores " n", as the recipe screen stores its own number. False when the
// write failed.
bool WriteShoplistCookbook(int cookbook);

// The status bar while the panel is open:
// "     Recipe Select from Cookbook #2 - Holidays".
QString RecipeSelectStatus(int cookbook, const QString& title);
// "No Desserts were found in Cookbook #2 - Holidays".
QString NoRecipesFoundText(const QString& typeName, int cookbook, const QString& title);
