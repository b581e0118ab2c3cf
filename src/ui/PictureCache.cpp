// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/PictureCache.h"

#include <QHash>

namespace keyvora {

namespace {

QHash<QString, QImage> &keptPictures()
{
    static QHash<QString, QImage> pictures;
    return pictures;
}

} // namespace

QImage PictureCache::picture(const QString &name, const std::function<QImage()> &make)
{
    // While a window is resized, sizes come that will never come again.
    constexpr qsizetype most = 512;
    QHash<QString, QImage> &pictures = keptPictures();
    if (const auto found = pictures.constFind(name); found != pictures.cend())
        return *found;
    if (pictures.size() >= most)
        pictures.clear();
    return *pictures.insert(name, make());
}

void PictureCache::clear()
{
    keptPictures().clear();
    keptPictures().squeeze();
}

} // namespace keyvora
