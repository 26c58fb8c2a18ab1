#include "common/widgets/qtfonts.h"

#include <QFontDatabase>

namespace {

struct StandIn {
    const char* classic;
    const char* face;
};
// Faces drawn to the measures of the classic ones, so text set in them takes
// the same room on the page.
constexpr StandIn kStandIns[] = {
    {"Times New Roman", "Liberation Serif"},
    {"Arial", "Liberation Sans"},
    {"Courier New", "Liberation Mono"},
};

} // namespace

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

QString InstalledFamilyOf(const QString& name)
{
    if (QFontDatabase::hasFamily(name))
        return name;
    for (const StandIn& standIn : kStandIns) {
        const QString face = QString::fromLatin1(standIn.face);
        if (name.compare(QLatin1String(standIn.classic), Qt::CaseInsensitive) == 0 && QFontDatabase::hasFamily(face))
            return face;
    }
    return name;
}

QString StoredFamilyOf(const QString& family)
{
    for (const StandIn& standIn : kStandIns) {
        const QString classic = QString::fromLatin1(standIn.classic);
        if (family == QLatin1String(standIn.face) && !QFontDatabase::hasFamily(classic))
            return classic;
    }
    return family;
}
