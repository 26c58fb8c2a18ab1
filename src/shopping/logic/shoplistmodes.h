#pragma once
// Which of the shopping list screen's commands are enabled, decided in one
// place from what the screen shows, so a command's button, menu entry and
// toolbar button never disagree.
enum class ShoplistPanel { None, RecipeSelect, QuickSelect, Print };

struct ShoplistScreenState {
    ShoplistPanel panel = ShoplistPanel::None;
    bool dirty = false;             // Dirty
    bool hasEntries = false;        // EntryList holds an entry
    bool itemCellSelected = false;  // the current cell is a filled item cell
    bool itemBoxHasText = false;    // the item box is not empty
    bool listOpened = false;        // a saved list was opened onto the grid, even one without items
};

struct ShoplistCommandStates {
    bool newList = false;
    bool openList = false;
    bool deleteList = false;
    bool save = false;
    bool clearGrid = false;
    bool deleteItem = false;        // "&Delete Item from Grid"
    bool printOptions = false;
    bool worksheet = false;
    bool copy = false;
    bool recipeSelect = false;
    bool quickSelect = false;
    bool selectCookbook = false;
    bool gridBackground = false;
    bool gridTextColor = false;
    bool panelColor = false;
    bool exit = false;
    bool listEntry = false;         // the item, date and grid area: items typed, cells clicked
    bool addToGrid = false;         // "&Add to Item Grid"
    bool deleteFromFile = false;    // "&Delete Item fm File"

    bool operator==(const ShoplistCommandStates&) const = default;
};

ShoplistCommandStates ShoplistCommandStatesFor(const ShoplistScreenState& state);
