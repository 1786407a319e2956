#include "printvinylviewcontroller.h"

#include "appdelegate.h"
#include "logging.h"
#include "platformservices.h"
#include "reportbuilder.h"
#include "reporttexts.h"

#include <QQuickTextDocument>

PrintVinylViewController::PrintVinylViewController(AppDelegate *app, QObject *parent) : ScreenController(app, parent)
{
    loadIfReady();
}

PrintVinylViewController::~PrintVinylViewController() = default;

QString PrintVinylViewController::title() const
{
    return ReportTexts::kReportTitle;
}

QTextDocument &PrintVinylViewController::fileText()
{
    if (m_view && m_view->textDocument())
        return *m_view->textDocument();
    return m_document;
}

void PrintVinylViewController::viewDidLoad()
{
    m_covers = std::make_unique<CoverPictures>(app()->persistentContainer(), ReportBuilder::kViewWidth / 6);
    fetch();
}

void PrintVinylViewController::setFileTextView(QQuickTextDocument *document)
{
    m_view = document;
    if (!m_vinylList.isEmpty())
        buildReport(false);
}

void PrintVinylViewController::fetch()
{
    m_vinylList.clear();
    fileText().clear();
    const AppState &state = *app()->state();
    if (!ReportBuilder::reportRequest(state.originScreen(), state.currentRecord(), state.sortAscending())) {
        // Another origin selects nothing: the list stays empty until the rebuild button reports it.
        m_printButtonVisible = false;
        emit reportChanged();
        return;
    }
    auto fetched = ReportBuilder::fetchReport(app()->persistentContainer(), state.originScreen(), state.currentRecord(),
                                              state.sortAscending());
    if (fetched)
        m_vinylList = std::move(fetched).value();
    else
        consoleLine(fetched.errorMessage());
    buildReport(true);
}

void PrintVinylViewController::buildReport(bool alertWhenEmpty)
{
    if (!app() || !m_covers)
        return;
    if (m_vinylList.isEmpty()) {
        m_printButtonVisible = false;
        fileText().clear();
        emit reportChanged();
        if (alertWhenEmpty)
            showAlert(ReportTexts::kEmptyTitle, ReportTexts::kEmptyMessage);
        return;
    }
    auto built = ReportBuilder::buildReport(fileText(), app()->state()->originScreen(), m_vinylList, *m_covers);
    emit reportChanged();
    if (!built)
        showAlert(ReportTexts::kNotBuiltTitle, built.errorMessage());
}

void PrintVinylViewController::CreateFileClick()
{
    buildReport(true);
}

void PrintVinylViewController::EmailFileClick()
{
    if (!app() || m_vinylList.isEmpty())
        return;
    const bool printed = app()->platform().print(fileText(), ReportTexts::kPrintJob);
    consoleLine(printed ? ReportTexts::kPrinted : ReportTexts::kPrintCancelled);
}
