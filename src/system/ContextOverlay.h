// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>

namespace keyvora {

class UserInterfaceLoader;

/// Presents the overlay: made at the first show, only hidden afterwards, never given the focus.
class ContextOverlay : public QObject
{
    Q_OBJECT

public:
    explicit ContextOverlay(UserInterfaceLoader &userInterface);

    [[nodiscard]] bool isVisible() const;

    void show();
    /// Does nothing when it is not on the screen.
    void hide();
    void toggle();

signals:
    /// It was on the screen and is no longer.
    void hidden();

private:
    UserInterfaceLoader &m_userInterface;
};

} // namespace keyvora
