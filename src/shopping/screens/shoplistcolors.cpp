// Shoplist's grid colours: a picture or a colour behind the cells, kept in
// the shared grid background slot, and the colour of the cells' text.
#include "shopping/screens/shoplist.h"

#include "common/colors.h"
#include "common/dialogs.h"
#include "common/widgets/qtcolors.h"
#include "shell/kit/screengrid.h"
#include "shell/kit/screenstatusbar.h"
#include "shell/logic/gridcolors.h"
#include "shell/screens/backgroundselector.h"

#include <QApplication>

namespace {

// What the grid's background slot holds for a background chosen on the
// selector: a picture's name, a colour's number, or "Default".
QString GridBackgroundText(const Background& background)
{
    switch (background.kind) {
    case Background::Kind::Picture:
        return background.picture;
    case Background::Kind::Color:
        return QString::number(background.color);
    case Background::Kind::Standard:
        break;
    }
    return QString::fromLatin1(kDefaultColorText);
}

Background BackgroundOfGridText(const QString& text)
{
    const GridColors colors = GridColorsOf(text, {});
    switch (colors.kind) {
    case GridColors::Kind::Picture:
        return {Background::Kind::Picture, kDefaultBackgroundColor, colors.pictureFile.chopped(4)};
    case GridColors::Kind::Color:
        return Background::colorOf(colors.color);
    case GridColors::Kind::Unchanged:
        break;
    }
    return Background::standard();
}

} // namespace

// The main screen's background selector serves the grid: its choice goes
// to the grid's slot, and the grid shows it.
void Shoplist::buildGridBackgroundSelector(QWidget* area)
{
    gridBackground_ = new BackgroundSelector(dialogs(), area);
    gridBackground_->setObjectName(QStringLiteral("GridBackgroundSelector"));
    gridBackground_->setStore([this](const Background& chosen) { storeGridBackground(chosen); });
    connect(gridBackground_, &BackgroundSelector::previewBackground, this, &Shoplist::showGridBackground);
    connect(gridBackground_, &BackgroundSelector::backgroundChosen, this, &Shoplist::showGridBackground);
    connect(gridBackground_, &BackgroundSelector::activityChanged, this,
            [this] { screenStatusBar()->setActivity(windowTitle()); });
}

void Shoplist::chooseGridBackground()
{
    gridBackground_->toggle(BackgroundOfGridText(ReadSlotText(Settings::GridBackground)));
}

void Shoplist::storeGridBackground(const Background& background)
{
    WriteSlotText(Settings::GridBackground, GridBackgroundText(background));
}

// The standard background is the grid's own, before any colour or picture.
void Shoplist::showGridBackground(const Background& background)
{
    QPalette palette = grid_->palette();
    palette.setBrush(QPalette::Base, QApplication::palette(grid_).base());
    grid_->setPalette(palette);
    grid_->applyColors(GridColorsOf(GridBackgroundText(background), ReadSlotText(Settings::GridTextColor)));
}

void Shoplist::chooseGridTextColor()
{
    const qint32 current = ColorrefFromColor(grid_->palette().color(QPalette::Text));
    const std::optional<qint32> chosen = dialogs().chooseColor(current);
    if (!chosen)
        return;
    WriteSlotText(Settings::GridTextColor, QString::number(*chosen));
    grid_->applySharedColors();
}
