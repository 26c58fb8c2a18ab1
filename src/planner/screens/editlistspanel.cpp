#include "planner/screens/editlistspanel.h"

#include "common/colors.h"
#include "common/widgets/qtcolors.h"
#include "planner/logic/menuitemlist.h"
#include "planner/screens/menutextvalidator.h"

#include <QComboBox>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

void ColourBox(QLineEdit* box, bool yellow)
{
    QPalette palette;
    if (yellow) {
        palette.setColor(QPalette::Base, ColorFromColorref(QBColor(kFocusColorIndex)));
        palette.setColor(QPalette::Text, Qt::black);
    }
    box->setPalette(palette);
}

} // namespace

EditListsPanel::EditListsPanel(QWidget* parent)
    : OverlayPanel(QStringLiteral("EditListsPanel"), QStringLiteral("Edit Lists"), parent)
{
    heading_ = new QLabel(this);
    heading_->setObjectName(QStringLiteral("EditListHeading"));
    QFont bold = heading_->font();
    bold.setBold(true);
    heading_->setFont(bold);
    items_ = new QComboBox(this);
    items_->setObjectName(QStringLiteral("Combo4"));
    items_->setMaxVisibleItems(20);
    box_ = new QLineEdit(this);
    box_->setObjectName(QStringLiteral("Text2"));
    new MenuTextValidator(box_);
    box_->installEventFilter(this);
    instructions_ = new QLabel(this);
    instructions_->setObjectName(QStringLiteral("EditListInstructions"));
    body()->addWidget(heading_);
    body()->addWidget(items_);
    body()->addWidget(box_);
    body()->addWidget(instructions_);

    const QString captions[] = {QStringLiteral("&Breakfast List"), QStringLiteral("&Lunch List"),
                                QStringLiteral("&Dinner List"), QStringLiteral("&Delete"), QStringLiteral("&Close")};
    for (int index = 0; index < 5; ++index)
        buttons_[size_t(index)] = addButton(QStringLiteral("Command2_%1").arg(index), captions[index]);
    for (const Meal meal : {Meal::Breakfast, Meal::Lunch, Meal::Dinner})
        connect(buttons_[size_t(meal) - 1], &QPushButton::clicked, this, [this, meal] { emit listChosen(meal); });
    connect(buttons_[kDelete], &QPushButton::clicked, this, [this] { emit deleteRequested(box_->text()); });
    connect(buttons_[kClose], &QPushButton::clicked, this, &EditListsPanel::closeRequested);
    connect(items_, &QComboBox::activated, this, &EditListsPanel::itemPicked);
}

void EditListsPanel::showList(Meal meal, const QStringList& items)
{
    meal_ = meal;
    for (const Meal each : {Meal::Breakfast, Meal::Lunch, Meal::Dinner})
        buttons_[size_t(each) - 1]->setEnabled(each != meal);
    heading_->setText(EditListHeading(meal));
    instructions_->setText(EditListInstructions(meal));
    showItems(items);
}

void EditListsPanel::showItems(const QStringList& items)
{
    items_->clear();
    items_->addItems(items);
    items_->setCurrentIndex(-1);
    box_->clear();
    ColourBox(box_, box_->hasFocus());
    buttons_[kDelete]->setEnabled(false);
}

// An item picked from the drop-down goes into the box, ready for "&Delete".
void EditListsPanel::itemPicked(int index)
{
    if (index < 0)
        return;
    box_->setText(items_->itemText(index));
    ColourBox(box_, true);
    buttons_[kDelete]->setEnabled(true);
    buttons_[kDelete]->setFocus(Qt::OtherFocusReason);
}

bool EditListsPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == box_) {
        if (event->type() == QEvent::FocusIn)
            ColourBox(box_, true);
        else if (event->type() == QEvent::FocusOut && buttons_[kDelete]->isEnabled() == false)
            ColourBox(box_, false);
        else if (event->type() == QEvent::KeyPress) {
            const auto* keyEvent = static_cast<QKeyEvent*>(event);
            if (RefusesTypedKey(box_, keyEvent))
                return true;
            const int key = keyEvent->key();
            if (key == Qt::Key_Return || key == Qt::Key_Enter) {
                if (!box_->text().isEmpty())
                    emit itemEntered(box_->text());
                return true;
            }
        }
    }
    return OverlayPanel::eventFilter(watched, event);
}
