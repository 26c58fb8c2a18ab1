#pragma once
// The stored files of the test executable's own data folder,
// tests/<subsystem>/data/, whose path CMake passes in BRINDLEPOT_TEST_DATA.
// They are built by hand from the record layouts by the make-fixtures.py
// beside them; the tests only read them.
#include "scratch_folder.h"

#include <QByteArray>
#include <QString>

inline QString TestDataFile(const QString& name)
{
    return QStringLiteral(BRINDLEPOT_TEST_DATA "/") + name;
}

inline QByteArray TestDataBytes(const QString& name)
{
    return ReadFileBytes(TestDataFile(name));
}
