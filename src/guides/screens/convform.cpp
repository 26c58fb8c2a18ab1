#include "guides/screens/convform.h"

#include "common/dialogs.h"
#include "shell/kit/screengrid.h"
#include "shell/kit/screenstatusbar.h"

#include <QEvent>
#include <QAbstractButton>
#include <QAction>
#include <QBoxLayout>
#include <QButtonGroup>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>

Convform::Convform(Dialogs& dialogs, QWidget* parent)
    : ActivityWindow(dialogs, {"Convform", Settings::MainPanelColor, kHelpTopic}, parent)
{
    setWindowTitle(QStringLiteral("Food Measurement Guide"));

    auto* central = new QWidget(this);
    central->setObjectName(QStringLiteral("ConvformArea"));
    setCentralWidget(central);
    QFrame* entryPanel = buildEntryPanel(central);
    // The option frames scroll when the window is smaller than they are.
    auto* optionFrames = new QScrollArea(central);
    optionFrames->setObjectName(QStringLiteral("OptionFramesArea"));
    optionFrames->setFrameShape(QFrame::NoFrame);
    optionFrames->setWidgetResizable(true);
    optionFrames->setWidget(buildOptionFrames(optionFrames));
    QFrame* commandPanel = buildCommandPanel(central);
    auto* layout = new QVBoxLayout(central);
    layout->addWidget(entryPanel);
    layout->addWidget(optionFrames, 1);
    layout->addWidget(commandPanel);

    addColouredPanels(colouredPanels_ + QList<QWidget*>{entryPanel, gridPanel_, commandPanel});
    grid_->applySharedColors();

    setMultipleEntry(false);
    screenStatusBar()->setActivity(windowTitle());
}

// ---- Converting -------------------------------------------------------------

void Convform::chooseOption(int index)
{
    const ConversionOption* option = FindConversionOption(index);
    if (!option)
        return;
    chosenOption_ = index;
    if (QAbstractButton* button = options_->button(index); button && !button->isChecked())
        button->setChecked(true);
    const EntryReading reading = ReadEntry(entryBox_->text(), index);
    if (reading.boxText)
        entryBox_->setText(*reading.boxText);
    entryValue_ = reading.value;
    if (multipleEntry_) {
        entryTouched_ = false;
        showMultiple(*option);
        return;
    }
    if (entryTouched_)
        entryBox_->setText(EntryBoxText(entryValue_));
    entryTouched_ = false;
    showSingle(*option);
}

void Convform::showSingle(const ConversionOption& option)
{
    const SingleConversion single = ConvertSingle(option, entryValue_, roundMode_);
    fromUnit_->setText(single.fromLabel);
    toUnit_->setText(single.toLabel);
    resultPanel_->setText(single.resultText);
    fromUnit_->show();
    resultPanel_->show();
    toUnit_->show();
}

void Convform::showMultiple(const ConversionOption& option)
{
    const EntryRange range = ReadRange(entryValue_, endingBox_->text());
    if (range.endingBoxText)
        endingBox_->setText(*range.endingBoxText);
    const QList<ConversionRow> rows = ConvertRange(option, range, roundMode_);
    grid_->clearRows();
    grid_->setRowCount(int(rows.size()));
    for (int row = 0; row < int(rows.size()); ++row)
        grid_->setRowTexts(row, {rows[row].amount, rows[row].converted});
    fromUnit_->setText(QString::fromLatin1(option.fromUnit) + QStringLiteral(" = "));
    toUnit_->setText(QString::fromLatin1(option.toUnit));
    fromUnit_->show();
    toUnit_->show();
}

void Convform::setRoundMode(RoundMode mode)
{
    roundMode_ = mode;
    commands_->action(ConvformCommand(int(ConvformCommand::Round1) + int(mode) - int(RoundMode::None)))
        ->setChecked(true);
    if (chosenOption_ != kNoOption && !entryBox_->text().isEmpty())
        chooseOption(chosenOption_);
}

// ---- Entry modes ------------------------------------------------------------

void Convform::setMultipleEntry(bool multiple)
{
    multipleEntry_ = multiple;
    commands_->action(multiple ? ConvformCommand::MultipleEntry : ConvformCommand::SingleEntry)->setChecked(true);
    entryBox_->clear();
    endingBox_->clear();
    fromUnit_->clear();
    toUnit_->clear();
    fromUnit_->hide();
    toUnit_->hide();
    resultPanel_->clear();
    resultPanel_->hide();
    grid_->clearRows();
    entryCaption_->setText(EntryCaption(multiple));
    endingCaption_->setVisible(multiple);
    endingBox_->setVisible(multiple);
    gridPanel_->setVisible(multiple);
    placeUnitLabels();
    entryBox_->setFocus(Qt::OtherFocusReason);
    entryBoxEntered();
}

void Convform::placeUnitLabels()
{
    QBoxLayout* from = multipleEntry_ ? resultRow_ : gridLabelRow_;
    QBoxLayout* to = multipleEntry_ ? gridLabelRow_ : resultRow_;
    if (to->indexOf(fromUnit_) >= 0)
        return;
    from->removeWidget(fromUnit_);
    from->removeWidget(toUnit_);
    if (multipleEntry_) {
        // Centred over the grid: between the row's two stretches.
        to->insertWidget(1, fromUnit_);
        to->insertWidget(2, toUnit_);
    } else {
        to->insertWidget(0, fromUnit_);
        to->addWidget(toUnit_);
    }
}

// Entering a box forgets the chosen option, so that the same button can be
// pressed again, and makes the next conversion rewrite the box.
void Convform::entryBoxEntered()
{
    clearChosenOption();
    entryTouched_ = true;
    if (!multipleEntry_) {
        fromUnit_->hide();
        resultPanel_->hide();
        toUnit_->hide();
    }
}

void Convform::clearChosenOption()
{
    chosenOption_ = kNoOption;
    options_->setExclusive(false);
    for (QAbstractButton* button : options_->buttons())
        button->setChecked(false);
    options_->setExclusive(true);
}

// ---- Leaving ----------------------------------------------------------------

bool Convform::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn && (watched == entryBox_ || watched == endingBox_))
        entryBoxEntered();
    return ActivityWindow::eventFilter(watched, event);
}

