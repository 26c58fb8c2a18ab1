// The panel colour of a screen: applied on load, chosen by "Panel C&olor",
// offered for storing when the screen closes.
#include "common/colors.h"
#include "common/widgets/qtcolors.h"
#include "shell/logic/processvalues.h"
#include "shell/kit/panelcolors.h"
#include "shell/kit/screenstatusbar.h"
#include "scripted_dialogs.h"
#include "temp_program_folder.h"
#include "raw_slots.h"

#include <QApplication>
#include <QFrame>
#include <QGroupBox>
#include <QRadioButton>
#include "common/writefailure.h"
#include <QDir>
#include <QFile>
#include <gtest/gtest.h>

namespace {

const char kQuestionTitle[] = "Panel Color";
const char kQuestionText[] = "Select New Color or Use System Default Color?\nYes = Color Selection Panel will appear.\n"
                             "No = Current System Default Color will be selected.";
const char kConflictTitle[] = "Color Conflict";
const char kConflictText[] = "Selected Color would cause a conflict with Text and Background Colors!";
const char kSaveTitle[] = "Color Changes";
const char kSaveText[] = "Save changes made to Panel Color?";
const char kAllTitle[] = "Complete Program Panel Color Update Option";
const char kAllText[] = "Save Panel Color Changes for ALL of the Program Functions?";

constexpr qint32 kGreen = 0x00FF00;
constexpr qint32 kSilver = 0xC0C0C0;
constexpr qint32 kTeal = 0x808000;

// A screen with two panels, one inside the other, and an option group.
struct TestScreen {
    QWidget window;
    QFrame* outer = new QFrame(&window);
    QFrame* inner = new QFrame(outer);
    QGroupBox* options = new QGroupBox(QStringLiteral("Options"), outer);
    QRadioButton* option = new QRadioButton(QStringLiteral("One"), options);
    ScreenStatusBar* statusBar = new ScreenStatusBar(&window);
};

class PanelColorsTest : public ::testing::Test {
protected:
    PanelColorsTest()
    {
        Process() = ProcessValues{};
        Process().LastPanelColor = QStringLiteral("Default");
    }

    // The colour panels of `screen` show, in COLORREF form.
    static qint32 Shown(const QWidget* panel) { return ColorrefFromColor(panel->palette().color(QPalette::Window)); }

    std::unique_ptr<PanelColors> colorsFor(TestScreen& screen, const SettingsSlot& slot = Settings::ShoplistPanelColor)
    {
        auto colors = std::make_unique<PanelColors>(dialogs, slot, screen.statusBar, nullptr);
        colors->addPanel(screen.outer);
        colors->addPanel(screen.inner);
        colors->addPanel(screen.options);
        return colors;
    }

    void expectAllPanels(TestScreen& screen, qint32 color)
    {
        for (QWidget* panel : {static_cast<QWidget*>(screen.outer), static_cast<QWidget*>(screen.inner),
                               static_cast<QWidget*>(screen.options)}) {
            EXPECT_EQ(Shown(panel), color) << panel->metaObject()->className();
            EXPECT_TRUE(panel->autoFillBackground());
        }
    }

    // Answers the first question with Yes and picks `color`.
    void pick(PanelColors& colors, qint32 color)
    {
        dialogs.expectMessage(kQuestionTitle, kQuestionText, Answer::Yes);
        dialogs.expectColor(color);
        colors.choosePanelColor();
    }

    TempProgramFolder folder;
    ScriptedDialogs dialogs;
};

qint32 SystemColor()
{
    return ColorrefFromColor(QApplication::palette("QLabel").color(QPalette::Window));
}

// Sets the application's panel colour for one test.
class SystemColorOverride {
public:
    explicit SystemColorOverride(qint32 color) : saved_(QApplication::palette())
    {
        QPalette palette = saved_;
        palette.setColor(QPalette::Window, ColorFromColorref(color));
        QApplication::setPalette(palette);
    }
    ~SystemColorOverride() { QApplication::setPalette(saved_); }

private:
    QPalette saved_;
};

} // namespace

TEST_F(PanelColorsTest, DefaultInTheSlotGivesTheSystemColour)
{
    WriteSlotText(GColor1, 27, u"Default");
    TestScreen screen;
    auto colors = colorsFor(screen);
    colors->applyStored();
    expectAllPanels(screen, ColorrefFromColor(PanelColors::systemColor()));
    EXPECT_EQ(PanelColors::systemColor(), QApplication::palette("QLabel").color(QPalette::Window));
    EXPECT_FALSE(colors->changed());
    EXPECT_FALSE(colors->isDefault());
}

TEST_F(PanelColorsTest, EmptySlotGivesTheSystemColour)
{
    TestScreen screen;
    auto colors = colorsFor(screen);
    colors->applyStored();
    expectAllPanels(screen, SystemColor());
}

TEST_F(PanelColorsTest, StoredNumberColoursEveryPanelAndTheNestedOnes)
{
    WriteSlotText(GColor1, 27, u"65280");
    TestScreen screen;
    // A nested panel that pinned a colour of its own still takes the panel colour.
    QPalette pinned = screen.inner->palette();
    pinned.setColor(QPalette::Window, Qt::magenta);
    screen.inner->setPalette(pinned);
    auto colors = colorsFor(screen);
    colors->applyStored();
    expectAllPanels(screen, kGreen);
    EXPECT_EQ(colors->color(), QColor(0, 255, 0));
}

TEST_F(PanelColorsTest, ApplyingTheStoredColourClearsTheChangedFlags)
{
    TestScreen screen;
    auto colors = colorsFor(screen);
    dialogs.expectMessage(kQuestionTitle, kQuestionText, Answer::No);
    colors->choosePanelColor();
    ASSERT_TRUE(colors->changed());
    ASSERT_TRUE(colors->isDefault());
    colors->applyStored();
    EXPECT_FALSE(colors->changed());
    EXPECT_FALSE(colors->isDefault());
}

TEST_F(PanelColorsTest, TheQuestionShowsItsTitleTextButtonsAndIconAndTheStatus)
{
    TestScreen screen;
    auto colors = colorsFor(screen);
    colors->applyStored();
    dialogs.expectMessage(kQuestionTitle, kQuestionText, Answer::Cancel);
    colors->choosePanelColor();
    EXPECT_EQ(screen.statusBar->activity(), "Panel Color");
    ASSERT_EQ(dialogs.messages().size(), 1);
    const Message& asked = dialogs.messages()[0];
    EXPECT_EQ(asked.buttons, Buttons::YesNoCancel);
    EXPECT_EQ(asked.icon, Icon::Information);
    EXPECT_EQ(asked.defaultButton, 1);
}

TEST_F(PanelColorsTest, CancelInTheQuestionChangesNothing)
{
    WriteSlotText(GColor1, 27, u"65280");
    TestScreen screen;
    auto colors = colorsFor(screen);
    colors->applyStored();
    dialogs.expectMessage(kQuestionTitle, kQuestionText, Answer::Cancel);
    colors->choosePanelColor();
    EXPECT_TRUE(dialogs.colorRequests().isEmpty());
    expectAllPanels(screen, kGreen);
    EXPECT_FALSE(colors->changed());
}

TEST_F(PanelColorsTest, YesOpensTheColourDialogOnTheCurrentColourAndPaints)
{
    WriteSlotText(GColor1, 27, u"65280");
    TestScreen screen;
    auto colors = colorsFor(screen);
    colors->applyStored();
    pick(*colors, kSilver);
    EXPECT_EQ(dialogs.colorRequests(), QList<qint32>({kGreen}));
    expectAllPanels(screen, kSilver);
    EXPECT_TRUE(colors->changed());
    EXPECT_FALSE(colors->isDefault());
    EXPECT_EQ(ReadSlotText(GColor1, 27), "65280") << "nothing is stored before the screen closes";
}

TEST_F(PanelColorsTest, CancelInTheColourDialogChangesNothing)
{
    WriteSlotText(GColor1, 27, u"65280");
    TestScreen screen;
    auto colors = colorsFor(screen);
    colors->applyStored();
    dialogs.expectMessage(kQuestionTitle, kQuestionText, Answer::Yes);
    dialogs.expectColor(std::nullopt);
    colors->choosePanelColor();
    expectAllPanels(screen, kGreen);
    EXPECT_FALSE(colors->changed());
    EXPECT_EQ(dialogs.messages().size(), 1) << "no conflict message after a cancel";
}

TEST_F(PanelColorsTest, NoTakesTheSystemColourAndMarksItDefault)
{
    WriteSlotText(GColor1, 27, u"65280");
    TestScreen screen;
    auto colors = colorsFor(screen);
    colors->applyStored();
    dialogs.expectMessage(kQuestionTitle, kQuestionText, Answer::No);
    colors->choosePanelColor();
    EXPECT_TRUE(dialogs.colorRequests().isEmpty());
    expectAllPanels(screen, SystemColor());
    EXPECT_TRUE(colors->changed());
    EXPECT_TRUE(colors->isDefault());
}

TEST_F(PanelColorsTest, ChoosingThePanelsOwnTextColourShowsColorConflictAndNothingChanges)
{
    WriteSlotText(GColor1, 27, u"65280");
    TestScreen screen;
    auto colors = colorsFor(screen);
    colors->applyStored();
    const qint32 text = ColorrefFromColor(screen.outer->palette().color(QPalette::WindowText));
    EXPECT_EQ(ColorrefFromColor(colors->textColor()), text);
    dialogs.expectMessage(kQuestionTitle, kQuestionText, Answer::Yes);
    dialogs.expectColor(text);
    dialogs.expectMessage(kConflictTitle, kConflictText);
    colors->choosePanelColor();
    ASSERT_EQ(dialogs.messages().size(), 2);
    EXPECT_EQ(dialogs.messages()[1].buttons, Buttons::Ok);
    EXPECT_EQ(dialogs.messages()[1].icon, Icon::Stop);
    expectAllPanels(screen, kGreen);
    EXPECT_FALSE(colors->changed());
    EXPECT_FALSE(colors->isDefault());
}

TEST_F(PanelColorsTest, TextColourOfThePanelsIsWhatTheirPaletteSays)
{
    TestScreen screen;
    QPalette palette = screen.outer->palette();
    palette.setColor(QPalette::WindowText, QColor(0x11, 0x22, 0x33));
    screen.outer->setPalette(palette);
    auto colors = colorsFor(screen);
    colors->applyStored();
    dialogs.expectMessage(kQuestionTitle, kQuestionText, Answer::Yes);
    dialogs.expectColor(0x332211);
    dialogs.expectMessage(kConflictTitle, kConflictText);
    colors->choosePanelColor();
    EXPECT_FALSE(colors->changed());
}

TEST_F(PanelColorsTest, NoWhileTheSystemColourIsPaletteColour9ShowsTheConflict)
{
    WriteSlotText(GColor1, 27, u"65280");
    TestScreen screen;
    auto colors = colorsFor(screen);
    colors->applyStored();
    SystemColorOverride lightBlue(QBColor(9));
    ASSERT_EQ(ColorrefFromColor(PanelColors::systemColor()), QBColor(9));
    dialogs.expectMessage(kQuestionTitle, kQuestionText, Answer::No);
    dialogs.expectMessage(kConflictTitle, kConflictText);
    colors->choosePanelColor();
    expectAllPanels(screen, kGreen);
    EXPECT_FALSE(colors->changed());
}

TEST_F(PanelColorsTest, BothBluesAndBothRedsOfThePaletteConflict)
{
    TestScreen screen;
    auto colors = colorsFor(screen);
    colors->applyStored();
    for (int index : {1, 9, 4, 12}) {
        SCOPED_TRACE(index);
        dialogs.expectMessage(kQuestionTitle, kQuestionText, Answer::Yes);
        dialogs.expectColor(QBColor(index));
        dialogs.expectMessage(kConflictTitle, kConflictText);
        colors->choosePanelColor();
        expectAllPanels(screen, SystemColor());
    }
    pick(*colors, QBColor(3));
    expectAllPanels(screen, QBColor(3));
}

TEST_F(PanelColorsTest, NoChangeAsksNothingOnClose)
{
    TestScreen screen;
    auto colors = colorsFor(screen);
    colors->applyStored();
    colors->offerToStoreOnClose();
    EXPECT_TRUE(dialogs.messages().isEmpty());
    EXPECT_EQ(folder.bytesOf("GColor1.Fil"), QByteArray());
}

TEST_F(PanelColorsTest, NoToSaveChangesLeavesTheSlotAndTheNextLoadShowsTheOldColour)
{
    WriteSlotText(GColor1, 27, u"65280");
    const QByteArray before = folder.bytesOf("GColor1.Fil");
    {
        TestScreen screen;
        auto colors = colorsFor(screen);
        colors->applyStored();
        pick(*colors, kSilver);
        dialogs.expectMessage(kSaveTitle, kSaveText, Answer::No);
        colors->offerToStoreOnClose();
        ASSERT_EQ(dialogs.messages().size(), 2);
        const Message& asked = dialogs.messages()[1];
        EXPECT_EQ(asked.buttons, Buttons::YesNo);
        EXPECT_EQ(asked.icon, Icon::Question);
        EXPECT_EQ(asked.defaultButton, 1);
    }
    EXPECT_EQ(folder.bytesOf("GColor1.Fil"), before);
    TestScreen next;
    auto colors = colorsFor(next);
    colors->applyStored();
    expectAllPanels(next, kGreen);
}

TEST_F(PanelColorsTest, YesStoresTheNumberAndOffersItToAllScreens)
{
    TestScreen screen;
    auto colors = colorsFor(screen);
    colors->applyStored();
    pick(*colors, kSilver);
    dialogs.expectMessage(kSaveTitle, kSaveText, Answer::Yes);
    dialogs.expectMessage(kAllTitle, kAllText, Answer::No);
    colors->offerToStoreOnClose();
    EXPECT_EQ(ReadSlotText(GColor1, 27), "12632256");
    ASSERT_EQ(dialogs.messages().size(), 3);
    const Message& offer = dialogs.messages()[2];
    EXPECT_EQ(offer.buttons, Buttons::YesNoCancel);
    EXPECT_EQ(offer.icon, Icon::Question);
    EXPECT_EQ(offer.defaultButton, 2) << "No is the default";
    EXPECT_EQ(Process().LastPanelColor, "Default");
    EXPECT_EQ(ReadSlotText(GColor1, 49), "") << "No writes no other screen";
    EXPECT_FALSE(colors->changed());
}

TEST_F(PanelColorsTest, StoringTheSameColourAsLastPanelColorAsksNoAllScreensQuestion)
{
    Process().LastPanelColor = QStringLiteral("12632256");
    TestScreen screen;
    auto colors = colorsFor(screen);
    colors->applyStored();
    pick(*colors, kSilver);
    dialogs.expectMessage(kSaveTitle, kSaveText, Answer::Yes);
    colors->offerToStoreOnClose();
    EXPECT_EQ(dialogs.messages().size(), 2);
    EXPECT_EQ(ReadSlotText(GColor1, 27), "12632256");
}

TEST_F(PanelColorsTest, TheSystemColourIsStoredAsDefaultAndDefaultIsNoNewColour)
{
    WriteSlotText(GColor1, 27, u"65280");
    TestScreen screen;
    auto colors = colorsFor(screen);
    colors->applyStored();
    dialogs.expectMessage(kQuestionTitle, kQuestionText, Answer::No);
    colors->choosePanelColor();
    dialogs.expectMessage(kSaveTitle, kSaveText, Answer::Yes);
    colors->offerToStoreOnClose(); // LastPanelColor is "Default" already
    EXPECT_EQ(ReadSlotText(GColor1, 27), "Default");
    EXPECT_EQ(dialogs.messages().size(), 2);
}

TEST_F(PanelColorsTest, CancelInTheAllScreensQuestionChangesOnlyTheScreensOwnSlot)
{
    TestScreen screen;
    auto colors = colorsFor(screen, Settings::Form5PanelColor);
    colors->applyStored();
    pick(*colors, kTeal);
    dialogs.expectMessage(kSaveTitle, kSaveText, Answer::Yes);
    dialogs.expectMessage(kAllTitle, kAllText, Answer::Cancel);
    colors->offerToStoreOnClose();
    QByteArray expected(25 * 20, '\0');
    expected.replace(24 * 20, 9, QByteArray("\x07\x00" "8421376", 9));
    EXPECT_EQ(folder.bytesOf("GColor2.Fil"), expected);
    EXPECT_EQ(folder.bytesOf("GColor1.Fil"), QByteArray());
    EXPECT_EQ(folder.bytesOf("GColor3.Fil"), QByteArray());
    EXPECT_EQ(Process().LastPanelColor, "Default");
}

TEST_F(PanelColorsTest, YesInTheAllScreensQuestionWritesEveryScreenAndRemembersTheColour)
{
    TestScreen screen;
    auto colors = colorsFor(screen, Settings::Form5PanelColor);
    colors->applyStored();
    pick(*colors, kTeal);
    dialogs.expectMessage(kSaveTitle, kSaveText, Answer::Yes);
    dialogs.expectMessage(kAllTitle, kAllText, Answer::Yes);
    colors->offerToStoreOnClose();
    EXPECT_EQ(Process().LastPanelColor, "8421376");
    for (const SettingsSlot& slot : {Settings::MainPanelColor, Settings::Form5PanelColor, Settings::FoodgPanelColor,
                                       Settings::ZcalandarPanelColor, Settings::ShoplistPanelColor, Settings::Form24PanelColor,
                                       Settings::WeightTrackerPanelColor})
        EXPECT_EQ(ReadSlotText(slot.file, slot.number), "8421376") << slot.file.name << " " << slot.number;
    EXPECT_EQ(ReadSlotText(GColor3, 105), "8421376");

    // A screen opened afterwards shows the new colour.
    TestScreen next;
    auto nextColors = colorsFor(next, Settings::ZcalandarPanelColor);
    nextColors->applyStored();
    expectAllPanels(next, kTeal);
}

TEST_F(PanelColorsTest, AColourThatCannotBeStoredIsSaid)
{
    TestScreen screen;
    auto colors = colorsFor(screen);
    colors->applyStored();
    pick(*colors, kSilver);
    QFile::remove(QStringLiteral("GColor1.Fil"));
    ASSERT_TRUE(QDir().mkdir(QStringLiteral("GColor1.Fil")));
    dialogs.expectMessage(kSaveTitle, kSaveText, Answer::Yes);
    const Message failed = WriteFailedMessage(QStringLiteral("GColor1.Fil"));
    dialogs.expectMessage(failed.title, failed.text);
    colors->offerToStoreOnClose();
    EXPECT_TRUE(dialogs.scriptDone()) << "no all-screens question after a failed store";
    EXPECT_TRUE(colors->changed());
}

TEST_F(PanelColorsTest, AnAllScreensUpdateStopsAtTheFileThatCannotBeWritten)
{
    Process().LastPanelColor = QStringLiteral("Default");
    TestScreen screen;
    auto colors = colorsFor(screen, Settings::Form5PanelColor);
    colors->applyStored();
    pick(*colors, kSilver);
    ASSERT_TRUE(QDir().mkdir(QStringLiteral("GColor3.Fil")));
    dialogs.expectMessage(kSaveTitle, kSaveText, Answer::Yes);
    dialogs.expectMessage(kAllTitle, kAllText, Answer::Yes);
    const Message failed = WriteFailedMessage(QStringLiteral("GColor3.Fil"));
    dialogs.expectMessage(failed.title, failed.text);
    colors->offerToStoreOnClose();
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(Process().LastPanelColor, "Default") << "the update did not hold";
    EXPECT_EQ(ReadSlotText(GColor2, 25), QString::number(kSilver)) << "the screen's own slot holds";
}
