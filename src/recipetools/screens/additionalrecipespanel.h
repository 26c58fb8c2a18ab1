#pragma once
// The "Select Additional Recipes" panel: ten slots, each a type list
// (Combo8) and a recipe list (Combo9), for half-page recipes two to a sheet.
// Slots 0 and 1 are the top and bottom of the first sheet; slots 2 to 9 fill
// the next sheets.
#include "recipetools/logic/recipeprint.h"

#include "shell/kit/overlaypanel.h"

#include <array>

class QComboBox;

class AdditionalRecipesPanel final : public OverlayPanel {
    Q_OBJECT
public:
    static constexpr int kSlots = 10;
    using Queue = std::array<std::optional<AdditionalRecipe>, kSlots>;

    explicit AdditionalRecipesPanel(QWidget* parent = nullptr);

    // Opens the panel on `cookbook` with the screen's recipe in `slot` and
    // the other slot of its sheet cleared.
    void open(int cookbook, int slot, RecipeType type, const QString& entry);

    QComboBox* typeList(int slot) const { return typeLists_[slot]; }
    QComboBox* recipeList(int slot) const { return recipeLists_[slot]; }
    // The slots with a recipe chosen.
    Queue queue() const;
    // "&Cancel", and Escape: the panel closes and nothing is queued anew.
    void cancel();

signals:
    // "&Print Options": print the queue.
    void accepted();
    // "&Cancel".
    void cancelled();

private:
    void fillRecipes(int slot);
    void clearSlot(int slot);

    int cookbook_ = 0;
    std::array<QComboBox*, kSlots> typeLists_{};
    std::array<QComboBox*, kSlots> recipeLists_{};
};
