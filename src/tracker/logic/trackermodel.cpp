#include "tracker/logic/trackermodel.h"

#include "common/programfolder.h"
#include "tracker/logic/weighinsort.h"

#include <QFile>

bool TrackerModel::holdsEntries(const QString& typedName) const
{
    const bool firstDate = !rows_.isEmpty() && !rows_.first().date.trimmed().isEmpty();
    return !typedName.trimmed().isEmpty() || !fields_.beginningDate.isEmpty() || !fields_.beginningWeight.isEmpty()
           || !fields_.goalWeight.isEmpty() || firstDate;
}

bool TrackerModel::readList()
{
    individuals_ = ReadIndividualList();
    return !individuals_.isEmpty();
}

void TrackerModel::blank(int rowCount)
{
    name_.clear();
    fields_ = {};
    fields_.beginningPhotoDate = QString::fromLatin1(kPhotoDatePlaceholder);
    fields_.currentPhotoDate = fields_.beginningPhotoDate;
    rows_ = QList<WeighInRow>(rowCount - 1);
    changed_ = false;
}

void TrackerModel::reset()
{
    blank(kDefaultRowCount);
    state_ = TrackerState::Nothing;
}

void TrackerModel::startChoosing()
{
    blank(kDefaultRowCount);
    state_ = TrackerState::Choosing;
}

void TrackerModel::startCreating()
{
    blank(kDefaultRowCount);
    state_ = TrackerState::Creating;
}

void TrackerModel::load(const QString& entry)
{
    const TrackerFile file = ReadTrackerFile(entry + QStringLiteral(".Fil"));
    name_ = entry.trimmed();
    fields_ = file.fields;
    for (QString* date : {&fields_.beginningPhotoDate, &fields_.currentPhotoDate}) {
        if (date->trimmed().isEmpty())
            *date = QString::fromLatin1(kPhotoDatePlaceholder);
    }
    rows_.clear();
    rows_.reserve(file.rows.size());
    for (const WeighIn& row : file.rows)
        rows_.append(StoredRow(row.date, row.weight));
    ComputeColumns(rows_, fields_.beginningWeight);
    changed_ = false;
    lastSort_ = Qt::DescendingOrder;
    state_ = TrackerState::Loaded;
}

TrackerFile TrackerModel::file() const
{
    TrackerFile file{fields_, {}};
    file.rows.reserve(rows_.size());
    for (const WeighInRow& row : rows_)
        file.rows.append({row.date, row.weight});
    return file;
}

WriteOutcome TrackerModel::save()
{
    const QString fileName = IndividualFileName(name_);
    if (!WriteTrackerFile(fileName, file(), WithRows::Yes))
        return WriteOutcome::FailedOn(fileName);
    changed_ = false;
    return WriteOutcome::Held();
}

WriteOutcome TrackerModel::saveNew(const QString& name)
{
    const QString fileName = IndividualFileName(name);
    if (!WriteTrackerFile(fileName, file(), WithRows::No))
        return WriteOutcome::FailedOn(fileName);
    changed_ = false;
    individuals_.append(name.trimmed());
    if (!WriteIndividualList(individuals_))
        return WriteOutcome::FailedOn(QString::fromLatin1(kIndividualListFile));
    return WriteOutcome::Held();
}

WriteOutcome TrackerModel::deleteIndividual(const QString& entry)
{
    const QString fileName = ResolveFileName(entry + QStringLiteral(".Fil"));
    if (QFile::exists(fileName) && !QFile::remove(fileName))
        return WriteOutcome::FailedOn(fileName);
    individuals_.removeOne(entry);
    if (!WriteIndividualList(individuals_))
        return WriteOutcome::FailedOn(QString::fromLatin1(kIndividualListFile));
    blank(kDefaultRowCount);
    state_ = individuals_.isEmpty() ? TrackerState::Nothing : TrackerState::Choosing;
    return WriteOutcome::Held();
}

void TrackerModel::addRow()
{
    rows_.append(WeighInRow{});
    changed_ = true;
}

void TrackerModel::deleteRow(int row)
{
    const int index = qMax(row, 1) - 1;
    if (index >= rows_.size())
        return;
    rows_.removeAt(index);
    changed_ = true;
}

void TrackerModel::setWeight(int row, const QString& weight)
{
    rows_[row - 1].weight = weight;
    changed_ = true;
    recompute();
}

void TrackerModel::setDate(int row, const QString& date)
{
    rows_[row - 1].date = date;
    changed_ = true;
}

void TrackerModel::recompute()
{
    ComputeColumns(rows_, fields_.beginningWeight);
}

Qt::SortOrder TrackerModel::sortByDate()
{
    lastSort_ = lastSort_ == Qt::AscendingOrder ? Qt::DescendingOrder : Qt::AscendingOrder;
    SortByDate(rows_, lastSort_, fields_.beginningWeight);
    changed_ = true;
    return lastSort_;
}
