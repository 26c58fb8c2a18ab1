// The fit check itself: it finds a control cut off, one squeezed and two
// that overlap, and passes over panels made to lie on top.
#include "fit_check.h"
#include "shell/kit/overlaypanel.h"

#include <QLineEdit>
#include <QPushButton>
#include <gtest/gtest.h>

TEST(FitCheck, FindsCutOffSqueezedAndOverlappingControls)
{
    QWidget window;
    window.resize(200, 100);
    auto* fine = new QPushButton(QStringLiteral("Fine"), &window);
    fine->setObjectName(QStringLiteral("fine"));
    fine->setGeometry(0, 0, 80, 30);
    window.show();
    EXPECT_EQ(FitProblems(&window), QStringList());

    auto* cut = new QPushButton(QStringLiteral("Cut"), &window);
    cut->setObjectName(QStringLiteral("cut"));
    cut->setGeometry(150, 80, 80, 30);
    cut->show();
    auto* squeezed = new QPushButton(QStringLiteral("A long caption"), &window);
    squeezed->setObjectName(QStringLiteral("squeezed"));
    squeezed->setGeometry(100, 0, 10, 30);
    squeezed->show();
    auto* over = new QLineEdit(&window);
    over->setObjectName(QStringLiteral("over"));
    over->setGeometry(40, 10, 60, 30);
    over->show();
    const QStringList problems = FitProblems(&window);
    EXPECT_TRUE(problems.contains(QStringLiteral("QPushButton \"cut\" is cut off by QWidget"))) << problems.join('\n').toStdString();
    EXPECT_TRUE(problems.join('\n').contains(QStringLiteral("QPushButton \"squeezed\" is squeezed")));
    EXPECT_TRUE(problems.contains(QStringLiteral("QPushButton \"fine\" overlaps QLineEdit \"over\"")));
}

TEST(FitCheck, APanelOverTheScreenMayCoverIt)
{
    QWidget window;
    window.resize(300, 200);
    auto* under = new QPushButton(QStringLiteral("Under"), &window);
    under->setGeometry(0, 0, 100, 30);
    auto* panel = new OverlayPanel(QStringLiteral("Panel"), QStringLiteral("Panel"), &window);
    panel->addButton(QStringLiteral("ok"), QStringLiteral("OK"));
    window.show();
    panel->open();
    panel->move(0, 0);
    EXPECT_EQ(FitProblems(&window), QStringList());
}

TEST(FitCheck, AMinimumSetOnAControlWinsOverItsHint)
{
    QWidget window;
    window.resize(300, 200);
    auto* box = new QLineEdit(&window);
    box->setObjectName(QStringLiteral("box"));
    box->setMinimumWidth(8);
    box->setGeometry(0, 0, 10, 40);
    auto* hinted = new QLineEdit(&window);
    hinted->setObjectName(QStringLiteral("hinted"));
    hinted->setGeometry(0, 100, 10, 40);
    window.show();
    ASSERT_LT(10, box->minimumSizeHint().width());
    EXPECT_EQ(FitProblems(&window), QStringList{QStringLiteral("QLineEdit \"hinted\" is squeezed to 10x40 (needs %1x%2)")
                                                    .arg(hinted->minimumSizeHint().width())
                                                    .arg(hinted->minimumSizeHint().height())});
}
