#include "shell/kit/focushighlight.h"

#include "common/colors.h"
#include "common/widgets/qtcolors.h"

#include <QEvent>
#include <QWidget>

namespace {

class FocusHighlighter final : public QObject {
public:
    explicit FocusHighlighter(QWidget* field) : QObject(field), field_(field) {}

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == field_ && event->type() == QEvent::FocusIn) {
            QPalette highlighted = field_->palette();
            highlighted.setColor(QPalette::Base, ColorFromColorref(FocusColor()));
            field_->setPalette(highlighted);
        } else if (watched == field_ && event->type() == QEvent::FocusOut) {
            // Back to what the field inherits from its panel.
            field_->setPalette(QPalette());
        }
        return false;
    }

private:
    QWidget* field_;
};

} // namespace

void HighlightOnFocus(QWidget* field)
{
    field->installEventFilter(new FocusHighlighter(field));
}
