#pragma once
// The colours of a screen's grid that the user chooses: a picture or colour
// behind the cells, picked on the background selector and kept in the
// screen's grid background slot, and the colour of the cells' text, kept in
// its text colour slot. The grid shows a background as it is clicked; what
// the panel stores when it closes stays. A slot that cannot be written is
// told, naming its file.
#include "shell/settings/settingsslots.h"

#include <QObject>

class BackgroundSelector;
class Dialogs;
class ScreenGrid;
class QWidget;
struct Background;

class GridColorChoice : public QObject {
    Q_OBJECT
public:
    // The selector lies over `selectorArea`.
    GridColorChoice(Dialogs& dialogs, ScreenGrid* grid, QWidget* selectorArea, const SettingsSlot& background,
                    const SettingsSlot& textColor);

    BackgroundSelector* selector() const { return selector_; }
    // "Grid &Background Selector": opens the selector on the stored
    // background, or closes it when it is open.
    void chooseBackground();
    // "Grid &Text Color": the colour dialog on the grid's text colour.
    void chooseTextColor();
    // The stored colours on the grid.
    void apply();

private:
    void show(const Background& background);

    Dialogs& dialogs_;
    ScreenGrid* grid_;
    SettingsSlot backgroundSlot_;
    SettingsSlot textColorSlot_;
    BackgroundSelector* selector_ = nullptr;
};
