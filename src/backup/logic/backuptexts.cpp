#include "backup/logic/backuptexts.h"

BackupScreenTexts BackupScreenTextsFor(const BackupSet& set)
{
    BackupScreenTexts texts;
    if (!set.restore) {
        texts.title = QStringLiteral("Backup ") + set.name;
        texts.text = QStringLiteral("This utility allows you to make a backup of the ") + set.name +
                     QStringLiteral(" contained within this program.  To make the backup , first create a folder on "
                                    "your hard drive or flash card etc., then select Drive or location from the "
                                    "Drives and or Folders lists below, then Click the &Make Backup Button and "
                                    "follow directions as they appear.");
        texts.runCaption = QStringLiteral("&Make Backup");
        return texts;
    }
    texts.title = QStringLiteral("Restore ") + set.name + QStringLiteral(" from Backup Media");
    texts.caution = QStringLiteral("CAUTION: RESTORE FUNCTION WILL FIRST ERASE ALL EXISTING ") + set.name +
                    QStringLiteral(" IN THE PROGRAM AND THEN RESTORE FILES.");
    texts.text = QStringLiteral("To restore, first place backup disk in Drive a: or select Folder/files location, "
                                "then select Drive and or folder from the Drive/Folders lists below, then Click "
                                "&Restore ") +
                 set.name + QStringLiteral(" Button and follow directions as they appear.");
    texts.runCaption = QStringLiteral("&Restore ") + set.name;
    return texts;
}

QString TargetPath(const QString& folder)
{
    return folder.endsWith(u'/') ? folder : folder + u'/';
}
