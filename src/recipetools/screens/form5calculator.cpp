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
    setTitleStrip(QString::fromLatin1(CalculatorCaption()));
    const QString yield = fields_->yieldAmountBox()->text();
    if (yield.isEmpty()) {
        informUser(QString::fromLatin1(kNoServingInformationTitle), QString::fromLatin1(kNoServingInformationText));
        setTitleStrip(QString::fromLatin1(ModeCaption(state_.mode)));
        if (state_.mode == RecipeMode::Modify)
            fields_->amountBox(0)->setFocus(Qt::OtherFocusReason);
        return;
    }
    state_.calculatorOpen = true;
    applyCommandStates();
    calculator_->open(yield, fields_->yieldTypeList()->currentText());
    calculator_->move(centralWidget()->width() - calculator_->width() - 24,
                      centralWidget()->height() - calculator_->height() - 72);
}

void Form5::calculateAmounts()
{
    CalculatorInput input;
    input.newYield = calculator_->newYield();
    input.currentYield = calculator_->currentYield();
    input.workList = amountWorkList_;
    for (int row = 0; row < kRecipeRows; ++row)
        input.units[row] = fields_->unitBox(row)->text();
    input.modifyMode = state_.mode == RecipeMode::Modify;
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
        amountWorkList_[row] = result.workList[row];
    }
    if (result.outcome == CalculatorOutcome::CalculationError) {
        informUser(QString::fromLatin1(kCalculatorErrorTitle), QString::fromLatin1(kCalculatorErrorText));
        state_.amountsRecalculated = false;
        return;
    }
    state_.amountsRecalculated = true;
    calculator_->setCurrentYield(fields_->yieldAmountBox()->text());
    applyCommandStates();
}

void Form5::closeCalculator()
{
    state_.calculatorOpen = false;
    setMode(state_.mode);
    if (state_.mode == RecipeMode::Modify)
        fields_->amountBox(0)->setFocus(Qt::OtherFocusReason);
    else
        focusCommandButton(kCalculateButton);
    calculator_->hide();
}
