#include "recipetools/screens/recipeprintoptions.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

bool IsFullPage(PrintLayout layout)
{
    return layout == PrintLayout::TwoColumn || layout == PrintLayout::OneColumn;
}

// A frame of option buttons numbered from `firstId`, each named by its number
// after `name` ("PrintLayout_1").
QGroupBox* MakeChoiceGroup(QWidget* parent, const QString& title, const QString& name, QButtonGroup* buttons,
                          int firstId, const QStringList& captions)
{
    auto* group = new QGroupBox(title, parent);
    group->setObjectName(name + QStringLiteral("Group"));
    auto* column = new QVBoxLayout(group);
    for (int index = 0; index < captions.size(); ++index) {
        auto* option = new QRadioButton(captions[index], group);
        option->setObjectName(QStringLiteral("%1_%2").arg(name).arg(firstId + index));
        buttons->addButton(option, firstId + index);
        column->addWidget(option);
    }
    return group;
}

} // namespace

RecipePrintOptions::RecipePrintOptions(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("RecipePrintOptions"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);

    layouts_ = new QButtonGroup(this);
    layoutGroup_ = MakeChoiceGroup(this, QStringLiteral("Page Layout"), QStringLiteral("PrintLayout"), layouts_,
                                  int(PrintLayout::TwoColumn),
                                  {QStringLiteral("Full Page Printout (2 Column Ingred.)"),
                                   QStringLiteral("Full Page Printout (1 Column Ingred.)"),
                                   QStringLiteral("Top Half of Page Printout"),
                                   QStringLiteral("Bottom Half of Page Printout")});
    column->addWidget(layoutGroup_);
    formats_ = new QButtonGroup(this);
    formatGroup_ = MakeChoiceGroup(this, QStringLiteral("Amount Format"), QStringLiteral("AmountFormat"), formats_,
                                  int(AmountFormat::Fractions),
                                  {QStringLiteral(" Print Amounts as Fractions (1/4)"),
                                   QStringLiteral("Print Amounts as Decimals (.25)")});
    column->addWidget(formatGroup_);

    picture_ = new QCheckBox(QStringLiteral("Print Picture"), this);
    picture_->setObjectName(QStringLiteral("PrintPicture"));
    column->addWidget(picture_);
    selectAdditional_ = new QPushButton(QStringLiteral("&Select Additional Recipes"), this);
    selectAdditional_->setObjectName(QStringLiteral("SelectAdditionalRecipes"));
    column->addWidget(selectAdditional_);

    reset();
    connect(layouts_, &QButtonGroup::idToggled, this, [this](int, bool checked) {
        if (checked)
            layoutChosen();
    });
    connect(formats_, &QButtonGroup::idToggled, this, [this](int, bool checked) {
        if (checked)
            emit changed();
    });
    connect(picture_, &QCheckBox::toggled, this, &RecipePrintOptions::changed);
    connect(selectAdditional_, &QPushButton::clicked, this, &RecipePrintOptions::selectAdditionalRecipes);
}

void RecipePrintOptions::reset()
{
    const QSignalBlocker layoutsQuiet(layouts_);
    const QSignalBlocker formatsQuiet(formats_);
    layouts_->button(int(PrintLayout::TwoColumn))->setChecked(true);
    formats_->button(int(AmountFormat::Fractions))->setChecked(true);
    offerPicture();
}

void RecipePrintOptions::setPictureAvailable(bool available)
{
    pictureAvailable_ = available;
    offerPicture();
}

void RecipePrintOptions::setWorksheet(bool worksheet)
{
    for (QWidget* part : {static_cast<QWidget*>(layoutGroup_), static_cast<QWidget*>(formatGroup_),
                          static_cast<QWidget*>(picture_)})
        part->setEnabled(!worksheet);
    selectAdditional_->setEnabled(!worksheet && !IsFullPage(layout()));
    if (!worksheet)
        picture_->setEnabled(IsFullPage(layout()) && pictureAvailable_);
}

PrintLayout RecipePrintOptions::layout() const
{
    return PrintLayout(layouts_->checkedId());
}

AmountFormat RecipePrintOptions::amountFormat() const
{
    return AmountFormat(formats_->checkedId());
}

bool RecipePrintOptions::printPicture() const
{
    return picture_->isEnabled() && picture_->isChecked();
}

QList<QWidget*> RecipePrintOptions::colouredPanels() const
{
    return {layoutGroup_, formatGroup_, picture_};
}

// The picture goes on full pages only: a half page clears and disables the
// box, and a full page offers it again, for the user to tick.
void RecipePrintOptions::layoutChosen()
{
    const bool fullPage = IsFullPage(layout());
    const QSignalBlocker quiet(picture_);
    if (!fullPage)
        picture_->setChecked(false);
    picture_->setEnabled(fullPage && pictureAvailable_);
    selectAdditional_->setEnabled(!fullPage);
    emit changed();
}

// A recipe with a picture prints it on a full page unless the user says not.
void RecipePrintOptions::offerPicture()
{
    const bool fullPage = IsFullPage(layout());
    const QSignalBlocker quiet(picture_);
    picture_->setEnabled(fullPage && pictureAvailable_);
    picture_->setChecked(fullPage && pictureAvailable_);
    selectAdditional_->setEnabled(!fullPage);
}
