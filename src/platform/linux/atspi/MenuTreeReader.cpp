// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/atspi/MenuTreeReader.h"

#include "platform/ForeignText.h"
#include "platform/linux/atspi/Accelerator.h"
#include "platform/linux/atspi/BusPipeline.h"

#include <utility>

namespace keyvora {

namespace {

constexpr size_t maximumNodes = 20'000;
constexpr qsizetype maximumTitleLength = 256;
constexpr qsizetype maximumKeyBindingLength = 256;

} // namespace

QString menuTitle(const QString &name)
{
    return harmlessForeignText(name.left(name.indexOf(u'\t')), maximumTitleLength);
}

MenuTreeReader::MenuTreeReader(BusPipeline &bus, AtspiApplication &application)
    : m_bus(bus)
    , m_application(application)
{
}

MenuTree MenuTreeReader::read(const QByteArray &menuBar)
{
    m_nodes.push_back({.path = menuBar, .isListed = true});
    m_visited.insert(menuBar);
    readChildren(0);
    m_bus.run();
    return tree();
}

void MenuTreeReader::readChildren(size_t node)
{
    m_application.children(m_nodes[node].path, [this, node](const AtspiApplication::Children &paths) {
        addChildren(node, paths);
    });
}

void MenuTreeReader::addChildren(size_t node, const AtspiApplication::Children &paths)
{
    for (const QByteArray &path : paths) {
        // A tree that bites its own tail ends there.
        if (m_nodes.size() >= maximumNodes || m_visited.contains(path))
            continue;
        m_visited.insert(path);
        const size_t child = m_nodes.size();
        m_nodes.push_back({.path = path});
        m_nodes[node].children.push_back(child);
        m_application.role(path, [this, child](const std::optional<AtspiRole> &role) {
            if (role)
                readNode(child, *role);
        });
    }
}

void MenuTreeReader::readNode(size_t node, AtspiRole role)
{
    if (isMenu(role) || role == AtspiRole::MenuBar) {
        m_nodes[node].isListed = true;
        readTitle(node);
        readChildren(node);
    } else if (!isMenuItem(role)) {
        return;
    } else if (m_application.isGtk()) {
        m_application.recentStates(m_nodes[node].path, [this, node](const AtspiStates &states) {
            if (states.isVisible())
                readEntry(node);
        });
    } else {
        readEntry(node);
    }
}

void MenuTreeReader::readEntry(size_t node)
{
    m_nodes[node].isListed = true;
    readTitle(node);
    if (!m_application.isQt()) {
        readKeyBinding(node);
        return;
    }
    m_application.children(m_nodes[node].path, [this, node](const AtspiApplication::Children &submenus) {
        // What an entry with a submenu calls its key is the mnemonic.
        if (submenus.empty())
            readKeyBinding(node);
        else
            addChildren(node, submenus);
    });
}

void MenuTreeReader::readTitle(size_t node)
{
    m_application.name(m_nodes[node].path,
                       [this, node](const QString &name) { m_nodes[node].title = menuTitle(name); });
}

void MenuTreeReader::readKeyBinding(size_t node)
{
    m_application.keyBinding(m_nodes[node].path, [this, node](const QString &binding) {
        if (binding.size() <= maximumKeyBindingLength)
            m_nodes[node].keyBinding = binding;
    });
}

MenuTree MenuTreeReader::tree() const
{
    MenuTree tree;
    struct Step
    {
        size_t node;
        std::optional<size_t> parent;
    };
    std::vector<Step> steps{{.node = 0, .parent = {}}};
    while (!steps.empty()) {
        const Step step = steps.back();
        steps.pop_back();
        const Node &node = m_nodes[step.node];
        if (!node.isListed)
            continue;
        const size_t index = tree.elements.size();
        MenuElement element{.title = node.title, .commandCharacter = {}, .modifiers = {}, .children = {}};
        if (auto accelerator = parseKeyBinding(node.keyBinding, node.title)) {
            element.commandCharacter = std::move(accelerator->commandCharacter);
            element.modifiers = accelerator->modifiers;
        }
        tree.elements.push_back(std::move(element));
        if (step.parent)
            tree.elements[*step.parent].children.push_back(static_cast<int>(index));
        // The last pushed comes first.
        for (auto child = node.children.rbegin(); child != node.children.rend(); ++child)
            steps.push_back({.node = *child, .parent = index});
    }
    return tree;
}

} // namespace keyvora
