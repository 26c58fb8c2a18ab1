#include "common/numberformat.h"

#include "common/numbertext.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace {

constexpr int kDoubleDigits = 15;
constexpr int kSingleDigits = 7;

// Splits a pattern at ';' outside quotes and escapes.
std::vector<QStringView> SplitSections(QStringView pattern)
{
    std::vector<QStringView> sections;
    qsizetype start = 0;
    bool quoted = false;
    for (qsizetype i = 0; i < pattern.size(); ++i) {
        const char16_t c = pattern[i].unicode();
        if (quoted) {
            if (c == u'"')
                quoted = false;
        } else if (c == u'"') {
            quoted = true;
        } else if (c == u'\\') {
            ++i;
        } else if (c == u';') {
            sections.push_back(pattern.mid(start, i - start));
            start = i + 1;
        }
    }
    sections.push_back(pattern.mid(start));
    return sections;
}

// ---------------------------------------------------------------- numbers

enum class Region { Integer, Fraction, Exponent };

struct Item {
    enum Kind { Digit, Point, Percent, ExponentMark, Literal } kind = Literal;
    Region region = Region::Integer;
    char16_t placeholder = 0; // '0' or '#' for a digit, 'E'/'e' for the mark
    bool exponentPlus = false;
    QString text;
};

struct NumberPattern {
    std::vector<Item> items;
    std::vector<char16_t> integerPlaceholders;
    std::vector<char16_t> fractionPlaceholders;
    std::vector<char16_t> exponentPlaceholders;
    bool grouping = false;
    int thousandsDivisions = 0;
    int percents = 0;
    bool hasExponent = false;
};

NumberPattern ParseNumberPattern(QStringView section)
{
    NumberPattern p;
    Region region = Region::Integer;
    int pendingCommas = 0;
    bool hasPoint = false;
    auto closeInteger = [&] {
        p.thousandsDivisions += pendingCommas;
        pendingCommas = 0;
    };
    auto literal = [&](QStringView text) {
        if (!p.items.empty() && p.items.back().kind == Item::Literal)
            p.items.back().text += text;
        else
            p.items.push_back(Item{Item::Literal, region, 0, false, text.toString()});
    };

    for (qsizetype i = 0; i < section.size(); ++i) {
        const char16_t c = section[i].unicode();
        switch (c) {
        case u'0':
        case u'#':
            if (region == Region::Integer) {
                if (pendingCommas > 0 && !p.integerPlaceholders.empty())
                    p.grouping = true;
                pendingCommas = 0;
                p.integerPlaceholders.push_back(c);
            } else if (region == Region::Fraction) {
                p.fractionPlaceholders.push_back(c);
            } else {
                p.exponentPlaceholders.push_back(c);
            }
            p.items.push_back(Item{Item::Digit, region, c, false, {}});
            break;
        case u'.':
            if (region == Region::Integer && !hasPoint) {
                hasPoint = true;
                closeInteger();
                region = Region::Fraction;
                p.items.push_back(Item{Item::Point, region, 0, false, {}});
            } else {
                literal(u".");
            }
            break;
        case u',':
            // Only meaningful among the integer placeholders; elsewhere dropped.
            if (region == Region::Integer && !p.integerPlaceholders.empty())
                ++pendingCommas;
            break;
        case u'%':
            ++p.percents;
            p.items.push_back(Item{Item::Percent, region, 0, false, {}});
            break;
        case u'E':
        case u'e':
            if (!p.hasExponent && i + 1 < section.size()
                && (section[i + 1] == u'+' || section[i + 1] == u'-')) {
                if (region == Region::Integer)
                    closeInteger();
                p.hasExponent = true;
                region = Region::Exponent;
                p.items.push_back(Item{Item::ExponentMark, region, c, section[i + 1] == u'+', {}});
                ++i;
            } else {
                literal(section.mid(i, 1));
            }
            break;
        case u'\\':
            if (i + 1 < section.size()) {
                literal(section.mid(i + 1, 1));
                ++i;
            }
            break;
        case u'"': {
            const qsizetype close = section.indexOf(u'"', i + 1);
            const qsizetype end = close < 0 ? section.size() : close;
            literal(section.mid(i + 1, end - i - 1));
            i = end;
            break;
        }
        default:
            literal(section.mid(i, 1));
            break;
        }
    }
    if (region == Region::Integer)
        closeInteger();
    return p;
}

// A non-negative decimal: 0.<digits> x 10^point, digits without trailing zeros.
struct Digits {
    QByteArray digits;
    qint64 point = 0;
};

// Rounds half away from zero so that `fractionDigits` digits remain after the point.
void RoundDigits(Digits& d, qint64 fractionDigits)
{
    if (d.digits.isEmpty())
        return;
    const qint64 cut = d.point + fractionDigits;
    if (cut >= d.digits.size())
        return;
    if (cut < 0) {
        d.digits.clear();
        d.point = 0;
        return;
    }
    const bool up = d.digits[cut] >= '5';
    d.digits.truncate(static_cast<qsizetype>(cut));
    if (up) {
        qsizetype i = d.digits.size() - 1;
        while (i >= 0 && d.digits[i] == '9')
            --i;
        if (i < 0) {
            d.digits = "1";
            ++d.point;
        } else {
            d.digits.truncate(i + 1);
            d.digits[i] = static_cast<char>(d.digits[i] + 1);
        }
    }
    while (d.digits.endsWith('0'))
        d.digits.chop(1);
    if (d.digits.isEmpty())
        d.point = 0;
}

QByteArray IntegerDigits(const Digits& d)
{
    if (d.digits.isEmpty() || d.point <= 0)
        return {};
    QByteArray out = d.digits.left(static_cast<qsizetype>(std::min<qint64>(d.point, d.digits.size())));
    if (d.point > out.size())
        out.append(QByteArray(static_cast<qsizetype>(d.point - out.size()), '0'));
    return out;
}

char DigitAt(const Digits& d, qint64 index)
{
    return index >= 0 && index < d.digits.size() ? d.digits[static_cast<qsizetype>(index)] : '0';
}

QString RenderNumber(const NumberPattern& p, Digits value, bool negative)
{
    const auto fractionCount = static_cast<qint64>(p.fractionPlaceholders.size());
    value.point += 2 * static_cast<qint64>(p.percents) - 3 * static_cast<qint64>(p.thousandsDivisions);

    qint64 exponent = 0;
    if (p.hasExponent) {
        const qint64 wholeDigits = std::max<qint64>(1, static_cast<qint64>(p.integerPlaceholders.size()));
        if (!value.digits.isEmpty()) {
            exponent = value.point - wholeDigits;
            value.point = wholeDigits;
            RoundDigits(value, fractionCount);
            if (value.point > wholeDigits) { // 9.99 became 10.0
                exponent += value.point - wholeDigits;
                value.point = wholeDigits;
            }
        }
    } else {
        RoundDigits(value, fractionCount);
    }

    // The integer digits, padded to the placeholders from the first '0' on.
    QByteArray whole = IntegerDigits(value);
    const auto firstZero = std::find(p.integerPlaceholders.begin(), p.integerPlaceholders.end(), u'0');
    const auto minimum = static_cast<qsizetype>(p.integerPlaceholders.end() - firstZero);
    if (whole.size() < minimum)
        whole.prepend(QByteArray(minimum - whole.size(), '0'));

    // Fraction digits; trailing zeros vanish where the placeholder is '#'.
    QByteArray fraction;
    for (qint64 k = 0; k < fractionCount; ++k)
        fraction.append(DigitAt(value, value.point + k));
    qsizetype shownFraction = fraction.size();
    while (shownFraction > 0 && p.fractionPlaceholders[static_cast<std::size_t>(shownFraction - 1)] == u'#'
           && fraction[shownFraction - 1] == '0')
        --shownFraction;

    QString exponentText;
    if (p.hasExponent) {
        const qint64 magnitude = exponent < 0 ? -exponent : exponent;
        const auto zeros = std::count(p.exponentPlaceholders.begin(), p.exponentPlaceholders.end(), u'0');
        exponentText = QString::number(magnitude);
        if (exponentText.size() < zeros)
            exponentText = exponentText.rightJustified(static_cast<qsizetype>(zeros), u'0');
        if (magnitude == 0 && zeros == 0)
            exponentText.clear();
    }

    QString out;
    if (negative)
        out += u'-';

    const qsizetype length = whole.size();
    const auto placeholderCount = static_cast<qsizetype>(p.integerPlaceholders.size());
    const qsizetype offset = placeholderCount - length; // negative: the first slot takes the surplus
    bool wholeWritten = false;
    auto writeDigit = [&](qsizetype g) {
        out += QChar::fromLatin1(whole[g]);
        const qsizetype rest = length - 1 - g;
        if (p.grouping && rest > 0 && rest % 3 == 0)
            out += u',';
    };
    auto writeAllWhole = [&] {
        if (!wholeWritten && placeholderCount == 0)
            for (qsizetype g = 0; g < length; ++g)
                writeDigit(g);
        wholeWritten = true;
    };

    qsizetype integerSlot = 0;
    qsizetype fractionSlot = 0;
    for (const Item& item : p.items) {
        switch (item.kind) {
        case Item::Digit:
            if (item.region == Region::Integer) {
                const qsizetype j = integerSlot++;
                if (j == 0 && offset < 0) {
                    for (qsizetype g = 0; g <= -offset; ++g)
                        writeDigit(g);
                } else if (j - offset >= 0 && j - offset < length) {
                    writeDigit(j - offset);
                }
                wholeWritten = true;
            } else if (item.region == Region::Fraction) {
                writeAllWhole();
                const qsizetype k = fractionSlot++;
                if (k < shownFraction)
                    out += QChar::fromLatin1(fraction[k]);
            }
            // Exponent digits are written with the mark.
            break;
        case Item::Point:
            writeAllWhole();
            out += u'.';
            break;
        case Item::Percent:
            writeAllWhole();
            out += u'%';
            break;
        case Item::ExponentMark:
            writeAllWhole();
            out += QChar(item.placeholder);
            if (exponent < 0)
                out += u'-';
            else if (item.exponentPlus)
                out += u'+';
            out += exponentText;
            break;
        case Item::Literal:
            out += item.text;
            break;
        }
    }
    writeAllWhole();
    return out;
}

QString FormatNumber(double value, QStringView pattern, int significantDigits)
{
    if (!std::isfinite(value) || pattern.isEmpty())
        return significantDigits == kSingleDigits ? ShortestText(static_cast<float>(value)) : ShortestText(value);

    struct Named {
        const char16_t* name;
        const char16_t* pattern;
    };
    static const Named kNamed[] = {
        {u"Currency", u"$#,##0.00;($#,##0.00)"},
        {u"Fixed", u"0.00"},
        {u"Standard", u"#,##0.00"},
        {u"Percent", u"0.00%"},
        {u"Scientific", u"0.00E+00"},
    };
    const bool nonZero = value != 0;
    if (pattern.compare(u"General Number", Qt::CaseInsensitive) == 0)
        return FormatNumber(value, {}, significantDigits);
    if (pattern.compare(u"Yes/No", Qt::CaseInsensitive) == 0)
        return nonZero ? QStringLiteral("Yes") : QStringLiteral("No");
    if (pattern.compare(u"True/False", Qt::CaseInsensitive) == 0)
        return nonZero ? QStringLiteral("True") : QStringLiteral("False");
    if (pattern.compare(u"On/Off", Qt::CaseInsensitive) == 0)
        return nonZero ? QStringLiteral("On") : QStringLiteral("Off");
    for (const Named& named : kNamed) {
        if (pattern.compare(QStringView(named.name), Qt::CaseInsensitive) == 0)
            return FormatNumber(value, QStringView(named.pattern), significantDigits);
    }

    const std::vector<QStringView> sections = SplitSections(pattern);
    QStringView section = sections[0];
    bool sign = false;
    if (value < 0 && sections.size() >= 2 && !sections[1].isEmpty())
        section = sections[1];
    else if (value == 0 && sections.size() >= 3 && !sections[2].isEmpty())
        section = sections[2];
    else
        sign = value < 0;

    const DecimalDigits d = ToDecimalDigits(value, significantDigits);
    return RenderNumber(ParseNumberPattern(section), Digits{d.digits, d.pointPosition}, sign);
}

} // namespace

QString Format(double value, QStringView pattern)
{
    return FormatNumber(value, pattern, kDoubleDigits);
}

QString Format(float value, QStringView pattern)
{
    return FormatNumber(value, pattern, kSingleDigits);
}

// ---------------------------------------------------------------- texts

QString FormatText(QStringView text, QStringView pattern)
{
    const std::vector<QStringView> sections = SplitSections(pattern);
    QStringView section = sections[0];
    if (text.isEmpty() && sections.size() >= 2)
        section = sections[1];

    struct Piece {
        char16_t placeholder; // '@', '&' or 0 for literal text
        QString text;
    };
    std::vector<Piece> pieces;
    bool fromLeft = false;
    int letterCase = 0; // -1 lower, 1 upper
    qsizetype placeholderCount = 0;
    for (qsizetype i = 0; i < section.size(); ++i) {
        const char16_t c = section[i].unicode();
        if (c == u'@' || c == u'&') {
            pieces.push_back(Piece{c, {}});
            ++placeholderCount;
        } else if (c == u'!') {
            fromLeft = true;
        } else if (c == u'<') {
            letterCase = -1;
        } else if (c == u'>') {
            letterCase = 1;
        } else if (c == u'\\') {
            if (i + 1 < section.size())
                pieces.push_back(Piece{0, section.mid(++i, 1).toString()});
        } else if (c == u'"') {
            const qsizetype close = section.indexOf(u'"', i + 1);
            const qsizetype end = close < 0 ? section.size() : close;
            pieces.push_back(Piece{0, section.mid(i + 1, end - i - 1).toString()});
            i = end;
        } else {
            pieces.push_back(Piece{0, section.mid(i, 1).toString()});
        }
    }

    QString source = text.toString();
    if (letterCase < 0)
        source = source.toLower();
    else if (letterCase > 0)
        source = source.toUpper();

    QString out;
    if (placeholderCount == 0) {
        for (const Piece& piece : pieces)
            out += piece.text;
        return out + source;
    }

    const qsizetype length = source.size();
    const qsizetype offset = fromLeft ? 0 : placeholderCount - length;
    qsizetype slot = 0;
    for (const Piece& piece : pieces) {
        if (piece.placeholder == 0) {
            out += piece.text;
            continue;
        }
        const qsizetype j = slot++;
        if (!fromLeft && j == 0 && offset < 0) {
            out += QStringView(source).left(1 - offset);
            continue;
        }
        const qsizetype index = j - offset;
        if (index >= 0 && index < length)
            out += source[index];
        else if (piece.placeholder == u'@')
            out += u' ';
    }
    return out;
}
