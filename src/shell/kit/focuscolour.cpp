#include "shell/kit/focuscolour.h"

#include "common/colors.h"
#include "common/widgets/qtcolors.h"

#include <QWidget>

void ShowFocusColour(QWidget* field)
{
    QPalette palette = field->palette();
    palette.setColor(QPalette::Base, ColorFromColorref(QBColor(kFocusColorIndex)));
    palette.setColor(QPalette::Text, Qt::black);
    field->setPalette(palette);
}

void ClearFocusColour(QWidget* field)
{
    field->setPalette(QPalette());
}
