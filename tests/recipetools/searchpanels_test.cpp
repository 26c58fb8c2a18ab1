// The search panels built offscreen: captions, headings, the options frame,
// count labels and no-match panels, the View All blank, double clicks and
// the busy pointer. The panels show no messages; they only signal.
#include "recipetools/screens/ingredientsearchpanel.h"
#include "recipetools/screens/namesearchpanel.h"
#include "recipetools/screens/searchoptionspanel.h"

#include "cookbook/logic/cookbooknames.h"
#include "shell/settings/settingsslots.h"

#include "cookbook_files.h"
#include "temp_program_folder.h"
#include "raw_slots.h"

#include <QApplication>
#include <QFocusEvent>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTest>
#include <gtest/gtest.h>

namespace {

using layout::EntryText;

const QList<SearchHit> kTwoHits = {
    {QStringLiteral("Desserts"), EntryText(u"Deviled eggs", 3)},
    {QStringLiteral("Vegetables"), EntryText(u"Eggplant Parmesan", 12)},
};

QPushButton* Button(QWidget& panel, const QString& caption)
{
    for (QPushButton* button : panel.findChildren<QPushButton*>()) {
        if (button->text() == caption)
            return button;
    }
    ADD_FAILURE() << "no button " << caption.toStdString();
    return nullptr;
}

bool HasLabel(QWidget& panel, const QString& text)
{
    for (QLabel* label : panel.findChildren<QLabel*>()) {
        if (label->text() == text)
            return true;
    }
    return false;
}

QStringList Headings(const QTableWidget* grid)
{
    QStringList headings;
    for (int column = 0; column < grid->columnCount(); ++column)
        headings << grid->horizontalHeaderItem(column)->text();
    return headings;
}

QLabel* CountLabel(QWidget& panel)
{
    return panel.findChild<QLabel*>("lblMatches");
}

QLabel* NoMatchPanel(QWidget& panel)
{
    return panel.findChild<QLabel*>("pnlNoMatch");
}

void EnterBox(QLineEdit* box)
{
    QFocusEvent focusIn(QEvent::FocusIn, Qt::TabFocusReason);
    QCoreApplication::sendEvent(box, &focusIn);
}

void DoubleClickRow(QTableWidget* grid, int row)
{
    const QRect cell = grid->visualItemRect(grid->item(row, 1));
    // A real double click: the first click presses the row, then the double click.
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, cell.center());
    QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, cell.center());
}

// --- Search Options ---------------------------------------------------------

TEST(SearchOptionsPanel, CaptionsAndSignals)
{
    QWidget host;
    SearchOptionsPanel panel(&host);
    EXPECT_EQ(panel.objectName(), "Search Options");
    EXPECT_TRUE(HasLabel(panel, "Search Options"));
    QSignalSpy byRecipe(&panel, &SearchOptionsPanel::byRecipeRequested);
    QSignalSpy byIngredient(&panel, &SearchOptionsPanel::byIngredientRequested);
    QSignalSpy cancel(&panel, &SearchOptionsPanel::closeRequested);
    Button(panel, "Search by &Recipe")->click();
    Button(panel, "Search by &Ingredient")->click();
    Button(panel, "Ca&ncel")->click();
    EXPECT_EQ(byRecipe.count(), 1);
    EXPECT_EQ(byIngredient.count(), 1);
    EXPECT_EQ(cancel.count(), 1);
}

// --- Search Files by Recipe -------------------------------------------------

class NameSearchPanelTest : public ::testing::Test {
protected:
    NameSearchPanelTest() : panel(&host) { host.resize(900, 700); }

    TempProgramFolder folder;
    QWidget host;
    NameSearchPanel panel;
};

TEST_F(NameSearchPanelTest, CaptionsHeadingsAndFirstState)
{
    EXPECT_EQ(panel.objectName(), "Search Files by Recipe");
    EXPECT_TRUE(HasLabel(panel, "Search Files by Recipe"));
    EXPECT_TRUE(HasLabel(panel, "Enter Search Word(s):"));
    EXPECT_EQ(panel.searchBox()->objectName(), "Text12");
    for (const char* caption : {"&Search", "View &All Recipes", "&View Selected Recipe", "&Close"})
        EXPECT_NE(Button(panel, caption), nullptr) << caption;
    EXPECT_FALSE(Button(panel, "&View Selected Recipe")->isEnabled());

    QTableWidget* grid = panel.grid();
    EXPECT_EQ(grid->objectName(), "VSFlexGrid1");
    EXPECT_EQ(Headings(grid), (QStringList{"Type Recipe", "Recipe Name"}));
    EXPECT_EQ(grid->editTriggers(), QAbstractItemView::NoEditTriggers);
    EXPECT_EQ(grid->selectionBehavior(), QAbstractItemView::SelectRows);
    EXPECT_EQ(grid->rowCount(), 0);
    EXPECT_TRUE(CountLabel(panel)->isHidden());
    EXPECT_TRUE(NoMatchPanel(panel)->isHidden());
    EXPECT_EQ(NoMatchPanel(panel)->text(), "No Matching Recipes were found!");
}

TEST_F(NameSearchPanelTest, HitsFillTheGridTheCountLabelAndEnableViewSelected)
{
    panel.showResults(kTwoHits);
    QTableWidget* grid = panel.grid();
    ASSERT_EQ(grid->rowCount(), 2);
    EXPECT_EQ(grid->item(0, 0)->text(), "Desserts");
    EXPECT_EQ(grid->item(0, 1)->text(), "Deviled eggs") << "the record number stays out of sight";
    EXPECT_EQ(grid->item(0, 1)->data(Qt::UserRole).toString(), EntryText(u"Deviled eggs", 3));
    EXPECT_EQ(grid->item(1, 0)->text(), "Vegetables");
    EXPECT_EQ(grid->item(1, 1)->data(Qt::UserRole).toString(), EntryText(u"Eggplant Parmesan", 12));

    EXPECT_FALSE(CountLabel(panel)->isHidden());
    EXPECT_EQ(CountLabel(panel)->text(), "Number of Recipe Matches Found: 2");
    EXPECT_TRUE(CountLabel(panel)->alignment() & Qt::AlignHCenter);
    EXPECT_TRUE(NoMatchPanel(panel)->isHidden());
    EXPECT_TRUE(Button(panel, "&View Selected Recipe")->isEnabled());
    EXPECT_EQ(panel.selectedHit(), kTwoHits[0]);
}

TEST_F(NameSearchPanelTest, NoHitsShowTheNoMatchPanelAndHideTheCount)
{
    panel.showResults(kTwoHits);
    panel.showResults({});
    EXPECT_EQ(panel.grid()->rowCount(), 0);
    EXPECT_FALSE(NoMatchPanel(panel)->isHidden());
    EXPECT_TRUE(CountLabel(panel)->isHidden());
    EXPECT_FALSE(panel.selectedHit());
}

TEST_F(NameSearchPanelTest, SearchSendsTheBoxTextAndAnEmptyBoxDoesNothing)
{
    QSignalSpy search(&panel, &NameSearchPanel::searchRequested);
    Button(panel, "&Search")->click();
    EXPECT_EQ(search.count(), 0);
    panel.searchBox()->setText(" egg");
    Button(panel, "&Search")->click();
    ASSERT_EQ(search.count(), 1);
    EXPECT_EQ(search.at(0).at(0).toString(), " egg");
}

TEST_F(NameSearchPanelTest, ViewAllLeavesASingleBlankThatEnteringTheBoxClears)
{
    QSignalSpy viewAll(&panel, &NameSearchPanel::viewAllRequested);
    panel.searchBox()->setText("pie");
    Button(panel, "View &All Recipes")->click();
    EXPECT_EQ(viewAll.count(), 1);
    EXPECT_EQ(panel.searchBox()->text(), " ");
    EnterBox(panel.searchBox());
    EXPECT_EQ(panel.searchBox()->text(), "");

    panel.searchBox()->setText(" pie");
    EnterBox(panel.searchBox());
    EXPECT_EQ(panel.searchBox()->text(), " pie") << "only the single blank goes";
}

TEST_F(NameSearchPanelTest, DoubleClickOnARowIsViewSelected)
{
    host.show();
    panel.open();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&host));
    panel.showResults(kTwoHits);
    QSignalSpy view(&panel, &NameSearchPanel::viewSelectedRequested);
    DoubleClickRow(panel.grid(), 1);
    EXPECT_EQ(view.count(), 1);
    EXPECT_EQ(panel.selectedHit(), kTwoHits[1]);
    Button(panel, "&View Selected Recipe")->click();
    EXPECT_EQ(view.count(), 2);
}

TEST_F(NameSearchPanelTest, ViewSelectedWithoutARowDoesNothing)
{
    panel.showResults(kTwoHits);
    panel.grid()->clearSelection();
    QSignalSpy view(&panel, &NameSearchPanel::viewSelectedRequested);
    Button(panel, "&View Selected Recipe")->click();
    EXPECT_EQ(view.count(), 0);
}

TEST_F(NameSearchPanelTest, CloseSignals)
{
    QSignalSpy close(&panel, &NameSearchPanel::closeRequested);
    Button(panel, "&Close")->click();
    EXPECT_EQ(close.count(), 1);
}

TEST_F(NameSearchPanelTest, TheHourglassShowsDuringASearch)
{
    bool busy = false;
    panel.runSearch([&] {
        busy = QApplication::overrideCursor() && QApplication::overrideCursor()->shape() == Qt::WaitCursor;
        return kTwoHits;
    });
    EXPECT_TRUE(busy);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(panel.grid()->rowCount(), 2);
}

TEST_F(NameSearchPanelTest, TheGridTakesTheSharedGridColoursWhenShown)
{
    WriteSlotText(GColor1, 28, u"255");      // red
    WriteSlotText(GColor1, 29, u"16711680"); // blue
    host.show();
    panel.open();
    EXPECT_EQ(panel.grid()->palette().color(QPalette::Base), QColor(255, 0, 0));
    EXPECT_EQ(panel.grid()->palette().color(QPalette::Text), QColor(0, 0, 255));
}

TEST_F(NameSearchPanelTest, ACookbookOfEmptyTypesShowsNoMatchingRecipes)
{
    for (RecipeType type : AllRecipeTypes())
        folder.writeBytes(NameFileName(1, type), {});
    QObject::connect(&panel, &NameSearchPanel::searchRequested, &panel,
                     [&](const QString& text) { panel.runSearch([&] { return SearchByName(1, text); }); });
    panel.searchBox()->setText("egg");
    Button(panel, "&Search")->click();
    EXPECT_FALSE(NoMatchPanel(panel)->isHidden());
    EXPECT_EQ(NoMatchPanel(panel)->text(), "No Matching Recipes were found!");
    EXPECT_TRUE(CountLabel(panel)->isHidden());
}

// --- Search Recipes by Ingredient -------------------------------------------

class IngredientSearchPanelTest : public ::testing::Test {
protected:
    IngredientSearchPanelTest() : panel(&host) { host.resize(900, 800); }

    bool frameShown() const { return !panel.optionsFrame()->isHidden(); }
    void pickType(const QString& name)
    {
        const QList<QListWidgetItem*> items = panel.typeList()->findItems(name, Qt::MatchExactly);
        ASSERT_EQ(items.size(), 1);
        panel.typeList()->setCurrentItem(items.first());
    }

    TempProgramFolder folder;
    QWidget host;
    IngredientSearchPanel panel;
};

TEST_F(IngredientSearchPanelTest, CaptionsHeadingsAndTypeList)
{
    EXPECT_EQ(panel.objectName(), "Search Recipes by Ingredient");
    EXPECT_TRUE(HasLabel(panel, "Search Recipes by Ingredient"));
    EXPECT_TRUE(HasLabel(panel, "Enter Search Ingredient(s) -"));
    EXPECT_TRUE(HasLabel(panel, "Select Type of Recipe - If Desired -"));
    EXPECT_EQ(panel.box(1)->objectName(), "Text13");
    EXPECT_EQ(panel.box(2)->objectName(), "Text14");
    EXPECT_EQ(panel.box(3)->objectName(), "Text15");
    int optional = 0;
    for (QLabel* label : panel.findChildren<QLabel*>())
        optional += label->text() == "(Optional)" ? 1 : 0;
    EXPECT_EQ(optional, 2);

    EXPECT_EQ(panel.optionsFrame()->title(), "Multi-Ingredient Options");
    QStringList options;
    for (QRadioButton* option : panel.optionsFrame()->findChildren<QRadioButton*>())
        options << option->text();
    EXPECT_EQ(options, (QStringList{"Must contain All Ingredients", "At least One of the Ingredients"}));

    QStringList types;
    for (int row = 0; row < panel.typeList()->count(); ++row)
        types << panel.typeList()->item(row)->text();
    EXPECT_EQ(types, RecipeTypeNames());
    EXPECT_EQ(types.size(), 22);

    for (const char* caption : {"Search &All Recipes", "&Search By Type", "&View Selected Recipe", "&Close"})
        EXPECT_NE(Button(panel, caption), nullptr) << caption;
    EXPECT_FALSE(Button(panel, "&View Selected Recipe")->isEnabled());
    EXPECT_EQ(panel.grid()->objectName(), "VSFlexGrid2");
    EXPECT_EQ(Headings(panel.grid()), (QStringList{"Recipe Type", "Recipe Name"}));
    EXPECT_EQ(panel.grid()->editTriggers(), QAbstractItemView::NoEditTriggers);
    EXPECT_EQ(NoMatchPanel(panel)->text(), "No Matching Ingredients were found!");
    EXPECT_TRUE(NoMatchPanel(panel)->isHidden());
    EXPECT_TRUE(CountLabel(panel)->isHidden());
}

TEST_F(IngredientSearchPanelTest, TheOptionsFrameShowsWhileBoxTwoOrThreeHoldsMoreThanBlanks)
{
    EXPECT_FALSE(frameShown());
    panel.box(1)->setText("egg");
    EXPECT_FALSE(frameShown()) << "box 1 does not count";
    panel.box(2)->setText("   ");
    EXPECT_FALSE(frameShown()) << "blanks alone do not count";
    panel.box(2)->setText(" milk");
    EXPECT_TRUE(frameShown());
    panel.box(2)->clear();
    EXPECT_FALSE(frameShown());
    panel.box(3)->setText("flour");
    EXPECT_TRUE(frameShown());
    panel.box(3)->clear();
    EXPECT_FALSE(frameShown());
}

TEST_F(IngredientSearchPanelTest, ACommandCompactsTheBoxesFirst)
{
    QSignalSpy all(&panel, &IngredientSearchPanel::searchAllRequested);
    panel.box(3)->setText("milk");
    EXPECT_TRUE(frameShown());
    pickType("Breads");
    Button(panel, "Search &All Recipes")->click();
    EXPECT_EQ(all.count(), 1);
    EXPECT_EQ(panel.box(1)->text(), "milk");
    EXPECT_EQ(panel.box(2)->text(), "");
    EXPECT_EQ(panel.box(3)->text(), "");
    EXPECT_FALSE(frameShown());
    const IngredientQuery query = panel.query();
    EXPECT_EQ(query.box1, "milk");
    EXPECT_FALSE(query.onlyType) << "Search All Recipes ignores the picked type";
    EXPECT_EQ(TermCount(query.box2, query.box3), 1);
}

TEST_F(IngredientSearchPanelTest, SearchByTypeCarriesThePickedTypeAndTheOption)
{
    QSignalSpy byType(&panel, &IngredientSearchPanel::searchByTypeRequested);
    panel.box(1)->setText("egg");
    panel.box(2)->setText("milk");
    panel.findChild<QRadioButton*>("optOneIngredient")->setChecked(true);
    Button(panel, "&Search By Type")->click();
    EXPECT_EQ(byType.count(), 1);
    EXPECT_FALSE(panel.query().onlyType);
    EXPECT_EQ(IngredientSearchRefusals(panel.query(), panel.searchByType()),
              QStringList{"Please Select Type of Recipe to Search"});

    pickType("Lowin fat or calorie meals");
    Button(panel, "&Search By Type")->click();
    const IngredientQuery query = panel.query();
    EXPECT_EQ(query.onlyType, RecipeType::LowinFatOrCalorieMeals);
    EXPECT_FALSE(query.allOfTerms);
    EXPECT_EQ(MatchMode(MultiIngredientFrameShown(query.box2, query.box3), query.allOfTerms), 2);
    EXPECT_TRUE(IngredientSearchRefusals(query, true).isEmpty());
}

TEST_F(IngredientSearchPanelTest, CountLabelSaysWhichSearchFoundTheHits)
{
    panel.box(1)->setText("egg");
    Button(panel, "Search &All Recipes")->click();
    panel.showResults(kTwoHits);
    EXPECT_EQ(CountLabel(panel)->text(), "All Recipes - Number of Ingredient Matches Found: 2");
    EXPECT_FALSE(CountLabel(panel)->isHidden());
    EXPECT_TRUE(Button(panel, "&View Selected Recipe")->isEnabled());
    EXPECT_EQ(panel.grid()->item(1, 1)->data(Qt::UserRole).toString(), kTwoHits[1].entry);

    pickType("Desserts");
    Button(panel, "&Search By Type")->click();
    panel.showResults({kTwoHits[0]});
    EXPECT_EQ(CountLabel(panel)->text(), "By Type - Number of Ingredient Matches Found: 1");
}

TEST_F(IngredientSearchPanelTest, NoHitsShowTheNoMatchPanelAndKeepViewSelectedDisabled)
{
    panel.showResults(kTwoHits);
    panel.showResults({});
    EXPECT_FALSE(NoMatchPanel(panel)->isHidden());
    EXPECT_TRUE(CountLabel(panel)->isHidden());
    EXPECT_FALSE(Button(panel, "&View Selected Recipe")->isEnabled());
    EXPECT_EQ(panel.grid()->rowCount(), 0);
}

TEST_F(IngredientSearchPanelTest, DoubleClickOnARowIsViewSelected)
{
    host.show();
    panel.open();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&host));
    panel.showResults(kTwoHits);
    QSignalSpy view(&panel, &IngredientSearchPanel::viewSelectedRequested);
    DoubleClickRow(panel.grid(), 1);
    EXPECT_EQ(view.count(), 1);
    EXPECT_EQ(panel.selectedHit(), kTwoHits[1]);
}

TEST_F(IngredientSearchPanelTest, TheHourglassShowsDuringASearch)
{
    bool busy = false;
    panel.runSearch([&] {
        busy = QApplication::overrideCursor() && QApplication::overrideCursor()->shape() == Qt::WaitCursor;
        return QList<SearchHit>{};
    });
    EXPECT_TRUE(busy);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_FALSE(NoMatchPanel(panel)->isHidden());
}

TEST_F(IngredientSearchPanelTest, TheGridTakesTheSharedGridColoursWhenShown)
{
    WriteSlotText(GColor1, 28, u"65280"); // green
    host.show();
    panel.open();
    EXPECT_EQ(panel.grid()->palette().color(QPalette::Base), QColor(0, 255, 0));
}

} // namespace
