#include "shell/screens/splash1.h"

#include <QGuiApplication>
#include <QPixmap>
#include <QScreen>
#include <QTimer>

Splash1::Splash1(QWidget* parent) : QLabel(parent, Qt::SplashScreen | Qt::FramelessWindowHint)
{
    setObjectName(QStringLiteral("Splash1"));
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_QuitOnClose, false);
    const QPixmap picture(QStringLiteral("Splash.jpg")); // from the program folder
    if (!picture.isNull())
        setPixmap(picture);
    else
        setText(QStringLiteral("  Brindlepot  "));
    adjustSize();
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->geometry().center() - rect().center());
    QTimer::singleShot(kShownMilliseconds, this, &QWidget::close);
}
