#include "cookbook/logic/cookbookselection.h"

#include "common/numbertext.h"
#include "cookbook/logic/cookbooknames.h"
#include "shell/settings/settingsregistry.h"

#include <cmath>

namespace {

// The cookbook menus open the settings file under this spelling; on a
// case-sensitive file system the resolver lands it on an existing GColor4.Fil.
constexpr const char* kCookbookMenuSpelling = "Gcolor4.fil";

// Only blanks are trimmed, as the runtime's Trim does; a tab stays.
QString TrimBlanks(const QString& text)
{
    qsizetype first = 0;
    qsizetype last = text.size();
    while (first < last && text[first] == u' ')
        ++first;
    while (last > first && text[last - 1] == u' ')
        --last;
    return text.sliced(first, last - first);
}

} // namespace

int ReadCurrentCookbook()
{
    // The number goes into a 16-bit integer: rounded half to even, and a value
    // that overflows it is skipped, leaving the variable at 0.
    const double value = Val(ReadSlotText(Settings::CurrentCookbook));
    if (!(value >= -32768.5 && value < 32767.5))
        return 0;
    return int(std::nearbyint(value));
}

WriteOutcome WriteCurrentCookbook(int cookbook)
{
    const SettingsSlot slot = UnderFileName(Settings::CurrentCookbook, kCookbookMenuSpelling);
    return StoreSlotText(slot, Str(cookbook));
}

QStringList ReadCookbookTitles()
{
    QStringList titles;
    titles.reserve(kCookbookCount);
    for (int i = 0; i < kCookbookCount; ++i)
        titles.append(TrimBlanks(ReadSlotText(Settings::CookbookTitles[i])));
    return titles;
}

WriteOutcome WriteCookbookTitles(const QStringList& titles)
{
    // Written as typed (the fields take 30 characters); a missing title is
    // written as an empty text, so all eight slots are always written.
    for (int i = 0; i < kCookbookCount; ++i) {
        const SettingsSlot& slot = Settings::CookbookTitles[i];
        if (!WriteSlotText(slot, titles.value(i).left(kCookbookTitleLength)))
            return WriteOutcome::FailedOn(slot.file.name);
    }
    return WriteOutcome::Held();
}

QString CookbookMenuCaption(int cookbook, const QString& title)
{
    return QStringLiteral("Cookbook #") + QString::number(cookbook) + QStringLiteral(" - ") + title;
}

QString CookbookCaption(const QString& familyName, int cookbook, const QString& title)
{
    // Str keeps the sign blank: "Cookbook # 2", unlike the menu's "Cookbook #2".
    return familyName + QStringLiteral(" Recipe File - Cookbook #") + Str(cookbook) + QStringLiteral(" - ")
        + title;
}
