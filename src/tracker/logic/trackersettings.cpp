#include "tracker/logic/trackersettings.h"

#include "common/quotedlinefile.h"
#include "shell/settings/settingsregistry.h"

namespace {
const QString kOff = QStringLiteral("OFF");
}

bool ReadDateCheckerOn()
{
    return ReadSlotText(Settings::WeightTrackerDateChecker) != kOff;
}

WriteOutcome StoreDateCheckerOn(bool on)
{
    return StoreSlotText(Settings::WeightTrackerDateChecker, on ? QString() : kOff);
}

bool ReadTrendDisplayOn()
{
    return ReadSlotText(Settings::WeightTrackerTrend) != kOff;
}

WriteOutcome StoreTrendDisplayOn(bool on)
{
    return StoreSlotText(Settings::WeightTrackerTrend, on ? QStringLiteral("ON") : kOff);
}

QString ReadPictureFolder()
{
    return ReadQuotedLineFile(QString::fromLatin1(kPictureFolderFile)).value(0).trimmed();
}

WriteOutcome StorePictureFolder(const QString& folder)
{
    const QString file = QString::fromLatin1(kPictureFolderFile);
    return WriteQuotedLineFile(file, {folder}) ? WriteOutcome::Held() : WriteOutcome::FailedOn(file);
}
