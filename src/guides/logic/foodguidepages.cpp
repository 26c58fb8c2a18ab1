#include "guides/logic/foodguidepages.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>

namespace {

struct FoodGroup {
    const char* name;
    std::array<const char*, 4> requirements;  // unused entries stay null
    std::array<const char*, 4> portions;
};

struct MeasureRow {
    const char* size;
    const char* amount;
    const char* servings;
};

struct TextPair {
    const char* first;
    const char* second;
};

// Page 1: each group with its requirement lines and portion lines.
constexpr FoodGroup kFoodGroups[] = {
    {"Milk",
     {"Adults - 2 servings", "Children - 3 servings", "Teenages - 4 servings"},
     {"8 oz. (1 cup) milk.", "1 1/2 oz. cheddar cheese.", "1 1/2 slices american cheese.", "1 1/2 cups cottage cheese."}},
    {"Meat",
     {"2 servings", "(meat, fish, poultry, eggs, nuts, dry beans)"},
     {"2-3 oz. lean cooked meat, fish or poultry.", "2 eggs.", "4 Tablespoons peanut butter.", "1 cup cooked dry beans or lentils."}},
    {"Fruits and Vegetables",
     {"4 servings", "(One dark green or yellow vegetable, One high in vitamin C such as oranges, grapefruit, cantaloupe, tomatoes, etc.)"},
     {"1/2 cup cooked.", "1 medium raw.", "1/2 grapefruit or cantaloupe.", "4 oz. (1/2 cup) fruit juice."}},
    {"Breads and Cereals",
     {"4 servings", "(enriched or whole grain)"},
     {"1 slice bread.", "1 cup dry cereal.", "1/2 cup cooked cereal, rice, noodles, or macaroni.", "1 tortilla."}},
};
constexpr const char* kLastRequirement = "Use extra food from any of the above or from fats and starches as needed for activity.";
constexpr const char* kLastPortion = "Get as much variety in each group as possible.";

// Page 2: size, cups or amount, servings.
constexpr MeasureRow kCommonMeasures[] = {
    {"No. 2 can", "2 1/2 cups", "5 servings"},
    {"No. 2 1/2 can", "3 1/2 cups", "7 servings"},
    {"No. 5 (juices) can", "6 cups", "12-14 servings"},
    {"No. 10 can", "12 -13 cups", "24-26 servings"},
    {"1 lb. apples", "3 cups chopped", "3 servings"},
    {"1 lb. asparagus", "20 med. stalks", "4 servings"},
    {"1 lb. cabbage (uncooked)", "4 cups shredded", "4-5 servings"},
    {"1 lb. cabbage (cooked)", "2 cups", "3-4 servings"},
    {"1 lb. carrots", "3-4 carrots", "3 servings"},
    {"1 lb. grapefruit", "fresh", "3 servings"},
    {"1 lb. green beans", "3 cups cooked", "5-6 servings"},
    {"1 lb. green pepper", "6 peppers", ""},
    {"1 lb. hamburger", "", "4-5 servings"},
    {"1 lb. head lettuce", "head (sliced)", "5-6 servings"},
    {"1 lb. oranges", "fresh", "3 servings"},
    {"1 lb. peas", "1 cup shelled peas", "2 servings"},
    {"1 lb. peas or beans", "diced", "8-10 servings"},
    {"1 lb. baking potatoes", "2-3 large", "2-3 servings"},
    {"1 lb. sweet potatoes", "2-3 medium", "2-3 servings"},
    {"1 lb. white potatoes", "4 medium sized", "4 servings"},
    {"1 lb. poultry", "", "2-3 servings"},
    {"1 lb. raisins", "3 cups", ""},
    {"1 lb. roast", "", "3 servings"},
    {"1 lb. ground beef or veal", "", "4-5 servings"},
    {"1 lb. spinach", "1 1/2 cups (cooked)", "3 servings"},
    {"1 lb. sugar", "2 1/4 cups", ""},
    {"1 lb. tomatoes", "fresh", "4 servings"},
};

constexpr const char* kBreakfastMenu1[] = {
    "Orange Juice", "Apple pancakes with maple syrup", "Milk", "Chilled canned peaches", "Scrambled eggs",
    "Sausage", "Butter toast", "Milk", "Chilled canned apricots", "Baking powder biscuits", "Bacon", "Milk",
    "Orange jupiter", "Stewed prunes", "Cracked wheat cereal", "Milk", "Sliced oranges", "Corn meal mush",
    "Soft boiled egg", "Buttered toast", "Hot chocolate", "Grapefruit juice", "Waffles with honey butter",
    "Hot Chocolate",
};
constexpr const char* kLunchMenu1[] = {
    "Cream of tomato soup", "Peanut butter cookies", "Milk", "Tuna fish sandwich", "Tomato slices", "Apple", "Milk",
    "Easy minestrone soup", "Pear", "Milk", "Peanut butter and jam sandwich", "Carrot and celery sticks",
    "Fresh orange", "Milk", "Cream of vegetable soup", "Potted meat sandwich", "Fresh apple", "Milk",
    "Bologna sandwich", "Carrot or raisin salad", "Oatmeal cookies", "Orangeade",
};
constexpr const char* kDinnerMenu1[] = {
    "Chicken Rice casserole", "Green beans", "Whole wheat bread", "Fruit compote", "Peanut butter cookies",
    "Hamburger stronganoff", "Buttered carrots", "Tossed salad and dressing", "Bread and butter",
    "Frosty lemon sherbet", "Liver fricassee over rice", "Buttered peas", "Waldorf salad", "Bread and butter",
    "Tomato soup cake", "Pot roast of beef", "Browned potatoes cooked with meat", "Caulifloer with broccoli",
    "Pickled beets", "Bread and butter and Pear squares", "Stuffed zucchini", "Potato pancakes",
    "Tossed green salad and dressing", "Pineapple upside down cake", "Bread and butter", "Cheese fondue",
    "Buttered broccoli", "Celery sticks and radishes", "Bread and butter", "Fruit cocktail dessert & Milk",
};
constexpr const char* kBreakfastMenu2[] = {
    "Grapefruit half", "Oatmeal cereal", "Muffins with strawberry jam", "Milk", "Applesauce", "Germade cereal",
    "Eggnog", "Apple juice", "Omelet", "Buttered Toast", "Hot chocolate", "Hot baked apples", "Cinnamon rolls",
    "Milk", "Chilled tomato juice", "Fried egg", "Hash browned potatoes", "Buttered toast", "Milk", "Grape juice",
    "Creamed egg over buttered toast", "Milk",
};
constexpr const char* kLunchMenu2[] = {
    "Swiss bubbly", "Sweet and sour cabbage slaw", "Frosted graham crackers", "Fresh banana", "Milk",
    "Grilled cheese sandwich", "Lettuce wedge salad and dressing", "Canned peaches", "Milk",
    "Cottage cheese stuffed tomato salad", "Zucchini bread", "Milk", "Tuna chowder", "Mixed fruit salad",
    "Buttered roll", "Applesauce cookies", "Milk", "Cottage cheese and pear salad", "Cinnamon toast",
    "Lemon fruit slush", "Milk", "Hot dog sandwich", "Cucumber slices in vinegar", "Tomato slices",
    "Carrot cookies", "Fresh orange and Milk",
};
constexpr const char* kDinnerMenu2[] = {
    "Tomato juice cocktail", "Ham and lima beans", "Whole wheat bread", "Apple crisp", "Milk",
    "Oven-barbecued chicken", "Baked potato", "Pears in lime jello", "Greek green beans",
    "Rice puddling with raisins", "Hamburgers", "Potato salad", "Buttered spinach",
    "Green pepper and carrot sticks", "Watermelon", "Porcupine meatballs", "Baked winter squash",
    "Tossed green salad with dressing", "Bread and butter", "Lemon Pie", "Liver, bacon and onions",
    "Buttered boiled potatoes", "Carrot loaf", "Bread and butter", "Ozark pudding and Milk", "Meat loaf",
    "Au gratin potatoes", "Tasty sliced zucchini", "Fruited gelatin", "Gingerbread with lemon sauce",
};

// Page 4: hint action and helpful hint; the number is the row's.
constexpr TextPair kHints[] = {
    {"To tint coconut.",
     "Add food coloring to 1 Tablespoon water, put colored water and coconut in a jar and shake. Dry on a paper towel."},
    {"To make fudge creamier.",
     "Add 1 teaspoon cornstarch to 1 cup of fudge."},
    {"To keep gravy from getting lumpy.",
     "Add a pinch of salt to the flour before mixing with water."},
    {"To make meringue cut cleaner.",
     "Add a bit of lemon juice."},
    {"To help prevent boiled eggs from discoloring.",
     "As soon as eggs are boiled hard, place in cold water."},
    {"To increase juice from a fresh lemon.",
     "Heat the lemon before extracting juice, and you should get almost twice as much juice."},
    {"For quicker cooking or individual servings of meat loaf.",
     "Bake meat loaf in muffin tins or custard cups."},
    {"To make sour milk.",
     "1 1/3 Tablespoon vinegar or 1 1/2 Tablespoon lemon juice to 1 Cup sweet milk will make 1 Cup sour milk."},
    {"To turn sour milk to sweet milk.",
     "1/2 teaspoon of baking soda added to 1 Cup sour milk will turn it to sweet milk."},
    {"Equivalent of 1 square of baking chocolate.",
     "3 Tablespoons of cocoa plus 1 Tablespoon of shortening equals one square of baking chocolate."},
    {"Beating egg whites.",
     "Egg whites beat best if eggs have reached room temperature."},
    {"Cooking Pork.",
     "To avoid toughness, cook pork slowly."},
    {"Keeping molasses and honey from sticking to measuring cup.",
     "First dip measuring cup in flour then pour in molasses or honey."},
    {"To keep bacon straight.",
     "First wet bacon and place strips on a cold frying pan before being put on the heat."},
    {"To keep lemons for long periods of time.",
     "Place fresh lemons in a covered jar and place in the refrigerator."},
    {"To keep macaroni or potatoes from boiling over.",
     "Add 1 Tablespoon cooking oil to water."},
    {"Substitute for sweet milk in recipes.",
     "Mix 1/2 Cup evaporated milk with 1/2 Cup water."},
    {"Handy lemon juice.",
     "Freeze lemon juice in an ice tray, then you'll have 2 Tablespoons of juice handy when needed for recipes."},
    {"When cooking fish, cabbage, or broccoli.",
     "Place a small dish with vinegar in it nearby, this will help absorb the oders."},
    {"When making french fried potatoes.",
     "Place raw potatoes in cold water and let stand for at least 1/2 hour before frying. This will improve their crispness."},
    {"To help remove onion smell from hands.",
     "Use a little fresh lemon juice."},
    {"To cut fresh homemade bread easily.",
     "Cut with a hot knife."},
    {"To keep frosting soft and seldom grainy.",
     "Add several drops of vinegar to the icing."},
    {"For a flaky pie crust.",
     "Mix with sweet milk instead of water."},
    {"To make Meringue stand up high and perfect.",
     "Add a generous pinch of baking soda to the beaten egg whites."},
    {"To help make rice fluffy.",
     "Add one Tablespoon lemon juice to each quart of water while cooking."},
    {"To keep bacon from shrinking when fryed.",
     "Dust bacon strips lightly with flour before frying."},
    {"To keep onions from affecting your eyes.",
     "Peel onions under water."},
    {"To freshen marshmallows",
     "Place in covered container with a slice of fresh apple."},
    {"To sharpen your scissors.",
     "Cut sandpaper with them."},
};

// Page 5: what the recipe calls for, and what to use.
constexpr TextPair kSubstitutions[] = {
    {"Whole Milk (1 cup)",
     "1 cup skim or nonfat milk plus 1 Tablespoon of unsaturated oil."},
    {"Heavy Cream (1 cup)",
     "1 cup evaporated skim milk or 1/2 cup low-fat yogart and 1/2 cup low-fat cottage cheese."},
    {"Sour Cream",
     "Low-fat cottage cheese plus low-fat yogart for flavor; ricotta cheese made from partially skimmed milk; one can of chilled evaporated skim milk whipped with 1 tsp. of lemon juice; or low-fat buttermilk or low-fat yogart."},
    {"Cream Cheese",
     "4 Tablespoons of margarine blended with 1 cup dry low-fat cottage cheese. Add small amount of skim milk if needed in the blending mixture.  Add chopped chives or pimiento and herbs and seasonings for variety."},
    {"Butter (1 Tablespoon)",
     "1 Tablespoon polyunsaturated margarine or 3/4 Tablespoon polyunsaturated oil."},
    {"Shortening (1 cup)",
     "2 sticks polyunsaturated margarine."},
    {"Oil (1 cup)",
     "1 1/4 cups polyunsaturated margarine."},
    {"Eggs (1 egg)",
     "1 egg white plus 2 teaspoons of unsaturated oil or commerically produced cholesterol-free egg substitute according to package directions. (3 egg whites = 2 whole eggs; 2 egg whites for 1 whole egg in baking recipes.)"},
    {"Unsweetened baking Chocolate (1 ounce)",
     "3 Tablespoons unsweetened cocoa powder or carob powder plus 1 Tablespoon of polyunsaturated oil or margarine.  (Carob is sweeter than cocoa, so if Carob is used; reduce the sugar in the recipe by one-fourth.)"},
};

QString Text(const char* text)
{
    return text ? QString::fromLatin1(text) : QString();
}

GuidePage MakePage(const char* title, std::initializer_list<GuideColumn> columns)
{
    GuidePage page;
    page.title = QString::fromLatin1(title);
    page.columns = QList<GuideColumn>(columns);
    return page;
}

// Each group's lines run down from the group's first row, requirements in the
// second column and portions in the third; the longer list sets the rows.
GuidePage DailyFoodGuide()
{
    GuidePage page = MakePage("Daily Food Guide Requirements",
                              {{QStringLiteral("Food Group"), 0.22},
                               {QStringLiteral("Daily Requirements"), 0.39},
                               {QStringLiteral("Approximate Portion Size for One Serving"), 0.39}});
    for (const FoodGroup& group : kFoodGroups) {
        const auto lines = [](const std::array<const char*, 4>& list) {
            return int(std::count_if(list.begin(), list.end(), [](const char* text) { return text != nullptr; }));
        };
        const int rows = std::max(lines(group.requirements), lines(group.portions));
        for (int row = 0; row < rows; ++row)
            page.rows.append({row == 0 ? Text(group.name) : QString(), Text(group.requirements[row]),
                              Text(group.portions[row])});
    }
    page.rows.append({QString(), Text(kLastRequirement), Text(kLastPortion)});
    return page;
}

GuidePage CommonMeasures()
{
    GuidePage page = MakePage("Common Measures of Food",
                              {{QStringLiteral("Size"), 0.4},
                               {QStringLiteral("Cups or Amount"), 0.3},
                               {QStringLiteral("Servings"), 0.3}});
    for (const MeasureRow& row : kCommonMeasures)
        page.rows.append({Text(row.size), Text(row.amount), Text(row.servings)});
    return page;
}

// The two menu columns share the meal blocks: a block is as long as the
// longer of its two lists, and the shorter list leaves blank rows at its end.
template <std::size_t N1, std::size_t N2>
void AppendMeal(GuidePage& page, const char* meal, const char* const (&first)[N1], const char* const (&second)[N2])
{
    const int rows = int(std::max(N1, N2));
    for (int row = 0; row < rows; ++row)
        page.rows.append({row == 0 ? Text(meal) : QString(), row < int(N1) ? Text(first[row]) : QString(),
                          row < int(N2) ? Text(second[row]) : QString()});
}

GuidePage MenuIdeas()
{
    GuidePage page = MakePage("Suggested Menu Ideas",
                              {{QStringLiteral("Meal"), 0.2},
                               {QStringLiteral("Suggested Menu"), 0.4},
                               {QStringLiteral("Suggested Menu"), 0.4}});
    AppendMeal(page, "Breakfast", kBreakfastMenu1, kBreakfastMenu2);
    AppendMeal(page, "Lunch", kLunchMenu1, kLunchMenu2);
    AppendMeal(page, "Dinner", kDinnerMenu1, kDinnerMenu2);
    return page;
}

GuidePage HelpfulHints()
{
    GuidePage page = MakePage("Helpful Kitchen Hints",
                              {{QStringLiteral("Hint Number"), 0.1},
                               {QStringLiteral("Hint Action"), 0.36},
                               {QStringLiteral("Helpful Hint"), 0.54}});
    int number = 0;
    for (const TextPair& hint : kHints)
        page.rows.append({QString::number(++number), Text(hint.first), Text(hint.second)});
    return page;
}

GuidePage HealthySubstitutes()
{
    GuidePage page = MakePage("Healthy Recipe Substitutions",
                              {{QStringLiteral("When your Recipe calls for:"), 0.3},
                               {QStringLiteral("Use:"), 0.7}});
    for (const TextPair& row : kSubstitutions)
        page.rows.append({Text(row.first), Text(row.second)});
    return page;
}

const std::array<GuidePage, kFoodGuidePageCount>& AllPages()
{
    static const std::array<GuidePage, kFoodGuidePageCount> pages = {
        DailyFoodGuide(), CommonMeasures(), MenuIdeas(), HelpfulHints(), HealthySubstitutes(),
    };
    return pages;
}

} // namespace

const GuidePage& FoodGuidePageOf(int page)
{
    if (page < 1 || page > kFoodGuidePageCount)
        page = 1;
    return AllPages()[std::size_t(page - 1)];
}

const GuidePage& FoodGuidePageOf(FoodGuidePage page)
{
    return FoodGuidePageOf(int(page));
}

QString FoodGuideCaption(const QString& familyName)
{
    return familyName + QStringLiteral(" Food Guide");
}

QList<int> ColumnWidthsByShare(const GuidePage& page, int gridWidth)
{
    QList<int> widths;
    const int width = std::max(gridWidth, 0);
    int used = 0;
    for (int column = 0; column < page.columns.size(); ++column) {
        const bool last = column == page.columns.size() - 1;
        const int share = last ? width - used : int(std::lround(width * page.columns[column].share));
        widths.append(std::max(share, 0));
        used += share;
    }
    return widths;
}
