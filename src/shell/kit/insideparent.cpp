#include "shell/kit/insideparent.h"

#include <QEvent>
#include <QWidget>

#include <algorithm>

namespace {

class ParentSizeFollower final : public QObject {
public:
    explicit ParentSizeFollower(QWidget* panel) : QObject(panel), panel_(panel)
    {
        panel->parentWidget()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == panel_->parentWidget() && event->type() == QEvent::Resize && panel_->isVisible())
            KeepInsideParent(panel_);
        return false;
    }

private:
    QWidget* panel_;
};

} // namespace

void KeepInsideParent(QWidget* panel)
{
    const QWidget* area = panel->parentWidget();
    if (!area)
        return;
    const QSize least = panel->minimumSizeHint();
    panel->resize(std::max(least.width(), std::min(panel->width(), area->width())),
                  std::max(least.height(), std::min(panel->height(), area->height())));
    panel->move(std::clamp(panel->x(), 0, std::max(0, area->width() - panel->width())),
                std::clamp(panel->y(), 0, std::max(0, area->height() - panel->height())));
}

void FollowParentSize(QWidget* panel)
{
    if (panel->parentWidget())
        new ParentSizeFollower(panel);
}
