// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "dialogs/BackupService.h"

#include "dialogs/BackupFile.h"
#include "dialogs/DialogOverWindow.h"
#include "model/AppModel.h"
#include "model/Backup.h"
#include "model/Localization.h"
#include "platform/InBackground.h"
#include "platform/WhenFinished.h"

#include <QFileDialog>
#include <QPointer>

#include <utility>
#include <vector>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

/// A dialog for one JSON file, which goes with the model. It is to be shown by the caller.
QFileDialog *makeDialog(const QString &title, const AppModel &model)
{
    auto *dialog = new QFileDialog(nullptr, title);
    dialog->setDirectory(documentsFolder());
    dialog->setNameFilter(u"JSON (*.json)"_s);
    QObject::connect(&model, &QObject::destroyed, dialog, &QDialog::reject);
    return dialog;
}

} // namespace

/// Those who wait for an outcome. Whatever ends without one, a dialog that is closed above all, lets go of
/// this, which then tells them that it came to nothing.
class BackupService::Waiting
{
public:
    Waiting(AppModel &model, Done done)
        : m_model(&model)
    {
        add(std::move(done));
    }
    ~Waiting() { tell(false); }
    Q_DISABLE_COPY_MOVE(Waiting)

    [[nodiscard]] AppModel *model() const { return m_model; }
    [[nodiscard]] bool isTold() const { return m_waiting.empty(); }
    void add(Done done) { m_waiting.push_back(std::move(done)); }

    void tell(bool outcome)
    {
        for (const Done &done : std::exchange(m_waiting, {})) {
            if (m_model && done)
                done(outcome);
        }
    }

private:
    QPointer<AppModel> m_model;
    std::vector<Done> m_waiting;
};

void BackupService::exportBackup(AppModel &model, QWindow *window, Done done) const
{
    const auto waiting = std::make_shared<Waiting>(model, std::move(done));
    if (!BackupAllowance().take(model.backup())) {
        // Nobody is to choose a file in vain.
        QMetaObject::invokeMethod(
            &model, [waiting] { waiting->tell(false); }, Qt::QueuedConnection);
        return;
    }
    QFileDialog *dialog =
        makeDialog(Localization::shared().text(u"Uložit zálohu"_s, u"Save Backup"_s), model);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setDefaultSuffix(u"json"_s);
    dialog->selectFile(u"Keyvora-zaloha.json"_s);
    QObject::connect(dialog, &QFileDialog::fileSelected, dialog, [waiting](const QString &path) {
        if (waiting->model() == nullptr)
            return;
        const auto write = [path, backup = waiting->model()->backup()] {
            return writeBackupFile(path, backup);
        };
        whenFinished(
            inBackground(*QThreadPool::globalInstance(), write), waiting->model(),
            [waiting](const QFuture<bool> &isWritten) { waiting->tell(resultOr(isWritten, false)); });
    });
    showOverWindow(*dialog, window);
}

void BackupService::importFile(AppModel &model, QWindow *window, Done done) const
{
    if (const auto underWay = m_import.lock();
        underWay && !underWay->isTold() && underWay->model() == &model) {
        underWay->add(std::move(done));
        return;
    }
    QFileDialog *dialog =
        makeDialog(Localization::shared().text(u"Vybrat zálohu"_s, u"Choose Backup"_s), model);
    dialog->setAcceptMode(QFileDialog::AcceptOpen);
    dialog->setFileMode(QFileDialog::ExistingFile);
    const auto waiting = std::make_shared<Waiting>(model, std::move(done));
    m_import = waiting;
    QObject::connect(dialog, &QFileDialog::fileSelected, dialog, [waiting](const QString &path) {
        if (waiting->model() == nullptr)
            return;
        using Read = std::optional<Backup>;
        const auto read = [path] {
            return readBackupFile(path);
        };
        whenFinished(inBackground(*QThreadPool::globalInstance(), read), waiting->model(),
                     [waiting](const QFuture<Read> &reading) {
                         const Read backup = resultOr(reading, Read());
                         waiting->tell(backup && waiting->model()->mergeBackup(*backup));
                     });
    });
    showOverWindow(*dialog, window);
}

} // namespace keyvora
