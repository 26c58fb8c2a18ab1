#include "tracker/logic/trackerfile.h"

#include "common/numbertext.h"
#include "common/programfolder.h"
#include "common/quotedlinefile.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <cmath>

namespace {

// Lines 2 to 12 in file order.
constexpr QString TrackerFields::*kFieldLines[] = {
    &TrackerFields::beginningDate,      &TrackerFields::beginningWeight, &TrackerFields::goalWeight,
    &TrackerFields::daysPerWeek,        &TrackerFields::timePerPeriod,   &TrackerFields::exerciseTypes,
    &TrackerFields::beginningPhotoDate, &TrackerFields::currentPhotoDate, &TrackerFields::comments,
    &TrackerFields::beginningPicture,   &TrackerFields::currentPicture,
};
constexpr int kFirstRowValue = 1 + int(std::size(kFieldLines));

} // namespace

int RowCountFrom(const QString& line)
{
    const std::optional<double> value = ValChecked(line);
    if (!value || !std::isfinite(*value))
        return kDefaultRowCount;
    // A whole number as the grid takes it: halves go to the even neighbour.
    const double rounded = std::nearbyint(*value);
    if (rounded < 1 || rounded > kLargestRowCount)
        return kDefaultRowCount;
    return int(rounded);
}

QString IndividualFileName(const QString& name)
{
    return name.trimmed() + QStringLiteral(".Fil");
}

TrackerFile ParseTrackerFile(const QStringList& values)
{
    TrackerFile file;
    const int rowCount = RowCountFrom(values.value(0));
    for (int line = 0; line < int(std::size(kFieldLines)); ++line)
        file.fields.*kFieldLines[line] = values.value(1 + line);
    file.rows.reserve(rowCount - 1);
    for (int row = 0; row < rowCount - 1; ++row) {
        const int at = kFirstRowValue + 2 * row;
        file.rows.append({values.value(at).trimmed(), values.value(at + 1).trimmed()});
    }
    return file;
}

TrackerFile ReadTrackerFile(const QString& name)
{
    return ParseTrackerFile(ReadQuotedLineFile(name));
}

QStringList TrackerFileValues(const TrackerFile& file, WithRows withRows)
{
    QStringList values{QString::number(file.rowCount())};
    for (QString TrackerFields::*line : kFieldLines)
        values.append(file.fields.*line);
    if (withRows == WithRows::Yes) {
        for (const WeighIn& row : file.rows)
            values << row.date.trimmed() << row.weight.trimmed();
    }
    return values;
}

bool WriteTrackerFile(const QString& name, const TrackerFile& file, WithRows withRows)
{
    return WriteQuotedLineFile(name, TrackerFileValues(file, withRows));
}

QStringList ReadIndividualList()
{
    QStringList names;
    if (QFileInfo(ResolveFileName(QString::fromLatin1(kIndividualListFile))).size() <= 0)
        return names;
    for (const QString& value : ReadQuotedLineFile(QString::fromLatin1(kIndividualListFile)))
        names.append(value.trimmed());
    if (!names.isEmpty() && names.first().isEmpty())
        names.removeFirst();
    return names;
}

bool WriteIndividualList(const QStringList& names)
{
    const QString file = QString::fromLatin1(kIndividualListFile);
    if (!names.isEmpty())
        return WriteQuotedLineFile(file, names);
    const QString existing = ResolveFileName(file);
    return !QFile::exists(existing) || QFile::remove(existing);
}

bool IsRefusedIndividualName(const QString& name)
{
    static const QRegularExpression kProgramFile(
        QStringLiteral("^(WeightTrker|Temp|GQORB1|QORBNAME|SWR2|Menu[1-3]|LISTNAME|GColor\\d+|FdsB\\d+|EmerE\\d+|"
                       "AddA\\d+)$"),
        QRegularExpression::CaseInsensitiveOption);
    for (const QChar c : name) {
        if (c == u'/' || c == u'\\' || c.category() == QChar::Other_Control)
            return true;
    }
    return kProgramFile.match(name.trimmed()).hasMatch();
}
