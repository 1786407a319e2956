#pragma once

#include "exchange/collectioncsv.h"
#include "shell/screencontroller.h"
#include "store/backgroundjob.h"

#include <QByteArray>
#include <QString>

#include <memory>

class Store;

// The export screen: builds the exchange file of the whole collection, or its CSV files for a
// spreadsheet, shows it, and hands it on through the share facility ("Save To Files") or as a
// mail attachment ("Email File"). Building runs on a worker thread, so the window stays live;
// the progress bar counts the lines written ("12,400 of 688,101") and Cancel stops it, leaving
// nothing built and no file. One visit builds once.
class ExportViewController : public ScreenController
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool exportButtonEnabled READ exportButtonEnabled NOTIFY changed)
    Q_PROPERTY(bool saveFileButtonEnabled READ saveFileButtonEnabled NOTIFY changed)
    Q_PROPERTY(bool emailButtonEnabled READ emailButtonEnabled NOTIFY changed)
    // The built text, or its beginning when the file is large.
    Q_PROPERTY(QString exportText READ exportText NOTIFY changed)
    Q_PROPERTY(double progress READ progress NOTIFY changed)
    Q_PROPERTY(QString progressText READ progressText NOTIFY changed)
    // The activity indicator runs while this is true.
    Q_PROPERTY(bool building READ building NOTIFY changed)
    Q_PROPERTY(bool exportImages READ exportImages NOTIFY changed)
    // CSV export: the tracks as a second section of the records file rather than a file of their own.
    Q_PROPERTY(bool tracksInRecordsFile READ tracksInRecordsFile WRITE setTracksInRecordsFile NOTIFY changed)
    Q_PROPERTY(QString helpText READ helpText CONSTANT)

public:
    static inline const QString kTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Data Export"));
    static inline const QString kDone = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Process Complete - File Ready to Save to Files or Email"));
    static inline const QString kMailTitle = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Sending Email"));
    static inline const QString kMailUnavailable = QStringLiteral(QT_TRANSLATE_NOOP("Platterbox", "Email not Setup or Unavailable"));
    static inline const QString kMailSubject = QStringLiteral("Vinyl Collection Update Text File");
    static inline const QString kMailBody = QStringLiteral("Attachment: Vinyl Collection Text File");
    static inline const QString kMailMimeType = QStringLiteral("csv");
    static inline const QString kCsvMimeType = QStringLiteral("text/csv");
    static inline const QString kRecordsCsvName = QStringLiteral("VinylRecords.csv");
    static inline const QString kTracksCsvName = QStringLiteral("VinylTracks.csv");
    // Texts longer than this show their first lines only; the file always holds everything.
    static constexpr int kPreviewCharacters = 60000;

    explicit ExportViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);
    ~ExportViewController() override;

    [[nodiscard]] bool exportButtonEnabled() const { return m_exportButtonEnabled; }
    [[nodiscard]] bool saveFileButtonEnabled() const { return m_saveFileButtonEnabled; }
    [[nodiscard]] bool emailButtonEnabled() const { return m_emailButtonEnabled; }
    [[nodiscard]] QString exportText() const { return m_exportText; }
    [[nodiscard]] double progress() const { return m_progress; }
    [[nodiscard]] QString progressText() const { return m_building ? m_job.progressText() : QString(); }
    [[nodiscard]] bool building() const { return m_building; }
    [[nodiscard]] bool exportImages() const { return m_exportImages; }
    [[nodiscard]] bool tracksInRecordsFile() const { return m_tracksInRecordsFile; }
    void setTracksInRecordsFile(bool on);
    [[nodiscard]] static QString helpText();
    // The whole exchange text (UTF-8); empty until a build has finished.
    [[nodiscard]] const QByteArray &dataString() const { return m_dataString; }
    // The CSV files; empty until a CSV build has finished.
    [[nodiscard]] const CollectionCsv::Files &csvFiles() const { return m_csvFiles; }

    // Builds with the current image setting.
    Q_INVOKABLE void CreateUpdateFile();
    // Leaves images out, for this build and every later one on this screen.
    Q_INVOKABLE void CreateUpdateFileWithoutImages();
    // Builds the CSV files: records, and tracks in a second file or section.
    Q_INVOKABLE void CreateCsvFile();
    // Writes "VinylCollection.csv" (or the CSV files) to the temporary folder and shares it.
    Q_INVOKABLE void SaveFile();
    // Mails the file as an attachment.
    Q_INVOKABLE void WriteTextFile();
    // Stops building; nothing is kept and the file can be built again.
    Q_INVOKABLE void CancelButtonTapped();

signals:
    void changed();
    // A build has finished (successfully or not).
    void buildFinished();

private:
    struct Built;
    // Starts building on the worker: `work` fills what was built.
    void startBuild(std::function<Result<void>(Store &, Built &, const BackgroundJob::Progress &)> work);
    void buildDone(const Result<void> &result);
    void failBuild(const QString &message);
    // The built files by name: the exchange file or the CSV files.
    [[nodiscard]] QList<std::pair<QString, QByteArray>> builtFiles() const;

    QByteArray m_dataString;
    BackgroundJob m_job;
    std::shared_ptr<Built> m_built;
    CollectionCsv::Files m_csvFiles;
    bool m_tracksInRecordsFile = false;
    QString m_exportText;
    double m_progress = 0.0;
    bool m_building = false;
    bool m_exportImages = true;
    bool m_exportButtonEnabled = true;
    bool m_saveFileButtonEnabled = false;
    bool m_emailButtonEnabled = false;
};
