// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

// The whole program, watched from inside while it does what a person waits for. On a virtual desktop with an
// application in front that has a large menu:
//
//     keyvora_desktop_benchmark
//
// prints how long the overlay takes from the end of a hold to its first frame, and the longest slices of the
// main thread while that application's menu is imported with the window open.

#include "fakes/FakeApplicationInstance.h"
#include "model/AppModel.h"
#include "system/HoldToShowObserver.h"
#include "system/KeyvoraApp.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QProcess>
#include <QQuickItem>
#include <QQuickView>
#include <QQuickWindow>
#include <QTimer>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <ranges>
#include <vector>

using namespace keyvora;
using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int holds = 12;
constexpr int patienceMs = 30'000;

/// Runs the event loop until the signal comes; false when it does not.
template <typename Sender, typename Signal>
bool waitFor(Sender *sender, Signal signal)
{
    QEventLoop loop;
    QObject::connect(sender, signal, &loop, &QEventLoop::quit);
    QTimer::singleShot(patienceMs, &loop, [&loop] { loop.exit(1); });
    return loop.exec() == 0;
}

void settle(int milliseconds)
{
    QEventLoop loop;
    QTimer::singleShot(milliseconds, &loop, &QEventLoop::quit);
    loop.exec();
}

QQuickWindow *windowThatIs(Qt::WindowFlags flags)
{
    for (QWindow *window : QGuiApplication::topLevelWindows()) {
        if ((window->flags() & Qt::WindowType_Mask) == flags)
            return qobject_cast<QQuickWindow *>(window);
    }
    return nullptr;
}

void press(const QStringList &arguments)
{
    QProcess::execute(u"xdotool"_s, arguments);
}

/// Measures how long the main thread works without looking at new events: by how much a heartbeat is late.
class Slices : public QObject
{
public:
    Slices()
    {
        connect(&m_heartbeat, &QTimer::timeout, this, [this] {
            m_slices.push_back(static_cast<double>(m_sinceBeat.nsecsElapsed()) / 1e6 - beatMs);
            m_sinceBeat.start();
        });
        m_heartbeat.setTimerType(Qt::PreciseTimer);
        m_heartbeat.start(beatMs);
        m_sinceBeat.start();
    }

    void print(const char *what)
    {
        std::ranges::sort(m_slices, std::greater());
        std::printf("%s: longest slices of the main thread", what);
        for (const double slice : m_slices | std::views::take(5))
            std::printf(" %.1f", slice);
        std::printf(" ms\n");
    }

private:
    static constexpr int beatMs = 1;

    QTimer m_heartbeat;
    QElapsedTimer m_sinceBeat;
    std::vector<double> m_slices;
};

void holdKeys()
{
    press({u"keydown"_s, u"Control_L"_s, u"keydown"_s, u"Alt_L"_s});
}

void releaseKeys()
{
    press({u"keyup"_s, u"Alt_L"_s, u"keyup"_s, u"Control_L"_s});
    settle(300);
}

/// False when something does not come, as of the next one.
bool measureOverlay()
{
    // The first time loads what the second finds ready.
    holdKeys();
    QQuickWindow *overlay = nullptr;
    for (QDeadlineTimer deadline(patienceMs); overlay == nullptr; overlay = windowThatIs(Qt::ToolTip)) {
        if (deadline.hasExpired())
            return false;
        settle(10);
    }
    settle(300);
    releaseKeys();

    std::vector<double> times;
    for (int hold = 0; hold < holds; ++hold) {
        QElapsedTimer sinceKeys;
        sinceKeys.start();
        holdKeys();
        if (!waitFor(overlay, &QQuickWindow::frameSwapped))
            return false;
        // The way of the keys, and the program that presses them, are in it.
        times.push_back(static_cast<double>(sinceKeys.nsecsElapsed()) / 1e6 -
                        static_cast<double>(HoldToShowObserver::threshold.count()));
        releaseKeys();
    }
    std::ranges::sort(times);
    std::printf("end of a hold to the overlay's first frame: median %.1f ms, at most %.1f ms\n",
                times[times.size() / 2], times.back());
    return true;
}

bool measureImport(FakeApplicationInstance &instance)
{
    instance.activate();
    auto *window = qobject_cast<QQuickView *>(windowThatIs(Qt::Window));
    if (window == nullptr || !waitFor(window, &QQuickWindow::frameSwapped))
        return false;
    settle(1000);
    const auto *content = window->rootObject()->property("content").value<QQuickItem *>();
    auto *model = content == nullptr ? nullptr : content->property("appModel").value<AppModel *>();
    if (model == nullptr)
        return false;
    const qsizetype before = model->customShortcuts().size();
    Slices slices;
    QElapsedTimer time;
    time.start();
    model->importFrontmostMenu();
    if (!waitFor(model, &AppModel::importMessageChanged))
        return false;
    const double took = static_cast<double>(time.nsecsElapsed()) / 1e6;
    settle(1000);
    std::printf("import from %s: %lld shortcuts in %.1f ms\n", qPrintable(model->activeApp()),
                static_cast<long long>(model->customShortcuts().size() - before), took);
    slices.print("import with the window open");
    return true;
}

} // namespace

int main(int argc, char **argv)
{
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    QApplication application(argc, argv);
    QApplication::setApplicationName(u"Keyvora"_s);
    QApplication::setQuitOnLastWindowClosed(false);
    FakeApplicationInstance::Session session;
    FakeApplicationInstance instance(session);
    const KeyvoraApp keyvora(instance, QProcessEnvironment::systemEnvironment());
    // The watch begins once the desktop said that it may.
    settle(1000);
    if (measureOverlay() && measureImport(instance))
        return 0;
    std::fprintf(stderr, "what is measured does not come\n");
    return 1;
}
