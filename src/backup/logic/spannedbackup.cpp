// Backup of the sets copied record by record: recipes and a year's menu
// plan. Records go onto the medium in order, empty ones too, so that a
// record's place in the set is its number; when a write fails the medium is
// full, its info file says how many records it holds, and the user mounts
// the next one, where copying resumes with the record that failed.
#include "backup/logic/backupmessages.h"
#include "backup/logic/backupsteps.h"
#include "backup/logic/diskinfo.h"
#include "backup/logic/spanlayouts.h"
#include "common/randomaccessfile.h"
#include "cookbook/logic/nameentry.h"
#include "cookbook/logic/reciperecords.h"

#include <QDir>
#include <QFileInfo>

namespace {

constexpr qint64 kReadBlock = 256;

qint64 SetTotal(const BackupSet& set, const SpanLayout& layout)
{
    if (set.kind == BackupSetKind::Recipes)
        return HighestListedRecord(set.cookbook);
    const qint64 length = QFileInfo(FindInFolder(QDir::currentPath(), layout.streams.first().programName)).size();
    const int record = layout.streams.first().recordLength;
    return (length + record - 1) / record;
}

// Reads the program's record files a block at a time.
class RecordSource {
public:
    explicit RecordSource(const QList<RecordStream>& streams)
    {
        for (const RecordStream& stream : streams)
            files_.push_back(std::make_unique<RandomAccessFile>(stream.programName, stream.recordLength));
        blocks_.resize(files_.size());
    }

    // Records number..number+count-1 of a stream; `count` is at most a
    // read block.
    QByteArrayView records(int stream, qint64 number, qint64 count)
    {
        if (number < first_ || number + count > first_ + kReadBlock) {
            first_ = number;
            for (std::size_t i = 0; i < files_.size(); ++i)
                blocks_[i] = files_[i]->readRecords(number, kReadBlock);
        }
        const int length = files_[stream]->recordLength();
        return QByteArrayView(blocks_[stream]).sliced((number - first_) * length, count * length);
    }

private:
    std::vector<std::unique_ptr<RandomAccessFile>> files_;
    std::vector<QByteArray> blocks_;
    qint64 first_ = -kReadBlock;  // nothing read yet
};

class SpannedBackup {
public:
    SpannedBackup(const BackupSet& set, BackupContext& context)
        : set_(set), context_(context), layout_(LayoutOf(set)),
          media_{context.folder, context.media(context.folder)}
    {
    }

    RunEnd run()
    {
        total_ = SetTotal(set_, layout_);
        BackupMedium& medium = *media_.medium;
        medium.removeEndingIn(layout_.firstDiskSuffixes);
        for (const QString& name : layout_.mediumNames)
            medium.remove(name);
        if (!startMedium(medium) || !copyFirstHeadFile()) {
            context_.dialogs.ask(DiskAccessMessage());
            return RunEnd::Stopped;
        }
        context_.progress.setStatus(layout_.diskStatus(disk_));
        if (!copyOtherHeadFiles())
            return RunEnd::Stopped;
        return copyRecords() ? RunEnd::Completed : RunEnd::Stopped;
    }

private:
    bool startMedium(BackupMedium& medium)
    {
        return StartDiskInfo(medium, layout_.infoFile, layout_.setName);
    }

    bool copyFirstHeadFile()
    {
        if (layout_.headFiles.isEmpty())
            return true;
        const QString name = layout_.headFiles.first();
        return CopyOntoMedium(FindInFolder(QDir::currentPath(), name), *media_.medium, name) == CopyResult::Copied;
    }

    bool copyOtherHeadFiles()
    {
        QList<BackupFile> files;
        for (const QString& name : layout_.headFiles.mid(1))
            files << BackupFile{name, name};
        return CopyUnderFullDiskRule(files, context_, media_, [this](BackupMedium& medium) {
            cleanLaterMedium(medium);
            return startMedium(medium);
        });
    }

    void cleanLaterMedium(BackupMedium& medium)
    {
        medium.removeEndingIn(layout_.laterDiskSuffixes);
        for (const QString& name : layout_.mediumNames)
            medium.remove(name);
    }

    // Records number..number+count-1 as the medium's records from `place`
    // on, one write per file. When a file refuses them, what the other files
    // took of them is cut off again, so that the medium holds whole records
    // only and its free room is as before.
    bool writeRecords(qint64 number, qint64 place, qint64 count)
    {
        for (int i = 0; i < layout_.streams.size(); ++i) {
            const RecordStream& stream = layout_.streams[i];
            if (!media_.medium->writeAt(stream.mediumName(disk_), (place - 1) * stream.recordLength,
                                        source_->records(i, number, count))) {
                for (int j = 0; j < i; ++j) {
                    const RecordStream& taken = layout_.streams[j];
                    media_.medium->cut(taken.mediumName(disk_), (place - 1) * taken.recordLength);
                }
                return false;
            }
        }
        return true;
    }

    DiskInfo infoOf(int nextDisk, qint64 count) const
    {
        return {layout_.setName, disk_, nextDisk, count, total_, QString::fromLatin1(kDiskInfoMark)};
    }

    // The medium is full: it is closed with its info, and the user mounts
    // the next one. False when the user gives up.
    bool changeMedium(qint64 held)
    {
        WriteDiskInfo(*media_.medium, layout_.infoFile, infoOf(disk_ + 1, held));
        media_.medium->closeAll();
        ++disk_;
        for (;;) {
            context_.dialogs.ask(SpanDiskFullMessage(disk_));
            const std::optional<QString> next =
                ChooseNextMedium(context_, NextDiskChooserTitle(disk_), media_.folder);
            if (!next)
                return false;
            media_ = {*next, context_.media(*next)};
            context_.progress.setStatus(BackupStatus::DeletingOldFiles);
            cleanLaterMedium(*media_.medium);
            if (startMedium(*media_.medium))
                break;
        }
        context_.progress.setStatus(layout_.diskStatus(disk_));
        return true;
    }

    // Records go a read block at a time; a block that does not fit goes
    // record by record up to the one that fails, where the medium changes.
    bool copyRecords()
    {
        source_ = std::make_unique<RecordSource>(layout_.streams);
        context_.progress.showBar(total_);
        qint64 count = 0;
        for (qint64 number = 1; number <= total_;) {
            const qint64 block = std::min(kReadBlock, total_ - number + 1);
            if (block > 1 && writeRecords(number, count + 1, block)) {
                count += block;
                number += block;
                context_.progress.setBar(number - 1);
                continue;
            }
            const qint64 end = number + block;
            while (number < end && writeRecords(number, count + 1, 1)) {
                ++count;
                context_.progress.setBar(number);
                ++number;
            }
            if (number < end) {
                if (!changeMedium(count))
                    return false;
                count = 0;
            }
        }
        const bool held = WriteDiskInfo(*media_.medium, layout_.infoFile, infoOf(disk_, count));
        media_.medium->closeAll();
        return held;
    }

    const BackupSet& set_;
    BackupContext& context_;
    SpanLayout layout_;
    MediumInUse media_;
    std::unique_ptr<RecordSource> source_;
    qint64 total_ = 0;
    int disk_ = 1;
};

} // namespace

qint64 HighestListedRecord(int cookbook)
{
    qint64 highest = 0;
    for (const QString& name : RecipeLayout(cookbook).headFiles) {
        RandomAccessFile file(name, RecipeNameRecord::kSize);
        const qint64 count = file.recordCount();
        const QByteArray bytes = file.readRecords(1, count);
        for (qint64 slot = 0; slot < count; ++slot) {
            const QByteArrayView record(bytes.constData() + slot * RecipeNameRecord::kSize, RecipeNameRecord::kSize);
            highest = std::max<qint64>(highest, RecordNumberOf(RecipeNameRecord::FromBytes(record).nameEntry()));
        }
    }
    return highest;
}

RunEnd BackupSpannedSet(const BackupSet& set, BackupContext& context)
{
    return SpannedBackup(set, context).run();
}
