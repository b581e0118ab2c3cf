// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QString>

namespace keyvora {

/// What a document says about itself.
struct PdfInfo
{
    QString title;
    QString author;
    QDateTime created;
};

} // namespace keyvora
