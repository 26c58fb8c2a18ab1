// The calculator panel built offscreen: its controls and captions, what
// opening it shows, the new yield box's filter and type label, Enter, and the
// commands' signals.
#include "recipetools/screens/calculatorpanel.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QWidget>
#include <gtest/gtest.h>

namespace {

class CalculatorPanelTest : public ::testing::Test {
protected:
    CalculatorPanelTest()
    {
        host.resize(640, 480);
        panel = new CalculatorPanel(&host);
    }

    void showHost()
    {
        host.show();
        host.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&host));
    }

    QString label(const char* name) const { return panel->findChild<QLabel*>(name)->text(); }
    QLineEdit* text9() const { return panel->findChild<QLineEdit*>("Text9"); }

    QWidget host;
    CalculatorPanel* panel = nullptr;
};

TEST_F(CalculatorPanelTest, ControlsAndCaptions)
{
    EXPECT_EQ(panel->objectName(), "Recipe Amount Calculator");
    EXPECT_FALSE(panel->isVisibleTo(&host));
    ASSERT_NE(panel->findChild<QLabel*>("Label20"), nullptr);
    ASSERT_NE(panel->findChild<QLabel*>("Label21"), nullptr);
    ASSERT_NE(panel->findChild<QLabel*>("Label24"), nullptr);
    ASSERT_NE(text9(), nullptr);
    EXPECT_EQ(text9(), panel->newYieldBox());
    auto* command9 = panel->findChild<QPushButton*>("Command9");
    auto* command10 = panel->findChild<QPushButton*>("Command10");
    ASSERT_NE(command9, nullptr);
    ASSERT_NE(command10, nullptr);
    EXPECT_EQ(command9->text(), "Calculate New &Amounts");
    EXPECT_EQ(command10->text(), "&Close");

    QStringList texts;
    for (const QLabel* each : panel->findChildren<QLabel*>())
        texts << each->text();
    EXPECT_TRUE(texts.contains("Recipe Amount Calculator"));
    EXPECT_TRUE(texts.contains("Current Yield Is:"));
    EXPECT_TRUE(texts.contains("Change Yield To:"));
    EXPECT_TRUE(texts.contains("Note: Unless you save the Recipe after making these changes the Amount and Yield "
                               "Information will remain the same as originally displayed, the next time you view "
                               "this Recipe."));
}

TEST_F(CalculatorPanelTest, OpenShowsTheCurrentYieldAndFocusesTheNewOne)
{
    showHost();
    text9()->setText("12");
    panel->open("4", "Serving(s)");
    EXPECT_TRUE(panel->isVisible());
    EXPECT_EQ(label("Label20"), "4");
    EXPECT_EQ(label("Label21"), "Serving(s)");
    EXPECT_EQ(label("Label24"), "Serving(s)");
    EXPECT_EQ(text9()->text(), "");
    EXPECT_TRUE(text9()->hasFocus());
    EXPECT_EQ(panel->currentYield(), "4");
    EXPECT_EQ(panel->newYield(), "");
    EXPECT_EQ(panel->newYieldType(), "Serving(s)");
}

TEST_F(CalculatorPanelTest, CurrentAndNewYieldAccessors)
{
    panel->open("4", "Cakes");
    QTest::keyClicks(text9(), "6");
    EXPECT_EQ(panel->newYield(), "6");
    panel->setCurrentYield("6");
    EXPECT_EQ(label("Label20"), "6");
    EXPECT_EQ(panel->currentYield(), "6");
    panel->clearNewYield();
    EXPECT_EQ(text9()->text(), "");
}

TEST_F(CalculatorPanelTest, TypingFollowsTheTypeLabel)
{
    panel->open("1", "Cake");
    QSignalSpy typed(panel, &CalculatorPanel::yieldTypeTyped);
    QTest::keyClicks(text9(), "1");
    EXPECT_EQ(label("Label24"), "Cake");
    QTest::keyClicks(text9(), "2");
    EXPECT_EQ(label("Label24"), "Cakes");
    ASSERT_EQ(typed.count(), 2);
    EXPECT_EQ(typed.at(0).at(0).toString(), "Cake");
    EXPECT_EQ(typed.at(1).at(0).toString(), "Cakes");
    // The current type stays as it was.
    EXPECT_EQ(label("Label21"), "Cake");

    // Backspace is no typing: the label waits for the next key.
    QTest::keyClick(text9(), Qt::Key_Backspace);
    EXPECT_EQ(text9()->text(), "1");
    EXPECT_EQ(label("Label24"), "Cakes");
    EXPECT_EQ(typed.count(), 2);
    QTest::keyClicks(text9(), ".");
    EXPECT_EQ(label("Label24"), "Cake");
    EXPECT_EQ(typed.count(), 3);
}

TEST_F(CalculatorPanelTest, ServingsAndDozenStayAsTheyAre)
{
    panel->open("2", "Serving(s)");
    QTest::keyClicks(text9(), "24");
    EXPECT_EQ(label("Label24"), "Serving(s)");
    panel->open("2", "Dozen");
    QTest::keyClicks(text9(), "3");
    EXPECT_EQ(label("Label24"), "Dozen");
}

TEST_F(CalculatorPanelTest, OnlyDigitsAndAPointStandLast)
{
    panel->open("4", "Pies");
    QSignalSpy typed(panel, &CalculatorPanel::yieldTypeTyped);
    QTest::keyClicks(text9(), "2a");
    EXPECT_EQ(text9()->text(), "2");
    EXPECT_EQ(text9()->cursorPosition(), 1);
    QTest::keyClicks(text9(), "/");
    EXPECT_EQ(text9()->text(), "2");
    QTest::keyClicks(text9(), ".5");
    EXPECT_EQ(text9()->text(), "2.5");
    EXPECT_EQ(typed.count(), 5);
    EXPECT_EQ(typed.last().at(0).toString(), "Pies");

    panel->clearNewYield();
    QTest::keyClicks(text9(), "x");
    EXPECT_EQ(text9()->text(), "");
    // An empty box reads 0: singular.
    EXPECT_EQ(label("Label24"), "Pie");
}

TEST_F(CalculatorPanelTest, TheBoxTakesTheFiveCharactersOfTheYield)
{
    panel->open("4", "Pies");
    QTest::keyClicks(text9(), "123456");
    EXPECT_EQ(text9()->text(), "12345");
}

TEST_F(CalculatorPanelTest, EnterCalculates)
{
    panel->open("4", "Serving(s)");
    QSignalSpy calculate(panel, &CalculatorPanel::calculateRequested);
    QSignalSpy typed(panel, &CalculatorPanel::yieldTypeTyped);
    QTest::keyClicks(text9(), "6");
    typed.clear();
    QTest::keyClick(text9(), Qt::Key_Return);
    EXPECT_EQ(calculate.count(), 1);
    QTest::keyClick(text9(), Qt::Key_Enter);
    EXPECT_EQ(calculate.count(), 2);
    EXPECT_EQ(typed.count(), 0);
    EXPECT_EQ(text9()->text(), "6");
}

TEST_F(CalculatorPanelTest, ButtonsAskToCalculateAndToClose)
{
    showHost();
    panel->open("4", "Serving(s)");
    QSignalSpy calculate(panel, &CalculatorPanel::calculateRequested);
    QSignalSpy close(panel, &CalculatorPanel::closeRequested);
    QTest::mouseClick(panel->findChild<QPushButton*>("Command9"), Qt::LeftButton);
    EXPECT_EQ(calculate.count(), 1);
    EXPECT_EQ(close.count(), 0);
    QTest::mouseClick(panel->findChild<QPushButton*>("Command10"), Qt::LeftButton);
    EXPECT_EQ(close.count(), 1);
    EXPECT_EQ(calculate.count(), 1);
    // The panel does not hide itself: closing is the screen's.
    EXPECT_TRUE(panel->isVisibleTo(&host));
}

} // namespace
