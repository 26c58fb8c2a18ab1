// Form5's menus, command buttons and cookbook menu.
#include "recipetools/screens/form5.h"

#include "shell/kit/commandbutton.h"
#include "cookbook/logic/cookbookselection.h"
#include "print/screens/printoptionspanel.h"
#include "shell/kit/screentoolbars.h"

#include <QAction>
#include <QGridLayout>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QToolBar>

namespace {

// The main commands in the order of the screen's buttons, with the caption
// of the button; the action (menu entry) of the same name carries the menu
// caption.
struct CommandButton {
    const char* action;
    const char* caption;
};
constexpr CommandButton kButtons[] = {
    {"mCreate", "&Create"}, {"mView", "&View"},          {"mModify", "&Modify"},
    {"mSave", "&Save"},     {"mPrint", "&Print"},        {"mCalculate", "C&alculate"},
    {"mDelete", "&Delete"}, {"mSearch", "S&earch"},      {"mSpelling", "S&pelling Check"},
    {"mExit", "E&xit"},
};

} // namespace

// No menu title takes a letter that a button of the screen or of its panels
// uses (Alt+E is "S&earch", Alt+R "Search by &Recipe").
void Form5::buildMenus()
{
    QMenu* recipe = menuBar()->addMenu(QStringLiteral("&File"));
    recipe->setObjectName(QStringLiteral("mRecipe"));
    connect(AddCommand(recipe, "mCreate", QStringLiteral("&Create Recipe")), &QAction::triggered, this,
            &Form5::createRecipe);
    connect(AddCommand(recipe, "mView", QStringLiteral("&View Recipe")), &QAction::triggered, this,
            &Form5::viewRecipes);
    connect(AddCommand(recipe, "mModify", QStringLiteral("&Modify Recipe")), &QAction::triggered, this,
            &Form5::modifyRecipe);
    connect(AddCommand(recipe, "mSave", QStringLiteral("&Save")), &QAction::triggered, this, &Form5::saveRecipe);
    connect(AddCommand(recipe, "mDelete", QStringLiteral("&Delete Recipe")), &QAction::triggered, this,
            &Form5::deleteRecipe);
    connect(AddCommand(recipe, "mRename", QStringLiteral("Change Recipe &Name")), &QAction::triggered, this,
            &Form5::openRename);
    recipe->addSeparator();
    // Spelling, copy, export and import come with panels of their own; until
    // then their entries stay disabled.
    AddCommand(recipe, "mCalculate", QStringLiteral("C&alculate Amounts"));
    AddCommand(recipe, "mSearch", QStringLiteral("Searc&h"));
    AddCommand(recipe, "mSpelling", QStringLiteral("S&pelling Check"));
    recipe->addSeparator();
    AddCommand(recipe, "mCopy", QStringLiteral("Cop&y"));
    AddCommand(recipe, "mExport", QStringLiteral("&Export Recipe"));
    AddCommand(recipe, "mImport", QStringLiteral("&Import Recipe"));
    recipe->addSeparator();
    AddCommand(recipe, "mPrint", QStringLiteral("&Print Options"));
    AddCommand(recipe, "mWorksheet", QStringLiteral("Print &Worksheet"));
    recipe->addSeparator();
    connect(AddCommand(recipe, "mExit", QStringLiteral("E&xit")), &QAction::triggered, this, &Form5::exitScreen);

    QMenu* options = menuBar()->addMenu(QStringLiteral("&Options"));
    options->setObjectName(QStringLiteral("mOptions"));
    buildCookbookMenu(options);
    options->addSeparator();
    AddCommand(options, "mPanelColor", QStringLiteral("Panel C&olor"));

    QMenu* utilities = menuBar()->addMenu(QStringLiteral("&Utilities"));
    utilities->setObjectName(QStringLiteral("mUtilities"));
    AddCommand(utilities, "mBackup", QStringLiteral("&Backup Recipes to Disk"));
    AddCommand(utilities, "mRestore", QStringLiteral("&Restore Recipes from Disk"));

    QMenu* help = menuBar()->addMenu(QStringLiteral("&Help"));
    help->setObjectName(QStringLiteral("mHelpMenu"));
    AddCommand(help, "mHelp", QStringLiteral("Recipe File &Help"))->setShortcut(QKeySequence(Qt::Key_F1));
}

void Form5::buildToolbars()
{
    ScreenToolbars* toolbars = this->toolbars();
    const auto put = [this](QToolBar* bar, std::initializer_list<const char*> names) {
        for (const char* name : names)
            bar->addAction(findChild<QAction*>(QString::fromLatin1(name)));
    };
    put(toolbars->top(), {"mCreate", "mView", "mModify", "mSave", "mDelete", "mPrint", "mCalculate", "mSearch",
                          "mSpelling"});
    toolbars->top()->addSeparator();
    put(toolbars->top(), {"mHelp", "mExit"});
    // The side toolbar: panel colour first, then the cookbook titles, the
    // worksheet and the copy command.
    put(toolbars->side(), {"mPanelColor", "mTitles", "mWorksheet", "mCopy"});
    toolbars->applyFlags();
}

void Form5::buildCookbookMenu(QMenu* options)
{
    cookbookMenu_ = options->addMenu(QStringLiteral("Select Cook&book"));
    cookbookMenu_->setObjectName(QStringLiteral("mSelectCookbook"));
    for (int cookbook = 1; cookbook <= kCookbookCount; ++cookbook) {
        QAction* entry = AddCommand(cookbookMenu_, "", QStringLiteral("Cookbook #&%1").arg(cookbook));
        entry->setObjectName(QStringLiteral("mCookbook%1").arg(cookbook));
        entry->setCheckable(true);
        connect(entry, &QAction::triggered, this, [this, cookbook] { selectCookbook(cookbook); });
        cookbookEntries_[cookbook - 1] = entry;
    }
    connect(AddCommand(options, "mTitles", QStringLiteral("Cookbook &Titles")), &QAction::triggered, this,
            &Form5::openTitles);
}

void Form5::buildCommandButtons(QWidget* parent)
{
    commandGrid_ = new QGridLayout(parent);
    for (int i = 0; i < int(std::size(kButtons)); ++i) {
        auto* button = new QPushButton(QString::fromLatin1(kButtons[i].caption), parent);
        button->setObjectName(QStringLiteral("Command1_%1").arg(i));
        button->setAutoDefault(false);
        BindButtonToAction(button, findChild<QAction*>(QString::fromLatin1(kButtons[i].action)));
        commandButtons_ << button;
    }
    arrangeCommandButtons(int(commandButtons_.size()) / 2); // one row once the window is wide enough
}

// One row of ten buttons where the window is wide enough, two rows of five
// on a smaller screen.
void Form5::arrangeCommandButtons(int perRow)
{
    if (perRow == buttonsPerRow_)
        return;
    buttonsPerRow_ = perRow;
    for (QPushButton* button : commandButtons_)
        commandGrid_->removeWidget(button);
    for (int i = 0; i < commandButtons_.size(); ++i)
        commandGrid_->addWidget(commandButtons_[i], i / perRow, i % perRow);
}

void Form5::resizeEvent(QResizeEvent* event)
{
    ActivityWindow::resizeEvent(event);
    int oneRow = 0;
    for (const QPushButton* button : commandButtons_)
        oneRow += button->sizeHint().width() + commandGrid_->horizontalSpacing();
    const int available = centralWidget()->width() - 40;
    arrangeCommandButtons(available >= oneRow ? int(commandButtons_.size()) : int(commandButtons_.size()) / 2);
    // The print options panel covers the whole screen below the toolbar.
    printPanel_->setGeometry(centralWidget()->rect());
}
