// Form5's fields: which field may take input in which mode, Enter in the
// name box, edits that change the recipe, and the amounts kept as decimals.
#include "recipetools/screens/form5.h"

#include "common/dialogs.h"
#include "recipetools/logic/recipefieldentry.h"
#include "recipetools/screens/recipefieldspanel.h"

#include <QComboBox>
#include <QLineEdit>

namespace {

const char kAmountInstructions[] =
    "Create and Modify Recipe information:\n\n"
    "Since the program can calculate new yields, please enter amounts\n"
    "as whole and/or decimal numbers, thus 1 1/2 should be entered as:\n"
    "1.5,  1/8 = .125, 1/4 = .25, 1/3 = .33, 2/3 = .67 and so forth.\n\n"
    "(NOTE: You still can print & view recipes with/or without fractions!)";

bool ReasonIsTheUser(Qt::FocusReason reason)
{
    return reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason
        || reason == Qt::ShortcutFocusReason;
}

} // namespace

void Form5::connectFields()
{
    fields_->setEntryCheck([this](QWidget* field, Qt::FocusReason reason) {
        return fieldEntryAllowed(field, reason);
    });
    connect(fields_->typeList(), &QComboBox::activated, this, &Form5::chooseType);
    connect(fields_->pickList(), &QComboBox::activated, this, &Form5::loadChosenRecipe);
    connect(fields_, &RecipeFieldsPanel::nameEnterPressed, this, &Form5::nameEnterPressed);
    connect(fields_, &RecipeFieldsPanel::amountInstructionsWanted, this, [this] {
        informUser(QStringLiteral("Amount Input Instructions"), QString::fromLatin1(kAmountInstructions));
    });
    connect(fields_, &RecipeFieldsPanel::recipeEdited, this, &Form5::recipeEdited);
    connect(fields_, &RecipeFieldsPanel::amountEdited, this, &Form5::keepAmount);
    connect(fields_, &RecipeFieldsPanel::amountPicked, this, &Form5::keepAmount);
    connect(fields_, &RecipeFieldsPanel::currentNamesClicked, this, [this] {
        informUser(QStringLiteral("Current Recipe Names"),
                   QStringLiteral("This list is used to display existing Recipes Only!"));
    });
}

bool Form5::fieldEntryAllowed(QWidget* field, Qt::FocusReason reason)
{
    FieldEntryQuery query;
    query.mode = model_.state().mode;
    query.field = field == fields_->typeList() || field == fields_->pickList() ? RecipeField::List
        : field == fields_->nameBox()                                          ? RecipeField::Name
                                                                               : RecipeField::Other;
    query.byUser = ReasonIsTheUser(reason);
    query.typeChosen = model_.type().has_value();
    query.nameEmpty = fields_->nameBox()->text().isEmpty();
    const FieldEntry entry = RecipeFieldEntry(query);
    if (entry.notice)
        tell(*entry.notice);
    if (entry.moveTo == FieldFocus::TypeList)
        fields_->typeList()->setFocus(Qt::OtherFocusReason);
    else if (entry.moveTo == FieldFocus::NameBox)
        fields_->nameBox()->setFocus(Qt::OtherFocusReason);
    if (entry.showCurrentNames)
        fields_->showCurrentNames();
    return entry.allowed;
}

void Form5::nameEnterPressed()
{
    if (fields_->nameBox()->text().isEmpty()) {
        informUser(QStringLiteral("Enter Recipe Name"), QStringLiteral("Please Enter Recipe Name First"));
        return;
    }
    fields_->amountBox(0)->setFocus(Qt::TabFocusReason);
}

void Form5::recipeEdited()
{
    if (!fields_->editable())
        return;
    model_.markChanged();
    applyCommandStates();
}

// The work list keeps what is typed or picked in an amount box: the decimal,
// never a fraction.
void Form5::keepAmount(int row, const QString& text)
{
    if (fields_->editable())
        model_.amountWorkList()[row] = text;
}

void Form5::informUser(const QString& title, const QString& text)
{
    dialogs().tell(title, text, Icon::Information);
}

void Form5::tell(const Message& message)
{
    dialogs().ask(message);
}
