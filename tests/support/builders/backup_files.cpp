#include "backup_files.h"

#include "cookbook/logic/cookbooknames.h"
#include "layout_bytes.h"
#include "scratch_folder.h"

#include <QDir>

namespace layout {

QByteArray PatternRecord(qint64 number, int length)
{
    QByteArray record = QByteArray::number(number).leftJustified(8, ' ');
    while (record.size() < length)
        record.append(char('A' + (number + record.size()) % 26));
    return record.left(length);
}

QByteArray PatternRecords(qint64 count, int length)
{
    QByteArray bytes;
    bytes.reserve(count * length);
    for (qint64 number = 1; number <= count; ++number)
        bytes += PatternRecord(number, length);
    return bytes;
}

bool WriteBackupCookbook(const QString& folder, int cookbook, qint64 records, qint64 highest)
{
    const QDir dir(folder);
    bool written = WriteFileBytes(dir.filePath(RecipeFileName(cookbook)), PatternRecords(records, 2045)) &&
                   WriteFileBytes(dir.filePath(ExtraFileName(cookbook)), PatternRecords(records, 250));
    const auto& types = AllRecipeTypes();
    const qint64 perType = (highest + types.size() - 1) / types.size();
    for (std::size_t t = 0; t < types.size(); ++t) {
        QList<QByteArray> texts;
        for (qint64 number = qint64(t) * perType + 1; number <= std::min(highest, qint64(t + 1) * perType); ++number)
            texts << Entry(QByteArray("Recipe ") + QByteArray::number(number), int(number));
        written = written && WriteFileBytes(dir.filePath(NameFileName(cookbook, types[t])), NameFile(texts));
    }
    return written;
}

bool WriteWeightTracker(const QString& folder, const QStringList& names, int fileSize)
{
    const QDir dir(folder);
    QByteArray list;
    for (const QString& name : names)
        list += '"' + name.toLatin1() + "\"\r\n";
    bool written = WriteFileBytes(dir.filePath(QStringLiteral("WeightTrker.Fil")), list);
    for (int i = 0; i < names.size(); ++i)
        written = written && WriteFileBytes(dir.filePath(names[i] + QStringLiteral(".Fil")), PatternRecord(i + 1, fileSize));
    return written;
}

} // namespace layout
