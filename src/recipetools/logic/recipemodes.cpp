#include "recipetools/logic/recipemodes.h"

namespace {

RecipeCommandStates ByMode(const RecipeScreenState& state)
{
    RecipeCommandStates on;
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
    on.exit = true;
    on.pickLists = true;
    return on;
}

} // namespace

RecipeCommandStates CommandStatesFor(const RecipeScreenState& state)
{
    RecipeCommandStates on = ByMode(state);
    switch (state.panel) {
    case RecipePanel::None:
        break;
    case RecipePanel::Calculator:
        // The calculator holds what would create, show, change, save, print
        // or copy a recipe; search, rename, the worksheet and the cookbooks
        // stay as the mode has them. Choosing another type or recipe under
        // it would leave the panel rescaling with the yield and work list of
        // the recipe it was opened on.
        on.create = on.view = on.modify = on.save = on.deleteRecipe = false;
        on.print = on.calculate = on.spelling = on.copy = false;
        on.pickLists = false;
        break;
    case RecipePanel::Rename:
    case RecipePanel::Search:
    case RecipePanel::Print:
    case RecipePanel::Titles:
        // These panels hold every command until they close; the lists are
        // chosen by the panel itself (a search's hit) or not at all.
        on = RecipeCommandStates{};
        // Leaving the screen stays possible, except from the rename panel,
        // which is left by its own buttons.
        on.exit = state.panel != RecipePanel::Rename;
        break;
    case RecipePanel::Conversion:
        // Nothing at all while an older recipe file is converted: the
        // conversion lets the window paint as it goes, and a second command
        // would start a conversion inside the first.
        on = RecipeCommandStates{};
        break;
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
