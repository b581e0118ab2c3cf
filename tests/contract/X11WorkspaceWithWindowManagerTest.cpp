// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "contract/PlatformPrinters.h"
#include "contract/Waiting.h"
#include "contract/X11Desktop.h"
#include "platform/linux/X11Connection.h"
#include "platform/linux/X11Workspace.h"

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

TEST(X11WorkspaceWithWindowManager, ListsItsWindows)
{
    const auto connection = X11Connection::open();
    ASSERT_NE(connection, nullptr);
    X11Desktop desktop(qgetenv("DISPLAY"));
    X11Workspace workspace(*connection, ApplicationNames({}, {}));
    const auto runs = [&](const QList<RunningApplication> &applications) {
        return becomesTrue([&] {
            const auto future = workspace.runningApplications();
            return becomesTrue([&] { return future.isFinished(); }) && future.result() == applications;
        });
    };
    EXPECT_TRUE(runs({}));
    const xcb_window_t editor = desktop.makeWindow({.instance = "main", .windowClass = "Editor", .pid = 1});
    const xcb_window_t panel = desktop.makeWindow(
        {.instance = "main", .windowClass = "Panel", .pid = 2, .type = "_NET_WM_WINDOW_TYPE_DOCK"});
    const xcb_window_t tools = desktop.makeWindow(
        {.instance = "main", .windowClass = "Tools", .pid = 3, .state = "_NET_WM_STATE_SKIP_TASKBAR"});
    const xcb_window_t viewer = desktop.makeWindow({.instance = "main", .windowClass = "Viewer", .pid = 4});
    for (const xcb_window_t window : {panel, tools, editor, viewer})
        desktop.show(window);
    EXPECT_TRUE(runs({{u"Editor"_s, 1}, {u"Viewer"_s, 4}}));
    desktop.destroy(editor);
    EXPECT_TRUE(runs({{u"Viewer"_s, 4}}));
}

TEST(X11WorkspaceWithWindowManager, FollowsTheFocus)
{
    const auto connection = X11Connection::open();
    ASSERT_NE(connection, nullptr);
    X11Desktop desktop(qgetenv("DISPLAY"));
    ASSERT_TRUE(desktop.hasWindowManager());
    const X11Workspace workspace(*connection, ApplicationNames({}, {}));
    const auto isInFront = [&](const RunningApplication &application) {
        return becomesTrue([&] { return workspace.frontmostApplication() == application; });
    };
    const RunningApplication editor{u"Editor"_s, 1};
    const RunningApplication viewer{u"Viewer"_s, 2};
    const xcb_window_t editorWindow =
        desktop.makeWindow({.instance = "main", .windowClass = "Editor", .pid = 1});
    const xcb_window_t viewerWindow =
        desktop.makeWindow({.instance = "main", .windowClass = "Viewer", .pid = 2});
    desktop.show(editorWindow);
    EXPECT_TRUE(isInFront(editor));
    desktop.show(viewerWindow);
    EXPECT_TRUE(isInFront(viewer));
    desktop.destroy(viewerWindow);
    EXPECT_TRUE(isInFront(editor));
}

} // namespace keyvora
