#pragma once
// A cookbook is a set of files in the program folder, told apart by the
// suffix ".db1" to ".db8":
//
//   Recipe2<suffix>                 2045-byte recipe records, one slot per recipe
//   Recipe4<suffix>                 250-byte picture paths, same slot numbers
//   <TypePrefix>nfil<suffix>        60-byte name slots, one file per recipe type
//
// The name files are the only index: a recipe's name and type exist only as
// an entry in the name file of its type.
#include <QString>
#include <QStringList>
#include <array>
#include <optional>

// Slot numbers are 16-bit signed in memory; slot 30001, the most a scan for
// a free slot gives back, fits.
using RecordNumber = qint16;

inline constexpr int kCookbookCount = 8;

// ".db" and the cookbook number with no blank: 3 gives ".db3". Numbers
// outside 1..8 are not refused (0 gives ".db0").
QString CookbookSuffix(int cookbook);

// The recipe types in the order of the type list, numbered from 1.
enum class RecipeType {
    AppetizersAndBeverages = 1,
    Barbecues,
    Breads,
    CakesFrostingsAndFillings,
    Candies,
    CanningAndFreezing,
    Casseroles,
    Cookies,
    Desserts,
    Dips,
    EasyMeals,
    Entrees,
    Fruits,
    LowinFatOrCalorieMeals,
    Meats,
    PastryAndPies,
    PoultryFishAndEggs,
    SaladsAndSaladDressings,
    SoupsAndSauces,
    SpecialOrMiscellaneous,
    Stews,
    Vegetables,
};

inline constexpr int kRecipeTypeCount = 22;

// All types in list order.
const std::array<RecipeType, kRecipeTypeCount>& AllRecipeTypes();
// The names as the type list shows them, in list order.
QStringList RecipeTypeNames();

// The type's name as shown in the type list.
QString RecipeTypeName(RecipeType type);
// Exact match on a shown name; nothing for any other text.
std::optional<RecipeType> RecipeTypeFromName(QStringView name);

// The first four letters of the type's name; it names the type's name file.
QString TypePrefix(RecipeType type);

QString RecipeFileName(int cookbook);
QString ExtraFileName(int cookbook);
QString NameFileName(int cookbook, RecipeType type);
// The 24 files of a cookbook: recipe file, extra file, then the name files
// in type order.
QStringList CookbookFileNames(int cookbook);
