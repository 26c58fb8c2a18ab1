#include "shell/kit/overlaypanel.h"

#include "shell/kit/raisedpanel.h"

#include <QApplication>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

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
    if (parent)
        parent->installEventFilter(this);
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
    keepInsideParent();
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
    move(std::max(0, (area->width() - width()) / 2), std::max(0, int((area->height() - height()) * fromTop)));
}

void OverlayPanel::setVisible(bool visible)
{
    if (!visible && parentWidget() && isAncestorOf(QApplication::focusWidget()))
        parentWidget()->setFocus(Qt::OtherFocusReason);
    QFrame::setVisible(visible);
}

void OverlayPanel::keepInsideParent()
{
    const QWidget* area = parentWidget();
    if (!area)
        return;
    // Never larger than the screen under it: what does not fit scrolls in
    // the panel's grids and lists rather than running off the window.
    const QSize least = minimumSizeHint();
    resize(std::max(least.width(), std::min(width(), area->width())),
           std::max(least.height(), std::min(height(), area->height())));
    move(std::clamp(x(), 0, std::max(0, area->width() - width())),
         std::clamp(y(), 0, std::max(0, area->height() - height())));
}

bool OverlayPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize && isVisible())
        keepInsideParent();
    return QFrame::eventFilter(watched, event);
}

void OverlayPanel::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape && event->modifiers() == Qt::NoModifier) {
        emit closeRequested();
        return;
    }
    QFrame::keyPressEvent(event);
}

