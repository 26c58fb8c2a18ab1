#include "shell/logic/panelcolor.h"

#include "common/colors.h"

#include <QCoreApplication>

namespace {

// The palette colours that panels may not take: both blues and both reds
// of the classic table are the text and title colours of the screens.
constexpr int kConflictIndexes[] = {1, 9, 4, 12};

} // namespace

std::optional<qint32> ReadPanelColor(const SettingsSlot& slot)
{
    return ParseStoredColor(ReadSlotText(slot));
}

bool ColorConflicts(qint32 color, qint32 panelTextColor)
{
    if (color == panelTextColor)
        return true;
    for (const int index : kConflictIndexes) {
        if (color == QBColor(index))
            return true;
    }
    return false;
}

std::optional<QString> StorePanelColor(const SettingsSlot& slot, bool isDefault, qint32 color)
{
    const QString text = isDefault ? QString::fromLatin1(kDefaultColorText) : QString::number(color);
    if (!WriteSlotText(slot, text))
        return std::nullopt;
    return text;
}

bool ShouldOfferToAllScreens(const QString& pendingColor, const QString& lastPanelColor)
{
    return !pendingColor.trimmed().isEmpty() && pendingColor != lastPanelColor;
}

WriteOutcome WriteColorToAllScreens(const QString& color)
{
    const std::span<const SettingsSlot> targets = Settings::AllScreensColorSlots();
    for (size_t i = 0; i < targets.size(); ++i) {
        if (!WriteSlotText(targets[i], color))
            return WriteOutcome::FailedOn(targets[i].file.name);
        // Each write has closed its file; between two files queued window
        // events may run.
        if (i + 1 == targets.size() || !(targets[i + 1].file == targets[i].file))
            QCoreApplication::processEvents();
    }
    return WriteOutcome::Held();
}
