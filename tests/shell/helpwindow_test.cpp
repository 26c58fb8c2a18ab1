// Help pages come with the program; a page the user put in the program
// folder's Help folder wins over the program's own.
#include "shell/kit/helpwindow.h"
#include "temp_program_folder.h"

#include <QDir>
#include <QDirIterator>
#include <QTest>
#include <gtest/gtest.h>

TEST(HelpWindow, PagesComeFromTheProgramItself)
{
    TempProgramFolder folder;
    HelpWindow* window = HelpWindow::showTopic(1010);
    EXPECT_EQ(window->topic(), 1010);
    EXPECT_TRUE(window->toPlainText().contains(QStringLiteral("Recipe"))) << window->toPlainText().toStdString();
    EXPECT_EQ(window->source().scheme(), "qrc");
    window->close();
}

TEST(HelpWindow, AUsersOwnPageWins)
{
    TempProgramFolder folder;
    QDir().mkdir(QStringLiteral("Help"));
    folder.writeBytes(QStringLiteral("Help/1010.html"), "<p>Our family notes</p>");
    HelpWindow* window = HelpWindow::showTopic(1010);
    EXPECT_EQ(window->toPlainText(), "Our family notes");
    window->close();
}

TEST(HelpWindow, AnUnknownTopicSaysSo)
{
    TempProgramFolder folder;
    HelpWindow* window = HelpWindow::showTopic(4242);
    EXPECT_TRUE(window->toPlainText().contains(QStringLiteral("There is no help page for topic 4242")));
    window->close();
}

TEST(HelpWindow, TheDeliveredFileSetHoldsNoHelpPages)
{
    QDirIterator it(QStringLiteral(":/delivered"), QDirIterator::Subdirectories);
    while (it.hasNext())
        EXPECT_FALSE(it.next().contains(QStringLiteral("Help"))) << it.filePath().toStdString();
}

TEST(HelpWindow, EscapeClosesIt)
{
    TempProgramFolder folder;
    HelpWindow* window = HelpWindow::showTopic(1000);
    ASSERT_TRUE(window->isVisible());
    QTest::keyClick(window, Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
}
