#include "recipetools/screens/form5.h"

#include "common/dialogs.h"
#include "cookbook/logic/cookbookfiles.h"
#include "cookbook/logic/nameentry.h"
#include "recipetools/logic/amountformat.h"
#include "recipetools/screens/calculatorpanel.h"
#include "recipetools/screens/cookbooktitlespanel.h"
#include "recipetools/screens/ingredientsearchpanel.h"
#include "recipetools/screens/namesearchpanel.h"
#include "recipetools/screens/recipefieldspanel.h"
#include "recipetools/screens/renamepanel.h"
#include "shell/logic/processvalues.h"
#include "shell/kit/helpwindow.h"
#include "shell/kit/panelcolors.h"
#include "shell/kit/screenbusy.h"
#include "shell/kit/screenstatusbar.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QVBoxLayout>

namespace {

const QString kRecipeFile = QStringLiteral("Recipe File");
const QString kFirstType = QStringLiteral("Appetizers and beverages");

QString AmountInstructions()
{
    return QStringLiteral(
        "Create and Modify Recipe information:\n\n"
        "Since the program can calculate new yields, please enter amounts\n"
        "as whole and/or decimal numbers, thus 1 1/2 should be entered as:\n"
        "1.5,  1/8 = .125, 1/4 = .25, 1/3 = .33, 2/3 = .67 and so forth.\n\n"
        "(NOTE: You still can print & view recipes with/or without fractions!)");
}

std::array<QString, kRecipeRows> FormattedAmounts(const std::array<QString, kRecipeRows>& decimals)
{
    std::array<QString, kRecipeRows> shown;
    for (int row = 0; row < kRecipeRows; ++row)
        shown[row] = FormatAmount(decimals[row]);
    return shown;
}

bool ReasonIsTheUser(Qt::FocusReason reason)
{
    return reason == Qt::MouseFocusReason || reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason
        || reason == Qt::ShortcutFocusReason;
}

} // namespace

Form5::Form5(Dialogs& dialogs, QWidget* parent)
    : ActivityWindow(dialogs, {"Form5", Settings::Form5PanelColor, kHelpTopic}, parent), dialogs_(dialogs)
{
    statusBar_ = screenStatusBar();
    buildMenus();
    buildToolbars();

    auto* central = new QWidget(this);
    central->setObjectName(QStringLiteral("Form5Area"));
    setCentralWidget(central);
    titleStrip_ = new QLabel(central);
    titleStrip_->setObjectName(QStringLiteral("SSPanel4"));
    titleStrip_->setAlignment(Qt::AlignCenter);
    titleStrip_->setFrameStyle(QFrame::Panel | QFrame::Raised);
    titleStrip_->setAutoFillBackground(true);
    QFont stripFont = titleStrip_->font();
    stripFont.setPointSize(stripFont.pointSize() + 4);
    stripFont.setBold(true);
    titleStrip_->setFont(stripFont);
    fields_ = new RecipeFieldsPanel(central);
    auto* commands = new QFrame(central);
    commands->setObjectName(QStringLiteral("SSPanel5"));
    commands->setFrameStyle(QFrame::Panel | QFrame::Raised);
    commands->setAutoFillBackground(true);
    buildCommandButtons(commands);
    auto* layout = new QVBoxLayout(central);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);
    layout->addWidget(titleStrip_);
    layout->addWidget(fields_, 1);
    layout->addWidget(commands);
    renamePanel_ = new RenamePanel(central);
    calculator_ = new CalculatorPanel(central);
    calculator_->hide();
    buildSearchPanels(central);
    titlesPanel_ = new CookbookTitlesPanel(central);
    buildPrintPanel(central);

    panelColors_ = panelColors();
    panelColors_->addPanel(titleStrip_);
    panelColors_->addPanel(commands);
    for (QWidget* panel : fields_->colouredPanels())
        panelColors_->addPanel(panel);
    panelColors_->addPanel(renamePanel_);
    panelColors_->addPanel(calculator_);
    panelColors_->addPanel(titlesPanel_);
    for (QWidget* panel : printPanels())
        panelColors_->addPanel(panel);
    panelColors_->applyStored();
    connect(findChild<QAction*>(QStringLiteral("mPanelColor")), &QAction::triggered, panelColors_,
            &PanelColors::choosePanelColor);
    connect(findChild<QAction*>(QStringLiteral("mHelp")), &QAction::triggered, this,
            [] { HelpWindow::showTopic(kHelpTopic); });

    fields_->setEntryCheck([this](QWidget* field, Qt::FocusReason reason) {
        return fieldEntryAllowed(field, reason);
    });
    connect(fields_->typeList(), &QComboBox::activated, this, &Form5::chooseType);
    connect(fields_->pickList(), &QComboBox::activated, this, &Form5::loadChosenRecipe);
    connect(fields_, &RecipeFieldsPanel::nameEnterPressed, this, &Form5::nameEnterPressed);
    connect(fields_, &RecipeFieldsPanel::amountInstructionsWanted, this, &Form5::showAmountInstructions);
    connect(fields_, &RecipeFieldsPanel::recipeEdited, this, &Form5::recipeEdited);
    const auto keepAmount = [this](int row, const QString& text) {
        if (fields_->editable())
            amountWorkList_[row] = text;
    };
    connect(fields_, &RecipeFieldsPanel::amountEdited, this, keepAmount);
    connect(fields_, &RecipeFieldsPanel::amountPicked, this, keepAmount);
    connect(fields_, &RecipeFieldsPanel::currentNamesClicked, this, [this] {
        informUser(QStringLiteral("Current Recipe Names"),
                   QStringLiteral("This list is used to display existing Recipes Only!"));
    });
    connect(findChild<QAction*>(QStringLiteral("mCalculate")), &QAction::triggered, this, &Form5::openCalculator);
    connect(findChild<QAction*>(QStringLiteral("mSearch")), &QAction::triggered, this, &Form5::openSearch);
    connect(calculator_, &CalculatorPanel::calculateRequested, this, &Form5::calculateAmounts);
    connect(calculator_, &CalculatorPanel::closeRequested, this, &Form5::closeCalculator);
    connect(calculator_, &CalculatorPanel::yieldTypeTyped, this,
            [this](const QString& type) { fields_->yieldTypeList()->setEditText(type); });
    connect(renamePanel_, &RenamePanel::saveRequested, this, &Form5::saveRename);
    connect(renamePanel_, &RenamePanel::cancelRequested, this, &Form5::closeRename);
    connect(titlesPanel_, &CookbookTitlesPanel::closeRequested, this, [this] {
        focusCommandButton(kCreateButton);
        titlesPanel_->hide();
    });
    connect(titlesPanel_, &CookbookTitlesPanel::saveRequested, this, &Form5::saveTitles);

    loadCookbook();
    setMode(RecipeMode::Idle);
    statusBar_->setActivity(windowTitle());
    focusCommandButton(kCreateButton);
}

// ---- The life of a recipe ---------------------------------------------------

bool Form5::saveQuestionAllowsAction()
{
    if (!state_.recipeChanged && !state_.amountsRecalculated)
        return true;
    const Answer answer = dialogs_.ask({kRecipeFile, QStringLiteral("Save Current Recipe before next action or exiting?"),
                                        Buttons::YesNoCancel, Icon::Question, 1});
    if (answer == Answer::No) {
        state_.recipeChanged = false;
        state_.amountsRecalculated = false;
        applyCommandStates();
        return true;
    }
    const QString wanted = fields_->typeList()->currentText();
    fields_->typeList()->setCurrentText(currentTypeName_);
    if (answer == Answer::Yes) {
        save(false);
        if (saveRefused_)
            return false;
        fields_->typeList()->setCurrentText(wanted);
        return true;
    }
    if (state_.mode == RecipeMode::Create || state_.mode == RecipeMode::Modify)
        fields_->amountBox(0)->setFocus(Qt::OtherFocusReason);
    return false;
}

void Form5::chooseType()
{
    if (!saveQuestionAllowsAction())
        return;
    currentTypeName_ = fields_->typeList()->currentText();
    fillTypeLists(state_.mode != RecipeMode::Create);
}

// Fills the pick list and the current names from the chosen type's file.
void Form5::fillTypeLists(bool openPickList)
{
    const std::optional<RecipeType> type = chosenType();
    if (!type)
        return;
    fields_->nameBox()->clear();
    setPickEntries({});
    setCurrentNames({});
    clearScreen();
    QStringList entries = ReadNameList(cookbook_, *type);
    SortEntries(entries);
    setPickEntries(entries);
    setCurrentNames(entries);
    if (state_.mode == RecipeMode::View && ReadNameSlot(cookbook_, *type, 1).isEmpty()) {
        clearScreen();
        informUser(QStringLiteral("Recipe Files"),
                   QStringLiteral("No Recipes for %1 were found!").arg(RecipeTypeName(*type)));
        fields_->typeList()->setFocus(Qt::OtherFocusReason);
        return;
    }
    if (state_.mode == RecipeMode::Create) {
        fields_->showNameBox(true);
        fields_->nameBox()->setFocus(Qt::OtherFocusReason);
    } else if (openPickList && !entries.isEmpty()) {
        fields_->pickList()->showPopup();
    }
}

// The start of "&Create" and "&View": the first type when none is chosen,
// the save question, the flags cleared. False when the user cancelled.
bool Form5::beginCreateOrView()
{
    if (!chosenType())
        fields_->typeList()->setCurrentText(kFirstType);
    if (!saveQuestionAllowsAction())
        return false;
    state_.recipeChanged = false;
    state_.amountsRecalculated = false;
    return true;
}

void Form5::createRecipe()
{
    if (!beginCreateOrView())
        return;
    picturePath_.clear();
    clearScreen();
    setMode(RecipeMode::Create);
    currentTypeName_ = fields_->typeList()->currentText();
    fillTypeLists(false);
}

void Form5::viewRecipes()
{
    if (!beginCreateOrView())
        return;
    setMode(RecipeMode::View);
    clearScreen();
    currentTypeName_ = fields_->typeList()->currentText();
    fillTypeLists(true);
}

void Form5::loadChosenRecipe(int index)
{
    if (!skipSaveQuestion_ && !saveQuestionAllowsAction())
        return;
    const QString entry = fields_->pickList()->itemData(index).toString();
    loadRecipe(RecordNumberOf(entry), index);
}

void Form5::loadRecipe(RecordNumber recordNumber, int listIndex)
{
    state_.recipeChanged = false;
    state_.amountsRecalculated = false;
    currentRecordNumber_ = recordNumber;
    currentListIndex_ = listIndex;
    const StoredRecipe stored = ReadRecipe(cookbook_, recordNumber);
    picturePath_ = stored.picturePath;
    const RecipeFields shown = FieldsOfRecord(stored.record);
    amountWorkList_ = shown.amounts;
    state_.recipeShown = true;
    setMode(RecipeMode::View); // first: the amount boxes then take the longer fraction texts
    fields_->showFields(shown, FormattedAmounts(amountWorkList_));
    fields_->pickList()->setCurrentIndex(listIndex);
    focusCommandButton(kModifyButton);
}

void Form5::showRecipeAt(RecordNumber recordNumber, const QString& entryText)
{
    skipSaveQuestion_ = true;
    int index = -1;
    for (int i = 0; i < fields_->pickList()->count() && index < 0; ++i) {
        if (fields_->pickList()->itemData(i).toString().contains(entryText))
            index = i;
    }
    loadRecipe(recordNumber, index);
    skipSaveQuestion_ = false;
}

void Form5::modifyRecipe()
{
    state_.recipeChanged = false;
    state_.amountsRecalculated = false;
    setMode(RecipeMode::Modify);
    fields_->showAmounts(amountWorkList_); // editing is always in decimals
    fields_->amountBox(0)->setFocus(Qt::OtherFocusReason);
}

void Form5::saveRecipe()
{
    save(true);
}

// Saves the recipe on the screen. After a new or changed recipe the screen is
// cleared and idle, and the type is chosen again to read its lists; the pick
// list drops down for the next choice unless the save came from the save
// question of another action.
void Form5::save(bool openPickList)
{
    saveRefused_ = false;
    const QString name = fields_->nameBox()->text();
    const std::optional<RecipeType> type = chosenType();
    if (state_.mode == RecipeMode::Create && name.isEmpty() && !state_.amountsRecalculated) {
        dialogs_.tell(QStringLiteral("Save"), QStringLiteral("Please enter Recipe Name in order to save!"),
                      Icon::Information);
        saveRefused_ = true;
        fields_->nameBox()->setFocus(Qt::OtherFocusReason);
        return;
    }
    state_.recipeChanged = false;
    RecipeFields recipe = fields_->fields();
    recipe.amounts = amountWorkList_;
    if (state_.mode == RecipeMode::Modify || state_.amountsRecalculated || savingRecordOnly_) {
        SaveExistingRecipe(cookbook_, currentRecordNumber_, recipe, picturePath_);
        if (savingRecordOnly_)
            return;
    } else {
        if (name.isEmpty() || !type)
            return;
        const SavedNewRecipe saved = SaveNewRecipe(cookbook_, *type, name, recipe, picturePath_, currentNames());
        setCurrentNames(currentNames() << saved.entry);
    }
    state_.amountsRecalculated = false;
    clearScreen();
    setMode(RecipeMode::Idle);
    // Idle, yet the title strip reads as after View: a recipe of the type is
    // what the user picks next.
    setTitleStrip(QString::fromLatin1(ModeCaption(RecipeMode::View)));
    fillTypeLists(openPickList);
}

void Form5::deleteRecipe()
{
    statusBar_->setActivity(QStringLiteral("Delete Recipe"));
    setTitleStrip(QStringLiteral("Delete Recipe"), true);
    const Answer answer = dialogs_.ask({QStringLiteral("Delete Recipe"),
                                        QStringLiteral("Do you Really want to delete this Recipe?"),
                                        Buttons::YesNoCancel, Icon::Question, 2});
    statusBar_->setActivity(windowTitle());
    const std::optional<RecipeType> type = chosenType();
    if (answer != Answer::Yes || !type) {
        setMode(state_.mode);
        return;
    }
    DeleteRecipe(cookbook_, *type, currentRecordNumber_, pickEntries(), currentListIndex_);
    // Nothing of the deleted recipe stays in the calculator or in a search.
    calculator_->clear();
    nameSearch_->clear();
    ingredientSearch_->clear();
    state_ = RecipeScreenState{};
    clearScreen();
    setMode(RecipeMode::Idle);
    fillTypeLists(true);
}

void Form5::openRename()
{
    savingRecordOnly_ = true;
    const bool go = saveQuestionAllowsAction();
    savingRecordOnly_ = false;
    if (!go)
        return;
    state_.panelOpen = true;
    applyCommandStates();
    fields_->setEnabled(false);
    setTitleStrip(QStringLiteral("Name Change"));
    renamePanel_->open(RecipeNameOf(fields_->pickList()->currentData().toString()));
    renamePanel_->move((centralWidget()->width() - renamePanel_->width()) / 2,
                       (centralWidget()->height() - renamePanel_->height()) / 3);
}

void Form5::saveRename(const QString& newName)
{
    const std::optional<RecipeType> type = chosenType();
    if (newName.isEmpty() || !type) {
        informUser(QStringLiteral("Recipe Name Change"), QStringLiteral("No Change Recipe Name has been entered!"));
        renamePanel_->newNameBox()->setFocus(Qt::OtherFocusReason);
        return;
    }
    {
        const ScreenBusy busy;
        const QStringList renamed =
            RenameRecipe(cookbook_, *type, currentRecordNumber_, pickEntries(), currentListIndex_, newName);
        clearScreen();
        setPickEntries(renamed);
        setCurrentNames(renamed);
    }
    closeRename();
    setPickEntries({});
    state_ = RecipeScreenState{};
    viewRecipes();
}

void Form5::closeRename()
{
    renamePanel_->newNameBox()->clear();
    fields_->setEnabled(true);
    state_.panelOpen = false;
    setMode(state_.mode);
    focusCommandButton(kCreateButton);
    renamePanel_->hide();
}

void Form5::clearScreen()
{
    amountWorkList_ = {};
    fields_->clearFields();
    // Search, rename and a new cookbook stay open to the calculator and end
    // in an emptied screen: nothing is left to rescale.
    calculator_->hide();
    state_.calculatorOpen = false;
    state_.recipeShown = false;
    state_.recipeChanged = false;
    applyCommandStates();
}

void Form5::exitScreen()
{
    close();
}

// Leaving the screen with changes asks the short save question; a refused
// save keeps the screen open.
bool Form5::readyToClose()
{
    if (!state_.recipeChanged && !state_.amountsRecalculated)
        return true;
    const Answer answer = dialogs_.ask({kRecipeFile, QStringLiteral("Save Current Recipe before exiting?"),
                                        Buttons::YesNo, Icon::Question, 1});
    if (answer == Answer::Yes)
        save(false);
    return answer != Answer::Yes || !saveRefused_;
}

// ---- Fields -----------------------------------------------------------------

bool Form5::fieldEntryAllowed(QWidget* field, Qt::FocusReason reason)
{
    const bool isList = field == fields_->typeList() || field == fields_->pickList();
    if (!fields_->editable()) {
        const bool asks = isList ? state_.mode == RecipeMode::Idle : fields_->isRecipeField(field);
        if (asks && ReasonIsTheUser(reason))
            informUser(QStringLiteral("Recipe File Function"),
                       QStringLiteral("Please Select Command Button for action desired."));
        return false;
    }
    if (isList || state_.mode != RecipeMode::Create)
        return true;
    if (field == fields_->nameBox()) {
        if (!chosenType()) {
            informUser(QStringLiteral("Select Type"), QStringLiteral("Please select Type first."));
            fields_->typeList()->setFocus(Qt::OtherFocusReason);
            return false;
        }
        fields_->showCurrentNames();
        return true;
    }
    if (fields_->nameBox()->text().isEmpty()) {
        informUser(QStringLiteral("Enter Recipe Name"), QStringLiteral("Please Enter Recipe Name First"));
        fields_->nameBox()->setFocus(Qt::OtherFocusReason);
        return false;
    }
    return true;
}

void Form5::nameEnterPressed()
{
    if (fields_->nameBox()->text().isEmpty()) {
        informUser(QStringLiteral("Enter Recipe Name"), QStringLiteral("Please Enter Recipe Name First"));
        return;
    }
    fields_->amountBox(0)->setFocus(Qt::TabFocusReason);
}

void Form5::showAmountInstructions()
{
    informUser(QStringLiteral("Amount Input Instructions"), AmountInstructions());
}

void Form5::recipeEdited()
{
    if (!fields_->editable())
        return;
    state_.recipeChanged = true;
    applyCommandStates();
}

void Form5::informUser(const QString& title, const QString& text)
{
    dialogs_.tell(title, text, Icon::Information);
}

// ---- State ------------------------------------------------------------------

void Form5::setMode(RecipeMode mode)
{
    state_.mode = mode;
    if (mode == RecipeMode::Create)
        state_.cookbookHasRecipes = CookbookHasRecipes(cookbook_);
    const bool editing = mode == RecipeMode::Create || mode == RecipeMode::Modify;
    fields_->setEditable(editing);
    fields_->showNameBox(mode == RecipeMode::Create);
    if (mode != RecipeMode::Create)
        fields_->currentNamesPanel()->hide();
    // A panel closing over the open calculator leaves its caption.
    setTitleStrip(QString::fromLatin1(state_.calculatorOpen ? CalculatorCaption() : ModeCaption(mode)));
    applyCommandStates();
}

void Form5::setTitleStrip(const QString& caption, bool alarm)
{
    titleStrip_->setText(caption);
    QPalette palette = titleStrip_->palette();
    palette.setColor(QPalette::WindowText, alarm ? QColor(Qt::red) : QColor(Qt::black));
    titleStrip_->setPalette(palette);
}

void Form5::applyCommandStates()
{
    const RecipeCommandStates on = CommandStatesFor(state_);
    const auto set = [this](const char* name, bool enabled) {
        findChild<QAction*>(QString::fromLatin1(name))->setEnabled(enabled);
    };
    set("mCreate", on.create);
    set("mView", on.view);
    set("mModify", on.modify);
    set("mSave", on.save);
    set("mDelete", on.deleteRecipe);
    set("mRename", on.rename);
    set("mTitles", on.cookbookMenus);
    cookbookMenu_->setEnabled(on.cookbookMenus);
    set("mCalculate", on.calculate);
    set("mSearch", on.search);
    fields_->typeList()->setEnabled(on.pickLists);
    fields_->pickList()->setEnabled(on.pickLists);
    set("mExit", !state_.panelOpen);
    set("mPrint", on.print);
    set("mWorksheet", on.worksheet);
    // Tools that come with later screens stay off until they exist.
    for (const char* later : {"mSpelling", "mCopy", "mExport", "mImport", "mBackup", "mRestore"})
        set(later, false);
}

// A panel that closes must not leave the keyboard to whatever field comes
// next: that would count as the user entering it.
void Form5::focusCommandButton(int index)
{
    findChild<QWidget*>(QStringLiteral("Command1_%1").arg(index))->setFocus(Qt::OtherFocusReason);
}

std::optional<RecipeType> Form5::chosenType() const
{
    return RecipeTypeFromName(fields_->typeList()->currentText());
}

void Form5::setPickEntries(const QStringList& entries)
{
    QComboBox* list = fields_->pickList();
    list->clear();
    for (const QString& entry : entries)
        list->addItem(RecipeNameOf(entry), entry); // the number stays out of sight
    list->setCurrentIndex(-1);
}

void Form5::setCurrentNames(const QStringList& entries)
{
    QListWidget* list = fields_->currentNamesList();
    list->clear();
    for (const QString& entry : entries) {
        auto* item = new QListWidgetItem(RecipeNameOf(entry), list);
        item->setData(Qt::UserRole, entry);
    }
}

QStringList Form5::pickEntries() const
{
    QStringList entries;
    const QComboBox* list = fields_->pickList();
    for (int i = 0; i < list->count(); ++i)
        entries << list->itemData(i).toString();
    return entries;
}

QStringList Form5::currentNames() const
{
    QStringList entries;
    const QListWidget* list = fields_->currentNamesList();
    for (int i = 0; i < list->count(); ++i)
        entries << list->item(i)->data(Qt::UserRole).toString();
    return entries;
}
