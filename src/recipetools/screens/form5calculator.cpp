// Form5's amount calculator: opening the panel, rescaling the recipe on the
// screen to a new yield, and closing it again.
#include "recipetools/screens/form5.h"

#include "common/dialogs.h"
#include "recipetools/logic/amountcalculator.h"
#include "recipetools/screens/calculatorpanel.h"
#include "recipetools/screens/recipefieldspanel.h"

#include <QComboBox>
#include <QLineEdit>
#include <QWidget>

void Form5::openCalculator()
{
    showTitleStrip(QString::fromLatin1(CalculatorCaption()));
    const QString yield = fields_->yieldAmountBox()->text();
    if (yield.isEmpty()) {
        informUser(QString::fromLatin1(kNoServingInformationTitle), QString::fromLatin1(kNoServingInformationText));
        showModeCaption();
        if (model_.state().mode == RecipeMode::Modify)
            fields_->amountBox(0)->setFocus(Qt::OtherFocusReason);
        return;
    }
    setPanel(RecipePanel::Calculator);
    calculator_->open(yield, fields_->yieldTypeList()->currentText());
    calculator_->move(centralWidget()->width() - calculator_->width() - 24,
                      centralWidget()->height() - calculator_->height() - 72);
}

void Form5::calculateAmounts()
{
    CalculatorInput input;
    input.newYield = calculator_->newYield();
    input.currentYield = calculator_->currentYield();
    input.workList = model_.amountWorkList();
    for (int row = 0; row < kRecipeRows; ++row)
        input.units[row] = fields_->unitBox(row)->text();
    input.modifyMode = model_.state().mode == RecipeMode::Modify;
    const CalculatorResult result = CalculateNewAmounts(input);

    if (result.outcome == CalculatorOutcome::YieldOutOfRange) {
        informUser(QString::fromLatin1(kYieldEntryErrorTitle), QString::fromLatin1(kYieldEntryErrorText));
        calculator_->clearNewYield();
        calculator_->newYieldBox()->setFocus(Qt::OtherFocusReason);
        return;
    }
    if (result.newYieldTaken)
        fields_->yieldAmountBox()->setText(input.newYield);
    for (int row = 0; row < result.rowsDone; ++row) {
        fields_->amountBox(row)->setText(result.amountBoxes[row]);
        fields_->unitBox(row)->setText(result.units[row]);
        model_.amountWorkList()[row] = result.workList[row];
    }
    if (result.outcome == CalculatorOutcome::CalculationError) {
        informUser(QString::fromLatin1(kCalculatorErrorTitle), QString::fromLatin1(kCalculatorErrorText));
        model_.setAmountsRecalculated(false);
        return;
    }
    model_.setAmountsRecalculated(true);
    calculator_->setCurrentYield(fields_->yieldAmountBox()->text());
    applyCommandStates();
}

void Form5::closeCalculator()
{
    setPanel(RecipePanel::None);
    showModeCaption();
    if (model_.state().mode == RecipeMode::Modify)
        fields_->amountBox(0)->setFocus(Qt::OtherFocusReason);
    else
        focusCommandButton(Form5Command::Calculate);
    calculator_->hide();
}
