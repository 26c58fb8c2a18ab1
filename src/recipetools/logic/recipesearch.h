#pragma once
// Searching the open cookbook by a word in a recipe's name or by up to three
// ingredient words. There is no index: a search walks the name files type by
// type, in type-list order, and the ingredient search reads the recipe of
// every entry it meets.
//
// The results are exactly those of the walk done record by record, as the
// recipe screen reads: each name file slot by slot, each recipe with
// ReadRecipe. How the files are read here is only a matter of speed.
//
// Matching is a plain substring test on upper-cased text, no word
// boundaries: the text searched gets a blank in front (and, for an
// ingredient, one behind), so a search word that starts with a blank is
// anchored at the start of a word, and a single blank matches everything.
#include "cookbook/logic/cookbooknames.h"
#include "recipetools/logic/recipelifecycle.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <array>
#include <optional>

// One grid row. `entry` is the name slot's text, so it still carries the
// record number from character 52 on: left-trimmed from the name search, as
// read from the ingredient search.
struct SearchHit {
    QString typeName;
    QString entry;

    bool operator==(const SearchHit&) const = default;
};

// The messages and labels of the search panels.
inline const QString kSearchTitle = QStringLiteral("Search");
inline const QString kNoMatchingRecipes = QStringLiteral("No Matching Recipes were found!");
inline const QString kRecipeMatchesLabel = QStringLiteral("Number of Recipe Matches Found: ");
inline const QString kNoMatchingIngredients = QStringLiteral("No Matching Ingredients were found!");
inline const QString kAllRecipesMatchesLabel = QStringLiteral("All Recipes - Number of Ingredient Matches Found: ");
inline const QString kByTypeMatchesLabel = QStringLiteral("By Type - Number of Ingredient Matches Found: ");
inline const QString kSelectTypeMessage = QStringLiteral("Please Select Type of Recipe to Search");
inline const QString kEnterIngredientMessage = QStringLiteral("Please enter at least one ingredient to Search");

// "View All Recipes" searches for this: every entry has a blank in front.
inline const QString kViewAllText = QStringLiteral(" ");

QString NameSearchCountText(qsizetype hits);
QString IngredientSearchCountText(bool byType, qsizetype hits);

// Upper case as the classic runtime makes it of code-page bytes: a to z,
// the accented letters from 0xE0 to 0xFE except the division sign, and
// š, œ, ž, ÿ to their capitals. Nothing else changes: not µ and not ß, which
// QString::toUpper would turn into "Μ" and "SS", outside the code page or
// longer than the text.
QByteArray UpperCaseCp1252(QByteArrayView bytes);

// --- Name search ---------------------------------------------------------

// Every non-blank name slot of every type, each type's entries in the
// sorted order of the screen's lists, whose text with a blank in front
// contains `searchText`, case ignored. The empty text finds nothing (the
// screen does not search for it); kViewAllText finds every recipe.
QList<SearchHit> SearchByName(int cookbook, const QString& searchText);

// --- Ingredient search ---------------------------------------------------

// The three boxes as they stand after CompactBoxes, the option of the
// "Multi-Ingredient Options" frame, and the type for "&Search By Type"
// (none: all 22 types).
struct IngredientQuery {
    QString box1;
    QString box2;
    QString box3;
    bool allOfTerms = true;  // "Must contain All Ingredients"; false: "At least One of the Ingredients"
    std::optional<RecipeType> onlyType;
};

// A box is blank when nothing but blanks stand in it.
bool IsBlankBox(const QString& box);

// Box 3 moves up into a blank box 2, then box 2 into a blank box 1, each
// leaving its box empty. Done once per command: it is not idempotent ("",
// "a", "b" gives "a", "", "b", and compacting that again would move "b").
void CompactBoxes(QString& box1, QString& box2, QString& box3);

// The frame "Multi-Ingredient Options" shows while box 2 or box 3 holds
// text other than blanks.
bool MultiIngredientFrameShown(const QString& box2, const QString& box3);
// 3 when boxes 2 and 3 both hold text, 2 when box 2 does and box 3 not,
// else 1. Blanks alone are no text, as for the frame.
int TermCount(const QString& box2, const QString& box3);
// 0 single term (frame hidden), 1 all of the terms, 2 any of them.
int MatchMode(bool frameShown, bool allOfTerms);

// The messages that stop an ingredient search, in the order they are shown
// (title kSearchTitle): the type message for "&Search By Type" with no type
// picked, then the ingredient message when box 1 is empty. The search runs
// only when there is none. Call after CompactBoxes.
QStringList IngredientSearchRefusals(const IngredientQuery& query, bool byType);

// The ingredient walk. For each type whose name slot 1 is not empty, every
// slot of its name file is a list entry (cleared slots too); in sorted order
// each entry's recipe is read by its record number and its 20 ingredient
// rows are searched for the terms. An entry whose record number is 0 reads
// nothing, so the ingredients of the recipe read before it are searched
// again; before the first read those are `bufferIngredients`, the rows of
// the screen's record buffer (each taken as the record holds it: its first
// 35 characters in the code page).
QList<SearchHit> SearchByIngredient(int cookbook, const IngredientQuery& query,
                                    const std::array<QString, kRecipeRows>& bufferIngredients);

// The order of the screen's sorted lists (SortEntries) for texts of the
// code page: true when `a` sorts before `b`. Exposed for the tests.
bool SortsBeforeCp1252(QByteArrayView a, QByteArrayView b);
