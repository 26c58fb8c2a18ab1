// Convform's menus, toolbars, panels and option buttons.
#include "guides/screens/convform.h"

#include "common/dialogs.h"
#include "common/widgets/twips.h"
#include "shell/kit/raisedpanel.h"
#include "shell/kit/screengrid.h"

#include <QAction>
#include <QBoxLayout>
#include <QButtonGroup>
#include <QGridLayout>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>

namespace {

// The menu titles (Alt+O, Alt+H) leave Alt+C to the "&Close" button.
constexpr MenuRow kMenus[] = {
    {"mOptions", "&Options"},
    {"mRoundOff", "&Round Off Number", "mOptions", true},
    {"mHelpMenu", "&Help"},
};
constexpr const char* kRoundNames[] = {"mRound1", "mRound2", "mRound3", "mRound4", "mRound5"};

QLabel* BoldLabel(const QString& text, QWidget* parent, const char* objectName)
{
    auto* label = new QLabel(text, parent);
    label->setObjectName(QString::fromLatin1(objectName));
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

// The groups as the screen shows them: three columns, the short groups
// stacked in the first.
const QList<QList<ConversionGroup>> kColumns = {
    {ConversionGroup::CanSizes, ConversionGroup::Temperature, ConversionGroup::EasyEquivalents},
    {ConversionGroup::WeightsAndMeasures},
    {ConversionGroup::HowMuchHowMany},
};

} // namespace

std::vector<CommandRow<ConvformCommand>> Convform::commandRows()
{
    using enum ConvformCommand;
    std::vector<CommandRow<ConvformCommand>> rows = {
        {SingleEntry, {.name = "mSingleEntry", .menu = "mOptions", .caption = "&Single Entry",
                       .toolbar = {Toolbar::Top, 0}, .run = [this] { setMultipleEntry(false); }, .choiceGroup = 1}},
        {MultipleEntry, {.name = "mMultipleEntry", .menu = "mOptions", .caption = "&Multiple Entry",
                         .toolbar = {Toolbar::Top, 1}, .run = [this] { setMultipleEntry(true); }, .choiceGroup = 1}},
    };
    for (int number = 1; number <= 5; ++number) {
        const auto mode = static_cast<RoundMode>(number);
        rows.push_back({ConvformCommand(int(Round1) + number - 1),
                        {.name = kRoundNames[number - 1], .menu = "mRoundOff", .caption = RoundModeCaption(mode),
                         .run = [this, mode] { setRoundMode(mode); }, .choiceGroup = 2}});
    }
    rows.insert(rows.end(), {
        {PanelColor, panelColorCommand("mOptions")},
        {Exit, exitCommand("mOptions", {"&Close", 0})},
        {Help, helpCommand("mHelpMenu", QStringLiteral("Measurement Guide &Help"))},
    });
    return rows;
}

// One line: the entry box (two in multiple entry), then in single entry the
// from unit, the result panel and the to unit.
QFrame* Convform::buildEntryPanel(QWidget* parent)
{
    QFrame* panel = MakeRaisedPanel(QStringLiteral("SSPanel1"), parent);
    auto* row = new QHBoxLayout(panel);
    row->setContentsMargins(12, 10, 12, 10);
    entryCaption_ = BoldLabel(EntryCaption(false), panel, "Text1Caption");
    entryBox_ = new QLineEdit(panel);
    entryBox_->setObjectName(QStringLiteral("Text1"));
    endingCaption_ = BoldLabel(EndingCaption(), panel, "Text2Caption");
    endingBox_ = new QLineEdit(panel);
    endingBox_->setObjectName(QStringLiteral("Text2"));
    for (QLineEdit* box : {entryBox_, endingBox_}) {
        box->setFixedWidth(entryBox_->fontMetrics().horizontalAdvance(QStringLiteral("0,000,000.0000")) + 16);
        box->installEventFilter(this);
        connect(box, &QLineEdit::returnPressed, this,
                [this] { dialogs().tell(InputInformationTitle(), InputInformationText(), Icon::Information); });
    }
    row->addWidget(entryCaption_);
    row->addWidget(entryBox_);
    row->addSpacing(12);
    row->addWidget(endingCaption_);
    row->addWidget(endingBox_);
    row->addSpacing(12);

    // The answer is what the user came for: a size larger than the rest.
    fromUnit_ = BoldLabel({}, panel, "Label1");
    toUnit_ = BoldLabel({}, panel, "Label2");
    QFont answerFont = fromUnit_->font();
    answerFont.setPointSize(answerFont.pointSize() + 2);
    fromUnit_->setFont(answerFont);
    toUnit_->setFont(answerFont);
    resultPanel_ = new QLabel(panel);
    resultPanel_->setObjectName(QStringLiteral("Panel3D1"));
    resultPanel_->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    resultPanel_->setAlignment(Qt::AlignCenter);
    resultPanel_->setMargin(4);
    resultPanel_->setFont(answerFont);
    resultPanel_->setMinimumWidth(resultPanel_->fontMetrics().horizontalAdvance(QStringLiteral("0000")));
    resultPanel_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Preferred);
    resultRow_ = new QHBoxLayout;
    resultRow_->setSpacing(0);
    resultRow_->addWidget(fromUnit_);
    resultRow_->addWidget(resultPanel_);
    // The to unit follows the result panel at 70 twips, however wide the
    // result is.
    resultRow_->addSpacing(TwipsToPixels(70, panel));
    resultRow_->addWidget(toUnit_);
    row->addLayout(resultRow_);
    row->addStretch(1);
    return panel;
}

// The first column is the longest; the grid of multiple entry takes the
// room under the other two.
QWidget* Convform::buildOptionFrames(QWidget* parent)
{
    auto* area = new QWidget(parent);
    area->setObjectName(QStringLiteral("OptionArea"));
    auto* grid = new QGridLayout(area);
    grid->setContentsMargins(0, 0, 0, 0);
    options_ = new QButtonGroup(this);
    options_->setObjectName(QStringLiteral("Option1"));
    for (int column = 0; column < kColumns.size(); ++column) {
        auto* stack = new QVBoxLayout;
        for (const ConversionGroup group : kColumns[column]) {
            auto* frame = new QGroupBox(GroupCaption(group), area);
            frame->setObjectName(QStringLiteral("Frame%1").arg(static_cast<int>(group) + 1));
            frame->setAutoFillBackground(true);
            QFont bold = frame->font();
            bold.setBold(true);
            frame->setFont(bold);
            auto* buttons = new QVBoxLayout(frame);
            buttons->setSpacing(2);
            for (const ConversionOption* option : OptionsOfGroup(group)) {
                auto* button = new QRadioButton(QString::fromLatin1(option->caption), frame);
                button->setObjectName(QStringLiteral("Option1_%1").arg(option->index));
                QFont plain = button->font();
                plain.setBold(false);
                button->setFont(plain);
                button->setFocusPolicy(Qt::TabFocus);
                options_->addButton(button, option->index);
                buttons->addWidget(button);
            }
            stack->addWidget(frame);
            colouredPanels_.append(frame);
        }
        stack->addStretch(1);
        if (column == 0)
            grid->addLayout(stack, 0, column, 2, 1);
        else
            grid->addLayout(stack, 0, column);
    }
    grid->addWidget(buildGridPanel(area), 1, 1, 1, 2);
    grid->setRowStretch(1, 1);
    connect(options_, &QButtonGroup::idClicked, this, &Convform::chooseOption);
    return area;
}

// Multiple entry: the unit labels, the heading and the grid.
QFrame* Convform::buildGridPanel(QWidget* parent)
{
    gridPanel_ = MakeRaisedPanel(QStringLiteral("SSPanel2"), parent);
    auto* column = new QVBoxLayout(gridPanel_);
    gridLabelRow_ = new QHBoxLayout;
    gridLabelRow_->setSpacing(0);
    gridLabelRow_->addStretch(1);
    gridLabelRow_->addStretch(1);
    column->addLayout(gridLabelRow_);
    auto* heading = BoldLabel(MultipleEntryHeading(), gridPanel_, "Label3");
    heading->setAlignment(Qt::AlignCenter);
    column->addWidget(heading);
    grid_ = new ScreenGrid(QStringLiteral("Grid1"), gridPanel_);
    grid_->setColumnCount(2);
    grid_->setColumnAlignment(0, Qt::AlignCenter);
    grid_->setColumnAlignment(1, Qt::AlignCenter);
    grid_->horizontalHeader()->hide();
    grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    grid_->verticalHeader()->hide();
    grid_->verticalHeader()->setDefaultSectionSize(grid_->fontMetrics().height() + 6);
    grid_->setSelectionKind(ScreenGrid::Selection::None);
    // The grid is as wide as its heading, so each half of the heading stands
    // over its column.
    grid_->setFixedWidth(heading->sizeHint().width() + grid_->verticalScrollBar()->sizeHint().width()
                         + 2 * grid_->frameWidth());
    column->addWidget(grid_, 1, Qt::AlignHCenter);
    return gridPanel_;
}

QFrame* Convform::buildCommandPanel(QWidget* parent)
{
    QFrame* panel = MakeRaisedPanel(QStringLiteral("SSPanel3"), parent);
    commands_ = makeCommands<ConvformCommand>(kMenus, commandRows(), panel, "Command1");
    commands_->action(ConvformCommand::SingleEntry)->setChecked(true);
    commands_->action(ConvformCommand(int(ConvformCommand::Round1) + int(roundMode_) - int(RoundMode::None)))
        ->setChecked(true);
    auto* row = new QHBoxLayout(panel);
    row->addStretch(1);
    row->addWidget(commands_->button(ConvformCommand::Exit));
    return panel;
}
