// The yellow of a field with the keyboard.
#include "common/colors.h"
#include "common/widgets/qtcolors.h"
#include "shell/kit/focushighlight.h"

#include <QApplication>
#include <QLineEdit>
#include <QTest>
#include <QVBoxLayout>
#include <QWidget>
#include <gtest/gtest.h>

TEST(FocusHighlight, AFieldIsYellowWhileItHasTheKeyboardOnly)
{
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* field = new QLineEdit(&window);
    auto* other = new QLineEdit(&window);
    layout->addWidget(field);
    layout->addWidget(other);
    HighlightOnFocus(field);
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
