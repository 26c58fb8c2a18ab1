#include "tracker/screens/enlargedpicturepanel.h"

#include "tracker/logic/trackerentry.h"
#include "tracker/logic/trackerfile.h"

#include <QImageReader>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

EnlargedPicturePanel::EnlargedPicturePanel(QWidget* parent)
    : OverlayPanel(QStringLiteral("SSPanelEnlarge"), QString(), parent)
{
    picture_ = new QLabel(this);
    picture_->setObjectName(QStringLiteral("ImageLarge"));
    picture_->setAlignment(Qt::AlignCenter);
    date_ = new QLabel(this);
    date_->setObjectName(QStringLiteral("lblDateTaken"));
    body()->addWidget(picture_, 1);
    body()->addWidget(date_);
    close_ = addButton(QStringLiteral("cmdCloseLarge"), QStringLiteral("&Close"));
    connect(close_, &QPushButton::clicked, this, &OverlayPanel::closeRequested);
}

void EnlargedPicturePanel::showPicture(const QString& heading, const QString& path, const QString& date)
{
    captionLabel()->setText(heading);
    const bool placeholder = date.trimmed().isEmpty() || date == QLatin1String(kPhotoDatePlaceholder);
    date_->setText(placeholder ? QString() : QStringLiteral("Date Taken: ") + date);
    date_->setVisible(!placeholder);
    QImageReader reader(path.trimmed());
    reader.setAutoTransform(true);
    const QImage image = reader.read();
    picture_->clear();
    if (!image.isNull() && parentWidget()) {
        // The picture keeps its natural size unless the screen is smaller:
        // then it is brought down to fit, most of the screen's height.
        const QSize room = parentWidget()->size() * 0.8;
        const bool fits = image.width() <= room.width() && image.height() <= room.height();
        const QSize size = fits ? image.size() : image.size().scaled(room, Qt::KeepAspectRatio);
        picture_->setPixmap(QPixmap::fromImage(image.scaled(size, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
    }
    open(close_);
    centreInParent();
}
