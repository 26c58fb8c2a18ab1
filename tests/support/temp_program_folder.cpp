#include "temp_program_folder.h"

#include "common/programfolder.h"

#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

TempProgramFolder::TempProgramFolder() : previous_(QDir::currentPath())
{
    EXPECT_TRUE(dir_.isValid());
    SetProgramFolder(dir_.path());
    EXPECT_TRUE(EnterProgramFolder());
}

TempProgramFolder::~TempProgramFolder()
{
    QDir::setCurrent(previous_);
    SetProgramFolder({});
}

QByteArray TempProgramFolder::bytesOf(const QString& name) const
{
    QFile file(filePath(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void TempProgramFolder::writeBytes(const QString& name, const QByteArray& bytes) const
{
    QFile file(filePath(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    ASSERT_EQ(file.write(bytes), bytes.size());
}
