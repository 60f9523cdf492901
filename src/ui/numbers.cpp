// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/numbers.h"

#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "method/numbers.h"
#include "ui/errors.h"
#include "ui/text.h"

namespace ui {

namespace {

constexpr std::size_t ExactDigits = 15;  // any whole number of so many digits is exact in a double

/// A conversion that has not yet raised.
struct Conversion {
    double Value = 0;
    std::optional<ErrorNumber> Error{};
};

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// Digits with at most one point and nothing else: nearly every cell. Both the digits and the power of ten are exact
/// in a double, so that one division rounds as correctly as a full conversion does.
std::optional<double> plainDecimal(std::string_view text) {
    if (text.empty() || text.size() > ExactDigits) return std::nullopt;
    std::uint64_t digits = 0;
    std::size_t pointAt = text.size();
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (isDigit(text[i])) {
            digits = digits * 10 + static_cast<std::uint64_t>(text[i] - '0');
        } else if (text[i] == '.' && pointAt == text.size()) {
            pointAt = i;
        } else {
            return std::nullopt;
        }
    }
    if (pointAt == text.size()) return static_cast<double>(digits);
    if (text.size() == 1) return std::nullopt;
    return static_cast<double>(digits) / method::PowersOfTen[text.size() - pointAt - 1];
}

/// Rewrites the grammar that users may type to the one that from_chars reads; nothing where a comma is out of place.
std::optional<std::string> withoutGrouping(std::string_view text, DecimalSeparator separator) {
    std::string plain;
    plain.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != ',') {
            plain += text[i];
        } else if (separator == DecimalSeparator::Comma) {
            plain += '.';
        } else if (i == 0 || i + 1 == text.size() || !isDigit(text[i - 1]) || !isDigit(text[i + 1])) {
            return std::nullopt;
        }
    }
    return plain;
}

/// How many characters of `text` the grammar sign, digits, point, digits, exponent takes; 0 where it begins with no number.
std::size_t numberLength(std::string_view text) {
    std::size_t i = 0;
    if (i < text.size() && (text[i] == '+' || text[i] == '-')) ++i;
    std::size_t digits = 0;
    for (; i < text.size() && isDigit(text[i]); ++i) ++digits;
    if (i < text.size() && text[i] == '.') {
        std::size_t fraction = 0;
        while (i + 1 + fraction < text.size() && isDigit(text[i + 1 + fraction])) ++fraction;
        if (digits + fraction > 0) i += 1 + fraction;
        digits += fraction;
    }
    if (digits == 0) return 0;
    if (i < text.size() && (text[i] == 'e' || text[i] == 'E')) {
        std::size_t j = i + 1;
        if (j < text.size() && (text[j] == '+' || text[j] == '-')) ++j;
        if (j < text.size() && isDigit(text[j])) {
            while (j < text.size() && isDigit(text[j])) ++j;
            i = j;
        }
    }
    return i;
}

/// The value of a text that numberLength accepts whole. Too small a number is 0, too large a one an overflow.
Conversion valueOf(std::string_view number) {
    if (number.front() == '+') number.remove_prefix(1);
    double value = 0;
    const auto [end, error] = std::from_chars(number.data(), number.data() + number.size(), value);
    if (error != std::errc::result_out_of_range) return {value};
    // from_chars does not tell which end of the range it was; the place of the first digit that counts does.
    const std::size_t mark = std::min(number.find_first_of("eE"), number.size());
    const std::size_t first = number.find_first_of("123456789");
    const std::size_t point = std::min(number.find('.'), mark);
    int exponent = 0;
    if (mark < number.size()) {
        std::string_view power = number.substr(mark + 1);
        if (power.front() == '+') power.remove_prefix(1);
        if (std::from_chars(power.data(), power.data() + power.size(), exponent).ec != std::errc()) {
            exponent =
                power.front() == '-' ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
        }
    }
    const auto place = static_cast<long long>(point) - static_cast<long long>(first) + exponent;
    if (place < 0) return {0};
    return {0, ErrorNumber::Overflow};
}

Conversion convert(std::string_view text, DecimalSeparator separator) {
    if (const auto plain = plainDecimal(text)) return {*plain};
    const Conversion mismatch{0, ErrorNumber::TypeMismatch};
    std::string_view number = trim(text);
    std::optional<std::string> rewritten;
    if (number.find(',') != std::string_view::npos) {
        rewritten = withoutGrouping(number, separator);
        if (!rewritten) return mismatch;
        number = *rewritten;
    }
    if (number.empty() || numberLength(number) != number.size()) return mismatch;
    return valueOf(number);
}

/// How many thousandths a number is, where it is the double nearest to a whole number of them: nearly every score. So
/// few digits are those that any conversion gives.
std::optional<std::int64_t> wholeThousandths(double value) {
    constexpr double Largest = 1e9;
    if (!(std::abs(value) < Largest)) return std::nullopt;
    const auto thousandths = static_cast<std::int64_t>(value * 1000 + (value < 0 ? -0.5 : 0.5));
    if (static_cast<double>(thousandths) / 1000 != value) return std::nullopt;
    return thousandths;
}

std::string decimalText(std::int64_t thousandths) {
    std::array<char, 24> buffer{};
    const std::int64_t size = thousandths < 0 ? -thousandths : thousandths;
    char* end = buffer.data();
    if (thousandths < 0) *end++ = '-';
    end = std::to_chars(end, buffer.data() + buffer.size(), size / 1000).ptr;
    if (auto rest = static_cast<int>(size % 1000)) {
        *end++ = '.';
        for (int place = 100; rest > 0; place /= 10) {
            *end++ = static_cast<char>('0' + rest / place);
            rest %= place;
        }
    }
    return {buffer.data(), end};
}

}  // namespace

double toReal(std::string_view text, DecimalSeparator separator) {
    const Conversion conversion = convert(text, separator);
    if (conversion.Error) raise(*conversion.Error);
    return conversion.Value;
}

std::optional<double> tryReal(std::string_view text, DecimalSeparator separator) {
    const Conversion conversion = convert(text, separator);
    if (conversion.Error) return std::nullopt;
    return conversion.Value;
}

std::int32_t toLong(double value) {
    const double whole = std::nearbyint(value);
    if (!(whole >= std::numeric_limits<std::int32_t>::min() &&
          whole <= std::numeric_limits<std::int32_t>::max())) {
        raise(ErrorNumber::Overflow);
    }
    return static_cast<std::int32_t>(whole);
}

std::int32_t toLong(std::string_view text, DecimalSeparator separator) {
    return toLong(toReal(text, separator));
}

bool IsNumeric(std::string_view text, DecimalSeparator separator) {
    return tryReal(text, separator).has_value();
}

double Val(std::string_view text) {
    const std::string_view start = trim(text);
    const std::size_t length = numberLength(start);
    if (length == 0) return 0;
    const Conversion conversion = valueOf(start.substr(0, length));
    if (!conversion.Error) return conversion.Value;
    return start.front() == '-' ? std::numeric_limits<double>::lowest() : std::numeric_limits<double>::max();
}

std::string toText(std::int32_t value) { return std::to_string(value); }

std::string toText(double value) {
    finite(value);
    if (const auto thousandths = wholeThousandths(value)) return decimalText(*thousandths);
    const method::Decimal decimal = method::toDecimal(value);
    if (decimal.Count == 0) return "0";
    const std::string digits(decimal.Digits.data(), static_cast<std::size_t>(decimal.Count));
    const std::string sign = decimal.Negative ? "-" : "";
    const auto zeros = [](int count) { return std::string(static_cast<std::size_t>(count), '0'); };
    if (decimal.Exponent <= 0) return sign + "0." + zeros(-decimal.Exponent) + digits;
    if (decimal.Exponent >= decimal.Count) return sign + digits + zeros(decimal.Exponent - decimal.Count);
    const auto whole = static_cast<std::size_t>(decimal.Exponent);
    return sign + digits.substr(0, whole) + "." + digits.substr(whole);
}

double finite(double value) {
    if (!std::isfinite(value)) raise(ErrorNumber::Overflow);
    return value;
}

double roundTo(double value, int places) { return finite(method::roundTo(value, places)); }

std::int32_t addLong(std::int32_t left, std::int32_t right) {
    std::int32_t sum = 0;
    if (__builtin_add_overflow(left, right, &sum)) raise(ErrorNumber::Overflow);
    return sum;
}

std::int32_t multiplyLong(std::int32_t left, std::int32_t right) {
    std::int32_t product = 0;
    if (__builtin_mul_overflow(left, right, &product)) raise(ErrorNumber::Overflow);
    return product;
}

std::int32_t divideLong(std::int32_t left, std::int32_t right) {
    if (right == 0) raise(ErrorNumber::DivisionByZero);
    if (left == std::numeric_limits<std::int32_t>::min() && right == -1) raise(ErrorNumber::Overflow);
    return left / right;
}

std::int32_t remainderLong(std::int32_t left, std::int32_t right) {
    if (right == 0) raise(ErrorNumber::DivisionByZero);
    if (right == -1) return 0;
    return left % right;
}

}  // namespace ui
