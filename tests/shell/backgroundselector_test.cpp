// The main background: storing it, and the background selector of the main
// screen, driven offscreen with scripted dialogs.
#include "common/colors.h"
#include "common/dates.h"
#include "common/widgets/qtcolors.h"
#include "common/widgets/twips.h"
#include "shell/logic/background.h"
#include "shell/logic/processvalues.h"
#include "shell/settings/settingsslots.h"
#include "shell/screens/backgroundselector.h"
#include "shell/kit/helpwindow.h"
#include "shell/screens/screenmetrics.h"
#include "shell/kit/screenstatusbar.h"
#include "shell/screens/startfrm.h"
#include "scripted_dialogs.h"
#include "temp_program_folder.h"
#include "raw_slots.h"

#include <QAction>
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QSet>
#include <QTest>
#include <gtest/gtest.h>

namespace {

// GQORB1.Fil with slot 3 holding `value` (10-byte slots).
QByteArray BackgroundFile(const QByteArray& value)
{
    return QByteArray(20, '\0') + value.leftJustified(10, '\0');
}

class FixedScreen final : public ScreenMetrics {
public:
    QSize sizeTwips() const override { return {28800, 16200}; }
};

// Each delivered picture a plain colour of its own, so a thumbnail tells
// which file it shows.
QColor PictureColor(int number)
{
    return QColor::fromHsv((number * 22) % 360, 200, 220);
}

class BackgroundSelectorTest : public ::testing::Test {
protected:
    BackgroundSelectorTest()
    {
        Process() = ProcessValues{};
        Process().SplashShown = true;
        SetDateLocale(QLocale(QLocale::English, QLocale::UnitedStates));
        WriteSlotText(GColor3, 35, u"Yes");
        for (int number = 1; number <= 16; ++number) {
            QImage picture(64 + number, 48, QImage::Format_RGB32);
            picture.fill(PictureColor(number));
            EXPECT_TRUE(picture.save(folder.filePath(QStringLiteral("WP%1.jpg").arg(number))));
        }
    }
    ~BackgroundSelectorTest() override { SetDateLocale(QLocale()); }

    std::unique_ptr<Startfrm> openMainScreen()
    {
        auto form = std::make_unique<Startfrm>(dialogs, screen);
        form->show();
        return form;
    }
    static BackgroundSelector* selector(Startfrm& form) { return form.findChild<BackgroundSelector*>(); }
    static QPushButton* command(Startfrm& form, int index)
    {
        return form.findChild<QPushButton*>(QStringLiteral("Command2_%1").arg(index));
    }
    static void openSelector(Startfrm& form)
    {
        form.findChild<QAction*>("mBackground")->trigger();
        ASSERT_TRUE(selector(form)->isOpen());
    }
    static QColor windowColor(Startfrm& form) { return form.centralWidget()->palette().color(QPalette::Window); }
    static QLabel* image1(Startfrm& form) { return form.findChild<QLabel*>("Image1"); }
    static QString status(Startfrm& form) { return form.findChild<ScreenStatusBar*>()->activity(); }
    static QColor StandardColor() { return QApplication::palette("QLabel").color(QPalette::Window); }

    TempProgramFolder folder;
    ScriptedDialogs dialogs;
    FixedScreen screen;
};

// Keyboard shortcuts reach only the active window.
void ShowActive(QWidget& window)
{
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
}

} // namespace

TEST(StoreBackground, AColourIsStoredAsTheIntegerKind)
{
    TempProgramFolder folder;
    StoreBackground(Background::colorOf(0x00FF00));
    EXPECT_EQ(folder.bytesOf("GQORB1.Fil"), BackgroundFile(QByteArray("\x03\x00\x00\xFF\x00\x00", 6)));
    EXPECT_EQ(ReadStoredBackground(), Background::colorOf(0x00FF00));
}

TEST(StoreBackground, TheStandardColourIsStoredAsDef)
{
    TempProgramFolder folder;
    StoreBackground(Background::standard());
    EXPECT_EQ(folder.bytesOf("GQORB1.Fil"), BackgroundFile(QByteArray("\x08\x00\x03\x00" "Def", 7)));
    EXPECT_EQ(ReadStoredBackground().kind, Background::Kind::Standard);
}

TEST(StoreBackground, APictureIsStoredByItsName)
{
    TempProgramFolder folder;
    StoreBackground(Background::pictureOf(16));
    EXPECT_EQ(folder.bytesOf("GQORB1.Fil"), BackgroundFile(QByteArray("\x08\x00\x04\x00" "WP16", 8)));
    const Background read = ReadStoredBackground();
    EXPECT_EQ(read.kind, Background::Kind::Picture);
    EXPECT_EQ(read.pictureNumber(), 16);
    EXPECT_EQ(read.pictureFile(), "WP16.jpg");
}

TEST(StoreBackground, DefWithTrailingBlanksReadsAsTheStandardColour)
{
    TempProgramFolder folder;
    WriteSlotTagged(GQORB1, 3, QStringLiteral("Def   "));
    EXPECT_EQ(ReadStoredBackground().kind, Background::Kind::Standard);
}

TEST_F(BackgroundSelectorTest, DefWithTrailingBlanksInGQORB1Slot3GivesTheStandardColour)
{
    WriteSlotTagged(GQORB1, 3, QStringLiteral("Def   "));
    auto form = openMainScreen();
    EXPECT_EQ(windowColor(*form), StandardColor());
    EXPECT_FALSE(image1(*form)->isVisible());
}

TEST_F(BackgroundSelectorTest, TheStartClearsTheToolbarFlags)
{
    Process().TopToolbarFlag = kTopToolbarHidden;
    Process().SideToolbarsFlag = kSideToolbarsHidden;
    auto form = openMainScreen();
    EXPECT_EQ(Process().TopToolbarFlag, 0);
    EXPECT_EQ(Process().SideToolbarsFlag, 0);
}

TEST_F(BackgroundSelectorTest, TheEntryIsEnabledAndOpensThePanel)
{
    auto form = openMainScreen();
    QAction* entry = form->findChild<QAction*>("mBackground");
    ASSERT_NE(entry, nullptr);
    EXPECT_TRUE(entry->isEnabled());
    auto* panel = form->findChild<QFrame*>("Background Selector");
    ASSERT_NE(panel, nullptr);
    EXPECT_FALSE(panel->isVisible());
    entry->trigger();
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(panel->findChild<QLabel*>("BackgroundSelectorTitle")->text(), "Background Selector");
    const QStringList captions = {"&Select Color Background", "Use &Default Background", "Use &Above Background",
                                  "&Cancel"};
    for (int i = 0; i < captions.size(); ++i)
        EXPECT_EQ(command(*form, i)->text(), captions[i]);
    EXPECT_EQ(panel->palette().color(QPalette::Window), StandardColor()) << "the standard label's colour";
}

TEST_F(BackgroundSelectorTest, SixteenThumbnailsInFourRowsOfFourFromTheWPPictures)
{
    auto form = openMainScreen();
    openSelector(*form);
    BackgroundSelector* panel = selector(*form);
    QSet<int> columns, rows;
    for (int i = 0; i < 16; ++i) {
        SCOPED_TRACE(i);
        QLabel* thumbnail = panel->thumbnail(i);
        ASSERT_NE(thumbnail, nullptr);
        EXPECT_TRUE(thumbnail->isVisible());
        const QPixmap shown = thumbnail->pixmap();
        ASSERT_FALSE(shown.isNull());
        EXPECT_EQ(shown.size(), thumbnail->size()) << "stretched to the thumbnail";
        const QColor centre = shown.toImage().pixelColor(shown.width() / 2, shown.height() / 2);
        const QColor expected = PictureColor(i + 1);
        EXPECT_NEAR(centre.red(), expected.red(), 12);
        EXPECT_NEAR(centre.green(), expected.green(), 12);
        EXPECT_NEAR(centre.blue(), expected.blue(), 12);
        columns.insert(thumbnail->x());
        rows.insert(thumbnail->y());
        if (i % 4 > 0) {
            EXPECT_GT(thumbnail->x(), panel->thumbnail(i - 1)->x()) << "left to right";
        }
        if (i >= 4) {
            EXPECT_GT(thumbnail->y(), panel->thumbnail(i - 4)->y()) << "top to bottom";
        }
    }
    EXPECT_EQ(columns.size(), 4);
    EXPECT_EQ(rows.size(), 4);
    EXPECT_EQ(panel->thumbnail(16), nullptr);
}

TEST_F(BackgroundSelectorTest, AMissingPictureLeavesItsThumbnailEmpty)
{
    QFile::remove(folder.filePath("WP4.jpg"));
    auto form = openMainScreen();
    openSelector(*form);
    EXPECT_TRUE(selector(*form)->thumbnail(3)->pixmap().isNull());
    EXPECT_FALSE(selector(*form)->thumbnail(4)->pixmap().isNull());
}

TEST_F(BackgroundSelectorTest, TheStoredPictureIsFramed30TwipsOut)
{
    WriteSlotTagged(GQORB1, 3, QStringLiteral("WP7"));
    auto form = openMainScreen();
    openSelector(*form);
    BackgroundSelector* panel = selector(*form);
    QFrame* marker = panel->marker();
    ASSERT_TRUE(marker->isVisible());
    const QRect thumbnail = panel->thumbnail(6)->geometry();
    const int offset = TwipsToPixels(30, form.get());
    EXPECT_EQ(marker->x(), thumbnail.x() - offset);
    EXPECT_EQ(marker->y(), thumbnail.y() - offset);
    EXPECT_TRUE(marker->geometry().contains(thumbnail));
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(panel->thumbnail(i)->frameShape(), i == 6 ? QFrame::Box : QFrame::NoFrame) << i;
}

TEST_F(BackgroundSelectorTest, AColourBackgroundHasNoFrame)
{
    WriteSlotTagged(GQORB1, 3, qint32(0x0000FF));
    auto form = openMainScreen();
    openSelector(*form);
    EXPECT_FALSE(selector(*form)->marker()->isVisible());
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(selector(*form)->thumbnail(i)->frameShape(), QFrame::NoFrame) << i;
}

TEST_F(BackgroundSelectorTest, ThePanelIsCentred130TwipsAboveTheMiddle)
{
    auto form = openMainScreen();
    openSelector(*form);
    const QWidget* area = form->centralWidget();
    const BackgroundSelector* panel = selector(*form);
    EXPECT_EQ(panel->parentWidget(), area);
    EXPECT_EQ(panel->x(), area->width() / 2 - panel->width() / 2);
    EXPECT_EQ(panel->y(), area->height() / 2 - panel->height() / 2 - TwipsToPixels(130, form.get()));
    EXPECT_GE(panel->y(), 0) << "the panel fits the smallest window";
    EXPECT_LE(panel->geometry().right(), area->width());
}

TEST_F(BackgroundSelectorTest, ChoosingTheEntryWhileThePanelIsOpenClosesIt)
{
    auto form = openMainScreen();
    openSelector(*form);
    QTest::mouseClick(selector(*form)->thumbnail(5), Qt::LeftButton);
    ASSERT_TRUE(image1(*form)->isVisible());
    form->findChild<QAction*>("mBackground")->trigger();
    EXPECT_FALSE(selector(*form)->isOpen());
    EXPECT_FALSE(image1(*form)->isVisible()) << "a picture clicked but not kept gives way to the stored one";
    EXPECT_EQ(windowColor(*form), QColor(0, 0, 255));
    EXPECT_EQ(status(*form), "Main Menu");
    for (int i = 0; i < 16; ++i)
        EXPECT_TRUE(selector(*form)->thumbnail(i)->pixmap().isNull()) << "thumbnails freed";
    EXPECT_EQ(folder.bytesOf("GQORB1.Fil"), QByteArray()) << "nothing stored";
}

TEST_F(BackgroundSelectorTest, F1GivesTopic1001WhileThePanelIsOpen)
{
    auto form = openMainScreen();
    ShowActive(*form);
    openSelector(*form);
    QTest::keyClick(form.get(), Qt::Key_F1);
    HelpWindow* window = nullptr;
    for (QWidget* w : QApplication::topLevelWidgets())
        if (auto* h = qobject_cast<HelpWindow*>(w))
            window = h;
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->topic(), 1001);
    QTest::mouseClick(command(*form, 3), Qt::LeftButton);
    ShowActive(*form);
    QTest::keyClick(form.get(), Qt::Key_F1);
    EXPECT_EQ(window->topic(), 1000);
    window->close();
}

TEST_F(BackgroundSelectorTest, AThumbnailClickShowsThePictureAtOnceAndEnablesUseAbove)
{
    auto form = openMainScreen();
    openSelector(*form);
    EXPECT_FALSE(command(*form, 2)->isEnabled()) << "Use Above waits for a click";
    const QByteArray before = folder.bytesOf("GQORB1.Fil");
    QTest::mouseClick(selector(*form)->thumbnail(2), Qt::LeftButton);
    EXPECT_TRUE(command(*form, 2)->isEnabled());
    EXPECT_EQ(selector(*form)->choice(), "WP3");
    EXPECT_TRUE(image1(*form)->isVisible());
    EXPECT_EQ(image1(*form)->pixmap().size(), QSize(67, 48)) << "WP3.jpg itself";
    EXPECT_TRUE(selector(*form)->marker()->isVisible());
    EXPECT_TRUE(selector(*form)->marker()->geometry().contains(selector(*form)->thumbnail(2)->geometry()));
    QTest::mouseClick(selector(*form)->thumbnail(9), Qt::LeftButton);
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(selector(*form)->thumbnail(i)->frameShape(), i == 9 ? QFrame::Box : QFrame::NoFrame) << i;
    EXPECT_EQ(image1(*form)->pixmap().size(), QSize(74, 48));
    EXPECT_EQ(folder.bytesOf("GQORB1.Fil"), before) << "a click stores nothing";
}

TEST_F(BackgroundSelectorTest, UseAboveBackgroundStoresThePictureName)
{
    auto form = openMainScreen();
    openSelector(*form);
    QTest::mouseClick(selector(*form)->thumbnail(11), Qt::LeftButton);
    QTest::mouseClick(command(*form, 2), Qt::LeftButton);
    EXPECT_EQ(folder.bytesOf("GQORB1.Fil"), BackgroundFile(QByteArray("\x08\x00\x04\x00" "WP12", 8)));
    EXPECT_FALSE(selector(*form)->isOpen());
    EXPECT_TRUE(selector(*form)->thumbnail(11)->pixmap().isNull()) << "thumbnails freed";
    EXPECT_EQ(status(*form), "Main Menu");
    EXPECT_TRUE(image1(*form)->isVisible());
    EXPECT_EQ(image1(*form)->pixmap().size(), QSize(76, 48));

    openSelector(*form);
    EXPECT_TRUE(selector(*form)->marker()->isVisible()) << "the new picture is the current one";
    EXPECT_EQ(selector(*form)->thumbnail(11)->frameShape(), QFrame::Box);
}

TEST_F(BackgroundSelectorTest, UseDefaultBackgroundStoresDefAndShowsTheStandardColour)
{
    WriteSlotTagged(GQORB1, 3, QStringLiteral("WP5"));
    auto form = openMainScreen();
    ASSERT_TRUE(image1(*form)->isVisible());
    openSelector(*form);
    QTest::mouseClick(command(*form, 1), Qt::LeftButton);
    EXPECT_EQ(folder.bytesOf("GQORB1.Fil"), BackgroundFile(QByteArray("\x08\x00\x03\x00" "Def", 7)));
    EXPECT_FALSE(image1(*form)->isVisible());
    EXPECT_EQ(windowColor(*form), StandardColor());
    EXPECT_FALSE(selector(*form)->isOpen());
    EXPECT_EQ(status(*form), "Main Menu");
}

TEST_F(BackgroundSelectorTest, SelectColorBackgroundOpensOnTheCurrentColourAndStoresTheNumber)
{
    WriteSlotTagged(GQORB1, 3, qint32(0x0000FF));
    auto form = openMainScreen();
    openSelector(*form);
    dialogs.expectColor(0x00FF00);
    QTest::mouseClick(command(*form, 0), Qt::LeftButton);
    EXPECT_EQ(dialogs.colorRequests(), QList<qint32>({0x0000FF}));
    EXPECT_EQ(folder.bytesOf("GQORB1.Fil"), BackgroundFile(QByteArray("\x03\x00\x00\xFF\x00\x00", 6)));
    EXPECT_EQ(windowColor(*form), QColor(0, 255, 0));
    EXPECT_FALSE(selector(*form)->isOpen());
    EXPECT_EQ(status(*form), "Main Menu");
}

TEST_F(BackgroundSelectorTest, SelectColorBackgroundStartsOnTheStandardColourAfterDefault)
{
    WriteSlotTagged(GQORB1, 3, QStringLiteral("Def"));
    auto form = openMainScreen();
    openSelector(*form);
    dialogs.expectColor(std::nullopt);
    QTest::mouseClick(command(*form, 0), Qt::LeftButton);
    EXPECT_EQ(dialogs.colorRequests(), QList<qint32>({ColorrefFromColor(StandardColor())}));
}

TEST_F(BackgroundSelectorTest, SelectColorBackgroundStartsOnPaletteColour9WhenAPictureIsInUse)
{
    WriteSlotTagged(GQORB1, 3, QStringLiteral("WP5"));
    auto form = openMainScreen();
    openSelector(*form);
    dialogs.expectColor(0x808080);
    QTest::mouseClick(command(*form, 0), Qt::LeftButton);
    EXPECT_EQ(dialogs.colorRequests(), QList<qint32>({QBColor(9)}));
    EXPECT_FALSE(image1(*form)->isVisible()) << "the picture gives way to the colour";
    EXPECT_EQ(windowColor(*form), QColor(128, 128, 128));
    EXPECT_EQ(folder.bytesOf("GQORB1.Fil"), BackgroundFile(QByteArray("\x03\x00\x80\x80\x80\x00", 6)));
}

TEST_F(BackgroundSelectorTest, SelectColorBackgroundAfterAThumbnailClickStartsOnPaletteColour9)
{
    auto form = openMainScreen();
    openSelector(*form);
    QTest::mouseClick(selector(*form)->thumbnail(0), Qt::LeftButton);
    dialogs.expectColor(std::nullopt);
    QTest::mouseClick(command(*form, 0), Qt::LeftButton);
    EXPECT_EQ(dialogs.colorRequests(), QList<qint32>({QBColor(9)}));
    EXPECT_FALSE(image1(*form)->isVisible()) << "the old background, blue, is back";
    EXPECT_EQ(windowColor(*form), QColor(0, 0, 255));
}

TEST_F(BackgroundSelectorTest, CancelInTheColourDialogShowsTheOldBackgroundAndStoresNothing)
{
    WriteSlotTagged(GQORB1, 3, QStringLiteral("WP5"));
    const QByteArray before = folder.bytesOf("GQORB1.Fil");
    auto form = openMainScreen();
    openSelector(*form);
    dialogs.expectColor(std::nullopt);
    QTest::mouseClick(command(*form, 0), Qt::LeftButton);
    EXPECT_EQ(folder.bytesOf("GQORB1.Fil"), before);
    EXPECT_TRUE(image1(*form)->isVisible());
    EXPECT_EQ(image1(*form)->pixmap().size(), QSize(69, 48)) << "WP5.jpg again";
    EXPECT_FALSE(selector(*form)->isOpen());
    EXPECT_EQ(status(*form), "Main Menu");
}

TEST_F(BackgroundSelectorTest, CancelShowsTheStoredBackgroundAgain)
{
    WriteSlotTagged(GQORB1, 3, qint32(0x0000FF));
    const QByteArray before = folder.bytesOf("GQORB1.Fil");
    auto form = openMainScreen();
    openSelector(*form);
    QTest::mouseClick(selector(*form)->thumbnail(4), Qt::LeftButton);
    ASSERT_TRUE(image1(*form)->isVisible());
    QTest::mouseClick(command(*form, 3), Qt::LeftButton);
    EXPECT_FALSE(image1(*form)->isVisible());
    EXPECT_EQ(windowColor(*form), QColor(255, 0, 0));
    EXPECT_EQ(folder.bytesOf("GQORB1.Fil"), before);
    EXPECT_FALSE(selector(*form)->isOpen());
    EXPECT_TRUE(selector(*form)->thumbnail(4)->pixmap().isNull());
    EXPECT_EQ(status(*form), "Main Menu");
}

TEST_F(BackgroundSelectorTest, CancelWithAPictureInUseShowsThatPictureAgain)
{
    WriteSlotTagged(GQORB1, 3, QStringLiteral("WP2"));
    auto form = openMainScreen();
    openSelector(*form);
    QTest::mouseClick(selector(*form)->thumbnail(13), Qt::LeftButton);
    QTest::mouseClick(command(*form, 3), Qt::LeftButton);
    EXPECT_TRUE(image1(*form)->isVisible());
    EXPECT_EQ(image1(*form)->pixmap().size(), QSize(66, 48));
}

TEST_F(BackgroundSelectorTest, UseAboveIsDisabledAgainWhenThePanelReopens)
{
    auto form = openMainScreen();
    openSelector(*form);
    QTest::mouseClick(selector(*form)->thumbnail(1), Qt::LeftButton);
    QTest::mouseClick(command(*form, 3), Qt::LeftButton);
    openSelector(*form);
    EXPECT_FALSE(command(*form, 2)->isEnabled());
}

TEST_F(BackgroundSelectorTest, AScreensOwnStoreKeepsTheChoiceAndTheMainBackgroundStaysAsItWas)
{
    QWidget area;
    area.resize(1400, 1000);
    area.show();
    BackgroundSelector panel(dialogs, &area);
    QList<Background> stored;
    panel.setStore([&stored](const Background& chosen) { stored.append(chosen); });
    panel.toggle(Background::colorOf(255));
    QTest::mouseClick(panel.thumbnail(3), Qt::LeftButton);
    panel.findChild<QPushButton*>("Command2_2")->click();
    panel.toggle(Background::pictureOf(4));
    panel.findChild<QPushButton*>("Command2_1")->click();
    ASSERT_EQ(stored.size(), 2);
    EXPECT_EQ(stored[0], Background::pictureOf(4));
    EXPECT_EQ(stored[1], Background::standard());
    EXPECT_TRUE(folder.bytesOf("GQORB1.Fil").isEmpty()) << "the main background is not touched";
}
