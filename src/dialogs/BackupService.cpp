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

#include <memory>
#include <utility>

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

/// Who waits for an outcome. Whatever ends without one, a dialog that is closed above all, lets go of this,
/// which then tells that it came to nothing.
class Waiting
{
public:
    Waiting(AppModel &model, BackupService::Done done)
        : m_model(&model)
        , m_done(std::move(done))
    {
    }
    ~Waiting() { tell(false); }
    Q_DISABLE_COPY_MOVE(Waiting)

    [[nodiscard]] AppModel *model() const { return m_model; }

    void tell(bool outcome)
    {
        const BackupService::Done done = std::exchange(m_done, {});
        if (m_model && done)
            done(outcome);
    }

private:
    QPointer<AppModel> m_model;
    BackupService::Done m_done;
};

} // namespace

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
    QFileDialog *dialog =
        makeDialog(Localization::shared().text(u"Vybrat zálohu"_s, u"Choose Backup"_s), model);
    dialog->setAcceptMode(QFileDialog::AcceptOpen);
    dialog->setFileMode(QFileDialog::ExistingFile);
    const auto waiting = std::make_shared<Waiting>(model, std::move(done));
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
