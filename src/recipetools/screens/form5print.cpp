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
#include "shell/kit/panelcolors.h"
#include "print/screens/printoptionspanel.h"
#include "shell/kit/screenstatusbar.h"

#include <QAction>
#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>

namespace {

// Auto Size fits 96 letters "n" across the page.
const QString kAutoSizeTestLine(96, QLatin1Char('n'));

const Clock& SystemTime()
{
    static const SystemClock clock;
    return clock;
}

} // namespace

void Form5::buildPrintPanel(QWidget* area)
{
    clock_ = &SystemTime();
    printPanel_ = new PrintOptionsPanel(dialogs_, kAutoSizeTestLine, Settings::Form5GuideLines, area);
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
    connect(findChild<QAction*>(QStringLiteral("mPrint")), &QAction::triggered, this, [this] { openPrintPanel(false); });
    connect(findChild<QAction*>(QStringLiteral("mWorksheet")), &QAction::triggered, this,
            [this] { openPrintPanel(true); });
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
    state_.printOpen = true;
    applyCommandStates();
    menuBar()->setEnabled(false);
    statusBar_->setActivity(worksheet ? QStringLiteral("Print Worksheet") : QStringLiteral("Print Options"));
    printOptions_->setPictureAvailable(!worksheet && !picturePath_.isEmpty());
    printOptions_->setWorksheet(worksheet);
    printPanel_->setDocumentName(worksheet ? QStringLiteral("Recipe WorkSheet") : fields_->pickList()->currentText());
    printPanel_->setGeometry(centralWidget()->rect());
    printPanel_->open();
}

void Form5::leavePrintOptions()
{
    additionalRecipes_->hide();
    state_.printOpen = false;
    menuBar()->setEnabled(true);
    statusBar_->setActivity(windowTitle());
    applyCommandStates();
    fields_->pickList()->setFocus(Qt::OtherFocusReason);
}

void Form5::openAdditionalRecipes()
{
    const std::optional<RecipeType> type = RecipeTypeFromName(currentTypeName_);
    if (!type)
        return;
    const bool bottom = printOptions_->layout() == PrintLayout::BottomHalf || additionalActive_;
    additionalRecipes_->open(cookbook_, bottom ? 1 : 0, *type, fields_->pickList()->currentData().toString());
    additionalRecipes_->move((printPanel_->width() - additionalRecipes_->width()) / 2,
                             (printPanel_->height() - additionalRecipes_->height()) / 2);
}

PrintedRecipe Form5::printedRecipe() const
{
    PrintedRecipe recipe;
    recipe.typeName = currentTypeName_;
    recipe.name = fields_->pickList()->currentText();
    recipe.fields = fields_->fields();
    recipe.amountsAreDecimals = state_.mode == RecipeMode::Modify;
    recipe.picturePath = picturePath_;
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
        ComposeAdditionalPages(page, cookbook_, additionalRecipes_->queue(), settings, clock_->today());
    else
        ComposeRecipePage(page, printedRecipe(), settings, clock_->today());
}
