// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "dialogs/BackupService.h"

#include "contract/Waiting.h"
#include "model/Backup.h"
#include "unit/Settle.h"
#include "unit/model/Program.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QSemaphore>
#include <QThreadPool>
#include <QWindow>

#include <gtest/gtest.h>
#include <memory>
#include <sys/stat.h>

namespace keyvora {

namespace {

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be opened)");
}

QByteArray backupOf(const QStringList &favorites)
{
    return encodeBackup({{makeShortcut(u"theirs"_s)}, favorites});
}

/// Keeps all threads of the background busy, so that nothing can be done there.
class BusyThreads
{
public:
    BusyThreads()
    {
        for (int i = 0; i < m_threads; ++i)
            QThreadPool::globalInstance()->start([gate = m_gate] { gate->acquire(); });
    }
    ~BusyThreads() { m_gate->release(m_threads); }
    Q_DISABLE_COPY_MOVE(BusyThreads)

private:
    int m_threads = QThreadPool::globalInstance()->maxThreadCount();
    std::shared_ptr<QSemaphore> m_gate = std::make_shared<QSemaphore>();
};

/// Does all that can be done on this thread alone.
void turnEventLoop()
{
    constexpr int rounds = 20;
    for (int round = 0; round < rounds; ++round)
        QCoreApplication::processEvents();
}

class BackupServiceTest : public testing::Test
{
protected:
    BackupServiceTest()
    {
        // The toolkit's own dialog is the one that a test can look into.
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        m_window->resize(400, 300);
        m_window->show();
    }

    ~BackupServiceTest() override
    {
        m_program.reset();
        settle();
        QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs, false);
    }

    Program &program() { return *m_program; }
    AppModel &model() { return m_program->model(); }
    [[nodiscard]] QWindow *window() const { return m_window.get(); }
    void closeWindow() { m_window.reset(); }
    [[nodiscard]] QString path(const QString &name) const { return m_folder.filePath(name); }
    [[nodiscard]] const QList<bool> &outcomes() const { return m_outcomes; }

    void exportBackup() { m_service->exportBackup(model(), window(), remember()); }
    void importFile() { m_service->importFile(model(), window(), remember()); }
    void endService() { m_service.reset(); }

    static QList<QFileDialog *> dialogs()
    {
        QList<QFileDialog *> found;
        for (QWidget *widget : QApplication::topLevelWidgets()) {
            auto *dialog = qobject_cast<QFileDialog *>(widget);
            if (dialog != nullptr && dialog->isVisible())
                found.append(dialog);
        }
        return found;
    }

    /// The one that is open, or none.
    static QFileDialog *dialog()
    {
        const QList<QFileDialog *> open = dialogs();
        return open.size() == 1 ? open.first() : nullptr;
    }

    /// Chooses a file as one who types its name does.
    static void choose(const QString &file)
    {
        ASSERT_NE(dialog(), nullptr);
        dialog()->selectFile(file);
        QMetaObject::invokeMethod(dialog(), "accept");
    }

    void write(const QString &name, const QByteArray &content) const
    {
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }

    /// Waits for the one outcome there is, and for another that must not come.
    void expectOutcome(bool outcome)
    {
        ASSERT_TRUE(becomesTrue([this] { return !m_outcomes.isEmpty(); }));
        settle();
        EXPECT_EQ(m_outcomes, QList<bool>{outcome});
        EXPECT_EQ(dialogs().size(), 0);
    }

    void endProgram() { m_program.reset(); }

private:
    BackupService::Done remember()
    {
        return [this](bool outcome) {
            EXPECT_EQ(QThread::currentThread(), qApp->thread());
            m_outcomes.append(outcome);
        };
    }

    QTemporaryDir m_folder;
    std::unique_ptr<Program> m_program = std::make_unique<Program>();
    std::unique_ptr<QWindow> m_window = std::make_unique<QWindow>();
    std::unique_ptr<BackupService> m_service = std::make_unique<BackupService>();
    QList<bool> m_outcomes;
};

} // namespace

TEST_F(BackupServiceTest, ProposesAFileToSave)
{
    exportBackup();
    ASSERT_NE(dialog(), nullptr);
    EXPECT_EQ(dialog()->windowTitle(), u"Save Backup"_s);
    EXPECT_EQ(QFileInfo(dialog()->selectedFiles().value(0)).fileName(), u"Keyvora-zaloha.json"_s);
    EXPECT_EQ(dialog()->nameFilters(), QStringList{u"JSON (*.json)"_s});
    EXPECT_EQ(dialog()->acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(dialog()->windowModality(), Qt::WindowModal);
    EXPECT_EQ(dialog()->windowHandle()->transientParent(), window());
    EXPECT_TRUE(outcomes().isEmpty());
    dialog()->reject();
    expectOutcome(false);
}

TEST_F(BackupServiceTest, AsksForOneFileToImport)
{
    importFile();
    ASSERT_NE(dialog(), nullptr);
    EXPECT_EQ(dialog()->windowTitle(), u"Choose Backup"_s);
    EXPECT_EQ(dialog()->nameFilters(), QStringList{u"JSON (*.json)"_s});
    EXPECT_EQ(dialog()->acceptMode(), QFileDialog::AcceptOpen);
    EXPECT_EQ(dialog()->fileMode(), QFileDialog::ExistingFile);
    EXPECT_EQ(dialog()->windowModality(), Qt::WindowModal);
    EXPECT_EQ(dialog()->windowHandle()->transientParent(), window());
    dialog()->reject();
    expectOutcome(false);
}

TEST_F(BackupServiceTest, SpeaksCzech)
{
    program().localization().setLanguage(AppLanguage::Czech);
    exportBackup();
    ASSERT_NE(dialog(), nullptr);
    EXPECT_EQ(dialog()->windowTitle(), u"Uložit zálohu"_s);
    dialog()->reject();
    settle();
    importFile();
    ASSERT_NE(dialog(), nullptr);
    EXPECT_EQ(dialog()->windowTitle(), u"Vybrat zálohu"_s);
    dialog()->reject();
}

TEST_F(BackupServiceTest, SavesWhatTheModelHolds)
{
    exportBackup();
    // What changes while the dialog is open is saved, too.
    model().addCustom(u"Own"_s, {u"⌘"_s}, Shortcut::Category::text, {}, {});
    choose(path(u"saved.json"_s));
    expectOutcome(true);
    EXPECT_EQ(contentOf(path(u"saved.json"_s)), model().exportBackup());
}

TEST_F(BackupServiceTest, AsksForNoFileWhenThereIsTooMuch)
{
    model().addCustom(u"Own"_s, {u"⌘"_s}, Shortcut::Category::text, {},
                      QString(BackupLimits::textBytes, u'x'));
    exportBackup();
    EXPECT_EQ(dialogs().size(), 0);
    expectOutcome(false);
}

TEST_F(BackupServiceTest, SavesInTheBackground)
{
    exportBackup();
    {
        const BusyThreads busy;
        choose(path(u"saved.json"_s));
        turnEventLoop();
        EXPECT_FALSE(QFileInfo::exists(path(u"saved.json"_s)));
    }
    expectOutcome(true);
}

TEST_F(BackupServiceTest, KeepsTheOldFileWhenTheNewOneCannotBeWritten)
{
    // Nobody, not even the superuser, makes files where this link leads.
    const QString old = path(u"old.json"_s);
    ASSERT_TRUE(QFile::link(u"/proc/version"_s, old));
    const QByteArray content = contentOf(old);
    ASSERT_FALSE(content.isEmpty());
    exportBackup();
    ASSERT_NE(dialog(), nullptr);
    // The user is asked first.
    dialog()->setOption(QFileDialog::DontConfirmOverwrite);
    choose(old);
    expectOutcome(false);
    EXPECT_EQ(QFileInfo(old).symLinkTarget(), u"/proc/version"_s);
    EXPECT_EQ(contentOf(old), content);
}

TEST_F(BackupServiceTest, AddsTheSuffixThatIsMissing)
{
    exportBackup();
    choose(path(u"saved"_s));
    expectOutcome(true);
    EXPECT_EQ(contentOf(path(u"saved.json"_s)), model().exportBackup());
}

TEST_F(BackupServiceTest, CannotSaveIntoAFileThatCannotBeMade)
{
    // Nobody can write here, whoever runs the tests.
    exportBackup();
    choose(u"/proc/self/saved.json"_s);
    expectOutcome(false);
}

TEST_F(BackupServiceTest, SavesThoughTheServiceGoes)
{
    exportBackup();
    endService();
    choose(path(u"saved.json"_s));
    expectOutcome(true);
}

TEST_F(BackupServiceTest, MergesAFile)
{
    write(u"backup.json"_s, backupOf({u"redo"_s}));
    importFile();
    choose(path(u"backup.json"_s));
    expectOutcome(true);
    EXPECT_EQ(idsOf(model().customShortcuts()), QStringList{u"theirs"_s});
    EXPECT_TRUE(model().favorites().contains(u"redo"_s));
    EXPECT_TRUE(model().favorites().contains(u"copy"_s));
}

TEST_F(BackupServiceTest, RefusesAFileThatIsNoBackup)
{
    const AppModel::Backup before = model().backup();
    write(u"backup.json"_s, R"({"customShortcuts":[]})");
    importFile();
    choose(path(u"backup.json"_s));
    expectOutcome(false);
    EXPECT_EQ(model().backup(), before);
}

TEST_F(BackupServiceTest, DoesNotWaitForANamedPipe)
{
    const QString pipe = path(u"pipe.json"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    importFile();
    choose(pipe);
    expectOutcome(false);
}

TEST_F(BackupServiceTest, DoesNotReadADevice)
{
    ASSERT_TRUE(QFile::link(u"/dev/zero"_s, path(u"zero.json"_s)));
    importFile();
    choose(path(u"zero.json"_s));
    expectOutcome(false);
}

TEST_F(BackupServiceTest, DoesNotReadAFileThatIsTooLarge)
{
    write(u"large.json"_s, backupOf({}));
    ASSERT_TRUE(QFile::resize(path(u"large.json"_s), BackupLimits::fileBytes * 1000));
    importFile();
    choose(path(u"large.json"_s));
    expectOutcome(false);
}

TEST_F(BackupServiceTest, ReadsALargeFileWhileTheEventLoopTurns)
{
    constexpr qsizetype size = 100L * 1024 * 1024;
    write(u"large.json"_s,
          R"({"favorites":["redo"],"customShortcuts":[],"unknown":")" + QByteArray(size, 'x') + "\"}");
    importFile();
    {
        const BusyThreads busy;
        choose(path(u"large.json"_s));
        turnEventLoop();
        EXPECT_TRUE(outcomes().isEmpty());
    }
    expectOutcome(true);
    EXPECT_TRUE(model().favorites().contains(u"redo"_s));
}

TEST_F(BackupServiceTest, EndsWhenTheWindowIsHidden)
{
    importFile();
    ASSERT_NE(dialog(), nullptr);
    window()->hide();
    expectOutcome(false);
}

TEST_F(BackupServiceTest, EndsWhenTheWindowGoes)
{
    exportBackup();
    ASSERT_NE(dialog(), nullptr);
    closeWindow();
    expectOutcome(false);
}

TEST_F(BackupServiceTest, MergesThoughTheWindowGoes)
{
    write(u"backup.json"_s, backupOf({}));
    importFile();
    choose(path(u"backup.json"_s));
    closeWindow();
    expectOutcome(true);
    EXPECT_EQ(idsOf(model().customShortcuts()), QStringList{u"theirs"_s});
}

TEST_F(BackupServiceTest, TellsNobodyWhenTheModelGoes)
{
    importFile();
    const QPointer<QFileDialog> open = dialog();
    ASSERT_FALSE(open.isNull());
    endProgram();
    settle();
    EXPECT_TRUE(open.isNull());
    EXPECT_TRUE(outcomes().isEmpty());
}

TEST_F(BackupServiceTest, TellsNobodyWhenTheModelGoesWhileAFileIsRead)
{
    write(u"backup.json"_s, backupOf({}));
    importFile();
    choose(path(u"backup.json"_s));
    endProgram();
    settle();
    EXPECT_TRUE(outcomes().isEmpty());
}

} // namespace keyvora
