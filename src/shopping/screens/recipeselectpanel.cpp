#include "shopping/screens/recipeselectpanel.h"

#include "common/dialogs.h"
#include "common/listorder.h"
#include "cookbook/logic/cookbookfiles.h"
#include "cookbook/logic/nameentry.h"
#include "shopping/logic/ingredientchoice.h"
#include "shopping/logic/recipeselect.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {

constexpr int kChoicesPerColumn = 10;
// The boxes' font, named as the old form named it; the system shows its
// nearest serif font.
const QString kChoiceFont = QStringLiteral("New Times Roman");

} // namespace

RecipeSelectPanel::RecipeSelectPanel(Dialogs& dialogs, QWidget* parent)
    : OverlayPanel(QStringLiteral("RecipeSelect"), QStringLiteral("Recipe Select Screen"), parent), dialogs_(dialogs)
{
    typeList_ = new QComboBox(this);
    typeList_->setObjectName(QStringLiteral("Combo2"));
    recipeList_ = new QComboBox(this);
    recipeList_->setObjectName(QStringLiteral("Combo3"));
    recipeList_->installEventFilter(this);
    form()->addRow(QStringLiteral("Recipe Type:"), typeList_);
    form()->addRow(QStringLiteral("Recipe:"), recipeList_);
    heading_ = new QLabel(QStringLiteral("Ingredients => Amount Needed:"), this);
    heading_->setObjectName(QStringLiteral("Label5"));
    body()->addWidget(heading_);
    buildChoices();
    buildCommands();
    connect(typeList_, &QComboBox::activated, this, &RecipeSelectPanel::chooseType);
    connect(recipeList_, &QComboBox::activated, this, &RecipeSelectPanel::chooseRecipe);
    connect(this, &OverlayPanel::closeRequested, this, &RecipeSelectPanel::leaveRequested);
}

void RecipeSelectPanel::buildChoices()
{
    auto* area = new QScrollArea(this);
    area->setObjectName(QStringLiteral("RecipeSelectChoices"));
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    auto* boxes = new QWidget(area);
    boxes->setObjectName(QStringLiteral("RecipeSelectBoxes"));
    boxes->setAutoFillBackground(false);
    auto* grid = new QGridLayout(boxes);
    QFont font = this->font();
    font.setFamily(kChoiceFont);
    for (int index = 0; index < kIngredientChoiceCount; ++index) {
        auto* box = new QCheckBox(boxes);
        box->setObjectName(QStringLiteral("Check1_%1").arg(index));
        box->setFont(font);
        box->hide();
        connect(box, &QCheckBox::clicked, this, &RecipeSelectPanel::choiceClicked);
        grid->addWidget(box, index % kChoicesPerColumn, index / kChoicesPerColumn);
        choices_.append(box);
    }
    grid->setRowStretch(kChoicesPerColumn, 1);
    area->setWidget(boxes);
    area->viewport()->setAutoFillBackground(false);
    body()->addWidget(area, 1);
}

void RecipeSelectPanel::buildCommands()
{
    const QString captions[] = {
        QStringLiteral("E&xit and Add All Checked Selections to Item Grid"),
        QStringLiteral("E&xit and Add All Checked Selections And Amount Needed to Item Grid"),
        QStringLiteral("E&xit Without Adding Checked Selections to Item Grid"),
        QStringLiteral("Select All Ingredients"),
    };
    // One under the other: the captions are long.
    auto* column = new QVBoxLayout;
    for (int index = 0; index < int(std::size(captions)); ++index) {
        auto* button = new QPushButton(captions[index], this);
        button->setObjectName(QStringLiteral("Command6_%1").arg(index));
        button->setAutoDefault(false);
        column->addWidget(button);
        commands_.append(button);
    }
    body()->addLayout(column);
    connect(commands_[kAddNames], &QPushButton::clicked, this, [this] { add(false); });
    connect(commands_[kAddNamesAndAmounts], &QPushButton::clicked, this, [this] { add(true); });
    connect(commands_[kLeave], &QPushButton::clicked, this, &RecipeSelectPanel::leaveRequested);
    connect(commands_[kSelectAll], &QPushButton::clicked, this, &RecipeSelectPanel::selectAll);
}

void RecipeSelectPanel::open(int cookbook, const QString& title)
{
    cookbook_ = cookbook;
    title_ = title;
    fillTypes();
    clearChoices();
    recipeList_->clear();
    OverlayPanel::open(commands_[kLeave]);
}

void RecipeSelectPanel::fillTypes()
{
    typeList_->clear();
    typeList_->addItems(RecipeTypeNames());
    typeList_->setCurrentIndex(-1);
}

void RecipeSelectPanel::changeCookbook(int cookbook, const QString& title)
{
    cookbook_ = cookbook;
    title_ = title;
    clearChoices();
    recipeList_->clear();
    fillTypes();
    // The type now at the head of the list is the one listed.
    typeList_->setCurrentIndex(0);
    listRecipes(AllRecipeTypes().front());
}

void RecipeSelectPanel::reset()
{
    clearChoices();
    recipeList_->clear();
    hide();
}

QStringList RecipeSelectPanel::shownCaptions() const
{
    QStringList captions;
    for (const QCheckBox* box : choices_) {
        if (!box->isHidden())
            captions.append(box->text());
    }
    return captions;
}

// The boxes emptied, unchecked and hidden, with the heading; only leaving
// stays possible.
void RecipeSelectPanel::clearChoices()
{
    for (QCheckBox* box : choices_) {
        box->setChecked(false);
        box->setText(QString());
        box->hide();
    }
    heading_->hide();
    for (int index : {kAddNames, kAddNamesAndAmounts, kSelectAll})
        commands_[index]->setEnabled(false);
}

void RecipeSelectPanel::chooseType(int index)
{
    if (index < 0 || index >= int(AllRecipeTypes().size()))
        return;
    clearChoices();
    recipeList_->clear();
    const RecipeType type = AllRecipeTypes()[std::size_t(index)];
    listRecipes(type);
    if (recipeList_->count() == 0 || IsBlankText(recipeList_->itemData(0).toString())) {
        dialogs_.tell(QStringLiteral("Type Select"), NoRecipesFoundText(RecipeTypeName(type), cookbook_, title_),
                      Icon::Information);
        return;
    }
    recipeList_->showPopup();
}

// The list shows the names, sorted; each keeps its whole entry, which holds
// the recipe's slot number.
void RecipeSelectPanel::listRecipes(RecipeType type)
{
    recipeList_->clear();
    QStringList entries = ReadNameList(cookbook_, type);
    SortListTexts(entries);
    for (const QString& entry : entries)
        recipeList_->addItem(RecipeNameOf(entry), entry);
    recipeList_->setCurrentIndex(-1);
}

void RecipeSelectPanel::chooseRecipe(int index)
{
    const RecordNumber slot = RecordNumberOf(recipeList_->itemData(index).toString());
    if (slot <= 0)
        return;
    clearChoices();
    const QStringList captions = ChoiceCaptions(ReadRecipe(cookbook_, slot).record);
    for (int box = 0; box < captions.size(); ++box) {
        choices_[box]->setText(captions[box]);
        choices_[box]->show();
    }
    heading_->show();
    commands_[kSelectAll]->setEnabled(true);
    commands_[kLeave]->setFocus(Qt::OtherFocusReason);
}

void RecipeSelectPanel::selectAll()
{
    if (choices_.first()->isHidden())
        return;
    for (QCheckBox* box : choices_) {
        const QSignalBlocker quiet(box);
        if (!box->isHidden())
            box->setChecked(true);
    }
    commands_[kAddNames]->setEnabled(true);
    commands_[kAddNamesAndAmounts]->setEnabled(true);
}

void RecipeSelectPanel::choiceClicked()
{
    bool anyChecked = false;
    for (const QCheckBox* box : choices_)
        anyChecked = anyChecked || box->isChecked();
    commands_[kAddNames]->setEnabled(anyChecked);
    commands_[kAddNamesAndAmounts]->setEnabled(anyChecked);
}

void RecipeSelectPanel::add(bool withAmounts)
{
    QStringList entries;
    for (QCheckBox* box : choices_) {
        if (!box->isChecked())
            continue;
        const QString entry = withAmounts ? EntryOfChoice(box->text()) : ItemOfChoice(box->text());
        if (!entry.isEmpty())
            entries.append(entry);
        box->setChecked(false);
    }
    emit entriesChosen(entries);
}

bool RecipeSelectPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == recipeList_ && event->type() == QEvent::MouseButtonPress && typeList_->currentIndex() < 0) {
        dialogs_.tell(QStringLiteral("Recipe Select"), QStringLiteral("First Select Recipe Type!"),
                      Icon::Information);
        typeList_->showPopup();
        return true;
    }
    return OverlayPanel::eventFilter(watched, event);
}
