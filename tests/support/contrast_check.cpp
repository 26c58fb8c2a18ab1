#include "contrast_check.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPushButton>
#include <QToolButton>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace {

double Channel(double value)
{
    value /= 255.0;
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
}

double Luminance(const QColor& color)
{
    return 0.2126 * Channel(color.red()) + 0.7152 * Channel(color.green()) + 0.0722 * Channel(color.blue());
}

double Contrast(const QColor& a, const QColor& b)
{
    const double la = Luminance(a);
    const double lb = Luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

// The colour painted under a widget: its own background when it fills it,
// else the nearest parent's that does, else the window's.
QColor BackgroundUnder(const QWidget* widget, QPalette::ColorRole role)
{
    for (const QWidget* w = widget; w; w = w->parentWidget()) {
        if (w == widget && role == QPalette::Button)
            return w->palette().color(QPalette::Button);
        if (w->autoFillBackground() || w->isWindow())
            return w->palette().color(w->backgroundRole());
    }
    return widget->palette().color(QPalette::Window);
}

} // namespace

QPalette DarkDesktopPalette()
{
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(45, 45, 48));
    dark.setColor(QPalette::WindowText, QColor(230, 230, 230));
    dark.setColor(QPalette::Base, QColor(30, 30, 30));
    dark.setColor(QPalette::AlternateBase, QColor(55, 55, 58));
    dark.setColor(QPalette::Text, QColor(230, 230, 230));
    dark.setColor(QPalette::Button, QColor(60, 60, 64));
    dark.setColor(QPalette::ButtonText, QColor(230, 230, 230));
    dark.setColor(QPalette::Highlight, QColor(42, 130, 218));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    dark.setColor(QPalette::ToolTipBase, QColor(60, 60, 64));
    dark.setColor(QPalette::ToolTipText, QColor(230, 230, 230));
    dark.setColor(QPalette::Disabled, QPalette::WindowText, QColor(140, 140, 140));
    dark.setColor(QPalette::Disabled, QPalette::Text, QColor(140, 140, 140));
    dark.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(140, 140, 140));
    return dark;
}

QStringList UnreadableTexts(QWidget* window)
{
    QStringList problems;
    for (QWidget* widget : window->findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(window) || !widget->isEnabled())
            continue;
        QString text;
        QPalette::ColorRole role = QPalette::Window;
        if (auto* label = qobject_cast<QLabel*>(widget)) {
            text = label->text();
        } else if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
            text = button->text();
            // Push and tool buttons draw their own face; check and option
            // buttons write on what is under them.
            if (qobject_cast<QPushButton*>(widget) || qobject_cast<QToolButton*>(widget))
                role = QPalette::Button;
        }
        if (text.trimmed().isEmpty())
            continue;
        const QColor fore =
            widget->palette().color(role == QPalette::Button ? QPalette::ButtonText : QPalette::WindowText);
        const QColor back = BackgroundUnder(widget, role);
        if (Contrast(fore, back) < 3.0)
            problems << QStringLiteral("%1 \"%2\" (%3 on %4)").arg(widget->objectName(), text, fore.name(), back.name());
    }
    return problems;
}
