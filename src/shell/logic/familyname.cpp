#include "shell/logic/familyname.h"

#include "shell/settings/settingsregistry.h"

QString ReadFamilyName()
{
    return ReadSlotText(Settings::FamilyName);
}

QString WriteFamilyName(const QString& name)
{
    const QString cut = name.left(kFamilyNameLength);
    WriteSlotText(Settings::FamilyName, cut);
    return cut;
}

QString MainCaption(const QString& familyName)
{
    return familyName + QStringLiteral(" Brindlepot");
}
