#include "shopping/logic/recipeselect.h"

#include "common/numbertext.h"
#include "cookbook/logic/cookbooknames.h"
#include "cookbook/logic/cookbookselection.h"
#include "shell/settings/settingsregistry.h"

int ReadShoplistCookbook()
{
    const double number = Val(ReadSlotText(Settings::ShoplistCookbook));
    if (number < 1 || number > kCookbookCount)
        return 1;
    return int(number);
}

bool WriteShoplistCookbook(int cookbook)
{
    return WriteSlotText(Settings::ShoplistCookbook, Str(cookbook));
}

QString RecipeSelectStatus(int cookbook, const QString& title)
{
    return QStringLiteral("     Recipe Select from Cookbook #") + QString::number(cookbook) + QStringLiteral(" - ")
         + title;
}

QString NoRecipesFoundText(const QString& typeName, int cookbook, const QString& title)
{
    return QStringLiteral("No ") + typeName + QStringLiteral(" were found in ") + CookbookMenuCaption(cookbook, title);
}
