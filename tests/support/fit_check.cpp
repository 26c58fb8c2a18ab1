#include "fit_check.h"

#include <QAbstractButton>
#include <QApplication>
#include <QAbstractItemView>
#include <QAbstractScrollArea>
#include <QAbstractSlider>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QTextEdit>
#include <QToolBar>
#include <QWidget>

namespace {

QString NameOf(const QWidget* widget)
{
    const QString name = widget->objectName();
    return QString::fromLatin1(widget->metaObject()->className())
        + (name.isEmpty() ? QString() : QStringLiteral(" \"%1\"").arg(name));
}

// Panels made to lie over the screen: they may cover other controls.
bool IsOverlay(const QWidget* widget)
{
    for (const QMetaObject* meta = widget->metaObject(); meta; meta = meta->superClass()) {
        const QByteArray name(meta->className());
        if (name == "OverlayPanel" || name == "DropList" || name == "PopupCalendar" || name == "PrintOptionsPanel"
            || name == "BackgroundSelector")
            return true;
    }
    return widget->property("overlay").toBool();
}

bool InsideOverlay(const QWidget* widget, const QWidget* window)
{
    for (const QWidget* w = widget; w && w != window; w = w->parentWidget()) {
        if (IsOverlay(w))
            return true;
    }
    return false;
}

// Inside a scroll area's view, or a control's own inner parts.
bool InsideScrolledOrInner(const QWidget* widget, const QWidget* window)
{
    for (const QWidget* w = widget->parentWidget(); w && w != window; w = w->parentWidget()) {
        if (qobject_cast<const QAbstractScrollArea*>(w) || qobject_cast<const QComboBox*>(w)
            || qobject_cast<const QToolBar*>(w))
            return true;
    }
    return false;
}

bool IsControl(const QWidget* widget)
{
    if (qobject_cast<const QLabel*>(widget))
        return !static_cast<const QLabel*>(widget)->text().isEmpty();
    return qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QLineEdit*>(widget)
        || qobject_cast<const QComboBox*>(widget) || qobject_cast<const QAbstractItemView*>(widget)
        || qobject_cast<const QPlainTextEdit*>(widget) || qobject_cast<const QTextEdit*>(widget);
}

QRect InWindow(const QWidget* widget, const QWidget* window)
{
    return QRect(widget->mapTo(window, QPoint(0, 0)), widget->size());
}

} // namespace

QStringList FitProblems(QWidget* window)
{
    QStringList problems;
    QList<QWidget*> controls;
    for (QWidget* widget : window->findChildren<QWidget*>()) {
        if (!widget->isVisibleTo(window) || widget->isWindow() || !IsControl(widget)
            || InsideScrolledOrInner(widget, window))
            continue;
        controls.append(widget);
        // Whole inside every parent up to the window.
        const QWidget* child = widget;
        for (const QWidget* parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
            const QRect inParent(child->mapTo(parent, QPoint(0, 0)), child->size());
            const QRect area = parent == window ? window->rect() : parent->rect();
            if (!area.contains(inParent)) {
                problems << QStringLiteral("%1 is cut off by %2").arg(NameOf(widget), NameOf(parent));
                break;
            }
            if (parent == window)
                break;
            child = parent;
        }
        // Not squeezed below what it needs.
        // What a layout grants it: a minimum size set on the control wins
        // over the size it hints, one direction at a time.
        QSize needed = widget->minimumSizeHint();
        if (widget->minimumWidth() > 0)
            needed.setWidth(widget->minimumWidth());
        if (widget->minimumHeight() > 0)
            needed.setHeight(widget->minimumHeight());
        if (needed.isValid() && (widget->width() < needed.width() || widget->height() < needed.height()))
            problems << QStringLiteral("%1 is squeezed to %2x%3 (needs %4x%5)")
                            .arg(NameOf(widget))
                            .arg(widget->width())
                            .arg(widget->height())
                            .arg(needed.width())
                            .arg(needed.height());
    }
    for (int i = 0; i < controls.size(); ++i) {
        if (InsideOverlay(controls[i], window))
            continue;
        const QRect a = InWindow(controls[i], window);
        for (int j = i + 1; j < controls.size(); ++j) {
            if (InsideOverlay(controls[j], window) || controls[i]->isAncestorOf(controls[j])
                || controls[j]->isAncestorOf(controls[i]))
                continue;
            if (a.intersects(InWindow(controls[j], window)))
                problems << QStringLiteral("%1 overlaps %2").arg(NameOf(controls[i]), NameOf(controls[j]));
        }
    }
    return problems;
}

std::string FitProblemsAt(QWidget* window, QSize size)
{
    window->resize(size);
    QApplication::processEvents();
    QStringList problems;
    const QSize least = window->minimumSizeHint();
    if (least.width() > size.width() || least.height() > size.height())
        problems << QStringLiteral("the window needs at least %1x%2").arg(least.width()).arg(least.height());
    problems << FitProblems(window);
    return problems.join(u'\n').toStdString();
}

std::string FitProblemsAtBothSizes(QWidget* window)
{
    std::string problems;
    for (const FitSize& fit : kFitSizes) {
        const QString found = QString::fromStdString(FitProblemsAt(window, fit.size));
        for (const QString& line : found.split(u'\n', Qt::SkipEmptyParts))
            problems += std::string(fit.name) + ": " + line.toStdString() + "\n";
    }
    return problems;
}
