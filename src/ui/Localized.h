// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "model/Shortcut.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace keyvora {

/// The interface language for QML: `Localized.czech ? "Kopírovat" : "Copy"`.
class Localized : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool czech READ isCzech WRITE setCzech NOTIFY languageChanged)
    Q_PROPERTY(int categoryCount READ categoryCount CONSTANT)
    QML_ELEMENT
    QML_SINGLETON

public:
    explicit Localized(QObject *parent = nullptr);

    [[nodiscard]] bool isCzech() const;
    void setCzech(bool czech);

    /// The label of a key cap. `czech` is the property of the same name, passed so that a binding follows it.
    [[nodiscard]] Q_INVOKABLE QString keyCapLabel(const QString &token, bool czech) const;

    /// A combination as its caps show it: "⇧ ⌘ S". `czech` as for `keyCapLabel`.
    [[nodiscard]] Q_INVOKABLE QString shownKeys(const QStringList &tokens, bool czech) const;

    /// A combination as it is spoken: "Command Shift S". `czech` as for `keyCapLabel`.
    [[nodiscard]] Q_INVOKABLE QString spokenKeys(const QStringList &tokens, bool czech) const;

    [[nodiscard]] static int categoryCount() { return static_cast<int>(allCategories.size()); }
    /// The name of a category in one language, given by its position in the order of display.
    [[nodiscard]] Q_INVOKABLE QString categoryName(int category, bool czech) const;
    /// The symbol of a category, given by its position in the order of display.
    [[nodiscard]] Q_INVOKABLE QString categorySymbol(int category) const;

signals:
    void languageChanged();
};

} // namespace keyvora
