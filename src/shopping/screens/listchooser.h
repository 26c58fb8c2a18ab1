#pragma once
// How the shopping list asks for a saved list: the chooser Open1, shown
// modally, or a script in tests. The answer is the chosen file name, an
// empty text when the user cancelled, or the word "Nothing" when the
// program folder holds no list at all.
#include <QString>

enum class ListChoice { Open, Delete };

inline const char* const kNoSavedLists = "Nothing";

class ListChooser {
public:
    virtual ~ListChooser() = default;
    virtual QString chooseList(ListChoice choice) = 0;
};
