// Restore of recipes and menu plans: the info file of disk 1 is checked
// before anything is deleted; then the program's files are deleted, the name
// files come back, and each disk's records are appended in order, so that
// record numbers come out as they were. Disks are asked for in order until
// the one whose info file marks the end.
#include "backup/logic/backupmessages.h"
#include "backup/logic/backupsteps.h"
#include "backup/logic/diskinfo.h"
#include "backup/logic/spanlayouts.h"
#include "common/writefailure.h"

#include <QDir>
#include <QFile>

namespace {

constexpr qint64 kAppendBlock = 256;

class SpannedRestore {
public:
    SpannedRestore(const BackupSet& set, BackupContext& context, SpanLayout layout, bool oldFormat)
        : set_(set), context_(context), layout_(std::move(layout)), oldFormat_(oldFormat), folder_(context.folder)
    {
    }

    RunEnd run()
    {
        info_ = ReadDiskInfo(folder_, layout_.infoFile, layout_.infoRecordLength);
        if (!isDisk(info_, 1, folder_)) {
            context_.dialogs.ask(set_.kind == BackupSetKind::MenuPlan ? RestoreFileMissingMessage()
                                                                     : RestoreDiskOneMissingMessage());
            return RunEnd::NotStarted;
        }
        if (context_.dialogs.ask(DeleteBeforeRestoreQuestion(set_.restoreWord)) != Answer::Yes)
            return RunEnd::NotStarted;
        context_.progress.setStatus(set_.restoreStatus);
        program_ = context_.media(QDir::currentPath());
        program_->removeEndingIn(layout_.programSuffixes);
        for (const QString& name : layout_.programNames)
            program_->remove(name);
        if (!restoreHeadFiles())
            return RunEnd::Stopped;
        context_.progress.showBar(std::max<qint64>(info_.total, 1));
        for (;;) {
            if (!appendDisk())
                return RunEnd::Stopped;
            if (info_.isLastDisk())
                break;
            if (!nextDisk())
                return RunEnd::Stopped;
        }
        context_.progress.setStatus(BackupStatus::RestorationCompleted);
        return RunEnd::Completed;
    }

private:
    // Disk `disk` of this set. The first generation's files must hold whole
    // records: anything else is no disk of that set.
    bool isDisk(const DiskInfo& info, int disk, const QString& folder) const
    {
        if (info.setName != layout_.setName || info.disk != disk)
            return false;
        if (!oldFormat_)
            return true;
        for (const RecordStream& stream : layout_.streams) {
            QFile file(FindInFolder(folder, stream.mediumName(disk)));
            if (!file.exists() || file.size() % stream.recordLength != 0)
                return false;
        }
        return true;
    }

    bool restoreHeadFiles()
    {
        if (layout_.headFiles.isEmpty())
            return true;
        const QString first = layout_.headFiles.first();
        if (CopyOntoMedium(FindInFolder(folder_, first), *program_, first) != CopyResult::Copied) {
            context_.dialogs.ask(RestoreDiskAccessMessage());
            return false;
        }
        const QStringList others = layout_.headFiles.mid(1);
        context_.progress.showBar(others.size());
        for (int i = 0; i < others.size(); ++i) {
            // A name file missing from the disk stays missing, as it was.
            CopyOntoMedium(FindInFolder(folder_, others[i]), *program_, others[i]);
            context_.progress.setBar(i + 1);
        }
        return true;
    }

    // The count a disk claims, kept to the records its files hold.
    qint64 recordsOnDisk() const
    {
        qint64 count = info_.count;
        for (const RecordStream& stream : layout_.streams) {
            const qint64 size = QFile(FindInFolder(folder_, stream.mediumName(info_.disk))).size();
            count = std::min(count, (size + stream.recordLength - 1) / stream.recordLength);
        }
        return std::max<qint64>(count, 0);
    }

    bool appendDisk()
    {
        const qint64 count = recordsOnDisk();
        for (const RecordStream& stream : layout_.streams) {
            QFile source(FindInFolder(folder_, stream.mediumName(info_.disk)));
            if (!source.open(QIODevice::ReadOnly))
                continue;
            for (qint64 done = 0; done < count;) {
                const qint64 block = std::min(kAppendBlock, count - done);
                QByteArray bytes = source.read(block * stream.recordLength);
                bytes.append(QByteArray(block * stream.recordLength - bytes.size(), '\0'));
                if (!program_->append(stream.programName, bytes)) {
                    program_->closeAll();
                    context_.dialogs.ask(WriteFailedMessage(stream.programName));
                    return false;
                }
                done += block;
            }
            // A disk with no records still leaves the file, as the old
            // runtime's open did.
            program_->writeAt(stream.programName, program_->sizeOf(stream.programName), {});
        }
        program_->closeAll();
        restored_ += count;
        if (restored_ >= 22)
            context_.progress.setBar(std::min(restored_, std::max<qint64>(info_.total, 1)));
        return true;
    }

    bool nextDisk()
    {
        const int expected = info_.disk + 1;
        for (;;) {
            context_.dialogs.ask(RestoreNextDiskMessage(expected));
            const std::optional<QString> chosen =
                context_.dialogs.chooseFolder({NextDiskChooserTitle(expected), folder_});
            if (!chosen)
                return false;
            const DiskInfo next = ReadDiskInfo(*chosen, layout_.infoFile, layout_.infoRecordLength);
            if (isDisk(next, expected, *chosen)) {
                folder_ = *chosen;
                info_.setName = next.setName;
                info_.disk = next.disk;
                info_.nextDisk = next.nextDisk;
                info_.count = next.count;
                return true;
            }
        }
    }

    const BackupSet& set_;
    BackupContext& context_;
    SpanLayout layout_;
    bool oldFormat_;
    QString folder_;
    DiskInfo info_;
    std::unique_ptr<BackupMedium> program_;
    qint64 restored_ = 0;
};

} // namespace

RunEnd RestoreSpannedSet(const BackupSet& set, BackupContext& context)
{
    const bool oldFormat = set.kind == BackupSetKind::Recipes && set.cookbook == 1 &&
                           IsOldFormatInfo(context.folder, RecipeLayout(1).infoFile);
    return SpannedRestore(set, context, oldFormat ? OldRecipeLayout() : LayoutOf(set), oldFormat).run();
}
