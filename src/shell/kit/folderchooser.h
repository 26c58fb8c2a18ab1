#pragma once
// The drive, folder and file lists that the recipe picture panel, recipe
// export and import, the storage export and backup embed, with their
// captions "Drives:", "Folders:", "File:" and "Path:". The drive list starts
// with "C:", the user's home folder, then the mounted volumes (see
// shell/logic/drives.h). The folder list shows the subfolders of the current
// folder, with ".." to go up except at the drive's root; a double click or
// Enter goes into a folder. The file list, when the caller wants one, shows
// the current folder's files that match a pattern list such as
// "*.bmp;*.ico;*.jpg", case ignored. The lists fill as the folder is read,
// a moment after the folder changes.
#include "shell/logic/drives.h"

#include <QStringList>
#include <QWidget>

class QComboBox;
class QFileSystemModel;
class QLabel;
class QListView;

class FolderChooserPanel final : public QWidget {
    Q_OBJECT
public:
    enum class Files { Hidden, Shown };

    // Opens on the home folder ("C:") with every file shown.
    explicit FolderChooserPanel(Files files, QWidget* parent = nullptr);

    // A folder that does not exist gives the home folder.
    void setFolder(const QString& path);
    // The current folder, absolute, with '/' separators.
    QString folder() const { return folder_; }
    // The root of the current folder's drive: ".." stops there.
    QString driveRoot() const { return driveRoot_; }

    // Patterns separated by ';'; an empty text shows every file.
    void setPattern(const QString& pattern);
    QString pattern() const { return pattern_; }

    // The file picked in the file list, as a full path; empty when none.
    QString selectedFile() const;
    // Goes to the file's folder and picks the file in the file list once
    // the folder has been read.
    void selectFile(const QString& path);

    // The drives offered, "C:" first (the mounted volumes by default).
    void setDrives(const QList<DriveEntry>& drives);

signals:
    void folderChanged(const QString& folder);
    // A file picked in the file list (a click or the arrow keys), full path.
    void fileSelected(const QString& path);
    // A double click or Enter on a file.
    void fileActivated(const QString& path);
    // A drive was picked whose root cannot be read (a card reader without a
    // card, a share gone away); the lists went back to "C:".
    void driveUnavailable();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    class FolderEntries;
    class FileEntries;

    void driveChosen(int index);
    // Whether a drive's root can be listed.
    bool driveReadable(const QString& rootPath) const;
    void enterFolder(const QModelIndex& index);
    void selectPendingFile();
    QString filePathOf(const QModelIndex& fileIndex) const;

    QList<DriveEntry> drives_;
    QFileSystemModel* model_ = nullptr;
    FolderEntries* folders_ = nullptr;
    FileEntries* files_ = nullptr;
    QComboBox* driveList_ = nullptr;   // Drive1
    QListView* folderList_ = nullptr;  // Dir1
    QListView* fileList_ = nullptr;    // File1
    QLabel* pathLabel_ = nullptr;      // lblPath
    QString folder_;
    QString driveRoot_;
    QString pattern_;
    QString pendingFile_;  // picked once its folder has been read
};
