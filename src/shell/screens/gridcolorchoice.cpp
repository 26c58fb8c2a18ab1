#include "shell/screens/gridcolorchoice.h"

#include "common/dialogs.h"
#include "common/writefailure.h"
#include "common/widgets/qtcolors.h"
#include "shell/kit/screengrid.h"
#include "shell/logic/gridcolors.h"
#include "shell/screens/backgroundselector.h"

#include <QApplication>

GridColorChoice::GridColorChoice(Dialogs& dialogs, ScreenGrid* grid, QWidget* selectorArea,
                                 const SettingsSlot& background, const SettingsSlot& textColor)
    : QObject(grid), dialogs_(dialogs), grid_(grid), backgroundSlot_(background), textColorSlot_(textColor)
{
    selector_ = new BackgroundSelector(dialogs, selectorArea);
    selector_->setObjectName(QStringLiteral("GridBackgroundSelector"));
    selector_->setStore([this](const Background& chosen) {
        return StoreSlotText(backgroundSlot_, GridBackgroundText(chosen));
    });
    connect(selector_, &BackgroundSelector::previewBackground, this, &GridColorChoice::show);
    connect(selector_, &BackgroundSelector::backgroundChosen, this, &GridColorChoice::apply);
}

void GridColorChoice::chooseBackground()
{
    selector_->toggle(GridBackgroundOf(ReadSlotText(backgroundSlot_)));
}

void GridColorChoice::chooseTextColor()
{
    const std::optional<qint32> chosen = dialogs_.chooseColor(ColorrefFromColor(grid_->palette().color(QPalette::Text)));
    if (!chosen)
        return;
    const WriteOutcome stored = StoreSlotText(textColorSlot_, QString::number(*chosen));
    if (!stored.held())
        dialogs_.ask(WriteFailedMessage(stored.failedFile));
    apply();
}

void GridColorChoice::apply()
{
    show(GridBackgroundOf(ReadSlotText(backgroundSlot_)));
}

// The standard background is the grid's own, before any colour or picture.
void GridColorChoice::show(const Background& background)
{
    const QPalette standard = QApplication::palette(grid_);
    QPalette palette = grid_->palette();
    palette.setBrush(QPalette::Base, standard.base());
    palette.setBrush(QPalette::Text, standard.text());
    grid_->setPalette(palette);
    grid_->applyColors(GridColorsOf(GridBackgroundText(background), ReadSlotText(textColorSlot_)));
}
