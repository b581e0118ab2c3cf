// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QList>

#include <memory>
#include <optional>
#include <xkbcommon/xkbcommon.h>

namespace keyvora {

/// The layouts of a keyboard as the system ships them, without any server.
class CompiledKeymap
{
public:
    /// Where a symbol stands: the key and the modifiers (the bits of an X state) that it needs.
    struct Place
    {
        quint32 key = 0;
        quint32 modifiers = 0;
    };

    /// By the names that setxkbmap takes, such as "us,cz" and ",qwerty".
    explicit CompiledKeymap(const QByteArray &layouts, const QByteArray &variants = {},
                            const QByteArray &options = {})
        : m_context(xkb_context_new(XKB_CONTEXT_NO_FLAGS))
    {
        const xkb_rule_names names{
            .rules = "evdev",
            .model = "pc105",
            .layout = layouts.constData(),
            .variant = variants.constData(),
            .options = options.constData(),
        };
        m_keymap.reset(xkb_keymap_new_from_names(m_context.get(), &names, XKB_KEYMAP_COMPILE_NO_FLAGS));
    }

    [[nodiscard]] bool isValid() const { return m_keymap != nullptr; }
    [[nodiscard]] quint32 firstKey() const { return xkb_keymap_min_keycode(m_keymap.get()); }
    [[nodiscard]] quint32 lastKey() const { return xkb_keymap_max_keycode(m_keymap.get()); }
    [[nodiscard]] quint32 groupsOf(quint32 key) const
    {
        return xkb_keymap_num_layouts_for_key(m_keymap.get(), key);
    }
    [[nodiscard]] quint32 modifier(const char *name) const
    {
        const xkb_mod_index_t index = xkb_keymap_mod_get_index(m_keymap.get(), name);
        return index == XKB_MOD_INVALID ? 0U : 1U << index;
    }

    /// What a key gives while these modifiers are on; 0 for nothing.
    [[nodiscard]] quint32 symbol(quint32 key, quint32 modifiers, quint32 group = 0) const
    {
        const State state(xkb_state_new(m_keymap.get()));
        xkb_state_update_mask(state.get(), modifiers, 0, 0, 0, 0, group);
        return xkb_state_key_get_one_sym(state.get(), key);
    }

    /// The first key that has one of the symbols, with as few modifiers as can be.
    [[nodiscard]] std::optional<Place> place(const QList<quint32> &symbols,
                                             const QList<quint32> &modifiers) const
    {
        for (const quint32 held : modifiers) {
            for (quint32 key = firstKey(); key <= lastKey(); ++key) {
                if (symbols.contains(symbol(key, held)))
                    return Place{.key = key, .modifiers = held};
            }
        }
        return std::nullopt;
    }

private:
    struct Unref
    {
        void operator()(xkb_context *context) const { xkb_context_unref(context); }
        void operator()(xkb_keymap *keymap) const { xkb_keymap_unref(keymap); }
        void operator()(xkb_state *state) const { xkb_state_unref(state); }
    };
    using State = std::unique_ptr<xkb_state, Unref>;

    std::unique_ptr<xkb_context, Unref> m_context;
    std::unique_ptr<xkb_keymap, Unref> m_keymap;
};

} // namespace keyvora
