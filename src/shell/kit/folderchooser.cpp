#include "shell/kit/folderchooser.h"

#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QSortFilterProxyModel>

namespace {

const QString kUp = QStringLiteral("..");

// One view on the file system model: the children of the shown folder pass
// the view's own test; everything above them passes, so that the shown
// folder itself can be found in the view. Names sort with case ignored,
// ".." first.
class FolderChildren : public QSortFilterProxyModel {
public:
    FolderChildren(QFileSystemModel* model, QObject* parent) : QSortFilterProxyModel(parent), model_(model)
    {
        setSourceModel(model);
        sort(0);
    }

    void showChildrenOf(const QModelIndex& folder)
    {
        folder_ = folder;
        invalidateFilter();
    }

protected:
    virtual bool shows(const QModelIndex& child) const = 0;
    QFileSystemModel* fileSystem() const { return model_; }

    bool filterAcceptsRow(int row, const QModelIndex& parent) const final
    {
        if (!folder_.isValid() || folder_ != parent)
            return true;
        return shows(model_->index(row, 0, parent));
    }

    bool lessThan(const QModelIndex& left, const QModelIndex& right) const final
    {
        const QString leftName = model_->fileName(left);
        const QString rightName = model_->fileName(right);
        if (leftName == kUp || rightName == kUp)
            return leftName == kUp && rightName != kUp;
        return leftName.compare(rightName, Qt::CaseInsensitive) < 0;
    }

private:
    QFileSystemModel* model_;
    QPersistentModelIndex folder_;
};

} // namespace

// The subfolders, and ".." except at the drive's root.
class FolderChooserPanel::FolderEntries final : public FolderChildren {
public:
    using FolderChildren::FolderChildren;
    void setAtDriveRoot(bool atRoot) { atRoot_ = atRoot; }

protected:
    bool shows(const QModelIndex& child) const override
    {
        return fileSystem()->isDir(child) && !(atRoot_ && fileSystem()->fileName(child) == kUp);
    }

private:
    bool atRoot_ = false;
};

// The files that match one of the patterns, case ignored; every file when
// there are none.
class FolderChooserPanel::FileEntries final : public FolderChildren {
public:
    using FolderChildren::FolderChildren;
    void setPatterns(const QStringList& patterns)
    {
        patterns_ = patterns;
        invalidateFilter();
    }

protected:
    bool shows(const QModelIndex& child) const override
    {
        if (fileSystem()->isDir(child))
            return false;
        return patterns_.isEmpty() || QDir::match(patterns_, fileSystem()->fileName(child));
    }

private:
    QStringList patterns_;
};

namespace {

QLabel* Caption(const char* text, const char* objectName, QWidget* parent)
{
    auto* label = new QLabel(QString::fromLatin1(text), parent);
    label->setObjectName(QString::fromLatin1(objectName));
    return label;
}

QListView* List(const char* objectName, QAbstractItemModel* model, QWidget* parent)
{
    auto* list = new QListView(parent);
    list->setObjectName(QString::fromLatin1(objectName));
    list->setModel(model);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setSelectionMode(QAbstractItemView::SingleSelection);
    list->setUniformItemSizes(true);
    return list;
}

} // namespace

FolderChooserPanel::FolderChooserPanel(Files files, QWidget* parent)
    : QWidget(parent)
{
    model_ = new QFileSystemModel(this);
    model_->setFilter(QDir::AllDirs | QDir::Files | QDir::NoDot);
    model_->setReadOnly(true);
    folders_ = new FolderEntries(model_, this);
    files_ = new FileEntries(model_, this);

    driveList_ = new QComboBox(this);
    driveList_->setObjectName(QStringLiteral("Drive1"));
    setDrives(DriveEntries(QDir::homePath(), QStorageInfo::mountedVolumes()));
    folderList_ = List("Dir1", folders_, this);
    folderList_->installEventFilter(this);
    fileList_ = List("File1", files_, this);
    pathLabel_ = new QLabel(this);
    pathLabel_->setObjectName(QStringLiteral("lblPath"));
    pathLabel_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    QLabel* fileCaption = Caption("File:", "lblFile", this);

    auto* layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(Caption("Drives:", "lblDrives", this), 0, 0);
    layout->addWidget(driveList_, 1, 0);
    layout->addWidget(Caption("Folders:", "lblFolders", this), 2, 0);
    layout->addWidget(folderList_, 3, 0);
    layout->addWidget(fileCaption, 0, 1);
    layout->addWidget(fileList_, 1, 1, 3, 1);
    auto* pathRow = new QHBoxLayout;
    pathRow->addWidget(Caption("Path:", "lblPathCaption", this));
    pathRow->addWidget(pathLabel_, 1);
    layout->addLayout(pathRow, 4, 0, 1, 2);
    layout->setRowStretch(3, 1);
    fileCaption->setVisible(files == Files::Shown);
    fileList_->setVisible(files == Files::Shown);

    connect(driveList_, &QComboBox::activated, this, &FolderChooserPanel::driveChosen);
    connect(folderList_, &QListView::activated, this, &FolderChooserPanel::enterFolder);
    connect(fileList_->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& current) {
                if (current.isValid())
                    emit fileSelected(filePathOf(current));
            });
    connect(fileList_, &QListView::activated, this,
            [this](const QModelIndex& index) { emit fileActivated(filePathOf(index)); });

    connect(model_, &QFileSystemModel::directoryLoaded, this, &FolderChooserPanel::selectPendingFile);

    setFolder(QDir::homePath());
}

void FolderChooserPanel::setDrives(const QList<DriveEntry>& drives)
{
    drives_ = drives;
    driveList_->clear();
    for (const DriveEntry& drive : drives_)
        driveList_->addItem(drive.caption, drive.rootPath);
    driveList_->setCurrentIndex(DriveOf(drives_, folder_));
}

void FolderChooserPanel::setFolder(const QString& path)
{
    QString folder = QDir::cleanPath(QFileInfo(path).absoluteFilePath());
    if (path.isEmpty() || !QFileInfo(folder).isDir())
        folder = QDir::cleanPath(QDir::homePath());
    if (folder == folder_)
        return;
    folder_ = folder;
    const int drive = DriveOf(drives_, folder_);
    driveList_->setCurrentIndex(drive);
    driveRoot_ = drive >= 0 ? drives_[drive].rootPath : QDir::rootPath();

    const QModelIndex shown = model_->setRootPath(folder_);
    folders_->setAtDriveRoot(folder_ == driveRoot_);
    folders_->showChildrenOf(shown);
    files_->showChildrenOf(shown);
    folderList_->setRootIndex(folders_->mapFromSource(shown));
    fileList_->setRootIndex(files_->mapFromSource(shown));
    fileList_->selectionModel()->clear();
    if (QFileInfo(pendingFile_).absolutePath() != folder_)
        pendingFile_.clear();
    pathLabel_->setText(QDir::toNativeSeparators(folder_));
    emit folderChanged(folder_);
}

void FolderChooserPanel::setPattern(const QString& pattern)
{
    pattern_ = pattern;
    QStringList patterns;
    for (const QString& each : pattern.split(u';', Qt::SkipEmptyParts)) {
        if (!each.trimmed().isEmpty())
            patterns.append(each.trimmed());
    }
    files_->setPatterns(patterns);
}

QString FolderChooserPanel::selectedFile() const
{
    const QModelIndex current = fileList_->currentIndex();
    return current.isValid() ? filePathOf(current) : QString();
}

void FolderChooserPanel::driveChosen(int index)
{
    if (index < 0 || index >= int(drives_.size()))
        return;
    if (driveReadable(drives_[index].rootPath)) {
        setFolder(drives_[index].rootPath);
        return;
    }
    setFolder(QDir::homePath());
    driveList_->setCurrentIndex(DriveOf(drives_, folder_));
    emit driveUnavailable();
}

void FolderChooserPanel::selectFile(const QString& path)
{
    const QFileInfo file(path);
    pendingFile_ = file.absoluteFilePath();
    setFolder(file.absolutePath());
    selectPendingFile();
}

void FolderChooserPanel::selectPendingFile()
{
    if (pendingFile_.isEmpty())
        return;
    const QModelIndex index = files_->mapFromSource(model_->index(pendingFile_));
    if (!index.isValid())
        return;
    fileList_->setCurrentIndex(index);
    fileList_->scrollTo(index);
    pendingFile_.clear();
}

bool FolderChooserPanel::driveReadable(const QString& rootPath) const
{
    const QFileInfo root(rootPath);
    return root.isDir() && root.isReadable() && QDir(rootPath).exists();
}

void FolderChooserPanel::enterFolder(const QModelIndex& index)
{
    if (index.isValid())
        setFolder(model_->filePath(folders_->mapToSource(index)));
}

QString FolderChooserPanel::filePathOf(const QModelIndex& fileIndex) const
{
    return model_->filePath(files_->mapToSource(fileIndex));
}

// Enter in the folder list goes into the folder and stops there, so that a
// dialog holding the panel does not take it for its OK button.
bool FolderChooserPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == folderList_ && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            enterFolder(folderList_->currentIndex());
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}
