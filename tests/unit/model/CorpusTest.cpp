// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

// The fuzzers' properties, over the files that they begin with.

#include "unit/Corpus.h"

#include "fuzz/Properties.h"
#include "model/Backup.h"
#include "unit/QtPrinters.h"

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

TEST(BackupCorpus, HasThePropertiesOfEveryFile)
{
    forEachSeed("backup", [](const QString &name, const QByteArray &bytes) {
        checkBackup(bytes);
        EXPECT_EQ(decodeBackup(bytes).has_value(), name.startsWith(u"good"_s));
    });
}

TEST(DefaultsCorpus, HasThePropertiesOfEveryFile)
{
    forEachSeed("defaults", [](const QString & /*name*/, const QByteArray &bytes) { checkDefaults(bytes); });
}

TEST(KeysTextCorpus, HasThePropertiesOfEveryFile)
{
    forEachSeed("keys-text", [](const QString & /*name*/, const QByteArray &bytes) { checkKeysText(bytes); });
}

} // namespace keyvora
