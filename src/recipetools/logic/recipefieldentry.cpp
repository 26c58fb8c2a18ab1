#include "recipetools/logic/recipefieldentry.h"

namespace {

Message Information(const char* title, const char* text)
{
    return {QString::fromLatin1(title), QString::fromLatin1(text), Buttons::Ok, Icon::Information, 1};
}

} // namespace

FieldEntry RecipeFieldEntry(const FieldEntryQuery& query)
{
    FieldEntry entry;
    const bool editing = query.mode == RecipeMode::Create || query.mode == RecipeMode::Modify;
    if (!editing) {
        // Outside Create and Modify nothing takes input; the lists answer
        // only while the screen is idle (in View they serve to choose).
        entry.allowed = false;
        const bool asks = query.field != RecipeField::List || query.mode == RecipeMode::Idle;
        if (asks && query.byUser)
            entry.notice = Information("Recipe File Function", "Please Select Command Button for action desired.");
        return entry;
    }
    if (query.field == RecipeField::List || query.mode != RecipeMode::Create)
        return entry;
    if (query.field == RecipeField::Name) {
        if (!query.typeChosen) {
            entry.allowed = false;
            entry.notice = Information("Select Type", "Please select Type first.");
            entry.moveTo = FieldFocus::TypeList;
            return entry;
        }
        entry.showCurrentNames = true;
        return entry;
    }
    if (query.nameEmpty) {
        entry.allowed = false;
        entry.notice = Information("Enter Recipe Name", "Please Enter Recipe Name First");
        entry.moveTo = FieldFocus::NameBox;
    }
    return entry;
}
