#pragma once
// The list editor, panel "Edit Lists": one meal's list at a time, chosen by
// "&Breakfast List", "&Lunch List" or "&Dinner List", its items in a
// drop-down, a box for a new item (Enter adds it) and "&Delete" for the item
// picked from the drop-down.
#include "planner/logic/menudayrecord.h"
#include "shell/kit/overlaypanel.h"

#include <array>

class QComboBox;
class QLineEdit;

class EditListsPanel final : public OverlayPanel {
    Q_OBJECT
public:
    enum ButtonIndex { kBreakfastList = 0, kLunchList, kDinnerList, kDelete, kClose };

    explicit EditListsPanel(QWidget* parent = nullptr);

    // Shows the meal's list: its own button off, the others on, the heading
    // and the instructions of the meal, the box empty and "&Delete" off.
    void showList(Meal meal, const QStringList& items);
    // The items again after a change, the box emptied and "&Delete" off.
    void showItems(const QStringList& items);
    Meal meal() const { return meal_; }

    QComboBox* itemList() const { return items_; }
    QLineEdit* newItemBox() const { return box_; }
    QPushButton* button(int index) const { return buttons_[size_t(index)]; }
    QLabel* heading() const { return heading_; }
    QLabel* instructions() const { return instructions_; }

signals:
    void listChosen(Meal meal);
    // Enter in the box with text in it.
    void itemEntered(const QString& text);
    void deleteRequested(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void itemPicked(int index);

    Meal meal_ = Meal::Breakfast;
    QComboBox* items_ = nullptr;
    QLineEdit* box_ = nullptr;
    QLabel* heading_ = nullptr;
    QLabel* instructions_ = nullptr;
    std::array<QPushButton*, 5> buttons_{};
};
