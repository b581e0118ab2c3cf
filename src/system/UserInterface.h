// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPoint>
#include <QString>

#include <functional>

class QProcessEnvironment;
class QWindow;

namespace keyvora {

class Accessibility;
class AppMenu;
class AppModel;
class Appearance;
class Compositor;
class Defaults;
class KeyboardLayout;
class UpdateChecker;

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
        Accessibility &accessibility;
        Appearance &appearance;
        Compositor &compositor;
        const KeyboardLayout &keyboardLayout;
        UpdateChecker &updates;
        Defaults &defaults;
        Defaults &windowFrames;                 ///< where windows remember their place
        const QProcessEnvironment &environment; ///< that the process was started with
        std::function<void()> showMainWindow;
        std::function<void()> quit;
        std::function<void()> toggleOverlay; ///< shows or hides the overlay
        std::function<void()> grantTrust;    ///< what the user allowed in the trust prompt
        /// Has the desktop give the focus to a window that is shown, with the token for that; false where the
        /// toolkit has to ask itself.
        std::function<bool(const QWindow &window, const QString &activationToken)> activateWindow;
    };

    virtual ~UserInterface() = default;

    /// Begins to make the main window, on other threads as far as that goes, so that it comes up sooner when
    /// it is shown.
    virtual void prepareMainWindow() = 0;

    /// Shows the main window in front, with the focus; one that was closed a moment ago as it was left. What
    /// it shows may follow a moment later, and finds what it has to know in the model and the controllers.
    /// The token is what the desktop gave for that, or empty.
    virtual void showMainWindow(const QString &activationToken) = 0;

    /// Opens the panel beside a point of the screen (in screen pixels), or closes it when it is open. A null
    /// point stands for the pointer's place. The token is what the desktop gave for that, or empty.
    virtual void togglePanel(QPoint position, const QString &activationToken) = 0;

    /// Shows the overlay in the top right corner of the main screen, without taking the focus.
    virtual void showOverlay() = 0;
    virtual void hideOverlay() = 0;
    [[nodiscard]] virtual bool isOverlayVisible() const = 0;

    /// Shows the model's latest suggestion for a while, without taking the focus.
    virtual void showSuggestion() = 0;

    /// Asks, in the main window, whether the program may read other applications.
    virtual void askForTrust() = 0;
};

/// What is looked up in the library: makes the user interface.
using CreateUserInterface = UserInterface *(*)(const UserInterface::Context &context);
inline constexpr const char *createUserInterfaceSymbol = "keyvoraCreateUserInterface";

} // namespace keyvora
