#include "shell/kit/commandtable.h"

#include <QAction>
#include <QActionGroup>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QToolBar>

#include <algorithm>
#include <cstring>
#include <map>

namespace {

bool SameName(const char* a, const char* b)
{
    return a && b && std::strcmp(a, b) == 0;
}

// The screen button triggers the action and follows its enabled state, so a
// command is enabled in one place.
void BindButtonToAction(QPushButton* button, QAction* action)
{
    // Which command the button serves, for anyone who looks at the screen
    // from outside (tests, accessibility readers).
    button->setProperty("command", action->objectName());
    QObject::connect(button, &QPushButton::clicked, action, &QAction::trigger);
    QObject::connect(action, &QAction::changed, button, [button, action] { button->setEnabled(action->isEnabled()); });
    button->setEnabled(action->isEnabled());
}

} // namespace

CommandSet::CommandSet(QMainWindow* window, std::span<const MenuRow> menus, std::vector<CommandSpec> rows,
                       QToolBar* top, QToolBar* side, QWidget* buttonParent, const char* buttonName)
    : rows_(std::move(rows))
{
    buildMenus(window, menus);
    std::map<int, QActionGroup*> groups;
    for (const CommandSpec& row : rows_) {
        auto* action = new QAction(row.caption.isEmpty() ? row.button.caption : row.caption, window);
        action->setObjectName(QString::fromLatin1(row.name));
        if (const MenuRow* bar = menuRow(row.menu); bar && bar->isCommand) {
            placeOnMenuBar(window, row.menu, action);
        } else if (row.menu) {
            QMenu* menu = menuForEntry(row.menu);
            if (row.separatorBefore)
                menu->addSeparator();
            menu->addAction(action);
        } else {
            // Without a menu entry the action still serves its shortcut.
            window->addAction(action);
        }
        action->setCheckable(row.checkable || row.choiceGroup != 0);
        if (row.choiceGroup != 0) {
            QActionGroup*& group = groups[row.choiceGroup];
            if (!group)
                group = new QActionGroup(window);
            group->addAction(action);
        }
        if (!row.shortcut.isEmpty())
            action->setShortcut(row.shortcut);
        QObject::connect(action, &QAction::triggered, window, [this, index = actions_.size()] {
            if (const std::function<void()>& run = rows_[index].run)
                run();
        });
        actions_.push_back(action);

        QPushButton* button = nullptr;
        if (!row.button.caption.isEmpty()) {
            button = new QPushButton(row.button.caption, buttonParent);
            const QString name = QString::fromLatin1(buttonName);
            button->setObjectName(name.contains(QLatin1String("%1")) ? name.arg(row.button.index) : name);
            button->setAutoDefault(false);
            BindButtonToAction(button, action);
        }
        buttons_.push_back(button);
    }
    buildToolbar(top, Toolbar::Top);
    buildToolbar(side, Toolbar::Side);
    refresh();
}

void CommandSet::buildMenus(QMainWindow* window, std::span<const MenuRow> menus)
{
    menuRows_.assign(menus.begin(), menus.end());
    for (const MenuRow& row : menus) {
        if (row.parent || row.isCommand)
            continue; // a submenu comes with its first entry, a command with its row
        QMenu* menu = window->menuBar()->addMenu(QString::fromLatin1(row.caption));
        menu->setObjectName(QString::fromLatin1(row.name));
        menus_.emplace_back(row.name, menu);
    }
}

const MenuRow* CommandSet::menuRow(const char* name) const
{
    const auto row = std::find_if(menuRows_.begin(), menuRows_.end(),
                                  [name](const MenuRow& menuRow) { return SameName(menuRow.name, name); });
    return row == menuRows_.end() ? nullptr : &*row;
}

// A command standing on the menu bar goes before the first menu that follows
// it in the table, so the bar keeps the table's order.
void CommandSet::placeOnMenuBar(QMainWindow* window, const char* menuName, QAction* action)
{
    QAction* before = nullptr;
    for (auto next = menuRows_.begin() + (menuRow(menuName) - menuRows_.data()) + 1;
         next != menuRows_.end() && !before; ++next) {
        if (next->parent || next->isCommand)
            continue;
        if (QMenu* following = menu(next->name))
            before = following->menuAction();
    }
    window->menuBar()->insertAction(before, action);
}

// The menu named `name`; a submenu is made in its parent on first use, so
// it stands among the parent's entries where the table puts it.
QMenu* CommandSet::menuForEntry(const char* name)
{
    if (QMenu* existing = menu(name))
        return existing;
    const MenuRow* row = menuRow(name);
    Q_ASSERT_X(row && row->parent, "CommandSet", name);
    QMenu* parent = menuForEntry(row->parent);
    if (row->separatorBefore)
        parent->addSeparator();
    QMenu* submenu = parent->addMenu(QString::fromLatin1(row->caption));
    submenu->setObjectName(QString::fromLatin1(row->name));
    menus_.emplace_back(row->name, submenu);
    return submenu;
}

QMenu* CommandSet::menu(const char* name) const
{
    for (const auto& [menuName, menu] : menus_) {
        if (SameName(menuName, name))
            return menu;
    }
    return nullptr;
}

void CommandSet::buildToolbar(QToolBar* toolbar, Toolbar which)
{
    if (!toolbar)
        return;
    std::vector<size_t> placed;
    for (size_t i = 0; i < rows_.size(); ++i) {
        if (rows_[i].toolbar.toolbar == which)
            placed.push_back(i);
    }
    std::stable_sort(placed.begin(), placed.end(), [this](size_t a, size_t b) {
        return rows_[a].toolbar.position < rows_[b].toolbar.position;
    });
    for (const size_t i : placed) {
        if (rows_[i].toolbar.gapBefore)
            toolbar->addSeparator();
        toolbar->addAction(actions_[i]);
    }
}

void CommandSet::refresh()
{
    for (size_t i = 0; i < rows_.size(); ++i) {
        const CommandSpec& row = rows_[i];
        const bool enabled = row.run && (!row.enabled || row.enabled());
        // A button that is turned off while it has the keyboard hands it to
        // its panel: Qt would pass it on to the next field as if the user
        // had tabbed there.
        if (!enabled && buttons_[i] && buttons_[i]->hasFocus() && buttons_[i]->parentWidget())
            buttons_[i]->parentWidget()->setFocus(Qt::OtherFocusReason);
        actions_[i]->setEnabled(enabled);
    }
}

QList<QPushButton*> CommandSet::buttons() const
{
    std::vector<std::pair<int, QPushButton*>> indexed;
    for (size_t i = 0; i < rows_.size(); ++i) {
        if (buttons_[i])
            indexed.emplace_back(rows_[i].button.index, buttons_[i]);
    }
    std::sort(indexed.begin(), indexed.end());
    QList<QPushButton*> ordered;
    for (const auto& [index, button] : indexed)
        ordered.append(button);
    return ordered;
}

void CommandSet::setRoutineAt(int row, std::function<void()> run)
{
    rows_[size_t(row)].run = std::move(run);
    refresh();
}
