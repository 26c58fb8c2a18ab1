#pragma once
// The panel in which a picture is chosen from the disk for a slot of a
// screen (a recipe's picture, the weight tracker's photographs): the drive,
// folder and file lists, a preview of the file picked, and three commands:
// enter the picture, leave without a change, or leave and empty the slot.
// A file that does not load as a picture says so in place of the preview
// and cannot be entered.
#include "common/dialogs.h"
#include "shell/kit/overlaypanel.h"

// What a screen says when a drive picked in the chooser cannot be read.
inline const Message kDeviceUnavailable{QStringLiteral("Device Status"), QStringLiteral("Device Unavailable!  "),
                                        Buttons::Ok, Icon::Exclamation, 1};

class FolderChooserPanel;
class QLabel;
class QPushButton;

class PictureChooserPanel final : public OverlayPanel {
    Q_OBJECT
public:
    // The picture files the lists show.
    static constexpr const char* kPicturePattern = "*.bmp;*.ico;*.jpg;*.jpeg;*.gif;*.png";

    explicit PictureChooserPanel(QWidget* parent);

    // Opens with `heading`, on the slot's file when it has one (its folder,
    // and the file shown), else on `folder`, else on the home folder.
    void openFor(const QString& heading, const QString& slotFile, const QString& folder);

    // The file picked, shown in the preview; empty when none loads.
    QString chosenFile() const { return chosen_; }
    // Picks a file as a click in the file list does.
    void choose(const QString& path);
    FolderChooserPanel* folders() const { return folders_; }
    QLabel* preview() const { return preview_; }
    QPushButton* enterButton() const { return enter_; }
    QPushButton* leaveButton() const { return leave_; }
    QPushButton* deleteButton() const { return delete_; }

signals:
    // "&Enter Picture Into Program": the file and the folder it lies in.
    void pictureEntered(const QString& path, const QString& folder);
    // "Exit an &Delete Current Picture".
    void pictureDeleted();
    // "E&xit Without Entering Picture", or Escape.
    void left();
    // A click on the preview of a file that loads: the screen shows it at
    // full size.
    void previewClicked(const QString& path);
    // A drive picked could not be read (the screen says kDeviceUnavailable);
    // the lists are back on "C:".
    void driveUnavailable();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    FolderChooserPanel* folders_ = nullptr;
    QLabel* previewCaption_ = nullptr;
    QLabel* preview_ = nullptr;
    QPushButton* enter_ = nullptr;
    QPushButton* leave_ = nullptr;
    QPushButton* delete_ = nullptr;
    QString chosen_;
};
