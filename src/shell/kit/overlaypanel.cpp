#include "shell/kit/overlaypanel.h"

#include <QFrame>
#include <QLabel>

QLabel* MakeOverlayPanel(QFrame* panel, const QString& title)
{
    panel->setFrameStyle(QFrame::Panel | QFrame::Raised);
    panel->setLineWidth(3);
    panel->setAutoFillBackground(true);
    auto* label = new QLabel(title, panel);
    QFont bold = label->font();
    bold.setBold(true);
    bold.setPointSize(bold.pointSize() + 2);
    label->setFont(bold);
    return label;
}

void RaiseOverlayPanel(QFrame* panel)
{
    panel->adjustSize();
    panel->show();
    panel->raise();
}
