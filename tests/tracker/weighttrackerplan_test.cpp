// The plan panel and its photographs, the picture chooser, the graph and
// the printout of the weight tracker screen.
#include "weighttracker_fixture.h"

#include "common/writefailure.h"
#include "pdf_text.h"
#include "print/logic/printfont.h"
#include "print/logic/guidelines.h"
#include "print/screens/guidelineoptions.h"
#include "print/screens/pagepreview.h"
#include "print/screens/printoptionspanel.h"
#include "raw_slots.h"
#include "shell/kit/folderchooser.h"
#include "shell/kit/picturechooserpanel.h"
#include "shell/settings/settingsregistry.h"
#include "tracker/screens/enlargedpicturepanel.h"
#include "tracker/screens/planpanel.h"
#include "tracker/screens/trackerprintoptions.h"
#include "tracker/screens/weightgraphpanel.h"

#include <QCategoryAxis>
#include <QChart>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineSeries>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTemporaryDir>

namespace {

class WeightTrackerPlanTest : public WeightTrackerTest {
protected:
    // A picture file of `size` in the program folder.
    QString picture(const QString& name, QSize size = {400, 300}) const
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        const QString path = folder.filePath(name);
        EXPECT_TRUE(image.save(path));
        return path;
    }
    TextFont savedFont = PrintFont();
    ~WeightTrackerPlanTest() override { PrintFont() = savedFont; }
};

} // namespace

TEST_F(WeightTrackerPlanTest, ThePlanPanelHoldsTheWarningTheFieldsAndTheSlots)
{
    auto form = openPat();
    run(*form, "mPlan");
    EXPECT_TRUE(form->planShown());
    EXPECT_EQ(form->findChild<QLabel*>(QStringLiteral("lblWarning"))->text(),
              "WARNING: Please Before starting any exercise plan consult with your physician.");
    EXPECT_EQ(form->field(5)->text(), "3");
    EXPECT_EQ(form->field(6)->text(), "45 minutes");
    EXPECT_EQ(form->field(7)->maxLength(), 100);
    EXPECT_EQ(form->planPanel()->slot(0).caption->text(), "Beginning Picture");
    EXPECT_EQ(form->planPanel()->slot(1).caption->text(), "Current Picture   ");
    EXPECT_EQ(form->planPanel()->slot(0).addEdit->text(), "Add/Edit");
    EXPECT_EQ(form->planPanel()->slot(0).enlarge->text(), "Click to Enlarge");
    EXPECT_EQ(form->field(8)->text(), "Date Photo Taken");
    EXPECT_EQ(form->planPanel()->comments()->toPlainText(), "First line\nsecond line");
    EXPECT_EQ(form->planPanel()->counter()->text(), "23");
    run(*form, "mWeighIns");
    EXPECT_TRUE(form->weighInsShown());
}

TEST_F(WeightTrackerPlanTest, TheCommentsCountStopAt1000AndRefuseTheQuote)
{
    auto form = openPat();
    run(*form, "mPlan");
    form->planPanel()->comments()->setPlainText(QString(1200, u'a'));
    EXPECT_EQ(form->planPanel()->comments()->toPlainText().size(), 1000);
    EXPECT_EQ(form->planPanel()->counter()->text(), "1000");
    form->planPanel()->comments()->setPlainText(QStringLiteral("say \"hi\"\nnow"));
    EXPECT_EQ(form->model().fields().comments, "say hi\r\nnow");
    EXPECT_TRUE(form->model().changed());
    dialogs.expectMessage("Save File Command", "File has been Saved.");
    run(*form, "mSave");
    EXPECT_EQ(fileValues().value(9), "say hi\r\nnow");
}

TEST_F(WeightTrackerPlanTest, APathWhoseFileHasGoneShowsAnEmptyThumbnailAndIsSavedBackUnchanged)
{
    auto form = openPat();
    EXPECT_TRUE(form->planPanel()->slot(1).thumbnail->pixmap().isNull());
    typeWeight(*form, 2, QStringLiteral("206"));
    dialogs.expectMessage("Save File Command", "File has been Saved.");
    run(*form, "mSave");
    EXPECT_EQ(fileValues().value(11), "/home/pictures/now.jpg");
}

TEST_F(WeightTrackerPlanTest, TheChooserStartsInThePictureFolderAndEntersThePicture)
{
    const QString path = picture(QStringLiteral("before.png"));
    QDir(folder.path()).mkdir(QStringLiteral("pics"));
    ASSERT_TRUE(WriteQuotedLineFile(QStringLiteral("GColor14.Fil"), {folder.filePath(QStringLiteral("pics"))}));
    auto form = openPat();
    run(*form, "mPlan");
    form->planPanel()->slot(0).addEdit->click();
    PictureChooserPanel* chooser = form->pictureChooser();
    ASSERT_FALSE(chooser->isHidden());
    EXPECT_EQ(chooser->captionLabel()->text(), "Select Beginning Picture");
    EXPECT_EQ(chooser->folders()->folder(), QDir(folder.filePath(QStringLiteral("pics"))).absolutePath());
    EXPECT_FALSE(act(*form, "mSave")->isEnabled());
    chooser->choose(path);
    ASSERT_TRUE(chooser->enterButton()->isEnabled());
    chooser->enterButton()->click();
    EXPECT_TRUE(chooser->isHidden());
    EXPECT_EQ(form->model().fields().beginningPicture, path);
    EXPECT_TRUE(form->model().changed());
    EXPECT_EQ(folder.bytesOf(QStringLiteral("GColor14.Fil")), QuotedLines({folder.path()}));
    EXPECT_FALSE(form->planPanel()->slot(0).thumbnail->pixmap().isNull());
    EXPECT_TRUE(act(*form, "mSave")->isEnabled());
}

TEST_F(WeightTrackerPlanTest, TheChooserStartsOnTheSlotsFileAndRefusesAFileThatIsNoPicture)
{
    const QString path = picture(QStringLiteral("now.png"));
    auto form = openPat();
    form->planPanel()->slot(1).addEdit->click();
    PictureChooserPanel* chooser = form->pictureChooser();
    EXPECT_EQ(chooser->captionLabel()->text(), "Select Current Picture");
    folder.writeBytes(QStringLiteral("notes.jpg"), "not a picture");
    chooser->choose(folder.filePath(QStringLiteral("notes.jpg")));
    EXPECT_EQ(chooser->preview()->text(), "Program is unable to load this file as a Picture File!!!");
    EXPECT_FALSE(chooser->enterButton()->isEnabled());
    chooser->leaveButton()->click();
    EXPECT_TRUE(chooser->isHidden());
    EXPECT_EQ(form->model().fields().currentPicture, "/home/pictures/now.jpg");
    EXPECT_FALSE(form->model().changed());
    // With the slot's file there, the chooser opens on it.
    run(*form, "mPlan");
    form->planPanel()->slot(0).addEdit->click();
    chooser->choose(path);
    chooser->enterButton()->click();
    form->planPanel()->slot(0).addEdit->click();
    EXPECT_EQ(chooser->chosenFile(), QFileInfo(path).absoluteFilePath());
    EXPECT_EQ(chooser->folders()->folder(), QFileInfo(path).absolutePath());
    for (int tries = 0; tries < 300 && chooser->folders()->selectedFile().isEmpty(); ++tries)
        QTest::qWait(10);
    EXPECT_EQ(chooser->folders()->selectedFile(), QFileInfo(path).absoluteFilePath()) << "the file is picked in the list";
    chooser->leaveButton()->click();
}

TEST_F(WeightTrackerPlanTest, AClickOnTheChoosersPreviewShowsThePictureEnlarged)
{
    const QString path = picture(QStringLiteral("before.png"));
    auto form = openPat();
    form->show();
    run(*form, "mPlan");
    form->planPanel()->slot(0).addEdit->click();
    PictureChooserPanel* chooser = form->pictureChooser();
    folder.writeBytes(QStringLiteral("notes.jpg"), "not a picture");
    chooser->choose(folder.filePath(QStringLiteral("notes.jpg")));
    QTest::mouseClick(chooser->preview(), Qt::LeftButton);
    EXPECT_TRUE(form->enlargedPicture()->isHidden()) << "no picture, nothing to enlarge";
    chooser->choose(path);
    QTest::mouseClick(chooser->preview(), Qt::LeftButton);
    ASSERT_FALSE(form->enlargedPicture()->isHidden());
    EXPECT_EQ(form->enlargedPicture()->captionLabel()->text(), "Picture Preview");
    form->pressEscape();
    EXPECT_TRUE(form->enlargedPicture()->isHidden());
    EXPECT_FALSE(chooser->isHidden()) << "Escape closes the enlarged picture first";
}

TEST_F(WeightTrackerPlanTest, ADriveThatFailsInTheChooserIsToldAndGoesBackToC)
{
    auto form = openPat();
    run(*form, "mPlan");
    form->planPanel()->slot(0).addEdit->click();
    PictureChooserPanel* chooser = form->pictureChooser();
    chooser->folders()->setDrives({{QStringLiteral("C:"), QDir::homePath()},
                                   {QStringLiteral("/media/gone"), folder.filePath(QStringLiteral("gone"))}});
    dialogs.expectMessage(QStringLiteral("Device Status"), QStringLiteral("Device Unavailable!  "));
    auto* drives = chooser->folders()->findChild<QComboBox*>(QStringLiteral("Drive1"));
    drives->setCurrentIndex(1);
    emit drives->activated(1);
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(chooser->folders()->folder(), QDir::cleanPath(QDir::homePath()));
    EXPECT_FALSE(chooser->isHidden()) << "the chooser stays up";
}

TEST_F(WeightTrackerPlanTest, DeletingThePictureEmptiesTheSlotAndKeepsTheFile)
{
    const QString path = picture(QStringLiteral("before.png"));
    auto form = openPat();
    form->planPanel()->slot(0).addEdit->click();
    form->pictureChooser()->choose(path);
    form->pictureChooser()->enterButton()->click();
    form->field(8)->setText(QStringLiteral("March 02, 2026"));
    form->planPanel()->slot(0).addEdit->click();
    form->pictureChooser()->deleteButton()->click();
    EXPECT_EQ(form->model().fields().beginningPicture, "");
    EXPECT_EQ(form->field(8)->text(), "Date Photo Taken");
    EXPECT_TRUE(form->planPanel()->slot(0).thumbnail->pixmap().isNull());
    EXPECT_TRUE(QFile::exists(path));
}

TEST_F(WeightTrackerPlanTest, APictureForANewIndividualIsWrittenBySaveNewFile)
{
    const QString path = picture(QStringLiteral("start.png"));
    auto form = open();
    run(*form, "mCreate");
    form->nameField()->setText(QStringLiteral("Kim"));
    form->planPanel()->slot(0).addEdit->click();
    form->pictureChooser()->choose(path);
    form->pictureChooser()->enterButton()->click();
    dialogs.expectMessage("Save File", "File has been Saved.");
    run(*form, "mSaveNew");
    EXPECT_EQ(fileValues(QStringLiteral("Kim.Fil")).value(10), path);
}

TEST_F(WeightTrackerPlanTest, APhotographDateComesFromTheCalendar)
{
    auto form = openShown(openPat());
    run(*form, "mPlan");
    QTest::mouseClick(form->field(9), Qt::LeftButton);
    ASSERT_TRUE(form->calendar()->isOpen());
    emit form->calendar()->calendar()->clicked(QDate(2026, 3, 30));
    EXPECT_EQ(form->model().fields().currentPhotoDate, "March 30, 2026");
}

TEST_F(WeightTrackerPlanTest, EnlargingShowsTheDateTakenUnlessThePlaceholder)
{
    const QString path = picture(QStringLiteral("big.png"), {3000, 2000});
    auto form = openShown(openPat());
    form->planPanel()->slot(1).addEdit->click();
    form->pictureChooser()->choose(path);
    form->pictureChooser()->enterButton()->click();
    form->planPanel()->slot(1).enlarge->click();
    EnlargedPicturePanel* large = form->enlargedPicture();
    ASSERT_FALSE(large->isHidden());
    EXPECT_EQ(large->captionLabel()->text(), "Current Picture");
    EXPECT_EQ(large->dateLine()->text(), "Date Taken: March 30, 2026");
    EXPECT_LE(large->picture()->pixmap().width(), form->centralWidget()->width());
    EXPECT_EQ(large->closeButton()->text(), "&Close");
    large->closeButton()->click();
    EXPECT_TRUE(large->isHidden());
    form->planPanel()->slot(0).enlarge->click();
    EXPECT_TRUE(large->dateLine()->isHidden());
    form->pressEscape();
    EXPECT_TRUE(large->isHidden());
}

TEST_F(WeightTrackerPlanTest, TheGraphShowsTheThreeLinesWithItsCaption)
{
    auto form = openPat();
    EXPECT_TRUE(form->graphPanel()->isHidden()) << "made ready on load, not shown";
    EXPECT_EQ(form->graphPanel()->graph().weights, QList<double>({210.5}));
    pickDate(*form, 1, QDate(2026, 3, 9));
    typeWeight(*form, 1, QStringLiteral("209"));
    run(*form, "mGraph");
    WeightGraphPanel* graph = form->graphPanel();
    ASSERT_FALSE(graph->isHidden());
    EXPECT_EQ(graph->captionLabel()->text(), "Pat Doe Weight Tracker Graph");
    ASSERT_EQ(graph->chart()->series().size(), 3);
    EXPECT_EQ(static_cast<QLineSeries*>(graph->chart()->series()[0])->count(), 3);
    EXPECT_EQ(static_cast<QLineSeries*>(graph->chart()->series()[1])->at(0).y(), 180);
    EXPECT_EQ(static_cast<QLineSeries*>(graph->chart()->series()[2])->at(2).y(), 210.5);
    const auto axes = graph->chart()->axes(Qt::Horizontal);
    ASSERT_EQ(axes.size(), 1);
    auto* dates = static_cast<QCategoryAxis*>(axes[0]);
    EXPECT_EQ(dates->titleText(), "Weigh In Dates");
    EXPECT_EQ(dates->categoriesLabels().mid(0, 3), QStringList({"Mar-02-26", "Mar-09-26", "Mar-16-26"}));
    EXPECT_EQ(dates->count(), 4);
    // Each label is centred under its point: the unit around it is its own.
    EXPECT_EQ(dates->startValue(QStringLiteral("Mar-09-26")), 0.5);
    EXPECT_EQ(dates->endValue(QStringLiteral("Mar-09-26")), 1.5);
    EXPECT_EQ(dates->min(), -0.5);
    EXPECT_EQ(graph->closeButton()->text(), "&Close");
    graph->closeButton()->click();
    EXPECT_TRUE(graph->isHidden());
}

TEST_F(WeightTrackerPlanTest, TheGraphExportsAJpegOfItsSize)
{
    auto form = openPat();
    ASSERT_TRUE(form->graphPanel()->exportJpeg(QStringLiteral("Chartxxx.jpg")));
    const QByteArray bytes = folder.bytesOf(QStringLiteral("Chartxxx.jpg"));
    EXPECT_TRUE(bytes.startsWith("\xFF\xD8\xFF"));
    const QImage image = QImage::fromData(bytes, "JPG");
    EXPECT_EQ(image.size(), QSize(WeightGraphPanel::kExportWidth, WeightGraphPanel::kExportHeight));
}

TEST_F(WeightTrackerPlanTest, PrintingAsksToSaveFirstThenPresetsTheChecks)
{
    picture(QStringLiteral("now.png"));
    auto form = openPat();
    typeWeight(*form, 2, QStringLiteral("206"));
    expectSavePrompt(Answer::Cancel);
    run(*form, "mPrint");
    EXPECT_TRUE(form->printPanel()->isHidden());
    expectSavePrompt(Answer::No);
    run(*form, "mPrint");
    ASSERT_FALSE(form->printPanel()->isHidden());
    TrackerPrintOptions* checks = form->printOptions();
    EXPECT_TRUE(checks->check(0)->isChecked());
    EXPECT_TRUE(checks->check(1)->isChecked());
    EXPECT_FALSE(checks->check(2)->isEnabled()) << "no beginning picture";
    EXPECT_FALSE(checks->check(3)->isEnabled()) << "the current picture's file is gone";
    for (int index = 4; index < 7; ++index)
        EXPECT_FALSE(checks->check(index)->isChecked()) << index;
    EXPECT_EQ(checks->check(6)->text(), "Print Border Lines");
    EXPECT_TRUE(QFile::exists(folder.filePath(QStringLiteral("Chartxxx.jpg"))));
    EXPECT_FALSE(act(*form, "mSave")->isEnabled());
}

TEST_F(WeightTrackerPlanTest, ThePrintFontComesFromAndGoesToItsSlots)
{
    ASSERT_TRUE(WriteSlotTagged(Settings::WeightTrackerPrintFontName, QStringLiteral("Courier New")));
    ASSERT_TRUE(WriteSlotTagged(Settings::WeightTrackerPrintFontSize, qint32(10)));
    auto form = openPat();
    run(*form, "mPrint");
    EXPECT_EQ(PrintFont().name, "Courier New");
    EXPECT_EQ(form->printPanel()->document().pages[0].findText(QStringLiteral("Pat Doe"))->font.name, "Courier New");
    PrintFont().size = 11.7;
    form->printPanel()->command(PrintOptionsPanel::kExitPrintOptions)->click();
    EXPECT_TRUE(form->printPanel()->isHidden());
    EXPECT_EQ(folder.bytesOf(QStringLiteral("GColor4.Fil")).mid(32 * 40, 6), QByteArray("\x03\x00\x0b\x00\x00\x00", 6));
    EXPECT_TRUE(act(*form, "mSave")->isEnabled());
}

TEST_F(WeightTrackerPlanTest, TheGuideLinesAreKeptInGColor3Slot80)
{
    ASSERT_TRUE(WriteSlotText(GColor3, 80, u"1"));
    auto form = openPat();
    run(*form, "mPrint");
    EXPECT_TRUE(form->printPanel()->preview()->guideLines());
    form->printPanel()->guideLineOptions()->option(0)->click();
    EXPECT_EQ(ReadSlotText(GColor3, 80), "0");
    EXPECT_EQ(folder.bytesOf(QStringLiteral("GColor3.Fil")).mid(79 * 20, 3), QByteArray("\1\0" "0", 3));
}

TEST_F(WeightTrackerPlanTest, ThePrintoutGoesToAPdf)
{
    auto form = openPat();
    run(*form, "mPrint");
    form->printOptions()->check(4)->setChecked(true);
    QTemporaryDir pdfFolder;
    const QString pdf = pdfFolder.filePath(QStringLiteral("tracker.pdf"));
    dialogs.expectPrint(pdf);
    form->printPanel()->command(PrintOptionsPanel::kPrint)->click();
    ASSERT_EQ(dialogs.printJobs().size(), 1);
    EXPECT_EQ(dialogs.printJobs()[0].title, "Pat Doe Weight Tracker");
    const QString text = PdfText(pdf);
    for (const char* part : {"Pat Doe", "Weight Tracker Printout", "Printed:", "Beginning Date: March 02, 2026",
                             "Exercise Plan and Information", "Types of Exercise:", "Weight Tracker Data",
                             "March 16, 2026", "207.", "Change from", "Last Entry"})
        EXPECT_TRUE(text.contains(QString::fromLatin1(part))) << part << "\n" << text.toStdString();
}

TEST_F(WeightTrackerPlanTest, AChartThatCannotBeWrittenStopsThePrintout)
{
    auto form = openPat();
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("Chartxxx.jpg")));
    dialogs.expectMessage(WriteFailedMessage(QStringLiteral("Chartxxx.jpg")).title,
                          WriteFailedMessage(QStringLiteral("Chartxxx.jpg")).text);
    run(*form, "mPrint");
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_TRUE(form->printPanel()->isHidden());
}
