#pragma once
// Stored colours are Windows COLORREF values (0x00BBGGRR); widgets want a QColor.
#include <QColor>

QColor ColorFromColorref(qint32 colorref);
