#pragma once
// The day's 21 lines, Text1(0) to Text1(20), in three columns headed
// "Breakfast", "Lunch" and "Dinner", and each meal's drop-down: a button at
// the right end of the line being typed in, which opens the meal's list
// over the line (so does Alt+Down or F4 in the line). A line with the
// keyboard is yellow. The panel reports what happens in the lines; the
// screen decides what it means.
#include "planner/logic/menudayrecord.h"

#include <QFrame>
#include <array>
#include <optional>

class DropList;
class QAction;
class QLineEdit;

class DayLinesPanel final : public QFrame {
    Q_OBJECT
public:
    explicit DayLinesPanel(QWidget* parent = nullptr);

    QLineEdit* line(int index) const { return lines_[size_t(index)]; }
    MenuLines lines() const;
    // Shows the lines as they are, 32-character ones whole.
    void showLines(const MenuLines& lines);

    // The meal's drop-down entries.
    void setListItems(Meal meal, const QStringList& items);
    DropList* dropList(Meal meal) const { return dropLists_[size_t(meal) - 1]; }
    // The button that opens the meal's list, on the line it stands at.
    QAction* dropDownButton(Meal meal) const { return dropDowns_[size_t(meal) - 1]; }
    // The line the meal's drop-down stands at, or -1 while it is hidden.
    int dropDownLine(Meal meal) const { return dropDownLines_[size_t(meal) - 1]; }
    // Moves the line's meal drop-down to the line and shows it.
    void showDropDown(int index);
    void hideDropDowns();
    // Opens the meal's list over the line.
    void openDropDown(int index);

    // Locked lines take no input and no tab stop, and show no drop-down.
    void setLinesOpen(bool open);
    // The text colour of the lines; nothing: the desktop's.
    void setTextColor(std::optional<qint32> color);

    QList<QWidget*> colouredPanels() const;

signals:
    void lineEntered(int index, Qt::FocusReason reason);
    // The text was changed by typing, pasting or deleting.
    void lineEdited(int index);
    void enterPressed(int index);
    void deletePressed(int index);
    void itemPicked(int index, const QString& item);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    int indexOf(const QObject* watched) const;
    void colourLine(int index, bool focused);

    std::array<QLineEdit*, kMenuLines> lines_{};
    std::array<DropList*, 3> dropLists_{};
    std::array<QAction*, 3> dropDowns_{};
    std::array<int, 3> dropDownLines_ = {-1, -1, -1};
    std::optional<qint32> textColor_;
};
