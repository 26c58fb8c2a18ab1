#pragma once
#include "common/dialogs.h"

class QWidget;

// The real dialogs: QMessageBox and QInputDialog with the exact title, text,
// icon, buttons and default button asked for; QColorDialog for colours; the
// font dialog with a colour list; the folder chooser panel in a dialog of its
// own; Qt's page setup and print dialogs.
class QtDialogs final : public Dialogs {
public:
    Answer ask(const Message& message) override;
    QString input(const InputRequest& request) override;
    void openUrl(const QUrl& url) override;
    std::optional<qint32> chooseColor(qint32 initial) override;
    std::optional<TextFont> chooseFont(const TextFont& initial) override;
    std::optional<QString> chooseFolder(const FolderRequest& request) override;
    std::optional<PageSetup> pageSetup(const PageSetup& current) override;
    Printed print(const PrintJob& job) override;
};

// The PDF file the print dialog proposes when no printer is installed: the
// document's title (a "/" in it made "-") in the user's documents folder,
// or in the home folder when there is none.
QString ProposedPdfFile(const QString& title);
