// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QProcessEnvironment>
#include <QStringList>

namespace keyvora {

/// The user's languages, most preferred first, as language-REGION ("cs-CZ", "en"). Read from LANGUAGE,
/// LC_ALL, LC_MESSAGES and LANG with the precedence of GNU gettext: the first locale set of the last three
/// decides, LANGUAGE goes before it unless that locale is exactly "C" or "POSIX". Empty when nothing but "C"
/// or "POSIX" is asked for.
/// https://www.gnu.org/software/gettext/manual/html_node/Locale-Environment-Variables.html
QStringList preferredLanguages(const QProcessEnvironment &environment);

} // namespace keyvora
