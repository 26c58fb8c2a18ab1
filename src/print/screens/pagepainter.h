#pragma once
// Paints one page of a composed document. The preview, the printer, PDF files
// and the clipboard image all paint through here, so what the user sees is
// what is printed.
#include "print/logic/pagedocument.h"

#include <QImage>

class QPagedPaintDevice;
class QPainter;

// Paints page `index` on `painter`, whose coordinates are device units with
// `unitsPerTwip` of them to a twip and the paper's corner at the origin.
// Guide lines show the halves of the page and the edge of the area a printer
// can reach.
void PaintPage(QPainter& painter, const PageDocument& document, int index, double unitsPerTwip,
               bool guideLines = false);

// The page as a white image at `dotsPerInch`.
QImage PageImage(const PageDocument& document, int index, double dotsPerInch);

// Paints pages `first` to `last` (1-based) on a printer or PDF device, one
// device page each. False when the device cannot be painted on.
bool RenderPages(QPagedPaintDevice& device, const PageDocument& document, int first, int last);
