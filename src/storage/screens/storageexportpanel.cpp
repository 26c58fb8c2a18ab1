#include "storage/screens/storageexportpanel.h"

#include "common/dialogs.h"
#include "shell/kit/folderchooser.h"
#include "storage/logic/storageoutput.h"

#include <QDir>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

StorageExportPanel::StorageExportPanel(Dialogs& dialogs, Rows rows, QWidget* parent)
    : OverlayPanel(QStringLiteral("ExportPanel"), QStringLiteral("Export File in Excel/Spreadsheet Format"), parent),
      dialogs_(dialogs), rows_(std::move(rows))
{
    chooser_ = new FolderChooserPanel(FolderChooserPanel::Files::Shown, this);
    chooser_->setPattern(QStringLiteral("*.xls"));
    body()->addWidget(chooser_, 1);

    auto* where = new QLabel(
        QStringLiteral("A non-formatted Spreadsheet File (tab-delimited text file) will be saved in the program folder:  "),
        this);
    where->setObjectName(QStringLiteral("Label1"));
    where->setWordWrap(true);
    folder_ = new QLabel(this);
    folder_->setObjectName(QStringLiteral("Label2"));
    folder_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* withName = new QLabel(QStringLiteral("With the following name:"), this);
    withName->setObjectName(QStringLiteral("Label3"));
    name_ = new QLineEdit(this);
    name_->setObjectName(QStringLiteral("Text3"));
    auto* note = new QLabel(QStringLiteral("Note: If File already exists it will be replaced with this file!"), this);
    note->setObjectName(QStringLiteral("Label4"));
    note->setWordWrap(true);
    for (QWidget* row : {static_cast<QWidget*>(where), static_cast<QWidget*>(folder_),
                         static_cast<QWidget*>(withName), static_cast<QWidget*>(name_), static_cast<QWidget*>(note)})
        body()->addWidget(row);

    QPushButton* exportButton = addButton(QStringLiteral("Command4_0"), QStringLiteral("Export File to Selected Folder"));
    QPushButton* close = addButton(QStringLiteral("Command4_1"), QStringLiteral("Close"));
    connect(exportButton, &QPushButton::clicked, this, &StorageExportPanel::exportFile);
    connect(close, &QPushButton::clicked, this, &StorageExportPanel::closeRequested);
    connect(chooser_, &FolderChooserPanel::folderChanged, this,
            [this](const QString& folder) { folder_->setText(QDir::toNativeSeparators(folder)); });
    // A file picked in the list gives its name, to be replaced.
    connect(chooser_, &FolderChooserPanel::fileSelected, this,
            [this](const QString& path) { name_->setText(QFileInfo(path).fileName()); });
    folder_->setText(QDir::toNativeSeparators(chooser_->folder()));
}

void StorageExportPanel::openWith(const QString& folder, const QString& fileName)
{
    chooser_->setFolder(folder);
    name_->setText(fileName);
    open(name_);
}

QString StorageExportPanel::folderShown() const
{
    return folder_->text();
}

bool StorageExportPanel::exportFile()
{
    const QString name = name_->text().trimmed();
    if (!IsExportName(name)) {
        dialogs_.ask(kExportNameMessage);
        return false;
    }
    if (!WriteExportFile(QDir(chooser_->folder()).filePath(name), rows_())) {
        dialogs_.ask(kExportDeniedMessage);
        return false;
    }
    dialogs_.ask(kExportDoneMessage);
    return true;
}
