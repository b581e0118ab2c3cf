// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFlags>
#include <QFuture>
#include <QObject>
#include <QPoint>

namespace keyvora {

/// The modifiers that are held down; Caps Lock also while it is on. Num Lock is none.
enum class KeyModifier : quint8 {
    Shift = 1,
    CapsLock = 2,
    Control = 4,
    Option = 8,   ///< Alt
    Command = 16, ///< Super
    Other = 32,   ///< whatever else the keyboard has, such as AltGr
};
Q_DECLARE_FLAGS(KeyModifiers, KeyModifier)
Q_DECLARE_OPERATORS_FOR_FLAGS(KeyModifiers)

/// A press of the left mouse button on a popup window (a menu, as a rule) of another application.
struct PopupPress
{
    QPoint position; ///< in screen pixels
    qint32 pid = 0;  ///< the application that the popup belongs to

    friend bool operator==(const PopupPress &, const PopupPress &) = default;
};

/// What the user does with modifier keys and mouse in other applications. Neither keys nor text are ever
/// read. Watches nothing until it is told to.
class InputMonitor : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Whether the desktop lets anybody watch; where not, nothing below does anything.
    [[nodiscard]] virtual bool isAvailable() const = 0;

    /// Starts `modifiersChanged`, for good; does nothing the second time.
    virtual void watchModifiers() = 0;

    /// The modifiers that are down at this moment.
    [[nodiscard]] virtual QFuture<KeyModifiers> currentModifiers() = 0;

    /// Starts or ends `popupPressed`.
    virtual void setWatchesPopupPresses(bool watches) = 0;

signals:
    /// A modifier went down or up, or Caps Lock changed, while another application had the focus. While our
    /// own has it, only that the last of them went up is told, so that no hold is left behind.
    void modifiersChanged(keyvora::KeyModifiers modifiers);
    void popupPressed(const keyvora::PopupPress &press);
};

} // namespace keyvora
