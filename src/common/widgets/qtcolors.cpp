#include "common/widgets/qtcolors.h"

#include "common/colors.h"

QColor ColorFromColorref(qint32 colorref)
{
    const Rgb rgb = RgbOfColorref(colorref);
    return QColor(rgb.red, rgb.green, rgb.blue);
}

qint32 ColorrefFromColor(const QColor& color)
{
    const QColor rgb = color.toRgb();
    return ColorrefOf(rgb.red(), rgb.green(), rgb.blue());
}
