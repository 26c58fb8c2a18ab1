#pragma once
// Form24, the food storage screen: the table of one kind (Basic, Emergency
// or Additional) in a grid, the category buttons beside it, the family
// field and the one input box through which every value is entered. What
// the screen works on lives in StorageModel; the screen holds the widgets,
// shows the model and hands it what the user typed. The commands are one
// table (form24commands.cpp), and CommandStatesFor decides every enabled
// state; entry happens here (form24entry.cpp), the panels and the output
// in form24output.cpp.
#include "storage/logic/storagemodel.h"
#include "storage/logic/storagestates.h"

#include "shell/kit/activitywindow.h"
#include "shell/screens/gridcolorchoice.h"

#include <functional>

class BackgroundSelector;
class PiePanel;
class Clock;
class PageBuilder;
class PercentPanel;
class PopupCalendar;
class PrintOptionsPanel;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class ScreenGrid;
class StorageExportPanel;
class StoragePrintOptions;

enum class Form24Command {
    GridBackground, GridTextColor, PanelColor, ApproxAmounts, ClearLastActions, ItemDefaults, Copy, Print, Save,
    Exit, EditCopy, Rollup, Backup, Restore, Export, KindBasic, KindEmergency, KindAdditional, Help,
};

class Form24 final : public ActivityWindow {
    Q_OBJECT
public:
    static constexpr int kHelpTopic = 1070;
    // The backup screen, opened modally with a mode: the kind's backup code,
    // or the next code for a restore.
    using BackupOpener = std::function<void(int mode)>;

    // The main screen opens Emergency storage.
    explicit Form24(Dialogs& dialogs, StorageKind kind = StorageKind::Emergency, QWidget* parent = nullptr);
    ~Form24() override;

    // Backup and restore stay off until the screen is given a backup screen.
    void setBackupOpener(BackupOpener opener);
    // Where the printout's date and the calendar's today come from.
    void setClock(const Clock& clock);

    const StorageModel& model() const { return model_; }
    StorageKind kind() const { return model_.kind(); }
    ScreenGrid* grid() const { return grid_; }
    QLineEdit* inputBox() const { return input_; }
    QLineEdit* familyField() const { return family_; }
    QPushButton* categoryButton(int index) const;
    PopupCalendar* calendar() const { return calendar_; }
    PiePanel* pie() const { return pie_; }
    PercentPanel* percentPanel() const { return percent_; }
    PrintOptionsPanel* printPanel() const { return printPanel_; }
    StorageExportPanel* exportPanel() const { return export_; }
    BackgroundSelector* gridBackgroundSelector() const { return gridColors_->selector(); }
    // The cell the input box writes to: table row (0: none) and column.
    int entryRow() const { return entryRow_; }
    int entryColumn() const { return entryColumn_; }

protected:
    bool readyToClose() override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    // Building (form24.cpp, form24commands.cpp).
    std::vector<CommandRow<Form24Command>> commandRows();
    void buildCommands(QWidget* buttonPanel);
    QWidget* buildFields(QWidget* area);
    QWidget* buildCategories(QWidget* area);
    void buildGrid(QWidget* area);
    void declareEscapeOrder();

    // The kind and the grid (form24.cpp).
    void showKind();
    void switchKind(StorageKind kind);
    void tickKind();
    void fillGrid();
    void fitColumns();
    void chooseCategory(int category);
    void showCategory(int category);
    void showPie();
    bool save();
    void applyCommandStates();

    // Entry (form24entry.cpp).
    void cursorMoved(int gridRow, int column);
    void applyCursorRule(int gridRow, int column);
    void moveCursor(int gridRow, int column);
    void forgetEntryCell();
    bool inputKeyPressed(QKeyEvent* key);
    bool familyKeyPressed(QKeyEvent* key);
    void commitInput();
    void commit(const QString& text);
    void familyEntered();
    void datePicked(QDate date);
    void rowClicked(const QPoint& at);

    // Whole-table commands, panels and output (form24output.cpp).
    void defaultTitles();
    void defaultAmounts();
    void clearLastActions();
    void copyTable();
    void buildPrintPanel(QWidget* area);
    void openPrintPanel();
    void leavePrintOptions();
    void composePrintout(PageBuilder& page);
    void toggleRollup();
    void closeRollup();
    void openExport();
    void closeExport();
    QList<QStringList> exportRows() const;
    void backup();
    void restore();
    void closePanel(QWidget* panel);

    StorageModel model_;
    StoragePanel panel_ = StoragePanel::None;
    StorageCommandStates on_;                  // the enabled states the rules read
    std::unique_ptr<CommandTable<Form24Command>> commands_;
    BackupOpener backupOpener_;
    const Clock* clock_ = nullptr;
    QLabel* captionStrip_ = nullptr;           // SSPanel1
    QFrame* fieldsPanel_ = nullptr;            // SSPanel2
    QFrame* categoryPanel_ = nullptr;          // SSPanel4
    QFrame* commandPanel_ = nullptr;           // SSPanel6
    QLineEdit* family_ = nullptr;              // Text2
    QLineEdit* input_ = nullptr;               // Text1
    QList<QPushButton*> categoryButtons_;      // Command2
    ScreenGrid* grid_ = nullptr;               // VSGd1
    PopupCalendar* calendar_ = nullptr;        // MonthView1
    PiePanel* pie_ = nullptr;                  // SSPanel3
    PercentPanel* percent_ = nullptr;          // SSPanel5
    PrintOptionsPanel* printPanel_ = nullptr;
    StoragePrintOptions* printOptions_ = nullptr;
    StorageExportPanel* export_ = nullptr;
    GridColorChoice* gridColors_ = nullptr;
    int entryRow_ = 0;                         // the remembered cell of the input box
    int entryColumn_ = -1;
    bool filling_ = false;                     // the grid is being filled: no cursor rules
    bool pressOnCurrentCell_ = false;          // a mouse press on the cell the cursor is on
};
