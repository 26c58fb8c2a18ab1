#include "shopping/screens/entrybox.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLineEdit>

EntryBox::EntryBox(QLineEdit* box, int typedLength) : QObject(box), box_(box), typedLength_(typedLength)
{
    box_->setMaxLength(typedLength_);
    box_->installEventFilter(this);
    connect(box_, &QLineEdit::textEdited, this, &EntryBox::edited);
}

void EntryBox::setText(const QString& text)
{
    box_->setMaxLength(qMax(typedLength_, int(text.size())));
    box_->setText(text);
}

// The limit follows a longer text down as the user shortens it.
void EntryBox::fitLength()
{
    box_->setMaxLength(qMax(typedLength_, int(box_->text().size())));
}

void EntryBox::edited(const QString& text)
{
    if (text.contains(u'"')) {
        const int cursor = box_->cursorPosition();
        const int before = int(text.left(cursor).count(u'"'));
        QString kept = text;
        kept.remove(u'"');
        box_->setText(kept);
        box_->setCursorPosition(cursor - before);
    }
    fitLength();
}

bool EntryBox::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == box_) {
        if (event->type() == QEvent::KeyPress) {
            const auto* key = static_cast<QKeyEvent*>(event);
            if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
                emit enterPressed();
                return true;
            }
            if (key->text() == u"\"")
                return true;
            if (key->key() == Qt::Key_Delete)
                emit deletePressed();
        } else if (event->type() == QEvent::FocusIn) {
            emit entered();
        }
    }
    return QObject::eventFilter(watched, event);
}
