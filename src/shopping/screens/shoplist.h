#pragma once
// Shoplist, the "Shopping List Maker": one grocery list for one shopping
// trip, a grid of items and amounts tied to the trip's projected date, with
// the catalogue of items typed before in a drop-down. What the screen works
// on lives in ShoppingList and ItemCatalogue; the screen holds the widgets,
// shows the model and hands it what the user did. The Amount Entry Panel,
// the Recipe Select and Quick Select panels and the list's print options are
// classes of their own. The commands are one table (shoplistcommands.cpp),
// and ShoplistCommandStatesFor decides every enabled state.
#include "shopping/logic/itemcatalogue.h"
#include "shopping/logic/shoplistmodes.h"
#include "shopping/logic/shoppinglist.h"

#include "shell/kit/activitywindow.h"
#include "shell/screens/gridcolorchoice.h"

#include <memory>

class AmountPanel;
class BackgroundSelector;
class Clock;
class EntryBox;
class ListChooser;
enum class ListChoice;
class ListPrintOptions;
class PageBuilder;
class PopupCalendar;
class PrintOptionsPanel;
class QComboBox;
class QGroupBox;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QStackedWidget;
class QStringListModel;
class QuickSelectPanel;
class RecipeSelectPanel;
class ScreenGrid;
struct Background;

enum class ShoplistCommand {
    Exit, ClearGrid, Save, PrintOptions, DeleteItem, RecipeSelect, QuickSelect, NewList, OpenList, DeleteList,
    GridBackground, GridTextColor, PanelColor, Cookbook1, Cookbook2, Cookbook3, Cookbook4, Cookbook5, Cookbook6,
    Cookbook7, Cookbook8, Worksheet, Copy, Help,
};

class Shoplist final : public ActivityWindow {
    Q_OBJECT
public:
    static constexpr int kHelpTopic = 1040;

    explicit Shoplist(Dialogs& dialogs, QWidget* parent = nullptr);
    ~Shoplist() override;

    // Where Open and Delete list ask for a list; Open1 unless a test says.
    void setListChooser(ListChooser& chooser) { chooser_ = &chooser; }
    // Where today comes from; the system clock unless a test says.
    void setClock(const Clock& clock);

    const ShoppingList& list() const { return list_; }
    const ItemCatalogue& catalogue() const { return catalogue_; }
    ShoplistPanel openPanel() const { return panel_; }
    int cookbook() const { return cookbook_; }
    AmountPanel* amountPanel() const { return amountPanel_; }
    RecipeSelectPanel* recipeSelectPanel() const { return recipePanel_; }
    QuickSelectPanel* quickSelectPanel() const { return quickPanel_; }
    PrintOptionsPanel* printPanel() const { return printPanel_; }
    ListPrintOptions* printOptions() const { return printOptions_; }
    PopupCalendar* calendar() const { return calendar_; }
    BackgroundSelector* gridBackgroundSelector() const { return gridColors_->selector(); }

protected:
    bool readyToClose() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    // Building (shoplist.cpp, shoplistcommands.cpp).
    void buildListArea(QWidget* central);
    QWidget* buildItemPanel(QWidget* parent);
    QWidget* buildDatePanel(QWidget* parent);
    QWidget* buildDisplayOptions(QWidget* parent);
    void buildGrid(QWidget* parent);
    std::vector<CommandRow<ShoplistCommand>> commandRows();
    void buildCommands(QWidget* buttonPanel);
    void declareEscapeOrder();
    void placePanels();

    // The grid and what is typed (shoplistentry.cpp).
    void connectEntry();
    void showList();
    void itemBoxEdited();
    void itemBoxEnter();
    void addTypedItem();
    void comboPicked(int index);
    void comboEnter();
    void cellClicked(int row, int column);
    void enterAmount();
    void clearAmount();
    void amountBoxClicked();
    void deleteItem();
    void deleteFromFile();
    void checkCatalogue(const QString& name);
    void showDropDown();
    void boxEntered(EntryBox* box);
    void selectRow(int row, int column);
    void sortChosen(SortMode mode);
    void headerSorted();
    void showItemEntry();

    // Lists and files (shoplistfiles.cpp).
    bool saveQuestionAllowsAction();
    bool save();
    void newList();
    QString chooseSavedList(ListChoice choice);
    void openList();
    void deleteList();
    void clearGridCommand();
    void clearGrid();
    void leaveScreen();
    void dateBoxEdited(const QString& text);
    void openCalendar();

    // The select panels (shoplistselect.cpp).
    void buildSelectPanels(QWidget* area);
    void toggleRecipeSelect();
    void closeRecipeSelect();
    void addChosenEntries(const QStringList& entries);
    void selectCookbook(int cookbook);
    void showCookbookMenu();
    void toggleQuickSelect();
    void addQuickSelections();
    void closeQuickSelect();
    void appendToList(const QStringList& entries, bool names);

    // Printing and copying (shoplistprint.cpp).
    void buildPrintPanel(QWidget* area);
    void openPrintPanel(bool worksheet);
    void leavePrintOptions();
    void composePrintout(PageBuilder& page);
    void copyList();

    // The grid's colours (shoplistcolors.cpp).

    // Showing the state.
    void setPanel(ShoplistPanel panel);
    void applyCommandStates();
    void focusCommandButton(ShoplistCommand command);
    void tellListFull();

    ShoppingList list_;
    ItemCatalogue catalogue_;
    ShoplistPanel panel_ = ShoplistPanel::None;
    ShoplistCommandStates on_;
    std::unique_ptr<CommandTable<ShoplistCommand>> commands_;
    std::unique_ptr<ListChooser> ownChooser_;
    ListChooser* chooser_ = nullptr;
    const Clock* clock_ = nullptr;
    int cookbook_ = 1;
    QStringList titles_;

    QWidget* listArea_ = nullptr;            // the item, date and display panels and the grid
    QStackedWidget* leftColumn_ = nullptr;   // the entry panels, or the amount panel in their place
    QWidget* entryPanels_ = nullptr;
    EntryBox* itemBox_ = nullptr;            // Text1(0)
    EntryBox* dateBox_ = nullptr;            // Text1(2)
    QComboBox* combo1_ = nullptr;
    QStringListModel* dropDownModel_ = nullptr;  // Combo1's entries
    QPushButton* addToGrid_ = nullptr;       // Command2(0)
    QPushButton* deleteFromFile_ = nullptr;  // Command2(1)
    QGroupBox* displayOptions_ = nullptr;    // Frame1
    QRadioButton* asEntered_ = nullptr;      // Option1(0)
    QRadioButton* alphabetically_ = nullptr; // Option1(1)
    ScreenGrid* grid_ = nullptr;             // VSFlexGrid1
    QList<QWidget*> panels_;                 // the panels that take the panel colour
    QList<QWidget*> overList_;               // panels that open over the list
    QList<QWidget*> overScreen_;             // panels that open over the whole screen
    AmountPanel* amountPanel_ = nullptr;
    RecipeSelectPanel* recipePanel_ = nullptr;
    QuickSelectPanel* quickPanel_ = nullptr;
    PrintOptionsPanel* printPanel_ = nullptr;
    ListPrintOptions* printOptions_ = nullptr;
    PopupCalendar* calendar_ = nullptr;
    GridColorChoice* gridColors_ = nullptr;
    QStringList dropDown_;                   // Combo1's entries, sorted
    bool itemCellSelected_ = false;          // a click on a filled item cell waits for its new name
    bool exitAsked_ = false;                 // "E&xit" has asked its question already
    bool listOpened_ = false;                // the grid shows a list opened from its file
};
