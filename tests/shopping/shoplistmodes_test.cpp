// Which commands the shopping list screen offers in each state, one named row
// per state.
#include "shopping/logic/shoplistmodes.h"

#include <gtest/gtest.h>

namespace {

ShoplistCommandStates Idle()
{
    ShoplistCommandStates on;
    on.newList = on.openList = on.deleteList = true;
    on.printOptions = on.worksheet = on.recipeSelect = on.quickSelect = true;
    on.gridBackground = on.gridTextColor = on.panelColor = on.exit = on.listEntry = true;
    return on;
}

struct StateRow {
    const char* name;
    ShoplistScreenState state;
    ShoplistCommandStates expected;
};

std::vector<StateRow> Rows()
{
    std::vector<StateRow> rows;
    rows.push_back({"fresh screen", {}, Idle()});
    {
        ShoplistCommandStates on = Idle();
        on.save = on.clearGrid = on.copy = true;
        rows.push_back({"changed list", {ShoplistPanel::None, true, true, false, false}, on});
        rows.push_back({"opened list, saved", {ShoplistPanel::None, false, true, false, false}, on});
        rows.push_back({"changed, its last entry deleted", {ShoplistPanel::None, true, false, false, false}, on});
        rows.push_back({"opened list without items", {ShoplistPanel::None, false, false, false, false, true}, on});
    }
    {
        ShoplistCommandStates on = Idle();
        on.deleteItem = true;
        rows.push_back({"a filled item cell clicked", {ShoplistPanel::None, false, false, true, false}, on});
    }
    {
        ShoplistCommandStates on = Idle();
        on.addToGrid = on.deleteFromFile = true;
        rows.push_back({"text in the item box", {ShoplistPanel::None, false, false, false, true}, on});
    }
    {
        ShoplistCommandStates on;
        on.recipeSelect = on.selectCookbook = on.exit = true;
        rows.push_back({"recipe select open", {ShoplistPanel::RecipeSelect, false, false, true, true}, on});
        on.copy = true;
        rows.push_back({"recipe select open on a list", {ShoplistPanel::RecipeSelect, true, true, false, false}, on});
    }
    {
        ShoplistCommandStates on;
        on.quickSelect = on.exit = true;
        rows.push_back({"quick select open", {ShoplistPanel::QuickSelect, false, false, false, false}, on});
    }
    rows.push_back({"print options open", {ShoplistPanel::Print, true, true, true, true}, ShoplistCommandStates{}});
    return rows;
}

} // namespace

TEST(ShoplistCommandStates, EveryRowOfTheTable)
{
    for (const StateRow& row : Rows()) {
        SCOPED_TRACE(row.name);
        EXPECT_TRUE(ShoplistCommandStatesFor(row.state) == row.expected);
    }
}
