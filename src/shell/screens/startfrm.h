#pragma once
// The main screen. It stays for the life of the process and opens every
// activity from its nine buttons or its menus.
#include "shell/kit/commandtable.h"
#include "shell/logic/background.h"
#include "shell/screens/activityhost.h"

#include <QMainWindow>
#include <memory>

class About1;
class BackgroundSelector;
class Dialogs;
class QAction;
class QFrame;
class QLabel;
class QMenu;
class QPushButton;
class ScreenMetrics;
class ScreenStatusBar;

// The main screen's commands: its nine buttons and its menu entries.
enum class MainCommand {
    Background, FullScreen, SmallerScreen, DefaultSize, FamilyName, Exit,
    RecipeFiles, FoodGuide, MeasGuide, MenuPlanner, ShoppingList, Emergency, WeightTracker,
    Overview, BackupRestore, About, Web,
};

class Startfrm final : public QMainWindow {
    Q_OBJECT
public:
    // Topics of the help pages the main screen opens.
    static constexpr int kOverviewTopic = 1000;
    static constexpr int kBackupTopic = 1005;

    Startfrm(Dialogs& dialogs, const ScreenMetrics& screen, QWidget* parent = nullptr);

    // What the main screen does each time it gets the focus back: window
    // mode ticks, date form, background size, panel position, program folder.
    void focusGained();

    // Makes the command (a button and a menu entry) open its activity
    // screen; commands without one stay disabled.
    void registerActivity(MainCommand command, ActivityHost::Factory factory);

    // Another start on the same data folder asked for the program: the
    // activity open now, or else the main screen, comes to the front.
    void bringForward();

signals:
    // The user confirmed "E&xit": the window is stored, the process ends.
    void exitConfirmed();

protected:
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::vector<CommandRow<MainCommand>> commandRows();
    void buildCommandPanel();

    void runStart();
    void applyResizeRules(Qt::WindowStates previous);
    void checkScreen();
    void loadBackground();
    void showBackground(const Background& background);
    void centreCommandPanel();
    void updateDisplayTicks();
    int twips(int pixels) const;
    int pixels(int twips) const;

    void fullScreenDisplay();
    void smallerScreenDisplay();
    void defaultScreenSize();
    void switchToFullScreen();
    void showMaximisedOnScreen();
    void askFamilyName();
    void exitProgram();
    void storeWindow();
    void showHelp(int topic);
    void showAbout();
    void openWebSite();

    Dialogs& dialogs_;
    const ScreenMetrics& screen_;
    ActivityHost* activities_ = nullptr;
    Background background_;
    bool starting_ = false;          // blocks the resize rules while the start runs

    QWidget* central_ = nullptr;
    QLabel* image1_ = nullptr;       // background picture
    QFrame* commandPanel_ = nullptr;
    BackgroundSelector* backgroundSelector_ = nullptr;
    ScreenStatusBar* statusBar_ = nullptr;
    std::unique_ptr<CommandTable<MainCommand>> commands_;
};
