// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace keyvora {

/// What a key cap shows for a key token: the token itself, but for the space bar, whose name follows the
/// interface language.
QString keyCapLabel(const QString &token);

/// How a key is read aloud: a word for each sign that has no sound of its own, otherwise the key cap's label.
QString spokenKeyName(const QString &token);

} // namespace keyvora
