#include "shopping/logic/shoplistmodes.h"

ShoplistCommandStates ShoplistCommandStatesFor(const ShoplistScreenState& state)
{
    ShoplistCommandStates on;
    const bool listShown = state.dirty || state.hasEntries || state.listOpened;
    switch (state.panel) {
    case ShoplistPanel::None:
        on.newList = on.openList = on.deleteList = true;
        on.save = on.clearGrid = on.copy = listShown;
        on.deleteItem = state.itemCellSelected;
        on.printOptions = on.worksheet = true;
        on.recipeSelect = on.quickSelect = true;
        on.gridBackground = on.gridTextColor = on.panelColor = true;
        on.exit = true;
        on.listEntry = true;
        on.addToGrid = on.deleteFromFile = state.itemBoxHasText;
        break;
    case ShoplistPanel::RecipeSelect:
    case ShoplistPanel::QuickSelect:
        // The list changes only through the open panel's add commands: what
        // would change it or open another panel is out of reach. Pressing
        // the panel's own command again closes it.
        on.recipeSelect = state.panel == ShoplistPanel::RecipeSelect;
        on.quickSelect = state.panel == ShoplistPanel::QuickSelect;
        on.selectCookbook = state.panel == ShoplistPanel::RecipeSelect;
        on.copy = listShown;
        on.exit = true;
        break;
    case ShoplistPanel::Print:
        // The print options panel covers the screen and is left by its own
        // "&Exit Print Options" (or Escape).
        break;
    }
    return on;
}
