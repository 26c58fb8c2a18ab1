#include "common/widgets/qtfonts.h"

QFont QFontOf(const TextFont& font)
{
    QFont qfont(font.name);
    qfont.setPointSizeF(font.size > 0 ? font.size : 1);
    qfont.setBold(font.bold);
    qfont.setItalic(font.italic);
    qfont.setUnderline(font.underline);
    qfont.setStrikeOut(font.strikethru);
    qfont.setHintingPreference(QFont::PreferNoHinting);
    qfont.setStyleStrategy(QFont::PreferOutline);
    return qfont;
}

TextFont TextFontOf(const QFont& font, qint32 color)
{
    return TextFont{font.family(), font.pointSizeF(), font.bold(), font.italic(), font.underline(), font.strikeOut(),
                    color};
}
