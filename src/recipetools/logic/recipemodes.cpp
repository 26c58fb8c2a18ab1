#include "recipetools/logic/recipemodes.h"

RecipeCommandStates CommandStatesFor(const RecipeScreenState& state)
{
    RecipeCommandStates on;
    if (state.panelOpen || state.calculatorOpen || state.searchOpen || state.printOpen)
        return on; // a panel over the screen holds every command until it closes
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
