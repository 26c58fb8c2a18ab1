#pragma once
// A font as the print surface and the font dialog know it: name, size in
// points, the four styles and a colour (COLORREF).
#include <QString>
#include <QtGlobal>

struct TextFont {
    QString name = QStringLiteral("Times New Roman");
    double size = 12;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikethru = false;
    qint32 color = 0;   // black

    bool operator==(const TextFont&) const = default;
};
