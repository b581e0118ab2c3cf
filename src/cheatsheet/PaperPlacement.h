// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QSizeF>
#include <QTransform>

namespace keyvora {

/// Puts a page onto what a printer can print of a paper, both in the same unit: in the middle, made smaller
/// where it is too large but never larger, and turned by a right angle where it stays larger that way. The
/// identity for sizes without an area.
QTransform placeOnPaper(QSizeF page, QSizeF paper);

} // namespace keyvora
