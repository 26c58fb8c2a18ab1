#pragma once
// The "Print Options" panel that every printing screen holds around its page
// preview: the printer font and its Auto Size, page setup, guide lines,
// copying a page, printing, and the large view. The screen tells what the
// document is (a composer run on every change), the Auto Size test line, its
// guide line slot, and adds its own option groups.
#include "common/pagesetup.h"
#include "print/logic/pagedocument.h"
#include "print/logic/printfont.h"
#include "shell/settings/settingsslots.h"

#include <QFrame>
#include <functional>
#include <optional>

class Dialogs;
class GuideLineOptions;
class PageBuilder;
class PagePreview;
class QLabel;
class QLineEdit;
class QPushButton;
class QScrollArea;
class QVBoxLayout;

class PrintOptionsPanel final : public QFrame {
    Q_OBJECT
public:
    // The commands in index order.
    enum CommandIndex { kPrinterFont = 0, kPageSetup, kExitPrintOptions, kCopyCurrentPage, kPrint };
    using Composer = std::function<void(PageBuilder& page)>;

    PrintOptionsPanel(Dialogs& dialogs, const QString& autoSizeTestLine, const SettingsSlot& guideLineSlot,
                      QWidget* parent = nullptr);

    void setComposer(Composer composer) { composer_ = std::move(composer); }
    // The name the printed document goes by: the print queue's job name, and
    // the file name offered for a PDF.
    void setDocumentName(const QString& name) { documentName_ = name; }
    // A group of the screen's own options, placed under the panel's.
    void addOptionGroup(QWidget* group);
    // The slots where "&Exit Print Options" stores the font's name and size,
    // for the screens that keep them (each screen reads them back by its own
    // rules before opening the panel). A failed write is told and keeps the
    // panel open.
    void setFontSlots(const PrintFontSlots& where) { fontSlots_ = where; }

    // Loads the guide line option, shows the font, composes and shows the panel.
    void open();
    // Composes the document again from the current font, page and options.
    void recompose();

    const PageDocument& document() const;
    const PageSetup& pageSetup() const { return pageSetup_; }
    PagePreview* preview() const { return preview_; }
    QPushButton* command(int index) const;
    QPushButton* enlargeButton() const { return enlarge_; }
    QPushButton* autoSizeButton() const { return autoSize_; }
    GuideLineOptions* guideLineOptions() const { return guideLines_; }
    // The frames and groups that take the screen's panel colour.
    QList<QWidget*> colouredPanels() const;

    // The panel's commands.
    void choosePrinterFont();
    void setUpPage();
    void exitPrintOptions();
    void copyCurrentPage();
    void printDocument();
    void toggleLarge();
    void autoSizeFont();
    // Escape leaves the large view first, then the panel.
    void pressEscape();

signals:
    // "&Exit Print Options": the screen takes over again; the panel hides
    // right after.
    void exited();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QWidget* buildFontFrame();
    void fitSideWidth();
    void showFont();

    Dialogs& dialogs_;
    QString testLine_;
    QString documentName_;
    Composer composer_;
    std::optional<PrintFontSlots> fontSlots_;
    PageSetup pageSetup_;
    PagePreview* preview_ = nullptr;
    QWidget* side_ = nullptr;
    QScrollArea* sideScroll_ = nullptr;
    QVBoxLayout* optionGroups_ = nullptr;
    QList<QPushButton*> commands_;
    QPushButton* enlarge_ = nullptr;
    QPushButton* autoSize_ = nullptr;
    QLabel* sample_ = nullptr;
    QLineEdit* fontName_ = nullptr;
    QLineEdit* fontSize_ = nullptr;
    QLabel* orientation_ = nullptr;
    QWidget* fontFrame_ = nullptr;
    GuideLineOptions* guideLines_ = nullptr;
};
