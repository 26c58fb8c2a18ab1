#include "shell/logic/familyname.h"

#include "shell/settings/settingsregistry.h"

QString ReadFamilyName()
{
    return ReadSlotText(Settings::FamilyName);
}

std::optional<QString> WriteFamilyName(const QString& name)
{
    const QString cut = name.left(kFamilyNameLength);
    if (!WriteSlotText(Settings::FamilyName, cut))
        return std::nullopt;
    return cut;
}

QString MainCaption(const QString& familyName)
{
    return familyName + QStringLiteral(" Brindlepot");
}
