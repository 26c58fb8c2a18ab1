#pragma once
// QString and the lists of them as readable text in test failures.
#include <QString>
#include <ostream>

inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}
