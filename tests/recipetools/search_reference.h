#pragma once
// The two searches walked the slow way, step by step as the recipe screen
// reads its files: every name slot read on its own, every recipe read with
// ReadRecipe into a record buffer, every text upper-cased character by
// character. The product's searches must give exactly these rows; this
// walk is kept plain so that it is easy to check by eye.
#include "recipetools/logic/recipesearch.h"

#include <QList>
#include <QString>
#include <array>

namespace reference {

// The classic runtime's upper case of code-page characters.
QString UpperCase(QStringView text);

QList<SearchHit> SearchByName(int cookbook, const QString& searchText);

QList<SearchHit> SearchByIngredient(int cookbook, const IngredientQuery& query,
                                    const std::array<QString, kRecipeRows>& bufferIngredients);

} // namespace reference
