// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

// The cheat sheet as a document, and its drawing on the screen. Once the fonts are loaded, the sheet of the
// whole catalog must not take longer than 50 ms.

#include "cheatsheet/PrintService.h"
#include "cheatsheet/PrintableCheatSheetView.h"
#include "cheatsheet/StickerList.h"
#include "model/Defaults.h"
#include "model/Localization.h"
#include "model/ShortcutLibrary.h"

#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr AppLanguage language = AppLanguage::Czech;

CheatSheetSize sizeOf(const benchmark::State &state)
{
    return allCheatSheetSizes.at(static_cast<size_t>(state.range(0)));
}

void document(benchmark::State &state, const QList<Shortcut> &shortcuts)
{
    const PrintService service(&QDateTime::currentDateTimeUtc);
    qsizetype bytes = 0;
    for (auto _ : state) {
        const auto pdf = service.makePDF(sizeOf(state), shortcuts);
        bytes = pdf.value_or(QByteArray()).size();
    }
    state.SetLabel(rawValue(sizeOf(state)).toStdString());
    state.counters["rows"] = static_cast<double>(shortcuts.size());
    state.counters["bytes"] = static_cast<double>(bytes);
}

void documentOfTheCatalog(benchmark::State &state)
{
    document(state, ShortcutLibrary::all(language));
}

void documentOfTheEssentials(benchmark::State &state)
{
    document(state, stickerList(language));
}

void layout(benchmark::State &state)
{
    for (auto _ : state) {
        const PrintableCheatSheetView view(ShortcutLibrary::all(language), sizeOf(state));
        benchmark::DoNotOptimize(view.elements());
    }
    state.SetLabel(rawValue(sizeOf(state)).toStdString());
}

/// The preview, as small as it is on the screen.
void preview(benchmark::State &state)
{
    constexpr qreal scale = 0.4;
    const PrintableCheatSheetView view(stickerList(language), sizeOf(state));
    QImage image((QSizeF(view.size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.scale(scale, scale);
        view.paint(painter);
    }
    state.SetLabel(rawValue(sizeOf(state)).toStdString());
}

BENCHMARK(documentOfTheCatalog)->DenseRange(1, 2)->Unit(benchmark::kMillisecond);
BENCHMARK(documentOfTheEssentials)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK(layout)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);
BENCHMARK(preview)->DenseRange(0, 2)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace keyvora

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    const QTemporaryDir folder;
    keyvora::Defaults defaults(folder.filePath(QStringLiteral("defaults.json")));
    const keyvora::Localization localization(defaults, {keyvora::rawValue(keyvora::language)});
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
