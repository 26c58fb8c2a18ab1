#include "print/screens/printoptionspanel.h"

#include "common/dialogs.h"
#include "common/writefailure.h"
#include "common/widgets/qtcolors.h"
#include "common/widgets/qtfonts.h"
#include "print/logic/pagebuilder.h"
#include "print/logic/printfont.h"
#include "print/screens/fontmeasurer.h"
#include "print/screens/guidelineoptions.h"
#include "print/screens/pagepainter.h"
#include "print/screens/pagepreview.h"

#include <QClipboard>
#include <QGridLayout>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

// The clipboard gets the page at a resolution that pastes sharply.
constexpr double kClipboardDotsPerInch = 150;
// The sample is shown at most this large, whatever the printer size.
constexpr double kLargestSampleSize = 20;

const FontMeasurer& Measurer()
{
    static const FontMeasurer measurer;
    return measurer;
}

QString OrientationText(const PageSetup& setup)
{
    return setup.orientation == PageOrientation::Portrait ? QStringLiteral(" Portrait") : QStringLiteral(" Landscape");
}

} // namespace

PrintOptionsPanel::PrintOptionsPanel(Dialogs& dialogs, const QString& autoSizeTestLine,
                                     const SettingsSlot& guideLineSlot, QWidget* parent)
    : QFrame(parent), dialogs_(dialogs), testLine_(autoSizeTestLine)
{
    setObjectName(QStringLiteral("PrintOptions"));
    setFrameStyle(QFrame::Panel | QFrame::Raised);
    setLineWidth(3);
    setAutoFillBackground(true);
    auto* layout = new QHBoxLayout(this);

    auto* previewColumn = new QVBoxLayout;
    enlarge_ = new QPushButton(QStringLiteral("Enlarge"), this);
    enlarge_->setObjectName(QStringLiteral("Enlarge"));
    connect(enlarge_, &QPushButton::clicked, this, &PrintOptionsPanel::toggleLarge);
    preview_ = new PagePreview(this);
    previewColumn->addWidget(enlarge_, 0, Qt::AlignLeft);
    previewColumn->addWidget(preview_, 1);
    layout->addLayout(previewColumn, 1);

    side_ = new QWidget(this);
    side_->setObjectName(QStringLiteral("PrintOptionsSide"));
    auto* column = new QVBoxLayout(side_);
    column->setContentsMargins(0, 0, 0, 0);
    auto* title = new QLabel(QStringLiteral("Print Options"), side_);
    QFont bold = title->font();
    bold.setBold(true);
    bold.setPointSize(bold.pointSize() + 2);
    title->setFont(bold);
    column->addWidget(title);

    const QString captions[] = {QStringLiteral("Printer &Font"), QStringLiteral("&Page Setup"),
                                QStringLiteral("&Exit Print Options"), QStringLiteral("C&opy Current Page"),
                                QStringLiteral("&Print")};
    const std::function<void()> actions[] = {
        [this] { choosePrinterFont(); }, [this] { setUpPage(); }, [this] { exitPrintOptions(); },
        [this] { copyCurrentPage(); }, [this] { printDocument(); }};
    for (int index = 0; index < 5; ++index) {
        auto* button = new QPushButton(captions[index], side_);
        button->setObjectName(QStringLiteral("PrintCommand_%1").arg(index));
        connect(button, &QPushButton::clicked, this, actions[index]);
        commands_.append(button);
        column->addWidget(button);
    }
    fontFrame_ = buildFontFrame();
    column->addWidget(fontFrame_);
    guideLines_ = new GuideLineOptions(dialogs_, guideLineSlot, side_);
    connect(guideLines_, &GuideLineOptions::guideLinesChanged, preview_, &PagePreview::setGuideLines);
    column->addWidget(guideLines_);
    optionGroups_ = new QVBoxLayout;
    column->addLayout(optionGroups_);
    column->addStretch();
    // On a small screen the column scrolls rather than squeezing its
    // controls; the panel's colour shows through.
    sideScroll_ = new QScrollArea(this);
    sideScroll_->setObjectName(QStringLiteral("PrintOptionsScroll"));
    sideScroll_->setFrameShape(QFrame::NoFrame);
    sideScroll_->setWidgetResizable(true);
    sideScroll_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    sideScroll_->setWidget(side_);
    sideScroll_->viewport()->setAutoFillBackground(false);
    side_->setAutoFillBackground(false);
    layout->addWidget(sideScroll_);
    hide();
}

// The column is as wide as its widest control, with room for its scroll bar;
// the screen's groups count once they are shown with the panel.
void PrintOptionsPanel::fitSideWidth()
{
    sideScroll_->setMinimumWidth(side_->minimumSizeHint().width()
                                 + sideScroll_->verticalScrollBar()->sizeHint().width());
}

QWidget* PrintOptionsPanel::buildFontFrame()
{
    auto* frame = new QFrame(side_);
    frame->setObjectName(QStringLiteral("PrinterFontFrame"));
    frame->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    auto* grid = new QGridLayout(frame);
    sample_ = new QLabel(QStringLiteral("AaBbYyZz"), frame);
    sample_->setObjectName(QStringLiteral("FontSample"));
    sample_->setAlignment(Qt::AlignCenter);
    sample_->setMinimumHeight(40);
    fontName_ = new QLineEdit(frame);
    fontName_->setObjectName(QStringLiteral("PrinterFontName"));
    fontSize_ = new QLineEdit(frame);
    fontSize_->setObjectName(QStringLiteral("PrinterFontSize"));
    for (QLineEdit* field : {fontName_, fontSize_})
        field->setReadOnly(true);
    autoSize_ = new QPushButton(QStringLiteral("Auto Size"), frame);
    autoSize_->setObjectName(QStringLiteral("AutoSize"));
    connect(autoSize_, &QPushButton::clicked, this, &PrintOptionsPanel::autoSizeFont);
    orientation_ = new QLabel(frame);
    orientation_->setObjectName(QStringLiteral("Orientation"));
    grid->addWidget(sample_, 0, 0, 1, 2);
    grid->addWidget(new QLabel(QStringLiteral("Printer Font:"), frame), 1, 0);
    grid->addWidget(fontName_, 1, 1);
    grid->addWidget(new QLabel(QStringLiteral("Font Size:"), frame), 2, 0);
    grid->addWidget(fontSize_, 2, 1);
    grid->addWidget(autoSize_, 3, 1);
    grid->addWidget(new QLabel(QStringLiteral("Orientation:"), frame), 4, 0);
    grid->addWidget(orientation_, 4, 1);
    return frame;
}

void PrintOptionsPanel::addOptionGroup(QWidget* group)
{
    group->setParent(side_);
    optionGroups_->addWidget(group);
}

QList<QWidget*> PrintOptionsPanel::colouredPanels() const
{
    QList<QWidget*> panels{const_cast<PrintOptionsPanel*>(this), guideLines_};
    for (int index = 0; index < optionGroups_->count(); ++index) {
        if (QWidget* group = optionGroups_->itemAt(index)->widget())
            panels.append(group);
    }
    return panels;
}

QPushButton* PrintOptionsPanel::command(int index) const
{
    return index >= 0 && index < commands_.size() ? commands_[index] : nullptr;
}

const PageDocument& PrintOptionsPanel::document() const
{
    return preview_->document();
}

void PrintOptionsPanel::open()
{
    guideLines_->load();
    if (fontSlots_)
        PrintFont() = StoredPrintFont(*fontSlots_, PrintFont());
    showFont();
    orientation_->setText(OrientationText(pageSetup_));
    recompose();
    show();
    fitSideWidth();
    raise();
    commands_[kPrint]->setFocus();
}

void PrintOptionsPanel::recompose()
{
    PageBuilder page(Measurer(), pageSetup_);
    if (composer_)
        composer_(page);
    preview_->setDocument(page.document());
}

void PrintOptionsPanel::showFont()
{
    const TextFont& font = PrintFont();
    QFont sample = QFontOf(font);
    sample.setPointSizeF(qMin(font.size, kLargestSampleSize));
    sample_->setFont(sample);
    sample_->setStyleSheet(QStringLiteral("background: white; color: %1").arg(ColorFromColorref(font.color).name()));
    fontName_->setText(font.name);
    fontSize_->setText(QString::number(font.size));
}

void PrintOptionsPanel::choosePrinterFont()
{
    const std::optional<TextFont> chosen = dialogs_.chooseFont(PrintFont());
    if (!chosen)
        return;
    PrintFont() = *chosen;
    showFont();
    recompose();
}

void PrintOptionsPanel::setUpPage()
{
    const std::optional<PageSetup> chosen = dialogs_.pageSetup(pageSetup_);
    if (!chosen)
        return;
    pageSetup_ = *chosen;
    orientation_->setText(OrientationText(pageSetup_));
    recompose();
}

void PrintOptionsPanel::exitPrintOptions()
{
    if (preview_->large())
        toggleLarge();
    if (fontSlots_ && !StorePrintFont(*fontSlots_, PrintFont()))
        dialogs_.ask(WriteFailedMessage(fontSlots_->name.file.name));
    // The screen takes the keyboard back while the panel is still up, so
    // that hiding it does not pass the focus on to whatever comes next.
    emit exited();
    hide();
}

void PrintOptionsPanel::copyCurrentPage()
{
    QGuiApplication::clipboard()->setImage(PageImage(document(), preview_->currentPage(), kClipboardDotsPerInch));
    dialogs_.tell(QStringLiteral("Copy Option"), QStringLiteral("Current Page has been copied to the Windows Clipboard."));
}

void PrintOptionsPanel::printDocument()
{
    // A printer that fails stops the command; the panel stays as it is.
    const PageDocument document = this->document();
    dialogs_.print(PrintJob{documentName_, pageSetup_, document.pageCount(),
                            [&document](QPagedPaintDevice& device, int first, int last) {
                                return RenderPages(device, document, first, last);
                            }});
}

void PrintOptionsPanel::toggleLarge()
{
    const bool large = !preview_->large();
    // The keyboard stays on the panel: hidden with the side column, it
    // would go on to the screen's fields.
    if (large)
        enlarge_->setFocus(Qt::OtherFocusReason);
    sideScroll_->setVisible(!large);
    preview_->setLarge(large);
    enlarge_->setText(large ? QStringLiteral("Normal") : QStringLiteral("Enlarge"));
}

void PrintOptionsPanel::autoSizeFont()
{
    TextFont& font = PrintFont();
    font.size = AutoSizeFontSize(Measurer(), font, testLine_, pageSetup_.pageWidth());
    showFont();
    recompose();
}

void PrintOptionsPanel::pressEscape()
{
    if (preview_->large())
        toggleLarge();
    else
        exitPrintOptions();
}

void PrintOptionsPanel::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape) {
        pressEscape();
        return;
    }
    QFrame::keyPressEvent(event);
}
