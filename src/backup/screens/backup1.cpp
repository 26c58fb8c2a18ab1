#include "backup/screens/backup1.h"

#include "backup/logic/backupmessages.h"
#include "backup/logic/backuptexts.h"
#include "shell/kit/folderchooser.h"
#include "shell/kit/raisedpanel.h"
#include "shell/kit/screenbusy.h"

#include <QApplication>
#include <QDateTime>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// The bar repaints at most this often while a run goes on.
constexpr qint64 kRepaintMs = 50;

QLabel* WrappedLabel(const QString& objectName, const QString& text, QWidget* parent)
{
    auto* label = new QLabel(text, parent);
    label->setObjectName(objectName);
    label->setWordWrap(true);
    label->setTextFormat(Qt::PlainText);
    return label;
}

} // namespace

Backup1::Backup1(Dialogs& dialogs, BackupSet set, QWidget* parent, MediumFactory media)
    : QDialog(parent), dialogs_(dialogs), set_(std::move(set)), media_(std::move(media))
{
    setObjectName(QStringLiteral("Backup1"));
    setModal(true);
    const BackupScreenTexts texts = BackupScreenTextsFor(set_);
    setWindowTitle(texts.title);

    auto* layout = new QVBoxLayout(this);
    buildMenu();
    layout->setMenuBar(menuBar_);
    QLabel* title = WrappedLabel(QStringLiteral("Label1"), texts.title, this);
    QFont bold = title->font();
    bold.setBold(true);
    title->setFont(bold);
    title->setAlignment(Qt::AlignHCenter);
    layout->addWidget(title);
    if (!texts.caution.isEmpty()) {
        QLabel* caution = WrappedLabel(QStringLiteral("Label3"), texts.caution, this);
        caution->setFont(bold);
        layout->addWidget(caution);
    }
    layout->addWidget(WrappedLabel(QStringLiteral("Label2"), texts.text, this));

    chooser_ = new FolderChooserPanel(FolderChooserPanel::Files::Hidden, this);
    layout->addWidget(chooser_, 1);
    connect(chooser_, &FolderChooserPanel::driveUnavailable, this,
            [this] { dialogs_.ask(DriveUnavailableMessage()); });

    bar_ = new QProgressBar(this);
    bar_->setObjectName(QStringLiteral("ProgressBar1"));
    bar_->setTextVisible(false);
    bar_->hide();
    layout->addWidget(bar_);
    status_ = WrappedLabel(QStringLiteral("SSPanel1"), QString(), this);
    MakeRaised(status_);
    status_->setMinimumHeight(status_->fontMetrics().height() + 8);
    layout->addWidget(status_);

    auto* buttons = new QHBoxLayout;
    runButton_ = new QPushButton(texts.runCaption, this);
    runButton_->setObjectName(QStringLiteral("Command1"));
    exitButton_ = new QPushButton(QStringLiteral("E&xit"), this);
    exitButton_->setObjectName(QStringLiteral("Command2"));
    buttons->addStretch(1);
    buttons->addWidget(runButton_);
    buttons->addWidget(exitButton_);
    buttons->addStretch(1);
    layout->addLayout(buttons);
    connect(runButton_, &QPushButton::clicked, this, &Backup1::run);
    connect(exitButton_, &QPushButton::clicked, this, &QDialog::reject);
    runButton_->setDefault(true);
    applyStates();
    resize(620, 560);
}

void Backup1::buildMenu()
{
    menuBar_ = new QMenuBar(this);
    QMenu* options = menuBar_->addMenu(QStringLiteral("&Options"));
    options->setObjectName(QStringLiteral("mOptions"));
    makeBackup_ = options->addAction(QStringLiteral("&Make Backup Disk"), this, &Backup1::run);
    makeBackup_->setObjectName(QStringLiteral("mMakeBackup"));
    restore_ = options->addAction(QStringLiteral("&Restore Files from Disk"), this, &Backup1::run);
    restore_->setObjectName(QStringLiteral("mRestore"));
    options->addSeparator();
    exit_ = options->addAction(QStringLiteral("E&xit"), this, &QDialog::reject);
    exit_->setObjectName(QStringLiteral("mExit"));
}

// The run's own direction is on until a restore has completed (it cannot run
// twice without leaving the screen); the other direction is always off.
void Backup1::applyStates()
{
    const bool canRun = !running_ && !restoreCompleted_;
    runButton_->setEnabled(canRun);
    makeBackup_->setEnabled(canRun && !set_.restore);
    restore_->setEnabled(canRun && set_.restore);
    exitButton_->setEnabled(!running_);
    exit_->setEnabled(!running_);
    chooser_->setEnabled(!running_);
}

void Backup1::setFolder(const QString& folder)
{
    chooser_->setFolder(folder);
}

void Backup1::run()
{
    if (running_ || restoreCompleted_)
        return;
    running_ = true;
    applyStates();
    RunEnd end = RunEnd::NotStarted;
    {
        const ScreenBusy busy;
        BackupContext context{dialogs_, *this, chooser_->folder(), media_};
        end = set_.restore ? RunRestore(set_, context) : RunBackup(set_, context);
    }
    running_ = false;
    restoreCompleted_ = set_.restore && end == RunEnd::Completed;
    applyStates();
}

void Backup1::setStatus(const QString& text)
{
    status_->setText(text);
    letEventsThrough();
}

// A QProgressBar counts in int: larger ranges (bytes of a big file) are
// scaled down.
void Backup1::showBar(qint64 maximum)
{
    barScale_ = std::max<qint64>(1, maximum / 1000000 + 1);
    bar_->setRange(0, int(std::max<qint64>(maximum, 1) / barScale_));
    bar_->setValue(0);
    bar_->show();
}

void Backup1::setBar(qint64 value)
{
    bar_->setValue(int(std::min<qint64>(value / barScale_, bar_->maximum())));
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    if (now - lastRepaint_ >= kRepaintMs) {
        lastRepaint_ = now;
        letEventsThrough();
    }
}

void Backup1::hideBar()
{
    bar_->hide();
}

// Paints and timers run between steps; the user's clicks and keys wait
// until the run is over, so nothing starts a second run under this one.
void Backup1::letEventsThrough()
{
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

bool RunBackup1(QWidget* caller, Dialogs& dialogs, int mode, Backup1Target target, MediumFactory media)
{
    const std::optional<BackupSet> set = BackupSetFor(mode, target);
    if (!set)
        return false;
    Backup1 screen(dialogs, *set, caller, std::move(media));
    screen.exec();
    return screen.restoreCompleted();
}
