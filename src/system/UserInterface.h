// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <QString>

#include <functional>

namespace keyvora {

class AppMenu;
class AppModel;
class Appearance;
class Defaults;

/// Everything that draws. It lives in a library of its own, which is loaded when a window is first shown, so
/// that the program costs next to nothing while it rests in the tray.
class UserInterface
{
public:
    /// What the screens stand on; all of it outlives them.
    struct Context
    {
        AppModel &model;
        AppMenu &menu;
        Appearance &appearance;
        Defaults &defaults;
        Defaults &windowFrames; ///< where windows remember their place
        std::function<void()> showMainWindow;
        std::function<void()> quit;
    };

    virtual ~UserInterface() = default;

    /// Shows the main window in front, with the focus. The token is what the desktop gave for that, or empty.
    virtual void showMainWindow(const QString &activationToken) = 0;

    /// Opens the panel beside a point of the screen (in screen pixels), or closes it when it is open. A null
    /// point stands for the pointer's place.
    virtual void togglePanel(QPoint position) = 0;
};

/// The one symbol of the library: makes the user interface.
using CreateUserInterface = UserInterface *(*)(const UserInterface::Context &context);
inline constexpr const char *createUserInterfaceSymbol = "keyvoraCreateUserInterface";

} // namespace keyvora
