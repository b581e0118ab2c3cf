// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "update/VersionOrder.h"

#include <QList>
#include <QString>

#include <algorithm>
#include <optional>

namespace keyvora {

namespace {

/// A whole number as its digits, because no type of numbers is long enough for whatever is written.
struct WholeNumber
{
    bool isNegative = false;
    QStringView digits; ///< without leading zeros; none for 0

    friend bool operator==(const WholeNumber &, const WholeNumber &) = default;
};

bool isDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

std::optional<WholeNumber> wholeNumber(QStringView text)
{
    const bool isNegative = text.startsWith(u'-');
    if (isNegative || text.startsWith(u'+'))
        text = text.sliced(1);
    if (text.isEmpty() || !std::ranges::all_of(text, &isDigit))
        return std::nullopt;
    const auto zeros = std::ranges::find_if(text, [](QChar digit) { return digit != u'0'; }) - text.begin();
    const QStringView digits = text.sliced(zeros);
    return WholeNumber{.isNegative = isNegative && !digits.isEmpty(), .digits = digits};
}

QList<WholeNumber> wholeNumbers(QStringView version)
{
    QList<WholeNumber> numbers;
    for (const QStringView piece : version.split(u'.', Qt::SkipEmptyParts)) {
        if (const auto number = wholeNumber(piece))
            numbers.append(*number);
    }
    return numbers;
}

bool isGreater(const WholeNumber &left, const WholeNumber &right)
{
    if (left.isNegative != right.isNegative)
        return right.isNegative;
    const qsizetype byLength = left.digits.size() - right.digits.size();
    const bool isFarther = byLength != 0 ? byLength > 0 : left.digits > right.digits;
    return left.isNegative ? !isFarther && left != right : isFarther;
}

} // namespace

bool isNewer(QStringView candidate, QStringView current)
{
    const QList<WholeNumber> candidates = wholeNumbers(candidate);
    const QList<WholeNumber> currents = wholeNumbers(current);
    for (qsizetype position = 0; position < std::max(candidates.size(), currents.size()); ++position) {
        const WholeNumber left = candidates.value(position);
        const WholeNumber right = currents.value(position);
        if (left != right)
            return isGreater(left, right);
    }
    return false;
}

} // namespace keyvora
