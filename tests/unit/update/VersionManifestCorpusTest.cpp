// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

// The fuzzer's properties, over the files that it begins with.

#include "fuzz/Properties.h"
#include "unit/Corpus.h"
#include "unit/QtPrinters.h"
#include "update/VersionManifest.h"

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

TEST(VersionManifestCorpus, HasThePropertiesOfEveryFile)
{
    forEachSeed("version-manifest", [](const QString &name, const QByteArray &bytes) {
        checkVersionManifest(bytes);
        EXPECT_EQ(VersionManifest::decode(bytes).has_value(), name.startsWith(u"good"_s));
    });
}

} // namespace keyvora
