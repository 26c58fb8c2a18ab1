#include "shopping/screens/shoplist.h"

#include "common/clock.h"
#include "common/dates.h"
#include "common/programfolder.h"
#include "cookbook/logic/cookbookselection.h"
#include "shell/kit/popupcalendar.h"
#include "shell/kit/raisedpanel.h"
#include "shell/kit/screengrid.h"
#include "shell/kit/screenstatusbar.h"
#include "shell/screens/backgroundselector.h"
#include "shell/settings/settingsregistry.h"
#include "shopping/logic/recipeselect.h"
#include "shopping/screens/amountpanel.h"
#include "shopping/screens/entrybox.h"
#include "shopping/screens/open1.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QStringListModel>
#include <QVBoxLayout>

namespace {

const QString kCaption = QStringLiteral("Shopping List Maker");
constexpr int kItemBoxLength = 25;
constexpr int kDateBoxLength = 20;

QLineEdit* MakeBox(const QString& name, QWidget* parent)
{
    auto* box = new QLineEdit(parent);
    box->setObjectName(name);
    return box;
}

} // namespace

Shoplist::Shoplist(Dialogs& dialogs, QWidget* parent)
    : ActivityWindow(dialogs, {"Shoplist", Settings::ShoplistPanelColor, kHelpTopic}, parent)
{
    setWindowTitle(kCaption);
    EnterProgramFolder();
    clock_ = &SystemTime();
    ownChooser_ = std::make_unique<Open1Chooser>(dialogs, this);
    chooser_ = ownChooser_.get();

    auto* central = new QWidget(this);
    central->setObjectName(QStringLiteral("ShoplistArea"));
    setCentralWidget(central);
    buildListArea(central);
    QFrame* buttons = MakeRaisedPanel(QStringLiteral("SSPanel4"), central);
    panels_.append(buttons);
    buildCommands(buttons);
    auto* layout = new QVBoxLayout(central);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(4);
    layout->addWidget(listArea_, 1);
    layout->addWidget(buttons);

    calendar_ = new PopupCalendar(QStringLiteral("Calendar1"), central);
    calendar_->setClock(*clock_);
    calendar_->setTarget(dateBox_->box(), [](QDate date) { return ShortDate(date); });
    // The main screen's background selector serves the grid.
    gridColors_ = new GridColorChoice(dialogs, grid_, central, Settings::GridBackground, Settings::GridTextColor);
    connect(gridColors_->selector(), &BackgroundSelector::activityChanged, this,
            [this] { screenStatusBar()->setActivity(windowTitle()); });
    buildSelectPanels(central);
    buildPrintPanel(central);
    declareEscapeOrder();
    listArea_->installEventFilter(this);
    central->installEventFilter(this);
    addColouredPanels(panels_);
    connectEntry();

    catalogue_.load();
    showDropDown();
    cookbook_ = ReadShoplistCookbook();
    titles_ = ReadCookbookTitles();
    showCookbookMenu();
    dateBox_->setText(ShortDate(clock_->today()));
    showList();
    grid_->applySharedColors();
    screenStatusBar()->setActivity(windowTitle());
    applyCommandStates();
    focusCommandButton(ShoplistCommand::Exit);
}

Shoplist::~Shoplist() = default;

void Shoplist::setClock(const Clock& clock)
{
    clock_ = &clock;
    calendar_->setClock(clock);
    dateBox_->setText(ShortDate(clock.today()));
}

// The entry panels on the left (or the amount panel in their place) and the
// grid beside them.
void Shoplist::buildListArea(QWidget* central)
{
    listArea_ = new QWidget(central);
    listArea_->setObjectName(QStringLiteral("ShoplistList"));
    leftColumn_ = new QStackedWidget(listArea_);
    leftColumn_->setObjectName(QStringLiteral("ShoplistEntry"));
    entryPanels_ = new QWidget(leftColumn_);
    auto* entryColumn = new QVBoxLayout(entryPanels_);
    entryColumn->setContentsMargins(0, 0, 0, 0);
    entryColumn->addWidget(buildItemPanel(entryPanels_));
    entryColumn->addWidget(buildDatePanel(entryPanels_));
    entryColumn->addWidget(buildDisplayOptions(entryPanels_));
    entryColumn->addStretch();
    leftColumn_->addWidget(entryPanels_);
    // A small window scrolls the amount panel.
    auto* amountScroll = new QScrollArea(leftColumn_);
    amountScroll->setObjectName(QStringLiteral("AmountEntryScroll"));
    amountScroll->setWidgetResizable(true);
    amountScroll->setFrameShape(QFrame::NoFrame);
    amountPanel_ = new AmountPanel(amountScroll);
    amountScroll->setWidget(amountPanel_);
    leftColumn_->addWidget(amountScroll);
    panels_.append(amountPanel_);
    buildGrid(listArea_);
    auto* listRow = new QHBoxLayout(listArea_);
    listRow->setContentsMargins(0, 0, 0, 0);
    listRow->addWidget(leftColumn_);
    listRow->addWidget(grid_, 1);
}

QWidget* Shoplist::buildItemPanel(QWidget* parent)
{
    QFrame* panel = MakeRaisedPanel(QStringLiteral("SSPanel1"), parent);
    panels_.append(panel);
    auto* column = new QVBoxLayout(panel);
    auto* label = new QLabel(QStringLiteral("Grocery Item:"), panel);
    itemBox_ = new EntryBox(MakeBox(QStringLiteral("Text1_0"), panel), kItemBoxLength);
    combo1_ = new QComboBox(panel);
    combo1_->setObjectName(QStringLiteral("Combo1"));
    combo1_->setEditable(true);
    combo1_->setInsertPolicy(QComboBox::NoInsert);
    combo1_->setMaxVisibleItems(20);
    dropDownModel_ = new QStringListModel(combo1_);
    combo1_->setModel(dropDownModel_);
    addToGrid_ = new QPushButton(QStringLiteral("&Add to Item Grid"), panel);
    addToGrid_->setObjectName(QStringLiteral("Command2_0"));
    deleteFromFile_ = new QPushButton(QStringLiteral("&Delete Item fm File"), panel);
    deleteFromFile_->setObjectName(QStringLiteral("Command2_1"));
    auto* buttons = new QHBoxLayout;
    for (QPushButton* button : {addToGrid_, deleteFromFile_}) {
        button->setAutoDefault(false);
        buttons->addWidget(button);
    }
    column->addWidget(label);
    column->addWidget(itemBox_->box());
    column->addWidget(combo1_);
    column->addLayout(buttons);
    return panel;
}

QWidget* Shoplist::buildDatePanel(QWidget* parent)
{
    QFrame* panel = MakeRaisedPanel(QStringLiteral("SSPanel2"), parent);
    panels_.append(panel);
    auto* column = new QVBoxLayout(panel);
    auto* prompt = new QLabel(
        QStringLiteral("The Projected Date For This Shopping Trip:  Please Select Desired Date:"), panel);
    prompt->setObjectName(QStringLiteral("Label1"));
    prompt->setWordWrap(true);
    dateBox_ = new EntryBox(MakeBox(QStringLiteral("Text1_2"), panel), kDateBoxLength);
    column->addWidget(prompt);
    column->addWidget(dateBox_->box());
    return panel;
}

QWidget* Shoplist::buildDisplayOptions(QWidget* parent)
{
    displayOptions_ = new QGroupBox(QStringLiteral("Item Grid Display:"), parent);
    displayOptions_->setObjectName(QStringLiteral("Frame1"));
    panels_.append(displayOptions_);
    alphabetically_ = new QRadioButton(QStringLiteral("&Alphabetically"), displayOptions_);
    alphabetically_->setObjectName(QStringLiteral("Option1_1"));
    asEntered_ = new QRadioButton(QStringLiteral("&As  Entered/Saved"), displayOptions_);
    asEntered_->setObjectName(QStringLiteral("Option1_0"));
    asEntered_->setChecked(true);
    auto* column = new QVBoxLayout(displayOptions_);
    column->addWidget(alphabetically_);
    column->addWidget(asEntered_);
    return displayOptions_;
}

void Shoplist::buildGrid(QWidget* parent)
{
    grid_ = new ScreenGrid(QStringLiteral("VSFlexGrid1"), parent);
    grid_->setHeadings({QStringLiteral("Grocery Item"), QStringLiteral("Amount to Purchase")});
    grid_->setSelectionKind(ScreenGrid::Selection::SingleCell);
    grid_->verticalHeader()->hide();
    grid_->horizontalHeader()->setDefaultAlignment(Qt::AlignCenter);
    grid_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
    grid_->horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
    // Narrow windows keep both headings whole: the grid is never narrower
    // than they are.
    const QFontMetrics heading(grid_->horizontalHeader()->font());
    constexpr int kHeadingRoom = 24;
    grid_->setMinimumWidth(heading.horizontalAdvance(QStringLiteral("Grocery Item")) + kHeadingRoom
                           + heading.horizontalAdvance(QStringLiteral("Amount to Purchase")) + kHeadingRoom
                           + grid_->verticalScrollBar()->sizeHint().width() + 2 * grid_->frameWidth());
    grid_->setHeaderSort(true, {}, [this](int, Qt::SortOrder) { headerSorted(); });
    grid_->setRowTip([this](int row) {
        return QStringLiteral(" Row %1: %2 ").arg(row + 1).arg(grid_->text(row, 0));
    });
}

// The select panels lie over the list, the print panel over the whole screen.
void Shoplist::placePanels()
{
    for (QWidget* panel : overList_)
        panel->setGeometry(listArea_->geometry());
    for (QWidget* panel : overScreen_)
        panel->setGeometry(centralWidget()->rect());
}

// ---- Showing the state --------------------------------------------------------

void Shoplist::setPanel(ShoplistPanel panel)
{
    panel_ = panel;
    applyCommandStates();
}

void Shoplist::focusCommandButton(ShoplistCommand command)
{
    commands_->button(command)->setFocus(Qt::OtherFocusReason);
}
