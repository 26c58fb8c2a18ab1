#pragma once
// A screen's commands, declared once as a table: one row per command with
// its name, its menu entry, the screen button and the toolbar button where
// it has them, the routine it runs and the rule for its enabled state. The
// table builds the menus, the actions, the buttons and the toolbar buttons,
// connects them to the one routine, and sets every enabled state in one
// place. A command that is not built yet is a row without a routine: it
// stays disabled, whatever its rule says.
//
// Rows are named by the screen's own enum, so code reaches a command by a
// typed id, never by looking its name up; the name is the objectName that
// tests and readers from outside see.
#include <QKeySequence>
#include <QList>
#include <QString>
#include <functional>
#include <span>
#include <vector>

class QAction;
class QMainWindow;
class QMenu;
class QPushButton;
class QToolBar;
class QWidget;

// A menu of the menu bar, or a submenu of one (a submenu stands in its
// parent where its first entry comes in the table). A menu bar title can be
// a command of its own, with no entries (a click runs it): the one row that
// names it as its menu is that command, standing on the bar in the menu's
// place.
struct MenuRow {
    const char* name;             // objectName: "mOptions"
    const char* caption;          // "&Options"
    const char* parent = nullptr; // the menu that holds a submenu
    bool separatorBefore = false; // a submenu's separator line in its parent
    bool isCommand = false;       // the title itself is a command
};

enum class Toolbar { None, Top, Side };

struct ToolbarPlace {
    Toolbar toolbar = Toolbar::None;
    int position = 0;             // order on its toolbar
    bool gapBefore = false;       // a separator before the button
};

struct ButtonPlace {
    QString caption;               // the button's caption; empty: no button
    int index = -1;                // its index in the screen's button array
};

struct CommandSpec {
    const char* name;                   // objectName of the action: "mCreate"
    const char* menu = nullptr;         // the menu of its entry; none: no menu entry
    QString caption{};                  // the menu entry's caption
    bool separatorBefore = false;       // a separator line before the entry
    ButtonPlace button{};
    ToolbarPlace toolbar{};
    std::function<void()> run{};        // none: not built yet, always disabled
    std::function<bool()> enabled{};    // none: enabled whenever it is built
    int choiceGroup = 0;                // rows of one nonzero group are exclusive ticks
    bool checkable = false;             // a tick of its own
    QKeySequence shortcut{};
};

// The untyped core: rows by their position, built into a window.
class CommandSet {
public:
    // `buttonName` forms the buttons' objectNames from their index
    // ("Command1_%1"); a screen with one button names it whole ("Command1").
    CommandSet(QMainWindow* window, std::span<const MenuRow> menus, std::vector<CommandSpec> rows,
               QToolBar* top, QToolBar* side, QWidget* buttonParent, const char* buttonName);
    // The actions' connections point at this object.
    CommandSet(const CommandSet&) = delete;
    CommandSet& operator=(const CommandSet&) = delete;

    // Sets every command's enabled state from its rule.
    void refresh();

    QAction* actionAt(int row) const { return actions_[size_t(row)]; }
    QPushButton* buttonAt(int row) const { return buttons_[size_t(row)]; }
    // The screen buttons in index order.
    QList<QPushButton*> buttons() const;
    QMenu* menu(const char* name) const;
    // Gives a row its routine once the command is built elsewhere (the main
    // screen's activities).
    void setRoutineAt(int row, std::function<void()> run);

private:
    void buildMenus(QMainWindow* window, std::span<const MenuRow> menus);
    QMenu* menuForEntry(const char* name);
    const MenuRow* menuRow(const char* name) const;
    void placeOnMenuBar(QMainWindow* window, const char* menuName, QAction* action);
    void buildToolbar(QToolBar* toolbar, Toolbar which);

    std::vector<CommandSpec> rows_;
    std::vector<QAction*> actions_;
    std::vector<QPushButton*> buttons_;
    std::vector<MenuRow> menuRows_;
    std::vector<std::pair<const char*, QMenu*>> menus_;
};

// A row of a screen's table: the command and the screen's id for it.
template <typename Id>
struct CommandRow {
    Id id;
    CommandSpec command;
};

template <typename Id>
class CommandTable {
public:
    CommandTable(QMainWindow* window, std::span<const MenuRow> menus, std::span<const CommandRow<Id>> rows,
                 QToolBar* top, QToolBar* side, QWidget* buttonParent = nullptr,
                 const char* buttonName = "Command1_%1")
        : positions_(PositionsOf(rows)),
          set_(window, menus, BaseRows(rows), top, side, buttonParent, buttonName)
    {
    }

    QAction* action(Id id) const { return set_.actionAt(position(id)); }
    QPushButton* button(Id id) const { return set_.buttonAt(position(id)); }
    void setRoutine(Id id, std::function<void()> run) { set_.setRoutineAt(position(id), std::move(run)); }
    void refresh() { set_.refresh(); }
    const CommandSet& set() const { return set_; }
    QList<QPushButton*> buttons() const { return set_.buttons(); }
    QMenu* menu(const char* name) const { return set_.menu(name); }

private:
    static std::vector<int> PositionsOf(std::span<const CommandRow<Id>> rows)
    {
        std::vector<int> positions;
        for (int i = 0; i < int(rows.size()); ++i) {
            const auto id = size_t(rows[size_t(i)].id);
            if (positions.size() <= id)
                positions.resize(id + 1, -1);
            positions[id] = i;
        }
        return positions;
    }
    static std::vector<CommandSpec> BaseRows(std::span<const CommandRow<Id>> rows)
    {
        std::vector<CommandSpec> specs;
        specs.reserve(rows.size());
        for (const CommandRow<Id>& row : rows)
            specs.push_back(row.command);
        return specs;
    }
    int position(Id id) const { return positions_.at(size_t(id)); }

    std::vector<int> positions_;
    CommandSet set_;
};
