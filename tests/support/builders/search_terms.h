#pragma once
// An ingredient search as the three boxes and the match option give it.
#include "recipetools/logic/recipesearch.h"

#include <QString>

namespace samples {

inline IngredientQuery Terms(const QString& box1, const QString& box2 = {}, const QString& box3 = {},
                             bool allOf = true)
{
    IngredientQuery query;
    query.box1 = box1;
    query.box2 = box2;
    query.box3 = box3;
    query.allOfTerms = allOf;
    return query;
}

} // namespace samples
