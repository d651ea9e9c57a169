#include "DeskrigViewModel.h"

#include "FileManager.h"
#include "ReportEvidence.h"

#include <QLocale>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

/// A date and a time as people who read that language write them. Those of English disagree on whether the day or the
/// month comes first, hence its name.
QString dateText(const QDateTime &date, AppLanguage language)
{
    if (language == AppLanguage::english)
        return QLocale(u"en_GB"_s).toString(date.toLocalTime(), u"d MMM yyyy, HH:mm"_s);
    return QLocale(rawValue(language)).toString(date.toLocalTime(), QLocale::ShortFormat);
}

QString orUnknown(const QString &text)
{
    return text.isEmpty() ? unknownSignatureText.toString() : text;
}

QList<DetailListModel::Detail> detailsOf(const AppItem &item, const AppStrings &strings)
{
    const QString packages = item.packages.join(u", "_s);
    return {
        {strings.text(AppI18nKey::group), strings.groupLabel(item.group)},
        {strings.text(AppI18nKey::macSource), strings.sourceLabel(item)},
        {strings.text(AppI18nKey::packageAction),
         packages.isEmpty() ? rawValue(item.kind) : rawValue(item.kind) + u": "_s + packages},
        {strings.text(AppI18nKey::description), strings.itemDescription(item)},
        {strings.text(AppI18nKey::replacementNote), strings.itemReplacementNote(item)},
    };
}

QString signalLines(const AppLicenseEvidence &evidence)
{
    QStringList lines;
    const QList<LicenseEvidenceSignal> observations = evidence.signals.value_or(QList<LicenseEvidenceSignal>());
    for (const LicenseEvidenceSignal &each : observations)
        lines.append(u"↳ [%1] %2 / %3: %4"_s.arg(rawValue(each.verification), each.source, each.kind, each.detail));
    return orUnknown(lines.join(u'\n'));
}

QList<DetailListModel::Detail> detailsOf(const InstalledMacApplication &application, const AppStrings &strings)
{
    const AppLicenseEvidence evidence = licenseEvidenceOf(application);
    const auto confidence =
        licenseEvidenceConfidence(confidenceWord(evidence)).value_or(LicenseEvidenceConfidence::none);
    return {
        {strings.text(AppI18nKey::version), orUnknown(application.version)},
        {strings.text(ScreenText::source), application.source},
        {strings.auditDeveloperLabel(), application.resolvedDeveloperName()},
        {strings.auditSignatureLabel(), strings.auditSignatureStatusLabel(application.signatureStatus)},
        {strings.text(ScreenText::signingIdentifier), orUnknown(application.signingIdentifier), true},
        {strings.auditLicenseLabel(), strings.auditLicenseEvidenceLabel(evidence.state)},
        {strings.auditLicenseSourceLabel(), evidence.source},
        {strings.auditLicenseDetailLabel(), evidence.detail},
        {strings.auditLicenseConfidenceLabel(), strings.auditLicenseConfidenceValue(confidence)},
        {strings.auditLicenseSignalsLabel(), signalLines(evidence)},
        {strings.text(ScreenText::bundleIdentifier), orUnknown(application.identifier), true},
        {strings.text(ScreenText::teamIdentifier), orUnknown(application.teamIdentifier), true},
    };
}

} // namespace

void DeskrigViewModel::connectScreens()
{
    for (const auto signal :
         {&DeskrigViewModel::selectedGroupIDChanged, &DeskrigViewModel::languageChanged,
          &DeskrigViewModel::installedCountChanged, &DeskrigViewModel::coreReadinessDetailChanged,
          &DeskrigViewModel::coreReadinessLabelChanged, &DeskrigViewModel::coreReadinessLevelChanged,
          &DeskrigViewModel::reportSnapshotDateChanged})
        connect(this, signal, this, &DeskrigViewModel::shellChanged);
    connect(&m_reportApplications, &QAbstractItemModel::modelReset, this, &DeskrigViewModel::shellChanged);
    connect(this, &DeskrigViewModel::isInstallingChanged, this, &DeskrigViewModel::presetsAllowedChanged);
    connect(this, &DeskrigViewModel::updateRequiredChanged, this, &DeskrigViewModel::presetsAllowedChanged);
    connect(this, &DeskrigViewModel::activeSheetChanged, this, &DeskrigViewModel::fillSheet);
}

ShellTexts DeskrigViewModel::shell() const
{
    const AppStrings strings = this->strings();
    const qsizetype installed = installedCount();
    const qsizetype total = m_catalogItems.value().size();
    const qsizetype applications = m_reportApplications.records().size();
    const bool audit = m_selectedGroupID.value() == u"audit";
    const auto labelled = [](const QString &label, const QString &value) { return label + u": "_s + value; };
    return {
        .headerTitle = strings.groupLabel(m_selectedGroupID),
        .headerSummary = strings.summary(installed, total),
        .progressLabel = labelled(label(AppI18nKey::currentProgress), u"%1/%2"_s.arg(installed).arg(total)),
        .summaryTitle = audit ? strings.auditSidebarSummaryTitle() : strings.systemTitle(),
        .summaryDetail = audit ? strings.auditSidebarSummaryDetail(applications) : m_coreReadinessDetail.value(),
        .readiness = audit ? QString() : m_coreReadinessLabel.value(),
        .readinessLevel = levelWord(m_coreReadinessLevel.value()),
        .linuxSource = labelled(label(AppI18nKey::linuxSource), QString::number(total)),
        .version = labelled(label(AppI18nKey::version), m_runtime.appVersion()),
        .hasApplications = applications > 0,
        .auditSummary = strings.auditSummary(applications, auditKeyPresentCount(), auditKeyNotRequiredCount(),
                                             auditKeyNotDetectedCount()),
        .appsCounter = label(ScreenText::appsCounter).arg(applications),
        .taveloCounter = label(ScreenText::taveloCounter).arg(installed),
        .scannedAt = m_reportSnapshotDate.value().isValid()
                         ? label(ScreenText::scannedAt).arg(dateText(m_reportSnapshotDate, m_language))
                         : QString(),
    };
}

QStringList DeskrigViewModel::languageNames() const
{
    QStringList names;
    for (const AppLanguage language : AppLanguages::supported())
        names.append(nativeName(language) + u" — "_s + englishName(language));
    return names;
}

void DeskrigViewModel::chooseLanguage(int index)
{
    if (index >= 0 && index < AppLanguages::supported().size())
        setLanguage(AppLanguages::supported().at(index));
}

QString DeskrigViewModel::removePromptMessage() const
{
    const std::optional<AppItem> &item = m_pendingUninstall.value();
    return item ? strings().removePromptMessage(strings().itemName(*item)) : QString();
}

QUrl DeskrigViewModel::savePanelFile() const
{
    const QUrl documents = savePanelFolder();
    QUrl file = documents.isEmpty() ? QUrl::fromLocalFile(m_services.files->root().hostPath(m_runtime.homeDirectory()))
                                    : documents;
    file.setPath(file.path() + u"/tavelo-deskrig-report.pdf"_s);
    return file;
}

QUrl DeskrigViewModel::savePanelTop() const
{
    return QUrl::fromLocalFile(m_services.files->root().hostPath(u"/"_s));
}

void DeskrigViewModel::openSheet(SheetKind kind)
{
    show(Sheet(kind));
}

void DeskrigViewModel::fillSheet()
{
    const Sheet &sheet = m_activeSheet.value();
    const AppStrings strings = this->strings();
    if (const AppItem *const item = sheet.item()) {
        const InstallStatus status = m_statuses.value().value(item->id, InstallStatus::missing);
        m_sheetHead = {.title = strings.itemName(*item),
                       .subtitle = strings.text(AppI18nKey::linuxSource) + u": "_s + item->linuxName,
                       .symbol = item->symbol,
                       .status = rawValue(status),
                       .statusText = strings.statusText(status)};
        m_sheetDetails.setDetails(detailsOf(*item, strings));
    } else if (const InstalledMacApplication *const application = sheet.application()) {
        m_sheetHead = {.title = application->name};
        m_sheetDetails.setDetails(detailsOf(*application, strings));
    }
    Q_EMIT sheetHeadChanged();
}

std::optional<AppItem> DeskrigViewModel::itemOf(const QString &itemID) const
{
    const QList<AppItem> &items = m_catalogItems.value();
    const auto found =
        std::find_if(items.cbegin(), items.cend(), [&](const AppItem &item) { return item.id == itemID; });
    return found == items.cend() ? std::nullopt : std::optional(*found);
}

void DeskrigViewModel::showItem(const QString &itemID)
{
    if (const auto item = itemOf(itemID))
        show(Sheet::itemDetail(*item));
}

void DeskrigViewModel::showApplication(int row)
{
    if (row >= 0 && row < m_reportApplications.records().size())
        show(Sheet::auditDetail(m_reportApplications.records().at(row)));
}

void DeskrigViewModel::performPrimaryActionOf(const QString &itemID)
{
    if (const auto item = itemOf(itemID))
        performPrimaryAction(*item);
}

void DeskrigViewModel::askToUninstallItem(const QString &itemID)
{
    if (const auto item = itemOf(itemID))
        askToUninstall(*item);
}

void DeskrigViewModel::confirmPendingUninstall()
{
    if (const std::optional<AppItem> item = m_pendingUninstall)
        confirmUninstall(*item);
}

} // namespace Tavelo
