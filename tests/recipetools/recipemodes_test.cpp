// Which commands each state of the recipe screen allows: one named row per
// state, naming the commands that are on; every other one is off.
#include "recipetools/logic/recipemodes.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace {

using enum RecipeMode;
using enum RecipePanel;

// The names of the commands a state leaves on, in a fixed order.
QStringList EnabledCommands(const RecipeCommandStates& on)
{
    const std::pair<const char*, bool> named[] = {
        {"create", on.create},         {"view", on.view},
        {"modify", on.modify},         {"save", on.save},
        {"delete", on.deleteRecipe},   {"rename", on.rename},
        {"print", on.print},           {"calculate", on.calculate},
        {"search", on.search},         {"spelling", on.spelling},
        {"copy", on.copy},             {"export", on.exportRecipe},
        {"import", on.importRecipe},   {"cookbooks", on.cookbookMenus},
        {"worksheet", on.worksheet},   {"exit", on.exit},
        {"lists", on.pickLists},
    };
    QStringList names;
    for (const auto& [name, enabled] : named) {
        if (enabled)
            names << QString::fromLatin1(name);
    }
    return names;
}

struct Row {
    const char* name;
    RecipeScreenState state;
    QStringList enabled;
};

} // namespace

TEST(RecipeModes, CommandStatesByState)
{
    const Row rows[] = {
        {"idle", {.mode = Idle}, {"create", "view", "search", "cookbooks", "worksheet", "exit", "lists"}},
        {"create, nothing typed", {.mode = Create, .cookbookHasRecipes = true},
         {"view", "search", "import", "cookbooks", "worksheet", "exit", "lists"}},
        {"create in an empty cookbook", {.mode = Create},
         {"search", "import", "cookbooks", "worksheet", "exit", "lists"}},
        {"create, typed", {.mode = Create, .recipeChanged = true, .cookbookHasRecipes = true},
         {"view", "save", "search", "spelling", "import", "cookbooks", "worksheet", "exit", "lists"}},
        {"view, list open", {.mode = View}, {"create", "search", "cookbooks", "worksheet", "exit", "lists"}},
        {"view, recipe shown", {.mode = View, .recipeShown = true},
         {"create", "modify", "delete", "rename", "print", "calculate", "search", "copy", "export", "cookbooks",
          "worksheet", "exit", "lists"}},
        {"view after the calculator", {.mode = View, .recipeShown = true, .amountsRecalculated = true},
         {"create", "modify", "save", "delete", "rename", "print", "calculate", "search", "copy", "export",
          "cookbooks", "worksheet", "exit", "lists"}},
        {"modify", {.mode = Modify, .recipeShown = true},
         {"create", "delete", "rename", "print", "calculate", "search", "cookbooks", "worksheet", "exit", "lists"}},
        {"modify, typed", {.mode = Modify, .recipeShown = true, .recipeChanged = true},
         {"create", "save", "delete", "rename", "print", "calculate", "search", "spelling", "copy", "cookbooks",
          "worksheet", "exit", "lists"}},
        // Off: what creates, shows, changes, saves, prints or copies a recipe,
        // and the lists. As the mode has them: rename, search, export, the
        // cookbook menus, the worksheet and exit.
        {"calculator open", {.mode = View, .panel = Calculator, .recipeShown = true},
         {"rename", "search", "export", "cookbooks", "worksheet", "exit"}},
        {"calculator open after a calculation",
         {.mode = View, .panel = Calculator, .recipeShown = true, .amountsRecalculated = true},
         {"rename", "search", "export", "cookbooks", "worksheet", "exit"}},
        {"calculator open in modify, typed",
         {.mode = Modify, .panel = Calculator, .recipeShown = true, .recipeChanged = true},
         {"rename", "search", "cookbooks", "worksheet", "exit"}},
        {"rename open", {.mode = View, .panel = Rename, .recipeShown = true}, {}},
        {"search open", {.mode = View, .panel = Search, .recipeShown = true}, {"exit"}},
        {"print open", {.mode = View, .panel = Print, .recipeShown = true}, {"exit"}},
        {"titles open", {.mode = Idle, .panel = Titles}, {"exit"}},
        {"older file being converted", {.mode = Idle, .panel = Conversion}, {}},
        {"older file converted from under the calculator",
         {.mode = View, .panel = Conversion, .recipeShown = true, .amountsRecalculated = true}, {}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(EnabledCommands(CommandStatesFor(row.state)), row.enabled);
    }
}

TEST(RecipeModes, TitleStripCaptions)
{
    EXPECT_STREQ(ModeCaption(RecipeMode::Idle), "Recipe Files");
    EXPECT_STREQ(ModeCaption(RecipeMode::Create), "Create Recipe");
    EXPECT_STREQ(ModeCaption(RecipeMode::View), "View Recipe");
    EXPECT_STREQ(ModeCaption(RecipeMode::Modify), "Modify Recipe");
    EXPECT_STREQ(CalculatorCaption(), "Calculate Amts.");
}
