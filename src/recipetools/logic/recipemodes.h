#pragma once
// The recipe screen's modes and which commands each allows. One function
// decides every command's enabled state, so the button, the menu entry and
// the toolbar button of a command can never disagree.
enum class RecipeMode {
    Idle,    // opened, after a save or a delete: nothing on the screen
    Create,  // a new recipe being typed
    View,    // a recipe shown (or the pick list open to choose one)
    Modify,  // the shown recipe being edited
};

// The panel open over the screen; one at a time. Conversion is the progress
// panel of an older recipe file being converted.
enum class RecipePanel { None, Rename, Calculator, Search, Print, Titles, Conversion };

struct RecipeScreenState {
    RecipeMode mode = RecipeMode::Idle;
    RecipePanel panel = RecipePanel::None;
    bool recipeShown = false;           // a recipe was loaded from its slot
    bool recipeChanged = false;         // RecipeChanged
    bool amountsRecalculated = false;   // AmountsRecalculated is 9
    bool cookbookHasRecipes = false;    // any slot of the cookbook is used
};

struct RecipeCommandStates {
    bool create = false;
    bool view = false;
    bool modify = false;
    bool save = false;
    bool deleteRecipe = false;
    bool rename = false;
    bool print = false;
    bool calculate = false;
    bool search = false;
    bool spelling = false;
    bool copy = false;
    bool exportRecipe = false;
    bool importRecipe = false;
    bool cookbookMenus = false;         // "Select Cook&book" and "Cookbook &Titles"
    bool worksheet = false;             // "Print &Worksheet"
    bool exit = false;                  // "E&xit"
    bool pickLists = false;             // the type list and the recipe pick list

    bool operator==(const RecipeCommandStates&) const = default;
};

RecipeCommandStates CommandStatesFor(const RecipeScreenState& state);

// The caption of the title strip in each mode.
const char* ModeCaption(RecipeMode mode);
// The title strip while the amount calculator is open.
const char* CalculatorCaption();
