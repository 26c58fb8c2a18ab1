#pragma once
// The frame of an activity screen opened from the main screen (the recipe
// file, the guides, the shopping list and the others). A screen declares
// its frame (name, panel colour slot, help topic) and its command table,
// names the panels that take its colour and the order in which Escape
// closes what is open; the frame builds the rest alike for every screen:
// the status bar, the top and side toolbars, the menus and buttons from the
// table, F1 help, the right-click Options menu, the save question, the
// colour question on closing, and telling the main screen it has closed.
#include "shell/kit/commandtable.h"
#include "shell/settings/settingsregistry.h"

#include <QMainWindow>
#include <functional>
#include <memory>

class Dialogs;
class PanelColors;
class ScreenStatusBar;
class ScreenToolbars;
struct Message;

struct ScreenFrame {
    const char* name;               // objectName: "Form5"
    SettingsSlot panelColor;        // where the screen keeps its panel colour
    int helpTopic;
    // The slot a top toolbar restore empties.
    SettingsSlot topToolbarFlag = Settings::TopToolbarFlag;
};

// One step of the Escape order: what is open, and how it closes.
struct EscapeStep {
    std::function<bool()> isOpen;
    std::function<void()> close;
};

class ActivityWindow : public QMainWindow {
    Q_OBJECT
public:
    ActivityWindow(Dialogs& dialogs, const ScreenFrame& frame, QWidget* parent = nullptr);
    ~ActivityWindow() override;

    ScreenStatusBar* screenStatusBar() const { return statusBar_; }
    ScreenToolbars* toolbars() const { return toolbars_; }

    // Escape closes the first open step; with nothing open it leaves the
    // screen as "E&xit" does.
    void pressEscape();

signals:
    // The screen has closed for good (its exit checks have passed).
    void closed();

protected:
    Dialogs& dialogs() const { return dialogs_; }

    // Builds the menus, actions, buttons (children of `buttonParent`, named
    // by `buttonName`) and toolbar buttons of the screen's command table.
    template <typename Id>
    std::unique_ptr<CommandTable<Id>> makeCommands(std::span<const MenuRow> menus,
                                                   std::span<const CommandRow<Id>> rows,
                                                   QWidget* buttonParent = nullptr,
                                                   const char* buttonName = "Command1_%1")
    {
        auto table = std::make_unique<CommandTable<Id>>(this, menus, rows, topToolbar(), sideToolbar(), buttonParent,
                                                        buttonName);
        commandsBuilt(table->menu("mOptions"));
        return table;
    }

    // The panels, frames and option groups that take the panel colour; the
    // stored colour is applied at once.
    void addColouredPanels(const QList<QWidget*>& panels);
    void setEscapeOrder(QList<EscapeStep> steps) { escapeOrder_ = std::move(steps); }

    // The frame's own commands, for the screen's table.
    void choosePanelColor();
    void showHelp();
    void exitScreen();
    // Their rows, alike on every screen: "Panel C&olor" first on the side
    // toolbar; the help entry on F1 and the top toolbar, after a gap;
    // "E&xit" last on the top toolbar, with the screen's button if it has one.
    CommandSpec panelColorCommand(const char* menu);
    CommandSpec helpCommand(const char* menu, const QString& caption);
    CommandSpec exitCommand(const char* menu, const ButtonPlace& button = {});

    // The save question before a command that would lose the screen's work:
    // Yes runs `save` and the command goes on only when the save held; No
    // runs `discard` and goes on; Cancel stays. True when the command may
    // go on.
    bool saveQuestionAllows(const Message& question, const std::function<bool()>& save,
                            const std::function<void()>& discard = {});

    // The screen's own checks before it closes (a save question); false
    // keeps it open.
    virtual bool readyToClose() { return true; }
    // The help topic F1 and the help command open; a screen may answer by
    // what is open.
    virtual int helpTopic() const { return helpTopic_; }

    void closeEvent(QCloseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QToolBar* topToolbar() const;
    QToolBar* sideToolbar() const;
    void commandsBuilt(QMenu* options);

    Dialogs& dialogs_;
    int helpTopic_;
    ScreenStatusBar* statusBar_ = nullptr;
    PanelColors* panelColors_ = nullptr;
    ScreenToolbars* toolbars_ = nullptr;
    QMenu* optionsMenu_ = nullptr;
    QList<EscapeStep> escapeOrder_;
};
