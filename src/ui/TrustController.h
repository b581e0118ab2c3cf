// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <functional>

namespace keyvora {

/// The question whether the program may read other applications, while it is open.
class TrustController : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isAsked READ isAsked NOTIFY isAskedChanged)
    QML_ELEMENT
    QML_UNCREATABLE("The user interface makes it; it comes in as a property.")

public:
    explicit TrustController(std::function<void()> grantTrust);

    [[nodiscard]] bool isAsked() const { return m_isAsked; }

    void ask();
    /// The answers. What is not asked cannot be answered.
    Q_INVOKABLE void allow();
    Q_INVOKABLE void decline();

signals:
    void isAskedChanged();

private:
    void setAsked(bool isAsked);

    std::function<void()> m_grantTrust;
    bool m_isAsked = false;
};

} // namespace keyvora
