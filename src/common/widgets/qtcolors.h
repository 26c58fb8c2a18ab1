#pragma once
// Stored colours are Windows COLORREF values (0x00BBGGRR); widgets want a QColor.
#include <QColor>

QColor ColorFromColorref(qint32 colorref);
// The COLORREF of a colour; its alpha is dropped.
qint32 ColorrefFromColor(const QColor& color);
