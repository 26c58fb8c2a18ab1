// The focus colour: light yellow with dark text whatever the desktop's
// colours, and back to the desktop's colours afterwards.
#include "common/colors.h"
#include "common/widgets/qtcolors.h"
#include "shell/kit/focuscolour.h"

#include <QApplication>
#include <QLineEdit>
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
