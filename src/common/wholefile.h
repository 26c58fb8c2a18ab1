#pragma once
// A whole file written in one step: the new content goes beside the old file
// and takes its place only once it is complete, so a write that fails (a
// full disk, a folder that may not be written, a folder of the file's name)
// leaves the old file as it was.
#include <QByteArrayView>
#include <QString>

// False when anything failed; `path` is used as given.
bool WriteWholeFile(const QString& path, QByteArrayView bytes);
