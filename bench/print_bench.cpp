// Printing from the recipe screen: composing a full recipe page with real
// font measures, as every option change on the print panel does, and
// painting the page as the preview and the clipboard do.
#include "bench_main.h"

#include "recipetools/logic/recipeprint.h"
#include "print/logic/pagebuilder.h"
#include "print/screens/fontmeasurer.h"
#include "print/screens/pagepainter.h"

#include <QApplication>

namespace {

PrintedRecipe FullRecipe()
{
    PrintedRecipe recipe;
    recipe.typeName = QStringLiteral("Main dishes");
    recipe.name = QStringLiteral("Chicken and Dumplings");
    for (int row = 0; row < kRecipeRows; ++row) {
        recipe.fields.amounts[row] = QStringLiteral("1 1/2");
        recipe.fields.units[row] = QStringLiteral("cups");
        recipe.fields.ingredients[row] = QStringLiteral("ingredient number %1").arg(row + 1);
    }
    recipe.fields.directions = QString(QStringLiteral("Stir the pot and let it simmer a while. ")).repeated(24);
    recipe.fields.yieldAmount = QStringLiteral("6");
    recipe.fields.yieldType = QStringLiteral("Serving(s)");
    recipe.fields.cookingTime = QStringLiteral("1 hour");
    recipe.fields.ovenTemperature = QStringLiteral("350");
    return recipe;
}

void BM_ComposeRecipePage(benchmark::State& state)
{
    const FontMeasurer measurer;
    const PrintedRecipe recipe = FullRecipe();
    PrintSettings settings;
    settings.amountFormat = AmountFormat::Decimals;
    for (auto _ : state) {
        PageBuilder page(measurer);
        ComposeRecipePage(page, recipe, settings, QDate(2026, 11, 21));
        benchmark::DoNotOptimize(page.document().pages.size());
    }
}
BENCHMARK(BM_ComposeRecipePage)->Unit(benchmark::kMillisecond);

void BM_PaintPreviewPage(benchmark::State& state)
{
    const FontMeasurer measurer;
    PageBuilder page(measurer);
    ComposeRecipePage(page, FullRecipe(), PrintSettings{}, QDate(2026, 11, 21));
    for (auto _ : state) {
        const QImage image = PageImage(page.document(), 0, 96);
        benchmark::DoNotOptimize(image.width());
    }
}
BENCHMARK(BM_PaintPreviewPage)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv)
{
    return RunBenchmarks<QApplication>(argc, argv);
}
