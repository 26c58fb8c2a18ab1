#pragma once
// The busy pointer for the length of a scope: the hourglass while a screen
// works (a search, a rebuild), restored however the scope is left.
#include <QApplication>

class ScreenBusy {
public:
    ScreenBusy() { QApplication::setOverrideCursor(Qt::WaitCursor); }
    ~ScreenBusy() { QApplication::restoreOverrideCursor(); }

    ScreenBusy(const ScreenBusy&) = delete;
    ScreenBusy& operator=(const ScreenBusy&) = delete;
};
