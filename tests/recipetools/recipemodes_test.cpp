// Which commands each mode of the recipe screen allows, one row per state.
#include "recipetools/logic/recipemodes.h"

#include <gtest/gtest.h>

namespace {

struct Row {
    const char* name;
    RecipeScreenState state;
    RecipeCommandStates expected;
};

RecipeScreenState State(RecipeMode mode, bool shown = false, bool changed = false, bool recalculated = false,
                        bool panel = false, bool hasRecipes = true, bool calculator = false, bool search = false,
                        bool print = false)
{
    return {.mode = mode,
            .recipeShown = shown,
            .recipeChanged = changed,
            .amountsRecalculated = recalculated,
            .panelOpen = panel,
            .calculatorOpen = calculator,
            .searchOpen = search,
            .printOpen = print,
            .cookbookHasRecipes = hasRecipes};
}

// create, view, modify, save, delete, rename, print, calculate, search,
// spelling, copy, export, import, cookbook menus, worksheet, pick lists
RecipeCommandStates On(std::initializer_list<int> bits)
{
    const auto b = [&](int i) { return *(bits.begin() + i) != 0; };
    return {.create = b(0),
            .view = b(1),
            .modify = b(2),
            .save = b(3),
            .deleteRecipe = b(4),
            .rename = b(5),
            .print = b(6),
            .calculate = b(7),
            .search = b(8),
            .spelling = b(9),
            .copy = b(10),
            .exportRecipe = b(11),
            .importRecipe = b(12),
            .cookbookMenus = b(13),
            .worksheet = b(14),
            .pickLists = b(15)};
}

} // namespace

TEST(RecipeModes, CommandStatesByMode)
{
    const Row rows[] = {
        {"idle", State(RecipeMode::Idle), On({1, 1, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 1, 1})},
        {"create, nothing typed", State(RecipeMode::Create), On({0, 1, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 1, 1, 1, 1})},
        {"create in an empty cookbook", State(RecipeMode::Create, false, false, false, false, false),
         On({0, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 1, 1, 1, 1})},
        {"create, typed", State(RecipeMode::Create, false, true), On({0, 1, 0, 1, 0, 0, 0, 0, 1, 1, 0, 0, 1, 1, 1, 1})},
        {"view, list open", State(RecipeMode::View), On({1, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 1, 1})},
        {"view, recipe shown", State(RecipeMode::View, true), On({1, 0, 1, 0, 1, 1, 1, 1, 1, 0, 1, 1, 0, 1, 1, 1})},
        {"view after the calculator", State(RecipeMode::View, true, false, true),
         On({1, 0, 1, 1, 1, 1, 1, 1, 1, 0, 1, 1, 0, 1, 1, 1})},
        {"modify", State(RecipeMode::Modify, true), On({1, 0, 0, 0, 1, 1, 1, 1, 1, 0, 0, 0, 0, 1, 1, 1})},
        {"modify, typed", State(RecipeMode::Modify, true, true), On({1, 0, 0, 1, 1, 1, 1, 1, 1, 1, 1, 0, 0, 1, 1, 1})},
        {"rename open", State(RecipeMode::View, true, false, false, true),
         On({0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1})},
        // Off: what creates, shows, changes, saves, prints or copies a recipe,
        // and the pick lists. As the mode has them: rename, search, export,
        // the cookbook menus and the worksheet.
        {"calculator open", State(RecipeMode::View, true, false, false, false, true, true),
         On({0, 0, 0, 0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 1, 1, 0})},
        {"calculator open after a calculation", State(RecipeMode::View, true, false, true, false, true, true),
         On({0, 0, 0, 0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 1, 1, 0})},
        {"calculator open in modify, typed", State(RecipeMode::Modify, true, true, false, false, true, true),
         On({0, 0, 0, 0, 0, 1, 0, 0, 1, 0, 0, 0, 0, 1, 1, 0})},
        {"search open", State(RecipeMode::View, true, false, false, false, true, false, true),
         On({0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0})},
        {"search open over the calculator", State(RecipeMode::View, true, false, true, false, true, true, true),
         On({0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0})},
        {"print open", State(RecipeMode::View, true, false, false, false, true, false, false, true),
         On({0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1})},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const RecipeCommandStates on = CommandStatesFor(row.state);
        EXPECT_EQ(on.create, row.expected.create);
        EXPECT_EQ(on.view, row.expected.view);
        EXPECT_EQ(on.modify, row.expected.modify);
        EXPECT_EQ(on.save, row.expected.save);
        EXPECT_EQ(on.deleteRecipe, row.expected.deleteRecipe);
        EXPECT_EQ(on.rename, row.expected.rename);
        EXPECT_EQ(on.print, row.expected.print);
        EXPECT_EQ(on.calculate, row.expected.calculate);
        EXPECT_EQ(on.search, row.expected.search);
        EXPECT_EQ(on.spelling, row.expected.spelling);
        EXPECT_EQ(on.copy, row.expected.copy);
        EXPECT_EQ(on.exportRecipe, row.expected.exportRecipe);
        EXPECT_EQ(on.importRecipe, row.expected.importRecipe);
        EXPECT_EQ(on.cookbookMenus, row.expected.cookbookMenus);
        EXPECT_EQ(on.worksheet, row.expected.worksheet);
        EXPECT_EQ(on.pickLists, row.expected.pickLists);
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
