#pragma once
// The plain text files of the program (weight tracker files, food storage
// tables, the planner's meal lists, the shopping catalogue and lists, the
// recipe exchange file) hold one value a line:
//
//   "first value"<CR><LF>
//   "second value"<CR><LF>
//
// Every value is enclosed in double quotes, numbers too. A double quote
// inside a value has no escape, which is why the input fields refuse it; a
// value holding one is written as it is and reads back cut at that quote.
//
// Reading follows the classic sequential input rules, value after value:
//   - blanks (space, tab) before a value are skipped;
//   - a value that opens with a double quote runs to the next double quote,
//     line ends included, so a multi-line comment survives; an unclosed
//     quote runs to the end of the file. Whatever follows the closing quote
//     is skipped up to and including the next comma or line end;
//   - any other value ends at a comma or a line end, its trailing blanks
//     dropped; an empty line is an empty value;
//   - a line end is CR LF, a lone LF or a lone CR;
//   - values are read while bytes remain: a short file just gives fewer
//     values, and the line end after the last value adds none.
// Every value read takes at least one byte, so a file never gives more
// values than it has bytes.
#include <QByteArray>
#include <QString>
#include <QStringList>

QStringList ParseQuotedValues(QByteArrayView bytes);
QByteArray EncodeQuotedLines(const QStringList& values);

// A missing or unreadable file gives no values. `name` is resolved
// case-blind against the current folder.
QStringList ReadQuotedLineFile(const QString& name);
// Replaces the whole file; the new content appears only once it is complete,
// so a failed save leaves the old file as it was. False when anything failed.
bool WriteQuotedLineFile(const QString& name, const QStringList& values);
