#pragma once

#include <QString>
#include <QTemporaryDir>

#include <memory>

class AppDelegate;
class BenchReport;
class Store;

// A generated collection in its own temporary data folder: 20 tracks and two covers a record.
class BenchCollection
{
public:
    static std::unique_ptr<BenchCollection> make(int records);

    [[nodiscard]] int records() const { return m_records; }
    [[nodiscard]] QString dataDir() const { return m_dir.path(); }
    [[nodiscard]] AppDelegate &app() { return *m_app; }
    [[nodiscard]] Store &store();
    [[nodiscard]] bool isOpen() const { return m_app != nullptr; }
    bool open();
    void close();

private:
    explicit BenchCollection(int records) : m_records(records) {}

    int m_records;
    QTemporaryDir m_dir;
    std::unique_ptr<AppDelegate> m_app;
};

// Times every operation on the collection and adds the lines to the report.
void measureAll(BenchReport &report, BenchCollection &collection);

// Opens the store in dataDir and loads every list screen, as a collector browsing would.
bool openEveryScreen(const QString &dataDir);

// The complete printed report with covers of the collection in dataDir, written as
// `platterbox report --pdf` writes it; prints "<ms> <peak resident MB>" for the parent.
int runCompleteReport(const QString &dataDir);

// Imports crafted exchange files (odd line ends, millions of short lines, one huge line), each
// in a process of its own, with its time and peak resident memory. `folder` holds them a while.
void measureCraftedFiles(BenchReport &report, const QString &folder);

// Imports the exchange file into an empty store, after previewing it when asked, as the import
// screen does; prints "<ms> <peak resident MB>".
int runImport(const QString &file, bool previewFirst);
