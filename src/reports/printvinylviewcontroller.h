#pragma once

#include "coverpictures.h"
#include "entities.h"
#include "screencontroller.h"

#include <QList>
#include <QPointer>
#include <QTextDocument>

#include <memory>

#include <QQuickTextDocument>

// The printed report: the whole collection or the records of the group picked, chosen by
// OriginScreen and ordered by SortAscending, shown as rich text and sent to the print dialog.
class PrintVinylViewController : public ScreenController
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(QString title READ title CONSTANT)
    Q_PROPERTY(bool printButtonVisible READ printButtonVisible NOTIFY reportChanged)
    Q_PROPERTY(int recordCount READ recordCount NOTIFY reportChanged)

public:
    explicit PrintVinylViewController(AppDelegate *app = nullptr, QObject *parent = nullptr);
    ~PrintVinylViewController() override;

    [[nodiscard]] QString title() const;
    [[nodiscard]] bool printButtonVisible() const { return m_printButtonVisible; }
    [[nodiscard]] int recordCount() const { return int(m_vinylList.size()); }
    [[nodiscard]] const QList<Vinyl> &vinylList() const { return m_vinylList; }
    // The report as shown (FileTextView's document once the view has handed it over).
    [[nodiscard]] QTextDocument &fileText();

    // The view hands over its text area's document, which then holds the report.
    Q_INVOKABLE void setFileTextView(QQuickTextDocument *document);
    // Rebuilds the report from the records fetched.
    Q_INVOKABLE void CreateFileClick();
    // Sends the report to the print dialog.
    Q_INVOKABLE void EmailFileClick();

signals:
    void reportChanged();

protected:
    void viewDidLoad() override;

private:
    void fetch();
    void buildReport(bool alertWhenEmpty);

    QList<Vinyl> m_vinylList;
    QTextDocument m_document;
    QPointer<QQuickTextDocument> m_view;
    std::unique_ptr<CoverPictures> m_covers;
    bool m_printButtonVisible = true;
};
