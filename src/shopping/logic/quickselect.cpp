#include "shopping/logic/quickselect.h"

const std::vector<QuickSelectGroup>& QuickSelectGroups()
{
    static const std::vector<QuickSelectGroup> groups = {
        {"Dairy Products",
         {"1% Milk", "2% Milk", "Butter", "Cheese", "Cottage Cheese", "Cream", "Cream Cheese", "Evap. Milk",
          "Ice Cream", "Margarine", "Milk", "Sherbet", "Skim Milk", "Whole Milk", "Yogurt"}},
        {"Poultry, Fish, Meat Products",
         {"Bacon", "Chicken", "Dry Beans", "Eggs", "Fish", "Ham", "Hamburger", "Hot Dogs", "Lentils", "Lunch Meat",
          "Pork", "Roast", "Sausage", "Steak", "Tuna Fish"}},
        {"Fruits and Vegetables",
         {"Apples", "Applesauce", "Apricots", "Avocados", "Bananas", "Broccoli", "Cabbage", "Carrots", "Celery",
          "Corn", "Cucumbers", "Green Beans", "Lemons", "Lettuce", "Olives", "Onions", "Oranges", "Peaches", "Pears",
          "Peas", "Peppers", "Pineapple", "Plums", "Potatoes", "Pumpkin", "Raisins", "Squash", "Strawberries",
          "Tomatoes", "Zucchini"}},
        {"Breads and Cereals",
         {"Bread", "Cereal", "Flour", "Grain Crackers", "Macaroni", "Noodles", "Oatmeal", "Oats", "Wheat Bread"}},
        {"Miscellaneous",
         {"Baking Powder", "Baking Soda", "Bisquick", "Catsup", "Chips", "Cooking Oil", "Dry Yeast", "Honey", "Jam",
          "Jello", "Jelly", "Juice", "Marshmallows", "Peanut Butter", "Pepper", "Popcorn", "Salad Dressing", "Salt",
          "Shortening", "Soda Pop", "Vinegar"}},
    };
    return groups;
}

QStringList QuickSelectItems()
{
    QStringList items;
    for (const QuickSelectGroup& group : QuickSelectGroups()) {
        for (const char* item : group.items)
            items.append(QString::fromLatin1(item));
    }
    return items;
}
