// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "fakes/FakeAccessibility.h"
#include "fakes/FakeLoginItem.h"
#include "fuzz/Properties.h"
#include "model/AppModel.h"
#include "model/Backup.h"
#include "model/DailyLesson.h"
#include "model/Defaults.h"
#include "model/DefaultsKeys.h"
#include "model/Localization.h"
#include "platform/NullWorkspace.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include <memory>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

/// A folder in memory, where there is one: it is written at each run.
class StoreFolder
{
public:
    StoreFolder()
        : m_folder((QFile::exists(u"/dev/shm"_s) ? u"/dev/shm"_s : QDir::tempPath()) + u"/keyvora-XXXXXX"_s)
    {
    }

    [[nodiscard]] QString store() const { return m_folder.filePath(u"defaults.json"_s); }

    void writeStore(const QByteArray &bytes) const
    {
        QFile file(store());
        require(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size(), "there is room");
    }

    [[nodiscard]] QByteArray storeContent() const
    {
        QFile file(store());
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// Takes what was set aside out of the folder.
    [[nodiscard]] QList<QByteArray> takeSetAside() const
    {
        QList<QByteArray> contents;
        QDir folder(m_folder.path());
        for (const QString &name : folder.entryList({u"*.corrupt-*"_s}, QDir::Files)) {
            QFile file(folder.filePath(name));
            require(file.open(QIODevice::ReadOnly), "what was set aside can be read");
            contents.append(file.readAll());
            file.remove();
        }
        return contents;
    }

private:
    QTemporaryDir m_folder;
};

/// The model over a store, on a desktop without anything.
class ProgramOverStore
{
public:
    explicit ProgramOverStore(const QString &path)
        : defaults(path)
        , localization(defaults, {u"en-US"_s})
        , model({.defaults = defaults,
                 .workspace = m_workspace,
                 .loginItem = m_loginItem,
                 .accessibility = m_accessibility,
                 .makeSmartObserver = {},
                 .locale = QLocale::c(),
                 .makeUuid = [] { return u"uuid"_s; },
                 .now = [] { return QDateTime(QDate(2026, 1, 1), QTime(12, 0)); },
                 .uniformRandom =
                     [] {
                         return 0.5;
                     }})
    {
    }

    /// What a person does with it.
    void use()
    {
        DailyLesson lesson(model, defaults);
        lesson.complete();
        require(lesson.isComplete() && lesson.trio()->rowCount() <= 3, "a lesson can be learnt");
        const qint64 seen = model.practiceStats().value(u"copy"_s).seen;
        model.recordPracticeResult(u"copy"_s, false);
        require(model.practiceStats().value(u"copy"_s).seen >= seen, "answers are counted");
        model.toggleFavorite(u"favourite"_s);
        model.setLearningMode(!model.learningModeEnabled());
        model.addCustom(u"Title"_s, {u"⌘"_s, u"K"_s}, Shortcut::Category::text, u"App"_s, u"Detail"_s);
        model.recordMouseAction(u"Title"_s);
    }

    void look()
    {
        model.setSearch(u"a"_s);
        require(model.filtered().size() <= model.allShortcuts().size(), "a search leaves out");
        model.setSearch({});
        require(model.filtered() == model.allShortcuts(), "without a search everything shows");
        require(model.contextual().size() <= 4, "there are four tips at most");
        constexpr qsizetype drawn = 8;
        require(model.weightedPracticeItems(drawn).size() == drawn, "a quiz has its questions");
        require(model.filteredModel()->rowCount() == model.filtered().size(), "the list shows what there is");
        static_cast<void>(model.conflict({u"⌘"_s, u"C"_s}, {}));
        const QByteArray backup = model.exportBackup();
        require(backup.isEmpty() || decodeBackup(backup).has_value(), "what was exported can be imported");
    }

private:
    NullWorkspace m_workspace;
    FakeLoginItem m_loginItem;
    FakeAccessibility m_accessibility;

public:
    Defaults defaults;
    Localization localization;
    AppModel model;
};

/// What is restored from the store.
struct Restored
{
    explicit Restored(const AppModel &model)
        : customShortcuts(model.customShortcuts())
        , favorites(model.favorites())
        , usageCounts(model.usageCounts())
        , practiceStats(model.practiceStats())
        , learns(model.learningModeEnabled())
        , suggests(model.smartSuggestionsEnabled())
    {
    }

    friend bool operator==(const Restored &, const Restored &) = default;

    QList<Shortcut> customShortcuts;
    QSet<QString> favorites;
    QHash<QString, qint64> usageCounts;
    QHash<QString, PracticeStat> practiceStats;
    bool learns;
    bool suggests;
};

/// Without what the use of the program changes.
QJsonObject unchanged(const QByteArray &store)
{
    QJsonObject object = QJsonDocument::fromJson(store).object();
    for (const QLatin1StringView key :
         {DefaultsKeys::favorites, DefaultsKeys::usageCounts, DefaultsKeys::customShortcuts,
          DefaultsKeys::practiceStats, DefaultsKeys::learningMode, DefaultsKeys::learningStreak,
          DefaultsKeys::lastLearnedDay})
        object.remove(key);
    return object;
}

} // namespace

void checkDefaults(const QByteArray &bytes)
{
    static const StoreFolder folder;
    folder.writeStore(bytes);
    const bool isStore = QJsonDocument::fromJson(bytes).isObject();
    // One after the other: there is one language at a time.
    auto program = std::make_unique<ProgramOverStore>(folder.store());
    require(folder.takeSetAside() == (isStore ? QList<QByteArray>() : QList<QByteArray>{bytes}),
            "what is no store is set aside as it was, and nothing else");
    require(!isStore || folder.storeContent() == bytes, "to read is not to write");
    program->look();
    program->use();
    program->look();
    const QByteArray used = folder.storeContent();
    require(!isStore || unchanged(used) == unchanged(bytes), "what nobody asked for is kept");

    const Restored before(program->model);
    program.reset();
    program = std::make_unique<ProgramOverStore>(folder.store());
    require(folder.takeSetAside().isEmpty(), "what was written is a store");
    require(Restored(program->model) == before, "what was written is read as it was");
    program->look();
    program->model.setLearningMode(!program->model.learningModeEnabled());
    program->model.setLearningMode(!program->model.learningModeEnabled());
    require(folder.storeContent() == used, "a store that is read and written again stays as it is");
}

} // namespace keyvora
