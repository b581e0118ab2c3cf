// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/CheatSheets.h"

#include "cheatsheet/StickerList.h"
#include "model/AppModel.h"
#include "model/Localization.h"

#include <algorithm>
#include <utility>

namespace keyvora {

namespace {

CheatSheetSize sizeAt(int position)
{
    return allCheatSheetSizes.at(static_cast<size_t>(position));
}

} // namespace

CheatSheets::CheatSheets(AppModel &model, PrintService service, QObject *parent)
    : QObject(parent)
    , m_service(std::move(service))
    , m_sticker(model.makeListModel(this))
{
    const auto update = [this] {
        m_sticker->setShortcuts(stickerShortcuts());
    };
    update();
    connect(&Localization::shared(), &Localization::languageChanged, m_sticker, update);
}

QList<Shortcut> CheatSheets::stickerShortcuts()
{
    return stickerList(Localization::shared().language());
}

int CheatSheets::a4()
{
    const auto *found = std::ranges::find(allCheatSheetSizes, CheatSheetSize::a4);
    return static_cast<int>(found - allCheatSheetSizes.begin());
}

QString CheatSheets::label(int size, [[maybe_unused]] bool czech) const
{
    return keyvora::label(sizeAt(size));
}

QString CheatSheets::detail(int size, [[maybe_unused]] bool czech) const
{
    return keyvora::detail(sizeAt(size));
}

bool CheatSheets::isCard(int size) const
{
    return sizeAt(size) == CheatSheetSize::wallet;
}

void CheatSheets::print(int size, QWindow *window) const
{
    m_service.print(sizeAt(size), stickerShortcuts(), window);
}

void CheatSheets::exportPDF(int size, QWindow *window) const
{
    m_service.exportPDF(sizeAt(size), stickerShortcuts(), window);
}

} // namespace keyvora
