// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "contract/BareScreen.h"
#include "contract/Waiting.h"
#include "fakes/FakeCompositor.h"
#include "platform/NullCompositor.h"
#include "platform/linux/X11Compositor.h"

#include <QSignalSpy>

#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace keyvora {

namespace {

/// A desktop whose compositor comes and goes, as the contract sees it.
class CompositorBackend
{
public:
    virtual ~CompositorBackend() = default;

    virtual std::unique_ptr<Compositor> makeCompositor() = 0;
    virtual void start() = 0;
    virtual void stop() = 0;
};

class FakeBackend : public CompositorBackend
{
public:
    std::unique_ptr<Compositor> makeCompositor() override
    {
        auto compositor = std::make_unique<FakeCompositor>();
        compositor->setRunning(m_isRunning);
        m_compositor = compositor.get();
        return compositor;
    }
    void start() override { setRunning(true); }
    void stop() override { setRunning(false); }

private:
    void setRunning(bool isRunning)
    {
        m_isRunning = isRunning;
        if (m_compositor != nullptr)
            m_compositor->setRunning(isRunning);
    }

    bool m_isRunning = false;
    FakeCompositor *m_compositor = nullptr;
};

/// A screen of its own, and a client that does what a compositing manager does first.
class X11Backend : public CompositorBackend
{
public:
    std::unique_ptr<Compositor> makeCompositor() override
    {
        return std::make_unique<X11Compositor>(*m_connection);
    }

    void start() override
    {
        m_manager = m_screen.open();
        const xcb_window_t window = xcb_generate_id(m_manager->xcb());
        xcb_create_window(m_manager->xcb(), XCB_COPY_FROM_PARENT, window, m_manager->root(), 0, 0, 1, 1, 0,
                          XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
        own(window, "_NET_WM_CM_S0");
    }

    /// It ends without saying good-bye, as one that crashes does.
    void stop() override { m_manager.reset(); }

    /// Some other selection gets an owner.
    void copyText()
    {
        m_manager = m_screen.open();
        own(m_manager->root(), "CLIPBOARD");
    }

private:
    void own(xcb_window_t window, const QByteArray &selection)
    {
        xcb_set_selection_owner(m_manager->xcb(), window, m_manager->atom(selection), XCB_CURRENT_TIME);
        // The answer to this tells that the server has done it.
        EXPECT_NE(m_manager->atom("_KEYVORA_READY"), static_cast<xcb_atom_t>(XCB_ATOM_NONE));
    }

    BareScreen m_screen;
    std::unique_ptr<X11Connection> m_connection = m_screen.open();
    std::unique_ptr<X11Connection> m_manager;
};

struct BackendMaker
{
    const char *name;
    std::function<std::unique_ptr<CompositorBackend>()> make;
};

void PrintTo(const BackendMaker &maker, std::ostream *stream)
{
    *stream << maker.name;
}

class CompositorContract : public testing::TestWithParam<BackendMaker>
{
protected:
    CompositorBackend &backend() { return *m_backend; }

private:
    std::unique_ptr<CompositorBackend> m_backend = GetParam().make();
};

} // namespace

TEST_P(CompositorContract, IsNotRunningWhereThereIsNone)
{
    EXPECT_FALSE(backend().makeCompositor()->isRunning());
}

TEST_P(CompositorContract, KnowsTheOneThatRunsAlready)
{
    backend().start();
    const auto compositor = backend().makeCompositor();
    EXPECT_TRUE(becomesTrue([&] { return compositor->isRunning(); }));
}

TEST_P(CompositorContract, TellsWhenItStartsAndStops)
{
    const auto compositor = backend().makeCompositor();
    const QSignalSpy changes(compositor.get(), &Compositor::isRunningChanged);
    backend().start();
    EXPECT_TRUE(becomesTrue([&] { return compositor->isRunning(); }));
    backend().stop();
    EXPECT_TRUE(becomesTrue([&] { return !compositor->isRunning(); }));
    backend().start();
    EXPECT_TRUE(becomesTrue([&] { return compositor->isRunning(); }));
    EXPECT_EQ(changes.count(), 3);
}

INSTANTIATE_TEST_SUITE_P(All, CompositorContract,
                         testing::Values(BackendMaker{"Fake",
                                                      [] {
                                                          return std::make_unique<FakeBackend>();
                                                      }},
                                         BackendMaker{"X11",
                                                      [] {
                                                          return std::make_unique<X11Backend>();
                                                      }}),
                         [](const auto &row) { return std::string(row.param.name); });

TEST(X11Compositor, TakesNoOtherSelectionForTheCompositors)
{
    X11Backend backend;
    const auto compositor = backend.makeCompositor();
    const QSignalSpy changes(compositor.get(), &Compositor::isRunningChanged);
    backend.copyText();
    backend.stop();
    backend.start();
    EXPECT_TRUE(becomesTrue([&] { return compositor->isRunning(); }));
    EXPECT_EQ(changes.count(), 1);
}

TEST(NullCompositor, BlendsNothing)
{
    EXPECT_FALSE(NullCompositor().isRunning());
}

} // namespace keyvora
