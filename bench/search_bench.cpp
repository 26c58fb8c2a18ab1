// Recipe search over a cookbook far beyond household scale: 30,000 recipes
// spread over the 22 types, every one with 20 ingredient rows. The name
// search reads the 22 name files; the ingredient search reads, in sorted
// order, the recipe of every entry. A plain read of the 61 MB recipe file
// is measured alongside for scale.
#include "cookbook/logic/cookbookfiles.h"
#include "recipetools/logic/recipesearch.h"

#include "cookbook_files.h"
#include "recipe_samples.h"
#include "scratch_folder.h"
#include "search_terms.h"

#include <QFile>
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
        std::mt19937 random(kRandomStart);
        auto below = [&](int n) { return std::uniform_int_distribution<int>(0, n - 1)(random); };

        layout::CookbookFiles book;
        std::array<QList<QByteArray>, kRecipeTypeCount> names;
        layout::Recipe recipe = samples::FullRecipe().slot;
        recipe.slotMark = "Full1";
        for (int slot = 1; slot <= kRecipes; ++slot) {
            for (QByteArray& ingredient : recipe.ingredients)
                ingredient = kIngredients[below(int(std::size(kIngredients)))];
            book.record(slot, recipe);

            const QString name = QStringLiteral("%1 %2 %3")
                                     .arg(QLatin1String(kNameWords[below(int(std::size(kNameWords)))]),
                                          QLatin1String(kNameWords[below(int(std::size(kNameWords)))]),
                                          QLatin1String(kNameKinds[below(int(std::size(kNameKinds)))]));
            names[std::size_t(below(kRecipeTypeCount))] += layout::Entry(name, slot);
        }
        for (RecipeType type : AllRecipeTypes())
            book.names(type, names[std::size_t(int(type) - 1)]);
        book.write(folder_.path(), kCookbook);
        folder_.writeBytes(ExtraFileName(kCookbook),
                           QByteArray(qsizetype(kRecipes) * RecipeExtraRecord::kSize, '\0'));
    }

    ScratchFolder folder_;
};

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
    const IngredientQuery query = samples::Terms(QStringLiteral("egg"));
    Run(state, [&] { return SearchByIngredient(kCookbook, query, buffer).size(); });
}

void BM_IngredientSearchAllOfThree(benchmark::State& state)
{
    const std::array<QString, kRecipeRows> buffer{};
    const IngredientQuery query =
        samples::Terms(QStringLiteral("flour"), QStringLiteral("sugar"), QStringLiteral(" egg"), true);
    Run(state, [&] { return SearchByIngredient(kCookbook, query, buffer).size(); });
}

void BM_IngredientSearchAnyOfThree(benchmark::State& state)
{
    const std::array<QString, kRecipeRows> buffer{};
    const IngredientQuery query =
        samples::Terms(QStringLiteral("saffron"), QStringLiteral("quinoa"), QStringLiteral("tofu"), false);
    Run(state, [&] { return SearchByIngredient(kCookbook, query, buffer).size(); });
}

void BM_IngredientSearchOneType(benchmark::State& state)
{
    const std::array<QString, kRecipeRows> buffer{};
    IngredientQuery query = samples::Terms(QStringLiteral("egg"));
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
