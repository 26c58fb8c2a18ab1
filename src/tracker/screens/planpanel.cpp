#include "tracker/screens/planpanel.h"

#include "shell/kit/raisedpanel.h"
#include "tracker/logic/trackerentry.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QImageReader>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// The thumbnails fit a fifth of this size across, and 0.18 of it down.
const QSizeF kThumbnailArea(900, 700);

QLineEdit* Field(const char* name, int limit, QWidget* parent)
{
    auto* field = new QLineEdit(parent);
    field->setObjectName(QString::fromLatin1(name));
    field->setMaxLength(limit);
    return field;
}

} // namespace

PlanPanel::PlanPanel(QWidget* parent) : QFrame(parent)
{
    setObjectName(QStringLiteral("SSPanelPlan"));
    MakeRaised(this);
    auto* caption = new QLabel(QStringLiteral("Exercise Plan and Information"), this);
    QFont bold = caption->font();
    bold.setBold(true);
    caption->setFont(bold);
    auto* warning = new QLabel(
        QStringLiteral("WARNING: Please Before starting any exercise plan consult with your physician."), this);
    warning->setObjectName(QStringLiteral("lblWarning"));
    warning->setWordWrap(true);

    days_ = Field("Text5", kDaysPerWeekLimit, this);
    time_ = Field("Text6", kTimePerPeriodLimit, this);
    types_ = Field("Text7", kExerciseTypesLimit, this);
    auto* form = new QFormLayout;
    form->addRow(QStringLiteral("Average Number of Days Per Week:"), days_);
    form->addRow(QStringLiteral("Average Time Per Exercise Period:"), time_);
    form->addRow(QStringLiteral("Types of Exercise:"), types_);

    comments_ = new QPlainTextEdit(this);
    comments_->setObjectName(QStringLiteral("Text10"));
    comments_->setTabChangesFocus(true);
    comments_->setMinimumHeight(80);
    auto* commentsCaption = new QLabel(QStringLiteral("Additional Comments:"), this);
    auto* lengthCaption = new QLabel(QStringLiteral("Length (Max. = 1000) :"), this);
    counter_ = new QLabel(QStringLiteral("0"), this);
    counter_->setObjectName(QStringLiteral("lblLength"));
    auto* commentsHead = new QHBoxLayout;
    commentsHead->addWidget(commentsCaption);
    commentsHead->addStretch();
    commentsHead->addWidget(lengthCaption);
    commentsHead->addWidget(counter_);

    auto* photos = new QHBoxLayout;
    for (int index = 0; index < kPhotoSlots; ++index)
        photos->addWidget(buildSlot(index));

    auto* layout = new QVBoxLayout(this);
    layout->addWidget(caption);
    layout->addWidget(warning);
    layout->addLayout(form);
    layout->addLayout(commentsHead);
    layout->addWidget(comments_, 1);
    layout->addLayout(photos);
}

QWidget* PlanPanel::buildSlot(int index)
{
    auto* frame = new QFrame(this);
    frame->setObjectName(QStringLiteral("SSPanelPhoto_%1").arg(index));
    frame->setFrameShape(QFrame::StyledPanel);
    PhotoSlotWidgets& slot = slots_[size_t(index)];
    slot.caption = new QLabel(index == 0 ? QStringLiteral("Beginning Picture") : QStringLiteral("Current Picture   "),
                              frame);
    slot.thumbnail = new QLabel(frame);
    slot.thumbnail->setObjectName(QStringLiteral("Image3_%1").arg(index));
    slot.thumbnail->setFixedSize(int(0.2 * kThumbnailArea.width()), int(0.18 * kThumbnailArea.height()));
    slot.thumbnail->setAlignment(Qt::AlignCenter);
    slot.addEdit = new QPushButton(QStringLiteral("Add/Edit"), frame);
    slot.addEdit->setObjectName(QStringLiteral("cmdAddEdit_%1").arg(index));
    slot.addEdit->setAutoDefault(false);
    slot.enlarge = new QPushButton(QStringLiteral("Click to Enlarge"), frame);
    slot.enlarge->setObjectName(QStringLiteral("cmdEnlarge_%1").arg(index));
    slot.enlarge->setAutoDefault(false);
    slot.date = Field(index == 0 ? "Text8" : "Text9", kPhotoDateLimit, frame);
    auto* grid = new QGridLayout(frame);
    grid->addWidget(slot.caption, 0, 0, 1, 2);
    grid->addWidget(slot.thumbnail, 1, 0, 3, 1);
    grid->addWidget(slot.addEdit, 1, 1);
    grid->addWidget(slot.enlarge, 2, 1);
    grid->addWidget(slot.date, 4, 0, 1, 2);
    return frame;
}

void PlanPanel::showThumbnail(int index, const QString& path)
{
    QLabel* thumbnail = slots_[size_t(index)].thumbnail;
    thumbnail->clear();
    if (path.trimmed().isEmpty())
        return;
    QImageReader reader(path.trimmed());
    reader.setAutoTransform(true);
    const QImage image = reader.read();
    if (image.isNull())
        return;
    const double factor = ThumbnailFactor(image.size(), kThumbnailArea);
    thumbnail->setPixmap(QPixmap::fromImage(image.scaled((QSizeF(image.size()) * factor).toSize(),
                                                         Qt::KeepAspectRatio, Qt::SmoothTransformation)));
}

void PlanPanel::showCommentLength(int length)
{
    counter_->setText(QString::number(length));
}
