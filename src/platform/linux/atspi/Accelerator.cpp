// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "platform/linux/atspi/Accelerator.h"

#include "platform/KeyToken.h"
#include "platform/MenuTree.h"
#include "platform/linux/KeysymToken.h"

#include <QHash>
#include <QKeySequence>

#include <algorithm>
#include <xkbcommon/xkbcommon.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

/// No real answer is longer; other programs may send anything.
constexpr qsizetype maximumLength = 256;

/// The bit of a modifier in GTK's notation, 0 for Command, whose bit says that it is absent; nothing for
/// those that no key of ours stands for.
std::optional<int> gtkModifier(QStringView name)
{
    static const QHash<QString, int> known{
        {u"primary"_s, MenuModifier::Control},
        {u"control"_s, MenuModifier::Control},
        {u"ctrl"_s, MenuModifier::Control},
        {u"ctl"_s, MenuModifier::Control},
        {u"shift"_s, MenuModifier::Shift},
        {u"shft"_s, MenuModifier::Shift},
        {u"alt"_s, MenuModifier::Option},
        {u"mod1"_s, MenuModifier::Option},
        {u"super"_s, 0},
        {u"mod4"_s, 0},
        {u"meta"_s, 0},
    };
    const auto found = known.constFind(name.toString().toLower());
    return found == known.constEnd() ? std::nullopt : std::optional(*found);
}

bool isQtMnemonic(const QKeyCombination &stroke, QStringView written, QStringView title)
{
    if (stroke.keyboardModifiers() != Qt::AltModifier || !written.startsWith("Alt+"_L1))
        return false;
    const QStringView letter = written.sliced(4);
    // A sequence is always printed in capitals, a mnemonic as it stands in the title.
    return letter.size() == 1 &&
           (letter.front().isLower() || title.contains(letter.front(), Qt::CaseInsensitive));
}

std::optional<Accelerator> parseQtSequence(QStringView text, QStringView title)
{
    const QKeySequence sequence = QKeySequence::fromString(text.toString(), QKeySequence::PortableText);
    if (sequence.count() != 1 || isQtMnemonic(sequence[0], text, title))
        return std::nullopt;
    const QKeyCombination stroke = sequence[0];
    const Qt::KeyboardModifiers held = stroke.keyboardModifiers();
    Accelerator accelerator{.commandCharacter = qtKeyToken(stroke.key()), .modifiers = 0};
    if (accelerator.commandCharacter.isEmpty())
        return std::nullopt;
    if (held.testFlag(Qt::ControlModifier))
        accelerator.modifiers |= MenuModifier::Control;
    if (held.testFlag(Qt::AltModifier))
        accelerator.modifiers |= MenuModifier::Option;
    if (held.testFlag(Qt::ShiftModifier))
        accelerator.modifiers |= MenuModifier::Shift;
    if (!held.testFlag(Qt::MetaModifier))
        accelerator.modifiers |= MenuModifier::NoCommand;
    return accelerator;
}

/// Whether it is Qt's way of writing a combination with the semicolon's own key.
bool isQtSemicolon(QStringView binding)
{
    if (!binding.endsWith(u';') || binding.count(u';') != 1)
        return false;
    const QStringView modifiers = binding.chopped(1);
    return modifiers.isEmpty() || (modifiers.endsWith(u'+') && !modifiers.contains(u'<'));
}

} // namespace

std::optional<Accelerator> parseGtkAccelerator(QStringView text)
{
    if (text.size() > maximumLength)
        return std::nullopt;
    int modifiers = MenuModifier::NoCommand;
    while (text.startsWith(u'<')) {
        const qsizetype end = text.indexOf(u'>');
        if (end < 0)
            return std::nullopt;
        const std::optional<int> modifier = gtkModifier(text.sliced(1, end - 1));
        if (!modifier)
            return std::nullopt;
        if (*modifier == 0)
            modifiers &= ~MenuModifier::NoCommand;
        modifiers |= *modifier;
        text = text.sliced(end + 1);
    }
    const xkb_keysym_t keysym = xkb_keysym_from_name(text.toUtf8().constData(), XKB_KEYSYM_NO_FLAGS);
    const QString key = keysym == XKB_KEY_NoSymbol ? QString() : keysymToken(keysym);
    if (key.isEmpty())
        return std::nullopt;
    return Accelerator{key, modifiers};
}

std::optional<Accelerator> parseKeyBinding(QStringView binding, QStringView title)
{
    const auto isControl = [](QChar character) {
        return character.category() == QChar::Other_Control;
    };
    if (binding.isEmpty() || binding.size() > maximumLength || std::ranges::any_of(binding, isControl))
        return std::nullopt;
    if (!binding.contains(u';') || isQtSemicolon(binding))
        return parseQtSequence(binding, title);
    // The third field is the rest: it may hold semicolons.
    const qsizetype path = binding.indexOf(u';') + 1;
    const qsizetype end = binding.indexOf(u';', path);
    return end < 0 ? std::nullopt : parseGtkAccelerator(binding.sliced(end + 1));
}

} // namespace keyvora
