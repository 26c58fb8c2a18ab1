#include "common/widgets/qtcolors.h"

#include "common/colors.h"

QColor ColorFromColorref(qint32 colorref)
{
    const Rgb rgb = RgbOfColorref(colorref);
    return QColor(rgb.red, rgb.green, rgb.blue);
}
