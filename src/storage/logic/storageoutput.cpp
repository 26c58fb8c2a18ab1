#include "storage/logic/storageoutput.h"

#include "common/filewrites.h"
#include "common/numberformat.h"
#include "common/tabdelimited.h"

namespace {

const char* const kHeadingWords[kStorageColumns][4] = {
    {"Storage", "Item"},
    {"Number", "In", "Family"},
    {"Approx.", "Amount", "Per", "Person"},
    {"Total", "Amount", "Needed"},
    {"Amount", "On", "Hand"},
    {"Last", "Action", "Date"},
    {"Last", "Action", "Amount", "Added"},
    {"Last", "Action", "Amount", "Used"},
};

// The heading lines of the clipboard text, as the old program wrote them.
const char* const kClipboardHeadings[] = {
    "Storage",
    "Number  Amount     Total",
    "Amount         Last              Last       Last",
    "Item",
    "In",
    "Per",
    "Amount     On",
    "Action          Amount  Amount",
    "Family   Person       Needed      Hand             Date             Added    Used",
};

// The widths of the clipboard's columns: the item, then the columns as the
// last heading line spaces them.
constexpr int kClipboardWidths[kStorageColumns] = {32, 9, 13, 12, 17, 17, 9, 9};

const QString kLineEnd = QStringLiteral("\r\n");

QString Padded(const QString& cell, int width)
{
    const QString text = cell == kNotApplicable ? QString() : cell;
    return FormatText(text, QStringLiteral("!") + QString(width, u'@'));
}

} // namespace

QStringList HeadingWords(int column, const QString& dateFormatMode)
{
    QStringList words;
    if (column < 0 || column >= kStorageColumns)
        return words;
    for (const char* word : kHeadingWords[column]) {
        if (word)
            words.append(QString::fromLatin1(word));
    }
    if (column == kDateColumn)
        words.append(dateFormatMode == u"OTHER" ? QStringLiteral("(dd/mm/yy)") : QStringLiteral("(mm/dd/yy)"));
    return words;
}

QStringList GridHeadings(const QString& dateFormatMode)
{
    QStringList headings;
    for (int column = 0; column < kStorageColumns; ++column)
        headings.append(HeadingWords(column, dateFormatMode).join(u'\n'));
    return headings;
}

QString StorageClipboardText(const StorageTable& table)
{
    QString text;
    for (const char* heading : kClipboardHeadings)
        text += QString::fromLatin1(heading) + kLineEnd;
    for (int row = 1; row <= kStorageRows; ++row) {
        for (int column = 0; column < kStorageColumns; ++column)
            text += Padded(table.cell(row, column), kClipboardWidths[column]);
        text += kLineEnd;
    }
    return text;
}

QString ProposedExportName(const QString& caption)
{
    const QString start = caption.left(5);
    if (start == u"Basic")
        return QStringLiteral("BasicStorage.xls");
    if (start == u"Emerg")
        return QStringLiteral("EmergencyStorage.xls");
    if (start == u"Addit")
        return QStringLiteral("AdditionalStorage.xls");
    return QString();
}

bool IsExportName(const QString& name)
{
    const QString trimmed = name.trimmed();
    if (trimmed.isEmpty() || trimmed.right(4).toUpper() != u".XLS")
        return false;
    for (const QChar c : trimmed) {
        if (c == u'/' || c == u'\\' || c.category() == QChar::Other_Control)
            return false;
    }
    return true;
}

QList<QStringList> ExportRows(const QStringList& gridHeadings, const QList<QStringList>& gridRows)
{
    QStringList headings;
    for (const QString& heading : gridHeadings)
        headings.append(QString(heading).replace(u'\n', u' '));
    QList<QStringList> rows{headings};
    rows.append(gridRows);
    return rows;
}

bool WriteExportFile(const QString& path, const QList<QStringList>& rows)
{
    return WriteWholeFileAt(path, TabDelimitedText(rows));
}
