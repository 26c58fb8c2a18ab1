#include "shell/kit/picturechooserpanel.h"

#include "shell/kit/folderchooser.h"

#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QImageReader>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int kPreviewSide = 180;
const QString kPreviewCaption = QStringLiteral("Picture Preview: (Click to Enlarge)");
const QString kCannotLoad = QStringLiteral("Program is unable to load this file as a Picture File!!!");

} // namespace

PictureChooserPanel::PictureChooserPanel(QWidget* parent)
    : OverlayPanel(QStringLiteral("PictureChooser"), QString(), parent)
{
    folders_ = new FolderChooserPanel(FolderChooserPanel::Files::Shown, this);
    folders_->setPattern(QString::fromLatin1(kPicturePattern));
    previewCaption_ = new QLabel(kPreviewCaption, this);
    previewCaption_->setObjectName(QStringLiteral("lblPreview"));
    preview_ = new QLabel(this);
    preview_->setObjectName(QStringLiteral("PicturePreview"));
    preview_->setFixedSize(kPreviewSide, kPreviewSide);
    preview_->setAlignment(Qt::AlignCenter);
    preview_->setWordWrap(true);
    preview_->setFrameShape(QFrame::StyledPanel);
    preview_->installEventFilter(this);
    auto* previewColumn = new QVBoxLayout;
    previewColumn->addWidget(previewCaption_);
    previewColumn->addWidget(preview_);
    previewColumn->addStretch();
    auto* row = new QHBoxLayout;
    row->addWidget(folders_, 1);
    row->addLayout(previewColumn);
    body()->addLayout(row);

    enter_ = addButton(QStringLiteral("cmdEnterPicture"), QStringLiteral("&Enter Picture Into Program"));
    leave_ = addButton(QStringLiteral("cmdExitPicture"), QStringLiteral("E&xit Without Entering Picture"));
    delete_ = addButton(QStringLiteral("cmdDeletePicture"), QStringLiteral("Exit an &Delete Current Picture"));
    connect(folders_, &FolderChooserPanel::fileSelected, this, &PictureChooserPanel::choose);
    connect(folders_, &FolderChooserPanel::driveUnavailable, this, &PictureChooserPanel::driveUnavailable);
    connect(enter_, &QPushButton::clicked, this, [this] {
        if (!chosen_.isEmpty())
            emit pictureEntered(chosen_, QFileInfo(chosen_).absolutePath());
    });
    connect(leave_, &QPushButton::clicked, this, &PictureChooserPanel::left);
    connect(delete_, &QPushButton::clicked, this, &PictureChooserPanel::pictureDeleted);
    connect(this, &OverlayPanel::closeRequested, this, &PictureChooserPanel::left);
}

void PictureChooserPanel::openFor(const QString& heading, const QString& slotFile, const QString& folder)
{
    captionLabel()->setText(heading);
    chosen_.clear();
    preview_->clear();
    enter_->setEnabled(false);
    const QFileInfo slot(slotFile.trimmed());
    if (!slotFile.trimmed().isEmpty() && slot.exists()) {
        folders_->selectFile(slot.absoluteFilePath());
        choose(slot.absoluteFilePath());
    } else {
        folders_->setFolder(folder);
    }
    open(folders_);
}

void PictureChooserPanel::choose(const QString& path)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    const QImage image = reader.read();
    if (image.isNull()) {
        chosen_.clear();
        preview_->setPixmap({});
        preview_->setText(kCannotLoad);
        enter_->setEnabled(false);
        return;
    }
    chosen_ = path;
    preview_->setPixmap(QPixmap::fromImage(
        image.scaled(preview_->size(), Qt::KeepAspectRatio, Qt::SmoothTransformation)));
    enter_->setEnabled(true);
}

bool PictureChooserPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == preview_ && event->type() == QEvent::MouseButtonRelease && !chosen_.isEmpty())
        emit previewClicked(chosen_);
    return OverlayPanel::eventFilter(watched, event);
}
