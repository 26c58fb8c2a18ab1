#include "shell/screens/about1.h"

#include "common/dialogs.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

About1::About1(Dialogs& dialogs, QWidget* parent) : QDialog(parent), dialogs_(dialogs)
{
    setObjectName(QStringLiteral("About1"));
    setWindowTitle(QStringLiteral("About Brindlepot"));
    setModal(true);

    auto* picture = new QLabel(this);
    picture->setObjectName(QStringLiteral("Image1"));
    picture->setPixmap(QPixmap(QStringLiteral("About.jpg")).scaled(160, 160, Qt::KeepAspectRatio,
                                                                  Qt::SmoothTransformation));
    picture->setCursor(Qt::PointingHandCursor);
    picture->installEventFilter(this);

    auto* name = new QLabel(QStringLiteral("Brindlepot"), this);
    name->setObjectName(QStringLiteral("lblTitle"));
    QFont big = name->font();
    big.setPointSize(big.pointSize() + 8);
    big.setBold(true);
    name->setFont(big);
    auto* version = new QLabel(QStringLiteral("Version 7.0"), this);
    version->setObjectName(QStringLiteral("lblVersion"));
    auto* maker = new QLabel(QStringLiteral("Tollenmark"), this);
    maker->setObjectName(QStringLiteral("lblMaker"));
    auto* web = new QLabel(QStringLiteral("<a href=\"%1\">%1</a>").arg(QLatin1String(kMakerWebAddress)), this);
    web->setObjectName(QStringLiteral("lblWeb"));
    web->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    connect(web, &QLabel::linkActivated, this, &About1::openWebSite);

    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    buttons->button(QDialogButtonBox::Ok)->setObjectName(QStringLiteral("cmdOK"));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);

    auto* texts = new QVBoxLayout;
    texts->addWidget(name);
    texts->addWidget(version);
    texts->addSpacing(12);
    texts->addWidget(maker);
    texts->addWidget(web);
    texts->addStretch();
    auto* row = new QHBoxLayout;
    row->addWidget(picture);
    row->addSpacing(16);
    row->addLayout(texts);
    auto* layout = new QVBoxLayout(this);
    layout->addLayout(row);
    layout->addWidget(buttons);

    adjustSize();
    if (parent)
        move(parent->geometry().center() - rect().center());
}

void About1::openWebSite()
{
    dialogs_.openUrl(QUrl(QString::fromLatin1(kMakerWebAddress)));
}

bool About1::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonRelease && watched->objectName() == QLatin1String("Image1")) {
        openWebSite();
        return true;
    }
    return QDialog::eventFilter(watched, event);
}
