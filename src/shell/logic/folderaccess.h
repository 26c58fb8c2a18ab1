#pragma once
// The data folder must take new files; when it does not (a read-only copy,
// a folder of another user, a full or read-only disk), the user hears of it
// once at start, and the program opens for reading.
#include "common/dialogs.h"

#include <optional>

// Tries to make, write and remove a small file in `folder`.
bool FolderTakesWrites(const QString& folder);
// The warning for a folder that takes no writes; nothing when it does.
std::optional<Message> ReadOnlyFolderWarning(const QString& folder);
