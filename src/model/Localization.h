// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/AppLanguage.h"

#include <QObject>

namespace keyvora {

class Defaults;

/// The current interface language, shared by everything that shows text. Main thread only.
///
/// The one process-wide object of the program: whoever builds the program makes exactly one and keeps it
/// longer than everything that reads `shared()`.
class Localization : public QObject
{
    Q_OBJECT
    Q_PROPERTY(keyvora::AppLanguage language READ language WRITE setLanguage NOTIFY languageChanged)

public:
    /// Starts with the stored language or, when none is stored that we speak, with the one for the user's
    /// preferred languages. Stores nothing.
    Localization(Defaults &defaults, const QStringList &preferredLanguages);
    ~Localization() override;

    /// The one instance; it must exist.
    static Localization &shared();

    [[nodiscard]] AppLanguage language() const { return m_language; }

    /// The text of the pair that is in the current language.
    [[nodiscard]] QString text(const QString &czech, const QString &english) const;

    /// Changes and stores the language. Tells nobody when it is the current one.
    void setLanguage(AppLanguage language);

signals:
    void languageChanged(keyvora::AppLanguage language);

private:
    Defaults &m_defaults;
    AppLanguage m_language;
};

} // namespace keyvora
