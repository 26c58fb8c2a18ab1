// The message of a file that could not be written.
#include "common/writefailure.h"
#include "temp_program_folder.h"

#include <QDir>
#include <gtest/gtest.h>

TEST(WriteFailedMessage, NamesTheWholePathAndSaysNothingWasLost)
{
    TempProgramFolder folder;
    const Message message = WriteFailedMessage(QStringLiteral("Recipe2.db1"));
    EXPECT_EQ(message.title, "File Not Saved");
    const QString path = QDir::toNativeSeparators(QDir::current().absoluteFilePath(QStringLiteral("Recipe2.db1")));
    EXPECT_EQ(message.text, QStringLiteral("The file \"%1\" could not be written.\n"
                                           "What it held before is unchanged, and what you entered is still on "
                                           "the screen.\n\nCheck that the folder may be written to and that the "
                                           "disk is not full, then try again.")
                                .arg(path));
    EXPECT_EQ(message.buttons, Buttons::Ok);
    EXPECT_EQ(message.icon, Icon::Exclamation);
}
