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

} // namespace

RecipePrintOptions::RecipePrintOptions(QWidget* parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("RecipePrintOptions"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);

    layoutGroup_ = new QGroupBox(QStringLiteral("Page Layout"), this);
    layoutGroup_->setObjectName(QStringLiteral("PrintLayoutGroup"));
    auto* layoutColumn = new QVBoxLayout(layoutGroup_);
    layouts_ = new QButtonGroup(this);
    const QString layoutCaptions[] = {
        QStringLiteral("Full Page Printout (2 Column Ingred.)"), QStringLiteral("Full Page Printout (1 Column Ingred.)"),
        QStringLiteral("Top Half of Page Printout"), QStringLiteral("Bottom Half of Page Printout")};
    for (int layout = 1; layout <= 4; ++layout) {
        auto* option = new QRadioButton(layoutCaptions[layout - 1], layoutGroup_);
        option->setObjectName(QStringLiteral("PrintLayout_%1").arg(layout));
        layouts_->addButton(option, layout);
        layoutColumn->addWidget(option);
    }
    column->addWidget(layoutGroup_);

    formatGroup_ = new QGroupBox(QStringLiteral("Amount Format"), this);
    formatGroup_->setObjectName(QStringLiteral("AmountFormatGroup"));
    auto* formatColumn = new QVBoxLayout(formatGroup_);
    formats_ = new QButtonGroup(this);
    const QString formatCaptions[] = {QStringLiteral(" Print Amounts as Fractions (1/4)"),
                                      QStringLiteral("Print Amounts as Decimals (.25)")};
    for (int format = 0; format <= 1; ++format) {
        auto* option = new QRadioButton(formatCaptions[format], formatGroup_);
        option->setObjectName(QStringLiteral("AmountFormat_%1").arg(format));
        formats_->addButton(option, format);
        formatColumn->addWidget(option);
    }
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
