#include "recipetools/logic/recipemodes.h"

RecipeCommandStates CommandStatesFor(const RecipeScreenState& state)
{
    RecipeCommandStates on;
    // Choosing another type or recipe under the calculator would leave the
    // panel rescaling with the yield and work list of the recipe it was
    // opened on; a search chooses them itself when it shows a hit.
    on.pickLists = !state.calculatorOpen && !state.searchOpen;
    if (state.panelOpen || state.searchOpen || state.printOpen)
        return on; // the rename, search and print panels hold every command until they close
    const bool editing = state.mode == RecipeMode::Create || state.mode == RecipeMode::Modify;
    const bool shown = state.recipeShown
        && (state.mode == RecipeMode::View || state.mode == RecipeMode::Modify);
    on.create = state.mode != RecipeMode::Create;
    // From Create, View only leads somewhere when the cookbook has recipes.
    on.view = state.mode == RecipeMode::Idle || (state.mode == RecipeMode::Create && state.cookbookHasRecipes);
    on.modify = shown && state.mode == RecipeMode::View;
    on.save = state.recipeChanged || state.amountsRecalculated;
    on.spelling = editing && state.recipeChanged;
    on.deleteRecipe = shown;
    on.rename = shown;
    on.print = shown;
    on.calculate = shown;
    on.search = true;
    on.worksheet = true;
    // Copy and export work on a viewed recipe (copy also once a modified one
    // has changes); import only on a new one.
    on.copy = shown && (state.mode == RecipeMode::View || state.recipeChanged);
    on.exportRecipe = shown && state.mode == RecipeMode::View;
    on.importRecipe = state.mode == RecipeMode::Create;
    on.cookbookMenus = true;
    if (state.calculatorOpen) {
        // The calculator holds what would create, show, change, save, print
        // or copy a recipe; search, rename, the worksheet and the cookbooks
        // stay as the mode has them.
        on.create = false;
        on.view = false;
        on.modify = false;
        on.save = false;
        on.deleteRecipe = false;
        on.print = false;
        on.calculate = false;
        on.spelling = false;
        on.copy = false;
    }
    return on;
}

const char* ModeCaption(RecipeMode mode)
{
    switch (mode) {
    case RecipeMode::Create: return "Create Recipe";
    case RecipeMode::View: return "View Recipe";
    case RecipeMode::Modify: return "Modify Recipe";
    case RecipeMode::Idle: break;
    }
    return "Recipe Files";
}

const char* CalculatorCaption()
{
    return "Calculate Amts.";
}
