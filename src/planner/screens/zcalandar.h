#pragma once
// Zcalandar, the menu planner: a calendar of one to three months on which
// the user picks a day, and the day's 21 lines, seven each for breakfast,
// lunch and dinner, each meal with its list of remembered dishes. The
// screen's state is PlannerState, and CommandStatesFor decides every enabled
// state. Panels: the list editor, the calendar options, the view panel with
// its table, and the print options over it.
//
// The lines on the screen came from `loaded_`, which lags the calendar by
// one step on purpose: when the user moves to another day with unsaved
// lines, the question comes after the calendar has moved, and Yes writes the
// lines to the day they belong to.
#include "planner/logic/menuitemlist.h"
#include "planner/logic/menuplanfile.h"
#include "planner/logic/plannerstate.h"
#include "shell/kit/activitywindow.h"

#include <array>
#include <functional>
#include <optional>

class CalendarOptionsPanel;
class CalendarStrip;
class Clock;
class DayLinesPanel;
class EditListsPanel;
class MenuPrintOptions;
class MenuViewPanel;
class PageBuilder;
class PrintOptionsPanel;
class QLabel;
class QScrollArea;
class QTimer;
struct CalendarOptions;

enum class ZcalandarCommand {
    Save, ClearEntries, EditLists, PrintView, Exit, PanelColor, TextColor, CalendarOptions, Copy, ToolbarPrint,
    Backup, Restore, Help,
};

class Zcalandar final : public ActivityWindow {
    Q_OBJECT
public:
    static constexpr int kHelpTopic = 1050;
    // Opens Backup1 modally in a mode for a year's plan file.
    using BackupOpener = std::function<void(int mode, int year)>;

    // `clock` gives today, the clock panel's time and the printout's date.
    Zcalandar(Dialogs& dialogs, const Clock& clock, QWidget* parent = nullptr);
    explicit Zcalandar(Dialogs& dialogs, QWidget* parent = nullptr);
    ~Zcalandar() override;

    // Backup and restore of the year's file go through `opener`; without
    // one both entries stay off.
    void setBackupOpener(BackupOpener opener);

    const PlannerState& state() const { return state_; }
    bool dirty() const { return dirty_; }
    QDate currentDate() const;
    MenuPlace loadedPlace() const { return loaded_; }
    const LineEntry& lineEntry() const { return entry_; }
    const MenuItemList& list(Meal meal) const { return lists_[size_t(meal) - 1]; }

    CalendarStrip* calendar() const { return calendar_; }
    DayLinesPanel* linesPanel() const { return lines_; }
    EditListsPanel* editListsPanel() const { return editLists_; }
    CalendarOptionsPanel* optionsPanel() const { return options_; }
    MenuViewPanel* viewPanel() const { return view_; }
    PrintOptionsPanel* printPanel() const { return printPanel_; }
    MenuPrintOptions* printOptions() const { return printOptions_; }

protected:
    bool readyToClose() override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void buildScreen();
    void connectPanels();

    // Building (zcalandarcommands.cpp).
    void buildCommands(QWidget* buttonPanel);
    std::vector<CommandRow<ZcalandarCommand>> commandRows();
    void declareEscapeOrder();

    // The day and its lines (zcalandarday.cpp).
    void runOpening();
    void daySelected(QDate date);
    bool askToSaveBeforeNextAction();
    void loadDay(QDate date);
    bool saveLines(const MenuPlace& place);
    void saveDay();
    void clearEntries();
    void exitPlanner();
    void lineEntered(int index, Qt::FocusReason reason);
    void offerToList(int index);
    void lineEdited();
    void enterPressed(int index);
    void itemPicked(int index, const QString& item);
    void showLongDate();
    void showClock();

    // Lists, options, colours and utilities (zcalandarpanels.cpp).
    void loadLists();
    bool saveList(Meal meal);
    void openEditLists();
    void chooseEditList(Meal meal);
    void addListItem(const QString& text);
    void deleteListItem(const QString& text);
    void closeEditLists();
    void toggleCalendarOptions();
    void openCalendarOptions();
    void applyCalendarOptions(const CalendarOptions& options);
    void closeCalendarOptions();
    void chooseTextColor();
    void utilitiesOpening();
    void backupYear();
    void restoreYear();

    // Views, printing and copying (zcalandarview.cpp).
    void buildPrintPanel(QWidget* area);
    void openPrintView();
    void placeViewPanel();
    void toolbarPrint();
    void showView();
    void closePrintView();
    void openPrintOptions();
    void leavePrintOptions();
    void composePrintout(PageBuilder& page);
    void copyDay();

    // Showing the state.
    void setPanel(PlannerPanel panel);
    void applyCommandStates();
    void tell(const QString& title, const QString& text);
    bool tellWriteFailed(bool written, const QString& fileName);
    void showActivity(const QString& text = QString());
    void fitCalendarArea();

    const Clock& clock_;
    BackupOpener backupOpener_;
    PlannerState state_;
    PlannerCommandStates on_;
    std::unique_ptr<CommandTable<ZcalandarCommand>> commands_;
    bool dirty_ = false;
    bool exiting_ = false;         // the exit command asks its own question
    MenuPlace loaded_;             // LoadedYear, LoadedSlot
    QDate loadedDate_;             // the day they stand for
    LineEntry entry_;              // ActiveLine, PendingListCheck
    std::array<MenuItemList, 3> lists_;
    std::optional<qint32> textColor_;

    CalendarStrip* calendar_ = nullptr;
    QScrollArea* calendarArea_ = nullptr;
    QLabel* datePanel_ = nullptr;
    QLabel* clockPanel_ = nullptr;
    QTimer* clockTimer_ = nullptr;
    DayLinesPanel* lines_ = nullptr;
    EditListsPanel* editLists_ = nullptr;
    CalendarOptionsPanel* options_ = nullptr;
    MenuViewPanel* view_ = nullptr;
    PrintOptionsPanel* printPanel_ = nullptr;
    MenuPrintOptions* printOptions_ = nullptr;
};
