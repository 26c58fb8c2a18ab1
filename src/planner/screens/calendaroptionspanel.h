#pragma once
// Panel "Calendar Display Options": four groups of choices (months, week
// numbers, first day of the week, today's line) and "&Close". Every click
// in a group is reported at once; the screen applies it and writes the
// values only when the panel closes.
#include "planner/logic/calendaroptions.h"
#include "shell/kit/overlaypanel.h"

#include <array>

class QButtonGroup;
class QGroupBox;
class QRadioButton;

class CalendarOptionsPanel final : public OverlayPanel {
    Q_OBJECT
public:
    enum Group { kMonths = 0, kWeekNumbers, kFirstWeekday, kShowToday };

    explicit CalendarOptionsPanel(QWidget* parent = nullptr);

    // Ticks the choices of `options` without reporting them.
    void showOptions(const CalendarOptions& options);
    CalendarOptions options() const;

    // The choice that stores `value` in the group.
    QRadioButton* choice(Group group, int value) const;
    QPushButton* closeButton() const { return close_; }
    QList<QWidget*> colouredPanels() const;

signals:
    void optionsChanged(const CalendarOptions& options);

private:
    QGroupBox* makeGroup(Group group, const OptionGroupCaptions& captions, int columns);

    std::array<QGroupBox*, 4> groups_{};
    std::array<QButtonGroup*, 4> choices_{};
    QPushButton* close_ = nullptr;
};
