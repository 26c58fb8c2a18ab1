// Recipe search by name and by ingredient over cookbooks written byte for
// byte: the grid rows (type, entry, order), the rules of the boxes, and the
// fast searches against the record-by-record walk on generated cookbooks.
#include "recipetools/logic/recipesearch.h"

#include "common/cp1252.h"
#include "cookbook/logic/nameentry.h"
#include "recipetools/logic/recipelifecycle.h"

#include "cookbook_files.h"
#include "search_reference.h"
#include "search_terms.h"
#include "temp_program_folder.h"

#include <QFile>
#include <gtest/gtest.h>

#include <random>

using namespace Qt::StringLiterals;

namespace {

// The generated cookbooks and texts below start from this value, so every
// run sees the same ones.
constexpr unsigned kRandomStart = 20240611;

using layout::CookbookFiles;
using layout::Entry;
using layout::EntryText;
using samples::Terms;

constexpr int kBook = 1;
const QString kDesserts = QStringLiteral("Desserts");
const QString kBreads = QStringLiteral("Breads");
const QString kAppetizers = QStringLiteral("Appetizers and beverages");

std::array<QString, kRecipeRows> NoBuffer()
{
    return {};
}

QList<SearchHit> ByIngredient(const IngredientQuery& query)
{
    return SearchByIngredient(kBook, query, NoBuffer());
}

// Twenty rows with `text` in row `row` (1-based) and filler elsewhere.
QList<QString> RowsWithAt(int row, const QString& text)
{
    QList<QString> rows;
    for (int i = 1; i <= 20; ++i)
        rows << (i == row ? text : QStringLiteral("water %1").arg(i));
    return rows;
}

// --- Edge cases -------------------------------------------------------------

TEST(RecipeSearchEdgeCases, EggFindsEggplantVeggieAndEggsInNames)
{
    TempProgramFolder folder;
    CookbookFiles book;
    book.names(RecipeType::Desserts, {Entry(u"Veggie Lasagna", 2), Entry(u"Apple Pie", 4),
                                      Entry(u"Eggplant Parmesan", 1), Entry(u"Deviled eggs", 3)});
    ASSERT_TRUE(book.write(folder.path()));

    const QList<SearchHit> expected = {
        {kDesserts, EntryText(u"Deviled eggs", 3)},
        {kDesserts, EntryText(u"Eggplant Parmesan", 1)},
        {kDesserts, EntryText(u"Veggie Lasagna", 2)},
    };
    EXPECT_EQ(SearchByName(kBook, "egg"), expected);
    EXPECT_EQ(SearchByName(kBook, "EGG"), expected);
}

TEST(RecipeSearchEdgeCases, BlankEggInAnIngredientSearchFindsEggsAtAWordStartButNotVeggie)
{
    TempProgramFolder folder;
    CookbookFiles book;
    book.recipe(1, {"flour", "2 eggs, beaten"});
    book.recipe(2, {"Veggie broth"});
    book.recipe(3, {"eggplant, diced"});
    book.recipe(4, {"nutmeg"});
    book.names(RecipeType::Desserts, {Entry(u"Custard", 1), Entry(u"Soup", 2), Entry(u"Moussaka", 3),
                                      Entry(u"Nog", 4)});
    ASSERT_TRUE(book.write(folder.path()));

    EXPECT_EQ(ByIngredient(Terms(" egg")), (QList<SearchHit>{{kDesserts, EntryText(u"Custard", 1)},
                                                              {kDesserts, EntryText(u"Moussaka", 3)}}));
    // Without the blank the letters are found anywhere: eggs, Veggie, eggplant.
    EXPECT_EQ(ByIngredient(Terms("egg")).size(), 3);
}

TEST(RecipeSearchEdgeCases, NameSearchOverTwentyTwoEmptyTypesFindsNothing)
{
    TempProgramFolder folder;
    for (RecipeType type : AllRecipeTypes())
        folder.writeBytes(NameFileName(kBook, type), {});
    EXPECT_TRUE(SearchByName(kBook, "egg").isEmpty());
    EXPECT_TRUE(SearchByName(kBook, kViewAllText).isEmpty());
    EXPECT_TRUE(ByIngredient(Terms("egg")).isEmpty());
}

TEST(RecipeSearchEdgeCases, AllOfTwoTermsAcceptsARecipeOnlyWhenEachTermIsInSomeRowEvenTheSameRow)
{
    TempProgramFolder folder;
    CookbookFiles book;
    book.recipe(1, {"flour", "", "", "", "sugar"});   // two rows
    book.recipe(2, {"sugar and flour blend"});         // one row holds both
    book.recipe(3, {"flour"});
    book.recipe(4, {"sugar"});
    book.names(RecipeType::Breads, {Entry(u"A two rows", 1), Entry(u"B one row", 2), Entry(u"C flour only", 3),
                                    Entry(u"D sugar only", 4)});
    ASSERT_TRUE(book.write(folder.path()));

    const QList<SearchHit> expected = {{kBreads, EntryText(u"A two rows", 1)}, {kBreads, EntryText(u"B one row", 2)}};
    EXPECT_EQ(ByIngredient(Terms("flour", "sugar", {}, true)), expected);
    EXPECT_EQ(ByIngredient(Terms("sugar", "flour", {}, true)), expected);
}

TEST(RecipeSearchEdgeCases, AnyOfListsARecipeOnceNeverOncePerTerm)
{
    TempProgramFolder folder;
    CookbookFiles book;
    book.recipe(1, {"milk", "honey", "oats"});
    book.recipe(2, {"honey"});
    book.recipe(3, {"oats"});
    book.recipe(4, {"salt"});
    book.names(RecipeType::Breads, {Entry(u"All three", 1), Entry(u"Second only", 2), Entry(u"Third only", 3),
                                    Entry(u"None", 4)});
    ASSERT_TRUE(book.write(folder.path()));

    EXPECT_EQ(ByIngredient(Terms("milk", "honey", "oats", false)),
              (QList<SearchHit>{{kBreads, EntryText(u"All three", 1)},
                                {kBreads, EntryText(u"Second only", 2)},
                                {kBreads, EntryText(u"Third only", 3)}}));
}

TEST(RecipeSearchEdgeCases, RowTwentyIsScanned)
{
    TempProgramFolder folder;
    CookbookFiles book;
    book.recipe(1, RowsWithAt(20, "fresh thyme"));
    // Row 20 filled to its 35th character.
    book.recipe(2, RowsWithAt(20, QString(30, u'x') + "thyme"));
    book.recipe(3, RowsWithAt(19, "oregano"));
    book.names(RecipeType::Stews, {Entry(u"Full rows", 1), Entry(u"Full width", 2), Entry(u"Oregano", 3)});
    ASSERT_TRUE(book.write(folder.path()));

    const QString stews = QStringLiteral("Stews");
    EXPECT_EQ(ByIngredient(Terms("thyme")),
              (QList<SearchHit>{{stews, EntryText(u"Full rows", 1)}, {stews, EntryText(u"Full width", 2)}}));
    EXPECT_EQ(ByIngredient(Terms("thyme ")).size(), 2) << "the blank after row 20";
}

TEST(RecipeSearchEdgeCases, OnlyBoxThreeFilledMovesToBoxOneAndSearchesAsASingleTerm)
{
    QString box1, box2, box3 = "milk";
    CompactBoxes(box1, box2, box3);
    EXPECT_EQ(box1, "milk");
    EXPECT_EQ(box2, "");
    EXPECT_EQ(box3, "");
    EXPECT_EQ(TermCount(box2, box3), 1);
    EXPECT_FALSE(MultiIngredientFrameShown(box2, box3));
    EXPECT_EQ(MatchMode(MultiIngredientFrameShown(box2, box3), true), 0);

    TempProgramFolder folder;
    CookbookFiles book;
    book.recipe(1, {"milk"});
    book.recipe(2, {"cream"});
    book.names(RecipeType::Desserts, {Entry(u"Pudding", 1), Entry(u"Mousse", 2)});
    ASSERT_TRUE(book.write(folder.path()));
    EXPECT_EQ(ByIngredient(Terms(box1, box2, box3)), (QList<SearchHit>{{kDesserts, EntryText(u"Pudding", 1)}}));
}

// --- Name search rows -------------------------------------------------------

TEST(NameSearch, RowsAreTypeAndLeftTrimmedEntryTypeByTypeInSortedOrder)
{
    TempProgramFolder folder;
    CookbookFiles book;
    // Type list order: Appetizers (1) before Breads (3), whatever the files.
    book.names(RecipeType::Breads, {Entry(u"rye bread", 7), " ", "", Entry(u"Banana bread", 2),
                                    Entry(u"   Corn bread", 9), "   ", Entry(u"apple bread", 5)});
    book.names(RecipeType::AppetizersAndBeverages, {Entry(u"Bread sticks", 11)});
    ASSERT_TRUE(book.write(folder.path()));

    EXPECT_EQ(SearchByName(kBook, "bread"),
              (QList<SearchHit>{
                  {kAppetizers, EntryText(u"Bread sticks", 11)},
                  // "   Corn bread" sorts first by its blanks, then shows left-trimmed.
                  {kBreads, EntryText(u"   Corn bread", 9).mid(3)},
                  {kBreads, EntryText(u"apple bread", 5)},
                  {kBreads, EntryText(u"Banana bread", 2)},
                  {kBreads, EntryText(u"rye bread", 7)},
              }));
}

TEST(NameSearch, ViewAllListsEveryEntryAndSkipsClearedAndEmptySlots)
{
    TempProgramFolder folder;
    CookbookFiles book;
    book.names(RecipeType::Cookies, {" ", Entry(u"Snickerdoodles", 4), "", " ", Entry(u"Biscotti", 12), " "});
    book.names(RecipeType::Vegetables, {Entry(u"Glazed carrots", 1)});
    ASSERT_TRUE(book.write(folder.path()));

    const QString cookies = QStringLiteral("Cookies");
    EXPECT_EQ(SearchByName(kBook, kViewAllText),
              (QList<SearchHit>{{cookies, EntryText(u"Biscotti", 12)},
                                {cookies, EntryText(u"Snickerdoodles", 4)},
                                {QStringLiteral("Vegetables"), EntryText(u"Glazed carrots", 1)}}));
}

TEST(NameSearch, ABlankBeforeTheWordAnchorsItAtTheStartOfAnyWord)
{
    TempProgramFolder folder;
    CookbookFiles book;
    book.names(RecipeType::PastryAndPies,
               {Entry(u"Sweetpie bars", 1), Entry(u"Pie crust", 2), Entry(u"Apple pie", 3), Entry(u"Piecrust", 4)});
    ASSERT_TRUE(book.write(folder.path()));

    const QString pies = QStringLiteral("Pastry and Pies");
    EXPECT_EQ(SearchByName(kBook, " pie"),
              (QList<SearchHit>{{pies, EntryText(u"Apple pie", 3)},
                                {pies, EntryText(u"Pie crust", 2)},
                                {pies, EntryText(u"Piecrust", 4)}}));
    EXPECT_EQ(SearchByName(kBook, " pie ").size(), 2) << "a blank behind anchors the word's end";
    EXPECT_EQ(SearchByName(kBook, "pie").size(), 4);
}

TEST(NameSearch, TheWholeEntryIsSearchedPadBlanksAndRecordNumberIncluded)
{
    TempProgramFolder folder;
    CookbookFiles book;
    book.names(RecipeType::SoupsAndSauces, {Entry(u"Tomato soup", 17), Entry(u"Route 66 chili", 3),
                                   Entry(QString(52, u'x'), 5)});
    ASSERT_TRUE(book.write(folder.path()));

    const QString soups = QStringLiteral("Soups and sauces");
    EXPECT_EQ(SearchByName(kBook, "17"), (QList<SearchHit>{{soups, EntryText(u"Tomato soup", 17)}}));
    // Two blanks stand in every padded entry, not in a 52-character name.
    EXPECT_EQ(SearchByName(kBook, "  ").size(), 2);
    EXPECT_EQ(SearchByName(kBook, "soup   "), (QList<SearchHit>{{soups, EntryText(u"Tomato soup", 17)}}));
}

TEST(NameSearch, CaseIsIgnoredForAccentedLettersOfTheCodePage)
{
    TempProgramFolder folder;
    CookbookFiles book;
    book.names(RecipeType::Desserts, {Entry(u"CRÈME BRÛLÉE", 1), Entry(u"Crepes", 2), Entry(u"Œufs à la neige", 3),
                                      Entry(u"Ÿvonne's tart", 4), Entry(u"Straße cake", 5)});
    ASSERT_TRUE(book.write(folder.path()));

    EXPECT_EQ(SearchByName(kBook, u"crème"_s), (QList<SearchHit>{{kDesserts, EntryText(u"CRÈME BRÛLÉE", 1)}}));
    EXPECT_EQ(SearchByName(kBook, u"œufs À"_s), (QList<SearchHit>{{kDesserts, EntryText(u"Œufs à la neige", 3)}}));
    EXPECT_EQ(SearchByName(kBook, u"ÿvonne"_s), (QList<SearchHit>{{kDesserts, EntryText(u"Ÿvonne's tart", 4)}}));
    // ß has no capital in the code page: it is not "SS".
    EXPECT_EQ(SearchByName(kBook, u"strasse"_s).size(), 0);
    EXPECT_EQ(SearchByName(kBook, u"STRAßE"_s).size(), 1);
}

TEST(NameSearch, TheEmptyTextFindsNothing)
{
    TempProgramFolder folder;
    CookbookFiles book;
    book.names(RecipeType::Desserts, {Entry(u"Fudge", 1)});
    ASSERT_TRUE(book.write(folder.path()));
    EXPECT_TRUE(SearchByName(kBook, {}).isEmpty());
}

TEST(NameSearch, SortingIsCaseBlindAndKeepsSlotOrderAmongEquals)
{
    TempProgramFolder folder;
    CookbookFiles book;
    book.names(RecipeType::Desserts, {Entry(u"cherry cobbler", 3), Entry(u"APPLE CRISP", 8), Entry(u"banana split", 1),
                                      Entry(u"apple crisp", 8), Entry(u"Apple Crisp", 8)});
    ASSERT_TRUE(book.write(folder.path()));

    EXPECT_EQ(SearchByName(kBook, kViewAllText),
              (QList<SearchHit>{{kDesserts, EntryText(u"APPLE CRISP", 8)},
                                {kDesserts, EntryText(u"apple crisp", 8)},
                                {kDesserts, EntryText(u"Apple Crisp", 8)},
                                {kDesserts, EntryText(u"banana split", 1)},
                                {kDesserts, EntryText(u"cherry cobbler", 3)}}));
}

TEST(NameSearch, ManyEntriesEqualButForCaseKeepTheirSlotOrder)
{
    // Enough equal entries that a sort which is not stable would mix them.
    TempProgramFolder folder;
    QList<QByteArray> slotTexts;
    QList<SearchHit> expected;
    for (int i = 0; i < 64; ++i) {
        QString name = "apple pie";
        for (int letter = 0; letter < 6; ++letter) {
            if (i & (1 << letter))
                name[letter] = name[letter].toUpper();
        }
        slotTexts << Entry(name, 5);
        expected << SearchHit{kDesserts, EntryText(name, 5)};
    }
    for (int i = 0; i < 40; ++i) {
        slotTexts.insert(i * 2, Entry(QStringLiteral("banana %1").arg(i, 2, 10, QLatin1Char('0')), 100 + i));
        expected << SearchHit{kDesserts, EntryText(QStringLiteral("banana %1").arg(i, 2, 10, QLatin1Char('0')), 100 + i)};
    }
    CookbookFiles book;
    book.names(RecipeType::Desserts, slotTexts);
    book.recipe(5, {"apples"});
    ASSERT_TRUE(book.write(folder.path()));

    EXPECT_EQ(SearchByName(kBook, kViewAllText), expected);
    EXPECT_EQ(ByIngredient(Terms("apples")), expected.first(64));
}

TEST(NameSearch, MissingNameFilesAreCreatedEmpty)
{
    TempProgramFolder folder;
    EXPECT_TRUE(SearchByName(kBook, "egg").isEmpty());
    EXPECT_TRUE(QFile::exists(folder.filePath("Vegenfil.db1")));
    EXPECT_TRUE(QFile::exists(folder.filePath("Appenfil.db1")));
}

// --- Ingredient search rows -------------------------------------------------

class IngredientSearch : public ::testing::Test {
protected:
    IngredientSearch()
    {
        book.recipe(1, {"2 cups flour", "3 eggs", "1 cup milk"});
        book.recipe(2, {"butter", "sugar", "flour"});
        book.recipe(3, {"Eggplant", "olive oil"});
        book.recipe(4, {"Veggie stock", "milk"});
        book.recipe(5, {"sugar", "cocoa"});
        book.deleted(6);
        book.names(RecipeType::Desserts,
                   {Entry(u"Shortbread", 2), Entry(u"Brownies", 5), Entry(u"Custard pie", 1)});
        book.names(RecipeType::AppetizersAndBeverages, {Entry(u"Veggie dip", 4), Entry(u"Baba ganoush", 3)});
    }
    void write() { ASSERT_TRUE(book.write(folder.path())); }

    TempProgramFolder folder;
    CookbookFiles book;
};

TEST_F(IngredientSearch, SingleTermRowsAreTypeAndEntryAsReadTypeByTypeInSortedOrder)
{
    book.names(RecipeType::Breads, {Entry(u"  Soda bread", 2)});
    write();
    EXPECT_EQ(ByIngredient(Terms("FLOUR")),
              (QList<SearchHit>{{kBreads, EntryText(u"  Soda bread", 2)},   // as read: blanks kept
                                {kDesserts, EntryText(u"Custard pie", 1)},
                                {kDesserts, EntryText(u"Shortbread", 2)}}));
}

TEST_F(IngredientSearch, AllOfRowsNeedEveryTerm)
{
    write();
    // "egg" is also in "Veggie stock".
    EXPECT_EQ(ByIngredient(Terms("milk", "egg", {}, true)),
              (QList<SearchHit>{{kAppetizers, EntryText(u"Veggie dip", 4)}, {kDesserts, EntryText(u"Custard pie", 1)}}));
    EXPECT_EQ(ByIngredient(Terms("milk", "egg", "veggie", true)),
              (QList<SearchHit>{{kAppetizers, EntryText(u"Veggie dip", 4)}}));
    EXPECT_EQ(ByIngredient(Terms("milk", " eggs", "flour", true)),
              (QList<SearchHit>{{kDesserts, EntryText(u"Custard pie", 1)}}));
    EXPECT_EQ(ByIngredient(Terms("sugar", "flour", "butter", true)),
              (QList<SearchHit>{{kDesserts, EntryText(u"Shortbread", 2)}}));
}

TEST_F(IngredientSearch, AnyOfRowsNeedOneTerm)
{
    write();
    EXPECT_EQ(ByIngredient(Terms("cocoa", " egg", {}, false)),
              (QList<SearchHit>{{kAppetizers, EntryText(u"Baba ganoush", 3)},
                                {kDesserts, EntryText(u"Brownies", 5)},
                                {kDesserts, EntryText(u"Custard pie", 1)}}));
    EXPECT_EQ(ByIngredient(Terms("cocoa", "olive", "stock", false)),
              (QList<SearchHit>{{kAppetizers, EntryText(u"Baba ganoush", 3)},
                                {kAppetizers, EntryText(u"Veggie dip", 4)},
                                {kDesserts, EntryText(u"Brownies", 5)}}));
}

TEST_F(IngredientSearch, BlankPrefixAnchorsAtAWordStartAndABlankBehindAtAWordEnd)
{
    write();
    EXPECT_EQ(ByIngredient(Terms(" egg")),
              (QList<SearchHit>{{kAppetizers, EntryText(u"Baba ganoush", 3)}, {kDesserts, EntryText(u"Custard pie", 1)}}));
    EXPECT_EQ(ByIngredient(Terms("egg ")), QList<SearchHit>{});
    EXPECT_EQ(ByIngredient(Terms(" eggs ")), (QList<SearchHit>{{kDesserts, EntryText(u"Custard pie", 1)}}));
    EXPECT_EQ(ByIngredient(Terms(" milk ")),
              (QList<SearchHit>{{kAppetizers, EntryText(u"Veggie dip", 4)}, {kDesserts, EntryText(u"Custard pie", 1)}}));
}

TEST_F(IngredientSearch, CompactedBoxesSearchAsTheyStand)
{
    write();
    // Box 2 empty: box 3 moves up and the two terms must both be found.
    QString box1 = "milk", box2 = "", box3 = "eggs";
    CompactBoxes(box1, box2, box3);
    EXPECT_EQ((QStringList{box1, box2, box3}), (QStringList{"milk", "eggs", ""}));
    EXPECT_EQ(ByIngredient(Terms(box1, box2, box3, true)), (QList<SearchHit>{{kDesserts, EntryText(u"Custard pie", 1)}}));
    // Box 1 empty: box 2 moves up, box 3 stays where it is, so the frame
    // shows but only one term is counted; "any of" then looks at box 1 alone.
    box1 = "";
    box2 = "cocoa";
    box3 = "olive";
    CompactBoxes(box1, box2, box3);
    EXPECT_EQ((QStringList{box1, box2, box3}), (QStringList{"cocoa", "", "olive"}));
    EXPECT_TRUE(MultiIngredientFrameShown(box2, box3));
    EXPECT_EQ(TermCount(box2, box3), 1);
    EXPECT_EQ(ByIngredient(Terms(box1, box2, box3, false)), (QList<SearchHit>{{kDesserts, EntryText(u"Brownies", 5)}}));
    EXPECT_EQ(ByIngredient(Terms(box1, box2, box3, true)), (QList<SearchHit>{{kDesserts, EntryText(u"Brownies", 5)}}));
}

TEST_F(IngredientSearch, ByTypeLooksOnlyAtThePickedType)
{
    write();
    IngredientQuery query = Terms("milk");
    query.onlyType = RecipeType::AppetizersAndBeverages;
    EXPECT_EQ(ByIngredient(query), (QList<SearchHit>{{kAppetizers, EntryText(u"Veggie dip", 4)}}));
    query.onlyType = RecipeType::Meats;
    EXPECT_EQ(ByIngredient(query), QList<SearchHit>{});
}

TEST_F(IngredientSearch, AnEmptyFirstSlotMeansTheTypeHasNoRecipes)
{
    book.names(RecipeType::Desserts, {"", Entry(u"Custard pie", 1)});
    write();
    EXPECT_EQ(ByIngredient(Terms("eggs")), QList<SearchHit>{});
    // The name search skips the empty slot and goes on.
    EXPECT_EQ(SearchByName(kBook, "custard").size(), 1);
}

TEST_F(IngredientSearch, AClearedFirstSlotStillReadsEveryEntryAndTheBlankEntryScansTheBuffer)
{
    book.names(RecipeType::Desserts, {" ", Entry(u"Custard pie", 1)});
    write();
    IngredientQuery query = Terms("eggs");
    query.onlyType = RecipeType::Desserts;
    // The blank entry sorts first and reads nothing: it looks at the
    // screen's record buffer.
    std::array<QString, kRecipeRows> buffer{};
    EXPECT_EQ(SearchByIngredient(kBook, query, buffer), (QList<SearchHit>{{kDesserts, EntryText(u"Custard pie", 1)}}));
    buffer[19] = "2 eggs";
    EXPECT_EQ(SearchByIngredient(kBook, query, buffer),
              (QList<SearchHit>{{kDesserts, " "}, {kDesserts, EntryText(u"Custard pie", 1)}}));
}

TEST_F(IngredientSearch, AnEntryWithoutARecordNumberLooksAgainAtTheRecipeReadBeforeIt)
{
    book.names(RecipeType::Desserts, {Entry(u"Custard", 1), "Custard tart", Entry(u"Brownies", 5),
                                      Entry(u"Custard  old", 0)});
    write();
    // Sorted: Brownies 5, Custard 1, "Custard  old" 0, "Custard tart" (no number).
    EXPECT_EQ(ByIngredient(Terms("eggs")),
              (QList<SearchHit>{{kDesserts, EntryText(u"Custard", 1)},
                                {kDesserts, EntryText(u"Custard  old", 0)},
                                {kDesserts, "Custard tart"}}));
    EXPECT_EQ(ByIngredient(Terms("cocoa")), (QList<SearchHit>{{kDesserts, EntryText(u"Brownies", 5)}}));
}

TEST_F(IngredientSearch, TheRecipeBeforeCarriesAcrossTypes)
{
    // Appetizers come first; its last entry in sorted order reads slot 4
    // (Veggie stock, milk); Breads' entry without a number looks at it.
    book.names(RecipeType::Breads, {"Leftover loaf"});
    write();
    EXPECT_EQ(ByIngredient(Terms("stock")),
              (QList<SearchHit>{{kAppetizers, EntryText(u"Veggie dip", 4)}, {kBreads, "Leftover loaf"}}));
}

TEST_F(IngredientSearch, AZeroLengthEntryIsNeverListed)
{
    book.names(RecipeType::Desserts, {Entry(u"Custard pie", 1), ""});
    write();
    EXPECT_EQ(ByIngredient(Terms("eggs")), (QList<SearchHit>{{kDesserts, EntryText(u"Custard pie", 1)}}));
}

TEST_F(IngredientSearch, DeletedAndMissingSlotsReadAsRecipesWithoutIngredients)
{
    // Slot 6 is deleted, slot 99 lies past the end of the file; what they
    // read replaces the rows that an entry without a number looks at.
    book.names(RecipeType::Desserts, {Entry(u"Custard a", 1), Entry(u"Custard b", 6), "Custard c",
                                      Entry(u"Custard d", 1), Entry(u"Custard e", 99), "Custard f"});
    write();
    EXPECT_EQ(ByIngredient(Terms("eggs")),
              (QList<SearchHit>{{kDesserts, EntryText(u"Custard a", 1)}, {kDesserts, EntryText(u"Custard d", 1)}}));
    // A term of one blank finds every row, even an empty one.
    IngredientQuery blank = Terms(" ");
    blank.onlyType = RecipeType::Desserts;
    EXPECT_EQ(ByIngredient(blank).size(), 6);
}

TEST_F(IngredientSearch, RecordNumbersAreReadAsTheNumberReaderReadsThem)
{
    // "1E0" from character 52 on is the number 1; 40000 does not fit a
    // record number and reads as 0.
    book.names(RecipeType::Desserts, {QByteArray(51, 'A') + " 1E0", Entry(u"Brownies", 5), Entry(u"Zabaglione", 40000)});
    write();
    EXPECT_EQ(ByIngredient(Terms("eggs")), (QList<SearchHit>{{kDesserts, QString(51, u'A') + " 1E0"}}));
    EXPECT_EQ(ByIngredient(Terms("cocoa")),
              (QList<SearchHit>{{kDesserts, EntryText(u"Brownies", 5)}, {kDesserts, EntryText(u"Zabaglione", 40000)}}));
}

TEST_F(IngredientSearch, AccentedLettersMatchAcrossCase)
{
    book.recipe(7, {u"CRÈME FRAÎCHE"_s, u"jalapeño"_s, u"œufs"_s});
    book.names(RecipeType::Dips, {Entry(u"Sour dip", 7)});
    write();
    const QList<SearchHit> dip = {{QStringLiteral("Dips"), EntryText(u"Sour dip", 7)}};
    EXPECT_EQ(ByIngredient(Terms(u"crème fraîche"_s)), dip);
    EXPECT_EQ(ByIngredient(Terms(u"JALAPEÑO"_s)), dip);
    EXPECT_EQ(ByIngredient(Terms(u" ŒUFS "_s)), dip);
}

TEST_F(IngredientSearch, MissingRecipeFilesAreCreatedByTheWalk)
{
    write();
    QFile::remove(folder.filePath("Recipe2.db1"));
    EXPECT_TRUE(ByIngredient(Terms("eggs")).isEmpty());
    EXPECT_TRUE(QFile::exists(folder.filePath("Recipe2.db1")));
    EXPECT_TRUE(QFile::exists(folder.filePath("Recipe4.db1")));
}

// --- Rules of the boxes -----------------------------------------------------

struct CompactRow {
    const char* name;
    std::array<QString, 3> before;
    std::array<QString, 3> after;
};

TEST(IngredientSearchBoxes, CompactBoxesTable)
{
    const CompactRow rows[] = {
        {"all filled stay", {"a", "b", "c"}, {"a", "b", "c"}},
        {"box 3 alone lands in box 1", {"", "", "c"}, {"c", "", ""}},
        {"box 2 alone moves to box 1", {"", "b", ""}, {"b", "", ""}},
        {"box 3 fills an empty box 2", {"a", "", "c"}, {"a", "c", ""}},
        {"box 2 moves up, box 3 stays", {"", "b", "c"}, {"b", "", "c"}},
        {"blanks count as empty", {"  ", "   ", " c"}, {" c", "", ""}},
        {"a moved text keeps its blanks", {"a", " ", " c "}, {"a", " c ", ""}},
        {"blank box 3 does not move", {"a", "", "  "}, {"a", "", "  "}},
        {"nothing at all", {"", "", ""}, {"", "", ""}},
    };
    for (const CompactRow& row : rows) {
        QString box1 = row.before[0], box2 = row.before[1], box3 = row.before[2];
        CompactBoxes(box1, box2, box3);
        EXPECT_EQ((std::array<QString, 3>{box1, box2, box3}), row.after) << row.name;
    }
}

TEST(IngredientSearchBoxes, FrameTermCountAndMatchModeTable)
{
    struct Row {
        const char* name;
        QString box2, box3;
        bool frame;
        int termCount;
    };
    const Row rows[] = {
        {"both empty", "", "", false, 1},
        {"blanks alone", "  ", " ", false, 1},
        {"box 2", "b", "", true, 2},
        {"box 2 and blank box 3", "b", "  ", true, 2},
        {"boxes 2 and 3", "b", "c", true, 3},
        {"box 3 alone", "", "c", true, 1},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(MultiIngredientFrameShown(row.box2, row.box3), row.frame) << row.name;
        EXPECT_EQ(TermCount(row.box2, row.box3), row.termCount) << row.name;
    }
    EXPECT_EQ(MatchMode(false, true), 0);
    EXPECT_EQ(MatchMode(false, false), 0);
    EXPECT_EQ(MatchMode(true, true), 1);
    EXPECT_EQ(MatchMode(true, false), 2);
}

TEST(IngredientSearchBoxes, RefusalsComeInTheirOrder)
{
    IngredientQuery query = Terms("egg");
    EXPECT_TRUE(IngredientSearchRefusals(query, false).isEmpty());
    EXPECT_EQ(IngredientSearchRefusals(query, true), QStringList{"Please Select Type of Recipe to Search"});
    query.onlyType = RecipeType::Dips;
    EXPECT_TRUE(IngredientSearchRefusals(query, true).isEmpty());
    query.box1.clear();
    EXPECT_EQ(IngredientSearchRefusals(query, false), QStringList{"Please enter at least one ingredient to Search"});
    query.onlyType.reset();
    EXPECT_EQ(IngredientSearchRefusals(query, true),
              (QStringList{"Please Select Type of Recipe to Search", "Please enter at least one ingredient to Search"}));
    EXPECT_EQ(kSearchTitle, "Search");
}

TEST(RecipeSearchTexts, CountLabelsAndMessages)
{
    EXPECT_EQ(NameSearchCountText(3), "Number of Recipe Matches Found: 3");
    EXPECT_EQ(IngredientSearchCountText(false, 12), "All Recipes - Number of Ingredient Matches Found: 12");
    EXPECT_EQ(IngredientSearchCountText(true, 1), "By Type - Number of Ingredient Matches Found: 1");
    EXPECT_EQ(kNoMatchingRecipes, "No Matching Recipes were found!");
    EXPECT_EQ(kNoMatchingIngredients, "No Matching Ingredients were found!");
}

// --- Upper case and order ---------------------------------------------------

TEST(RecipeSearchUpperCase, EveryByteOfTheCodePage)
{
    for (int b = 0; b < 256; ++b) {
        int expected = b;
        if ((b >= 'a' && b <= 'z') || (b >= 0xE0 && b <= 0xFE && b != 0xF7))
            expected = b - 0x20;
        else if (b == 0x9A || b == 0x9C || b == 0x9E)
            expected = b - 0x10;
        else if (b == 0xFF)
            expected = 0x9F;
        const char byte = char(b);
        EXPECT_EQ(UpperCaseCp1252(QByteArrayView(&byte, 1)), QByteArray(1, char(expected))) << b;
        EXPECT_EQ(ToCp1252(reference::UpperCase(FromCp1252(QByteArrayView(&byte, 1)))), QByteArray(1, char(expected)))
            << b;
    }
}

TEST(RecipeSearchUpperCase, QStringToUpperDiffersOnMicroAndSharpS)
{
    // Why the search has a table of its own.
    EXPECT_NE(ToCp1252(FromCp1252("\xB5").toUpper()), QByteArray("\xB5"));
    EXPECT_EQ(FromCp1252("\xDF").toUpper(), "SS");
    EXPECT_EQ(UpperCaseCp1252("\xB5\xDF"), QByteArray("\xB5\xDF"));
}

TEST(RecipeSearchOrder, ByteOrderAgreesWithSortEntriesOnEveryPairOfCharacters)
{
    for (int a = 0; a < 256; ++a) {
        for (int b = 0; b < 256; ++b) {
            const QByteArray ba(1, char(a)), bb(1, char(b));
            const bool before = QString::compare(FromCp1252(ba), FromCp1252(bb), Qt::CaseInsensitive) < 0;
            ASSERT_EQ(SortsBeforeCp1252(ba, bb), before) << a << " " << b;
        }
    }
}

TEST(RecipeSearchOrder, ByteOrderAgreesWithSortEntriesOnRandomTexts)
{
    std::mt19937 random(kRandomStart);
    const QByteArray alphabet = ToCp1252(u"aAbBzZ eE \u00e9\u00c9\u00ff\u0178\u0161\u0160\u00b5\u00df\u00f7\u00d7_0~[\x01");
    std::uniform_int_distribution<int> length(0, 12);
    std::uniform_int_distribution<int> pick(0, int(alphabet.size()) - 1);
    QStringList texts;
    for (int i = 0; i < 600; ++i) {
        QByteArray text;
        for (int n = length(random); n > 0; --n)
            text += alphabet[pick(random)];
        texts << FromCp1252(text);
    }
    for (int i = 0; i + 1 < texts.size(); ++i) {
        const QByteArray a = ToCp1252(texts[i]), b = ToCp1252(texts[i + 1]);
        ASSERT_EQ(SortsBeforeCp1252(a, b), QString::compare(texts[i], texts[i + 1], Qt::CaseInsensitive) < 0)
            << texts[i].toStdString() << " | " << texts[i + 1].toStdString();
        ASSERT_EQ(SortsBeforeCp1252(b, a), QString::compare(texts[i + 1], texts[i], Qt::CaseInsensitive) < 0);
    }
}

// --- The fast searches against the record-by-record walk --------------------

const QStringList& IngredientWords()
{
    static const QStringList words = {
        "egg", "eggs", "Eggplant", "Veggie", "nutmeg", "flour", "sugar", "BUTTER", "butter", "milk", "Milk",
        u"crème"_s, u"fraîche"_s, u"jalapeño"_s, u"Œufs"_s, u"piñon"_s, u"ÿogurt"_s, u"Ÿogurt"_s,
        u"straße"_s, u"µ-spice"_s, u"BÉCHAMEL"_s, u"béchamel"_s, "salt", "2", "cups", "1/2", "oz.", "beaten",
        "diced", "oil", "thyme", "leek",
    };
    return words;
}

const QStringList& NameWords()
{
    static const QStringList words = {
        "Egg", "egg", "Eggplant", "Veggie", "salad", "Salad", "SALAD", "bread", "Apple", "apple", "APPLE", "pie",
        u"crème"_s, u"brûlée"_s, u"Œufs"_s, u"Ÿvonne's"_s, "Nog", "17", "stew", "Zucchini", "a",
    };
    return words;
}

class Generator {
public:
    explicit Generator(std::mt19937& random) : random_(random) {}

    int below(int n) { return std::uniform_int_distribution<int>(0, n - 1)(random_); }
    bool chance(int percent) { return below(100) < percent; }
    const QString& pick(const QStringList& list) { return list[below(int(list.size()))]; }

    QString words(const QStringList& from, int most)
    {
        QStringList out;
        for (int n = 1 + below(most); n > 0; --n)
            out << pick(from);
        return out.join(chance(30) ? QStringLiteral(", ") : QStringLiteral(" "));
    }

    // A search word: a word, a piece of one, with or without blanks around.
    QString term(const QStringList& from)
    {
        QString word = pick(from);
        if (chance(40) && word.size() > 2) {
            const int start = below(int(word.size()) - 1);
            word = word.mid(start, 1 + below(int(word.size()) - start));
        }
        if (chance(20))
            word = word.toUpper();
        if (chance(25))
            word.prepend(u' ');
        if (chance(10))
            word.append(u' ');
        if (chance(3))
            word = QStringLiteral("  ");
        return word;
    }

    void cookbook(CookbookFiles& book, int slotCount)
    {
        for (int slot = 1; slot <= slotCount; ++slot) {
            if (chance(8)) {
                book.deleted(slot);
                continue;
            }
            QList<QString> rows;
            const int filled = chance(15) ? 20 : below(21);
            for (int row = 0; row < filled; ++row)
                rows << (chance(15) ? QString() : words(IngredientWords(), 3));
            book.recipe(slot, rows);
        }
        // Eight types get name files; one of them starts with an empty
        // slot, one with a cleared one.
        QList<RecipeType> types;
        while (types.size() < 8) {
            const auto type = static_cast<RecipeType>(1 + below(kRecipeTypeCount));
            if (!types.contains(type))
                types << type;
        }
        std::array<QList<QByteArray>, 8> files;
        for (int slot = 1; slot <= slotCount + 20; ++slot) {
            // A few entries point past the end of the recipe file.
            files[std::size_t(below(8))] << layout::Entry(words(NameWords(), 3), slot);
        }
        for (int f = 0; f < 8; ++f) {
            QList<QByteArray>& file = files[std::size_t(f)];
            for (int n = below(4); n > 0; --n)
                file.insert(below(int(file.size()) + 1), " ");
            for (int n = below(3); n > 0; --n)
                file.insert(below(int(file.size()) + 1), "");
            if (chance(50))
                file.insert(below(int(file.size()) + 1), layout::Entry(words(NameWords(), 2), 0));
            if (chance(50))
                file.insert(below(int(file.size()) + 1), layout::Cp(words(NameWords(), 2)));
            if (chance(30))
                file.insert(below(int(file.size()) + 1), layout::Entry(words(NameWords(), 2), 40000));
            if (chance(30) && !file.isEmpty())
                file.insert(below(int(file.size()) + 1), file[below(int(file.size()))]); // the same entry twice
        }
        files[0].prepend("");
        files[1].prepend(" ");
        for (int f = 0; f < 8; ++f)
            book.names(types[f], files[std::size_t(f)]);
    }

    std::array<QString, kRecipeRows> buffer()
    {
        std::array<QString, kRecipeRows> rows{};
        for (QString& row : rows) {
            if (chance(40))
                row = words(IngredientWords(), 2);
        }
        return rows;
    }

private:
    std::mt19937& random_;
};

std::string Describe(const QList<SearchHit>& hits)
{
    std::string out;
    for (const SearchHit& hit : hits)
        out += hit.typeName.toStdString() + " | " + hit.entry.toStdString() + "\n";
    return out;
}

TEST(SearchAgainstReference, FastSearchesGiveTheRowsOfTheRecordByRecordWalk)
{
    std::mt19937 random(kRandomStart);
    Generator generate(random);
    int nameQueries = 0;
    int ingredientQueries = 0;
    int nonEmpty = 0;
    for (int round = 0; round < 3; ++round) {
        TempProgramFolder folder;
        CookbookFiles book;
        generate.cookbook(book, 220);
        ASSERT_TRUE(book.write(folder.path()));

        QStringList nameTerms = {kViewAllText, " egg", "egg", "EGG", "  ", "17", "0", u"ÿ"_s, u"Ÿ"_s, "zzz", "e",
                                 " e", u"crÈme"_s, "SS", u"ß"_s};
        for (int i = 0; i < 25; ++i)
            nameTerms << generate.term(NameWords());
        for (const QString& term : nameTerms) {
            const QList<SearchHit> fast = SearchByName(kBook, term);
            const QList<SearchHit> slow = reference::SearchByName(kBook, term);
            ASSERT_EQ(fast, slow) << "name search for [" << term.toStdString() << "]\nfast:\n"
                                  << Describe(fast) << "walk:\n" << Describe(slow);
            ++nameQueries;
            nonEmpty += fast.isEmpty() ? 0 : 1;
        }

        QList<IngredientQuery> fixed = {
            Terms("egg"), Terms(" egg"), Terms("egg "), Terms(" "), Terms("eggs", "milk", {}, true),
            Terms("eggs", "milk", {}, false), Terms("egg", "milk", "flour", true), Terms("egg", "milk", "flour", false),
            Terms(u"CRÈME"_s, u" jalapeño"_s, "salt", true), Terms("", "", "veggie"), Terms("salt", "", "oil", false),
        };
        for (RecipeType type : AllRecipeTypes()) {
            IngredientQuery byType = Terms("egg", "butter", {}, generate.chance(50));
            byType.onlyType = type;
            fixed << byType;
        }
        for (const IngredientQuery& query : fixed) {
            const std::array<QString, kRecipeRows> buffer = generate.buffer();
            ASSERT_EQ(SearchByIngredient(kBook, query, buffer), reference::SearchByIngredient(kBook, query, buffer))
                << "[" << query.box1.toStdString() << "] [" << query.box2.toStdString() << "] ["
                << query.box3.toStdString() << "]";
            ++ingredientQueries;
        }
        for (int i = 0; i < 60; ++i) {
            IngredientQuery query;
            query.box1 = generate.chance(5) ? QString() : generate.term(IngredientWords());
            query.box2 = generate.chance(50) ? QString() : generate.term(IngredientWords());
            query.box3 = generate.chance(60) ? QString() : generate.term(IngredientWords());
            query.allOfTerms = generate.chance(50);
            if (generate.chance(30))
                query.onlyType = static_cast<RecipeType>(1 + generate.below(kRecipeTypeCount));
            if (generate.chance(70))
                CompactBoxes(query.box1, query.box2, query.box3);
            const std::array<QString, kRecipeRows> buffer = generate.buffer();
            const QList<SearchHit> fast = SearchByIngredient(kBook, query, buffer);
            const QList<SearchHit> slow = reference::SearchByIngredient(kBook, query, buffer);
            ASSERT_EQ(fast, slow) << "ingredient search for [" << query.box1.toStdString() << "] ["
                                  << query.box2.toStdString() << "] [" << query.box3.toStdString()
                                  << "] all " << query.allOfTerms << "\nfast:\n"
                                  << Describe(fast) << "walk:\n" << Describe(slow);
            ++ingredientQueries;
            nonEmpty += fast.isEmpty() ? 0 : 1;
        }
    }
    EXPECT_EQ(nameQueries, 120);
    EXPECT_EQ(ingredientQueries, 3 * (11 + 22 + 60));
    // The queries must find things, or agreeing would prove little.
    EXPECT_GT(nonEmpty, 150);
}

} // namespace
