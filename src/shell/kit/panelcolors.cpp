#include "shell/kit/panelcolors.h"

#include "common/dialogs.h"
#include "common/writefailure.h"
#include "common/widgets/qtcolors.h"
#include "shell/logic/processvalues.h"
#include "shell/kit/screenstatusbar.h"

#include <QApplication>
#include <QWidget>

namespace {

const Message kPanelColorQuestion{QStringLiteral("Panel Color"),
                                  QStringLiteral("Select New Color or Use System Default Color?\n"
                                                 "Yes = Color Selection Panel will appear.\n"
                                                 "No = Current System Default Color will be selected."),
                                  Buttons::YesNoCancel, Icon::Information, 1};
const Message kConflictMessage{QStringLiteral("Color Conflict"),
                               QStringLiteral("Selected Color would cause a conflict with Text and Background Colors!"),
                               Buttons::Ok, Icon::Stop, 1};
const Message kSaveQuestion{QStringLiteral("Color Changes"), QStringLiteral("Save changes made to Panel Color?"),
                            Buttons::YesNo, Icon::Question, 1};
// No is the default: the update rewrites every screen's colour.
const Message kAllScreensQuestion{QStringLiteral("Complete Program Panel Color Update Option"),
                                  QStringLiteral("Save Panel Color Changes for ALL of the Program Functions?"),
                                  Buttons::YesNoCancel, Icon::Question, 2};

} // namespace

PanelColors::PanelColors(Dialogs& dialogs, const SettingsSlot& slot, ScreenStatusBar* statusBar, QObject* parent)
    : QObject(parent), dialogs_(dialogs), slot_(slot), statusBar_(statusBar), color_(systemColor())
{
}

QColor PanelColors::systemColor()
{
    return QApplication::palette("QLabel").color(QPalette::Window);
}

QColor PanelColors::textColor() const
{
    for (const QPointer<QWidget>& panel : panels_) {
        if (panel)
            return panel->palette().color(QPalette::WindowText);
    }
    return QApplication::palette("QLabel").color(QPalette::WindowText);
}

void PanelColors::addPanel(QWidget* panel)
{
    panels_.append(panel);
}

void PanelColors::applyStored()
{
    const std::optional<qint32> stored = ReadPanelColor(slot_);
    paint(stored ? ColorFromColorref(*stored) : systemColor());
    changed_ = false;
    isDefault_ = false;
}

void PanelColors::choosePanelColor()
{
    if (statusBar_)
        statusBar_->setActivity(QStringLiteral("Panel Color"));
    const Answer answer = dialogs_.ask(kPanelColorQuestion);
    if (answer == Answer::Cancel)
        return;
    QColor chosen = systemColor();
    if (answer == Answer::Yes) {
        const std::optional<qint32> picked = dialogs_.chooseColor(ColorrefFromColor(color_));
        if (!picked)
            return;
        chosen = ColorFromColorref(*picked);
    }
    if (ColorConflicts(ColorrefFromColor(chosen), ColorrefFromColor(textColor()))) {
        dialogs_.ask(kConflictMessage);
        return;
    }
    paint(chosen);
    changed_ = true;
    isDefault_ = answer == Answer::No;
}

void PanelColors::offerToStoreOnClose()
{
    if (!changed_)
        return;
    if (dialogs_.ask(kSaveQuestion) != Answer::Yes)
        return;
    const std::optional<QString> pending = StorePanelColor(slot_, isDefault_, ColorrefFromColor(color_));
    if (!pending) {
        dialogs_.ask(WriteFailedMessage(slot_.file.name));
        return;
    }
    changed_ = false;
    if (!ShouldOfferToAllScreens(*pending, Process().LastPanelColor))
        return;
    if (dialogs_.ask(kAllScreensQuestion) != Answer::Yes)
        return;
    if (const WriteOutcome written = WriteColorToAllScreens(*pending); !written.held()) {
        dialogs_.ask(WriteFailedMessage(written.failedFile));
        return;
    }
    Process().LastPanelColor = *pending;
}

// Each panel gets the colour set on its own palette, so a panel inside
// another panel is coloured even where it pinned a colour of its own.
void PanelColors::paint(const QColor& color)
{
    color_ = color;
    for (const QPointer<QWidget>& panel : panels_) {
        if (!panel)
            continue;
        QPalette palette = panel->palette();
        palette.setColor(QPalette::Window, color);
        panel->setPalette(palette);
        panel->setAutoFillBackground(true);
    }
}
