// Backup and restore of the sets copied file by file: the three kinds of
// food storage and the weight tracker.
#include "backup/logic/backupmessages.h"
#include "backup/logic/backupsteps.h"
#include "common/quotedlinefile.h"

#include <QDir>
#include <QFile>

namespace {

// The individuals of a weight tracker list whose names can be file names.
QStringList IndividualsOf(const QStringList& list)
{
    QStringList names;
    for (const QString& name : list) {
        if (IsSafeIndividualName(name))
            names << name;
    }
    return names;
}

QList<BackupFile> IndividualFiles(const QStringList& list, const QString& programSuffix,
                                  const QString& mediumSuffix)
{
    QList<BackupFile> files;
    for (const QString& name : IndividualsOf(list))
        files << BackupFile{name + programSuffix, name + mediumSuffix};
    return files;
}

const QString kProgramSuffix = QStringLiteral(".Fil");
const QString kMediumSuffix = QStringLiteral(".Wtp");

// The whole file read, to prove the medium before anything is replaced.
bool ReadsWhole(const QString& path)
{
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly))
        return false;
    const qint64 size = file.size();
    qint64 read = 0;
    while (!file.atEnd()) {
        const QByteArray chunk = file.read(64 * 1024);
        if (chunk.isEmpty())
            return false;
        read += chunk.size();
    }
    return read == size;
}

bool RestoreFiles(const QList<BackupFile>& files, BackupContext& context, BackupMedium& program)
{
    for (const BackupFile& file : files) {
        const QString source = FindInFolder(context.folder, file.mediumName);
        if (CopyOntoMedium(source, program, file.programName, BarByBytes(context.progress)) != CopyResult::Copied)
            return false;
    }
    return true;
}

// One pass of a restore; false when a copy failed.
bool RestorePass(const BackupSet& set, BackupContext& context)
{
    const std::unique_ptr<BackupMedium> program = context.media(QDir::currentPath());
    if (set.kind != BackupSetKind::WeightTracker)
        return RestoreFiles(set.files, context, *program);
    if (!ReadsWhole(FindInFolder(context.folder, QString::fromLatin1(kWeightListBackup))) ||
        !RestoreFiles(set.files, context, *program))
        return false;
    program->closeAll();
    const QStringList list = ReadQuotedLineFile(QString::fromLatin1(kWeightListFile));
    return RestoreFiles(IndividualFiles(list, kProgramSuffix, kMediumSuffix), context, *program);
}

} // namespace

RunEnd BackupFileCopySet(const BackupSet& set, BackupContext& context)
{
    MediumInUse media{context.folder, context.media(context.folder)};
    if (!CopyUnderFullDiskRule(set.files, context, media))
        return RunEnd::Stopped;
    if (set.kind == BackupSetKind::WeightTracker) {
        const QStringList list = ReadQuotedLineFile(QString::fromLatin1(kWeightListFile));
        if (!CopyUnderFullDiskRule(IndividualFiles(list, kProgramSuffix, kMediumSuffix), context, media))
            return RunEnd::Stopped;
    }
    media.medium->closeAll();
    return RunEnd::Completed;
}

RunEnd RestoreFileCopySet(const BackupSet& set, BackupContext& context)
{
    for (;;) {
        if (context.dialogs.ask(DeleteBeforeRestoreQuestion(set.restoreWord)) != Answer::Yes)
            return RunEnd::NotStarted;
        context.progress.setStatus(set.restoreStatus);
        if (RestorePass(set, context)) {
            context.progress.setStatus(BackupStatus::RestorationCompleted);
            return RunEnd::Completed;
        }
        context.dialogs.ask(RestoreFileMissingMessage());
        context.progress.setStatus(QString());
    }
}

bool CopyUnderFullDiskRule(const QList<BackupFile>& files, BackupContext& context, MediumInUse& media,
                           const std::function<bool(BackupMedium&)>& onNewMedium)
{
    for (const BackupFile& file : files) {
        const QString source = FindInFolder(QDir::currentPath(), file.programName);
        const CopyResult result =
            CopyOntoMedium(source, *media.medium, file.mediumName, BarByBytes(context.progress));
        if (result != CopyResult::Failed)
            continue;
        if (context.dialogs.ask(FullDiskQuestion()) != Answer::Ok) {
            context.dialogs.ask(BackupCancelledMessage());
            return false;
        }
        // The failed file is not tried again: the next one goes to the
        // medium the user mounts now.
        const std::optional<QString> next = ChooseNextMedium(context, FullDiskQuestion().title, media.folder);
        if (!next)
            return false;
        media.medium->closeAll();
        media = {*next, context.media(*next)};
        if (onNewMedium && !onNewMedium(*media.medium))
            return false;
    }
    return true;
}
