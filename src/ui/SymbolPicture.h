// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QImage>
#include <QString>

namespace keyvora {

/// One of the program's symbols, named as its file, in a colour; a square of so many pixels. Empty where
/// there is no such symbol.
QImage symbolPicture(const QString &name, int side, const QColor &color);

/// The program's own sign, in its own colours; a square of so many pixels.
QImage brandPicture(int side);

} // namespace keyvora
