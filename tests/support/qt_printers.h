#pragma once
// Qt's strings as GoogleTest shows them in a failure: as text, not bytes.
#include <QString>
#include <QStringList>
#include <ostream>

inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QStringList& texts, std::ostream* out)
{
    *out << '{';
    for (qsizetype i = 0; i < texts.size(); ++i)
        *out << (i ? ",\n  " : "\n  ") << '"' << texts[i].toStdString() << '"';
    *out << (texts.isEmpty() ? "}" : "\n}");
}
