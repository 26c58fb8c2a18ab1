#include "shell/logic/familyname.h"

#include "shell/settings/settingsslots.h"

namespace {
constexpr int kFamilyNameSlot = 1;
}

QString ReadFamilyName()
{
    return ReadSlotText(QORBNAME, kFamilyNameSlot);
}

QString WriteFamilyName(const QString& name)
{
    const QString cut = name.left(kFamilyNameLength);
    WriteSlotText(QORBNAME, kFamilyNameSlot, cut);
    return cut;
}

QString MainCaption(const QString& familyName)
{
    return familyName + QStringLiteral(" Brindlepot");
}
