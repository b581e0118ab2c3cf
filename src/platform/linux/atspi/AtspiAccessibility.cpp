// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/atspi/AtspiAccessibility.h"

#include "platform/InBackground.h"
#include "platform/linux/atspi/AtspiApplication.h"
#include "platform/linux/atspi/AtspiBus.h"
#include "platform/linux/atspi/GtkMenus.h"
#include "platform/linux/atspi/MenuBarSearch.h"
#include "platform/linux/atspi/MenuHitTest.h"
#include "platform/linux/atspi/MenuTreeReader.h"

#include <QProcess>

#include <algorithm>
#include <memory>
#include <utility>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype maximumKnownApplications = 64;
constexpr size_t maximumKnownMenus = 256; ///< of each of them
constexpr int simultaneousHitTests = 4;
/// Threads that have nothing to do end soon.
constexpr int threadExpiryMs = 1000;

/// Makes later sessions start with accessibility on. The launcher writes this itself when its switch turns,
/// but not when the switch is on already.
void enableAccessibilityForLaterSessions()
{
    QProcess::startDetached(
        u"gsettings"_s, {u"set"_s, u"org.gnome.desktop.interface"_s, u"toolkit-accessibility"_s, u"true"_s});
}

} // namespace

AtspiAccessibility::AtspiAccessibility(Patience patience, QObject *parent)
    : Accessibility(parent)
    , m_patience(patience)
{
    m_trust.setMaxThreadCount(1);
    m_trust.setExpiryTimeout(threadExpiryMs);
    m_readers.setMaxThreadCount(1);
    m_readers.setExpiryTimeout(threadExpiryMs);
    m_hitTests.setMaxThreadCount(simultaneousHitTests);
    m_hitTests.setExpiryTimeout(threadExpiryMs);
}

AtspiAccessibility::~AtspiAccessibility()
{
    m_stop.stop();
    m_trust.waitForDone();
    m_readers.waitForDone();
    m_hitTests.waitForDone();
}

// The destructor waits for the pools, so that no question outlives what it uses.

QFuture<bool> AtspiAccessibility::isTrusted()
{
    return inBackground(m_trust, [this] {
        const auto bus = accessibilityBus(m_patience.trust);
        return bus && responds(*bus);
    });
}

QFuture<bool> AtspiAccessibility::grantTrust()
{
    return inBackground(m_trust, [this] {
        const auto bus = session(m_patience.trust);
        if (!bus || !enableAccessibility(*bus))
            return false;
        enableAccessibilityForLaterSessions();
        return true;
    });
}

QFuture<std::optional<MenuTree>> AtspiAccessibility::menuBar(qint32 pid)
{
    return inBackground(m_readers, [this, pid] { return readMenuBar(pid); });
}

QFuture<QString> AtspiAccessibility::menuItemTitleAt(qint32 pid, QPoint position)
{
    return inBackground(m_hitTests, [this, pid, position] { return readTitleAt(pid, position); });
}

std::unique_ptr<BusPipeline> AtspiAccessibility::session(BusPatience patience) const
{
    return BusPipeline::toSession(m_stop, patience);
}

std::unique_ptr<BusPipeline> AtspiAccessibility::accessibilityBus(BusPatience patience) const
{
    const auto session = BusPipeline::toSession(m_stop, patience);
    if (!session || !isAccessibilityEnabled(*session))
        return nullptr;
    const auto address = accessibilityBusAddress(*session);
    return address ? BusPipeline::toAddress(*address, m_stop, patience) : nullptr;
}

std::optional<MenuTree> AtspiAccessibility::readMenuBar(qint32 pid) const
{
    if (const auto bus = accessibilityBus(m_patience.menuBar)) {
        wakeCaches(*bus);
        for (const QByteArray &name : busNamesOfProcess(*bus, pid)) {
            AtspiApplication application(*bus, name);
            application.loadCache();
            bus->run();
            // What these keep in their windows has no keys; they tell them in another way.
            if (application.isGtk4())
                break;
            MenuBarSearch search(*bus, application);
            search.run();
            const std::optional<QByteArray> bar = search.best();
            if (!bar)
                continue;
            return MenuTreeReader(*bus, application).read(*bar);
        }
    }
    if (const auto bar = findGtkMenuBar(pid)) {
        if (const auto bus = session(m_patience.menuBar))
            return readGtkMenuBar(*bus, *bar);
    }
    return std::nullopt;
}

QString AtspiAccessibility::readTitleAt(qint32 pid, QPoint position)
{
    const auto bus = accessibilityBus(m_patience.hitTest);
    if (!bus)
        return {};
    for (const QByteArray &name : busNamesOfProcess(*bus, pid)) {
        AtspiApplication application(*bus, name);
        application.loadToolkitName();
        QString title = MenuHitTest(*bus, application, position).run(knownMenus(name));
        if (title.isEmpty()) {
            MenuBarSearch search(*bus, application);
            const bool isComplete = search.run();
            std::vector<QByteArray> menus = search.all();
            menus.insert(menus.end(), search.looseMenus().begin(), search.looseMenus().end());
            title = MenuHitTest(*bus, application, position).run(menus);
            menus.resize(std::min(menus.size(), maximumKnownMenus));
            // What is known of an application is better than what it did not tell in time.
            if (isComplete)
                setKnownMenus(name, menus);
        }
        if (!title.isEmpty())
            return title;
    }
    return {};
}

std::vector<QByteArray> AtspiAccessibility::knownMenus(const QByteArray &busName)
{
    const QMutexLocker lock(&m_mutex);
    return m_menusOfApplications.value(busName);
}

void AtspiAccessibility::setKnownMenus(const QByteArray &busName, const std::vector<QByteArray> &menus)
{
    const QMutexLocker lock(&m_mutex);
    // Names are never used twice; those of applications that ended are forgotten now and then.
    if (m_menusOfApplications.size() >= maximumKnownApplications)
        m_menusOfApplications.clear();
    m_menusOfApplications.insert(busName, menus);
}

} // namespace keyvora
