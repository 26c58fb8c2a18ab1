#include "backup/logic/backuprun.h"

#include "backup/logic/backupmessages.h"
#include "backup/logic/backupsteps.h"
#include "backup/logic/backuptexts.h"

#include <QDir>
#include <QFileInfo>

bool IsProgramFolder(const QString& folder)
{
    const QString program = QFileInfo(QDir::currentPath()).canonicalFilePath();
    return !program.isEmpty() && QFileInfo(folder).canonicalFilePath() == program;
}

std::optional<QString> ChooseNextMedium(BackupContext& context, const QString& title, const QString& current)
{
    for (;;) {
        std::optional<QString> chosen = context.dialogs.chooseFolder({title, current});
        if (!chosen || !IsProgramFolder(*chosen))
            return chosen;
        context.dialogs.ask(ProgramFolderRefusedMessage());
    }
}

std::function<void(qint64, qint64)> BarByBytes(BackupProgress& progress)
{
    return [&progress](qint64 copied, qint64 size) {
        progress.showBar(size);
        progress.setBar(copied);
    };
}

RunEnd RunBackup(const BackupSet& set, BackupContext& context)
{
    if (set.restore)
        return RunEnd::NotStarted;
    if (IsProgramFolder(context.folder)) {
        context.dialogs.ask(ProgramFolderRefusedMessage());
        return RunEnd::NotStarted;
    }
    if (context.dialogs.ask(DeleteBeforeBackupQuestion(set.backupWord, TargetPath(context.folder))) != Answer::Yes)
        return RunEnd::NotStarted;
    context.progress.setStatus(BackupStatus::DeletingOldFiles);
    const RunEnd end = IsFileCopySet(set.kind) ? BackupFileCopySet(set, context) : BackupSpannedSet(set, context);
    context.progress.setStatus(end == RunEnd::Completed ? BackupStatus::Complete : BackupStatus::Terminated);
    context.progress.hideBar();
    return end;
}

RunEnd RunRestore(const BackupSet& set, BackupContext& context)
{
    if (!set.restore)
        return RunEnd::NotStarted;
    if (IsProgramFolder(context.folder)) {
        context.dialogs.ask(ProgramFolderRefusedMessage());
        return RunEnd::NotStarted;
    }
    const RunEnd end =
        IsFileCopySet(set.kind) ? RestoreFileCopySet(set, context) : RestoreSpannedSet(set, context);
    context.progress.hideBar();
    return end;
}
