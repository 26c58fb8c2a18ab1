#include "pdf_text.h"

#include <QProcess>

QString PdfText(const QString& pdfPath)
{
    QProcess process;
    process.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), pdfPath, QStringLiteral("-")});
    process.waitForFinished(30000);
    return QString::fromUtf8(process.readAllStandardOutput());
}
