#include "exchange/importexportviewcontroller.h"

#include "shell/appdelegate.h"
#include "store/formatters.h"
#include "store/snapshots.h"

#include <QFileInfo>
#include <QLocale>

using namespace Qt::StringLiterals;

namespace {

QString localPath(const QUrl &url)
{
    return url.isLocalFile() ? url.toLocalFile() : url.toString();
}

QString dateAndTime(const QDateTime &when)
{
    return Formatters::mediumDate(when) + u' ' + QLocale().toString(when.time(), QLocale::ShortFormat);
}

QString records(qint64 count)
{
    return count == 1 ? u"1 record"_s : u"%1 records"_s.arg(QLocale().toString(count));
}

} // namespace

ImportExportViewController::ImportExportViewController(AppDelegate *app, QObject *parent) : ScreenController(app, parent)
{
    connect(&m_job, &BackgroundJob::progressChanged, this, &ImportExportViewController::changed);
    connect(&m_job, &BackgroundJob::finished, this, [this](const Result<void> &result) {
        auto done = std::move(m_done);
        m_busyText.clear();
        refreshUndo();
        if (done)
            done(result);
    });
    loadIfReady();
}

void ImportExportViewController::viewDidLoad()
{
    refreshUndo();
}

void ImportExportViewController::viewWillAppear()
{
    if (app())
        refreshUndo();
}

void ImportExportViewController::refreshUndo()
{
    m_canUndo = app() && !app()->readOnly() && app()->snapshots().latest().has_value();
    emit changed();
}

void ImportExportViewController::run(const QString &busyText, BackgroundJob::Work work,
                                     std::function<void(const Result<void> &)> done)
{
    m_busyText = busyText;
    m_done = std::move(done);
    if (!m_job.start(std::move(work), false)) {
        m_done = {};
        return;
    }
    emit changed();
}

void ImportExportViewController::BackUpButtonTapped()
{
    if (!busy())
        emit openBackupFileDialog();
}

void ImportExportViewController::backUpTo(const QUrl &file)
{
    if (!app() || busy())
        return;
    const QString path = localPath(file);
    const Backup::Paths paths = app()->backupPaths();
    auto info = std::make_shared<Backup::Info>();
    run(u"Backing up the collection\u2026"_s,
        [paths, path, info](const BackgroundJob::Progress &progress) -> Result<void> {
            auto written = Backup::backUp(paths, path, progress);
            if (!written)
                return written.error();
            *info = *written;
            return {};
        },
        [this, path, info](const Result<void> &result) {
            if (m_job.cancelled())
                showAlert(kBackUpTitle, u"The backup was cancelled; no file was written."_s);
            else if (!result)
                showAlert(kBackUpTitle, u"The collection could not be backed up.\n"_s + result.errorMessage());
            else
                showAlert(kBackUpTitle, u"%1 and %2 cover files were backed up to \"%3\"."_s.arg(
                                            records(info->records), QLocale().toString(info->coverFiles),
                                            QFileInfo(path).fileName()));
        });
}

void ImportExportViewController::RestoreButtonTapped()
{
    if (refusedAsReadOnly())
        return;
    if (!busy())
        emit openRestoreFileDialog();
}

void ImportExportViewController::restoreFrom(const QUrl &file)
{
    if (!app() || busy())
        return;
    const QString path = localPath(file);
    const QString name = QFileInfo(path).fileName();
    // The whole file is checked before the collector is asked anything.
    auto info = std::make_shared<Backup::Info>();
    run(u"Checking the backup\u2026"_s,
        [path, info](const BackgroundJob::Progress &) -> Result<void> {
            auto checked = Backup::inspect(path);
            if (!checked)
                return checked.error();
            *info = *checked;
            return {};
        },
        [this, path, name, info](const Result<void> &result) {
            if (!result) {
                showAlert(kRestoreTitle, result.errorMessage() + u"\nNothing was changed."_s);
                return;
            }
            showAlert(kRestoreTitle,
                      u"Replace the whole collection with the backup \"%1\" of %2 (%3)? The collection as it is now "
                      "is kept and can be put back with Undo Last Import."_s
                          .arg(name, dateAndTime(info->created), records(info->records)),
                      {u"Restore"_s, u"Cancel"_s}, [this, path, name](int button) {
                          if (button == 0)
                              restoreConfirmed(path, name);
                      });
        });
}

void ImportExportViewController::restoreConfirmed(const QString &path, const QString &fileName)
{
    Snapshots snapshots = app()->snapshots();
    run(u"Restoring the collection\u2026"_s,
        [snapshots, path](const BackgroundJob::Progress &progress) mutable -> Result<void> {
            return snapshots.restore(path, progress);
        },
        [this, fileName](const Result<void> &result) {
            if (!result) {
                showAlert(kRestoreTitle, (m_job.cancelled() ? u"The restore was cancelled."_s : result.errorMessage())
                                             + u"\nThe collection is as it was."_s);
                return;
            }
            app()->collectionReplaced();
            showAlert(kRestoreTitle, u"The collection was restored from \"%1\"."_s.arg(fileName));
        });
}

void ImportExportViewController::UndoLastImportButtonTapped()
{
    if (!app() || busy() || refusedAsReadOnly())
        return;
    const auto latest = app()->snapshots().latest();
    if (!latest) {
        showAlert(kUndoTitle, u"There is no import or restore to undo."_s);
        return;
    }
    const QString what = latest->info.kind == Snapshots::kKindRestore ? u"restore"_s : u"import"_s;
    showAlert(kUndoTitle,
              u"Put the collection back as it was before the %1 of \"%2\" on %3? Everything changed since then "
              "is undone too."_s.arg(what, latest->info.source, dateAndTime(latest->info.created)),
              {u"Undo"_s, u"Cancel"_s}, [this](int button) {
                  if (button != 0)
                      return;
                  Snapshots snapshots = app()->snapshots();
                  run(u"Putting the collection back\u2026"_s,
                      [snapshots](const BackgroundJob::Progress &progress) mutable -> Result<void> {
                          auto undone = snapshots.undoLatest(progress);
                          return undone ? Result<void>() : Result<void>(undone.error());
                      },
                      [this](const Result<void> &result) {
                          if (!result) {
                              showAlert(kUndoTitle, (m_job.cancelled() ? u"Cancelled."_s : result.errorMessage())
                                                        + u"\nThe collection is as it was."_s);
                              return;
                          }
                          app()->collectionReplaced();
                          showAlert(kUndoTitle, u"The collection is back as it was."_s);
                      });
              });
}
