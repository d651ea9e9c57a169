#include "TextReport.h"

#include "AppStrings.h"
#include "InventoryText.h"
#include "ReportEvidence.h"
#include "ReportTexts.h"

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

/// Grows line by line.
class Lines
{
public:
    void operator+=(const QString &line) { m_text += withoutControls(line) + u'\n'; }
    QString text() const { return m_text; }

private:
    QString m_text;
};

void appendHead(Lines &lines, const TextReportFacts &facts, const ReportTexts &texts)
{
    const QString dash = u"—"_s;
    const auto hardware = facts.hardware.value_or(MacInventoryClassifier::MacHardwareProfile{dash, dash, dash, dash});
    lines += u"Tavelo Deskrig macOS Report"_s;
    lines += u"=========================="_s;
    lines += texts.timeLabel + u": "_s + facts.locale.toString(facts.time, u"yyyy-MM-dd HH:mm:ss"_s);
    lines += u"Hostname: "_s + facts.hostname.value_or(u"unknown"_s);
    lines += u"Hardware model: "_s + hardware.machineName;
    lines += u"Model identifier: "_s + hardware.machineModel;
    lines += u"Chip: "_s + hardware.chipType;
    lines += u"Memory: "_s + hardware.physicalMemory;
    lines += u"macOS version: "_s + facts.macOSVersion;
    lines += u"Architecture: "_s + facts.architecture;
    lines += u"Homebrew: "_s + facts.brewPath.value_or(u"not found"_s);
    lines += u"Log file: "_s + facts.logFile;
}

void appendApplication(Lines &lines, const InstalledMacApplication &application)
{
    const AppLicenseEvidence evidence = reportedEvidence(application);
    lines += u"- "_s + application.name + u": "_s + application.version + u" ["_s + application.identifier + u"] ("_s +
             application.source + u") • signature="_s + application.signatureStatus + u" • developer="_s +
             application.resolvedDeveloperName() + u" • team="_s + application.teamIdentifier + u" • signing-id="_s +
             application.signingIdentifier + u" • key-status="_s + keyStatus(evidence.state) +
             u" • license-evidence="_s + rawValue(evidence.state) + u" • license-source="_s + evidence.source +
             u" • confidence="_s + confidenceWord(evidence) + u" • license-detail="_s + evidence.detail;
    const QList<LicenseEvidenceSignal> observations = evidence.signals.value_or(QList<LicenseEvidenceSignal>());
    for (const LicenseEvidenceSignal &each : observations)
        lines += u"  ↳ evidence["_s + each.kind + u"] source="_s + each.source + u" verification="_s +
                 rawValue(each.verification) + u" • "_s + each.detail;
}

QString statusText(InstallStatus status, const ReportTexts &texts)
{
    switch (status) {
    case InstallStatus::installed:
        return texts.installed;
    case InstallStatus::blocked:
        return texts.unsupported;
    case InstallStatus::missing:
    case InstallStatus::working:
    case InstallStatus::failed:
        break;
    }
    return texts.notInstalled;
}

} // namespace

QString textReport(const TextReportFacts &facts, AppLanguage language)
{
    const ReportTexts &texts = reportTexts(language);
    const AppStrings strings(language);
    Lines lines;
    appendHead(lines, facts, texts);

    lines += {};
    lines += texts.systemChecksHeading;
    for (const SystemCheck &check : facts.checks)
        lines += u"- "_s + strings.systemCheckName(check.name) + u": "_s + levelWord(check.level) + u" - "_s +
                 strings.systemCheckDetail(check.name, check.detail);

    lines += {};
    lines += texts.additionalSoftwareHeading;
    for (const InstalledMacApplication &application : facts.applications)
        appendApplication(lines, application);
    if (facts.applications.isEmpty())
        lines += texts.noneLine;

    lines += {};
    lines += texts.catalogHeading;
    for (const auto &[item, status] : facts.catalog)
        lines += u"- "_s + item.macName + u" ["_s + item.id + u"]: "_s + statusText(status, texts);

    lines += {};
    lines += texts.recommendationsHeading;
    lines += texts.recommendation1;
    lines += texts.recommendation2;

    lines += {};
    lines += texts.limitsHeading;
    lines += texts.limits1;
    lines += texts.limits2;
    lines += texts.limits3;
    return lines.text();
}

} // namespace Tavelo
