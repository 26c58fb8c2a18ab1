#include "shopping/screens/quickselectpanel.h"

#include "common/blanktext.h"
#include "shopping/logic/quickselect.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QPushButton>
#include <QScrollArea>

namespace {

// A heading's boxes run down in columns of at most this many.
constexpr int kChoicesPerColumn = 15;

} // namespace

QuickSelectPanel::QuickSelectPanel(QWidget* parent)
    : OverlayPanel(QStringLiteral("QuickSelect"), QStringLiteral("Quick Select Screen"), parent)
{
    auto* area = new QScrollArea(this);
    area->setObjectName(QStringLiteral("QuickSelectChoices"));
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    auto* content = new QWidget(area);
    content->setObjectName(QStringLiteral("QuickSelectGroups"));
    auto* row = new QHBoxLayout(content);
    int index = 0;
    for (const QuickSelectGroup& group : QuickSelectGroups()) {
        auto* frame = new QGroupBox(QString::fromLatin1(group.heading), content);
        frame->setObjectName(QStringLiteral("Frame2_%1").arg(groups_.size()));
        auto* grid = new QGridLayout(frame);
        for (int place = 0; place < int(group.items.size()); ++place, ++index) {
            auto* box = new QCheckBox(QString::fromLatin1(group.items[std::size_t(place)]), frame);
            box->setObjectName(QStringLiteral("Check2_%1").arg(index));
            connect(box, &QCheckBox::clicked, this, &QuickSelectPanel::refreshAdd);
            grid->addWidget(box, place % kChoicesPerColumn, place / kChoicesPerColumn);
            choices_.append(box);
        }
        grid->setRowStretch(kChoicesPerColumn, 1);
        row->addWidget(frame, 0, Qt::AlignTop);
        groups_.append(frame);
    }
    row->addStretch();
    area->setWidget(content);
    area->viewport()->setAutoFillBackground(false);
    content->setAutoFillBackground(false);
    body()->addWidget(area, 1);

    const QString captions[] = {QStringLiteral("E&xit and Add All Checked Selections to Item Grid"),
                                QStringLiteral("E&xit Without Adding Checked Selections to Item Grid")};
    for (int command = 0; command < int(std::size(captions)); ++command)
        commands_.append(addButton(QStringLiteral("Command7_%1").arg(command), captions[command]));
    connect(commands_[kAddAll], &QPushButton::clicked, this, &QuickSelectPanel::addRequested);
    connect(commands_[kLeave], &QPushButton::clicked, this, &QuickSelectPanel::leaveRequested);
    connect(this, &OverlayPanel::closeRequested, this, &QuickSelectPanel::leaveRequested);
}

void QuickSelectPanel::open()
{
    refreshAdd();
    OverlayPanel::open(commands_[kLeave]);
}

QStringList QuickSelectPanel::takeChecked()
{
    QStringList checked;
    for (QCheckBox* box : choices_) {
        if (!box->isChecked())
            continue;
        checked.append(LTrim(box->text()));
        box->setChecked(false);
    }
    refreshAdd();
    return checked;
}

QList<QWidget*> QuickSelectPanel::colouredPanels() const
{
    QList<QWidget*> panels{const_cast<QuickSelectPanel*>(this)};
    for (QGroupBox* group : groups_)
        panels.append(group);
    return panels;
}

void QuickSelectPanel::refreshAdd()
{
    bool anyChecked = false;
    for (const QCheckBox* box : choices_)
        anyChecked = anyChecked || box->isChecked();
    commands_[kAddAll]->setEnabled(anyChecked);
}
