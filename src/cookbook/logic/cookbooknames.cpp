#include "cookbook/logic/cookbooknames.h"

namespace {

// "Lowin" lacks its blank on purpose: the prefix "Lowi" names the existing
// name files, so the shown name must keep it.
constexpr std::array<const char*, kRecipeTypeCount> kTypeNames = {
    "Appetizers and beverages",
    "Barbecues",
    "Breads",
    "Cakes, frostings, and fillings",
    "Candies",
    "Canning and freezing",
    "Casseroles",
    "Cookies",
    "Desserts",
    "Dips",
    "Easy Meals",
    "Entrees",
    "Fruits",
    "Lowin fat or calorie meals",
    "Meats",
    "Pastry and Pies",
    "Poultry, fish and eggs",
    "Salads and salad dressings",
    "Soups and sauces",
    "Special or miscellaneous",
    "Stews",
    "Vegetables",
};

std::size_t IndexOf(RecipeType type)
{
    const int number = static_cast<int>(type);
    // A value outside the enumeration falls back to the first type rather
    // than reading outside the table.
    return (number >= 1 && number <= kRecipeTypeCount) ? std::size_t(number - 1) : 0;
}

} // namespace

QString CookbookSuffix(int cookbook)
{
    return QStringLiteral(".db") + QString::number(cookbook);
}

const std::array<RecipeType, kRecipeTypeCount>& AllRecipeTypes()
{
    static const std::array<RecipeType, kRecipeTypeCount> types = [] {
        std::array<RecipeType, kRecipeTypeCount> all{};
        for (int i = 0; i < kRecipeTypeCount; ++i)
            all[std::size_t(i)] = static_cast<RecipeType>(i + 1);
        return all;
    }();
    return types;
}

QStringList RecipeTypeNames()
{
    QStringList names;
    names.reserve(kRecipeTypeCount);
    for (const char* name : kTypeNames)
        names.append(QString::fromLatin1(name));
    return names;
}

QString RecipeTypeName(RecipeType type)
{
    return QString::fromLatin1(kTypeNames[IndexOf(type)]);
}

std::optional<RecipeType> RecipeTypeFromName(QStringView name)
{
    for (int i = 0; i < kRecipeTypeCount; ++i) {
        if (name == QLatin1StringView(kTypeNames[std::size_t(i)]))
            return static_cast<RecipeType>(i + 1);
    }
    return std::nullopt;
}

QString TypePrefix(RecipeType type)
{
    return RecipeTypeName(type).left(4);
}

QString RecipeFileName(int cookbook)
{
    return QStringLiteral("Recipe2") + CookbookSuffix(cookbook);
}

QString ExtraFileName(int cookbook)
{
    return QStringLiteral("Recipe4") + CookbookSuffix(cookbook);
}

QString NameFileName(int cookbook, RecipeType type)
{
    return TypePrefix(type) + QStringLiteral("nfil") + CookbookSuffix(cookbook);
}

QStringList CookbookFileNames(int cookbook)
{
    QStringList names{RecipeFileName(cookbook), ExtraFileName(cookbook)};
    for (RecipeType type : AllRecipeTypes())
        names.append(NameFileName(cookbook, type));
    return names;
}
