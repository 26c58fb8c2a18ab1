#pragma once
// What the backup tests share: a progress that records what it was shown,
// a program folder with media folders beside it, and a run of a mode.
#include "backup/logic/backuprun.h"
#include "scripted_dialogs.h"
#include "temp_program_folder.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

class RecordingProgress final : public BackupProgress {
public:
    void setStatus(const QString& text) override { statuses << text; }
    void showBar(qint64 maximum) override
    {
        maximums << maximum;
        barShown = true;
    }
    void setBar(qint64 value) override { values << value; }
    void hideBar() override { barShown = false; }

    QStringList statuses;
    QList<qint64> maximums;
    QList<qint64> values;
    bool barShown = false;
};

// 1.44 MB, the capacity of the disks the spanning was made for.
inline constexpr qint64 kFloppyBytes = 1457664;

class BackupTest : public ::testing::Test {
protected:
    // A new empty folder outside the program folder: a medium.
    QString medium(const QString& name)
    {
        const QString path = media_.filePath(name);
        EXPECT_TRUE(QDir().mkpath(path));
        return path;
    }

    // Runs `mode` against `folder`; media from `media` (plain by default).
    RunEnd run(int mode, const QString& folder, BackupTarget target = {}, MediumFactory media = PlainMedia())
    {
        const std::optional<BackupSet> set = BackupSetFor(mode, target);
        EXPECT_TRUE(set.has_value());
        BackupContext context{dialogs, progress, folder, std::move(media)};
        return set->restore ? RunRestore(*set, context) : RunBackup(*set, context);
    }

    static MediumFactory Limited(qint64 capacity)
    {
        return [capacity](const QString& folder) { return std::make_unique<LimitedMedium>(folder, capacity); };
    }

    QByteArray mediumBytes(const QString& folder, const QString& name) const
    {
        return ReadFileBytes(QDir(folder).filePath(name));
    }

    TempProgramFolder program;
    QTemporaryDir media_;
    ScriptedDialogs dialogs;
    RecordingProgress progress;
};
