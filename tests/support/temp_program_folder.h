#pragma once
// Gives a test its own empty program folder and makes it current; the
// previous current folder comes back when the test ends. A folder that cannot
// be made, or a file that cannot be written or copied in, fails the test.
#include "scratch_folder.h"

#include <QByteArray>
#include <QString>

class TempProgramFolder : public ScratchFolder {
public:
    TempProgramFolder();

    void writeBytes(const QString& name, const QByteArray& bytes) const;
    // A copy of the file at `sourcePath`, under its own file name.
    void copyIn(const QString& sourcePath) const;
};
