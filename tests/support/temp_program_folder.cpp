#include "temp_program_folder.h"

#include <QFileInfo>
#include <gtest/gtest.h>

TempProgramFolder::TempProgramFolder()
{
    EXPECT_TRUE(isReady()) << path().toStdString();
}

void TempProgramFolder::writeBytes(const QString& name, const QByteArray& bytes) const
{
    ASSERT_TRUE(ScratchFolder::writeBytes(name, bytes)) << name.toStdString();
}

void TempProgramFolder::copyIn(const QString& sourcePath) const
{
    const QByteArray bytes = ReadFileBytes(sourcePath);
    ASSERT_FALSE(bytes.isEmpty()) << "missing or empty: " << sourcePath.toStdString();
    writeBytes(QFileInfo(sourcePath).fileName(), bytes);
}
