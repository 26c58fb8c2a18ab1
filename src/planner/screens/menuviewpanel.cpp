#include "planner/screens/menuviewpanel.h"

#include "shell/kit/screengrid.h"

#include <QComboBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

namespace {

constexpr double kColumnShares[] = {.18, .27, .27, .27};

} // namespace

MenuViewPanel::MenuViewPanel(QWidget* parent)
    : OverlayPanel(QStringLiteral("ViewPanel"), QStringLiteral("Select Menu to Print/View"), parent)
{
    only_ = new QRadioButton(QStringLiteral("Current Date Only"), this);
    only_->setObjectName(QStringLiteral("Option1_0"));
    plus_ = new QRadioButton(QStringLiteral("Current Date plus the next"), this);
    plus_->setObjectName(QStringLiteral("Option1_1"));
    days_ = new QComboBox(this);
    days_->setObjectName(QStringLiteral("Combo5"));
    for (int day = 1; day <= kLongestRun; ++day)
        days_->addItem(QString::number(day));
    days_->setCurrentIndex(-1);
    days_->setMaxVisibleItems(kLongestRun);
    auto* choices = new QHBoxLayout;
    choices->addWidget(only_);
    choices->addSpacing(16);
    choices->addWidget(plus_);
    choices->addWidget(days_);
    choices->addWidget(new QLabel(QStringLiteral("days"), this));
    choices->addStretch();
    body()->addLayout(choices);

    table_ = new ScreenGrid(QStringLiteral("ViewGrid"), this);
    table_->setHeadings({QStringLiteral("Day"), QStringLiteral("Breakfast"), QStringLiteral("Lunch"),
                         QStringLiteral("Dinner")});
    table_->setSelectionKind(ScreenGrid::Selection::None);
    table_->setWordWrap(true);
    table_->verticalHeader()->hide();
    table_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table_->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table_->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    table_->viewport()->installEventFilter(this);
    table_->hide();
    body()->addWidget(table_, 1);

    const QString captions[] = {QStringLiteral("&View"), QStringLiteral("&Print Options"), QStringLiteral("&Close")};
    for (int index = 0; index < 3; ++index)
        buttons_[index] = addButton(QStringLiteral("Command4_%1").arg(index), captions[index]);
    connect(buttons_[kView], &QPushButton::clicked, this, &MenuViewPanel::viewRequested);
    connect(buttons_[kPrintOptions], &QPushButton::clicked, this, &MenuViewPanel::printOptionsRequested);
    connect(buttons_[kClose], &QPushButton::clicked, this, &MenuViewPanel::closeRequested);

    only_->setChecked(true);
    days_->setEnabled(false);
    connect(only_, &QRadioButton::toggled, this, [this](bool on) {
        days_->setEnabled(!on);
        emit choiceChanged();
    });
    connect(days_, &QComboBox::currentIndexChanged, this, &MenuViewPanel::choiceChanged);
}

bool MenuViewPanel::currentDateOnly() const
{
    return only_->isChecked();
}

int MenuViewPanel::followingDays() const
{
    return currentDateOnly() ? 0 : FollowingDaysOf(days_->currentText());
}

void MenuViewPanel::showView(const MenuView& view, double lineHeight)
{
    table_->clearRows();
    for (int row = 0; row < view.rows.size(); ++row) {
        const MenuViewRow& day = view.rows[row];
        table_->setRowTexts(row, {day.day, day.breakfast, day.lunch, day.dinner});
        table_->setRowHeight(row, int(lineHeight * std::max(day.largestCount, 1)));
    }
    table_->show();
    fitColumns();
    table_->scrollToTop();
}

void MenuViewPanel::hideTable()
{
    table_->hide();
    table_->clearRows();
}

bool MenuViewPanel::tableShown() const
{
    return table_->isVisible();
}

void MenuViewPanel::setTextColor(std::optional<qint32> color)
{
    // The shared grid background; the text takes the planner's own colour,
    // never the other screens' grid text colour.
    GridColors colors = ReadSharedGridColors();
    colors.textColor = color;
    table_->applyColors(colors);
}

void MenuViewPanel::fitColumns()
{
    const int width = table_->viewport()->width();
    for (int column = 0; column < 4; ++column)
        table_->setColumnWidth(column, int(width * kColumnShares[column]));
}

bool MenuViewPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == table_->viewport() && event->type() == QEvent::Resize)
        fitColumns();
    return OverlayPanel::eventFilter(watched, event);
}
