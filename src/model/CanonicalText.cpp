// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "model/CanonicalText.h"

#include <QHash>

namespace keyvora {

bool canonicallyEqual(const QString &left, const QString &right)
{
    if (left == right)
        return true;
    return left.normalized(QString::NormalizationForm_C) == right.normalized(QString::NormalizationForm_C);
}

size_t canonicalHash(const QString &text, size_t seed)
{
    return ::qHash(text.normalized(QString::NormalizationForm_C), seed);
}

} // namespace keyvora
