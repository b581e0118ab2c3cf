// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Accessibility.h"
#include "platform/linux/atspi/BusPipeline.h"
#include "platform/linux/atspi/StopSignal.h"

#include <QByteArray>
#include <QHash>
#include <QMutex>
#include <QThreadPool>

#include <memory>
#include <vector>

namespace keyvora {

/// Accessibility over AT-SPI. Each question opens its own connections on a worker thread and closes them
/// again, so that nothing is held, and nothing wakes the program, between questions; and an application that
/// breaks its connection breaks nobody else's. https://gnome.pages.gitlab.gnome.org/at-spi2-core/devel-docs/
class AtspiAccessibility : public Accessibility
{
    Q_OBJECT

public:
    /// How long the desktop may take to tell whether it lets us (it may have to start the service, while the
    /// session starts), and applications to tell their menus and what is at a point.
    struct Patience
    {
        BusPatience trust{.silence = std::chrono::seconds(25), .total = std::chrono::seconds(25)};
        BusPatience menuBar{};
        BusPatience hitTest{.silence = std::chrono::milliseconds(500), .total = std::chrono::seconds(1)};
    };

    explicit AtspiAccessibility(Patience patience, QObject *parent = nullptr);
    /// Ends what is under way; waiting futures finish with nothing.
    ~AtspiAccessibility() override;

    [[nodiscard]] QFuture<bool> isTrusted() override;
    [[nodiscard]] QFuture<bool> grantTrust() override;
    [[nodiscard]] QFuture<std::optional<MenuTree>> menuBar(qint32 pid) override;
    [[nodiscard]] QFuture<QString> menuItemTitleAt(qint32 pid, QPoint position) override;

private:
    std::unique_ptr<BusPipeline> session(BusPatience patience) const;
    /// Null where accessibility is off.
    std::unique_ptr<BusPipeline> accessibilityBus(BusPatience patience) const;

    [[nodiscard]] std::optional<MenuTree> readMenuBar(qint32 pid) const;
    [[nodiscard]] QString readTitleAt(qint32 pid, QPoint position);
    [[nodiscard]] std::vector<QByteArray> knownMenus(const QByteArray &busName);
    void setKnownMenus(const QByteArray &busName, const std::vector<QByteArray> &menus);

    Patience m_patience;
    StopSignal m_stop;
    QThreadPool m_trust;
    QThreadPool m_readers;  ///< long answers, one at a time
    QThreadPool m_hitTests; ///< short ones, which must not wait for each other
    QMutex m_mutex;
    /// Where the menus of each application on the bus were found last. Finding them is most of the work, and
    /// the person is about to release the button.
    QHash<QByteArray, std::vector<QByteArray>> m_menusOfApplications;
};

} // namespace keyvora
