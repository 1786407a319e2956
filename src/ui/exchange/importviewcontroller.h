#pragma once

#include "exchange/importmerge.h"
#include "exchange/importpreviewmodel.h"
#include "exchange/wantlistcsv.h"
#include "shell/screencontroller.h"
#include "store/backgroundjob.h"

#include <QString>
#include <QUrl>

#include <memory>

// The import screen: loads one file the user picks (an exchange file, a Discogs collection
// export or a CSV file, told apart by their content) and shows what importing it would do,
// line by line, before anything changes. Importing keeps a snapshot of the store, so that the
// import can be undone, and merges the file in batches of lines; the completion alert
// lists the lines skipped and leads back to the main menu. Reading, the preview and the import
// run on a worker thread with progress and cancel.
//
// With "Into the Wantlist" on, the picked CSV file's albums go onto the wantlist instead: the
// screen says how many would be added and skipped, and Import adds them all at once.
class ImportViewController : public ScreenController
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool importButtonEnabled READ importButtonEnabled NOTIFY changed)
    Q_PROPERTY(bool loadFileButtonEnabled READ loadFileButtonEnabled NOTIFY changed)
    // The loaded text, or its beginning when the file is large.
    Q_PROPERTY(QString importText READ importText NOTIFY changed)
    Q_PROPERTY(QString filename READ filename NOTIFY changed)
    // "Discogs collection export: 1,819 records"
    Q_PROPERTY(QString formatLabel READ formatLabel NOTIFY changed)
    // "412 new, 23 updated, 1,380 unchanged, 4 problems"
    Q_PROPERTY(QString countsLabel READ countsLabel NOTIFY changed)
    // Columns not read and how condition texts were taken, one per line.
    Q_PROPERTY(QString remarksLabel READ remarksLabel NOTIFY changed)
    Q_PROPERTY(ImportPreviewModel *previewLines READ previewLines CONSTANT)
    Q_PROPERTY(int shownKind READ shownKind NOTIFY changed)
    // A file is being read and previewed, or imported; the cancel button shows.
    Q_PROPERTY(bool busy READ busy NOTIFY changed)
    Q_PROPERTY(bool importing READ importing NOTIFY changed)
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged)
    Q_PROPERTY(QString progressText READ progressText NOTIFY progressChanged)
    Q_PROPERTY(QString helpText READ helpText CONSTANT)
    // The next file picked goes onto the wantlist; set while no file is loaded.
    Q_PROPERTY(bool intoWantlist READ intoWantlist WRITE setIntoWantlist NOTIFY changed)

public:
    static inline const QString kTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Data Import File"));
    static inline const QString kLoaded = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "File Loaded and Ready to Import"));
    static inline const QString kCompleted = ImportMessages::kCompleted;
    static inline const QString kCancelledTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Import Cancelled"));
    static inline const QString kWantlistCompleted = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Wantlist Import Completed"));
    static constexpr int kPreviewCharacters = 60000;
    // Problem lines listed by name in the completion alert; the rest are counted.
    static constexpr int kListedProblems = 20;

    explicit ImportViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);
    ~ImportViewController() override;

    [[nodiscard]] bool importButtonEnabled() const { return (m_file || m_wantlist) && !busy(); }
    [[nodiscard]] bool loadFileButtonEnabled() const { return !m_file && !m_wantlist && !busy(); }
    [[nodiscard]] QString importText() const { return m_importText; }
    [[nodiscard]] QString filename() const { return m_filename; }
    [[nodiscard]] QString formatLabel() const { return m_formatLabel; }
    [[nodiscard]] QString countsLabel() const { return m_countsLabel; }
    [[nodiscard]] QString remarksLabel() const { return m_remarksLabel; }
    [[nodiscard]] ImportPreviewModel *previewLines() { return &m_preview; }
    [[nodiscard]] int shownKind() const { return m_preview.shownKind(); }
    [[nodiscard]] bool busy() const { return m_job.running(); }
    [[nodiscard]] bool importing() const { return m_importing; }
    [[nodiscard]] double progress() const { return m_job.progress(); }
    [[nodiscard]] QString progressText() const { return m_job.progressText(); }
    [[nodiscard]] static QString helpText();
    [[nodiscard]] bool intoWantlist() const { return m_intoWantlist; }
    void setIntoWantlist(bool on);
    // The counts of the preview shown, or of the import done.
    [[nodiscard]] const ImportCounts &counts() const { return m_counts; }

    // Asks the view for its file picker.
    Q_INVOKABLE void LoadFile();
    // The picker's answer: reads the file and previews the import.
    Q_INVOKABLE void documentPicked(const QUrl &url);
    Q_INVOKABLE void documentPickerWasCancelled() {}
    // Merges the loaded file into the store.
    Q_INVOKABLE void ImportTextFile();
    // Stops the reading or the import; an import stops at the end of a batch of lines and
    // keeps the lines before it (Undo Last Import takes them back).
    Q_INVOKABLE void CancelButtonTapped();
    // Shows the preview lines of one ImportOutcome::Kind, or all (-1).
    Q_INVOKABLE void ShowLines(int kind);

signals:
    void changed();
    void progressChanged();
    void openDocumentPicker();
    // The preview of a picked file is shown, or reading it failed or was cancelled.
    void previewFinished();
    // An import has finished (completed, cancelled or stopped by an error).
    void importFinished();

private:
    struct Work;
    void previewDone(const Result<void> &result);
    void importDone(const Result<void> &result);
    [[nodiscard]] QString completionMessage() const;
    void wantlistPreviewDone(const Work &work);
    void wantlistImportDone(const Result<void> &result, const Work &work);

    BackgroundJob m_job;
    std::shared_ptr<Work> m_work;
    std::shared_ptr<const ImportFile> m_file;
    std::shared_ptr<const WantlistCsv::WantlistFile> m_wantlist;
    ImportPreviewModel m_preview;
    ImportCounts m_counts;
    QString m_importText;
    QString m_filename;
    QString m_formatLabel;
    QString m_countsLabel;
    QString m_remarksLabel;
    bool m_importing = false;
    bool m_intoWantlist = false;
};
