// The readability check itself: it finds a caption in fixed black on a dark
// window and passes over captions that take the palette's text colour.
#include "contrast_check.h"

#include <QLabel>
#include <QPushButton>
#include <gtest/gtest.h>

TEST(ContrastCheck, FindsFixedBlackTextOnADarkWindow)
{
    QWidget window;
    window.setPalette(DarkDesktopPalette());
    auto* fine = new QLabel(QStringLiteral("Fine"), &window);
    fine->setObjectName(QStringLiteral("fine"));
    auto* button = new QPushButton(QStringLiteral("Press"), &window);
    button->move(0, 40);
    window.show();
    EXPECT_EQ(UnreadableTexts(&window), QStringList());

    auto* black = new QLabel(QStringLiteral("Black"), &window);
    black->setObjectName(QStringLiteral("black"));
    QPalette fixed = black->palette();
    fixed.setColor(QPalette::WindowText, Qt::black);
    black->setPalette(fixed);
    black->move(0, 80);
    black->show();
    EXPECT_EQ(UnreadableTexts(&window), QStringList{QStringLiteral("black \"Black\" (#000000 on #2d2d30)")});
}
