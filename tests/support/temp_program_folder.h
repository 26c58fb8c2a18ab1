#pragma once
// Gives a test its own empty program folder and makes it current; the
// previous current folder comes back when the test ends.
#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

class TempProgramFolder {
public:
    TempProgramFolder();
    ~TempProgramFolder();
    QString path() const { return dir_.path(); }
    QString filePath(const QString& name) const { return dir_.filePath(name); }

    QByteArray bytesOf(const QString& name) const;
    void writeBytes(const QString& name, const QByteArray& bytes) const;

private:
    QTemporaryDir dir_;
    QString previous_;
};
