#pragma once
// The weight tracker tests' program folder, with the locale pinned to the
// month-first form, and the few helpers the logic tests share.
#include "common/dates.h"
#include "shell/logic/processvalues.h"
#include "temp_program_folder.h"
#include "test_data.h"
#include "tracker/logic/trackerentry.h"
#include "tracker/logic/weighins.h"
#include "tracker_samples.h"

#include <gtest/gtest.h>

// A file of quoted lines, as the program writes them.
inline QByteArray QuotedLines(const QStringList& values)
{
    QByteArray bytes;
    for (const QString& value : values)
        bytes += '"' + value.toLatin1() + "\"\r\n";
    return bytes;
}

// Rows of dates and weights, "" for a blank cell.
inline QList<WeighInRow> RowsOf(std::initializer_list<std::pair<const char*, const char*>> cells)
{
    QList<WeighInRow> rows;
    for (const auto& [date, weight] : cells)
        rows.append(StoredRow(QString::fromLatin1(date), QString::fromLatin1(weight)));
    return rows;
}

class TrackerFolderTest : public ::testing::Test {
protected:
    TrackerFolderTest()
    {
        Process() = ProcessValues{};
        Process().DateFormatMode = QStringLiteral("USA");
        SetDateLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    }
    ~TrackerFolderTest() override { SetDateLocale(QLocale::system()); }

    TempProgramFolder folder;
};
