#pragma once
// What the user is told when a file could not be written: no work is ever
// lost without a word. The message names the file, with its folder, and says
// that what the file held before is still there; the screen keeps what was
// typed and its changed flag, and the command goes no further.
#include "common/dialogs.h"

// `fileName` as the program names it (relative to the program folder, or a
// whole path); the message shows the whole path.
Message WriteFailedMessage(const QString& fileName);
