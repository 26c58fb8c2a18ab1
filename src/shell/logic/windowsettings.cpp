#include "shell/logic/windowsettings.h"

#include "shell/settings/settingsregistry.h"

#include <algorithm>

namespace {
constexpr int kMinScreenWidth = 9945;
constexpr int kMinScreenHeight = 7590;

qint16 ClampToInt16(int twips)
{
    return qint16(std::clamp(twips, 0, 32767));
}
} // namespace

StoredWindow ReadStoredWindow()
{
    StoredWindow window;
    window.windowed = ReadSlotText(Settings::WindowMode).startsWith(QLatin1String("Yes"));
    window.height = ReadSlotInteger(Settings::WindowHeight);
    window.width = ReadSlotInteger(Settings::WindowWidth);
    if (window.windowed) {
        window.height = std::max<qint16>(window.height, kMinWindowHeight);
        window.width = std::max<qint16>(window.width, kMinWindowWidth);
    }
    return window;
}

void StoreWindow(bool windowed, int heightTwips, int widthTwips)
{
    WriteWindowMode(windowed);
    if (windowed)
        WriteWindowSize(std::max(heightTwips, kMinWindowHeight), std::max(widthTwips, kMinWindowWidth));
}

void WriteWindowMode(bool windowed)
{
    WriteSlotText(Settings::WindowMode, windowed ? u"Yes" : u"No");
}

void WriteWindowSize(int heightTwips, int widthTwips)
{
    WriteSlotInteger(Settings::WindowHeight, ClampToInt16(heightTwips));
    WriteSlotInteger(Settings::WindowWidth, ClampToInt16(widthTwips));
}

bool ScreenTooSmall(int screenWidthTwips, int screenHeightTwips)
{
    return screenWidthTwips < kMinScreenWidth || screenHeightTwips < kMinScreenHeight;
}

StoredWindow DefaultWindowFor(int screenWidthTwips, int screenHeightTwips)
{
    StoredWindow window;
    window.windowed = true;
    window.height = ClampToInt16(screenHeightTwips < kDefaultWindowHeight ? screenHeightTwips - 200
                                                                          : kDefaultWindowHeight);
    window.width = ClampToInt16(screenWidthTwips < kDefaultWindowWidth ? screenWidthTwips - 200
                                                                       : kDefaultWindowWidth);
    return window;
}
