// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QString>

#include <functional>

namespace keyvora {

/// Small pictures that are drawn in many places and made once. For the thread that draws.
class PictureCache
{
public:
    /// The picture with that name, which tells all that it depends on.
    static QImage picture(const QString &name, const std::function<QImage()> &make);
    /// Gives back the memory of those that nothing on the screen shows.
    static void clear();
};

} // namespace keyvora
