#include "DeskrigViewModel.h"

#include "Bundle.h"
#include "Clock.h"
#include "DesktopServices.h"
#include "FileManager.h"
#include "MacReportPDF.h"
#include "WorkPool.h"

using namespace Qt::StringLiterals;

namespace Tavelo
{

void DeskrigViewModel::revealReport()
{
    m_pool.start([desktop = m_services.desktop, path = reportPath()] { desktop->reveal(path); });
}

void DeskrigViewModel::startReportPDFExport()
{
    if (!m_hasReportSnapshot) {
        showToast(label(ScreenText::scanBeforeExport), ToastMessage::Kind::warning);
        return;
    }
    if (m_reportProfile.value().inspectorName.trimmed().isEmpty() ||
        m_reportProfile.value().subject.trimmed().isEmpty()) {
        showToast(label(ScreenText::fillInProfile), ToastMessage::Kind::warning);
        return;
    }
    m_savePanelShown = false; // one that went without an answer is asked for again
    m_savePanelShown = true;
}

QUrl DeskrigViewModel::savePanelFolder() const
{
    const QString documents = m_runtime.homeDirectory() + u"/Documents"_s;
    return m_services.files->isFolder(documents) ? QUrl::fromLocalFile(m_services.files->root().hostPath(documents))
                                                 : QUrl();
}

void DeskrigViewModel::cancelReportPDFExport()
{
    m_savePanelShown = false;
}

void DeskrigViewModel::exportReportPDF(const QUrl &file)
{
    m_savePanelShown = false;
    if (!file.isLocalFile())
        return;
    saveReportProfile();
    m_currentAction = strings().writingReport();
    const HostRoot root = m_services.files->root();
    const QString path = root.macPath(file.toLocalFile());
    if (root.hostPath(path) != file.toLocalFile()) { // outside the simulated Mac
        finishReportFailure(description(ExportError::cannotCreateDocument));
        return;
    }
    const bool isThisMachine = !root.isSimulated();
    const auto failure =
        MacReportPDF::write({m_reportText, m_reportApplications.records(), m_reportProfile}, path,
                            {.files = *m_services.files,
                             .resourcesDirectory = isThisMachine ? Bundle::ownResourcesFolder() : QString(),
                             .cacheDirectory = m_runtime.cacheDir(),
                             .now = m_services.clock->now()});
    if (failure)
        finishReportFailure(*failure);
    else
        finishPDFExport(path);
}

void DeskrigViewModel::finishPDFExport(const QString &path)
{
    m_isReportRefreshing = false;
    markReportMade();
    saveReportSnapshot(); // what was exported is what the next start shows
    m_pool.start([desktop = m_services.desktop, path] { desktop->open(path); });
    m_currentAction = label(ScreenText::pdfExported);
    showToast(m_currentAction, ToastMessage::Kind::success);
}

} // namespace Tavelo
