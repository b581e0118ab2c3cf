// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "fuzz/Properties.h"
#include "platform/MenuTree.h"
#include "platform/linux/atspi/Accelerator.h"

#include <algorithm>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int allModifiers =
    MenuModifier::Shift | MenuModifier::Option | MenuModifier::Control | MenuModifier::NoCommand;

bool isPrintable(const QString &text)
{
    return std::ranges::none_of(text, [](QChar c) { return c.category() == QChar::Other_Control; });
}

void requireSound(const Accelerator &accelerator)
{
    constexpr qsizetype longestWord = 32;
    require(!accelerator.commandCharacter.trimmed().isEmpty(), "there is a key");
    require(accelerator.commandCharacter.size() <= longestWord, "the key has a short name");
    require(isPrintable(accelerator.commandCharacter), "the key can be shown");
    require((accelerator.modifiers & ~allModifiers) == 0, "the modifiers are those that there are");
}

void checkGtk(const QString &text)
{
    const auto plain = parseGtkAccelerator(text);
    if (!plain)
        return;
    requireSound(*plain);
    require(parseKeyBinding(u";;"_s + text, u"title"_s) == plain || text.size() > 254,
            "it is the third field of a binding");
    const auto shifted = parseGtkAccelerator(u"<Shift>"_s + text);
    require(!shifted ||
                *shifted == Accelerator{plain->commandCharacter, plain->modifiers | MenuModifier::Shift},
            "a modifier more adds that modifier");
    require(shifted || text.size() > 249, "a modifier more is no trouble");
}

} // namespace

void checkAccelerator(const QByteArray &bytes)
{
    constexpr qsizetype longest = 256;
    const qsizetype end = bytes.indexOf('\0');
    const QString binding = QString::fromUtf8(bytes.left(end));
    const QString title = end < 0 ? QString() : QString::fromUtf8(bytes.mid(end + 1));
    const auto accelerator = parseKeyBinding(binding, title);
    if (accelerator) {
        requireSound(*accelerator);
        require(!binding.isEmpty() && binding.size() <= longest && isPrintable(binding),
                "only sound text says it");
    }
    if (binding.contains(u';') && !binding.endsWith(u';'))
        require(parseKeyBinding(binding, {}) == accelerator, "titles matter to Qt's notation alone");
    checkGtk(binding);
    checkGtk(binding.section(u';', 2));
}

} // namespace keyvora
