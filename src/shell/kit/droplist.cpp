#include "shell/kit/droplist.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace {
constexpr int kVisibleRows = 8;
}

DropList::DropList(const QString& objectName, const QStringList& entries, QWidget* parent) : QListWidget(parent)
{
    setObjectName(objectName);
    addItems(entries);
    setFrameShape(QFrame::Box);
    hide();
    connect(this, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) { pick(row(item)); });
}

void DropList::openOver(QLineEdit* box)
{
    box_ = box;
    const QPoint at = box->mapTo(parentWidget(), QPoint(0, 0));
    const int rowHeight = sizeHintForRow(0) > 0 ? sizeHintForRow(0) : box->height();
    const int rows = std::min(count(), kVisibleRows);
    setGeometry(at.x(), at.y(), std::max(box->width(), sizeHintForColumn(0) + 24),
                rows * rowHeight + 2 * frameWidth());
    const QList<QListWidgetItem*> same = findItems(box->text(), Qt::MatchExactly);
    setCurrentRow(same.isEmpty() ? 0 : row(same.first()));
    show();
    raise();
    setFocus(Qt::OtherFocusReason);
}

void DropList::dismiss()
{
    if (!isVisible())
        return;
    hide();
    if (box_) {
        emit givingFocusBack(box_);
        box_->setFocus(Qt::OtherFocusReason);
    }
}

// The box takes the keyboard back before the list hides: a list hidden with
// the keyboard would pass it on to whatever comes next, as if the user had
// tabbed there.
void DropList::pick(int row)
{
    if (row < 0 || !box_)
        return;
    QLineEdit* box = box_;
    const QString text = item(row)->text();
    emit givingFocusBack(box);
    box->setFocus(Qt::OtherFocusReason);
    hide();
    emit picked(box, row, text);
}

void DropList::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        pick(currentRow());
        return;
    case Qt::Key_Escape:
        dismiss();
        return;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
        QListWidget::keyPressEvent(event);
        return;
    default:
        break;
    }
    // Anything else belongs to the box under the list.
    QLineEdit* box = box_;
    dismiss();
    if (box && (!event->text().isEmpty() || event->key() == Qt::Key_Backspace || event->key() == Qt::Key_Tab
                || event->key() == Qt::Key_Backtab)) {
        QKeyEvent copy(event->type(), event->key(), event->modifiers(), event->text());
        QApplication::sendEvent(box, &copy);
    }
}

void DropList::focusOutEvent(QFocusEvent* event)
{
    QListWidget::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        hide();
}
