// The focus colour: light yellow with dark text whatever the desktop's
// colours, and back to the desktop's colours afterwards.
#include "common/colors.h"
#include "common/widgets/qtcolors.h"
#include "shell/kit/focuscolour.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>
#include <gtest/gtest.h>

TEST(FocusColour, YellowWithDarkTextEvenOnADarkDesktop)
{
    const QPalette before = QApplication::palette();
    QPalette dark = before;
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::Text, QColor(230, 230, 230));
    QApplication::setPalette(dark);
    QLineEdit box;
    ShowFocusColour(&box);
    EXPECT_EQ(box.palette().color(QPalette::Base), ColorFromColorref(QBColor(kFocusColorIndex)));
    EXPECT_EQ(box.palette().color(QPalette::Text), QColor(Qt::black));
    ClearFocusColour(&box);
    EXPECT_EQ(box.palette().color(QPalette::Base), QColor(30, 30, 30));
    EXPECT_EQ(box.palette().color(QPalette::Text), QColor(230, 230, 230));
    QApplication::setPalette(before);
}

TEST(FocusColour, AFieldIsYellowWhileItHasTheKeyboardOnly)
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* field = new QLineEdit(&window);
    auto* other = new QLineEdit(&window);
    layout->addWidget(field);
    layout->addWidget(other);
    ShowFocusColourWhileFocused(field);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    other->setFocus(Qt::OtherFocusReason);
    QApplication::processEvents();
    const QColor plain = field->palette().color(QPalette::Base);
    ASSERT_NE(plain, ColorFromColorref(QBColor(14)));
    field->setFocus(Qt::OtherFocusReason);
    QApplication::processEvents();
    EXPECT_EQ(field->palette().color(QPalette::Base), ColorFromColorref(QBColor(14)));
    other->setFocus(Qt::TabFocusReason);
    QApplication::processEvents();
    EXPECT_EQ(field->palette().color(QPalette::Base), plain);
    EXPECT_NE(other->palette().color(QPalette::Base), ColorFromColorref(QBColor(14))) << "only the field asked for";
}
