// Colours between the stored COLORREF numbers and Qt.
#include "common/widgets/qtcolors.h"

#include <gtest/gtest.h>

TEST(QtColors, ColorrefAndQColorRoundTrip)
{
    EXPECT_EQ(ColorrefFromColor(QColor(0, 0, 255)), 16711680);
    EXPECT_EQ(ColorrefFromColor(QColor(255, 0, 0)), 255);
    EXPECT_EQ(ColorrefFromColor(QColor(255, 0, 0, 40)), 255) << "alpha is dropped";
    EXPECT_EQ(ColorrefFromColor(ColorFromColorref(0x00C0FFEE)), 0x00C0FFEE);
    EXPECT_EQ(ColorFromColorref(0x800000), QColor(0, 0, 128));
}
