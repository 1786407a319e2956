#pragma once

#include "shell/screencontroller.h"
#include "store/backgroundjob.h"

#include <QString>
#include <QUrl>

// The import/export screen: leads to the export and import screens, and keeps the collection
// safe: a lossless backup to a file, a restore from one, and the undo of the last import or
// restore. Backups, restores and undos run on a worker thread with a progress bar and Cancel.
class ImportExportViewController : public ScreenController
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool busy READ busy NOTIFY changed)
    Q_PROPERTY(QString busyText READ busyText NOTIFY changed)
    Q_PROPERTY(double progress READ progress NOTIFY changed)
    Q_PROPERTY(QString progressText READ progressText NOTIFY changed)
    Q_PROPERTY(bool undoButtonEnabled READ undoButtonEnabled NOTIFY changed)

public:
    static inline const QString kBackUpTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Back Up"));
    static inline const QString kRestoreTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Restore"));
    static inline const QString kUndoTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Undo Last Import"));

    explicit ImportExportViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);

    [[nodiscard]] bool busy() const { return m_job.running(); }
    [[nodiscard]] QString busyText() const { return m_busyText; }
    [[nodiscard]] double progress() const { return m_job.progress(); }
    [[nodiscard]] QString progressText() const { return m_job.progressText(); }
    [[nodiscard]] bool undoButtonEnabled() const { return m_canUndo && !busy(); }

    Q_INVOKABLE void viewWillAppear() override;
    // Ask the view for a file to write or read; the view answers with backUpTo / restoreFrom.
    Q_INVOKABLE void BackUpButtonTapped();
    Q_INVOKABLE void RestoreButtonTapped();
    Q_INVOKABLE void backUpTo(const QUrl &file);
    Q_INVOKABLE void restoreFrom(const QUrl &file);
    Q_INVOKABLE void UndoLastImportButtonTapped();
    Q_INVOKABLE void CancelButtonTapped() { m_job.cancel(); }

    // Tests: waits for the running job and its alert.
    void waitForJob() { m_job.waitForFinished(); }

signals:
    void changed();
    void openBackupFileDialog();
    void openRestoreFileDialog();

private:
    void viewDidLoad() override;
    void refreshUndo();
    void run(const QString &busyText, BackgroundJob::Work work, std::function<void(const Result<void> &)> done);
    void restoreConfirmed(const QString &path, const QString &fileName);

    BackgroundJob m_job;
    QString m_busyText;
    bool m_canUndo = false;
    std::function<void(const Result<void> &)> m_done;
};
