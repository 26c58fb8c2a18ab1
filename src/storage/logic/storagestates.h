#pragma once
// Which of the food storage screen's commands and fields are enabled, in one
// function of what the screen shows: the category on screen and the panel
// open over it. Entry happens in the "&All" view only; categories are for
// review. While a panel is open the screen's own commands rest.
#include "storage/logic/storagekinds.h"

#include <array>

enum class StoragePanel { None, Rollup, Print, Export };

struct StorageScreenState {
    StorageKind kind = StorageKind::Basic;
    int category = kAllCategory;
    StoragePanel panel = StoragePanel::None;
    bool backupAvailable = false;  // a backup screen was given to the screen
};

struct StorageCommandStates {
    bool entryFields = false;      // the input box and the family field
    bool clearLastActions = false;
    bool print = false;            // "&Print" and "&Print Options"
    bool itemDefaults = false;
    bool approxAmounts = false;
    bool save = false;
    bool copy = false;
    bool exportFile = false;
    bool backup = false;           // backup and restore
    bool rollup = false;           // the "&Rollup" entry, Basic only
    bool kinds = false;            // the "Storage &Kind" entries
    bool colors = false;           // grid background, grid text, panel colour
    bool exit = false;
    std::array<bool, kCategoryButtons> categories{};

    bool operator==(const StorageCommandStates&) const = default;
};

StorageCommandStates CommandStatesFor(const StorageScreenState& state);
