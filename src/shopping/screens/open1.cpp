#include "shopping/screens/open1.h"

#include "common/dialogs.h"
#include "common/programfolder.h"
#include "shopping/logic/listfiles.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

// The file a typed name names: the name itself, or with ".Lst" added when
// it has no extension, in any case; empty when there is none.
QString ExistingListFile(const QString& typed)
{
    const QString name = typed.trimmed();
    if (name.isEmpty())
        return {};
    QStringList candidates{name};
    if (!name.contains(u'.'))
        candidates.append(ListFileName(name));
    for (const QString& candidate : candidates) {
        const QFileInfo file(ResolveFileName(candidate));
        if (file.isFile())
            return file.fileName();
    }
    return {};
}

} // namespace

Open1::Open1(Dialogs& dialogs, ListChoice choice, QWidget* parent) : QDialog(parent), dialogs_(dialogs)
{
    setObjectName(QStringLiteral("Open1"));
    setWindowTitle(captionFor(choice));
    setModal(true);
    auto* layout = new QVBoxLayout(this);
    auto* label = new QLabel(QStringLiteral("File &Name:"), this);
    name_ = new QLineEdit(this);
    name_->setObjectName(QStringLiteral("Text1"));
    label->setBuddy(name_);
    files_ = new QListWidget(this);
    files_->setObjectName(QStringLiteral("File1"));
    files_->addItems(SavedListFiles());
    layout->addWidget(label);
    layout->addWidget(name_);
    layout->addWidget(files_, 1);
    auto* buttons = new QHBoxLayout;
    ok_ = new QPushButton(QStringLiteral("&OK"), this);
    ok_->setObjectName(QStringLiteral("Command1_0"));
    ok_->setDefault(true);
    cancel_ = new QPushButton(QStringLiteral("&Cancel"), this);
    cancel_->setObjectName(QStringLiteral("Command1_1"));
    buttons->addStretch();
    buttons->addWidget(ok_);
    buttons->addWidget(cancel_);
    layout->addLayout(buttons);
    connect(ok_, &QPushButton::clicked, this, &Open1::accept);
    connect(cancel_, &QPushButton::clicked, this, &Open1::reject);
    connect(files_, &QListWidget::currentTextChanged, name_, &QLineEdit::setText);
    connect(files_, &QListWidget::itemDoubleClicked, this, &Open1::accept);
    resize(360, 320);
}

QString Open1::captionFor(ListChoice choice)
{
    return choice == ListChoice::Open ? QStringLiteral("Open Shopping List File - (*.lst)")
                                      : QStringLiteral("Delete Shopping List File - (*.lst)");
}

void Open1::accept()
{
    if (name_->text().trimmed().isEmpty())
        return;
    const QString file = ExistingListFile(name_->text());
    if (file.isEmpty()) {
        dialogs_.tell(windowTitle(),
                      QStringLiteral("This File cannot be found.\nMake sure that you have specified the correct filename."),
                      Icon::Exclamation);
        name_->setFocus(Qt::OtherFocusReason);
        return;
    }
    chosen_ = file;
    QDialog::accept();
}

QString Open1Chooser::chooseList(ListChoice choice)
{
    if (SavedListFiles().isEmpty())
        return QString::fromLatin1(kNoSavedLists);
    Open1 chooser(dialogs_, choice, parent_);
    return chooser.exec() == QDialog::Accepted ? chooser.chosen() : QString();
}
