#pragma once
// Panel "Select Menu to Print/View": "Current Date Only", or "Current Date
// plus the next" with a list of 1 to 31 and the word "days"; "&View",
// "&Print Options" and "&Close"; and under them the table of the view, four
// columns of 18, 27, 27 and 27 percent headed "Day", "Breakfast", "Lunch"
// and "Dinner", one row per day.
#include "planner/logic/menuview.h"
#include "shell/kit/overlaypanel.h"

#include <optional>

class QComboBox;
class QRadioButton;
class ScreenGrid;

class MenuViewPanel final : public OverlayPanel {
    Q_OBJECT
public:
    enum ButtonIndex { kView = 0, kPrintOptions, kClose };

    explicit MenuViewPanel(QWidget* parent = nullptr);

    // Days after the current date: 0 for "Current Date Only".
    int followingDays() const;
    bool currentDateOnly() const;

    // Fills the table, each row as high as `lineHeight` pixels times its
    // largest number of lines, and shows it.
    void showView(const MenuView& view, double lineHeight);
    void hideTable();
    bool tableShown() const;
    // The shared grid background (GColor1.Fil slot 28) and the planner's
    // text colour; nothing leaves the desktop's text colour.
    void setTextColor(std::optional<qint32> color);

    QRadioButton* currentDateOnlyChoice() const { return only_; }
    QRadioButton* currentDatePlusChoice() const { return plus_; }
    QComboBox* dayList() const { return days_; }
    ScreenGrid* table() const { return table_; }
    QPushButton* button(int index) const { return buttons_[index]; }

signals:
    void viewRequested();
    void printOptionsRequested();
    // The choice of days changed: a view on show is made again.
    void choiceChanged();

protected:
    // The columns follow the table's width by their shares.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fitColumns();

    QRadioButton* only_ = nullptr;
    QRadioButton* plus_ = nullptr;
    QComboBox* days_ = nullptr;
    ScreenGrid* table_ = nullptr;
    QPushButton* buttons_[3] = {};
};
