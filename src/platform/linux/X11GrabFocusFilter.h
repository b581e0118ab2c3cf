// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractNativeEventFilter>

namespace keyvora {

/// Keeps from the toolkit what the server says of the focus when somebody takes or gives back the keyboard as
/// a whole. Qt 6.4 takes it for a change of the focus: a window that grabs the keyboard would come to be
/// active although another one has the focus, and two windows could go on taking it from each other. Works
/// for as long as it lives, where there is an application.
class X11GrabFocusFilter : public QAbstractNativeEventFilter
{
public:
    X11GrabFocusFilter();
    ~X11GrabFocusFilter() override;

    bool nativeEventFilter(const QByteArray &eventType, void *message, qintptr *result) override;
};

} // namespace keyvora
