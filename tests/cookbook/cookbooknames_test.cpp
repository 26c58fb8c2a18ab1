#include "cookbook/logic/cookbooknames.h"

#include <QSet>
#include <gtest/gtest.h>

namespace {

struct TypeRow {
    int number;
    const char* name;
    const char* nameFileOfCookbook1; // its first four letters are the type's prefix
};

// The type list in its order, with the name file of each in cookbook 1.
const TypeRow kTypeRows[] = {
    {1, "Appetizers and beverages", "Appenfil.db1"},
    {2, "Barbecues", "Barbnfil.db1"},
    {3, "Breads", "Breanfil.db1"},
    {4, "Cakes, frostings, and fillings", "Cakenfil.db1"},
    {5, "Candies", "Candnfil.db1"},
    {6, "Canning and freezing", "Cannnfil.db1"},
    {7, "Casseroles", "Cassnfil.db1"},
    {8, "Cookies", "Cooknfil.db1"},
    {9, "Desserts", "Dessnfil.db1"},
    {10, "Dips", "Dipsnfil.db1"},
    {11, "Easy Meals", "Easynfil.db1"},
    {12, "Entrees", "Entrnfil.db1"},
    {13, "Fruits", "Fruinfil.db1"},
    {14, "Lowin fat or calorie meals", "Lowinfil.db1"},
    {15, "Meats", "Meatnfil.db1"},
    {16, "Pastry and Pies", "Pastnfil.db1"},
    {17, "Poultry, fish and eggs", "Poulnfil.db1"},
    {18, "Salads and salad dressings", "Salanfil.db1"},
    {19, "Soups and sauces", "Soupnfil.db1"},
    {20, "Special or miscellaneous", "Specnfil.db1"},
    {21, "Stews", "Stewnfil.db1"},
    {22, "Vegetables", "Vegenfil.db1"},
};

TEST(RecipeTypes, TableOfNamesPrefixesAndNameFiles)
{
    ASSERT_EQ(std::size(kTypeRows), std::size_t(kRecipeTypeCount));
    for (const TypeRow& row : kTypeRows) {
        SCOPED_TRACE(row.name);
        const auto type = static_cast<RecipeType>(row.number);
        EXPECT_EQ(RecipeTypeName(type), QString::fromLatin1(row.name));
        EXPECT_EQ(TypePrefix(type), QString::fromLatin1(row.nameFileOfCookbook1).left(4));
        EXPECT_EQ(NameFileName(1, type), QString::fromLatin1(row.nameFileOfCookbook1));
        EXPECT_EQ(RecipeTypeFromName(QString::fromLatin1(row.name)), type);
    }
}

TEST(RecipeTypes, AllTypesAndNamesAreInListOrder)
{
    const QStringList names = RecipeTypeNames();
    ASSERT_EQ(names.size(), kRecipeTypeCount);
    for (int i = 0; i < kRecipeTypeCount; ++i) {
        EXPECT_EQ(static_cast<int>(AllRecipeTypes()[std::size_t(i)]), i + 1);
        EXPECT_EQ(names[i], QString::fromLatin1(kTypeRows[i].name));
    }
}

TEST(RecipeTypes, LowinKeepsItsMissingBlankSoThePrefixIsLowi)
{
    EXPECT_EQ(RecipeTypeName(RecipeType::LowinFatOrCalorieMeals), "Lowin fat or calorie meals");
    EXPECT_EQ(NameFileName(8, RecipeType::LowinFatOrCalorieMeals), "Lowinfil.db8");
    EXPECT_EQ(RecipeTypeFromName(u"Low in fat or calorie meals"), std::nullopt);
}

TEST(RecipeTypes, OnlyAnExactShownNameIsAType)
{
    EXPECT_EQ(RecipeTypeFromName(u"Breads"), RecipeType::Breads);
    EXPECT_EQ(RecipeTypeFromName(u"breads"), std::nullopt);
    EXPECT_EQ(RecipeTypeFromName(u"Breads "), std::nullopt);
    EXPECT_EQ(RecipeTypeFromName(u""), std::nullopt);
}

TEST(CookbookSuffix, IsDotDbAndTheNumberWithoutBlank)
{
    const struct {
        int cookbook;
        const char* suffix;
    } rows[] = {{1, ".db1"}, {3, ".db3"}, {8, ".db8"}, {0, ".db0"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.cookbook);
        EXPECT_EQ(CookbookSuffix(row.cookbook), QString::fromLatin1(row.suffix));
    }
}

TEST(CookbookFiles, NamesOfTheRecipeExtraAndNameFiles)
{
    EXPECT_EQ(RecipeFileName(3), "Recipe2.db3");
    EXPECT_EQ(ExtraFileName(3), "Recipe4.db3");
    EXPECT_EQ(NameFileName(1, RecipeType::AppetizersAndBeverages), "Appenfil.db1");
    EXPECT_EQ(NameFileName(8, RecipeType::Vegetables), "Vegenfil.db8");
}

TEST(CookbookFiles, ACookbookIsTwoPlusTwentyTwoFiles)
{
    const QStringList names = CookbookFileNames(5);
    ASSERT_EQ(names.size(), 24);
    EXPECT_EQ(names[0], "Recipe2.db5");
    EXPECT_EQ(names[1], "Recipe4.db5");
    EXPECT_EQ(names[2], "Appenfil.db5");
    EXPECT_EQ(names[23], "Vegenfil.db5");
    EXPECT_EQ(QSet<QString>(names.begin(), names.end()).size(), 24);
}

} // namespace
