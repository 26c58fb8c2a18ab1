#include "shell/kit/gridcolors.h"

#include "common/programfolder.h"
#include "common/widgets/qtcolors.h"

#include <QAbstractItemView>
#include <QPixmap>

void ApplyGridColors(QAbstractItemView* grid, const GridColors& colors)
{
    if (!grid)
        return;
    QPalette palette = grid->palette();
    switch (colors.kind) {
    case GridColors::Kind::Unchanged:
        break;
    case GridColors::Kind::Color:
        palette.setColor(QPalette::Base, ColorFromColorref(colors.color));
        break;
    case GridColors::Kind::Picture: {
        const QPixmap picture(ResolveFileName(colors.pictureFile));
        if (!picture.isNull())
            palette.setBrush(QPalette::Base, QBrush(picture));
        break;
    }
    }
    if (colors.textColor)
        palette.setColor(QPalette::Text, ColorFromColorref(*colors.textColor));
    grid->setPalette(palette);
}
