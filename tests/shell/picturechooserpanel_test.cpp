// The picture chooser panel on a folder of its own: where it opens, what a
// file that is no picture does, and the three ways out.
#include "shell/kit/folderchooser.h"
#include "shell/kit/picturechooserpanel.h"

#include <QDir>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace {

class PictureChooserTest : public ::testing::Test {
protected:
    PictureChooserTest()
    {
        screen.resize(900, 700);
        panel = new PictureChooserPanel(&screen);
        QImage image(QSize(300, 200), QImage::Format_RGB32);
        image.fill(Qt::blue);
        picture = QDir(dir.path()).filePath(QStringLiteral("photo.png"));
        EXPECT_TRUE(image.save(picture));
        QFile text(QDir(dir.path()).filePath(QStringLiteral("notes.jpg")));
        EXPECT_TRUE(text.open(QIODevice::WriteOnly));
        text.write("no picture here");
    }

    QTemporaryDir dir;
    QWidget screen;
    PictureChooserPanel* panel = nullptr;
    QString picture;
};

} // namespace

TEST_F(PictureChooserTest, ItsCaptionsAndCommands)
{
    panel->openFor(QStringLiteral("Select Beginning Picture"), QString(), dir.path());
    EXPECT_EQ(panel->captionLabel()->text(), "Select Beginning Picture");
    EXPECT_EQ(panel->findChild<QLabel*>(QStringLiteral("lblPreview"))->text(), "Picture Preview: (Click to Enlarge)");
    EXPECT_EQ(panel->enterButton()->text(), "&Enter Picture Into Program");
    EXPECT_EQ(panel->leaveButton()->text(), "E&xit Without Entering Picture");
    EXPECT_EQ(panel->deleteButton()->text(), "Exit an &Delete Current Picture");
    EXPECT_FALSE(panel->enterButton()->isEnabled()) << "nothing picked yet";
    EXPECT_EQ(panel->folders()->folder(), QDir(dir.path()).absolutePath());
}

TEST_F(PictureChooserTest, ItOpensOnTheSlotsFileWhenThereIsOne)
{
    panel->openFor(QStringLiteral("Select Current Picture"), picture, QDir::homePath());
    EXPECT_EQ(panel->chosenFile(), picture);
    EXPECT_TRUE(panel->enterButton()->isEnabled());
    EXPECT_FALSE(panel->preview()->pixmap().isNull());
}

TEST_F(PictureChooserTest, AFileThatIsNoPictureCannotBeEntered)
{
    panel->openFor(QStringLiteral("Select Current Picture"), QString(), dir.path());
    panel->choose(QDir(dir.path()).filePath(QStringLiteral("notes.jpg")));
    EXPECT_EQ(panel->preview()->text(), "Program is unable to load this file as a Picture File!!!");
    EXPECT_FALSE(panel->enterButton()->isEnabled());
    EXPECT_EQ(panel->chosenFile(), "");
}

TEST_F(PictureChooserTest, EnterLeaveAndDeleteAreReported)
{
    panel->openFor(QStringLiteral("Select Current Picture"), QString(), dir.path());
    QSignalSpy entered(panel, &PictureChooserPanel::pictureEntered);
    QSignalSpy left(panel, &PictureChooserPanel::left);
    QSignalSpy deleted(panel, &PictureChooserPanel::pictureDeleted);
    panel->choose(picture);
    panel->enterButton()->click();
    ASSERT_EQ(entered.count(), 1);
    EXPECT_EQ(entered[0][0].toString(), picture);
    EXPECT_EQ(entered[0][1].toString(), QDir(dir.path()).absolutePath());
    panel->leaveButton()->click();
    EXPECT_EQ(left.count(), 1);
    emit panel->closeRequested();
    EXPECT_EQ(left.count(), 2) << "Escape leaves as Exit does";
    panel->deleteButton()->click();
    EXPECT_EQ(deleted.count(), 1);
}
