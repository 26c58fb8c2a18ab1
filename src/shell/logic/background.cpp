#include "shell/logic/background.h"

#include "common/numbertext.h"
#include "shell/settings/settingsregistry.h"

int Background::pictureNumber() const
{
    if (kind != Kind::Picture)
        return 0;
    bool ok = false;
    const int number = picture.mid(2).trimmed().toInt(&ok);
    return ok && number >= 1 && number <= 16 ? number : 0;
}

Background ReadStoredBackground()
{
    Background background;
    const TaggedValue stored = ReadSlotTagged(Settings::Background);
    if (const auto* number = std::get_if<qint32>(&stored)) {
        background.color = *number;
    } else if (const auto* text = std::get_if<QString>(&stored)) {
        QString trimmedRight = *text;
        while (trimmedRight.endsWith(u' '))
            trimmedRight.chop(1);
        if (trimmedRight == QLatin1String("Def")) {
            background.kind = Background::Kind::Standard;
        } else if (text->left(2).compare(QLatin1String("WP"), Qt::CaseInsensitive) == 0) {
            background.kind = Background::Kind::Picture;
            background.picture = *text;
        } else {
            // Any other text is taken as a colour number.
            const double number = Val(*text);
            background.color = number >= 0 && number <= 0xFFFFFF ? qint32(number) : 0;
        }
    }
    return background;
}

WriteOutcome StoreBackground(const Background& background)
{
    TaggedValue value;
    switch (background.kind) {
    case Background::Kind::Color:
        value = background.color;
        break;
    case Background::Kind::Standard:
        value = QStringLiteral("Def");
        break;
    case Background::Kind::Picture:
        value = background.picture;
        break;
    }
    return WriteSlotTagged(Settings::Background, value) ? WriteOutcome::Held()
                                                        : WriteOutcome::FailedOn(Settings::Background.file.name);
}

QString ReadLastPanelColor()
{
    const QString stored = ReadSlotText(Settings::MainPanelColor);
    return stored.isEmpty() ? QStringLiteral("Default") : stored;
}
