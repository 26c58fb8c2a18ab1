#pragma once
// A small cookbook for the select panels: cookbook 1 titled "Family
// Favorites" with two desserts and a name entry numbered 0, cookbook 2
// titled "Holidays" with one appetizer.
#include "shoplist_fixture.h"

#include "cookbook_files.h"
#include "raw_slots.h"

#include "cookbook/logic/cookbooknames.h"
#include "shopping/screens/quickselectpanel.h"
#include "shopping/screens/recipeselectpanel.h"

#include <QCheckBox>

// The ingredient rows of "Lemon Bars" and the captions their boxes show.
inline layout::Recipe LemonBarsRecipe()
{
    layout::Recipe recipe;
    const auto row = [&recipe](int at, const QByteArray& amount, const QByteArray& unit, const QByteArray& name) {
        recipe.amounts[at] = amount;
        recipe.amountTypes[at] = unit;
        recipe.ingredients[at] = name;
    };
    row(0, ".25", "Cup", "sugar");
    row(1, "1.9", "Cups", "flour (sifted)");
    row(3, ".95", "Pound", "butter");
    row(4, "", "Cup", "milk");
    row(5, "2", "", "(optional) nuts");
    row(10, "1.2", "tsp.", "salt");
    recipe.slotMark = "Full1";
    return recipe;
}

inline QStringList LemonBarsCaptions()
{
    return {" Sugar => 1/4 Cup       ",  " Flour  => 2  Cups      ", " Butter => 1  Pound     ",
            " Milk  Cup       ",         " (optional) nuts => 2           ", " Salt => 1 1/8 tsp.      "};
}

class ShoplistSelectTest : public ShoplistTest {
protected:
    ShoplistSelectTest()
    {
        layout::CookbookFiles first;
        first.record(1, LemonBarsRecipe());
        first.recipe(2, {"apples", "oats"});
        first.names(RecipeType::Desserts, {layout::Entry("Lemon Bars", 1), layout::Entry("Apple Crisp", 2),
                                           layout::Entry("Broken Entry", 0)});
        EXPECT_TRUE(first.write(folder.path(), 1));
        layout::CookbookFiles second;
        second.recipe(1, {"cranberry juice"});
        second.names(RecipeType::AppetizersAndBeverages, {layout::Entry("Cranberry Punch", 1)});
        EXPECT_TRUE(second.write(folder.path(), 2));
        WriteSlotText(GColor4, 2, u"Family Favorites");
        WriteSlotText(GColor4, 3, u"Holidays");
    }

    static RecipeSelectPanel* recipePanel(Shoplist& form) { return form.recipeSelectPanel(); }
    static QuickSelectPanel* quickPanel(Shoplist& form) { return form.quickSelectPanel(); }
    static void choose(QComboBox* combo, const QString& text)
    {
        const int index = combo->findText(text);
        ASSERT_GE(index, 0) << text.toStdString();
        combo->setCurrentIndex(index);
        emit combo->activated(index);
        combo->hidePopup();
    }
    // Opens Recipe Select and shows the recipe.
    static void showRecipe(Shoplist& form, const QString& type, const QString& recipe)
    {
        if (form.openPanel() != ShoplistPanel::RecipeSelect)
            act(form, "mRecipeSelect")->trigger();
        choose(recipePanel(form)->typeList(), type);
        choose(recipePanel(form)->recipeList(), recipe);
    }
};
