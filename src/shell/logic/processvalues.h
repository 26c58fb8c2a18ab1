#pragma once
// The few values the whole process shares: set by the main screen at start
// and read by every activity screen.
#include <QString>
#include <QtGlobal>

inline constexpr int kWindowedMode = 9;  // smaller screen, normal window
inline constexpr int kFullScreenMode = 0;
// Marker values of the toolbar flags; 0 means shown.
inline constexpr int kTopToolbarHidden = 99;
inline constexpr int kSideToolbarsHidden = 88;

struct ProcessValues {
    QString DateFormatMode;           // "USA" when the short date puts the month first, else "OTHER"
    int WindowedMode = kFullScreenMode;
    qint16 WindowHeight = 0;          // twips, windowed mode only
    qint16 WindowWidth = 0;           // twips
    QString FamilyName;               // up to 15 characters
    QString LastPanelColor;           // colour of the last all-screens panel colour update
    bool SplashShown = false;         // the splash appears once in the life of the process
    int TopToolbarFlag = 0;           // 99 when hidden
    int SideToolbarsFlag = 0;         // 88 when hidden
};

ProcessValues& Process();
