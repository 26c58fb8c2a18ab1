// The drop list over a box: a pick hands the keyboard back to the box
// before the list goes, so it never lands on the next control by itself.
#include "shell/kit/droplist.h"

#include <QApplication>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>
#include <gtest/gtest.h>

TEST(DropList, APickGivesTheKeyboardBackToItsBoxBeforeTheListHides)
{
    QWidget screen;
    auto* layout = new QVBoxLayout(&screen);
    auto* box = new QLineEdit(&screen);
    auto* next = new QLineEdit(&screen);
    layout->addWidget(box);
    layout->addWidget(next);
    auto* list = new DropList(QStringLiteral("Combo9"), {QStringLiteral("One"), QStringLiteral("Two")}, &screen);
    screen.resize(300, 200);
    screen.show();
    screen.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&screen));
    int nextEntered = 0;
    QObject::connect(qApp, &QApplication::focusChanged, next, [&](QWidget*, QWidget* now) {
        if (now == next)
            ++nextEntered;
    });
    QSignalSpy back(list, &DropList::givingFocusBack);
    QSignalSpy picked(list, &DropList::picked);
    list->openOver(box);
    ASSERT_TRUE(list->hasFocus());
    list->setCurrentRow(1);
    QTest::keyClick(list, Qt::Key_Return);
    ASSERT_EQ(picked.count(), 1);
    EXPECT_EQ(picked[0][2].toString(), QStringLiteral("Two"));
    EXPECT_EQ(back.count(), 1);
    EXPECT_TRUE(box->hasFocus());
    EXPECT_FALSE(list->isVisible());
    EXPECT_EQ(nextEntered, 0);
}
