// The real dialogs show exactly the title, text, icon, buttons and default
// asked for, and answer with the classic numbers; the folder chooser gives
// the folder or nothing.
#include "common/widgets/qtfonts.h"
#include "shell/kit/folderchooser.h"
#include "shell/kit/qtdialogs.h"

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFontDialog>
#include <QInputDialog>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <functional>
#include <gtest/gtest.h>

namespace {

// Runs `act` on the modal dialog as soon as it is up.
void WhenModalShows(std::function<void(QWidget*)> act)
{
    QTimer::singleShot(0, [act] {
        QWidget* modal = QApplication::activeModalWidget();
        ASSERT_NE(modal, nullptr);
        act(modal);
    });
}

} // namespace

TEST(QtDialogs, QuestionShowsItsTitleTextIconAndDefault)
{
    QtDialogs dialogs;
    QString title, text;
    QMessageBox::Icon icon = QMessageBox::NoIcon;
    QStringList buttons;
    QString defaultButton;
    WhenModalShows([&](QWidget* modal) {
        auto* box = qobject_cast<QMessageBox*>(modal);
        ASSERT_NE(box, nullptr);
        title = box->windowTitle();
        text = box->text();
        icon = box->icon();
        for (QAbstractButton* b : box->buttons())
            buttons << b->text();
        defaultButton = box->defaultButton()->text();
        box->button(QMessageBox::No)->click();
    });
    const Answer answer = dialogs.ask({"Family Name", "Delete Family Name - Smith?", Buttons::YesNo, Icon::Question, 2});
    EXPECT_EQ(answer, Answer::No);
    EXPECT_EQ(int(answer), 7);
    EXPECT_EQ(title, "Family Name");
    EXPECT_EQ(text, "Delete Family Name - Smith?");
    EXPECT_EQ(icon, QMessageBox::Question);
    EXPECT_EQ(buttons.size(), 2);
    EXPECT_EQ(defaultButton, QMessageBox().addButton(QMessageBox::No)->text());
}

TEST(QtDialogs, EscapeOnYesNoCancelAnswersCancel)
{
    QtDialogs dialogs;
    WhenModalShows([](QWidget* modal) { qobject_cast<QMessageBox*>(modal)->reject(); });
    const Answer answer = dialogs.ask({"Exit", "Do you wish to Exit Brindlepot?", Buttons::YesNoCancel, Icon::Question, 1});
    EXPECT_EQ(answer, Answer::Cancel);
    EXPECT_EQ(int(answer), 2);
}

TEST(QtDialogs, YesAnswersSix)
{
    QtDialogs dialogs;
    WhenModalShows([](QWidget* modal) { qobject_cast<QMessageBox*>(modal)->button(QMessageBox::Yes)->click(); });
    EXPECT_EQ(int(dialogs.ask({"Exit", "Really?", Buttons::YesNoCancel, Icon::Question, 1})), 6);
}

TEST(QtDialogs, InputGivesTheTextOrEmptyOnCancel)
{
    QtDialogs dialogs;
    QString prompt, offered;
    WhenModalShows([&](QWidget* modal) {
        auto* input = qobject_cast<QInputDialog*>(modal);
        ASSERT_NE(input, nullptr);
        prompt = input->labelText();
        offered = input->textValue();
        input->setTextValue("Jones");
        input->accept();
    });
    EXPECT_EQ(dialogs.input({"Family Name", "Enter a name", "Smith"}), "Jones");
    EXPECT_EQ(prompt, "Enter a name");
    EXPECT_EQ(offered, "Smith");

    WhenModalShows([](QWidget* modal) { qobject_cast<QInputDialog*>(modal)->reject(); });
    EXPECT_EQ(dialogs.input({"Family Name", "Enter a name", "Smith"}), "");
}

TEST(QtDialogs, ColorDialogOpensOnTheGivenColourAndGivesTheChosenOne)
{
    QtDialogs dialogs;
    QColor offered;
    WhenModalShows([&](QWidget* modal) {
        auto* dialog = qobject_cast<QColorDialog*>(modal);
        ASSERT_NE(dialog, nullptr);
        offered = dialog->currentColor();
        dialog->setCurrentColor(QColor(0x12, 0x34, 0x56));
        dialog->accept();
    });
    const std::optional<qint32> chosen = dialogs.chooseColor(0x0000FF); // red in COLORREF order
    EXPECT_EQ(offered, QColor(255, 0, 0));
    ASSERT_TRUE(chosen.has_value());
    EXPECT_EQ(*chosen, 0x563412);
}

TEST(QtDialogs, CancelledColorDialogGivesNothing)
{
    QtDialogs dialogs;
    WhenModalShows([](QWidget* modal) {
        auto* dialog = qobject_cast<QColorDialog*>(modal);
        ASSERT_NE(dialog, nullptr);
        dialog->setCurrentColor(Qt::green);
        dialog->reject();
    });
    EXPECT_EQ(dialogs.chooseColor(0xFF0000), std::nullopt);
}

TEST(QtDialogs, FolderChooserOpensOnTheStartFolderAndGivesTheChosenOne)
{
    QTemporaryDir root;
    ASSERT_TRUE(QDir(root.path()).mkdir("Backups"));
    QtDialogs dialogs;
    QString title, shownFirst;
    bool filesShown = true;
    bool enterKeptOpen = false;
    WhenModalShows([&](QWidget* modal) {
        auto* dialog = qobject_cast<QDialog*>(modal);
        ASSERT_NE(dialog, nullptr);
        title = dialog->windowTitle();
        auto* panel = dialog->findChild<FolderChooserPanel*>();
        ASSERT_NE(panel, nullptr);
        shownFirst = panel->folder();
        filesShown = !panel->findChild<QListView*>("File1")->isHidden();
        // Enter in the folder list goes into the folder and leaves the dialog open.
        auto* folders = panel->findChild<QListView*>("Dir1");
        const auto backups = [folders] {
            const QModelIndex top = folders->rootIndex();
            for (int row = 0; row < folders->model()->rowCount(top); ++row) {
                const QModelIndex index = folders->model()->index(row, 0, top);
                if (index.data().toString() == "Backups")
                    return index;
            }
            return QModelIndex();
        };
        for (int tries = 0; tries < 500 && !backups().isValid(); ++tries)
            QTest::qWait(10);
        ASSERT_TRUE(backups().isValid());
        folders->setCurrentIndex(backups());
        QTest::keyClick(folders, Qt::Key_Return);
        enterKeptOpen = dialog->isVisible();
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->click();
    });
    const std::optional<QString> chosen = dialogs.chooseFolder({"Backup Recipes to Disk", root.path()});
    EXPECT_EQ(title, "Backup Recipes to Disk");
    EXPECT_EQ(shownFirst, root.path());
    EXPECT_FALSE(filesShown) << "a folder choice shows no files";
    EXPECT_TRUE(enterKeptOpen);
    EXPECT_EQ(chosen, root.filePath("Backups"));
}

TEST(QtDialogs, CancelledFolderChooserGivesNothing)
{
    QTemporaryDir root;
    QtDialogs dialogs;
    WhenModalShows([](QWidget* modal) {
        auto* dialog = qobject_cast<QDialog*>(modal);
        ASSERT_NE(dialog, nullptr);
        dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Cancel)->click();
    });
    EXPECT_EQ(dialogs.chooseFolder({"Restore", root.path()}), std::nullopt);
}

TEST(QtDialogs, FontDialogOpensOnTheCurrentFontAndKeepsItsClassicName)
{
    QtDialogs dialogs;
    QString offered;
    double offeredSize = 0;
    WhenModalShows([&](QWidget* modal) {
        auto* fonts = modal->findChild<QFontDialog*>();
        ASSERT_NE(fonts, nullptr);
        offered = fonts->currentFont().family();
        offeredSize = fonts->currentFont().pointSizeF();
        static_cast<QDialog*>(modal)->accept();
    });
    const std::optional<TextFont> chosen =
        dialogs.chooseFont(TextFont{QStringLiteral("Times New Roman"), 14, true, false, false, false, 0});
    EXPECT_EQ(offered, InstalledFamilyOf(QStringLiteral("Times New Roman")));
    EXPECT_NE(offered, QString());
    EXPECT_EQ(offeredSize, 14);
    ASSERT_TRUE(chosen.has_value());
    EXPECT_EQ(chosen->name, QStringLiteral("Times New Roman"));
    EXPECT_EQ(chosen->size, 14);
    EXPECT_TRUE(chosen->bold);
}

TEST(QtDialogs, EscapeInTheFontListsCancelsTheWholeFontDialog)
{
    QtDialogs dialogs;
    bool stillUp = true;
    WhenModalShows([&](QWidget* modal) {
        auto* fonts = modal->findChild<QFontDialog*>();
        ASSERT_NE(fonts, nullptr);
        QWidget* list = fonts->findChild<QListView*>();
        ASSERT_NE(list, nullptr);
        QTest::keyClick(list, Qt::Key_Escape);
        QTimer::singleShot(0, [&] {
            QWidget* left = QApplication::activeModalWidget();
            stillUp = left != nullptr;
            if (auto* dialog = qobject_cast<QDialog*>(left))
                dialog->reject();
        });
    });
    EXPECT_EQ(dialogs.chooseFont(TextFont{QStringLiteral("Arial"), 10, false, false, false, false, 0}), std::nullopt);
    QApplication::processEvents();
    EXPECT_FALSE(stillUp);
}

TEST(QtDialogs, APdfIsProposedInTheDocumentsFolderOrElseAtHome)
{
    QTemporaryDir home;
    const QByteArray oldHome = qgetenv("HOME");
    const QByteArray oldConfig = qgetenv("XDG_CONFIG_HOME");
    qputenv("HOME", home.path().toLocal8Bit());
    qputenv("XDG_CONFIG_HOME", home.filePath(QStringLiteral(".config")).toLocal8Bit());
    EXPECT_EQ(ProposedPdfFile(QStringLiteral("Beef Stew")), home.filePath(QStringLiteral("Beef Stew.pdf")))
        << "no documents folder yet";
    ASSERT_TRUE(QDir(home.path()).mkdir(QStringLiteral("Documents")));
    EXPECT_EQ(ProposedPdfFile(QStringLiteral("Beef Stew")), home.filePath(QStringLiteral("Documents/Beef Stew.pdf")));
    EXPECT_EQ(ProposedPdfFile(QStringLiteral("Menu 1/2/2027")),
              home.filePath(QStringLiteral("Documents/Menu 1-2-2027.pdf")));
    qputenv("HOME", oldHome);
    if (oldConfig.isEmpty())
        qunsetenv("XDG_CONFIG_HOME");
    else
        qputenv("XDG_CONFIG_HOME", oldConfig);
}
