// Printing from the recipe screen: the print options panel over the screen,
// the recipe's layouts and amount formats, additional half-page recipes, the
// worksheet, leaving the panel, and a recipe printed to a PDF file.
#include "common/clock.h"
#include "common/dates.h"
#include "recipetools/screens/additionalrecipespanel.h"
#include "recipetools/screens/recipeprintoptions.h"
#include "print/logic/pagebuilder.h"
#include "print/logic/printfont.h"
#include "print/screens/pagepreview.h"
#include "print/screens/printoptionspanel.h"
#include "shell/kit/screenstatusbar.h"

#include "form5_fixture.h"
#include "pdf_text.h"

#include <QCheckBox>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>

namespace {

class Form5PrintTest : public Form5Test {
protected:
    Form5PrintTest() { PrintFont() = TextFont{}; }
    ~Form5PrintTest() override { PrintFont() = TextFont{}; }

    // Saves a bread recipe with fractions in both halves and views it.
    std::unique_ptr<Form5> viewedBread()
    {
        auto form = open();
        form->setClock(clock);
        form->resize(1100, 800);
        form->show();
        startRecipe(*form, "Breads", "Apple Bread");
        typeRow(*form, 0, "1.5", "cups", "flour");
        typeRow(*form, 1, ".125", "tsp", "salt");
        typeRow(*form, 10, ".33", "cup", "sugar");
        QTest::keyClicks(fields(*form)->directionsBox(), "Mix well and bake.");
        QTest::keyClicks(fields(*form)->yieldAmountBox(), "2");
        Choose(fields(*form)->yieldTypeList(), "Serving(s)");
        act(*form, "mSave")->trigger();
        act(*form, "mView")->trigger();
        Choose(fields(*form)->typeList(), "Breads");
        pick(*form, "Apple Bread");
        return form;
    }

    PrintOptionsPanel* panel(Form5& form) { return form.printPanel(); }
    QStringList texts(Form5& form) { return form.printPanel()->document().allTexts(); }
    void chooseOption(Form5& form, const char* name) { form.findChild<QRadioButton*>(name)->click(); }

    FixedClock clock{QDateTime(QDate(2026, 11, 21), QTime(9, 30))};
};

} // namespace

TEST_F(Form5PrintTest, PrintNeedsAShownRecipeAndTheWorksheetDoesNot)
{
    auto form = open();
    EXPECT_FALSE(act(*form, "mPrint")->isEnabled());
    EXPECT_TRUE(act(*form, "mWorksheet")->isEnabled());
    EXPECT_EQ(act(*form, "mPrint")->text(), "&Print Options");
    EXPECT_EQ(act(*form, "mWorksheet")->text(), "Print &Worksheet");
    EXPECT_FALSE(form->findChild<QPushButton*>("Command1_4")->isEnabled());
}

TEST_F(Form5PrintTest, PrintOptionsCoverTheScreenAndComposeTheShownRecipe)
{
    auto form = viewedBread();
    form->findChild<QPushButton*>("Command1_4")->click();
    EXPECT_TRUE(panel(*form)->isVisible());
    EXPECT_EQ(panel(*form)->geometry(), form->centralWidget()->rect());
    EXPECT_FALSE(form->menuBar()->isEnabled());
    EXPECT_EQ(form->findChild<ScreenStatusBar*>()->activity(), "Print Options");
    for (const char* command : {"mCreate", "mView", "mModify", "mPrint", "mWorksheet", "mDelete"})
        EXPECT_FALSE(act(*form, command)->isEnabled()) << command;
    const QStringList printed = texts(*form);
    for (const char* text : {"Breads", "Apple Bread", "1 1/2", "cups", "flour", "1/8", "salt", "1/3", "sugar",
                             "Mix well and bake.", "Recipe Yields: 2 Serving(s)", "Brindlepot"})
        EXPECT_TRUE(printed.contains(text)) << text;
    EXPECT_TRUE(printed.contains("Printed on " + ShortDate(QDate(2026, 11, 21))));
}

TEST_F(Form5PrintTest, DefaultsOfEachLoadAreTwoColumnsFractionsAndSize12)
{
    PrintFont().size = 20;
    auto form = viewedBread();
    EXPECT_EQ(PrintFont().size, 12);
    act(*form, "mPrint")->trigger();
    EXPECT_TRUE(form->findChild<QRadioButton*>("PrintLayout_1")->isChecked());
    EXPECT_TRUE(form->findChild<QRadioButton*>("AmountFormat_0")->isChecked());
    EXPECT_EQ(form->findChild<QRadioButton*>("AmountFormat_0")->text(), " Print Amounts as Fractions (1/4)");
    EXPECT_EQ(form->findChild<QRadioButton*>("AmountFormat_1")->text(), "Print Amounts as Decimals (.25)");
    const QStringList layouts{"Full Page Printout (2 Column Ingred.)", "Full Page Printout (1 Column Ingred.)",
                              "Top Half of Page Printout", "Bottom Half of Page Printout"};
    for (int layout = 1; layout <= 4; ++layout)
        EXPECT_EQ(form->findChild<QRadioButton*>(QStringLiteral("PrintLayout_%1").arg(layout))->text(),
                  layouts[layout - 1]);
    // A choice lives as long as the screen; the next load starts afresh.
    chooseOption(*form, "PrintLayout_3");
    chooseOption(*form, "AmountFormat_1");
    form->close();
    auto again = open();
    EXPECT_TRUE(again->findChild<QRadioButton*>("PrintLayout_1")->isChecked());
    EXPECT_TRUE(again->findChild<QRadioButton*>("AmountFormat_0")->isChecked());
}

TEST_F(Form5PrintTest, DecimalsPrintTheFractionsOfTheScreenAsDecimals)
{
    auto form = viewedBread();
    act(*form, "mPrint")->trigger();
    chooseOption(*form, "AmountFormat_1");
    const QStringList printed = texts(*form);
    EXPECT_TRUE(printed.contains("1.5"));
    EXPECT_TRUE(printed.contains(".125"));
    EXPECT_TRUE(printed.contains(".33"));
    EXPECT_FALSE(printed.contains("1 1/2"));
    // The screen itself keeps its fractions.
    EXPECT_EQ(fields(*form)->amountBox(0)->text(), "1 1/2");
}

TEST_F(Form5PrintTest, ModifyModePrintsTheDecimalBoxesAsFractionsOrAsTheyStand)
{
    auto form = viewedBread();
    act(*form, "mModify")->trigger();
    ASSERT_EQ(fields(*form)->amountBox(0)->text(), "1.5");
    act(*form, "mPrint")->trigger();
    EXPECT_TRUE(texts(*form).contains("1 1/2"));
    chooseOption(*form, "AmountFormat_1");
    EXPECT_TRUE(texts(*form).contains("1.5"));
    EXPECT_TRUE(texts(*form).contains(".125"));
    EXPECT_TRUE(texts(*form).contains(".33"));
}

TEST_F(Form5PrintTest, HalfPagesDropTheFooterAndOfferAdditionalRecipes)
{
    auto form = viewedBread();
    act(*form, "mPrint")->trigger();
    auto* select = form->findChild<QPushButton*>("SelectAdditionalRecipes");
    EXPECT_EQ(select->text(), "&Select Additional Recipes");
    EXPECT_FALSE(select->isEnabled());
    chooseOption(*form, "PrintLayout_3");
    EXPECT_TRUE(select->isEnabled());
    EXPECT_FALSE(texts(*form).contains("Brindlepot"));
    chooseOption(*form, "PrintLayout_4");
    const double h = panel(*form)->document().pageHeight;
    EXPECT_EQ(panel(*form)->document().pages[0].findText("Breads")->y, h / 2 + 100);
    chooseOption(*form, "PrintLayout_2");
    EXPECT_FALSE(select->isEnabled());
    EXPECT_TRUE(texts(*form).contains("Brindlepot"));
}

TEST_F(Form5PrintTest, PrintPictureIsOfferedOnlyWithAPictureOnAFullPage)
{
    auto form = viewedBread();
    act(*form, "mPrint")->trigger();
    auto* picture = form->findChild<QCheckBox*>("PrintPicture");
    EXPECT_EQ(picture->text(), "Print Picture");
    EXPECT_FALSE(picture->isEnabled()) << "the recipe has no picture";
    EXPECT_FALSE(picture->isChecked());
}

TEST_F(Form5PrintTest, TheRecipePrintsOnTheBottomHalfWithAnotherOnTopFromTheQueue)
{
    auto form = viewedBread();
    // A second bread to put on top of the sheet.
    saveQuickRecipe(*form, "Breads", "Corn Bread");
    act(*form, "mView")->trigger();
    Choose(fields(*form)->typeList(), "Breads");
    pick(*form, "Apple Bread");
    act(*form, "mPrint")->trigger();
    chooseOption(*form, "PrintLayout_4");
    form->findChild<QPushButton*>("SelectAdditionalRecipes")->click();
    AdditionalRecipesPanel* additional = form->additionalRecipesPanel();
    ASSERT_TRUE(additional->isVisible());
    // The bottom half layout presets the recipe into slot 1.
    EXPECT_EQ(additional->typeList(1)->currentText(), "Breads");
    EXPECT_EQ(additional->recipeList(1)->currentText(), "Apple Bread");
    EXPECT_EQ(additional->typeList(0)->currentIndex(), -1);
    Choose(additional->typeList(0), "Breads");
    Choose(additional->recipeList(0), "Corn Bread");
    additional->findChild<QPushButton*>("AdditionalPrintOptions")->click();
    EXPECT_FALSE(additional->isVisible());
    const PageDocument& document = panel(*form)->document();
    ASSERT_EQ(document.pageCount(), 1);
    const TextItem* top = document.pages[0].findText("Corn Bread");
    const TextItem* bottom = document.pages[0].findText("Apple Bread");
    ASSERT_NE(top, nullptr);
    ASSERT_NE(bottom, nullptr);
    EXPECT_LT(top->y, document.pageHeight / 2);
    EXPECT_GT(bottom->y, document.pageHeight / 2);
    // The record's decimals print through the fraction rule.
    EXPECT_TRUE(document.allTexts().contains("1 1/2"));
}

TEST_F(Form5PrintTest, CancelInAdditionalRecipesKeepsTheScreensRecipe)
{
    auto form = viewedBread();
    act(*form, "mPrint")->trigger();
    chooseOption(*form, "PrintLayout_3");
    form->findChild<QPushButton*>("SelectAdditionalRecipes")->click();
    AdditionalRecipesPanel* additional = form->additionalRecipesPanel();
    EXPECT_EQ(additional->recipeList(0)->currentText(), "Apple Bread") << "top half: slot 0";
    additional->typeList(1)->setCurrentIndex(-1);
    additional->findChild<QPushButton*>("AdditionalCancel")->click();
    EXPECT_FALSE(additional->isVisible());
    EXPECT_EQ(panel(*form)->document().pages[0].findText("Apple Bread")->y,
              panel(*form)->document().pages[0].findText("Breads")->y
                  + panel(*form)->document().pages[0].findText("Breads")->height);
}

TEST_F(Form5PrintTest, WorksheetComposesTheBlankFormWithTheGroupsAtRest)
{
    auto form = open();
    form->show();
    act(*form, "mWorksheet")->trigger();
    EXPECT_TRUE(panel(*form)->isVisible());
    EXPECT_EQ(form->findChild<ScreenStatusBar*>()->activity(), "Print Worksheet");
    EXPECT_TRUE(texts(*form).contains("Recipe WorkSheet"));
    EXPECT_FALSE(form->findChild<QRadioButton*>("PrintLayout_1")->isEnabled());
    EXPECT_FALSE(form->findChild<QPushButton*>("SelectAdditionalRecipes")->isEnabled());
    // Font changes compose the worksheet again.
    dialogs.expectFont(TextFont{"Liberation Sans", 10, false, false, false, false, 0});
    panel(*form)->choosePrinterFont();
    EXPECT_EQ(panel(*form)->document().pages[0].findText("Recipe WorkSheet")->font.name, "Liberation Sans");
}

TEST_F(Form5PrintTest, ExitPrintOptionsRestoresTheScreen)
{
    auto form = viewedBread();
    ShowActive(*form);
    act(*form, "mPrint")->trigger();
    panel(*form)->command(PrintOptionsPanel::kExitPrintOptions)->click();
    EXPECT_FALSE(panel(*form)->isVisible());
    EXPECT_TRUE(form->menuBar()->isEnabled());
    EXPECT_EQ(form->findChild<ScreenStatusBar*>()->activity(), form->windowTitle());
    EXPECT_TRUE(act(*form, "mPrint")->isEnabled());
    EXPECT_EQ(QApplication::focusWidget(), fields(*form)->pickList());
}

TEST_F(Form5PrintTest, ARecipePrintedToPdfHoldsEveryPartOfIt)
{
    auto form = viewedBread();
    act(*form, "mPrint")->trigger();
    const QString pdf = folder.filePath("Apple Bread.pdf");
    dialogs.expectPrint(pdf);
    panel(*form)->command(PrintOptionsPanel::kPrint)->click();
    ASSERT_EQ(dialogs.printJobs().size(), 1);
    EXPECT_EQ(dialogs.printJobs()[0].title, "Apple Bread");
    const QString text = PdfText(pdf);
    for (const char* part : {"Breads", "Apple Bread", "Ingredients:", "1 1/2", "cups", "flour", "salt", "sugar",
                             "Directions:", "Mix well and bake."})
        EXPECT_TRUE(text.contains(part)) << part << "\n" << text.toStdString();
}

TEST(RecipePrintOptions, APictureIsOfferedTickedOnFullPagesAndClearedOnHalfPages)
{
    RecipePrintOptions options;
    auto* picture = options.findChild<QCheckBox*>("PrintPicture");
    options.setPictureAvailable(true);
    EXPECT_TRUE(picture->isEnabled());
    EXPECT_TRUE(options.printPicture());
    QSignalSpy changed(&options, &RecipePrintOptions::changed);
    options.findChild<QRadioButton*>("PrintLayout_3")->click();
    EXPECT_FALSE(picture->isEnabled());
    EXPECT_FALSE(picture->isChecked());
    EXPECT_FALSE(options.printPicture());
    EXPECT_EQ(changed.count(), 1);
    // Back on a full page it is offered again, for the user to tick.
    options.findChild<QRadioButton*>("PrintLayout_2")->click();
    EXPECT_TRUE(picture->isEnabled());
    EXPECT_FALSE(picture->isChecked());
    picture->click();
    EXPECT_TRUE(options.printPicture());
    EXPECT_EQ(changed.count(), 3);
    // A fresh load starts on the two-column page with the picture ticked.
    options.findChild<QRadioButton*>("PrintLayout_4")->click();
    options.reset();
    EXPECT_EQ(options.layout(), PrintLayout::TwoColumn);
    EXPECT_TRUE(options.printPicture());
}
