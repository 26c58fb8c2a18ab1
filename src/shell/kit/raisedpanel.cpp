#include "shell/kit/raisedpanel.h"

#include <QFrame>

QFrame* MakeRaisedPanel(const QString& objectName, QWidget* parent, int lineWidth)
{
    auto* panel = new QFrame(parent);
    panel->setObjectName(objectName);
    MakeRaised(panel, lineWidth);
    return panel;
}

void MakeRaised(QFrame* frame, int lineWidth)
{
    frame->setFrameStyle(QFrame::Panel | QFrame::Raised);
    frame->setLineWidth(lineWidth);
    frame->setAutoFillBackground(true);
}
