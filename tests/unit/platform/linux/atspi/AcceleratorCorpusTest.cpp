// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

// The fuzzer's properties, over the texts that it begins with.

#include "fuzz/Properties.h"
#include "unit/Corpus.h"
#include "unit/QtPrinters.h"

#include <gtest/gtest.h>

namespace keyvora {

TEST(AcceleratorCorpus, HasThePropertiesOfEveryText)
{
    forEachSeed("accelerator",
                [](const QString & /*name*/, const QByteArray &bytes) { checkAccelerator(bytes); });
}

} // namespace keyvora
