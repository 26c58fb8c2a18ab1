#pragma once
// WeightTracker, the weight tracker screen: an individual's beginning date,
// beginning and goal weight over either the weigh-in grid with its trend
// pictures or the exercise plan with the photographs, the graph, and the
// printout. What the screen works on lives in TrackerModel; the screen
// holds the widgets, shows the model and hands it what the user typed. The
// commands are one table (weighttrackercommands.cpp) whose enabled states
// CommandStatesFor decides; the file commands live in
// weighttrackerfiles.cpp, the grid in weighttrackergrid.cpp, the plan,
// pictures, graph and printout in weighttrackerplan.cpp.
#include "tracker/logic/trackermodel.h"
#include "tracker/logic/trackerprint.h"
#include "tracker/logic/trackerstates.h"

#include "shell/kit/activitywindow.h"

class Clock;
class OverlayPanel;
class PageBuilder;
class PictureChooserPanel;
class PlanPanel;
class PopupCalendar;
class PrintOptionsPanel;
class QComboBox;
class QFrame;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollArea;
class QStackedWidget;
class QVBoxLayout;
class ScreenGrid;
class TrackerPrintOptions;
class WeightGraphPanel;
class EnlargedPicturePanel;

enum class TrackerCommand {
    View, Create, SaveNew, Save, Delete, WeighIns, Plan, Graph, Print, Exit, AddRow, DeleteRow, DateChecker,
    Trend, PanelColor, Help,
};

class WeightTracker final : public ActivityWindow {
    Q_OBJECT
public:
    static constexpr int kHelpTopic = 1060;
    // The grid's columns: 0 is the fixed left column, then date, weight,
    // change and beginning difference.
    static constexpr int kDateColumn = 1;
    static constexpr int kWeightColumn = 2;
    static constexpr int kChangeColumn = 3;
    static constexpr int kDifferenceColumn = 4;

    explicit WeightTracker(Dialogs& dialogs, QWidget* parent = nullptr);
    ~WeightTracker() override;

    // Where the date check's present moment, the calendar's today and the
    // printout's date come from.
    void setClock(const Clock& clock);

    const TrackerModel& model() const { return model_; }
    ScreenGrid* grid() const { return grid_; }
    QComboBox* nameList() const { return nameList_; }
    QLineEdit* nameField() const { return nameField_; }
    QLineEdit* field(int line) const;   // lines 2 to 9 of the file
    PlanPanel* planPanel() const { return plan_; }
    PopupCalendar* calendar() const { return calendar_; }
    WeightGraphPanel* graphPanel() const { return graph_; }
    PictureChooserPanel* pictureChooser() const { return chooser_; }
    EnlargedPicturePanel* enlargedPicture() const { return enlarged_; }
    PrintOptionsPanel* printPanel() const { return printPanel_; }
    TrackerPrintOptions* printOptions() const { return printOptions_; }
    QLabel* trendPicture(int index) const;   // 0: last entry, 1: beginning weight
    QLabel* goalLabel(int index) const;      // "GOAL WEIGHT ACHIEVED!", "CONGRATULATIONS!"
    bool weighInsShown() const;
    bool planShown() const;
    const QString& goalNote() const { return goalNote_; }

protected:
    bool readyToClose() override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    // Building (weighttracker.cpp, weighttrackercommands.cpp).
    std::vector<CommandRow<TrackerCommand>> commandRows();
    void buildCommands(QWidget* buttonPanel);
    QWidget* buildMainPanel(QWidget* area);
    QWidget* buildWeighInPanel(QWidget* area);
    void buildFieldRules();
    void declareEscapeOrder();
    void applyCommandStates();
    void showState();
    void showFields();
    void fieldEdited(QLineEdit* field, QString TrackerFields::*line, bool number);
    bool enterPressed(QObject* watched);

    // The file commands (weighttrackerfiles.cpp).
    bool savePromptAllows();
    bool promptIfChanged(bool worthAsking);
    void viewExisting();
    void createNew();
    bool saveNewFile();
    bool saveFile(bool silent);
    void deleteFile();
    void individualPicked(int index);
    void showLoaded();
    bool individualChosen();
    void closeCalendarAndPanels();

    // The grid (weighttrackergrid.cpp).
    void buildGrid(QWidget* area);
    void fillGrid();
    void fillRow(int row);
    void fitColumns();
    void cellEdited(int gridRow, int column);
    void cursorMoved(int gridRow, int column);
    void cellClicked(int gridRow, int column);
    void openCalendar(QLineEdit* field, int gridRow, const QString& current, const QPoint& at);
    void datePicked(QDate date);
    void headingClicked(int column);
    void addRow();
    void deleteRow();
    void showTrend();
    void toggleTrendDisplay();
    void toggleDateChecker();
    void showWeighIns();

    // Plan, pictures, graph and printout (weighttrackerplan.cpp).
    void buildPlan();
    void showPlan();
    void showPictures();
    void commentsEdited();
    void openChooser(int slot);
    void pictureEntered(const QString& path, const QString& folder);
    void pictureDeleted();
    void closeChooser();
    void enlarge(int slot);
    void rebuildGraph();
    void showGraph();
    void buildPrintPanel(QWidget* area);
    void openPrintPanel();
    void leavePrintOptions();
    void composePrintout(PageBuilder& page);
    void closePanel(OverlayPanel* panel, QPushButton* focus = nullptr);

    TrackerModel model_;
    TrackerPanel panel_ = TrackerPanel::None;
    TrackerCommandStates on_;
    std::unique_ptr<CommandTable<TrackerCommand>> commands_;
    const Clock* clock_ = nullptr;
    bool dateCheckerOn_ = true;
    bool trendShown_ = true;
    QString goalNote_;
    bool filling_ = false;
    int chooserSlot_ = 0;
    // Where the calendar writes: a field, or a grid row (0-based) when none.
    QLineEdit* calendarField_ = nullptr;
    int calendarRow_ = -1;

    QLabel* captionStrip_ = nullptr;         // SSPanel1
    QFrame* mainPanel_ = nullptr;            // SSPanel2
    QLabel* nameCaption_ = nullptr;          // Label1
    QComboBox* nameList_ = nullptr;          // Combo1
    QLineEdit* nameField_ = nullptr;         // Text1
    QLabel* note_ = nullptr;                 // lblNote
    QList<QLineEdit*> fields_;               // Text2, Text3, Text4
    QStackedWidget* pages_ = nullptr;
    QFrame* weighInPanel_ = nullptr;         // SSPanel3
    QList<QLabel*> headings_;
    ScreenGrid* grid_ = nullptr;             // VSFlexGrid1
    QVBoxLayout* trendColumn_ = nullptr;
    QList<QLabel*> trendCaptions_;
    QList<QLabel*> trendPictures_;           // Image1, Image2
    QList<QLabel*> goalLabels_;
    QScrollArea* planScroll_ = nullptr;
    PlanPanel* plan_ = nullptr;
    QFrame* commandPanel_ = nullptr;         // SSPanel6
    PopupCalendar* calendar_ = nullptr;      // MonthView1
    WeightGraphPanel* graph_ = nullptr;
    PictureChooserPanel* chooser_ = nullptr;
    EnlargedPicturePanel* enlarged_ = nullptr;
    PrintOptionsPanel* printPanel_ = nullptr;
    TrackerPrintOptions* printOptions_ = nullptr;
};
