#pragma once
// The storage tests' program folder: empty, or holding the stored tables of
// tests/storage/data (a family of four using every kind), with the locale
// pinned to the month-first form.
#include "common/dates.h"
#include "shell/logic/processvalues.h"
#include "storage/logic/storagemodel.h"
#include "temp_program_folder.h"
#include "test_data.h"

#include <gtest/gtest.h>

inline const QStringList kStoredStorageFiles{"FdsB1.Fil", "FdsB2.Fil", "EmerE1.Fil", "AddA1.Fil"};

inline QString TableFileOf(StorageKind kind)
{
    return QString::fromLatin1(KindInfo(kind).tableFile);
}

// A file of quoted lines, as the program writes them.
inline QByteArray QuotedLines(const QStringList& values)
{
    QByteArray bytes;
    for (const QString& value : values)
        bytes += '"' + value.toLatin1() + "\"\r\n";
    return bytes;
}

class StorageFolderTest : public ::testing::Test {
protected:
    StorageFolderTest()
    {
        Process() = ProcessValues{};
        Process().DateFormatMode = QStringLiteral("USA");
        SetDateLocale(QLocale(QLocale::English, QLocale::UnitedStates));
    }
    ~StorageFolderTest() override { SetDateLocale(QLocale::system()); }

    void copyStoredFiles() const
    {
        for (const QString& name : kStoredStorageFiles)
            folder.copyIn(TestDataFile(name));
    }

    TempProgramFolder folder;
};
