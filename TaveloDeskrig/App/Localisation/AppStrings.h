#pragma once

#include "AppI18nKey.h"
#include "AppItem.h"
#include "AppLanguage.h"
#include "AppLicenseEvidence.h"
#include "ScreenTexts.h"

#include <QObject>
#include <QString>
#include <QStringList>

namespace Tavelo
{

/// All that the interface says, in one language. A small value; views and the report writer get one and ask it for each
/// text by name. Numbers stand in a fixed plural. Names that are spliced in (of items, presets, versions) come from the
/// caller as they are to be shown.
class AppStrings
{
    Q_GADGET

public:
    explicit AppStrings(AppLanguage language = AppLanguage::english) : m_language(language) {}

    AppLanguage language() const { return m_language; }
    bool operator==(const AppStrings &) const = default;

    /// A short label.
    Q_INVOKABLE QString text(Tavelo::AppI18nKey key) const;
    /// What one screen says.
    QString text(ScreenText text) const;
    /// The same for views, where the two enums look alike.
    Q_INVOKABLE QString screenText(Tavelo::ScreenText key) const { return text(key); }

    // Settings and the state of the Mac.

    Q_INVOKABLE QString settingsSubtitle() const;
    Q_INVOKABLE QString languageSettingDetail() const;
    /// Title of the card that tells whether the Mac is ready.
    QString systemTitle() const;
    QString systemReadyDetail() const;
    /// `checkNames` are names as the backend gives them; they are shown as `systemCheckName` has them.
    QString setupNeeded(const QStringList &checkNames) const;

    // Readiness checks. The backend names them in its own fixed words and details them in Vietnamese. What is not
    // recognised comes back as it came.

    Q_INVOKABLE QString systemChecksDescription() const;
    QString systemCheckName(const QString &name) const;
    QString systemCheckDetail(const QString &name, const QString &detail) const;

    // Catalog.

    /// The label of the group with that id, also of "all"; the id itself for any other.
    QString groupLabel(const QString &groupID) const;
    QString itemName(const AppItem &item) const;
    QString itemDescription(const AppItem &item) const;
    QString itemReplacementNote(const AppItem &item) const;
    /// Where the item comes from on this Mac.
    QString sourceLabel(const AppItem &item) const;
    QString packageSummary(const QStringList &packages) const;
    QString summary(qsizetype installed, qsizetype total) const;
    /// `progressText` ("45%") is shown for an item at work only; empty where there is none.
    QString statusText(InstallStatus status, const QString &progressText = {}) const;
    /// What the item's main button does in that state.
    QString primaryActionLabel(InstallStatus status, const AppItem &item) const;
    QString removePromptMessage(const QString &itemName) const;
    QString itemUnsupportedToast() const;

    // Operations. `name` is that of an item or of a preset.

    QString checkingInstalledStatus() const;
    QString statusRefreshed() const;
    QString operationSummary(qsizetype done, qsizetype total) const;
    QString processing(const QString &name) const;
    QString preparingInstall(const QString &name) const;
    QString installing(const QString &name) const;
    QString finished(const QString &name) const;
    QString failedToProcess(const QString &name) const;
    QString failedItem(const QString &name) const;
    QString processed(const QString &name) const;
    /// Stands for a failed item of a preset too.
    QString processedItem(const QString &name) const;
    QString removing(const QString &name) const;
    QString preparingRemove(const QString &name) const;
    QString removed(const QString &name) const;
    QString failedToRemove(const QString &name) const;
    QString removeFailed(const QString &name) const;
    QString opening(const QString &name) const;
    QString opened(const QString &name) const;
    QString couldNotOpen(const QString &name) const;
    QString preparingPreset(const QString &name) const;
    QString installingPreset(const QString &name, qsizetype count) const;
    QString finishedPreset(const QString &name) const;
    QString finishedPresetSummary(const QString &name, qsizetype success, qsizetype failed) const;
    QString presetFailures(qsizetype failed) const;

    // Small actions.

    QString copiedLogPath() const;
    QString copiedReportPath() const;
    QString openedHomebrewGuide() const;
    QString copiedHomebrewInstallCommand() const; ///< Status line.
    QString copiedHomebrewCommand() const;        ///< Toast.

    // Inventory.

    Q_INVOKABLE QString auditSubtitle() const;
    QString auditPreparing() const;
    /// `percent` is a whole number from 0 to 100.
    QString auditScanProgress(qsizetype completed, qsizetype total, int percent) const;
    QString auditUpdatingCatalog(qsizetype itemCount) const;
    QString auditComplete(qsizetype itemCount) const;
    /// The three counts of applications by key. They make up the total, which is not shown.
    QString auditSummary(qsizetype total, qsizetype keyPresent, qsizetype keyNotRequired,
                         qsizetype keyNotDetected) const;
    Q_INVOKABLE QString auditNoDataTitle() const;
    Q_INVOKABLE QString auditNoDataDetail() const;
    QString auditSidebarSummaryTitle() const;
    QString auditSidebarSummaryDetail(qsizetype recordCount) const;
    Q_INVOKABLE QString auditDeveloperLabel() const;
    Q_INVOKABLE QString auditSignatureLabel() const;
    /// `status` is one of `SignatureStatus`; any other counts as not applicable.
    QString auditSignatureStatusLabel(const QString &status) const;
    Q_INVOKABLE QString auditLicenseLabel() const;
    QString auditLicenseEvidenceLabel(AppLicenseEvidenceState state) const;
    QString auditLicenseSourceLabel() const;
    QString auditLicenseDetailLabel() const;
    QString auditLicenseConfidenceLabel() const;
    QString auditLicenseConfidenceValue(LicenseEvidenceConfidence confidence) const;
    QString auditLicenseSignalsLabel() const;
    Q_INVOKABLE QString auditEvidenceNotice() const; ///< What a signature proves, and what it does not.
    Q_INVOKABLE QString auditLicenseNotice() const;  ///< What licence evidence proves, and what it does not.

    // Report.

    Q_INVOKABLE QString reportTitle() const;
    Q_INVOKABLE QString reportDescription() const;
    QString writingReport() const;

    // Updates and the cloud.

    QString updateRequiredMessage() const;
    QString updateRequiredMessageWithVersion(const QString &version) const;
    QString updateRequiredStatus() const;
    QString updateRequiredToast() const;
    /// An empty version reads as the latest one.
    QString updateAvailableToast(const QString &version) const;
    QString openingUpdateDownload() const;
    QString updateDownloadUnavailable() const;
    QString syncingCatalog() const;
    QString uploadingReport() const;
    QString cloudActionFinished() const;
    QString cloudActionFailed() const;

private:
    QString in(const Texts &texts) const { return texts.in(m_language); }

    AppLanguage m_language;
};

} // namespace Tavelo
