#include "shell/kit/focuscolour.h"

#include "common/colors.h"
#include "common/widgets/qtcolors.h"

#include <QEvent>
#include <QWidget>

void ShowFocusColour(QWidget* field)
{
    QPalette palette = field->palette();
    palette.setColor(QPalette::Base, ColorFromColorref(FocusColor()));
    palette.setColor(QPalette::Text, Qt::black);
    field->setPalette(palette);
}

void ClearFocusColour(QWidget* field)
{
    field->setPalette(QPalette());
}

namespace {

class FocusColourFollower final : public QObject {
public:
    explicit FocusColourFollower(QWidget* field) : QObject(field), field_(field) {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == field_ && event->type() == QEvent::FocusIn)
            ShowFocusColour(field_);
        else if (watched == field_ && event->type() == QEvent::FocusOut)
            ClearFocusColour(field_);
        return false;
    }

private:
    QWidget* field_;
};

} // namespace

void ShowFocusColourWhileFocused(QWidget* field)
{
    field->installEventFilter(new FocusColourFollower(field));
}
