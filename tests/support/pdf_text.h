#pragma once
// The text of a PDF file as poppler's pdftotext reads it, pages separated
// by form feeds: what a reader of the printed file finds in it.
#include <QString>

QString PdfText(const QString& pdfPath);
