#pragma once
// Every byte that reaches a data file is one Windows-1252 character: the
// files come from a single-byte Windows code page and must round-trip.
#include <QByteArray>
#include <QString>

// Characters outside the code page become '?', as the Windows conversion does.
QByteArray ToCp1252(QStringView text);
QString FromCp1252(QByteArrayView bytes);
