#pragma once
// A table as a tab-delimited text file, the form spreadsheets open: one line
// a row, a TAB between two cells, CR LF between two rows and none after the
// last. Every character is one Windows-1252 byte; a character outside the
// code page becomes '?'. A cell is written as it stands: a TAB or a line end
// inside it is not escaped.
#include <QByteArray>
#include <QList>
#include <QStringList>

QByteArray TabDelimitedText(const QList<QStringList>& rows);
