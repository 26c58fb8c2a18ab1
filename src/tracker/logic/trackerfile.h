#pragma once
// The weight tracker's files, both of quoted lines.
//
// An individual's file, "<name>.Fil", holds one value a line:
//
//   line 1        the grid's row count, the heading row included
//   lines 2-12    beginning date, beginning weight, goal weight, days of
//                 exercise per week, time per exercise period, types of
//                 exercise, the two photograph dates, the comments (which may
//                 hold line breaks), the paths of the two pictures
//   lines 13 on   date and weight of each data row, row count - 1 pairs,
//                 blank rows included as two empty values
//
// The individual's name is not in the file: the file name is the name.
// "WeightTrker.Fil" lists the individuals, one value each, in the order of
// the screen's list; it does not exist while there is no individual.
#include <QList>
#include <QString>
#include <QStringList>

// The grid's row count when line 1 is no usable number.
inline constexpr int kDefaultRowCount = 50;
// The largest row count line 1 may give: a count the old grid could hold.
inline constexpr int kLargestRowCount = 32767;

inline constexpr const char* kIndividualListFile = "WeightTrker.Fil";
// The text of a photograph date while none was given.
inline constexpr const char* kPhotoDatePlaceholder = "Date Photo Taken";

// Lines 2 to 12.
struct TrackerFields {
    QString beginningDate;
    QString beginningWeight;
    QString goalWeight;
    QString daysPerWeek;
    QString timePerPeriod;
    QString exerciseTypes;
    QString beginningPhotoDate;
    QString currentPhotoDate;
    QString comments;
    QString beginningPicture;
    QString currentPicture;

    bool operator==(const TrackerFields&) const = default;
};

// One data row as stored: the date and the weight as typed.
struct WeighIn {
    QString date;
    QString weight;

    bool operator==(const WeighIn&) const = default;
};

struct TrackerFile {
    TrackerFields fields;
    // The grid's data rows: row count - 1 of them, blank ones included.
    QList<WeighIn> rows;

    int rowCount() const { return int(rows.size()) + 1; }
    bool operator==(const TrackerFile&) const = default;
};

// The grid's row count from line 1: a number from 1 to kLargestRowCount,
// rounded to a whole number; anything else (no number, 0 or less, too
// large) gives kDefaultRowCount.
int RowCountFrom(const QString& line);

// The file name of an individual: the trimmed name and ".Fil".
QString IndividualFileName(const QString& name);

// Reading never fails: values missing from the file read as empty, and the
// grid keeps its blank rows. Dates and weights are trimmed.
TrackerFile ParseTrackerFile(const QStringList& values);
TrackerFile ReadTrackerFile(const QString& name);

// The values of the file: lines 1 to 12 with `rowCount` on line 1, then the
// rows, trimmed. Save writes the rows; Save New File writes only lines 1 to
// 12 with the grid's row count.
enum class WithRows { No, Yes };
QStringList TrackerFileValues(const TrackerFile& file, WithRows withRows);
// False when the write failed; the old file is then as it was.
bool WriteTrackerFile(const QString& name, const TrackerFile& file, WithRows withRows);

// The list of individuals: each value trimmed, in file order; a first empty
// entry is dropped. A missing or empty file gives none.
QStringList ReadIndividualList();
// Rewrites the list, or deletes the file when the list is empty. False when
// that failed.
bool WriteIndividualList(const QStringList& names);

// Names that cannot become a file of their own: holding a path separator
// or a control character, or naming one of the program's own ".Fil" files
// (settings, lists, storage tables, the scratch file), case-blind. An empty
// name is the screen's own question.
bool IsRefusedIndividualName(const QString& name);
