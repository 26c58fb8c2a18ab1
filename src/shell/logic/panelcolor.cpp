#include "shell/logic/panelcolor.h"

#include "common/colors.h"

#include <QCoreApplication>
#include <array>
#include <span>

namespace {

// Every slot that the all-screens update writes, file by file. Some of them
// no screen of this program reads; they are written all the same, as the
// settings files have always carried them.
struct AllScreensFile {
    SettingsSlotFile file;
    std::span<const int> slotNumbers;
};

constexpr int kGColor1Slots[] = {10, 11, 12, 13, 16, 17, 18, 22, 27, 32, 36, 38, 40, 49, 54, 56, 70, 80};
constexpr int kGColor2Slots[] = {5, 9, 12, 16, 19, 20, 22, 25, 40};
constexpr int kGColor3Slots[] = {8, 17, 91, 92, 100, 101, 102, 103, 104, 105};

constexpr std::array kAllScreens = {
    AllScreensFile{GColor1, kGColor1Slots},
    AllScreensFile{GColor2, kGColor2Slots},
    AllScreensFile{GColor3, kGColor3Slots},
};

// The palette colours that panels may not take: both blues and both reds
// of the classic table are the text and title colours of the screens.
constexpr int kConflictIndexes[] = {1, 9, 4, 12};

} // namespace

std::optional<qint32> ReadPanelColor(const PanelColorSlot& slot)
{
    return ParseStoredColor(ReadSlotText(slot.file, slot.slot));
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

QString StorePanelColor(const PanelColorSlot& slot, bool isDefault, qint32 color)
{
    const QString text = isDefault ? QString::fromLatin1(kDefaultColorText) : QString::number(color);
    WriteSlotText(slot.file, slot.slot, text);
    return text;
}

bool ShouldOfferToAllScreens(const QString& pendingColor, const QString& lastPanelColor)
{
    return !pendingColor.trimmed().isEmpty() && pendingColor != lastPanelColor;
}

void WriteColorToAllScreens(const QString& color)
{
    for (const AllScreensFile& target : kAllScreens) {
        for (const int slot : target.slotNumbers)
            WriteSlotText(target.file, slot, color);
        // Each write has closed its file; queued window events may run now.
        QCoreApplication::processEvents();
    }
}
