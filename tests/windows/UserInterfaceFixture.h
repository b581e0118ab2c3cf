// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "contract/Waiting.h"
#include "fakes/FakeAccessibility.h"
#include "fakes/FakeAppearance.h"
#include "fakes/FakeCompositor.h"
#include "fakes/FakeKeyboardLayout.h"
#include "fakes/FakeLoginItem.h"
#include "fakes/FakeUrlLoader.h"
#include "fakes/FakeWorkspace.h"
#include "model/AppModel.h"
#include "model/Defaults.h"
#include "model/Localization.h"
#include "system/AppMenu.h"
#include "ui/QmlUserInterface.h"
#include "unit/QtPrinters.h"
#include "update/UpdateChecker.h"

#include <QGuiApplication>
#include <QPointer>
#include <QProcessEnvironment>
#include <QQuickItem>
#include <QQuickView>
#include <QScreen>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <algorithm>
#include <chrono>
#include <gtest/gtest.h>
#include <memory>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

/// The user interface over stand-ins for the rest of the program, on a real screen.
class QmlUserInterfaceTest : public testing::Test
{
protected:
    static constexpr int overlayWidth = 380;
    static constexpr int noticeWidth = 340;
    static constexpr int margin = 22;

    QmlUserInterfaceTest() { m_model.setLearningMode(true); }

    QmlUserInterface &userInterface() { return *m_userInterface; }
    void makeAnew() { m_userInterface = std::make_unique<QmlUserInterface>(context()); }
    /// Closed main windows go at once from here on.
    void keepNoClosedWindow()
    {
        m_userInterface = std::make_unique<QmlUserInterface>(context(), std::chrono::milliseconds(0));
    }
    AppModel &model() { return m_model; }
    FakeCompositor &compositor() { return m_compositor; }
    [[nodiscard]] int trustGrants() const { return m_trustGrants; }

    void activate(const QString &application) { m_workspace.activate({.name = application, .pid = 1}); }

    /// A shortcut of one application.
    void addFor(const QString &application, const QString &title)
    {
        m_model.addCustom(title, {u"⌃"_s, u"R"_s}, Shortcut::Category::zaklady, application, {});
    }

    /// A menu command is chosen with the mouse.
    void suggest(const QString &title)
    {
        m_model.recordMouseAction(title);
        m_userInterface->showSuggestion();
    }

    /// The windows that are shown and this wide.
    static QList<QQuickView *> visible(int width)
    {
        QList<QQuickView *> views;
        for (QWindow *window : QGuiApplication::allWindows()) {
            auto *view = qobject_cast<QQuickView *>(window);
            if (view != nullptr && view->isVisible() && view->width() == width)
                views.append(view);
        }
        return views;
    }

    static QQuickView *overlay() { return visible(overlayWidth).value(0); }
    static QQuickView *notice() { return visible(noticeWidth).value(0); }
    static QQuickView *mainWindow()
    {
        const QWindowList windows = QGuiApplication::allWindows();
        const auto found = std::ranges::find_if(windows, [](const QWindow *window) {
            return window->isVisible() && window->width() > overlayWidth;
        });
        return found == windows.end() ? nullptr : qobject_cast<QQuickView *>(*found);
    }

    /// What a window shows of a QML type; null where it shows none.
    static QObject *find(const QQuickView &window, const char *type)
    {
        const QObjectList content = window.rootObject()->findChildren<QObject *>();
        const auto found = std::ranges::find_if(content, [type](const QObject *child) {
            return QByteArray(child->metaObject()->className()).startsWith(type);
        });
        return found == content.end() ? nullptr : *found;
    }

    /// The same, which the window may be about to show.
    static QObject *findSoon(const QQuickView &window, const char *type)
    {
        static_cast<void>(becomesTrue([&] { return find(window, type) != nullptr; }));
        return find(window, type);
    }

    /// Where the corner of the main screen is.
    static QPoint corner()
    {
        const QRect available = QGuiApplication::primaryScreen()->availableGeometry();
        return {available.left() + available.width() - margin, available.top() + margin};
    }

private:
    [[nodiscard]] UserInterface::Context context()
    {
        return {
            .model = m_model,
            .menu = m_menu,
            .accessibility = m_accessibility,
            .appearance = m_appearance,
            .compositor = m_compositor,
            .keyboardLayout = m_keyboardLayout,
            .updates = m_updates,
            .defaults = m_defaults,
            .windowFrames = m_frames,
            .environment = m_environment,
            .showMainWindow = [this] { m_userInterface->showMainWindow({}); },
            .quit = [] {},
            .toggleOverlay =
                [this] {
                    if (m_userInterface->isOverlayVisible())
                        m_userInterface->hideOverlay();
                    else
                        m_userInterface->showOverlay();
                },
            .grantTrust = [this] { ++m_trustGrants; },
            .activateWindow = [](const QWindow &, const QString &) { return false; },
        };
    }

    Defaults &withoutGreeting()
    {
        m_defaults.setBoolean("hasSeenOnboarding"_L1, true);
        return m_defaults;
    }

    QTemporaryDir m_folder;
    Defaults m_defaults{m_folder.filePath(u"defaults.json"_s)};
    Defaults m_frames{m_folder.filePath(u"windows.json"_s)};
    Localization m_localization{withoutGreeting(), {u"en-US"_s}};
    FakeWorkspace m_workspace;
    FakeLoginItem m_loginItem;
    FakeAccessibility m_accessibility;
    FakeAppearance m_appearance;
    FakeCompositor m_compositor;
    FakeKeyboardLayout m_keyboardLayout;
    QProcessEnvironment m_environment;
    AppModel m_model{AppModel::Dependencies{
        .defaults = m_defaults,
        .workspace = m_workspace,
        .loginItem = m_loginItem,
        .accessibility = m_accessibility,
        .makeSmartObserver = {},
        .locale = QLocale(QLocale::English),
    }};
    AppMenu m_menu;
    FakeUrlLoader m_urlLoader;
    UpdateChecker m_updates{m_defaults, m_urlLoader, {}, [](const QUrl &) {
                            }};
    int m_trustGrants = 0;
    std::unique_ptr<QmlUserInterface> m_userInterface = std::make_unique<QmlUserInterface>(context());
};

} // namespace keyvora
