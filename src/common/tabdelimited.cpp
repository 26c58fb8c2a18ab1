#include "common/tabdelimited.h"

#include "common/cp1252.h"

QByteArray TabDelimitedText(const QList<QStringList>& rows)
{
    QByteArray text;
    for (qsizetype row = 0; row < rows.size(); ++row) {
        if (row > 0)
            text += "\r\n";
        text += ToCp1252(rows[row].join(u'\t'));
    }
    return text;
}
