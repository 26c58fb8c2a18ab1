#pragma once
// Foodg, the food guide: a small reference book of five fixed pages shown
// one at a time in a read-only grid.
#include "guides/logic/foodguidepages.h"

#include "shell/kit/activitywindow.h"

class QLabel;
class ScreenGrid;

enum class FoodgCommand {
    FoodGuide, CommonMeasures, MenuIdeas, HelpfulHints, HealthySubstitutes, PanelColor, Exit, Help,
};

class Foodg final : public ActivityWindow {
    Q_OBJECT
public:
    static constexpr int kHelpTopic = 1020;

    explicit Foodg(Dialogs& dialogs, QWidget* parent = nullptr);

    // Clears the grid and fills it with the page; the page shown is rebuilt
    // too, so it always shows the guide's own text.
    void showPage(FoodGuidePage page);
    FoodGuidePage currentPage() const { return page_; }

protected:
    // The grid's columns follow its width by their shares.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    std::vector<CommandRow<FoodgCommand>> commandRows();
    void fitColumns();

    std::unique_ptr<CommandTable<FoodgCommand>> commands_;
    QLabel* title_ = nullptr;          // SSPanel1: the page's title
    ScreenGrid* grid_ = nullptr;       // VSGd1
    FoodGuidePage page_ = FoodGuidePage::FoodGuide;
};
