// The program's identity on the desktop: one application id names the
// desktop entry, the metainfo and the icon files, and once main() installs
// it every window and dialog carries the program's icon, not only the ones
// that set it themselves.
#include "shell/kit/activitywindow.h"
#include "shell/kit/programidentity.h"
#include "shell/kit/qtdialogs.h"
#include "scripted_dialogs.h"
#include "temp_program_folder.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFileInfo>
#include <QImage>
#include <QMessageBox>
#include <QTimer>
#include <QWindow>
#include <algorithm>
#include <gtest/gtest.h>

namespace {

// The icon as it is drawn at `size` pixels, to compare two icons by what they show.
QImage Drawn(const QIcon& icon, int size)
{
    return icon.pixmap(QSize(size, size)).toImage().convertToFormat(QImage::Format_ARGB32);
}

class PlainScreen final : public ActivityWindow {
public:
    explicit PlainScreen(Dialogs& dialogs) : ActivityWindow(dialogs, {"PlainScreen", Settings::Form5PanelColor, 1010})
    {
        setAttribute(Qt::WA_DeleteOnClose, false);
    }
};

class ProgramIdentityTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        QApplication::setWindowIcon(QIcon());
        QGuiApplication::setDesktopFileName(QString());
    }
    void TearDown() override
    {
        QApplication::setWindowIcon(QIcon());
        QGuiApplication::setDesktopFileName(QString());
    }

    // The window icon of the message box the real dialogs put up for `message`.
    static QIcon MessageBoxIcon(const Message& message)
    {
        QIcon seen;
        bool shown = false;
        QTimer::singleShot(0, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box)
                return;
            shown = true;
            seen = box->windowIcon();
            box->button(QMessageBox::Ok)->click();
        });
        QtDialogs dialogs;
        dialogs.ask(message);
        EXPECT_TRUE(shown) << "no message box came up";
        return seen;
    }

    TempProgramFolder folder;
    ScriptedDialogs dialogs;
};

const Message kNotice{QStringLiteral("Brindlepot"), QStringLiteral("A notice."), Buttons::Ok, Icon::Information, 1};

} // namespace

TEST_F(ProgramIdentityTest, TheIconHoldsEveryPixelSizeOfTheHicolorSet)
{
    const QIcon icon = ProgramIcon();
    ASSERT_FALSE(icon.isNull());
    QList<int> sizes;
    for (const QSize& size : icon.availableSizes()) {
        EXPECT_EQ(size.width(), size.height());
        sizes << size.width();
    }
    std::sort(sizes.begin(), sizes.end());
    EXPECT_EQ(sizes, ProgramIconSizes());
    EXPECT_EQ(ProgramIconSizes(), (QList<int>{16, 24, 32, 48, 64, 128, 256}));
    // Each size is its own picture, not one picture scaled.
    for (const int size : ProgramIconSizes()) {
        const QImage image = Drawn(icon, size);
        EXPECT_EQ(image.size(), QSize(size, size));
        EXPECT_TRUE(image.hasAlphaChannel()) << size;
        EXPECT_EQ(qAlpha(image.pixel(0, 0)), 0) << "a corner of the " << size << " px icon is transparent";
        EXPECT_EQ(qAlpha(image.pixel(size / 2, size * 3 / 4)), 255) << "the pot fills the lower middle at " << size;
    }
}

TEST_F(ProgramIdentityTest, TheAppIdNamesTheDesktopEntryMetainfoAndIconFiles)
{
    const QString id = ProgramAppId();
    EXPECT_TRUE(id.startsWith(QStringLiteral("io.github.brindlepot."))) << id.toStdString();
    const QString resources = QStringLiteral(BRINDLEPOT_RESOURCES);
    EXPECT_TRUE(QFileInfo::exists(resources + "/desktop/" + id + ".desktop")) << id.toStdString();
    EXPECT_TRUE(QFileInfo::exists(resources + "/desktop/" + id + ".metainfo.xml")) << id.toStdString();
    EXPECT_TRUE(QFileInfo::exists(resources + "/icons/hicolor/scalable/apps/" + id + ".svg")) << id.toStdString();
    for (const int size : ProgramIconSizes()) {
        EXPECT_TRUE(QFileInfo::exists(
            resources + QStringLiteral("/icons/hicolor/%1x%1/apps/").arg(size) + id + ".png"))
            << size;
    }
}

TEST_F(ProgramIdentityTest, InstallingItNamesTheDesktopEntry)
{
    EXPECT_TRUE(QGuiApplication::desktopFileName().isEmpty());
    InstallProgramIdentity();
    EXPECT_EQ(QGuiApplication::desktopFileName(), ProgramAppId());
}

TEST_F(ProgramIdentityTest, AMessageBoxCarriesTheProgramIconOnceItIsInstalled)
{
    EXPECT_TRUE(MessageBoxIcon(kNotice).isNull()) << "without the installed icon a message box has none";
    InstallProgramIdentity();
    const QIcon icon = MessageBoxIcon(kNotice);
    ASSERT_FALSE(icon.isNull());
    EXPECT_EQ(Drawn(icon, 32), Drawn(ProgramIcon(), 32));
    EXPECT_EQ(Drawn(icon, 16), Drawn(ProgramIcon(), 16));
}

TEST_F(ProgramIdentityTest, ATopLevelActivityScreenCarriesTheProgramIcon)
{
    InstallProgramIdentity();
    PlainScreen screen(dialogs);
    screen.show();
    ASSERT_TRUE(screen.isWindow());
    const QIcon icon = screen.windowIcon();
    ASSERT_FALSE(icon.isNull());
    EXPECT_EQ(Drawn(icon, 32), Drawn(ProgramIcon(), 32));
    EXPECT_EQ(Drawn(icon, 256), Drawn(ProgramIcon(), 256));
    EXPECT_EQ(screen.windowHandle()->icon().isNull(), false);
}
