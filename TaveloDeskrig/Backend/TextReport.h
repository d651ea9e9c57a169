#pragma once

#include "AppItem.h"
#include "AppLanguage.h"
#include "InstalledMacApplication.h"
#include "MacInventoryClassifier.h"
#include "SystemChecks.h"

#include <QDateTime>
#include <QList>
#include <QLocale>
#include <QString>

#include <optional>

namespace Tavelo
{

/// All that the text report of one Mac tells.
struct TextReportFacts {
    struct CatalogStatus {
        AppItem item;
        InstallStatus status = InstallStatus::missing;
    };

    QDateTime time;
    QLocale locale = QLocale::c();   ///< For the digits of the time.
    std::optional<QString> hostname; ///< Nothing reads "unknown".
    /// Nothing reads as an em dash in all four lines.
    std::optional<MacInventoryClassifier::MacHardwareProfile> hardware;
    QString macOSVersion;
    QString architecture;
    std::optional<QString> brewPath; ///< Nothing reads "not found".
    QString logFile;
    QList<SystemCheck> checks;
    QList<InstalledMacApplication> applications;
    QList<CatalogStatus> catalog;
};

/// The report: a fixed skeleton of lines, each of which ends in a line feed. The PDF reads the English labels of its
/// head and the headings of `ReportTexts` back, so they are a contract. No fact can break a line: control characters
/// and line separators in it read as a blank.
QString textReport(const TextReportFacts &facts, AppLanguage language);

} // namespace Tavelo
