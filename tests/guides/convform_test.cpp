// The measurement guide driven offscreen with scripted dialogs: single and
// multiple entry, the boxes' rewrites, the rounding menu, the groups and
// labels.
#include "guides/screens/convform.h"
#include "shell/logic/processvalues.h"
#include "shell/settings/settingsslots.h"
#include "command_doors.h"
#include "scripted_dialogs.h"
#include "temp_program_folder.h"

#include "common/widgets/twips.h"
#include "raw_slots.h"

#include <QAction>
#include <QApplication>
#include <QFocusEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTableWidget>
#include <QTest>
#include <gtest/gtest.h>
#include <memory>

namespace {

class ConvformTest : public ::testing::Test {
protected:
    ConvformTest() { Process() = ProcessValues{}; }

    std::unique_ptr<Convform> open()
    {
        auto form = std::make_unique<Convform>(dialogs);
        form->setAttribute(Qt::WA_DeleteOnClose, false);
        form->resize(1200, 860);
        form->show();
        return form;
    }

    template <typename T>
    T* child(Convform& form, const char* name)
    {
        T* found = form.findChild<T*>(QString::fromLatin1(name));
        EXPECT_NE(found, nullptr) << name;
        return found;
    }
    QLineEdit* text1(Convform& form) { return child<QLineEdit>(form, "Text1"); }
    QLineEdit* text2(Convform& form) { return child<QLineEdit>(form, "Text2"); }
    QLabel* label(Convform& form, const char* name) { return child<QLabel>(form, name); }
    QTableWidget* grid(Convform& form) { return child<QTableWidget>(form, "Grid1"); }
    QAction* act(Convform& form, const char* name) { return child<QAction>(form, name); }

    // The user clicks into a box and types.
    void type(QLineEdit* box, const QString& text)
    {
        QFocusEvent focusIn(QEvent::FocusIn, Qt::MouseFocusReason);
        QApplication::sendEvent(box, &focusIn);
        box->clear();
        QTest::keyClicks(box, text);
    }
    void choose(Convform& form, int option)
    {
        child<QRadioButton>(form, QStringLiteral("Option1_%1").arg(option).toLatin1().constData())->click();
    }
    QList<QStringList> gridCells(Convform& form)
    {
        QList<QStringList> cells;
        QTableWidget* table = grid(form);
        for (int row = 0; row < table->rowCount(); ++row)
            cells.append({table->item(row, 0)->text(), table->item(row, 1)->text()});
        return cells;
    }

    TempProgramFolder folder;
    ScriptedDialogs dialogs;
};

TEST_F(ConvformTest, OpensCaptionedInSingleEntryWithoutResult)
{
    auto form = open();
    EXPECT_EQ(form->objectName(), u"Convform");
    EXPECT_EQ(form->windowTitle(), u"Food Measurement Guide");
    EXPECT_EQ(form->statusBar()->findChild<QLabel*>()->text(), u"Food Measurement Guide");
    EXPECT_FALSE(form->multipleEntry());
    EXPECT_EQ(form->roundMode(), RoundMode::None);
    EXPECT_EQ(form->chosenOption(), kNoOption);
    EXPECT_EQ(label(*form, "Text1Caption")->text(), u"Conversion Amount:");
    EXPECT_TRUE(text1(*form)->isVisible());
    EXPECT_FALSE(text2(*form)->isVisible());
    EXPECT_FALSE(label(*form, "Text2Caption")->isVisible());
    EXPECT_FALSE(label(*form, "Panel3D1")->isVisible());
    EXPECT_FALSE(label(*form, "Label1")->isVisible());
    EXPECT_FALSE(label(*form, "Label2")->isVisible());
    EXPECT_FALSE(grid(*form)->isVisible());
    EXPECT_TRUE(act(*form, "mSingleEntry")->isChecked());
    EXPECT_TRUE(act(*form, "mRound1")->isChecked());
}

TEST_F(ConvformTest, FiveFramesHoldTheFortyThreeOptionButtons)
{
    auto form = open();
    const char* frames[][2] = {{"Frame1", "Can Sizes"},
                               {"Frame2", "Weights and Measures"},
                               {"Frame3", "Temperature"},
                               {"Frame4", "Easy Equivalents"},
                               {"Frame5", "How Much = How Many"}};
    int buttons = 0;
    for (const auto& frame : frames) {
        auto* box = child<QGroupBox>(*form, frame[0]);
        EXPECT_EQ(box->title(), QString::fromLatin1(frame[1]));
        buttons += int(box->findChildren<QRadioButton*>().size());
    }
    EXPECT_EQ(buttons, 43);
    EXPECT_EQ(form->findChildren<QRadioButton*>().size(), 43);
    EXPECT_EQ(child<QRadioButton>(*form, "Option1_0")->text(), u"8 oz. to Cups");
    EXPECT_EQ(child<QRadioButton>(*form, "Option1_18")->text(), u"Celcius to Fahreheit");
    EXPECT_EQ(child<QRadioButton>(*form, "Option1_34")->text(), u"Grated Peel of Oranges to Teaspoons (approx.)");
    EXPECT_EQ(child<QRadioButton>(*form, "Option1_51")->text(), u"Egg Whites to Cups");
    EXPECT_EQ(child<QRadioButton>(*form, "Option1_18")->parentWidget()->objectName(), u"Frame3");
    for (const char* gap : {"Option1_6", "Option1_7", "Option1_39", "Option1_40", "Option1_42", "Option1_43",
                            "Option1_46", "Option1_47", "Option1_48"})
        EXPECT_EQ(form->findChild<QRadioButton*>(QString::fromLatin1(gap)), nullptr) << gap;
}

TEST_F(ConvformTest, SingleEntryShowsResultBetweenTheUnitLabels)
{
    auto form = open();
    type(text1(*form), QStringLiteral("1"));
    choose(*form, 10);
    EXPECT_EQ(form->chosenOption(), 10);
    EXPECT_EQ(label(*form, "Panel3D1")->text(), u".0625");
    EXPECT_EQ(label(*form, "Label1")->text(), u"Tablespoon = ");
    EXPECT_EQ(label(*form, "Label2")->text(), u"Cups");
    EXPECT_TRUE(label(*form, "Panel3D1")->isVisible());
    EXPECT_TRUE(label(*form, "Label1")->isVisible());
    EXPECT_TRUE(label(*form, "Label2")->isVisible());
    EXPECT_EQ(text1(*form)->text(), u"1");
}

TEST_F(ConvformTest, TheToUnitFollowsTheResultPanelBySeventyTwips)
{
    auto form = open();
    type(text1(*form), QStringLiteral("123456"));
    choose(*form, 41);
    QApplication::processEvents();
    const QLabel* panel = label(*form, "Panel3D1");
    const QLabel* to = label(*form, "Label2");
    const QLabel* from = label(*form, "Label1");
    EXPECT_EQ(panel->text(), u"3,499,918.711488");
    EXPECT_EQ(to->geometry().left(), panel->geometry().right() + 1 + TwipsToPixels(70, panel));
    EXPECT_EQ(from->geometry().right() + 1, panel->geometry().left());
    EXPECT_GE(panel->width(), panel->sizeHint().width());
    EXPECT_GT(from->geometry().left(), text1(*form)->geometry().right());
}

TEST_F(ConvformTest, ATouchedBoxIsRewrittenWithThousandsSeparators)
{
    auto form = open();
    type(text1(*form), QStringLiteral("1250"));
    choose(*form, 12);
    EXPECT_EQ(text1(*form)->text(), u"1,250");
    EXPECT_EQ(label(*form, "Panel3D1")->text(), u"10,000");
    EXPECT_EQ(label(*form, "Label1")->text(), u"Cups = ");

    type(text1(*form), QStringLiteral("2.50"));
    choose(*form, 12);
    EXPECT_EQ(text1(*form)->text(), u"2.5");
    EXPECT_EQ(label(*form, "Panel3D1")->text(), u"20");
}

// The box is read by its numeric front: a rewritten "1,250" that is not
// typed again reads as 1 for the next option.
TEST_F(ConvformTest, AnUntouchedRewrittenBoxReadsItsNumericFront)
{
    auto form = open();
    type(text1(*form), QStringLiteral("1250"));
    choose(*form, 12);
    choose(*form, 11);
    EXPECT_EQ(form->entryValue(), 1);
    EXPECT_EQ(text1(*form)->text(), u"1,250");
    EXPECT_EQ(label(*form, "Panel3D1")->text(), u"16");
    EXPECT_EQ(label(*form, "Label1")->text(), u"Cup = ");
}

TEST_F(ConvformTest, EmptyOrZeroBecomesOneExceptForTemperatures)
{
    auto form = open();
    type(text1(*form), QString());
    choose(*form, 12);
    EXPECT_EQ(text1(*form)->text(), u"1");
    EXPECT_EQ(label(*form, "Panel3D1")->text(), u"8");

    type(text1(*form), QStringLiteral("0"));
    choose(*form, 18);
    EXPECT_EQ(text1(*form)->text(), u"0");
    EXPECT_EQ(label(*form, "Panel3D1")->text(), u"32");
    EXPECT_EQ(label(*form, "Label1")->text(), u"Degrees Celcius = ");
    EXPECT_EQ(label(*form, "Label2")->text(), u"Degrees Fahrenheit");

    type(text1(*form), QStringLiteral("-40"));
    choose(*form, 18);
    EXPECT_EQ(text1(*form)->text(), u"1");
    EXPECT_EQ(label(*form, "Panel3D1")->text(), u"33.8");

    type(text1(*form), QStringLiteral("212"));
    choose(*form, 19);
    EXPECT_EQ(label(*form, "Panel3D1")->text(), u"100");
}

TEST_F(ConvformTest, EnteringTheBoxForgetsTheOptionAndHidesTheResult)
{
    auto form = open();
    type(text1(*form), QStringLiteral("3"));
    choose(*form, 9);
    EXPECT_TRUE(child<QRadioButton>(*form, "Option1_9")->isChecked());
    EXPECT_EQ(label(*form, "Panel3D1")->text(), u"9");

    type(text1(*form), QStringLiteral("4"));
    EXPECT_EQ(form->chosenOption(), kNoOption);
    EXPECT_FALSE(child<QRadioButton>(*form, "Option1_9")->isChecked());
    EXPECT_FALSE(label(*form, "Panel3D1")->isVisible());
    EXPECT_FALSE(label(*form, "Label1")->isVisible());
    choose(*form, 9);
    EXPECT_EQ(label(*form, "Panel3D1")->text(), u"12");
    EXPECT_TRUE(label(*form, "Panel3D1")->isVisible());
}

TEST_F(ConvformTest, RoundingMenuRerunsTheConversion)
{
    auto form = open();
    type(text1(*form), QStringLiteral("7.3"));
    choose(*form, 8);
    EXPECT_EQ(label(*form, "Panel3D1")->text(), u"2.43382");
    act(*form, "mRound4")->trigger();
    EXPECT_EQ(form->roundMode(), RoundMode::Hundredth);
    EXPECT_TRUE(act(*form, "mRound4")->isChecked());
    EXPECT_FALSE(act(*form, "mRound1")->isChecked());
    EXPECT_EQ(label(*form, "Panel3D1")->text(), u"2.43");
    act(*form, "mRound2")->trigger();
    EXPECT_EQ(label(*form, "Panel3D1")->text(), u"2");
    act(*form, "mRound3")->trigger();
    EXPECT_EQ(label(*form, "Panel3D1")->text(), u"2.4");
    act(*form, "mRound5")->trigger();
    EXPECT_EQ(label(*form, "Panel3D1")->text(), u"2.434");
    act(*form, "mRound1")->trigger();
    EXPECT_EQ(label(*form, "Panel3D1")->text(), u"2.43382");
}

TEST_F(ConvformTest, RoundingMenuCaptions)
{
    auto form = open();
    auto* menu = child<QMenu>(*form, "mRoundOff");
    EXPECT_EQ(menu->title(), u"&Round Off Number");
    QStringList captions;
    for (QAction* entry : menu->actions())
        captions.append(entry->text());
    EXPECT_EQ(captions, (QStringList{"&No Rounding", "&Whole Number", "&1/10th", "1/100&th", "1/1000t&h"}));
    EXPECT_EQ(act(*form, "mSingleEntry")->text(), u"&Single Entry");
    EXPECT_EQ(act(*form, "mMultipleEntry")->text(), u"&Multiple Entry");
    EXPECT_EQ(act(*form, "mExit")->text(), u"E&xit");
    EXPECT_EQ(act(*form, "mPanelColor")->text(), u"Panel C&olor");
    EXPECT_EQ(act(*form, "mHelp")->shortcut(), QKeySequence(Qt::Key_F1));
    EXPECT_EQ(child<QPushButton>(*form, "Command1")->text(), u"&Close");
}

TEST_F(ConvformTest, RoundingWithoutAChosenOptionConvertsNothing)
{
    auto form = open();
    type(text1(*form), QStringLiteral("5"));
    act(*form, "mRound2")->trigger();
    EXPECT_EQ(form->chosenOption(), kNoOption);
    EXPECT_FALSE(label(*form, "Panel3D1")->isVisible());
    EXPECT_EQ(text1(*form)->text(), u"5");
}

TEST_F(ConvformTest, EnterInTheBoxTellsHowToGoOn)
{
    auto form = open();
    dialogs.expectMessage("Input Information", "After entering data, select action desired\nfrom displayed option buttons.");
    type(text1(*form), QStringLiteral("2"));
    QTest::keyClick(text1(*form), Qt::Key_Return);
    ASSERT_EQ(dialogs.messages().size(), 1);
    EXPECT_EQ(dialogs.messages().first().icon, Icon::Information);
    EXPECT_EQ(dialogs.messages().first().buttons, Buttons::Ok);
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_EQ(form->chosenOption(), kNoOption);
}

TEST_F(ConvformTest, MultipleEntryShowsTheSecondBoxAndTheGrid)
{
    auto form = open();
    type(text1(*form), QStringLiteral("3"));
    choose(*form, 12);
    act(*form, "mMultipleEntry")->trigger();
    EXPECT_TRUE(form->multipleEntry());
    EXPECT_TRUE(act(*form, "mMultipleEntry")->isChecked());
    EXPECT_EQ(label(*form, "Text1Caption")->text(), u"Beginning Entry:");
    EXPECT_EQ(label(*form, "Text2Caption")->text(), u"Ending Amount:");
    EXPECT_TRUE(text2(*form)->isVisible());
    EXPECT_TRUE(grid(*form)->isVisible());
    EXPECT_FALSE(label(*form, "Panel3D1")->isVisible());
    EXPECT_TRUE(text1(*form)->text().isEmpty());
    EXPECT_TRUE(label(*form, "Label1")->text().isEmpty());
    EXPECT_EQ(form->chosenOption(), kNoOption);
    EXPECT_EQ(label(*form, "Label3")->text(),
              u"   Amount Converted                 =                Converted Amount    ");
}

TEST_F(ConvformTest, MultipleEntryFromFiveToTwoRunsTwoToFive)
{
    auto form = open();
    act(*form, "mMultipleEntry")->trigger();
    type(text1(*form), QStringLiteral("5"));
    type(text2(*form), QStringLiteral("2"));
    choose(*form, 12);
    EXPECT_EQ(gridCells(*form), (QList<QStringList>{{"2", "16."}, {"3", "24."}, {"4", "32."}, {"5", "40."}}));
    EXPECT_EQ(text1(*form)->text(), u"5");
    EXPECT_EQ(text2(*form)->text(), u"2");
    EXPECT_EQ(label(*form, "Label1")->text(), u"Cups = ");
    EXPECT_EQ(label(*form, "Label2")->text(), u"Ounces");
    EXPECT_TRUE(label(*form, "Label1")->isVisible());
    // The unit labels stand over the grid, centred on its panel.
    const QWidget* panel = grid(*form)->parentWidget();
    EXPECT_EQ(label(*form, "Label1")->parentWidget(), panel);
    const int middle = (label(*form, "Label1")->geometry().left() + label(*form, "Label2")->geometry().right()) / 2;
    EXPECT_NEAR(middle, panel->width() / 2, 4);

    act(*form, "mRound2")->trigger();
    EXPECT_EQ(gridCells(*form), (QList<QStringList>{{"2", "16"}, {"3", "24"}, {"4", "32"}, {"5", "40"}}));
}

TEST_F(ConvformTest, MultipleEntryFromOneToFiveThousandEndsAtOneThousand)
{
    auto form = open();
    act(*form, "mMultipleEntry")->trigger();
    type(text1(*form), QStringLiteral("1"));
    type(text2(*form), QStringLiteral("5000"));
    choose(*form, 0);
    EXPECT_EQ(text2(*form)->text(), u"1000");
    EXPECT_EQ(grid(*form)->rowCount(), 1000);
    EXPECT_EQ(gridCells(*form).last(), (QStringList{"1,000", "1,000."}));
}

TEST_F(ConvformTest, MultipleEntryWithoutEndingRunsTwoRows)
{
    auto form = open();
    act(*form, "mMultipleEntry")->trigger();
    type(text1(*form), QString());
    choose(*form, 19);
    EXPECT_EQ(text1(*form)->text(), u"0");
    EXPECT_EQ(text2(*form)->text(), u"1");
    EXPECT_EQ(gridCells(*form), (QList<QStringList>{{"0", "-17.7777777777778"}, {"1", "-17.2222222222222"}}));
}

TEST_F(ConvformTest, BackToSingleEntryClearsBoxesAndHidesTheGrid)
{
    auto form = open();
    act(*form, "mMultipleEntry")->trigger();
    type(text1(*form), QStringLiteral("1"));
    type(text2(*form), QStringLiteral("3"));
    choose(*form, 13);
    act(*form, "mSingleEntry")->trigger();
    EXPECT_FALSE(form->multipleEntry());
    EXPECT_EQ(label(*form, "Text1Caption")->text(), u"Conversion Amount:");
    EXPECT_TRUE(text1(*form)->text().isEmpty());
    EXPECT_TRUE(text2(*form)->text().isEmpty());
    EXPECT_FALSE(text2(*form)->isVisible());
    EXPECT_FALSE(grid(*form)->isVisible());
    EXPECT_FALSE(label(*form, "Label1")->isVisible());
    EXPECT_TRUE(label(*form, "Label1")->text().isEmpty());
    type(text1(*form), QStringLiteral("8"));
    choose(*form, 13);
    EXPECT_EQ(label(*form, "Panel3D1")->text(), u"1");
    EXPECT_EQ(label(*form, "Label2")->text(), u"Cup");
    EXPECT_EQ(label(*form, "Label1")->parentWidget()->objectName(), u"SSPanel1");
}

TEST_F(ConvformTest, MenuTitlesLeaveTheButtonLettersAlone)
{
    auto form = open();
    QStringList menuLetters;
    for (QAction* title : form->menuBar()->actions()) {
        const QString text = title->text();
        const qsizetype amp = text.indexOf(u'&');
        ASSERT_GE(amp, 0) << text.toStdString();
        menuLetters.append(text.mid(amp + 1, 1).toLower());
    }
    EXPECT_EQ(menuLetters, (QStringList{"o", "h"}));
    for (QPushButton* button : form->findChildren<QPushButton*>()) {
        const QString text = button->text();
        const qsizetype amp = text.indexOf(u'&');
        if (amp >= 0) {
            EXPECT_FALSE(menuLetters.contains(text.mid(amp + 1, 1).toLower())) << text.toStdString();
        }
    }
}

TEST_F(ConvformTest, StoredPanelColourColoursTheFrames)
{
    WriteSlotText(GColor1, 49, u"255");
    auto form = open();
    EXPECT_EQ(child<QGroupBox>(*form, "Frame2")->palette().color(QPalette::Window), QColor(255, 0, 0));
    EXPECT_EQ(child<QFrame>(*form, "SSPanel1")->palette().color(QPalette::Window), QColor(255, 0, 0));
}

TEST_F(ConvformTest, CloseLeavesWithoutAQuestion)
{
    auto form = open();
    QSignalSpy closed(form.get(), &Convform::closed);
    child<QPushButton>(*form, "Command1")->click();
    EXPECT_EQ(closed.count(), 1);
    EXPECT_TRUE(dialogs.messages().isEmpty());
    EXPECT_FALSE(form->isVisible());
}

TEST_F(ConvformTest, ChangedPanelColourIsOfferedOnExit)
{
    auto form = open();
    dialogs.expectMessage("Panel Color",
                          "Select New Color or Use System Default Color?\nYes = Color Selection Panel will appear.\n"
                          "No = Current System Default Color will be selected.",
                          Answer::Yes);
    dialogs.expectColor(0x00C0FFC0);
    dialogs.expectMessage("Color Changes", "Save changes made to Panel Color?", Answer::No);
    act(*form, "mPanelColor")->trigger();
    act(*form, "mExit")->trigger();
    EXPECT_TRUE(dialogs.scriptDone());
    EXPECT_TRUE(ReadSlotText(GColor1, 49).trimmed().isEmpty());
}

} // namespace

TEST_F(ConvformTest, EveryCommandHasItsCaptionsAndDoors)
{
    auto form = open();
    ExpectDoors(*form, {
        {"mSingleEntry", "&Single Entry", "", true},
        {"mMultipleEntry", "&Multiple Entry", "", true},
        {"mRound1", RoundModeCaption(RoundMode::None), "", false},
        {"mRound5", RoundModeCaption(RoundMode::Thousandth), "", false},
        {"mPanelColor", "Panel C&olor", "", true},
        {"mExit", "E&xit", "&Close", true},
        {"mHelp", "Measurement Guide &Help", "", true},
    });
    EXPECT_NE(form->findChild<QPushButton*>("Command1"), nullptr) << "the one button is named whole";
}

TEST_F(ConvformTest, EntryModesAndRoundingAreEachOneTick)
{
    auto form = open();
    EXPECT_TRUE(act(*form, "mSingleEntry")->isChecked());
    act(*form, "mMultipleEntry")->trigger();
    EXPECT_TRUE(act(*form, "mMultipleEntry")->isChecked());
    EXPECT_FALSE(act(*form, "mSingleEntry")->isChecked());
    EXPECT_TRUE(act(*form, "mRound1")->isChecked());
    act(*form, "mRound3")->trigger();
    EXPECT_TRUE(act(*form, "mRound3")->isChecked());
    EXPECT_FALSE(act(*form, "mRound1")->isChecked());
}
