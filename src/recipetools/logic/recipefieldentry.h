#pragma once
// Which field of the recipe screen may take input in which mode, and what
// the screen says when one may not. The screen asks each time a field gets
// the focus.
#include "common/dialogs.h"
#include "recipetools/logic/recipemodes.h"

#include <optional>

enum class RecipeField {
    List,   // the type list or the recipe pick list
    Name,   // the name box of a new recipe
    Other,  // any other field of the recipe: rows, directions, cooking and serving
};

// Where the keyboard goes instead.
enum class FieldFocus { Stay, TypeList, NameBox };

struct FieldEntry {
    bool allowed = true;
    std::optional<Message> notice;         // shown before anything else
    FieldFocus moveTo = FieldFocus::Stay;
    bool showCurrentNames = false;         // the "Current Recipe Names" panel comes up
};

struct FieldEntryQuery {
    RecipeMode mode = RecipeMode::Idle;
    RecipeField field = RecipeField::Other;
    bool byUser = false;        // a click or Tab, not the program moving the focus
    bool typeChosen = false;
    bool nameEmpty = true;
};

FieldEntry RecipeFieldEntry(const FieldEntryQuery& query);
