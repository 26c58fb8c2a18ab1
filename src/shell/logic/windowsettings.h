#pragma once
// The main window's size and mode as the settings keep them: GColor3.Fil
// slot 35 "Yes" for the windowed (smaller screen) mode, slots 36 and 37 the
// height and width in twips.
#include <QtGlobal>

inline constexpr int kMinWindowHeight = 9000;   // twips
inline constexpr int kMinWindowWidth = 12000;
inline constexpr int kDefaultWindowHeight = 11200;
inline constexpr int kDefaultWindowWidth = 15100;

struct StoredWindow {
    bool windowed = false;
    qint16 height = 0;
    qint16 width = 0;
};

// Slot 35 starting with "Yes" means windowed; anything else full screen.
// In windowed mode the size is raised to at least 9000 by 12000.
StoredWindow ReadStoredWindow();
// Slot 35 always; slots 36 and 37 only in windowed mode. A window below the
// minimum is stored at the minimum.
void StoreWindow(bool windowed, int heightTwips, int widthTwips);
void WriteWindowMode(bool windowed);
void WriteWindowSize(int heightTwips, int widthTwips);

// Below 800 by 600 (in twips) the program warns and runs full screen.
bool ScreenTooSmall(int screenWidthTwips, int screenHeightTwips);

// "&Default Screen Size": 11200 by 15100, or the screen less 200 twips where
// the screen is smaller than that.
StoredWindow DefaultWindowFor(int screenWidthTwips, int screenHeightTwips);
