#include "planner/screens/menutextvalidator.h"

#include "planner/logic/menudayrecord.h"

#include <QKeyEvent>
#include <QLineEdit>

MenuTextValidator::MenuTextValidator(QLineEdit* box) : QValidator(box)
{
    box->setValidator(this);
}

QValidator::State MenuTextValidator::validate(QString& input, int&) const
{
    return input.contains(u'"') || input.size() > MenuDayRecord::kLineWidth ? Invalid : Acceptable;
}

bool RefusesTypedKey(const QLineEdit* box, const QKeyEvent* key)
{
    const QString typed = key->text();
    if (typed.isEmpty() || !typed.at(0).isPrint() || (key->modifiers() & Qt::ControlModifier))
        return false;
    return box->text().size() - box->selectedText().size() + typed.size() > kTypedLineLength;
}
