#pragma once

#include "backgroundjob.h"
#include "screencontroller.h"

#include <QString>
#include <QUrl>

#include <memory>

class ExchangeReader;

// The import screen: loads one exchange file the user picks, shows it, and merges it into the
// store. The merge runs in batches on the event loop, each batch in one transaction, with a
// progress bar; when it is done the completion alert leads back to the main menu.
class ImportViewController : public ScreenController
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(bool importButtonEnabled READ importButtonEnabled NOTIFY changed)
    Q_PROPERTY(bool loadFileButtonEnabled READ loadFileButtonEnabled NOTIFY changed)
    // The loaded text, or its beginning when the file is large.
    Q_PROPERTY(QString importText READ importText NOTIFY changed)
    Q_PROPERTY(QString filename READ filename NOTIFY changed)
    Q_PROPERTY(double progress READ progress NOTIFY changed)
    Q_PROPERTY(bool importing READ importing NOTIFY changed)
    Q_PROPERTY(QString helpText READ helpText CONSTANT)

public:
    static inline const QString kTitle = QStringLiteral("Data Import File");
    static inline const QString kLoaded = QStringLiteral("File Loaded and Ready to Import");
    static inline const QString kCompleted = QStringLiteral("Data File Import Completed");
    static constexpr int kPreviewCharacters = 60000;
    // Lines per transaction on the screen; small enough to keep the window live.
    static constexpr int kBatchLines = 200;

    explicit ImportViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);
    ~ImportViewController() override;

    [[nodiscard]] bool importButtonEnabled() const { return m_importButtonEnabled; }
    [[nodiscard]] bool loadFileButtonEnabled() const { return m_loadFileButtonEnabled; }
    [[nodiscard]] QString importText() const { return m_importText; }
    [[nodiscard]] QString filename() const { return m_filename; }
    [[nodiscard]] double progress() const { return m_progress; }
    [[nodiscard]] bool importing() const { return m_importing; }
    [[nodiscard]] static QString helpText();
    // The whole text of the loaded file; null until one is loaded.
    [[nodiscard]] QString document() const { return m_document; }

    // Asks the view for its file picker.
    Q_INVOKABLE void LoadFile();
    // The picker's answer: loads the file.
    Q_INVOKABLE void documentPicked(const QUrl &url);
    Q_INVOKABLE void documentPickerWasCancelled() {}
    // Merges the loaded file into the store.
    Q_INVOKABLE void ImportTextFile();

signals:
    void changed();
    void openDocumentPicker();
    // An import has finished (completed or stopped by an error).
    void importFinished();

private:
    void startMerge();
    void importStep();
    void finishImport();
    void failImport(const QString &message);

    // Keeps the store as it was before the import, so that it can be undone.
    BackgroundJob m_snapshotJob;
    std::unique_ptr<ExchangeReader> m_reader;
    QString m_document;
    QString m_importText;
    QString m_filename;
    double m_progress = 0.0;
    bool m_importing = false;
    bool m_importButtonEnabled = false;
    bool m_loadFileButtonEnabled = true;
};
