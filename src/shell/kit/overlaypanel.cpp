#include "shell/kit/overlaypanel.h"

#include "shell/kit/insideparent.h"
#include "shell/kit/raisedpanel.h"

#include <QApplication>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>


OverlayPanel::OverlayPanel(const QString& objectName, const QString& caption, QWidget* parent) : QFrame(parent)
{
    setObjectName(objectName);
    MakeRaised(this, 3);
    caption_ = new QLabel(caption, this);
    QFont bold = caption_->font();
    bold.setBold(true);
    bold.setPointSize(bold.pointSize() + 2);
    caption_->setFont(bold);
    body_ = new QVBoxLayout;
    buttons_ = new QHBoxLayout;
    buttons_->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(caption_);
    layout->addLayout(body_, 1);
    layout->addLayout(buttons_);
    hide();
    FollowParentSize(this);
}

QFormLayout* OverlayPanel::form()
{
    if (!form_) {
        form_ = new QFormLayout;
        body_->addLayout(form_);
    }
    return form_;
}

QPushButton* OverlayPanel::addButton(const QString& objectName, const QString& caption)
{
    auto* button = new QPushButton(caption, this);
    button->setObjectName(objectName);
    button->setAutoDefault(false);
    buttons_->addWidget(button);
    return button;
}

void OverlayPanel::open(QWidget* focus)
{
    adjustSize();
    KeepInsideParent(this);
    show();
    raise();
    if (focus)
        focus->setFocus(Qt::OtherFocusReason);
}

void OverlayPanel::centreInParent(double fromTop)
{
    const QWidget* area = parentWidget();
    if (!area)
        return;
    move((area->width() - width()) / 2, int((area->height() - height()) * fromTop));
    KeepInsideParent(this);
}

void OverlayPanel::setVisible(bool visible)
{
    if (!visible && parentWidget() && isAncestorOf(QApplication::focusWidget()))
        parentWidget()->setFocus(Qt::OtherFocusReason);
    QFrame::setVisible(visible);
}

void OverlayPanel::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
        emit closeRequested();
        return;
    }
    QFrame::keyPressEvent(event);
}

