#include "shell/kit/screenstatusbar.h"

#include <QEvent>
#include <QLabel>
#include <QMouseEvent>

namespace {

const QString kRestoreTopText = QStringLiteral("Click to Restore Top Toolbar");
const QString kRestoreSideText = QStringLiteral("Click to Restore Side Toolbars");

QLabel* MakePanel(const QString& objectName, const QString& text, QWidget* parent)
{
    auto* panel = new QLabel(text, parent);
    panel->setObjectName(objectName);
    panel->setFrameStyle(QFrame::NoFrame); // the status bar draws the panel edges
    panel->setContentsMargins(4, 0, 4, 0);
    return panel;
}

} // namespace

ScreenStatusBar::ScreenStatusBar(QWidget* parent) : QStatusBar(parent)
{
    setObjectName(QStringLiteral("StatusBar1"));
    setSizeGripEnabled(false);
    activity_ = MakePanel(QStringLiteral("StatusBar1_Panel1"), QString(), this);
    addWidget(activity_, 1);
    restoreTop_ = MakePanel(QStringLiteral("StatusBar1_Panel2"), kRestoreTopText, this);
    restoreSide_ = MakePanel(QStringLiteral("StatusBar1_Panel3"), kRestoreSideText, this);
    for (QLabel* panel : {restoreTop_, restoreSide_}) {
        panel->setCursor(Qt::PointingHandCursor);
        panel->installEventFilter(this);
        addPermanentWidget(panel);
        panel->hide();
    }
}

void ScreenStatusBar::setActivity(const QString& text)
{
    activity_->setText(text);
}

QString ScreenStatusBar::activity() const
{
    return activity_->text();
}

void ScreenStatusBar::showTopToolbarRestore(bool shown)
{
    restoreTop_->setVisible(shown);
}

void ScreenStatusBar::showSideToolbarsRestore(bool shown)
{
    restoreSide_->setVisible(shown);
}

bool ScreenStatusBar::topToolbarRestoreShown() const
{
    return restoreTop_->isVisibleTo(this);
}

bool ScreenStatusBar::sideToolbarsRestoreShown() const
{
    return restoreSide_->isVisibleTo(this);
}

// A click on a panel is told by the panel's text, so a panel that shows
// something else does nothing.
bool ScreenStatusBar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease
        && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        if (const auto* panel = qobject_cast<QLabel*>(watched)) {
            if (panel->text() == kRestoreTopText)
                emit restoreTopToolbarClicked();
            else if (panel->text() == kRestoreSideText)
                emit restoreSideToolbarsClicked();
        }
    }
    return QStatusBar::eventFilter(watched, event);
}
