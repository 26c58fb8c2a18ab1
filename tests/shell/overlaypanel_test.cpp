// A panel over the screen stays inside it: opened larger than the screen it
// shrinks to what is left, and a window made smaller takes the open panel
// along.
#include "shell/kit/overlaypanel.h"

#include <QListWidget>
#include <QVBoxLayout>
#include <gtest/gtest.h>

namespace {

// A panel whose list asks for more room than the window gives.
OverlayPanel* TallPanel(QWidget* window)
{
    auto* panel = new OverlayPanel(QStringLiteral("Panel"), QStringLiteral("Panel"), window);
    auto* list = new QListWidget(panel);
    list->setMinimumSize(100, 60);
    for (int i = 0; i < 200; ++i)
        list->addItem(QStringLiteral("Line %1").arg(i));
    panel->body()->addWidget(list);
    panel->addButton(QStringLiteral("ok"), QStringLiteral("OK"));
    return panel;
}

QRect InParent(const QWidget* panel)
{
    return QRect(panel->pos(), panel->size());
}

} // namespace

TEST(OverlayPanel, OpensNoLargerThanTheScreenUnderIt)
{
    QWidget window;
    window.resize(300, 150);
    OverlayPanel* panel = TallPanel(&window);
    window.show();
    panel->open();
    EXPECT_TRUE(window.rect().contains(InParent(panel)));
    EXPECT_GE(panel->height(), panel->minimumSizeHint().height());
}

TEST(OverlayPanel, AWindowMadeSmallerKeepsTheOpenPanelInside)
{
    QWidget window;
    window.resize(600, 500);
    OverlayPanel* panel = TallPanel(&window);
    window.show();
    panel->open();
    panel->move(300, 200);
    window.resize(320, 240);
    EXPECT_TRUE(window.rect().contains(InParent(panel)));
}

TEST(OverlayPanel, AClosedPanelIsLeftWhereItIs)
{
    QWidget window;
    window.resize(600, 500);
    OverlayPanel* panel = TallPanel(&window);
    window.show();
    panel->move(400, 300);
    window.resize(320, 240);
    EXPECT_EQ(panel->pos(), QPoint(400, 300));
}
