#pragma once
// A food storage table leaving the program as text: the column headings of
// the grid, the clipboard's fixed columns, and the tab-delimited ".xls"
// export of the grid as shown.
#include "common/dialogs.h"
#include "storage/logic/storagetable.h"

#include <QList>
#include <QStringList>

// The words of a column's heading, stacked in the grid's header: column 5
// ends in "(mm/dd/yy)", or "(dd/mm/yy)" when the date form is "OTHER".
QStringList HeadingWords(int column, const QString& dateFormatMode);
// The grid's header: the words of each column one under the other.
QStringList GridHeadings(const QString& dateFormatMode);

// ---- Clipboard -------------------------------------------------------------

// Nine heading lines, then the 60 rows, each line ended by CR LF. Each cell
// is padded with blanks (or cut) to its column's width; "*" prints blank.
QString StorageClipboardText(const StorageTable& table);
inline const Message kCopiedMessage{QStringLiteral("Copy Option"),
                                    QStringLiteral("Data has been copied to the Windows Clipboard."), Buttons::Ok,
                                    Icon::Information, 1};

// ---- Export ----------------------------------------------------------------

// "BasicStorage.xls", "EmergencyStorage.xls", "AdditionalStorage.xls", from
// the first five letters of the screen's caption; empty for any other.
QString ProposedExportName(const QString& caption);
// False for a name that is empty once trimmed, does not end in ".xls" in any
// case, or holds a path separator or a control character.
bool IsExportName(const QString& name);
// The file: the headings (words joined by a blank) and then the grid's rows,
// cells as shown, "*" included.
QList<QStringList> ExportRows(const QStringList& gridHeadings, const QList<QStringList>& gridRows);
// Replaces `path` with the rows as tab-delimited text; false when the file
// could not be written (the old file is then as it was).
bool WriteExportFile(const QString& path, const QList<QStringList>& rows);

inline const Message kExportNameMessage{QStringLiteral("Export Error"),
                                        QStringLiteral("File Name is Missing or Incorrect"), Buttons::Ok,
                                        Icon::Exclamation, 1};
inline const Message kExportDeniedMessage{QStringLiteral("Export Error"),
                                          QStringLiteral("Permission to create file Denied!\n"
                                                         "File may be in use by another program!\n"
                                                         "Close other program and try exporting again"),
                                          Buttons::Ok, Icon::Exclamation, 1};
inline const Message kExportDoneMessage{QStringLiteral("Export Function"),
                                        QStringLiteral("Export Completed to selected location!"), Buttons::Ok,
                                        Icon::Information, 1};
