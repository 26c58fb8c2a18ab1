#pragma once
// The kitchen measurement conversions: the 43 options of the conversion
// screen, the rules that read and rewrite its entry boxes, the rounding
// modes and the texts shown around a result. Pure functions: the screen
// holds the boxes and labels and asks these for what to show.
#include <QList>
#include <QString>
#include <QStringView>

#include <optional>
#include <span>

enum class ConversionGroup { CanSizes, WeightsAndMeasures, Temperature, EasyEquivalents, HowMuchHowMany };
inline constexpr int kConversionGroupCount = 5;

// How a result comes from an entry x: x times the factor, or one of the two
// temperature formulas.
enum class ConversionRule { Factor, CelsiusToFahrenheit, FahrenheitToCelsius };

struct ConversionOption {
    int index;              // the option button's index; the numbering has gaps
    const char* caption;    // the button's text
    const char* fromUnit;   // shown in front of " = "
    const char* toUnit;     // shown after the result
    ConversionRule rule;
    double factor;          // ConversionRule::Factor only
    ConversionGroup group;
};

inline constexpr int kConversionOptionCount = 43;
// "No option chosen": entering a box clears the choice to this marker.
inline constexpr int kNoOption = 99;

// All options in index order.
std::span<const ConversionOption> ConversionOptions();
// The option with this button index; nothing for a gap or an unknown index.
const ConversionOption* FindConversionOption(int index);
// The options of one group, in index order.
QList<const ConversionOption*> OptionsOfGroup(ConversionGroup group);
QString GroupCaption(ConversionGroup group);
bool IsTemperatureOption(int index);

// The result for an entry, unrounded.
double ConvertValue(const ConversionOption& option, double entry);

// The menu's rounding modes, with their menu numbers.
enum class RoundMode { None = 1, Whole = 2, Tenth = 3, Hundredth = 4, Thousandth = 5 };
QString RoundModeCaption(RoundMode mode);

// Rounding works on the text of a result. Whole: the value plus .5, the
// fraction dropped. Tenth to Thousandth: with no "." the text stays;
// otherwise .05, .005 or .0005 is added and the text of the sum is cut 1, 2
// or 3 places after where the point stood before the addition. A carry that
// lengthens the whole part therefore keeps one digit less ("9.96" gives
// "10."), which is how the guide has always shown it.
QString RoundResultText(const QString& resultText, RoundMode mode);

// A unit in the singular, for an amount of exactly 1.
QString SingularUnit(const QString& unit);

// ---- The entry box ----------------------------------------------------------

// What the entry box reads as when an option is chosen: its numeric front,
// with an empty box showing "0". An entry of 0 or less becomes 1, except
// that a temperature converts 0 as it is (a negative temperature becomes 1
// too). `boxText` is set when the box has to show something new.
struct EntryReading {
    double value = 0;
    std::optional<QString> boxText;
};
EntryReading ReadEntry(QStringView boxText, int optionIndex);

// The box rewritten after a single-entry conversion: thousands separators,
// and the fraction only when there is one.
QString EntryBoxText(double value);

// ---- Single entry -----------------------------------------------------------

struct SingleConversion {
    QString fromLabel;   // from unit and " = ", singular for an entry of 1
    QString toLabel;     // to unit, singular for a result of 1
    QString resultText;  // what the result panel shows
};
SingleConversion ConvertSingle(const ConversionOption& option, double entry, RoundMode mode);

// The result panel's text from the (rounded) result text.
QString ResultPanelText(const QString& roundedText);

// ---- Multiple entry ---------------------------------------------------------

// The range after its rules: an ending of 0 or less is the beginning plus 1,
// a reversed range is swapped, and a range longer than 1000 ends at the
// beginning plus 999. `endingBoxText` is set when the ending box is
// rewritten (the swap rewrites no box).
struct EntryRange {
    double beginning = 0;
    double ending = 0;
    std::optional<QString> endingBoxText;
};
EntryRange ReadRange(double beginning, QStringView endingBoxText);

struct ConversionRow {
    QString amount;     // first column
    QString converted;  // second column
};
// One row for each step of 1 from the beginning up to and including the
// ending.
QList<ConversionRow> ConvertRange(const ConversionOption& option, const EntryRange& range, RoundMode mode);

// The heading over the grid of multiple entry.
QString MultipleEntryHeading();
// The entry box's caption in either mode, and the second box's caption.
QString EntryCaption(bool multipleEntry);
QString EndingCaption();

// The message for Enter in an entry box.
QString InputInformationTitle();
QString InputInformationText();
