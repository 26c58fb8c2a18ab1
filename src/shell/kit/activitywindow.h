#pragma once
// An activity screen opened from the main screen (the recipe file, the food
// guide and the others). What every such screen does alike lives here: a
// right click opens its "&Options" menu, closing asks about a changed panel
// colour, and the main screen is told when the screen has closed so it can
// take the focus back.
#include <QMainWindow>

class PanelColors;

class ActivityWindow : public QMainWindow {
    Q_OBJECT
public:
    using QMainWindow::QMainWindow;

signals:
    // The screen has closed for good (its exit checks have passed).
    void closed();

protected:
    // The screen's own checks before it closes (a save question); false
    // keeps it open.
    virtual bool readyToClose() { return true; }
    // The screen's panel colour, offered for storing when it closes.
    void setPanelColors(PanelColors* panelColors) { panelColors_ = panelColors; }

    void closeEvent(QCloseEvent* event) override;
    // A right click on a panel or label opens the menu named "mOptions".
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    PanelColors* panelColors_ = nullptr;
};
