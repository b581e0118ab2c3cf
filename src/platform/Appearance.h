// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

namespace keyvora {

/// How the user wants programs to look. A desktop that does not tell gets light, ordinary contrast and
/// motion.
class Appearance : public QObject
{
    Q_OBJECT

public:
    struct Preferences
    {
        bool isDark = false;
        bool highContrast = false;
        bool reducedMotion = false;

        friend bool operator==(const Preferences &, const Preferences &) = default;
    };

    using QObject::QObject;

    [[nodiscard]] virtual Preferences preferences() const = 0;

signals:
    void preferencesChanged();
};

} // namespace keyvora
