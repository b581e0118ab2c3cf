// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "contract/BareScreen.h"
#include "contract/PlatformPrinters.h"
#include "contract/Waiting.h"
#include "contract/X11Desktop.h"
#include "fakes/FakeWorkspace.h"
#include "platform/NullWorkspace.h"
#include "platform/linux/X11Workspace.h"

#include <QPointer>

#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

/// A desktop on which applications come to the front, as the contract sees it.
class Desktop
{
public:
    virtual ~Desktop() = default;

    virtual std::unique_ptr<Workspace> makeWorkspace() = 0;
    /// Whether programs can see each other.
    [[nodiscard]] virtual bool tells() const { return true; }
    virtual void activate(const RunningApplication &application) = 0;
    virtual void activateNothing() = 0;
    /// These have a window in the task list from now on, in this order.
    virtual void run(const QList<RunningApplication> &applications) = 0;
};

class FakeDesktop : public Desktop
{
public:
    std::unique_ptr<Workspace> makeWorkspace() override
    {
        auto workspace = std::make_unique<FakeWorkspace>();
        workspace->setFrontmost(m_frontmost);
        workspace->setRunning(m_running);
        m_workspace = workspace.get();
        return workspace;
    }

    void activate(const RunningApplication &application) override
    {
        m_frontmost = application;
        if (m_workspace)
            m_workspace->activate(application);
    }

    void activateNothing() override
    {
        m_frontmost.reset();
        if (m_workspace)
            m_workspace->setFrontmost(std::nullopt);
    }

    void run(const QList<RunningApplication> &applications) override
    {
        m_running = applications;
        if (m_workspace)
            m_workspace->setRunning(applications);
    }

private:
    std::optional<RunningApplication> m_frontmost;
    QList<RunningApplication> m_running;
    QPointer<FakeWorkspace> m_workspace;
};

class NullDesktop : public Desktop
{
public:
    std::unique_ptr<Workspace> makeWorkspace() override { return std::make_unique<NullWorkspace>(); }
    [[nodiscard]] bool tells() const override { return false; }
    void activate(const RunningApplication & /*application*/) override {}
    void activateNothing() override {}
    void run(const QList<RunningApplication> & /*applications*/) override {}
};

/// A screen on which the test is the window manager.
class RealDesktop : public Desktop
{
public:
    std::unique_ptr<Workspace> makeWorkspace() override
    {
        return std::make_unique<X11Workspace>(*m_connection, ApplicationNames({}, {}));
    }

    void activate(const RunningApplication &application) override
    {
        m_desktop.setActiveWindow({windowOf(application)});
    }

    void activateNothing() override { m_desktop.setActiveWindow({XCB_WINDOW_NONE}); }

    void run(const QList<RunningApplication> &applications) override
    {
        QList<quint32> windows;
        for (const RunningApplication &application : applications)
            windows.append(windowOf(application));
        m_desktop.setClientList(windows);
    }

private:
    xcb_window_t windowOf(const RunningApplication &application)
    {
        return m_desktop.makeWindow({
            .instance = "instance",
            .windowClass = application.name.toUtf8(),
            .pid = application.pid ? std::optional(static_cast<quint32>(*application.pid)) : std::nullopt,
        });
    }

    BareScreen m_screen;
    X11Desktop m_desktop{m_screen.display()};
    std::unique_ptr<X11Connection> m_connection = m_screen.open();
};

struct Row
{
    const char *name;
    std::function<std::unique_ptr<Desktop>()> makeDesktop;

    friend void PrintTo(const Row &row, std::ostream *stream) { *stream << row.name; }
};

class WorkspaceContract : public testing::TestWithParam<Row>
{
protected:
    Desktop &desktop() { return *m_desktop; }

    /// What a workspace of this desktop has to know when this application is in front.
    [[nodiscard]] std::optional<RunningApplication> seen(const RunningApplication &application) const
    {
        return m_desktop->tells() ? std::optional(application) : std::nullopt;
    }

    /// What a workspace says of the applications that run now.
    static QList<RunningApplication> running(Workspace &workspace)
    {
        const QFuture<QList<RunningApplication>> future = workspace.runningApplications();
        EXPECT_TRUE(becomesTrue([&] { return future.isFinished(); }));
        return future.result();
    }

private:
    std::unique_ptr<Desktop> m_desktop = GetParam().makeDesktop();
};

const RunningApplication editor{u"Editor"_s, 4321};
const RunningApplication viewer{u"Viewer"_s, 1234};
const RunningApplication withoutPid{u"Remote"_s, std::nullopt};

} // namespace

TEST_P(WorkspaceContract, HasNothingInFrontOfAnEmptyDesktop)
{
    EXPECT_EQ(desktop().makeWorkspace()->frontmostApplication(), std::nullopt);
    desktop().activateNothing();
    EXPECT_EQ(desktop().makeWorkspace()->frontmostApplication(), std::nullopt);
}

TEST_P(WorkspaceContract, KnowsAtOnceWhatIsInFront)
{
    for (const RunningApplication &application : {editor, viewer, withoutPid}) {
        desktop().activate(application);
        EXPECT_EQ(desktop().makeWorkspace()->frontmostApplication(), seen(application));
    }
}

TEST_P(WorkspaceContract, TellsWhatComesToTheFront)
{
    const auto workspace = desktop().makeWorkspace();
    QList<RunningApplication> told;
    QObject::connect(workspace.get(), &Workspace::applicationActivated, workspace.get(),
                     [&](const RunningApplication &application) { told.append(application); });
    QList<RunningApplication> expected;
    for (const RunningApplication &application : {editor, viewer, withoutPid, editor}) {
        desktop().activate(application);
        if (desktop().tells())
            expected.append(application);
        EXPECT_TRUE(becomesTrue([&] { return told.size() >= expected.size(); }));
    }
    EXPECT_EQ(told, expected);
}

TEST_P(WorkspaceContract, HasChangedBeforeItTells)
{
    const auto workspace = desktop().makeWorkspace();
    bool isTold = false;
    QObject::connect(workspace.get(), &Workspace::applicationActivated, workspace.get(),
                     [&](const RunningApplication &application) {
                         isTold = true;
                         EXPECT_EQ(workspace->frontmostApplication(), application);
                     });
    desktop().activate(editor);
    EXPECT_TRUE(becomesTrue([&] { return isTold == desktop().tells(); }));
}

TEST_P(WorkspaceContract, TellsOfOurOwnProgramToo)
{
    const RunningApplication ourselves{u"Keyvora"_s, static_cast<qint32>(QCoreApplication::applicationPid())};
    const auto workspace = desktop().makeWorkspace();
    desktop().activate(ourselves);
    EXPECT_TRUE(becomesTrue([&] { return workspace->frontmostApplication() == seen(ourselves); }));
}

TEST_P(WorkspaceContract, HasNothingInFrontOnceNothingIs)
{
    const auto workspace = desktop().makeWorkspace();
    desktop().activate(editor);
    EXPECT_TRUE(becomesTrue([&] { return workspace->frontmostApplication() == seen(editor); }));
    desktop().activateNothing();
    EXPECT_TRUE(becomesTrue([&] { return workspace->frontmostApplication() == std::nullopt; }));
}

TEST_P(WorkspaceContract, EndsQuickSwitchesInTheLast)
{
    const auto workspace = desktop().makeWorkspace();
    QList<RunningApplication> told;
    QObject::connect(workspace.get(), &Workspace::applicationActivated, workspace.get(),
                     [&](const RunningApplication &application) { told.append(application); });
    for (int time = 0; time < 20; ++time) {
        for (const RunningApplication &application : {editor, viewer}) {
            desktop().activate(application);
            QCoreApplication::processEvents();
        }
    }
    desktop().activate(withoutPid);
    EXPECT_TRUE(becomesTrue([&] { return told.contains(withoutPid) == desktop().tells(); }));
    QCoreApplication::processEvents();
    EXPECT_EQ(workspace->frontmostApplication(), seen(withoutPid));
    EXPECT_TRUE(told.isEmpty() || told.constLast() == withoutPid);
}

TEST_P(WorkspaceContract, KnowsNoApplicationsOfAnEmptyDesktop)
{
    const auto workspace = desktop().makeWorkspace();
    EXPECT_EQ(running(*workspace), QList<RunningApplication>());
    desktop().run({});
    EXPECT_EQ(running(*workspace), QList<RunningApplication>());
}

TEST_P(WorkspaceContract, KnowsWhatRunsNow)
{
    const RunningApplication ourselves{u"Keyvora"_s, static_cast<qint32>(QCoreApplication::applicationPid())};
    const auto workspace = desktop().makeWorkspace();
    for (const QList<RunningApplication> &applications :
         {QList{viewer, editor}, QList{editor, ourselves, viewer}, QList{viewer}}) {
        desktop().run(applications);
        EXPECT_EQ(running(*workspace), desktop().tells() ? applications : QList<RunningApplication>());
    }
    EXPECT_EQ(workspace->frontmostApplication(), std::nullopt);
}

INSTANTIATE_TEST_SUITE_P(Backends, WorkspaceContract,
                         testing::Values(Row{"Fake",
                                             [] {
                                                 return std::make_unique<FakeDesktop>();
                                             }},
                                         Row{"Null",
                                             [] {
                                                 return std::make_unique<NullDesktop>();
                                             }},
                                         Row{"X11",
                                             [] {
                                                 return std::make_unique<RealDesktop>();
                                             }}),
                         [](const auto &row) { return row.param.name; });

} // namespace keyvora
