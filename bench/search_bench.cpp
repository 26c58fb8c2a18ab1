// Recipe search over a cookbook far beyond household scale: 30,000 recipes
// spread over the 22 types, every one with 20 ingredient rows. The name
// search reads the 22 name files; the ingredient search reads, in sorted
// order, the recipe of every entry. A plain read of the 61 MB recipe file
// is measured alongside for scale.
#include "cookbook/logic/cookbookfiles.h"
#include "cookbook/logic/nameentry.h"
#include "recipetools/logic/recipesearch.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <benchmark/benchmark.h>

#include <functional>
#include <random>

namespace {

constexpr int kCookbook = 1;
constexpr int kRecipes = 30000;
constexpr unsigned kRandomStart = 2045;

const char* const kIngredients[] = {
    "flour",          "all-purpose flour", "sugar",          "brown sugar",   "butter, softened", "eggs",
    "egg yolks",      "milk",              "buttermilk",     "salt",          "baking soda",      "baking powder",
    "vanilla",        "cinnamon",          "nutmeg",         "olive oil",     "onion, chopped",   "garlic, minced",
    "celery",         "carrots, diced",    "tomatoes",       "tomato paste",  "chicken broth",    "beef stock",
    "ground beef",    "chicken breasts",   "pork chops",     "bacon",         "cheddar cheese",   "parmesan",
    "cream cheese",   "sour cream",        "heavy cream",    "lemon juice",   "orange zest",      "honey",
    "maple syrup",    "oats",              "walnuts",        "pecans",        "raisins",          "apples, sliced",
    "bananas",        "blueberries",       "strawberries",   "rice",          "noodles",          "potatoes",
    "green beans",    "peas",              "corn",           "Eggplant",      "zucchini",         "mushrooms",
    "bell pepper",    "jalape\xf1o",       "cr\xe8me fra\xee" "che", "thyme",    "oregano",          "black pepper",
};

const char* const kNameWords[] = {"Apple", "Banana", "Berry", "Cheese", "Chicken", "Chocolate", "Corn",  "Egg",
                                  "Garden", "Ginger", "Honey", "Lemon",  "Maple",   "Mushroom",  "Nutty", "Oat",
                                  "Peach",  "Pecan",  "Pumpkin", "Spicy", "Sweet",  "Tomato",    "Veggie", "Walnut"};
const char* const kNameKinds[] = {"bread", "cake", "pie", "soup", "stew", "salad", "casserole", "bars", "muffins",
                                  "dip", "pudding", "roast", "tart", "cookies", "sauce"};

class SearchData {
public:
    static SearchData& instance()
    {
        static SearchData data;
        return data;
    }

private:
    SearchData()
    {
        QDir::setCurrent(dir_.path());
        std::mt19937 random(kRandomStart);
        auto below = [&](int n) { return std::uniform_int_distribution<int>(0, n - 1)(random); };

        QByteArray recipes;
        recipes.reserve(qsizetype(kRecipes) * RecipeRecord::kSize);
        std::array<QByteArray, kRecipeTypeCount> names;
        for (int slot = 1; slot <= kRecipes; ++slot) {
            RecipeRecord record = RecipeRecord::Cleared();
            for (int row = 0; row < kRecipeRows; ++row) {
                record.amounts[row].setText(u"1.5");
                record.amountTypes[row].setText(u"cups");
                record.ingredients[row].setText(
                    QString::fromLatin1(kIngredients[below(int(std::size(kIngredients)))]));
            }
            record.directions.setText(QString(900, u'x'));
            record.markUsed();
            recipes += record.toBytes();

            const QString name = QStringLiteral("%1 %2 %3")
                                     .arg(QLatin1String(kNameWords[below(int(std::size(kNameWords)))]),
                                          QLatin1String(kNameWords[below(int(std::size(kNameWords)))]),
                                          QLatin1String(kNameKinds[below(int(std::size(kNameKinds)))]));
            RecipeNameRecord entry = RecipeNameRecord::Cleared();
            entry.setNameEntry(MakeNameEntry(name, RecordNumber(slot)));
            names[std::size_t(below(kRecipeTypeCount))] += entry.toBytes();
        }
        write(RecipeFileName(kCookbook), recipes);
        write(ExtraFileName(kCookbook), QByteArray(qsizetype(kRecipes) * RecipeExtraRecord::kSize, '\0'));
        for (RecipeType type : AllRecipeTypes())
            write(NameFileName(kCookbook, type), names[std::size_t(int(type) - 1)]);
    }

    static void write(const QString& name, const QByteArray& bytes)
    {
        QFile file(name);
        if (file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            file.write(bytes);
    }

    QTemporaryDir dir_;
};

IngredientQuery Query(const QString& box1, const QString& box2 = {}, const QString& box3 = {}, bool allOf = true)
{
    IngredientQuery query;
    query.box1 = box1;
    query.box2 = box2;
    query.box3 = box3;
    query.allOfTerms = allOf;
    return query;
}

void Run(benchmark::State& state, const std::function<qsizetype()>& search)
{
    SearchData::instance();
    qsizetype hits = 0;
    for (auto _ : state) {
        hits = search();
        benchmark::DoNotOptimize(hits);
    }
    state.counters["hits"] = double(hits);
}

void BM_PlainReadOfTheRecipeFile(benchmark::State& state)
{
    Run(state, [] {
        QFile file(RecipeFileName(kCookbook));
        file.open(QIODevice::ReadOnly);
        return file.readAll().size();
    });
}

void BM_NameSearchViewAll(benchmark::State& state)
{
    Run(state, [] { return SearchByName(kCookbook, kViewAllText).size(); });
}

void BM_NameSearchWord(benchmark::State& state)
{
    Run(state, [] { return SearchByName(kCookbook, QStringLiteral("egg")).size(); });
}

void BM_IngredientSearchOneTerm(benchmark::State& state)
{
    const std::array<QString, kRecipeRows> buffer{};
    Run(state, [&] { return SearchByIngredient(kCookbook, Query(QStringLiteral("egg")), buffer).size(); });
}

void BM_IngredientSearchAllOfThree(benchmark::State& state)
{
    const std::array<QString, kRecipeRows> buffer{};
    const IngredientQuery query = Query(QStringLiteral("flour"), QStringLiteral("sugar"), QStringLiteral(" egg"), true);
    Run(state, [&] { return SearchByIngredient(kCookbook, query, buffer).size(); });
}

void BM_IngredientSearchAnyOfThree(benchmark::State& state)
{
    const std::array<QString, kRecipeRows> buffer{};
    const IngredientQuery query =
        Query(QStringLiteral("saffron"), QStringLiteral("quinoa"), QStringLiteral("tofu"), false);
    Run(state, [&] { return SearchByIngredient(kCookbook, query, buffer).size(); });
}

void BM_IngredientSearchOneType(benchmark::State& state)
{
    const std::array<QString, kRecipeRows> buffer{};
    IngredientQuery query = Query(QStringLiteral("egg"));
    query.onlyType = RecipeType::Desserts;
    Run(state, [&] { return SearchByIngredient(kCookbook, query, buffer).size(); });
}

} // namespace

BENCHMARK(BM_PlainReadOfTheRecipeFile)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_NameSearchViewAll)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_NameSearchWord)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_IngredientSearchOneTerm)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_IngredientSearchAllOfThree)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_IngredientSearchAnyOfThree)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_IngredientSearchOneType)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
