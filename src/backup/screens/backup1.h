#pragma once
// Backup1, the backup and restore screen: a modal dialog that copies one
// file set, chosen by the caller's mode, to a drive and folder the user
// picks, and brings it back. The texts come from the set; the run is the
// backup engine's, which asks its questions through Dialogs.
#include "backup/logic/backuprun.h"
#include "backup/logic/backupsets.h"

#include <QDialog>

class FolderChooserPanel;
class QAction;
class QLabel;
class QMenuBar;
class QProgressBar;
class QPushButton;
class QWidget;

class Backup1 final : public QDialog, private BackupProgress {
    Q_OBJECT
public:
    // `set` as BackupSetFor gives it; `media` makes the medium of a folder.
    Backup1(Dialogs& dialogs, BackupSet set, QWidget* parent = nullptr, MediumFactory media = PlainMedia());

    // Starts the lists on `folder` (the home folder when it does not exist).
    void setFolder(const QString& folder);
    // True once a restore has completed: the caller reloads its data.
    bool restoreCompleted() const { return restoreCompleted_; }

private:
    void buildMenu();
    void run();
    void applyStates();

    // BackupProgress
    void setStatus(const QString& text) override;
    void showBar(qint64 maximum) override;
    void setBar(qint64 value) override;
    void hideBar() override;
    void letEventsThrough();

    Dialogs& dialogs_;
    BackupSet set_;
    MediumFactory media_;
    FolderChooserPanel* chooser_ = nullptr;
    QProgressBar* bar_ = nullptr;
    QLabel* status_ = nullptr;
    QPushButton* runButton_ = nullptr;   // Command1
    QPushButton* exitButton_ = nullptr;  // Command2
    QAction* makeBackup_ = nullptr;      // mMakeBackup
    QAction* restore_ = nullptr;         // mRestore
    QAction* exit_ = nullptr;            // mExit
    QMenuBar* menuBar_ = nullptr;
    qint64 barScale_ = 1;
    qint64 lastRepaint_ = 0;
    bool running_ = false;
    bool restoreCompleted_ = false;
};

// What the calling screen names besides the mode.
using Backup1Target = BackupTarget;

// Shows Backup1 modally over `caller` in `mode` for the cookbook or year in
// `target`. True when a restore completed and the caller must reload. A
// mode no screen sets opens nothing.
bool RunBackup1(QWidget* caller, Dialogs& dialogs, int mode, Backup1Target target,
                MediumFactory media = PlainMedia());
