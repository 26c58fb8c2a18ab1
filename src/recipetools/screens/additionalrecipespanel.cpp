#include "recipetools/screens/additionalrecipespanel.h"

#include "cookbook/logic/cookbookfiles.h"
#include "cookbook/logic/nameentry.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

AdditionalRecipesPanel::AdditionalRecipesPanel(QWidget* parent)
    : OverlayPanel(QStringLiteral("SelectAdditionalRecipes"), QStringLiteral("Select Additional Recipes"), parent)
{
    auto* grid = new QGridLayout;
    body()->addLayout(grid);
    int row = 0;
    for (int slot = 0; slot < kSlots; ++slot) {
        if (slot % 2 == 0) {
            const QString heading = slot == 0 ? QStringLiteral("Page One Recipes:") : QStringLiteral("Next Page Recipes:");
            grid->addWidget(new QLabel(heading, this), row++, 0, 1, 3);
        }
        grid->addWidget(new QLabel(slot % 2 == 0 ? QStringLiteral("Top") : QStringLiteral("Bottom"), this), row, 0);
        typeLists_[slot] = new QComboBox(this);
        typeLists_[slot]->setObjectName(QStringLiteral("Combo8_%1").arg(slot));
        typeLists_[slot]->addItems(RecipeTypeNames());
        typeLists_[slot]->setCurrentIndex(-1);
        recipeLists_[slot] = new QComboBox(this);
        recipeLists_[slot]->setObjectName(QStringLiteral("Combo9_%1").arg(slot));
        recipeLists_[slot]->setMinimumContentsLength(30);
        recipeLists_[slot]->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        auto* clear = new QPushButton(QStringLiteral("Clear"), this);
        clear->setObjectName(QStringLiteral("ClearSlot_%1").arg(slot));
        grid->addWidget(typeLists_[slot], row, 1);
        grid->addWidget(recipeLists_[slot], row, 2);
        grid->addWidget(clear, row, 3);
        ++row;
        connect(typeLists_[slot], &QComboBox::activated, this, [this, slot] { fillRecipes(slot); });
        connect(clear, &QPushButton::clicked, this, [this, slot] { clearSlot(slot); });
    }
    QPushButton* print = addButton(QStringLiteral("AdditionalPrintOptions"), QStringLiteral("&Print Options"));
    QPushButton* cancelButton = addButton(QStringLiteral("AdditionalCancel"), QStringLiteral("&Cancel"));
    connect(print, &QPushButton::clicked, this, [this] {
        hide();
        emit accepted();
    });
    connect(cancelButton, &QPushButton::clicked, this, &AdditionalRecipesPanel::cancel);
    connect(this, &AdditionalRecipesPanel::closeRequested, this, &AdditionalRecipesPanel::cancel);
}

void AdditionalRecipesPanel::cancel()
{
    hide();
    emit cancelled();
}

void AdditionalRecipesPanel::open(int cookbook, int slot, RecipeType type, const QString& entry)
{
    if (cookbook != cookbook_) {
        for (int other = 0; other < kSlots; ++other)
            clearSlot(other);
        cookbook_ = cookbook;
    }
    typeLists_[slot]->setCurrentText(RecipeTypeName(type));
    fillRecipes(slot);
    recipeLists_[slot]->setCurrentIndex(recipeLists_[slot]->findData(entry));
    clearSlot(slot ^ 1);
    OverlayPanel::open();
}

void AdditionalRecipesPanel::fillRecipes(int slot)
{
    QComboBox* recipes = recipeLists_[slot];
    recipes->clear();
    const std::optional<RecipeType> type = RecipeTypeFromName(typeLists_[slot]->currentText());
    if (type) {
        QStringList entries = ReadNameList(cookbook_, *type);
        SortEntries(entries);
        for (const QString& entry : entries)
            recipes->addItem(RecipeNameOf(entry), entry);
    }
    recipes->setCurrentIndex(-1);
}

void AdditionalRecipesPanel::clearSlot(int slot)
{
    typeLists_[slot]->setCurrentIndex(-1);
    recipeLists_[slot]->clear();
}

AdditionalRecipesPanel::Queue AdditionalRecipesPanel::queue() const
{
    Queue queue;
    for (int slot = 0; slot < kSlots; ++slot) {
        const std::optional<RecipeType> type = RecipeTypeFromName(typeLists_[slot]->currentText());
        const QString entry = recipeLists_[slot]->currentData().toString();
        const RecordNumber recordNumber = RecordNumberOf(entry);
        if (type && recordNumber > 0)
            queue[slot] = AdditionalRecipe{*type, recordNumber, RecipeNameOf(entry)};
    }
    return queue;
}
