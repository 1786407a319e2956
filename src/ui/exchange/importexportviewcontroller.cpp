#include "exchange/importexportviewcontroller.h"

#include "shell/appdelegate.h"
#include "store/formatters.h"
#include "store/snapshots.h"
#include "store/translations.h"

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
    return count == 1 ? translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "1 record"))) : translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "%1 records"))).arg(QLocale().toString(count));
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
    m_busyText = translated(busyText);
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
    run(translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Backing up the collection\u2026"))),
        [paths, path, info](const BackgroundJob::Progress &progress) -> Result<void> {
            auto written = Backup::backUp(paths, path, progress);
            if (!written)
                return written.error();
            *info = *written;
            return {};
        },
        [this, path, info](const Result<void> &result) {
            if (m_job.cancelled())
                showAlert(kBackUpTitle, translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The backup was cancelled; no file was written."))));
            else if (!result)
                showAlert(kBackUpTitle, translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The collection could not be backed up."))) + u'\n' + result.errorMessage());
            else
                showAlert(kBackUpTitle, translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "%1 and %2 cover files were backed up to \"%3\"."))).arg(
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
    run(translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Checking the backup\u2026"))),
        [path, info](const BackgroundJob::Progress &) -> Result<void> {
            auto checked = Backup::inspect(path);
            if (!checked)
                return checked.error();
            *info = *checked;
            return {};
        },
        [this, path, name, info](const Result<void> &result) {
            if (!result) {
                showAlert(kRestoreTitle, result.errorMessage() + u'\n' + translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Nothing was changed."))));
                return;
            }
            showAlert(kRestoreTitle,
                      u"Replace the whole collection with the backup \"%1\" of %2 (%3)? The collection as it is now "
                      "is kept and can be put back with Undo Last Import."_s
                          .arg(name, dateAndTime(info->created), records(info->records)),
                      {translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Restore"))), translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Cancel")))}, [this, path, name](int button) {
                          if (button == 0)
                              restoreConfirmed(path, name);
                      });
        });
}

void ImportExportViewController::restoreConfirmed(const QString &path, const QString &fileName)
{
    Snapshots snapshots = app()->snapshots();
    run(translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Restoring the collection\u2026"))),
        [snapshots, path](const BackgroundJob::Progress &progress) mutable -> Result<void> {
            return snapshots.restore(path, progress);
        },
        [this, fileName](const Result<void> &result) {
            if (!result) {
                showAlert(kRestoreTitle, (m_job.cancelled() ? translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The restore was cancelled."))) : result.errorMessage())
                                             + u'\n' + translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The collection is as it was."))));
                return;
            }
            app()->collectionReplaced();
            showAlert(kRestoreTitle, translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The collection was restored from \"%1\"."))).arg(fileName));
        });
}

void ImportExportViewController::UndoLastImportButtonTapped()
{
    if (!app() || busy() || refusedAsReadOnly())
        return;
    const auto latest = app()->snapshots().latest();
    if (!latest) {
        showAlert(kUndoTitle, translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "There is no import or restore to undo."))));
        return;
    }
    const QString what = latest->info.kind == Snapshots::kKindRestore ? u"restore"_s : u"import"_s;
    showAlert(kUndoTitle,
              u"Put the collection back as it was before the %1 of \"%2\" on %3? Everything changed since then "
              "is undone too."_s.arg(what, latest->info.source, dateAndTime(latest->info.created)),
              {u"Undo"_s, translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Cancel")))}, [this](int button) {
                  if (button != 0)
                      return;
                  Snapshots snapshots = app()->snapshots();
                  run(translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Putting the collection back\u2026"))),
                      [snapshots](const BackgroundJob::Progress &progress) mutable -> Result<void> {
                          auto undone = snapshots.undoLatest(progress);
                          return undone ? Result<void>() : Result<void>(undone.error());
                      },
                      [this](const Result<void> &result) {
                          if (!result) {
                              showAlert(kUndoTitle, (m_job.cancelled() ? translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Cancelled."))) : result.errorMessage())
                                                        + u'\n' + translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The collection is as it was."))));
                              return;
                          }
                          app()->collectionReplaced();
                          showAlert(kUndoTitle, translated(QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "The collection is back as it was."))));
                      });
              });
}
