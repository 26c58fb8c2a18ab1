#include "planner/screens/daylinespanel.h"

#include "common/colors.h"
#include "common/widgets/qtcolors.h"
#include "planner/screens/menutextvalidator.h"
#include "shell/kit/droplist.h"
#include "shell/kit/raisedpanel.h"

#include <QAction>
#include <QFocusEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>

namespace {

constexpr const char* kMealNames[] = {"Breakfast", "Lunch", "Dinner"};

} // namespace

DayLinesPanel::DayLinesPanel(QWidget* parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("LinesPanel"));
    MakeRaised(this);
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(8, 4, 8, 6);
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(2);
    for (int meal = 0; meal < 3; ++meal) {
        auto* heading = new QLabel(QString::fromLatin1(kMealNames[meal]), this);
        heading->setObjectName(QStringLiteral("MealHeading_%1").arg(meal));
        heading->setAlignment(Qt::AlignCenter);
        QFont bold = heading->font();
        bold.setBold(true);
        heading->setFont(bold);
        grid->addWidget(heading, 0, meal);
        grid->setColumnStretch(meal, 1);
    }
    for (int index = 0; index < kMenuLines; ++index) {
        auto* line = new QLineEdit(this);
        line->setObjectName(QStringLiteral("Text1_%1").arg(index));
        new MenuTextValidator(line);
        line->installEventFilter(this);
        connect(line, &QLineEdit::textEdited, this, [this, index] { emit lineEdited(index); });
        grid->addWidget(line, index % kLinesPerMeal + 1, index / kLinesPerMeal);
        lines_[size_t(index)] = line;
    }
    const QIcon arrow = style()->standardIcon(QStyle::SP_ArrowDown);
    for (int meal = 0; meal < 3; ++meal) {
        auto* list = new DropList(QStringLiteral("Combo%1").arg(meal + 1), {}, this);
        connect(list, &DropList::picked, this, [this](QLineEdit* box, int, const QString& item) {
            const int index = indexOf(box);
            if (index >= 0)
                emit itemPicked(index, item);
        });
        dropLists_[size_t(meal)] = list;
        auto* button = new QAction(arrow, QStringLiteral("%1 List").arg(QString::fromLatin1(kMealNames[meal])), this);
        button->setObjectName(QStringLiteral("DropDown%1").arg(meal + 1));
        connect(button, &QAction::triggered, this, [this, meal] {
            if (dropDownLines_[size_t(meal)] >= 0)
                openDropDown(dropDownLines_[size_t(meal)]);
        });
        dropDowns_[size_t(meal)] = button;
    }
}

MenuLines DayLinesPanel::lines() const
{
    MenuLines texts;
    for (int index = 0; index < kMenuLines; ++index)
        texts[size_t(index)] = lines_[size_t(index)]->text();
    return texts;
}

void DayLinesPanel::showLines(const MenuLines& texts)
{
    for (int index = 0; index < kMenuLines; ++index)
        lines_[size_t(index)]->setText(texts[size_t(index)]);
}

void DayLinesPanel::setListItems(Meal meal, const QStringList& items)
{
    DropList* list = dropList(meal);
    list->clear();
    list->addItems(items);
}

void DayLinesPanel::showDropDown(int index)
{
    const int meal = int(MealOfLine(index)) - 1;
    const int at = dropDownLines_[size_t(meal)];
    if (at == index)
        return;
    if (at >= 0)
        lines_[size_t(at)]->removeAction(dropDowns_[size_t(meal)]);
    lines_[size_t(index)]->addAction(dropDowns_[size_t(meal)], QLineEdit::TrailingPosition);
    dropDownLines_[size_t(meal)] = index;
}

void DayLinesPanel::hideDropDowns()
{
    for (int meal = 0; meal < 3; ++meal) {
        dropLists_[size_t(meal)]->hide();
        const int at = dropDownLines_[size_t(meal)];
        if (at >= 0)
            lines_[size_t(at)]->removeAction(dropDowns_[size_t(meal)]);
        dropDownLines_[size_t(meal)] = -1;
    }
}

void DayLinesPanel::openDropDown(int index)
{
    DropList* list = dropList(MealOfLine(index));
    if (list->count() > 0 && lines_[size_t(index)]->isEnabled())
        list->openOver(lines_[size_t(index)]);
}

void DayLinesPanel::setLinesOpen(bool open)
{
    if (!open) {
        // A line turned off with the keyboard in it passes the keyboard to
        // the next line, and so on down all of them, each taking its meal's
        // drop-down as it passes: the keyboard leaves the lines first, and
        // the drop-downs go until a line is entered again.
        for (QLineEdit* line : lines_) {
            if (line->hasFocus())
                line->clearFocus();
        }
        hideDropDowns();
    }
    for (QLineEdit* line : lines_)
        line->setEnabled(open);
}

void DayLinesPanel::setTextColor(std::optional<qint32> color)
{
    textColor_ = color;
    for (int index = 0; index < kMenuLines; ++index)
        colourLine(index, lines_[size_t(index)]->hasFocus());
}

QList<QWidget*> DayLinesPanel::colouredPanels() const
{
    return {const_cast<DayLinesPanel*>(this)};
}

int DayLinesPanel::indexOf(const QObject* watched) const
{
    for (int index = 0; index < kMenuLines; ++index) {
        if (lines_[size_t(index)] == watched)
            return index;
    }
    return -1;
}

// The line with the keyboard is yellow, colour 14 of the old table; the
// others take the desktop's field colour.
void DayLinesPanel::colourLine(int index, bool focused)
{
    QLineEdit* line = lines_[size_t(index)];
    QPalette palette = QPalette();
    if (focused)
        palette.setColor(QPalette::Base, ColorFromColorref(QBColor(kFocusColorIndex)));
    if (textColor_)
        palette.setColor(QPalette::Text, ColorFromColorref(*textColor_));
    else if (focused)
        palette.setColor(QPalette::Text, Qt::black);
    line->setPalette(palette);
}

bool DayLinesPanel::eventFilter(QObject* watched, QEvent* event)
{
    const int index = indexOf(watched);
    if (index < 0)
        return QFrame::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::FocusIn:
        colourLine(index, true);
        emit lineEntered(index, static_cast<QFocusEvent*>(event)->reason());
        break;
    case QEvent::FocusOut:
        for (int each = 0; each < kMenuLines; ++each)
            colourLine(each, false);
        break;
    case QEvent::KeyPress: {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter) {
            emit enterPressed(index);
            return true;
        }
        if (key->key() == Qt::Key_F4 || (key->key() == Qt::Key_Down && key->modifiers() == Qt::AltModifier)) {
            openDropDown(index);
            return true;
        }
        if (RefusesTypedKey(lines_[size_t(index)], key))
            return true;
        if (key->key() == Qt::Key_Delete)
            emit deletePressed(index);
        break;
    }
    default:
        break;
    }
    return QFrame::eventFilter(watched, event);
}
