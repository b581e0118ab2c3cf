// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

// The fuzzer's properties, over the files that it begins with.

#include "fuzz/Properties.h"
#include "platform/linux/DesktopEntry.h"
#include "unit/Corpus.h"
#include "unit/QtPrinters.h"

#include <gtest/gtest.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

TEST(DesktopEntryCorpus, HasThePropertiesOfEveryFile)
{
    forEachSeed("desktop-entry", [](const QString &name, const QByteArray &bytes) {
        checkDesktopEntry(bytes);
        EXPECT_EQ(DesktopEntry::parse(bytes).has_value(), name.startsWith(u"good"_s));
    });
}

} // namespace keyvora
