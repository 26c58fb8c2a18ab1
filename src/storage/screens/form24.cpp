#include "storage/screens/form24.h"

#include "common/clock.h"
#include "common/writefailure.h"
#include "print/screens/printoptionspanel.h"
#include "shell/kit/focuscolour.h"
#include "shell/kit/popupcalendar.h"
#include "shell/kit/raisedpanel.h"
#include "shell/kit/screengrid.h"
#include "shell/kit/screenstatusbar.h"
#include "shell/logic/processvalues.h"
#include "shell/screens/backgroundselector.h"
#include "storage/logic/storageoutput.h"
#include "storage/screens/piepanel.h"
#include "storage/screens/percentpanel.h"
#include "storage/screens/storageexportpanel.h"

#include <QAction>
#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// The item column takes this share of the grid, at least kItemWidth pixels;
// the others share the rest, at least kValueWidth each.
constexpr double kItemShare = 0.24;
constexpr int kItemWidth = 150;
constexpr int kValueWidth = 64;

} // namespace

Form24::Form24(Dialogs& dialogs, StorageKind kind, QWidget* parent)
    : ActivityWindow(dialogs, {"Form24", Settings::Form24PanelColor, kHelpTopic}, parent), model_(kind),
      clock_(&SystemTime())
{
    auto* central = new QWidget(this);
    central->setObjectName(QStringLiteral("Form24Area"));
    setCentralWidget(central);

    captionStrip_ = new QLabel(central);
    captionStrip_->setObjectName(QStringLiteral("SSPanel1"));
    captionStrip_->setAlignment(Qt::AlignCenter);
    MakeRaised(captionStrip_);
    captionStrip_->setMargin(4);
    captionStrip_->setWordWrap(true);
    QFont captionFont = captionStrip_->font();
    captionFont.setPointSize(captionFont.pointSize() + 3);
    captionFont.setBold(true);
    captionStrip_->setFont(captionFont);

    QWidget* fields = buildFields(central);
    QWidget* categories = buildCategories(central);
    buildGrid(central);
    pie_ = new PiePanel(central);
    commandPanel_ = MakeRaisedPanel(QStringLiteral("SSPanel6"), central);
    buildCommands(commandPanel_);

    auto* middle = new QHBoxLayout;
    middle->addWidget(categories);
    middle->addWidget(grid_, 1);
    middle->addWidget(pie_);
    auto* layout = new QVBoxLayout(central);
    layout->addWidget(captionStrip_);
    layout->addWidget(fields);
    layout->addLayout(middle, 1);
    layout->addWidget(commandPanel_);

    calendar_ = new PopupCalendar(QStringLiteral("MonthView1"), central);
    calendar_->setClock(*clock_);
    connect(calendar_, &PopupCalendar::datePicked, this, &Form24::datePicked);
    percent_ = new PercentPanel(central);
    connect(percent_, &PercentPanel::closeRequested, this, &Form24::closeRollup);
    export_ = new StorageExportPanel(dialogs, [this] { return exportRows(); }, central);
    connect(export_, &StorageExportPanel::closeRequested, this, &Form24::closeExport);
    buildPrintPanel(central);
    // The selector is larger than a small screen's grid area: it lies over
    // the whole window.
    gridColors_ = new GridColorChoice(dialogs, grid_, this, Settings::Form24GridBackground, Settings::Form24GridTextColor);

    QList<QWidget*> coloured{captionStrip_, fieldsPanel_, categoryPanel_, commandPanel_, pie_, percent_, export_};
    coloured += printPanel_->colouredPanels();
    addColouredPanels(coloured);
    gridColors_->apply();
    declareEscapeOrder();

    model_.load();
    showKind();
}

// The children are taken down after this part of the screen: a field that
// loses the keyboard on the way must not call back into it.
Form24::~Form24()
{
    for (QObject* child : findChildren<QObject*>())
        disconnect(child, nullptr, this, nullptr);
}

QWidget* Form24::buildFields(QWidget* area)
{
    fieldsPanel_ = MakeRaisedPanel(QStringLiteral("SSPanel2"), area);
    auto* row = new QHBoxLayout(fieldsPanel_);
    auto* familyLabel = new QLabel(QStringLiteral("Number in Family:"), fieldsPanel_);
    familyLabel->setObjectName(QStringLiteral("Label1"));
    family_ = new QLineEdit(fieldsPanel_);
    family_->setObjectName(QStringLiteral("Text2"));
    family_->setMaxLength(4);
    family_->setFixedWidth(family_->fontMetrics().horizontalAdvance(QStringLiteral("00000")) + 16);
    familyLabel->setBuddy(family_);
    auto* inputLabel = new QLabel(QStringLiteral("Input Box:"), fieldsPanel_);
    inputLabel->setObjectName(QStringLiteral("Label2"));
    input_ = new QLineEdit(fieldsPanel_);
    input_->setObjectName(QStringLiteral("Text1"));
    inputLabel->setBuddy(input_);
    row->addWidget(familyLabel);
    row->addWidget(family_);
    row->addSpacing(16);
    row->addWidget(inputLabel);
    row->addWidget(input_, 1);
    for (QLineEdit* field : {family_, input_}) {
        ShowFocusColourWhileFocused(field);
        field->installEventFilter(this);
    }
    connect(family_, &QLineEdit::editingFinished, this, &Form24::familyEntered);
    // A double quote would end the value in the file, whichever way it came.
    connect(input_, &QLineEdit::textEdited, this, [this](const QString& text) {
        if (text.contains(u'"'))
            input_->setText(QString(text).remove(u'"'));
    });
    return fieldsPanel_;
}

QWidget* Form24::buildCategories(QWidget* area)
{
    categoryPanel_ = MakeRaisedPanel(QStringLiteral("SSPanel4"), area);
    auto* column = new QVBoxLayout(categoryPanel_);
    for (int index = 0; index < kCategoryButtons; ++index) {
        auto* button = new QPushButton(categoryPanel_);
        button->setObjectName(QStringLiteral("Command2_%1").arg(index));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, [this, index] { chooseCategory(index); });
        categoryButtons_.append(button);
        column->addWidget(button);
    }
    column->addStretch();
    return categoryPanel_;
}

void Form24::buildGrid(QWidget* area)
{
    grid_ = new ScreenGrid(QStringLiteral("VSGd1"), area);
    grid_->setSelectionKind(ScreenGrid::Selection::SingleCell);
    grid_->verticalHeader()->hide();
    grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    grid_->horizontalHeader()->setHighlightSections(false);
    grid_->setContextMenuPolicy(Qt::CustomContextMenu);
    grid_->viewport()->installEventFilter(this);
    grid_->setMinimumWidth(kItemWidth + 2 * kValueWidth);
    connect(grid_, &ScreenGrid::currentCellChanged, this,
            [this](int row, int column) { cursorMoved(row, column); });
    connect(grid_, &ScreenGrid::cellPressed, this, [this](int row, int column) {
        // A press on the cell the cursor already stands on is a new entry too.
        if (pressOnCurrentCell_)
            cursorMoved(row, column);
        pressOnCurrentCell_ = false;
    });
    connect(grid_, &ScreenGrid::customContextMenuRequested, this, &Form24::rowClicked);
}

QPushButton* Form24::categoryButton(int index) const
{
    return categoryButtons_.value(index);
}

void Form24::setBackupOpener(BackupOpener opener)
{
    backupOpener_ = std::move(opener);
    applyCommandStates();
}

void Form24::setClock(const Clock& clock)
{
    clock_ = &clock;
    calendar_->setClock(clock);
}

// ---- The kind ----------------------------------------------------------------

void Form24::showKind()
{
    const StorageKindInfo& info = KindInfo(model_.kind());
    setWindowTitle(model_.caption());
    captionStrip_->setText(model_.caption());
    for (int index = 0; index < kCategoryButtons; ++index) {
        const char* caption = info.categories[size_t(index)].caption;
        categoryButtons_[index]->setText(caption ? QString::fromLatin1(caption) : QString());
        categoryButtons_[index]->setVisible(caption != nullptr);
    }
    commands_->action(Form24Command::Rollup)->setVisible(model_.kind() == StorageKind::Basic);
    tickKind();
    grid_->setHeadings(GridHeadings(Process().DateFormatMode));
    family_->setText(model_.familySize());
    showCategory(kAllCategory);
    fitColumns();
    screenStatusBar()->setActivity(model_.caption());
}

// The exit question comes first: the other kind's table replaces this one.
void Form24::switchKind(StorageKind kind)
{
    if (kind != model_.kind() && readyToClose()) {
        model_.switchKind(kind);
        showKind();
        return;
    }
    tickKind();
}

void Form24::tickKind()
{
    const Form24Command ticks[] = {Form24Command::KindBasic, Form24Command::KindEmergency,
                                   Form24Command::KindAdditional};
    commands_->action(ticks[int(model_.kind())])->setChecked(true);
}

// ---- The grid ------------------------------------------------------------------

void Form24::fillGrid()
{
    const QSignalBlocker quiet(grid_);
    filling_ = true;
    const RowRange rows = model_.shownRows();
    grid_->setRowCount(rows.count());
    for (int row = rows.first; row <= rows.last; ++row)
        grid_->setRowTexts(row - rows.first, model_.table().rowTexts(row));
    filling_ = false;
}

void Form24::fitColumns()
{
    const int width = grid_->viewport()->width();
    const int item = qMax(kItemWidth, int(width * kItemShare));
    const int value = qMax(kValueWidth, (width - item) / (kStorageColumns - 1));
    grid_->setColumnWidth(kItemColumn, item);
    for (int column = 1; column < grid_->columnCount(); ++column)
        grid_->setColumnWidth(column, value);
}

void Form24::chooseCategory(int category)
{
    if (model_.dataChanged()) {
        const Message question{QStringLiteral("Food Storage"),
                               QStringLiteral("These button are for review only!\n"
                                              "Save changes made to Food Storage data before this action?"),
                               Buttons::YesNoCancel, Icon::Question, 1};
        const auto reload = [this] {
            model_.load();
            family_->setText(model_.familySize());
        };
        if (!saveQuestionAllows(question, [this] { return save(); }, reload))
            return;
    }
    showCategory(category);
}

void Form24::showCategory(int category)
{
    model_.showCategory(category);
    calendar_->hide();
    fillGrid();
    forgetEntryCell();
    {
        const QSignalBlocker quiet(grid_);
        grid_->setCurrentCell(0, 0);
    }
    grid_->scrollToTop();
    applyCommandStates();
    showPie();
}

void Form24::showPie()
{
    QString group = categoryButtons_[model_.category()]->text();
    group.remove(u'&');
    pie_->showSlices(group, model_.pie());
}

bool Form24::save()
{
    familyEntered(); // a size typed but not yet left is saved too
    const StorageSaveResult result = model_.save();
    showCategory(kAllCategory);
    if (!result.saved()) {
        dialogs().ask(WriteFailedMessage(result.failedFile));
        return false;
    }
    return true;
}

void Form24::applyCommandStates()
{
    on_ = CommandStatesFor({model_.kind(), model_.category(), panel_, bool(backupOpener_)});
    commands_->refresh();
    input_->setEnabled(on_.entryFields);
    family_->setEnabled(on_.entryFields);
    for (int index = 0; index < kCategoryButtons; ++index)
        categoryButtons_[index]->setEnabled(on_.categories[size_t(index)]);
}

bool Form24::readyToClose()
{
    if (!model_.dataChanged())
        return true;
    const Message question{QStringLiteral("Food Storage"),
                           QStringLiteral("Save changes made to Food Storage data before exiting?"),
                           Buttons::YesNoCancel, Icon::Question, 1};
    return saveQuestionAllows(question, [this] { return save(); });
}

bool Form24::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        auto* key = static_cast<QKeyEvent*>(event);
        if (watched == input_)
            return inputKeyPressed(key);
        if (watched == family_)
            return familyKeyPressed(key);
    }
    if (grid_ && watched == grid_->viewport()) {
        if (event->type() == QEvent::Resize)
            fitColumns();
        if (event->type() == QEvent::MouseButtonPress) {
            const QModelIndex at = grid_->indexAt(static_cast<QMouseEvent*>(event)->position().toPoint());
            pressOnCurrentCell_ = at.isValid() && at == grid_->currentIndex();
        }
    }
    return ActivityWindow::eventFilter(watched, event);
}

void Form24::resizeEvent(QResizeEvent* event)
{
    ActivityWindow::resizeEvent(event);
    // The print options panel covers the whole screen below the toolbar.
    printPanel_->setGeometry(centralWidget()->rect());
}
