// Which field of the recipe screen takes input in which mode, one named row
// per case: allowed or not, the message, and where the keyboard goes.
#include "recipetools/logic/recipefieldentry.h"

#include <gtest/gtest.h>

namespace {

using enum RecipeMode;
using enum RecipeField;

struct Row {
    const char* name;
    FieldEntryQuery query;
    bool allowed;
    const char* noticeTitle;   // nullptr: no message
    FieldFocus moveTo;
    bool showCurrentNames;
};

const char kCommandText[] = "Please Select Command Button for action desired.";

} // namespace

TEST(RecipeFieldEntry, ByModeAndField)
{
    const Row rows[] = {
        {"idle: a list clicked asks for a command", {.mode = Idle, .field = List, .byUser = true}, false,
         "Recipe File Function", FieldFocus::Stay, false},
        {"idle: a list the program focuses says nothing", {.mode = Idle, .field = List}, false, nullptr,
         FieldFocus::Stay, false},
        {"idle: a field clicked asks for a command", {.mode = Idle, .field = Other, .byUser = true}, false,
         "Recipe File Function", FieldFocus::Stay, false},
        {"view: a list serves to choose, silently", {.mode = View, .field = List, .byUser = true}, false, nullptr,
         FieldFocus::Stay, false},
        {"view: a field clicked asks for a command", {.mode = View, .field = Other, .byUser = true}, false,
         "Recipe File Function", FieldFocus::Stay, false},
        {"view: the name box clicked asks too", {.mode = View, .field = Name, .byUser = true}, false,
         "Recipe File Function", FieldFocus::Stay, false},
        {"create: the lists take input", {.mode = Create, .field = List, .byUser = true}, true, nullptr,
         FieldFocus::Stay, false},
        {"create: the name box without a type", {.mode = Create, .field = Name, .byUser = true}, false,
         "Select Type", FieldFocus::TypeList, false},
        {"create: the name box with a type shows the current names",
         {.mode = Create, .field = Name, .typeChosen = true}, true, nullptr, FieldFocus::Stay, true},
        {"create: a field before the name", {.mode = Create, .field = Other, .typeChosen = true}, false,
         "Enter Recipe Name", FieldFocus::NameBox, false},
        {"create: a field after the name", {.mode = Create, .field = Other, .typeChosen = true, .nameEmpty = false},
         true, nullptr, FieldFocus::Stay, false},
        {"modify: every field", {.mode = Modify, .field = Other, .byUser = true}, true, nullptr, FieldFocus::Stay,
         false},
        {"modify: the lists", {.mode = Modify, .field = List, .byUser = true}, true, nullptr, FieldFocus::Stay,
         false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        const FieldEntry entry = RecipeFieldEntry(row.query);
        EXPECT_EQ(entry.allowed, row.allowed);
        EXPECT_EQ(entry.notice.has_value(), row.noticeTitle != nullptr);
        if (entry.notice && row.noticeTitle) {
            EXPECT_EQ(entry.notice->title, QString::fromLatin1(row.noticeTitle));
            EXPECT_EQ(entry.notice->icon, Icon::Information);
            EXPECT_EQ(entry.notice->buttons, Buttons::Ok);
        }
        EXPECT_EQ(entry.moveTo, row.moveTo);
        EXPECT_EQ(entry.showCurrentNames, row.showCurrentNames);
    }
}

TEST(RecipeFieldEntry, TheMessagesWordForWord)
{
    EXPECT_EQ(RecipeFieldEntry({.mode = View, .field = Other, .byUser = true}).notice->text, kCommandText);
    EXPECT_EQ(RecipeFieldEntry({.mode = Create, .field = Name}).notice->text, "Please select Type first.");
    EXPECT_EQ(RecipeFieldEntry({.mode = Create, .field = Other, .typeChosen = true}).notice->text,
              "Please Enter Recipe Name First");
}
