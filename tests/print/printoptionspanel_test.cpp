// The shared print options panel: its commands, the font, Auto Size, page
// setup, guide lines, the large view, copying a page and printing to PDF.
#include "print/logic/guidelines.h"
#include "print/logic/pagebuilder.h"
#include "print/logic/printfont.h"
#include "print/screens/fontmeasurer.h"
#include "print/screens/guidelineoptions.h"
#include "print/screens/pagepainter.h"
#include "print/screens/pagepreview.h"
#include "print/screens/printoptionspanel.h"
#include "shell/settings/settingsregistry.h"

#include "fit_check.h"
#include "pdf_text.h"
#include "scripted_dialogs.h"
#include "temp_program_folder.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QVBoxLayout>
#include <QSignalSpy>
#include <QTest>
#include "common/writefailure.h"
#include <QDir>
#include <gtest/gtest.h>

namespace {

const QString kTestLine(96, QLatin1Char('n'));

struct PanelFixture : ::testing::Test {
    TempProgramFolder folder;
    ScriptedDialogs dialogs;
    QWidget screen;
    PrintOptionsPanel* panel = nullptr;
    int compositions = 0;
    TextFont savedFont = PrintFont();

    PanelFixture()
    {
        screen.resize(1000, 700);
        panel = new PrintOptionsPanel(dialogs, kTestLine, Settings::Form5GuideLines, &screen);
        panel->resize(1000, 700);
        panel->setComposer([this](PageBuilder& page) {
            ++compositions;
            page.setFont(PrintFont());
            page.zeroMargins();
            page.startDoc();
            page.printLine(QStringLiteral("Grandma's Apple Pie"));
            page.newPage();
            page.printLine(QStringLiteral("Second page"));
            page.endDoc();
        });
        PrintFont() = TextFont{};
        screen.show();
    }
    ~PanelFixture() override { PrintFont() = savedFont; }

    QString field(const char* name) const { return panel->findChild<QLineEdit*>(name)->text(); }
};

} // namespace

TEST_F(PanelFixture, CommandsInIndexOrderWithTheirCaptions)
{
    const QStringList captions{QStringLiteral("Printer &Font"), QStringLiteral("&Page Setup"),
                               QStringLiteral("&Exit Print Options"), QStringLiteral("C&opy Current Page"),
                               QStringLiteral("&Print")};
    for (int index = 0; index < captions.size(); ++index) {
        ASSERT_NE(panel->command(index), nullptr);
        EXPECT_EQ(panel->command(index)->text(), captions[index]);
        EXPECT_EQ(panel->command(index)->objectName(), QStringLiteral("PrintCommand_%1").arg(index));
    }
    EXPECT_EQ(panel->command(5), nullptr);
    EXPECT_EQ(panel->enlargeButton()->text(), QStringLiteral("Enlarge"));
    EXPECT_EQ(panel->autoSizeButton()->text(), QStringLiteral("Auto Size"));
}

TEST_F(PanelFixture, OpeningShowsTheFontTheOrientationAndTheDocument)
{
    panel->open();
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(panel->findChild<QLabel*>(QStringLiteral("FontSample"))->text(), QStringLiteral("AaBbYyZz"));
    EXPECT_EQ(field("PrinterFontName"), QStringLiteral("Times New Roman"));
    EXPECT_EQ(field("PrinterFontSize"), QStringLiteral("12"));
    EXPECT_EQ(panel->findChild<QLabel*>(QStringLiteral("Orientation"))->text(), QStringLiteral(" Portrait"));
    EXPECT_EQ(compositions, 1);
    EXPECT_EQ(panel->document().pageCount(), 2);
    QStringList labels;
    for (const QLabel* label : panel->findChildren<QLabel*>())
        labels.append(label->text());
    EXPECT_TRUE(labels.contains(QStringLiteral("Printer Font:")));
    EXPECT_TRUE(labels.contains(QStringLiteral("Font Size:")));
    EXPECT_TRUE(labels.contains(QStringLiteral("Orientation:")));
}

TEST_F(PanelFixture, FontDialogIsPresetFromPrintFontAndItsChoiceRecomposes)
{
    PrintFont().size = 14;
    panel->open();
    const TextFont chosen{QStringLiteral("Liberation Sans"), 16, true, false, true, false, 255};
    dialogs.expectFont(chosen);
    QTest::mouseClick(panel->command(PrintOptionsPanel::kPrinterFont), Qt::LeftButton);
    ASSERT_EQ(dialogs.fontRequests().size(), 1);
    EXPECT_EQ(dialogs.fontRequests()[0].size, 14);
    EXPECT_EQ(PrintFont(), chosen);
    EXPECT_EQ(field("PrinterFontName"), QStringLiteral("Liberation Sans"));
    EXPECT_EQ(field("PrinterFontSize"), QStringLiteral("16"));
    const QLabel* sample = panel->findChild<QLabel*>(QStringLiteral("FontSample"));
    EXPECT_EQ(sample->font().family(), QStringLiteral("Liberation Sans"));
    EXPECT_TRUE(sample->font().bold());
    EXPECT_TRUE(sample->font().underline());
    EXPECT_TRUE(sample->styleSheet().contains(QStringLiteral("#ff0000"))) << "COLORREF 255 is red";
    EXPECT_EQ(compositions, 2);
    EXPECT_EQ(panel->document().pages[0].texts().at(0).font, chosen);
}

TEST_F(PanelFixture, FontDialogCancelLeavesPrintFontUnchanged)
{
    panel->open();
    const TextFont before = PrintFont();
    dialogs.expectFont(std::nullopt);
    panel->choosePrinterFont();
    EXPECT_EQ(PrintFont(), before);
    EXPECT_EQ(field("PrinterFontSize"), QStringLiteral("12"));
    EXPECT_EQ(compositions, 1) << "nothing is composed again";
}

TEST_F(PanelFixture, PageSetupShowsTheOrientationAndRecomposes)
{
    panel->open();
    PageSetup landscape;
    landscape.orientation = PageOrientation::Landscape;
    dialogs.expectPageSetup(landscape);
    QTest::mouseClick(panel->command(PrintOptionsPanel::kPageSetup), Qt::LeftButton);
    EXPECT_EQ(panel->findChild<QLabel*>(QStringLiteral("Orientation"))->text(), QStringLiteral(" Landscape"));
    EXPECT_EQ(panel->document().pageWidth, 15840);
    EXPECT_EQ(panel->document().pageHeight, 12240);
    EXPECT_EQ(compositions, 2);
    // Cancel keeps the page as it is.
    dialogs.expectPageSetup(std::nullopt);
    panel->setUpPage();
    EXPECT_EQ(dialogs.pageSetupRequests().last(), landscape);
    EXPECT_EQ(panel->pageSetup(), landscape);
    EXPECT_EQ(compositions, 2);
}

TEST_F(PanelFixture, AutoSizeFitsTheTestLineToThePageWidth)
{
    panel->open();
    QTest::mouseClick(panel->autoSizeButton(), Qt::LeftButton);
    const FontMeasurer measurer;
    const int size = int(PrintFont().size);
    EXPECT_EQ(PrintFont().size, size);
    EXPECT_EQ(field("PrinterFontSize"), QString::number(size));
    TextFont check = PrintFont();
    EXPECT_LE(measurer.textWidth(check, kTestLine), 12240);
    check.size = size + 1;
    EXPECT_GT(measurer.textWidth(check, kTestLine), 12240);
    EXPECT_EQ(compositions, 2);
    EXPECT_EQ(panel->document().pages[0].texts().at(0).font.size, size);
    // The same page and font give the same size again.
    panel->autoSizeFont();
    EXPECT_EQ(PrintFont().size, size);
}

TEST_F(PanelFixture, EnlargeTogglesToNormalAndEscapeLeavesTheLargeViewFirst)
{
    panel->open();
    QSignalSpy exited(panel, &PrintOptionsPanel::exited);
    QTest::mouseClick(panel->enlargeButton(), Qt::LeftButton);
    EXPECT_EQ(panel->enlargeButton()->text(), QStringLiteral("Normal"));
    EXPECT_TRUE(panel->preview()->large());
    EXPECT_FALSE(panel->command(PrintOptionsPanel::kPrint)->isVisible());
    QTest::keyClick(panel, Qt::Key_Escape);
    EXPECT_EQ(panel->enlargeButton()->text(), QStringLiteral("Enlarge"));
    EXPECT_FALSE(panel->preview()->large());
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(exited.count(), 0);
    QTest::keyClick(panel, Qt::Key_Escape);
    EXPECT_FALSE(panel->isVisible());
    EXPECT_EQ(exited.count(), 1);
}

TEST_F(PanelFixture, ExitHidesThePanelAndTellsTheScreen)
{
    panel->open();
    QSignalSpy exited(panel, &PrintOptionsPanel::exited);
    QTest::mouseClick(panel->command(PrintOptionsPanel::kExitPrintOptions), Qt::LeftButton);
    EXPECT_FALSE(panel->isVisible());
    EXPECT_EQ(exited.count(), 1);
}

TEST_F(PanelFixture, ExitStoresTheFontWhereTheScreenKeepsIt)
{
    panel->setFontSlots({Settings::ZcalandarPrintFontName, Settings::ZcalandarPrintFontSize});
    panel->open();
    PrintFont().name = QStringLiteral("Arial");
    PrintFont().size = 14.6;
    panel->command(PrintOptionsPanel::kExitPrintOptions)->click();
    // Tagged: kind 8 and the text with its length; kind 3 and a 32-bit integer.
    QFile file(QStringLiteral("GColor4.Fil"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    ASSERT_EQ(bytes.size(), 27 * 40);
    EXPECT_EQ(bytes.mid(25 * 40, 9), QByteArray("\x08\x00\x05\x00" "Arial", 9));
    EXPECT_EQ(bytes.mid(26 * 40, 6), QByteArray("\x03\x00\x0e\x00\x00\x00", 6));
    EXPECT_EQ(bytes.left(25 * 40), QByteArray(25 * 40, '\0')) << "no other slot is written";
}

TEST_F(PanelFixture, OpeningReadsTheFontWhereTheScreenKeepsIt)
{
    PrintFont() = TextFont{};
    ASSERT_TRUE(WriteSlotTagged(Settings::WeightTrackerPrintFontName, QStringLiteral("Courier New")));
    ASSERT_TRUE(WriteSlotTagged(Settings::WeightTrackerPrintFontSize, qint32(9)));
    panel->setFontSlots({Settings::WeightTrackerPrintFontName, Settings::WeightTrackerPrintFontSize});
    panel->open();
    EXPECT_EQ(PrintFont().name, "Courier New");
    EXPECT_EQ(PrintFont().size, 9);
    EXPECT_EQ(panel->document().pages.value(0).texts().value(0).font.name, "Courier New");
}

TEST_F(PanelFixture, SlotsNeverWrittenLeaveTheFontAsItWas)
{
    PrintFont() = TextFont{};
    PrintFont().name = QStringLiteral("Arial");
    panel->setFontSlots({Settings::WeightTrackerPrintFontName, Settings::WeightTrackerPrintFontSize});
    panel->open();
    EXPECT_EQ(PrintFont().name, "Arial");
    EXPECT_EQ(PrintFont().size, 12);
}

TEST_F(PanelFixture, ExitStoresNoFontForAScreenWithoutSlots)
{
    panel->open();
    panel->command(PrintOptionsPanel::kExitPrintOptions)->click();
    EXPECT_FALSE(QFile::exists(QStringLiteral("GColor4.Fil")));
}

TEST_F(PanelFixture, GuideLinesFollowTheStoredOptionAndTheUsersChoice)
{
    WriteGuideLineOption(Settings::Form5GuideLines, 1);
    panel->open();
    EXPECT_TRUE(panel->preview()->guideLines());
    EXPECT_TRUE(panel->guideLineOptions()->option(1)->isChecked());
    panel->guideLineOptions()->option(0)->click();
    EXPECT_FALSE(panel->preview()->guideLines());
    EXPECT_EQ(ReadGuideLineOption(Settings::Form5GuideLines), 0);
}

TEST_F(PanelFixture, CopyCurrentPageCopiesThePageInViewAndSaysSo)
{
    panel->open();
    panel->preview()->showPage(1);
    dialogs.expectMessage(QStringLiteral("Copy Option"),
                          QStringLiteral("Current Page has been copied to the Windows Clipboard."));
    QTest::mouseClick(panel->command(PrintOptionsPanel::kCopyCurrentPage), Qt::LeftButton);
    const QImage copied = QApplication::clipboard()->image();
    ASSERT_FALSE(copied.isNull());
    EXPECT_EQ(copied, PageImage(panel->document(), 1, 150));
    EXPECT_NE(copied, PageImage(panel->document(), 0, 150));
    // Letter at 150 dots per inch.
    EXPECT_EQ(copied.size(), QSize(1275, 1650));
}

TEST_F(PanelFixture, PrintSendsEveryPageToTheChosenDevice)
{
    panel->open();
    const QString pdf = folder.filePath(QStringLiteral("printed.pdf"));
    dialogs.expectPrint(pdf);
    QTest::mouseClick(panel->command(PrintOptionsPanel::kPrint), Qt::LeftButton);
    ASSERT_EQ(dialogs.printJobs().size(), 1);
    EXPECT_EQ(dialogs.printJobs()[0].pageCount, 2);
    ASSERT_TRUE(QFile::exists(pdf));
    const QString text = PdfText(pdf);
    EXPECT_TRUE(text.contains(QStringLiteral("Grandma's Apple Pie"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("Second page"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QLatin1Char('\f'))) << "two pages";
}

TEST_F(PanelFixture, CancelledPrintLeavesThePanelAsItIs)
{
    panel->open();
    dialogs.expectPrint(QString());
    panel->printDocument();
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(compositions, 1);
}

TEST_F(PanelFixture, PreviewStepsThroughThePages)
{
    panel->open();
    auto* next = panel->preview()->findChild<QPushButton*>(QStringLiteral("NextPage"));
    auto* previous = panel->preview()->findChild<QPushButton*>(QStringLiteral("PreviousPage"));
    auto* number = panel->preview()->findChild<QLabel*>(QStringLiteral("PageNumber"));
    EXPECT_EQ(number->text(), QStringLiteral("Page 1 of 2"));
    EXPECT_FALSE(previous->isEnabled());
    QTest::mouseClick(next, Qt::LeftButton);
    EXPECT_EQ(panel->preview()->currentPage(), 1);
    EXPECT_EQ(number->text(), QStringLiteral("Page 2 of 2"));
    EXPECT_FALSE(next->isEnabled());
    // A recomposed document keeps the page in view.
    panel->recompose();
    EXPECT_EQ(panel->preview()->currentPage(), 1);
}

// A screen's tall option groups on a small screen: the side column scrolls
// rather than squeezing its controls, and the preview keeps its page buttons.
TEST_F(PanelFixture, OnASmallScreenTheOptionColumnScrollsAndNothingIsSqueezed)
{
    auto* group = new QWidget;
    auto* rows = new QVBoxLayout(group);
    for (int i = 0; i < 12; ++i)
        rows->addWidget(new QRadioButton(QStringLiteral("A long choice of the screen's own, number %1").arg(i)));
    panel->addOptionGroup(group);
    screen.resize(760, 480);
    panel->setGeometry(screen.rect());
    panel->open();
    QApplication::processEvents();
    EXPECT_EQ(FitProblems(&screen).join(u'\n').toStdString(), "");
    auto* scroll = panel->findChild<QScrollArea*>("PrintOptionsScroll");
    ASSERT_NE(scroll, nullptr);
    EXPECT_TRUE(scroll->isAncestorOf(group));
    EXPECT_GE(scroll->width(), group->minimumSizeHint().width()) << "never narrower than its widest control";
    panel->toggleLarge();
    EXPECT_FALSE(scroll->isVisible()) << "the large view hides the column";
}

TEST(PagePainter, PaintsTheTextWhereTheDocumentPutsIt)
{
    PageDocument document;
    document.pages.append(Page{});
    TextItem item;
    item.x = 7200;   // half way across
    item.y = 7920;   // half way down
    item.text = QStringLiteral("MMMM");
    item.font.size = 24;
    item.width = FontMeasurer().textWidth(item.font, item.text);
    item.height = FontMeasurer().lineHeight(item.font);
    document.pages[0].items.append(item);
    const QImage image = PageImage(document, 0, 72);
    // At 72 dpi the text starts at x 360; nothing dark lies left of it.
    int firstDark = -1;
    for (int x = 0; x < image.width() && firstDark < 0; ++x) {
        for (int y = 0; y < image.height(); ++y) {
            if (qGray(image.pixel(x, y)) < 128) {
                firstDark = x;
                break;
            }
        }
    }
    EXPECT_GE(firstDark, 358);
    EXPECT_LE(firstDark, 366);
}

TEST_F(PanelFixture, AFontThatCannotBeStoredIsSaidAndThePanelStillCloses)
{
    panel->setFontSlots({Settings::ZcalandarPrintFontName, Settings::ZcalandarPrintFontSize});
    panel->open();
    // Opening read the font from the file, which made it: a folder takes its place.
    ASSERT_TRUE(QFile::remove(QStringLiteral("GColor4.Fil")));
    ASSERT_TRUE(QDir().mkdir(QStringLiteral("GColor4.Fil")));
    const Message failed = WriteFailedMessage(QStringLiteral("GColor4.Fil"));
    dialogs.expectMessage(failed.title, failed.text);
    panel->command(PrintOptionsPanel::kExitPrintOptions)->click();
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_FALSE(panel->isVisible());
}
