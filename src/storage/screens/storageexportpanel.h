#pragma once
// "Export File in Excel/Spreadsheet Format": a panel over the storage screen
// with the drive, folder and ".xls" file lists, the folder and the name the
// file gets. "Export File to Selected Folder" writes the grid as shown as
// tab-delimited text; an existing file is replaced without a question.
#include "shell/kit/overlaypanel.h"

#include <functional>

class Dialogs;
class FolderChooserPanel;
class QLabel;
class QLineEdit;

class StorageExportPanel final : public OverlayPanel {
    Q_OBJECT
public:
    // The headings and rows the file gets, asked for at each export.
    using Rows = std::function<QList<QStringList>()>;

    StorageExportPanel(Dialogs& dialogs, Rows rows, QWidget* parent);

    // Opens on `folder` with the proposed file name.
    void openWith(const QString& folder, const QString& fileName);

    FolderChooserPanel* chooser() const { return chooser_; }
    QLineEdit* nameBox() const { return name_; }
    QString folderShown() const;

    // "Export File to Selected Folder"; true when the file was written.
    bool exportFile();

private:
    Dialogs& dialogs_;
    Rows rows_;
    FolderChooserPanel* chooser_ = nullptr;
    QLabel* folder_ = nullptr;
    QLineEdit* name_ = nullptr;
};
