// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/atspi/AtspiNode.h"

#include <QByteArray>
#include <QHash>
#include <QPoint>
#include <QRect>
#include <QString>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

struct sd_bus_message;

namespace keyvora {

class BusPipeline;
struct BusCall;

/// One application on the accessibility bus. Every question is answered later, by a call of the handler from
/// within the pipeline's `run`; questions that fail are answered with nothing, and so is whatever the
/// application says that makes no sense.
class AtspiApplication
{
public:
    template <typename Answer>
    using Handler = std::function<void(const Answer &answer)>;

    /// The objects below another, without those of other applications.
    using Children = std::vector<QByteArray>;

    /// No menu is longer.
    static constexpr int maximumChildren = 2000;
    /// An object that claims more than those lists no menu; the first ones are read all the same.
    static constexpr int maximumChildrenByIndex = 200;

    AtspiApplication(BusPipeline &bus, QByteArray busName);

    /// Fetches what the application keeps ready about all of its objects, so that most questions need not be
    /// asked one by one. Only some toolkits do, and only they are asked. The answer comes with the next
    /// `run`.
    void loadCache();
    /// Learns which toolkit it is, which `loadCache` does, too. Without it the application is of none.
    void loadToolkitName();

    /// Qt's menu entries carry their submenus as objects of their own. Known after `loadCache`.
    [[nodiscard]] bool isQt() const { return m_toolkit == "Qt"; }
    /// GTK's hidden menu entries are told from those in closed menus. Known after `loadCache`.
    [[nodiscard]] bool isGtk() const { return m_toolkit == "gtk"; }
    /// GTK 4 tells nothing about closed menus.
    [[nodiscard]] bool isGtk4() const { return m_toolkit == "GTK"; }

    void children(const QByteArray &path, const Handler<Children> &handler);
    void role(const QByteArray &path, const Handler<std::optional<AtspiRole>> &handler);
    /// As it came, but never longer than a few thousand characters.
    void name(const QByteArray &path, const Handler<QString> &handler);
    /// The states at this moment.
    void states(const QByteArray &path, const Handler<AtspiStates> &handler);
    /// The states of a moment ago, when they are at hand; else those of this moment.
    void recentStates(const QByteArray &path, const Handler<AtspiStates> &handler);
    /// The key binding of the first action.
    void keyBinding(const QByteArray &path, const Handler<QString> &handler);
    /// The place on the screen, in pixels.
    void extents(const QByteArray &path, const Handler<QRect> &handler);
    /// The object below `path` at a point of the screen.
    void accessibleAt(const QByteArray &path, QPoint position,
                      const Handler<std::optional<QByteArray>> &handler);

private:
    struct Facts
    {
        QByteArray parent;
        int index = 0;
        int childCount = 0;
        AtspiRole role = {};
        QString name;
        AtspiStates states;
        Children children;
    };

    void askToolkitName(std::function<void()> done);
    void readCache(sd_bus_message *reply);
    void linkCache();
    [[nodiscard]] const Facts *known(const QByteArray &path) const;
    struct Gathering;

    void childrenByIndex(const QByteArray &path, const Handler<Children> &handler);
    void askForChild(const std::shared_ptr<Gathering> &gathering, int32_t index);
    [[nodiscard]] BusCall propertyCall(const QByteArray &path, const char *interface,
                                       const char *property) const;
    [[nodiscard]] std::optional<QByteArray> readReference(sd_bus_message *message) const;
    [[nodiscard]] bool isOwnObject(const char *busName, const char *path) const;
    [[nodiscard]] Children readReferences(sd_bus_message *message) const;

    BusPipeline &m_bus;
    QByteArray m_busName;
    QByteArray m_toolkit;
    QHash<QByteArray, Facts> m_cache;
};

} // namespace keyvora
