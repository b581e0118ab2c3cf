// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

// The library's filter and the list that follows it, over libraries of different sizes. What a keystroke in
// the search field costs must fit into one frame of 16.6 ms.

#include "model/ShortcutLibrary.h"
#include "unit/model/Program.h"

#include <QCoreApplication>

#include <benchmark/benchmark.h>
#include <cstdint>
#include <vector>

namespace keyvora {

namespace {

constexpr int catalogOnly = 114;
constexpr int manyImports = 2'000;
constexpr int mostImports = 10'000;

struct Question
{
    QString name;
    QString search;
    bool needsCommand = false;
    AppLanguage language = AppLanguage::Czech;
};

const QList<Question> &questions()
{
    static const QList<Question> all{
        {.name = u"empty search"_s, .search = {}},
        {.name = u"copy"_s, .search = u"copy"_s, .language = AppLanguage::English},
        {.name = u"přejít do složky"_s, .search = u"přejít do složky"_s},
        {.name = u"⌘ and otevřít"_s, .search = u"otevřít"_s, .needsCommand = true},
    };
    return all;
}

/// A library of this size: the catalog and what menus of many applications could have given.
Program::Start library(int size, AppLanguage language)
{
    const QList<Shortcut> &catalog = ShortcutLibrary::all(language);
    QList<Shortcut> own;
    for (int i = catalogOnly; i < size; ++i) {
        Shortcut shortcut = catalog.at(i % catalogOnly);
        const QString application = u"Editor %1"_s.arg(i / 200);
        shortcut.title += u" %1…"_s.arg(i);
        shortcut.id = u"menu-"_s + application + shortcut.title + shortcut.keys.join(QString());
        shortcut.apps = {application};
        own.append(shortcut);
    }
    return {
        .stored = storedCustom(own),
        .languages = {rawValue(language)},
        .locale = QLocale(language == AppLanguage::Czech ? QLocale::Czech : QLocale::English),
    };
}

void ask(AppModel &model, const Question &question)
{
    model.setSearch(question.search);
    if (question.needsCommand)
        model.toggleModifier(ModifierFilter::command);
}

void filtered(benchmark::State &state)
{
    const Question &question = questions().at(state.range(1));
    Program program(library(static_cast<int>(state.range(0)), question.language));
    ask(program.model(), question);
    for (auto _ : state)
        benchmark::DoNotOptimize(program.model().filtered());
    state.SetLabel(question.name.toStdString());
    state.counters["found"] = static_cast<double>(program.model().filtered().size());
}

/// Types the search letter by letter, then deletes it again; one iteration is one keystroke.
void keystroke(benchmark::State &state)
{
    const Question &question = questions().at(state.range(1));
    Program program(library(static_cast<int>(state.range(0)), question.language));
    ask(program.model(), question);
    program.model().filteredModel();
    const auto length = question.search.size();
    qsizetype typed = 0;
    for (auto _ : state) {
        typed = (typed + 1) % (2 * length);
        program.model().setSearch(question.search.left(typed <= length ? typed : 2 * length - typed));
    }
    state.SetLabel(question.name.toStdString());
}

/// The dearest single keystroke: the first letter of the search in an unfiltered library.
void firstKeystroke(benchmark::State &state)
{
    const Question &question = questions().at(state.range(1));
    Program program(library(static_cast<int>(state.range(0)), question.language));
    ask(program.model(), question);
    program.model().filteredModel();
    for (auto _ : state) {
        state.PauseTiming();
        program.model().setSearch(QString());
        state.ResumeTiming();
        program.model().setSearch(question.search.left(1));
    }
    state.SetLabel(question.name.toStdString());
}

/// Clears the search: everything that it hid comes back.
void clearing(benchmark::State &state)
{
    const Question &question = questions().at(state.range(1));
    Program program(library(static_cast<int>(state.range(0)), question.language));
    ask(program.model(), question);
    program.model().filteredModel();
    for (auto _ : state) {
        state.PauseTiming();
        program.model().setSearch(question.search);
        state.ResumeTiming();
        program.model().setSearch(QString());
    }
    state.SetLabel(question.name.toStdString());
}

const std::vector<std::vector<int64_t>> everyQuestion{{catalogOnly, manyImports, mostImports}, {0, 1, 2, 3}};
const std::vector<std::vector<int64_t>> everySearch{{catalogOnly, manyImports, mostImports}, {1, 2, 3}};

BENCHMARK(filtered)->ArgsProduct(everyQuestion)->Unit(benchmark::kMillisecond);
BENCHMARK(keystroke)->ArgsProduct(everySearch)->Unit(benchmark::kMillisecond);
BENCHMARK(firstKeystroke)->ArgsProduct(everySearch)->Unit(benchmark::kMillisecond);
BENCHMARK(clearing)->ArgsProduct(everySearch)->Unit(benchmark::kMillisecond);

} // namespace

} // namespace keyvora

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
