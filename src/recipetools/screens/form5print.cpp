// Form5's printing: the print options panel over the screen, composing the
// shown recipe, the queue of additional half-page recipes, or the blank
// worksheet, and leaving the panel again.
#include "recipetools/screens/form5.h"

#include "common/clock.h"
#include "recipetools/logic/recipeprint.h"
#include "recipetools/screens/additionalrecipespanel.h"
#include "recipetools/screens/recipefieldspanel.h"
#include "recipetools/screens/recipeprintoptions.h"
#include "print/logic/guidelines.h"
#include "print/logic/pagebuilder.h"
#include "print/logic/printfont.h"
#include "print/screens/printoptionspanel.h"
#include "shell/kit/screenstatusbar.h"

#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>

namespace {

// Auto Size fits 96 letters "n" across the page.
const QString kAutoSizeTestLine(96, QLatin1Char('n'));

} // namespace

void Form5::buildPrintPanel(QWidget* area)
{
    clock_ = &SystemTime();
    printPanel_ = new PrintOptionsPanel(dialogs(), kAutoSizeTestLine, Settings::Form5GuideLines, area);
    printOptions_ = new RecipePrintOptions;
    printPanel_->addOptionGroup(printOptions_);
    printPanel_->setComposer([this](PageBuilder& page) { composePrintout(page); });
    additionalRecipes_ = new AdditionalRecipesPanel(printPanel_);
    connect(printOptions_, &RecipePrintOptions::changed, this, [this] {
        // A full page prints the screen's recipe again.
        if (printOptions_->layout() == PrintLayout::TwoColumn || printOptions_->layout() == PrintLayout::OneColumn)
            additionalActive_ = false;
        printPanel_->recompose();
    });
    connect(printOptions_, &RecipePrintOptions::selectAdditionalRecipes, this, &Form5::openAdditionalRecipes);
    connect(additionalRecipes_, &AdditionalRecipesPanel::accepted, this, [this] {
        additionalActive_ = true;
        printPanel_->recompose();
    });
    connect(printPanel_, &PrintOptionsPanel::exited, this, &Form5::leavePrintOptions);
    // Each load of the screen starts from the default layout, amount format
    // and font size.
    PrintFont().size = 12;
}

QList<QWidget*> Form5::printPanels() const
{
    return printPanel_->colouredPanels() + printOptions_->colouredPanels() + QList<QWidget*>{additionalRecipes_};
}

void Form5::openPrintPanel(bool worksheet)
{
    worksheet_ = worksheet;
    additionalActive_ = false;
    setPanel(RecipePanel::Print);
    menuBar()->setEnabled(false);
    screenStatusBar()->setActivity(worksheet ? QStringLiteral("Print Worksheet") : QStringLiteral("Print Options"));
    printOptions_->setPictureAvailable(!worksheet && !model_.picturePath().isEmpty());
    printOptions_->setWorksheet(worksheet);
    printPanel_->setDocumentName(worksheet ? QStringLiteral("Recipe WorkSheet") : fields_->pickList()->currentText());
    printPanel_->setGeometry(centralWidget()->rect());
    printPanel_->open();
}

void Form5::leavePrintOptions()
{
    additionalRecipes_->hide();
    setPanel(RecipePanel::None);
    menuBar()->setEnabled(true);
    screenStatusBar()->setActivity(windowTitle());
    applyCommandStates();
    fields_->pickList()->setFocus(Qt::OtherFocusReason);
}

void Form5::openAdditionalRecipes()
{
    const std::optional<RecipeType> type = RecipeTypeFromName(model_.currentTypeName());
    if (!type)
        return;
    const bool bottom = printOptions_->layout() == PrintLayout::BottomHalf || additionalActive_;
    additionalRecipes_->open(model_.cookbook(), bottom ? 1 : 0, *type, fields_->pickList()->currentData().toString());
    additionalRecipes_->move((printPanel_->width() - additionalRecipes_->width()) / 2,
                             (printPanel_->height() - additionalRecipes_->height()) / 2);
}

PrintedRecipe Form5::printedRecipe() const
{
    PrintedRecipe recipe;
    recipe.typeName = model_.currentTypeName();
    recipe.name = fields_->pickList()->currentText();
    recipe.fields = fields_->fields();
    recipe.amountsAreDecimals = model_.state().mode == RecipeMode::Modify;
    recipe.picturePath = model_.picturePath();
    return recipe;
}

void Form5::composePrintout(PageBuilder& page)
{
    if (worksheet_) {
        ComposeWorksheet(page, PrintFont());
        return;
    }
    PrintSettings settings;
    settings.layout = printOptions_->layout();
    settings.amountFormat = printOptions_->amountFormat();
    settings.font = PrintFont();
    settings.printPicture = printOptions_->printPicture();
    if (additionalActive_)
        ComposeAdditionalPages(page, model_.cookbook(), additionalRecipes_->queue(), settings, clock_->today());
    else
        ComposeRecipePage(page, printedRecipe(), settings, clock_->today());
}
