#pragma once

#include "reports/reportbuilder.h"
#include "reports/reportpages.h"
#include "shell/screencontroller.h"
#include "store/backgroundjob.h"
#include "store/entities.h"

#include <QAbstractListModel>
#include <QList>

#include <memory>

// The report's pages as a list: one row per page laid out so far, each with the picture
// source of that page. Rows are added while the report is laid out.
class ReportPageModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by PrintVinylViewController")

public:
    enum Roles { PageSourceRole = Qt::UserRole + 1, PageNumberRole };

    using QAbstractListModel::QAbstractListModel;
    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    // A new report (key empty: none); its pages arrive through setPageCount.
    void reset(const QString &reportKey);
    void setPageCount(int count);

private:
    QString m_reportKey;
    int m_pageCount = 0;
};

// The printed report: the whole collection or the records of the group picked, chosen by
// OriginScreen and ordered by SortAscending, shown page by page as it will print, and sent
// to the print dialog. Reading the records, laying the pages out and printing run off the UI
// thread with a progress bar and a Cancel button; the first page shows as soon as it is laid out.
class PrintVinylViewController : public ScreenController
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(bool printButtonVisible READ printButtonVisible NOTIFY reportChanged)
    Q_PROPERTY(int recordCount READ recordCount NOTIFY reportChanged)
    Q_PROPERTY(ReportPageModel *pages READ pages CONSTANT)
    Q_PROPERTY(bool busy READ busy NOTIFY progressChanged)
    Q_PROPERTY(QString progressTitle READ progressTitle NOTIFY progressChanged)
    Q_PROPERTY(QString progressText READ progressText NOTIFY progressChanged)
    Q_PROPERTY(double progress READ progress NOTIFY progressChanged)

public:
    explicit PrintVinylViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);
    ~PrintVinylViewController() override;

    [[nodiscard]] QString title() const;
    [[nodiscard]] bool printButtonVisible() const { return m_printButtonVisible; }
    [[nodiscard]] int recordCount() const { return int(m_vinylList.size()); }
    [[nodiscard]] const QList<Vinyl> &vinylList() const { return m_vinylList; }
    [[nodiscard]] ReportPageModel *pages() { return &m_pages; }
    // The report shown (none before one is built); its pages can be drawn or read from it.
    [[nodiscard]] std::shared_ptr<const PagedReport> report() const { return m_report; }

    [[nodiscard]] bool busy() const { return m_task.running(); }
    [[nodiscard]] QString progressTitle() const { return m_taskTitle; }
    // "12,400 of 32,767" records.
    [[nodiscard]] QString progressText() const { return m_task.progressText(); }
    [[nodiscard]] double progress() const { return m_task.progress(); }

    // Builds the report again from the records fetched.
    Q_INVOKABLE void CreateFileClick();
    // Sends the report to the print dialog, then prints it.
    Q_INVOKABLE void EmailFileClick();
    // Stops laying out or printing.
    Q_INVOKABLE void CancelButtonTapped();

signals:
    void reportChanged();
    void progressChanged();
    // Reading and laying out, or printing, has finished, whether done, cancelled or failed.
    void taskFinished();

protected:
    void viewDidLoad() override;

private:
    // The records a first page holds at most, with room to spare: read first, they show that
    // page while the rest are read.
    static constexpr int kFirstPageRecords = 64;

    void fetch();
    void showFirstPage(const ReportRecords &first);
    // keepFirstPage: the report replaces the one shown from the first records read; pages: where
    // its pages start, when they were laid out while the records were read.
    void buildReport(bool alertWhenEmpty, bool keepFirstPage = false,
                     std::optional<QList<PageStart>> pages = std::nullopt);
    void clearReport();
    void showProgress();
    void taskDone(const Result<void> &result);
    // Stops laying out or printing and waits until the worker has let go.
    void stopTask();

    QList<Vinyl> m_vinylList;
    std::shared_ptr<PagedReport> m_report;
    QString m_reportKey;
    ReportPageModel m_pages;
    BackgroundJob m_task;
    enum class Task { Fetch, Layout, Printing } m_taskKind = Task::Layout;
    QList<CoverSizes> m_coverSizes; // of m_vinylList's records
    // What the fetch on the worker hands back.
    struct Fetched
    {
        ReportRecords read;
        std::optional<QList<PageStart>> pages;
    };
    std::shared_ptr<Fetched> m_fetched;
    QString m_taskTitle;
    bool m_printButtonVisible = true;
};
