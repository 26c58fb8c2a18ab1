#include "shell/screens/backgroundselector.h"

#include "common/colors.h"
#include "common/dialogs.h"
#include "common/programfolder.h"
#include "common/widgets/qtcolors.h"
#include "common/widgets/twips.h"
#include "shell/kit/panelcolors.h"
#include "shell/kit/screenbusy.h"
#include "shell/kit/raisedpanel.h"

#include <QImageReader>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>

namespace {

// The panel's geometry, in twips.
constexpr int kMargin = 300;
constexpr int kTitleHeight = 360;
constexpr int kThumbnailWidth = 1620;   // the pictures are 4 by 3
constexpr int kThumbnailHeight = 1215;
constexpr int kThumbnailGap = 240;
constexpr int kColumns = 4;
constexpr int kCommandGap = 360;        // between the thumbnails and the commands
constexpr int kCommandWidth = 3000;
constexpr int kCommandHeight = 480;
constexpr int kMarkerOffset = 30;       // the marker stands this far out from its thumbnail
constexpr int kRaiseTwips = 130;        // the panel sits this far above the centre

constexpr int kMarkerColorIndex = 12;   // light red, seen on every picture

const QString kMainMenu = QStringLiteral("Main Menu");

} // namespace

BackgroundSelector::BackgroundSelector(Dialogs& dialogs, QWidget* area)
    : QFrame(area), dialogs_(dialogs), area_(area)
{
    setObjectName(QStringLiteral("Background Selector"));
    MakeRaised(this, 3);
    // The panel keeps the standard label's colour, whatever the window shows.
    QPalette standard = palette();
    standard.setColor(QPalette::Window, PanelColors::systemColor());
    setPalette(standard);
    setAutoFillBackground(true);
    buildPanel();
    hide();
    area_->installEventFilter(this);
}

void BackgroundSelector::buildPanel()
{
    const auto px = [this](int twips) { return TwipsToPixels(twips, this); };

    auto* title = new QLabel(QStringLiteral("Background Selector"), this);
    title->setObjectName(QStringLiteral("BackgroundSelectorTitle"));
    QFont titleFont = title->font();
    titleFont.setBold(true);
    titleFont.setPointSize(titleFont.pointSize() + 2);
    title->setFont(titleFont);
    title->setGeometry(px(kMargin), px(kMargin / 2), px(kThumbnailWidth * kColumns), px(kTitleHeight));

    marker_ = new QFrame(this);
    marker_->setObjectName(QStringLiteral("Shape1"));
    marker_->setFrameStyle(QFrame::Box | QFrame::Plain);
    marker_->setLineWidth(std::max(1, px(kMarkerOffset)));
    QPalette markerPalette = marker_->palette();
    markerPalette.setColor(QPalette::WindowText, ColorFromColorref(QBColor(kMarkerColorIndex)));
    marker_->setPalette(markerPalette);
    marker_->hide();

    const int gridTop = kMargin / 2 + kTitleHeight + kMargin / 2;
    for (int i = 0; i < kThumbnailCount; ++i) {
        auto* thumbnail = new QLabel(this);
        thumbnail->setObjectName(QStringLiteral("Image2_%1").arg(i));
        thumbnail->setScaledContents(true);
        thumbnail->setCursor(Qt::PointingHandCursor);
        thumbnail->setToolTip(Background::pictureName(i + 1));
        const int column = i % kColumns;
        const int row = i / kColumns;
        thumbnail->setGeometry(px(kMargin + column * (kThumbnailWidth + kThumbnailGap)),
                               px(gridTop + row * (kThumbnailHeight + kThumbnailGap)), px(kThumbnailWidth),
                               px(kThumbnailHeight));
        thumbnail->installEventFilter(this);
        thumbnails_[i] = thumbnail;
    }

    struct Command {
        const char* caption;
        void (BackgroundSelector::*run)();
    };
    const Command commands[] = {
        {"&Select Color Background", &BackgroundSelector::selectColorBackground},
        {"Use &Default Background", &BackgroundSelector::useDefaultBackground},
        {"Use &Above Background", &BackgroundSelector::useAboveBackground},
        {"&Cancel", &BackgroundSelector::cancel},
    };
    const int commandsLeft = kMargin + kColumns * kThumbnailWidth + (kColumns - 1) * kThumbnailGap + kCommandGap;
    int commandWidth = px(kCommandWidth);
    QList<QPushButton*> buttons;
    for (int i = 0; i < int(std::size(commands)); ++i) {
        auto* button = new QPushButton(QString::fromLatin1(commands[i].caption), this);
        button->setObjectName(QStringLiteral("Command2_%1").arg(i));
        button->setAutoDefault(false);
        connect(button, &QPushButton::clicked, this, commands[i].run);
        commandWidth = std::max(commandWidth, button->sizeHint().width());
        buttons.append(button);
    }
    // One command beside each row of thumbnails.
    for (int i = 0; i < buttons.size(); ++i) {
        const int rowTop = gridTop + i * (kThumbnailHeight + kThumbnailGap);
        buttons[i]->setGeometry(px(commandsLeft), px(rowTop + (kThumbnailHeight - kCommandHeight) / 2), commandWidth,
                                px(kCommandHeight));
    }
    useAbove_ = buttons[2];

    const int rows = (kThumbnailCount + kColumns - 1) / kColumns;
    resize(px(commandsLeft) + commandWidth + px(kMargin),
           px(gridTop + rows * kThumbnailHeight + (rows - 1) * kThumbnailGap + kMargin));
}

QLabel* BackgroundSelector::thumbnail(int index) const
{
    return index >= 0 && index < kThumbnailCount ? thumbnails_[index] : nullptr;
}

void BackgroundSelector::toggle(const Background& current)
{
    if (isOpen()) {
        closePanel();
        return;
    }
    current_ = current;
    open();
}

void BackgroundSelector::open()
{
    const ScreenBusy busy;
    loadThumbnails();
    choice_.clear();
    useAbove_->setEnabled(false);
    const int number = current_.pictureNumber();
    if (number > 0)
        mark(number - 1);
    else
        unmark();
    centre();
    raise();
    show();
}

// Every way out of the panel ends here. A picture clicked but not kept
// gives way to the background in use.
void BackgroundSelector::closePanel()
{
    if (!choice_.isEmpty())
        emit previewBackground(current_);
    choice_.clear();
    hide();
    freeThumbnails();
    emit activityChanged(kMainMenu);
}

void BackgroundSelector::loadThumbnails()
{
    for (int i = 0; i < kThumbnailCount; ++i) {
        QImageReader reader(ResolveFileName(Background::pictureOf(i + 1).pictureFile()));
        reader.setScaledSize(thumbnails_[i]->size());
        // A missing picture leaves its thumbnail empty.
        thumbnails_[i]->setPixmap(QPixmap::fromImage(reader.read()));
    }
}

void BackgroundSelector::freeThumbnails()
{
    for (QLabel* thumbnail : thumbnails_)
        thumbnail->setPixmap(QPixmap());
}

void BackgroundSelector::mark(int index)
{
    for (int i = 0; i < kThumbnailCount; ++i) {
        thumbnails_[i]->setFrameStyle(i == index ? QFrame::Box | QFrame::Plain : QFrame::NoFrame);
        thumbnails_[i]->setLineWidth(1);
    }
    const int offset = TwipsToPixels(kMarkerOffset, this);
    marker_->setGeometry(thumbnails_[index]->geometry().adjusted(-offset, -offset, offset, offset));
    marker_->lower();
    marker_->show();
}

void BackgroundSelector::unmark()
{
    for (QLabel* thumbnail : thumbnails_)
        thumbnail->setFrameStyle(QFrame::NoFrame);
    marker_->hide();
}

void BackgroundSelector::thumbnailClicked(int index)
{
    mark(index);
    useAbove_->setEnabled(true);
    choice_ = Background::pictureName(index + 1);
    emit previewBackground(Background::pictureOf(index + 1));
}

void BackgroundSelector::centre()
{
    move(area_->width() / 2 - width() / 2, area_->height() / 2 - height() / 2 - TwipsToPixels(kRaiseTwips, this));
}

bool BackgroundSelector::pictureInUse() const
{
    return !choice_.isEmpty() || current_.kind == Background::Kind::Picture;
}

qint32 BackgroundSelector::currentColor() const
{
    if (current_.kind == Background::Kind::Standard)
        return ColorrefFromColor(PanelColors::systemColor());
    return current_.color;
}

void BackgroundSelector::selectColorBackground()
{
    const qint32 initial = pictureInUse() ? QBColor(9) : currentColor();
    // The picture goes; the window shows the colour the dialog starts on.
    emit previewBackground(Background::colorOf(initial));
    const std::optional<qint32> color = dialogs_.chooseColor(initial);
    if (color) {
        current_ = Background::colorOf(*color);
        store_(current_);
        emit backgroundChosen(current_);
    } else {
        emit previewBackground(current_);
    }
    choice_.clear();
    closePanel();
}

void BackgroundSelector::useDefaultBackground()
{
    current_ = Background::standard();
    store_(current_);
    emit backgroundChosen(current_);
    choice_.clear();
    closePanel();
}

void BackgroundSelector::useAboveBackground()
{
    if (choice_.isEmpty())
        return;
    current_ = Background{Background::Kind::Picture, kDefaultBackgroundColor, choice_};
    store_(current_);
    emit backgroundChosen(current_);
    choice_.clear();
    closePanel();
}

void BackgroundSelector::cancel()
{
    emit previewBackground(current_);
    choice_.clear();
    closePanel();
}

bool BackgroundSelector::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == area_) {
        if (event->type() == QEvent::Resize && isOpen())
            centre();
    } else if (event->type() == QEvent::MouseButtonRelease
               && static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        for (int i = 0; i < kThumbnailCount; ++i) {
            if (watched == thumbnails_[i]) {
                thumbnailClicked(i);
                return true;
            }
        }
    }
    return QFrame::eventFilter(watched, event);
}
