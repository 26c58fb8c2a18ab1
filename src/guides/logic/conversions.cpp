#include "guides/logic/conversions.h"

#include "common/numberformat.h"
#include "common/numbertext.h"

#include <array>
#include <cmath>

namespace {

using G = ConversionGroup;
using R = ConversionRule;

// The factors stand as the guide has always printed them: .3334, .334,
// .0834, .667 and .0167 are rounded on purpose and are not exact fractions.
constexpr std::array<ConversionOption, kConversionOptionCount> kOptions{{
    {0, "8 oz. to Cups", "8 oz. Cans", "Cups", R::Factor, 1, G::CanSizes},
    {1, "14 to 15 oz. to Cups", "14-15 oz. Cans", "Cups", R::Factor, 1.75, G::CanSizes},
    {2, "16 to 17 oz. to Cups", "16-17 oz. Cans", "Cups", R::Factor, 2, G::CanSizes},
    {3, "20 oz. (18 floz) to Cup", "20 oz. Cans", "Cups", R::Factor, 2.5, G::CanSizes},
    {4, "29 oz. to Cups", "29 oz. Cans", "Cups", R::Factor, 3.5, G::CanSizes},
    {5, "Pound of In Shell Walnuts to Shelled Cups", "lb(s). Walnuts (In Shells)", "Shelled Cups", R::Factor, 1.5,
     G::HowMuchHowMany},
    {8, "Teaspoons to TBsp.", "Teaspoons", "Tablespoons", R::Factor, .3334, G::WeightsAndMeasures},
    {9, "Tablespoon to Tsp.", "Tablespoons", "Teaspoons", R::Factor, 3, G::WeightsAndMeasures},
    {10, "Tablespoons to Cups", "Tablespoons", "Cups", R::Factor, .0625, G::WeightsAndMeasures},
    {11, "Cups to Tablespoons", "Cups", "Tablespoons", R::Factor, 16, G::WeightsAndMeasures},
    {12, "Cups to Ounces", "Cups", "Ounces", R::Factor, 8, G::WeightsAndMeasures},
    {13, "Ounces to Cups", "Ounces", "Cups", R::Factor, .125, G::WeightsAndMeasures},
    {14, "Cups to Pints", "Cups", "Pints", R::Factor, .5, G::WeightsAndMeasures},
    {15, "Pints to Cups", "Pints", "Cups", R::Factor, 2, G::WeightsAndMeasures},
    {16, "Cups to Quarts", "Cups", "Quarts", R::Factor, .25, G::WeightsAndMeasures},
    {17, "Quarts to Cups", "Quarts", "Cups", R::Factor, 4, G::WeightsAndMeasures},
    {18, "Celcius to Fahreheit", "Degrees Celcius", "Degrees Fahrenheit", R::CelsiusToFahrenheit, 0,
     G::Temperature},
    {19, "Fahreheit to Celcius", "Degrees Fahrenheit", "Degrees Celcius", R::FahrenheitToCelsius, 0,
     G::Temperature},
    {20, "Full Square Chocolate to Ounces", "Full Square", "Ounces", R::Factor, 1, G::EasyEquivalents},
    {21, "Cups of Fine Crumbs to Graham Crackers", "Cups", "Graham Crackers", R::Factor, 12, G::EasyEquivalents},
    {22, "Cups of Fine Crumbs to Salted Crackers", "Cups", "Salted Crackers", R::Factor, 20, G::EasyEquivalents},
    {23, "Tbsp. Cornstarch to Tbsp. Flour", "Tablespoon(s) Cornstarch", "Tablespoon(s) Flour", R::Factor, 2,
     G::EasyEquivalents},
    {24, "Cups of Chopped Nuts to Pounds", "Cups", "Pounds", R::Factor, .25, G::HowMuchHowMany},
    {25, "Marshmallows to Pounds", "Marshmallows", "Pounds", R::Factor, .0167, G::HowMuchHowMany},
    {26, "Tablespoons Butter to Ounces", "Tablespoons", "Ounces", R::Factor, .5, G::EasyEquivalents},
    {27, "Ounces Butter to Tablespoons", "Ounces", "Tablespoons", R::Factor, 2, G::EasyEquivalents},
    {28, "Sticks of Butter to Cups", "Stick (1/4 lb.)", "Cups", R::Factor, .5, G::EasyEquivalents},
    {29, "Slices of Bread to Cups Soft Bread Crumbs", "Bread Slices", "Cup(s) Soft Bread Crumbs", R::Factor, .667,
     G::HowMuchHowMany},
    {30, "Slices of Bread to Fine Dry Bread Crumbs", "Bread Slices", "Cup(s) Fine Dry Bread Crumbs", R::Factor, .25,
     G::HowMuchHowMany},
    {31, "Juice of Lemons to Tablespoons", "Lemons", "Tablespoons", R::Factor, 3, G::HowMuchHowMany},
    {32, "Grated Peel of Lemons to Teaspoons", "Lemons", "Teaspoons", R::Factor, 1, G::HowMuchHowMany},
    {33, "Juice of Oranges to Cups (approx.)", "Oranges", "Cups", R::Factor, .334, G::HowMuchHowMany},
    {34, "Grated Peel of Oranges to Teaspoons (approx.)", "Oranges", "Teaspoons", R::Factor, 2, G::HowMuchHowMany},
    {35, "Medium Apples Chopped to Cups (approx.)", "Medium Apples", "Cups", R::Factor, 1, G::HowMuchHowMany},
    {36, "Medium Bananas Mashed to Cups (approx.)", "Medium Bananas", "Cups", R::Factor, .334, G::HowMuchHowMany},
    {37, "Medium Onions Chopped to Cups (approx.)", "Medium Onions", "Cups", R::Factor, .5, G::HowMuchHowMany},
    {38, "Grams to Ounces", "Grams", "Ounces", R::Factor, .035274, G::WeightsAndMeasures},
    {41, "Ounces to Grams", "Ounces", "Grams", R::Factor, 28.349523, G::WeightsAndMeasures},
    {44, "Quarts to Gallons", "Quarts", "Gallons", R::Factor, .25, G::WeightsAndMeasures},
    {45, "Gallons to Quarts", "Gallons", "Quarts", R::Factor, 4, G::WeightsAndMeasures},
    {49, "Pound of Cheese Shredded to Cups", "Pounds", "Cups", R::Factor, 4, G::HowMuchHowMany},
    {50, "Egg Yolks to Cups", "Egg Yolks", "Cups", R::Factor, .0834, G::EasyEquivalents},
    {51, "Egg Whites to Cups", "Egg Whites", "Cups", R::Factor, .1, G::EasyEquivalents},
}};

const QString kWholePattern = QStringLiteral("###,###,###,###,###,###");
const QString kEntryFractionPattern = kWholePattern + u'.' + QString(24, u'#');
const QString kResultFractionPattern = kWholePattern + u'.' + QString(44, u'#');
const QString kGridFractionPattern = kWholePattern + u'.' + QString(18, u'#');

bool HasFraction(double value)
{
    return value != std::trunc(value);
}

// The whole-number pattern writes nothing at all for 0; a box or a cell
// that holds 0 shows it.
QString FormatOrZero(double value, const QString& pattern)
{
    return value == 0 ? QStringLiteral("0") : Format(value, pattern);
}

} // namespace

std::span<const ConversionOption> ConversionOptions()
{
    return kOptions;
}

const ConversionOption* FindConversionOption(int index)
{
    for (const ConversionOption& option : kOptions) {
        if (option.index == index)
            return &option;
    }
    return nullptr;
}

QList<const ConversionOption*> OptionsOfGroup(ConversionGroup group)
{
    QList<const ConversionOption*> options;
    for (const ConversionOption& option : kOptions) {
        if (option.group == group)
            options.append(&option);
    }
    return options;
}

QString GroupCaption(ConversionGroup group)
{
    switch (group) {
    case G::CanSizes: return QStringLiteral("Can Sizes");
    case G::WeightsAndMeasures: return QStringLiteral("Weights and Measures");
    case G::Temperature: return QStringLiteral("Temperature");
    case G::EasyEquivalents: return QStringLiteral("Easy Equivalents");
    case G::HowMuchHowMany: return QStringLiteral("How Much = How Many");
    }
    return {};
}

bool IsTemperatureOption(int index)
{
    const ConversionOption* option = FindConversionOption(index);
    return option && option->rule != R::Factor;
}

double ConvertValue(const ConversionOption& option, double entry)
{
    switch (option.rule) {
    case R::CelsiusToFahrenheit: return entry * 9 / 5 + 32;
    case R::FahrenheitToCelsius: return (entry - 32) * 5 / 9;
    case R::Factor: break;
    }
    return entry * option.factor;
}

QString RoundModeCaption(RoundMode mode)
{
    switch (mode) {
    case RoundMode::None: return QStringLiteral("&No Rounding");
    case RoundMode::Whole: return QStringLiteral("&Whole Number");
    case RoundMode::Tenth: return QStringLiteral("&1/10th");
    case RoundMode::Hundredth: return QStringLiteral("1/100&th");
    case RoundMode::Thousandth: return QStringLiteral("1/1000t&h");
    }
    return {};
}

QString RoundResultText(const QString& resultText, RoundMode mode)
{
    double half = 0;
    int places = 0;
    switch (mode) {
    case RoundMode::None: return resultText;
    case RoundMode::Whole: return ShortestText(std::floor(Val(resultText) + .5));
    case RoundMode::Tenth: half = .05; places = 1; break;
    case RoundMode::Hundredth: half = .005; places = 2; break;
    case RoundMode::Thousandth: half = .0005; places = 3; break;
    }
    const qsizetype point = resultText.indexOf(u'.');
    if (point < 0)
        return resultText;
    // The cut uses where the point stood before the addition, not after it.
    return ShortestText(Val(resultText) + half).left(point + 1 + places);
}

QString SingularUnit(const QString& unit)
{
    // "Degrees Celcius" would lose its final s.
    if (unit == u"Degrees Celcius")
        return unit;
    if (unit.right(6) == u"Inches")
        return unit.chopped(6) + QStringLiteral("Inch");
    if (unit == u"Feet")
        return QStringLiteral("Foot");
    if (unit == u"Square Feet")
        return QStringLiteral("Square Foot");
    if (unit == u"Cubic Feet")
        return QStringLiteral("Cubit Foot");  // the guide's own spelling
    if (unit.endsWith(u's'))
        return unit.chopped(1);
    return unit;
}

EntryReading ReadEntry(QStringView boxText, int optionIndex)
{
    EntryReading reading;
    if (boxText.isEmpty()) {
        reading.boxText = QStringLiteral("0");
    } else {
        reading.value = Val(boxText);
    }
    if (reading.value == 0 && IsTemperatureOption(optionIndex)) {
        reading.boxText = QStringLiteral("0");
    } else if (reading.value <= 0) {
        // Also a negative temperature: nothing below 0 reaches a conversion.
        reading.value = 1;
        reading.boxText = QStringLiteral("1");
    }
    return reading;
}

QString EntryBoxText(double value)
{
    return FormatOrZero(value, HasFraction(value) ? kEntryFractionPattern : kWholePattern);
}

QString ResultPanelText(const QString& roundedText)
{
    const double value = Val(roundedText);
    if (value == 0)
        return roundedText;
    return Format(value, HasFraction(value) ? kResultFractionPattern : kWholePattern);
}

SingleConversion ConvertSingle(const ConversionOption& option, double entry, RoundMode mode)
{
    const QString rounded = RoundResultText(ShortestText(ConvertValue(option, entry)), mode);
    const QString from = QString::fromLatin1(option.fromUnit);
    const QString to = QString::fromLatin1(option.toUnit);
    SingleConversion single;
    single.fromLabel = (entry == 1 ? SingularUnit(from) : from) + QStringLiteral(" = ");
    single.toLabel = Val(rounded) == 1 ? SingularUnit(to) : to;
    single.resultText = ResultPanelText(rounded);
    return single;
}

EntryRange ReadRange(double beginning, QStringView endingBoxText)
{
    EntryRange range{beginning, Val(endingBoxText), std::nullopt};
    if (range.ending <= 0) {
        range.ending = range.beginning + 1;
        range.endingBoxText = ShortestText(range.ending);
    }
    if (range.beginning > range.ending)
        std::swap(range.beginning, range.ending);
    if (range.ending - range.beginning > 1000) {
        range.ending = range.beginning + 999;
        range.endingBoxText = ShortestText(range.ending);
    }
    return range;
}

QList<ConversionRow> ConvertRange(const ConversionOption& option, const EntryRange& range, RoundMode mode)
{
    QList<ConversionRow> rows;
    for (int step = 0; range.beginning + step <= range.ending; ++step) {
        const double amount = range.beginning + step;
        double result = ConvertValue(option, amount);
        if (mode != RoundMode::None)
            result = Val(RoundResultText(ShortestText(result), mode));
        ConversionRow row;
        row.amount = FormatOrZero(amount, HasFraction(amount) && mode != RoundMode::Whole ? kGridFractionPattern
                                                                                          : kWholePattern);
        row.converted = FormatOrZero(result, mode == RoundMode::Whole ? kWholePattern : kGridFractionPattern);
        rows.append(row);
    }
    return rows;
}

QString MultipleEntryHeading()
{
    return QStringLiteral("   Amount Converted                 =                Converted Amount    ");
}

QString EntryCaption(bool multipleEntry)
{
    return multipleEntry ? QStringLiteral("Beginning Entry:") : QStringLiteral("Conversion Amount:");
}

QString EndingCaption()
{
    return QStringLiteral("Ending Amount:");
}

QString InputInformationTitle()
{
    return QStringLiteral("Input Information");
}

QString InputInformationText()
{
    return QStringLiteral("After entering data, select action desired\nfrom displayed option buttons.");
}
