#include "shell/kit/qtdialogs.h"

#include "common/widgets/qtcolors.h"
#include "common/widgets/qtfonts.h"
#include "common/widgets/qtpagesetup.h"
#include "shell/kit/folderchooser.h"

#include "common/colors.h"

#include <QApplication>
#include <QColorDialog>
#include <QComboBox>
#include <QDesktopServices>
#include <QDir>
#include <QDialogButtonBox>
#include <QFontDialog>
#include <QFormLayout>
#include <QInputDialog>
#include <QMessageBox>
#include <QPageSetupDialog>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace {

QMessageBox::Icon ToQtIcon(Icon icon)
{
    switch (icon) {
    case Icon::Stop: return QMessageBox::Critical;
    case Icon::Question: return QMessageBox::Question;
    case Icon::Exclamation: return QMessageBox::Warning;
    case Icon::Information: return QMessageBox::Information;
    case Icon::None: break;
    }
    return QMessageBox::NoIcon;
}

struct ButtonChoice {
    QMessageBox::StandardButton qt;
    Answer answer;
};

QList<ButtonChoice> ButtonsOf(Buttons buttons)
{
    switch (buttons) {
    case Buttons::Ok: return {{QMessageBox::Ok, Answer::Ok}};
    case Buttons::OkCancel: return {{QMessageBox::Ok, Answer::Ok}, {QMessageBox::Cancel, Answer::Cancel}};
    case Buttons::YesNoCancel:
        return {{QMessageBox::Yes, Answer::Yes}, {QMessageBox::No, Answer::No}, {QMessageBox::Cancel, Answer::Cancel}};
    case Buttons::YesNo: return {{QMessageBox::Yes, Answer::Yes}, {QMessageBox::No, Answer::No}};
    }
    return {{QMessageBox::Ok, Answer::Ok}};
}

// The printer set to the paper of `setup`. Pages count their positions from
// the corner of the area the printer can reach, so a line at the top of the
// page is not lost in the printer's unprintable border; a PDF file reaches
// the paper's very corner.
void PreparePrinter(QPrinter& printer, const PageSetup& setup)
{
    printer.setFullPage(false);
    printer.setPageLayout(PageLayoutOf(setup));
}

// Qt's font dialog, held inside a dialog of our own that adds the colour
// list of the classic font dialog's effects.
class FontDialog final : public QDialog {
public:
    explicit FontDialog(const TextFont& initial)
        : QDialog(QApplication::activeWindow())
    {
        setWindowTitle(QStringLiteral("Font"));
        auto* layout = new QVBoxLayout(this);
        fonts_ = new QFontDialog(this);
        fonts_->setWindowFlags(Qt::Widget);
        fonts_->setOptions(QFontDialog::NoButtons | QFontDialog::DontUseNativeDialog);
        // Opens on the current font, found under the face that stands in
        // for it when the classic name is not installed.
        QFont shown = QFontOf(initial);
        shown.setFamily(InstalledFamilyOf(initial.name));
        fonts_->setCurrentFont(shown);
        // Escape or Enter inside the font lists ends the whole dialog, not
        // just the lists held in it.
        connect(fonts_, &QDialog::finished, this, &QDialog::done);
        layout->addWidget(fonts_);
        auto* colorRow = new QFormLayout;
        colors_ = new QComboBox(this);
        // The sixteen colours of the classic palette, by their usual names.
        const char* const names[16] = {"Black",      "Navy",    "Green",   "Teal",   "Maroon", "Purple",
                                       "Olive",      "Silver",  "Gray",    "Blue",   "Lime",   "Aqua",
                                       "Red",        "Fuchsia", "Yellow",  "White"};
        for (int index = 0; index < 16; ++index) {
            QPixmap swatch(24, 12);
            swatch.fill(ColorFromColorref(QBColor(index)));
            colors_->addItem(QIcon(swatch), QString::fromLatin1(names[index]), QBColor(index));
        }
        const int current = colors_->findData(initial.color);
        if (current < 0)
            colors_->addItem(ColorFromColorref(initial.color).name(), initial.color);
        colors_->setCurrentIndex(current >= 0 ? current : colors_->count() - 1);
        colorRow->addRow(QStringLiteral("&Color:"), colors_);
        layout->addLayout(colorRow);
        auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
        connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        layout->addWidget(buttons);
    }

    TextFont chosen() const
    {
        TextFont font = TextFontOf(fonts_->currentFont(), colors_->currentData().toInt());
        font.name = StoredFamilyOf(font.name);
        return font;
    }

private:
    QFontDialog* fonts_ = nullptr;
    QComboBox* colors_ = nullptr;
};

} // namespace

Answer QtDialogs::ask(const Message& message)
{
    QMessageBox box(ToQtIcon(message.icon), message.title, message.text, QMessageBox::NoButton,
                    QApplication::activeWindow());
    const QList<ButtonChoice> choices = ButtonsOf(message.buttons);
    for (int i = 0; i < choices.size(); ++i) {
        QPushButton* button = box.addButton(choices[i].qt);
        if (i + 1 == message.defaultButton)
            box.setDefaultButton(button);
    }
    // Closing the box answers as its cancel button would, or as the only one.
    const bool hasCancel = message.buttons == Buttons::OkCancel || message.buttons == Buttons::YesNoCancel;
    box.setEscapeButton(box.button(hasCancel ? QMessageBox::Cancel : choices.last().qt));
    box.exec();
    const auto clicked = box.standardButton(box.clickedButton());
    for (const ButtonChoice& choice : choices) {
        if (choice.qt == clicked)
            return choice.answer;
    }
    return hasCancel ? Answer::Cancel : choices.last().answer;
}

QString QtDialogs::input(const InputRequest& request)
{
    bool ok = false;
    const QString text = QInputDialog::getText(QApplication::activeWindow(), request.title, request.prompt,
                                               QLineEdit::Normal, request.defaultText, &ok);
    return ok ? text : QString();
}

void QtDialogs::openUrl(const QUrl& url)
{
    QDesktopServices::openUrl(url);
}

std::optional<qint32> QtDialogs::chooseColor(qint32 initial)
{
    QColorDialog dialog(ColorFromColorref(initial), QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return ColorrefFromColor(dialog.selectedColor());
}

std::optional<TextFont> QtDialogs::chooseFont(const TextFont& initial)
{
    FontDialog dialog(initial);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return dialog.chosen();
}

std::optional<QString> QtDialogs::chooseFolder(const FolderRequest& request)
{
    QDialog dialog(QApplication::activeWindow());
    dialog.setWindowTitle(request.title);
    auto* layout = new QVBoxLayout(&dialog);
    auto* panel = new FolderChooserPanel(FolderChooserPanel::Files::Hidden, &dialog);
    panel->setFolder(request.startFolder);
    layout->addWidget(panel);
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    layout->addWidget(buttons);
    dialog.resize(480, 400);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return panel->folder();
}

std::optional<PageSetup> QtDialogs::pageSetup(const PageSetup& current)
{
    QPrinter printer(QPrinter::HighResolution);
    PreparePrinter(printer, current);
    QPageSetupDialog dialog(&printer, QApplication::activeWindow());
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return PageSetupOf(printer.pageLayout());
}

Printed QtDialogs::print(const PrintJob& job)
{
    QPrinter printer(QPrinter::HighResolution);
    PreparePrinter(printer, job.setup);
    printer.setDocName(job.title);
    // With no printer installed, a PDF file is the only way out: offer one
    // named after the document in the user's documents folder.
    if (QPrinterInfo::availablePrinters().isEmpty())
        printer.setOutputFileName(ProposedPdfFile(job.title));
    QPrintDialog dialog(&printer, QApplication::activeWindow());
    dialog.setMinMax(1, qMax(1, job.pageCount));
    if (dialog.exec() != QDialog::Accepted)
        return {};
    const bool range = printer.printRange() == QPrinter::PageRange && printer.fromPage() > 0;
    const int first = range ? printer.fromPage() : 1;
    const int last = range ? qMin(printer.toPage(), job.pageCount) : job.pageCount;
    if (!job.render(printer, first, last))
        return {};
    return {true, printer.outputFormat() == QPrinter::PdfFormat ? printer.outputFileName() : QString()};
}

QString ProposedPdfFile(const QString& title)
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (folder.isEmpty() || !QDir(folder).exists())
        folder = QDir::homePath();
    QString name = title;
    name.replace(u'/', u'-');
    return QDir(folder).filePath(name + QStringLiteral(".pdf"));
}
