#include "common/numbertext.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

namespace {

constexpr int kDoubleDigits = 15;
constexpr int kSingleDigits = 7;

// More significant digits than this cannot change the nearest Double; the
// rest only matters as "something non-zero follows", kept as one sticky '1'.
constexpr std::size_t kMaxKeptDigits = 800;

bool IsBlank(QChar c)
{
    const char16_t u = c.unicode();
    return u == u' ' || u == u'\t' || u == u'\r' || u == u'\n';
}

int DigitValue(char16_t c, int radix)
{
    int v = -1;
    if (c >= u'0' && c <= u'9')
        v = c - u'0';
    else if (c >= u'a' && c <= u'f')
        v = c - u'a' + 10;
    else if (c >= u'A' && c <= u'F')
        v = c - u'A' + 10;
    return v < radix ? v : -1;
}

// Reads the number at the front of the text in one pass: blanks before it are
// skipped, and the first character that cannot continue it ends the reading.
class LeadingNumberReader {
public:
    explicit LeadingNumberReader(QStringView text) : text_(text) {}

    std::optional<double> Read()
    {
        while (pos_ < text_.size() && IsBlank(text_[pos_]))
            ++pos_;
        char16_t c = Peek();
        if (c == u'&')
            return ReadRadix();

        bool negative = false;
        if (c == u'+' || c == u'-') {
            negative = c == u'-';
            Next();
        }

        std::string digits;
        bool sticky = false;
        qint64 pointPosition = 0;
        auto keep = [&](char16_t d) {
            if (digits.size() < kMaxKeptDigits)
                digits.push_back(static_cast<char>(d));
            else if (d != u'0')
                sticky = true;
        };

        for (c = Peek(); c >= u'0' && c <= u'9'; c = Peek()) {
            if (!digits.empty() || c != u'0') {
                keep(c);
                ++pointPosition;
            }
            Next();
        }
        if (c == u'.') {
            Next();
            for (c = Peek(); c >= u'0' && c <= u'9'; c = Peek()) {
                if (digits.empty() && c == u'0')
                    --pointPosition;
                else
                    keep(c);
                Next();
            }
        }

        qint64 exponent = 0;
        if (c == u'E' || c == u'e' || c == u'D' || c == u'd') {
            Next();
            c = Peek();
            bool exponentNegative = false;
            if (c == u'+' || c == u'-') {
                exponentNegative = c == u'-';
                Next();
            }
            for (c = Peek(); c >= u'0' && c <= u'9'; c = Peek()) {
                if (exponent < 1'000'000'000)
                    exponent = exponent * 10 + (c - u'0');
                Next();
            }
            if (exponentNegative)
                exponent = -exponent;
        }

        if (digits.empty())
            return 0.0;
        pointPosition += exponent;
        if (pointPosition > 310)
            return std::nullopt;
        if (pointPosition < -330)
            return 0.0;

        if (sticky)
            digits.push_back('1');
        std::string literal = "0." + digits + "e" + std::to_string(pointPosition);
        double value = 0;
        const auto [end, error] = std::from_chars(literal.data(), literal.data() + literal.size(), value);
        (void)end;
        if (error == std::errc::result_out_of_range)
            return pointPosition > 0 ? std::nullopt : std::optional<double>(0.0);
        if (error != std::errc() || std::isinf(value))
            return std::nullopt;
        return negative ? -value : value;
    }

private:
    char16_t Peek() const
    {
        return pos_ < text_.size() ? text_[pos_].unicode() : char16_t(0);
    }
    void Next() { ++pos_; }

    // "&H" and "&O": the value takes the smallest of Integer and Long that
    // holds its bits, so the top bit of that width is the sign.
    std::optional<double> ReadRadix()
    {
        Next();
        const char16_t kind = Peek();
        int radix = 0;
        if (kind == u'H' || kind == u'h')
            radix = 16;
        else if (kind == u'O' || kind == u'o')
            radix = 8;
        else
            return 0.0;
        Next();

        std::uint64_t value = 0;
        bool overflow = false;
        for (int d = DigitValue(Peek(), radix); d >= 0; d = DigitValue(Peek(), radix)) {
            value = value * static_cast<std::uint64_t>(radix) + static_cast<std::uint64_t>(d);
            if (value > 0xFFFFFFFFu) {
                overflow = true;
                value = 0;
            }
            Next();
        }
        if (overflow)
            return std::nullopt;
        if (value <= 0xFFFFu)
            return static_cast<double>(static_cast<std::int16_t>(static_cast<std::uint16_t>(value)));
        return static_cast<double>(static_cast<std::int32_t>(static_cast<std::uint32_t>(value)));
    }

    QStringView text_;
    qsizetype pos_ = 0;
};

QString NonFiniteText(double value, bool signBlank)
{
    if (std::isnan(value))
        return QStringLiteral("-1.#IND");
    if (value < 0)
        return QStringLiteral("-1.#INF");
    return signBlank ? QStringLiteral(" 1.#INF") : QStringLiteral("1.#INF");
}

// Str and the implicit conversion differ only in the sign place and the zero
// in front of the point.
QString NumberText(double value, int significantDigits, bool strForm)
{
    if (!std::isfinite(value))
        return NonFiniteText(value, strForm);

    const DecimalDigits d = ToDecimalDigits(value, significantDigits);
    QString out;
    if (d.negative)
        out += u'-';
    else if (strForm)
        out += u' ';
    if (d.digits.isEmpty()) {
        out += u'0';
        return out;
    }

    const QString digits = QString::fromLatin1(d.digits);
    const qint64 exponent = d.pointPosition - 1;
    if (exponent >= significantDigits || exponent < -4) {
        out += digits[0];
        if (digits.size() > 1) {
            out += u'.';
            out += QStringView(digits).mid(1);
        }
        out += u'E';
        out += exponent < 0 ? u'-' : u'+';
        const qint64 magnitude = exponent < 0 ? -exponent : exponent;
        out += QString::number(magnitude).rightJustified(2, u'0');
    } else if (d.pointPosition <= 0) {
        if (!strForm)
            out += u'0';
        out += u'.';
        out += QString(static_cast<qsizetype>(-d.pointPosition), u'0');
        out += digits;
    } else if (d.pointPosition >= digits.size()) {
        out += digits;
        out += QString(static_cast<qsizetype>(d.pointPosition - digits.size()), u'0');
    } else {
        const auto whole = static_cast<qsizetype>(d.pointPosition);
        out += QStringView(digits).left(whole);
        out += u'.';
        out += QStringView(digits).mid(whole);
    }
    return out;
}

} // namespace

std::optional<double> ValChecked(QStringView text)
{
    return LeadingNumberReader(text).Read();
}

double Val(QStringView text)
{
    return ValChecked(text).value_or(0.0);
}

DecimalDigits ToDecimalDigits(double value, int significantDigits)
{
    DecimalDigits out;
    if (!std::isfinite(value) || value == 0)
        return out;
    out.negative = value < 0;
    significantDigits = std::clamp(significantDigits, 1, 17);

    // Scientific form with (n - 1) decimals: "d.ddde+XX", rounded correctly.
    char buffer[64];
    const auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, std::fabs(value),
                                            std::chars_format::scientific, significantDigits - 1);
    if (error != std::errc())
        return DecimalDigits{};
    const std::string_view text(buffer, static_cast<std::size_t>(end - buffer));
    const std::size_t e = text.find('e');
    if (e == std::string_view::npos)
        return DecimalDigits{};

    for (std::size_t i = 0; i < e; ++i) {
        if (text[i] != '.')
            out.digits.append(text[i]);
    }
    while (out.digits.endsWith('0'))
        out.digits.chop(1);
    int exponent = 0;
    std::from_chars(text.data() + e + 1 + (text[e + 1] == '+' ? 1 : 0), text.data() + text.size(), exponent);
    out.pointPosition = exponent + 1;
    if (out.digits.isEmpty())
        out = DecimalDigits{};
    return out;
}

QString Str(double value)
{
    return NumberText(value, kDoubleDigits, true);
}

QString StrSingle(float value)
{
    return NumberText(value, kSingleDigits, true);
}

QString ShortestText(double value)
{
    return NumberText(value, kDoubleDigits, false);
}

QString ShortestText(float value)
{
    return NumberText(value, kSingleDigits, false);
}

float ToSingle(double value)
{
    // Halfway between FLT_MAX and the next power of two rounds away to infinity.
    constexpr double kOverflow = 340282356779733661637539395458142568448.0; // 2^128 - 2^103
    if (std::isnan(value))
        return std::numeric_limits<float>::quiet_NaN();
    if (value >= kOverflow)
        return std::numeric_limits<float>::infinity();
    if (value <= -kOverflow)
        return -std::numeric_limits<float>::infinity();
    return static_cast<float>(value);
}
