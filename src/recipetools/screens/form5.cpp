#include "recipetools/screens/form5.h"

#include "recipetools/screens/calculatorpanel.h"
#include "recipetools/screens/conversionpanel.h"
#include "recipetools/screens/cookbooktitlespanel.h"
#include "recipetools/screens/recipefieldspanel.h"
#include "recipetools/screens/renamepanel.h"
#include "shell/kit/raisedpanel.h"
#include "shell/kit/screenstatusbar.h"

#include <QAction>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

Form5::Form5(Dialogs& dialogs, QWidget* parent)
    : ActivityWindow(dialogs, {"Form5", Settings::Form5PanelColor, kHelpTopic}, parent)
{
    auto* central = new QWidget(this);
    central->setObjectName(QStringLiteral("Form5Area"));
    setCentralWidget(central);
    titleStrip_ = new QLabel(central);
    titleStrip_->setObjectName(QStringLiteral("SSPanel4"));
    titleStrip_->setAlignment(Qt::AlignCenter);
    MakeRaised(titleStrip_);
    QFont stripFont = titleStrip_->font();
    stripFont.setPointSize(stripFont.pointSize() + 4);
    stripFont.setBold(true);
    titleStrip_->setFont(stripFont);
    fields_ = new RecipeFieldsPanel(central);
    // On a short screen the fields scroll rather than push the commands off.
    auto* fieldsArea = new QScrollArea(central);
    fieldsArea->setObjectName(QStringLiteral("RecipeFieldsArea"));
    fieldsArea->setFrameShape(QFrame::NoFrame);
    fieldsArea->setWidgetResizable(true);
    fieldsArea->setWidget(fields_);
    QFrame* commands = MakeRaisedPanel(QStringLiteral("SSPanel5"), central);
    buildCommands(commands);
    auto* layout = new QVBoxLayout(central);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);
    layout->addWidget(titleStrip_);
    layout->addWidget(fieldsArea, 1);
    layout->addWidget(commands);
    renamePanel_ = new RenamePanel(central);
    calculator_ = new CalculatorPanel(central);
    buildSearchPanels(central);
    titlesPanel_ = new CookbookTitlesPanel(central);
    buildPrintPanel(central);
    conversionPanel_ = new ConversionPanel(central);
    declareEscapeOrder();

    addColouredPanels(QList<QWidget*>{titleStrip_, commands} + fields_->colouredPanels()
                      + QList<QWidget*>{renamePanel_, calculator_, titlesPanel_, conversionPanel_} + printPanels());

    connectFields();
    // Whatever sets the type list's text chooses the type.
    connect(fields_->typeList(), &QComboBox::currentTextChanged, this,
            [this](const QString& text) { model_.chooseType(text); });
    connect(calculator_, &CalculatorPanel::calculateRequested, this, &Form5::calculateAmounts);
    connect(calculator_, &CalculatorPanel::closeRequested, this, &Form5::closeCalculator);
    connect(calculator_, &CalculatorPanel::yieldTypeTyped, this,
            [this](const QString& type) { fields_->yieldTypeList()->setEditText(type); });
    connect(renamePanel_, &RenamePanel::saveRequested, this, &Form5::saveRename);
    connect(renamePanel_, &RenamePanel::closeRequested, this, &Form5::closeRename);
    connect(titlesPanel_, &CookbookTitlesPanel::closeRequested, this, &Form5::closeTitles);
    connect(titlesPanel_, &CookbookTitlesPanel::saveRequested, this, &Form5::saveTitles);

    loadCookbook();
    model_.checkOldDatabase();
    setMode(RecipeMode::Idle);
    screenStatusBar()->setActivity(windowTitle());
    focusCommandButton(Form5Command::Create);
}

Form5::~Form5() = default;

// ---- Showing the model --------------------------------------------------------

void Form5::setMode(RecipeMode mode)
{
    model_.setMode(mode);
    const bool editing = mode == RecipeMode::Create || mode == RecipeMode::Modify;
    fields_->setEditable(editing);
    fields_->showNameBox(mode == RecipeMode::Create);
    if (mode != RecipeMode::Create)
        fields_->currentNamesPanel()->hide();
    showModeCaption();
    applyCommandStates();
}

void Form5::setPanel(RecipePanel panel)
{
    model_.setPanel(panel);
    applyCommandStates();
}

// One panel at a time: a panel opening over the calculator closes it first,
// as its "&Close" would.
void Form5::closeOpenPanel()
{
    if (model_.state().panel == RecipePanel::Calculator)
        closeCalculator();
}

void Form5::showModeCaption()
{
    showTitleStrip(QString::fromLatin1(model_.state().panel == RecipePanel::Calculator
                                           ? CalculatorCaption()
                                           : ModeCaption(model_.state().mode)));
}

// The strip's text takes the panel text colour of the desktop; only the
// delete warning is red.
void Form5::showTitleStrip(const QString& caption, bool alarm)
{
    titleStrip_->setText(caption);
    QPalette palette = titleStrip_->palette();
    palette.setColor(QPalette::WindowText, alarm ? QColor(Qt::red) : QPalette().color(QPalette::WindowText));
    titleStrip_->setPalette(palette);
}

void Form5::showType(const QString& typeName)
{
    fields_->typeList()->setCurrentText(typeName);
    model_.chooseType(typeName);
}

void Form5::showLists()
{
    fields_->showPickEntries(model_.pickEntries());
    fields_->showCurrentNameEntries(model_.currentNames());
}

void Form5::applyCommandStates()
{
    on_ = model_.commandStates();
    commands_->refresh();
    commands_->menu("mSelectCookbook")->setEnabled(on_.cookbookMenus);
    fields_->setListsEnabled(on_.pickLists);
}

// A panel that closes must not leave the keyboard to whatever field comes
// next: that would count as the user entering it.
void Form5::focusCommandButton(Form5Command command)
{
    commands_->button(command)->setFocus(Qt::OtherFocusReason);
}
