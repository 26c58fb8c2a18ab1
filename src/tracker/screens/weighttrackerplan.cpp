// WeightTracker's plan panel and photographs, the graph, and the printout
// on the shared print options panel.
#include "tracker/screens/weighttracker.h"

#include "common/clock.h"
#include "common/writefailure.h"
#include "print/logic/printfont.h"
#include "print/screens/printoptionspanel.h"
#include "shell/kit/picturechooserpanel.h"
#include "shell/kit/popupcalendar.h"
#include "shell/kit/screenstatusbar.h"
#include "tracker/logic/trackerentry.h"
#include "tracker/logic/trackersettings.h"
#include "tracker/screens/enlargedpicturepanel.h"
#include "tracker/screens/planpanel.h"
#include "tracker/screens/trackerprintoptions.h"
#include "tracker/screens/weightgraphpanel.h"

#include <QFileInfo>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QStackedWidget>

namespace {

// Auto Size fits 56 letters "N" across the page.
const QString kAutoSizeTestLine(56, QLatin1Char('N'));
const PrintFontSlots kPrintFontSlots{Settings::WeightTrackerPrintFontName, Settings::WeightTrackerPrintFontSize};
const QString kChartFile = QStringLiteral("Chartxxx.jpg");

// The picture path and date of a photograph slot.
QString TrackerFields::*PictureOf(int slot)
{
    return slot == 0 ? &TrackerFields::beginningPicture : &TrackerFields::currentPicture;
}
QString TrackerFields::*PhotoDateOf(int slot)
{
    return slot == 0 ? &TrackerFields::beginningPhotoDate : &TrackerFields::currentPhotoDate;
}

} // namespace

void WeightTracker::buildPlan()
{
    connect(plan_->comments(), &QPlainTextEdit::textChanged, this, &WeightTracker::commentsEdited);
    for (int slot = 0; slot < kPhotoSlots; ++slot) {
        connect(plan_->slot(slot).addEdit, &QPushButton::clicked, this, [this, slot] { openChooser(slot); });
        connect(plan_->slot(slot).enlarge, &QPushButton::clicked, this, [this, slot] { enlarge(slot); });
        QLineEdit* date = plan_->slot(slot).date;
        connect(date, &QLineEdit::textEdited, this,
                [this, date, slot] { fieldEdited(date, PhotoDateOf(slot), false); });
    }
}

void WeightTracker::showPlan()
{
    closeCalendarAndPanels();
    pages_->setCurrentWidget(planScroll_);
    pages_->show();
}

void WeightTracker::showPictures()
{
    for (int slot = 0; slot < kPhotoSlots; ++slot)
        plan_->showThumbnail(slot, model_.fields().*PictureOf(slot));
}

// The comments stop at 1000 characters and refuse the double quote; line
// breaks are kept as the file keeps them.
void WeightTracker::commentsEdited()
{
    QPlainTextEdit* comments = plan_->comments();
    QString text = comments->toPlainText();
    QString kept = text;
    kept.remove(u'"');
    QString stored = QString(kept).replace(u'\n', QLatin1String("\r\n"));
    while (stored.size() > kCommentsLimit) {
        kept.chop(1);
        stored = QString(kept).replace(u'\n', QLatin1String("\r\n"));
    }
    if (kept != text) {
        const QSignalBlocker quiet(comments);
        comments->setPlainText(kept);
        comments->moveCursor(QTextCursor::End);
    }
    model_.fields().comments = stored;
    model_.setChanged(true);
    plan_->showCommentLength(int(stored.size()));
}

void WeightTracker::openChooser(int slot)
{
    calendar_->hide();
    closeCalendarAndPanels();
    chooserSlot_ = slot;
    panel_ = TrackerPanel::Chooser;
    applyCommandStates();
    const QString heading = slot == 0 ? QStringLiteral("Select Beginning Picture") : QStringLiteral("Select Current Picture");
    chooser_->resize(centralWidget()->size() * 0.9);
    chooser_->openFor(heading, model_.fields().*PictureOf(slot), ReadPictureFolder());
    chooser_->resize(chooser_->size().boundedTo(centralWidget()->size()));
    chooser_->centreInParent();
}

void WeightTracker::pictureEntered(const QString& path, const QString& folder)
{
    if (const WriteOutcome outcome = StorePictureFolder(folder); !outcome) {
        dialogs().ask(WriteFailedMessage(outcome.failedFile));
        return;
    }
    model_.fields().*PictureOf(chooserSlot_) = path;
    model_.setChanged(true);
    closeChooser();
    showPictures();
    QLineEdit* date = plan_->slot(chooserSlot_).date;
    if (date->text() == QLatin1String(kPhotoDatePlaceholder))
        date->setFocus(Qt::OtherFocusReason);
}

// The slot is emptied; the picture file on the disk stays.
void WeightTracker::pictureDeleted()
{
    model_.fields().*PictureOf(chooserSlot_) = QString();
    model_.fields().*PhotoDateOf(chooserSlot_) = QString::fromLatin1(kPhotoDatePlaceholder);
    plan_->slot(chooserSlot_).date->setText(QString::fromLatin1(kPhotoDatePlaceholder));
    model_.setChanged(true);
    closeChooser();
    showPictures();
}

void WeightTracker::closeChooser()
{
    closePanel(chooser_);
}

void WeightTracker::enlarge(int slot)
{
    calendar_->hide();
    enlarged_->showPicture(slot == 0 ? QStringLiteral("Beginning Picture") : QStringLiteral("Current Picture"),
                           model_.fields().*PictureOf(slot), model_.fields().*PhotoDateOf(slot));
}

// The graph is made ready after a load and a save without being shown.
void WeightTracker::rebuildGraph()
{
    graph_->plot(model_.graph());
}

void WeightTracker::showGraph()
{
    calendar_->hide();
    rebuildGraph();
    graph_->resize(centralWidget()->size() * 0.9);
    graph_->show();
    graph_->raise();
    graph_->centreInParent();
    graph_->closeButton()->setFocus(Qt::OtherFocusReason);
    panel_ = TrackerPanel::Graph;
    applyCommandStates();
}

void WeightTracker::buildPrintPanel(QWidget* area)
{
    printPanel_ = new PrintOptionsPanel(dialogs(), kAutoSizeTestLine, Settings::WeightTrackerGuideLines, area);
    printPanel_->setFontSlots(kPrintFontSlots);
    printOptions_ = new TrackerPrintOptions;
    printPanel_->addOptionGroup(printOptions_);
    printPanel_->setComposer([this](PageBuilder& page) { composePrintout(page); });
    connect(printOptions_, &TrackerPrintOptions::changed, printPanel_, &PrintOptionsPanel::recompose);
    connect(printPanel_, &PrintOptionsPanel::exited, this, &WeightTracker::leavePrintOptions);
}

void WeightTracker::openPrintPanel()
{
    if (!promptIfChanged(true))
        return;
    closeCalendarAndPanels();
    // The graph goes to the page as a picture.
    rebuildGraph();
    if (!graph_->exportJpeg(kChartFile)) {
        dialogs().ask(WriteFailedMessage(kChartFile));
        return;
    }
    panel_ = TrackerPanel::Print;
    applyCommandStates();
    menuBar()->hide();
    screenStatusBar()->setActivity(QStringLiteral("Print Options"));
    const TrackerFields& f = model_.fields();
    const auto there = [](const QString& path) { return !path.trimmed().isEmpty() && QFileInfo::exists(path.trimmed()); };
    printOptions_->preset(there(f.beginningPicture), there(f.currentPicture));
    printPanel_->setDocumentName(model_.name() + QStringLiteral(" Weight Tracker"));
    // The font the tracker printed with last time, where it was stored.
    PrintFont() = StoredPrintFont(kPrintFontSlots, PrintFont());
    printPanel_->setGeometry(centralWidget()->rect());
    printPanel_->open();
}

void WeightTracker::leavePrintOptions()
{
    menuBar()->show();
    screenStatusBar()->setActivity(QStringLiteral("Weight Tracker"));
    closePanel(nullptr, commands_->button(TrackerCommand::Print));
}

void WeightTracker::composePrintout(PageBuilder& page)
{
    TrackerPrintout printout;
    printout.name = model_.name();
    printout.goalReached = !goalNote_.isEmpty();
    printout.today = clock_->today();
    printout.fields = model_.fields();
    printout.rows = model_.rows();
    printout.chartFile = kChartFile;
    printout.chartAspect = double(WeightGraphPanel::kExportHeight) / WeightGraphPanel::kExportWidth;
    printout.checks = printOptions_->checks();
    printout.font = PrintFont();
    ComposeTrackerPrintout(page, printout);
}

// A panel closes: the commands come back on and the keyboard goes to a
// command button before the panel hides, so it does not wander on.
void WeightTracker::closePanel(OverlayPanel* panel, QPushButton* focus)
{
    panel_ = TrackerPanel::None;
    applyCommandStates();
    (focus ? focus : commands_->button(TrackerCommand::View))->setFocus(Qt::OtherFocusReason);
    if (panel)
        panel->hide();
}
