#include "DeskrigViewModel.h"

#include "Catalog.h"
#include "DesktopServices.h"
#include "MacBackend.h"
#include "ReleaseDownloadPolicy.h"
#include "SupabaseClient.h"
#include "WorkPool.h"

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

/// As much of a text from the cloud as a person can take in.
QString shortened(const QString &text)
{
    constexpr qsizetype longest = DeskrigViewModel::longestCloudMessage;
    if (text.size() <= longest)
        return text;
    const bool splitsCharacter = text.at(longest - 2).isHighSurrogate();
    return text.first(longest - (splitsCharacter ? 2 : 1)) + u'…';
}

} // namespace

void DeskrigViewModel::appendCloudLog(const QString &line)
{
    appendLog(u"Supabase: "_s + shortened(line));
}

QString DeskrigViewModel::updateTitle() const
{
    return m_releasePolicy.value().has_value() ? shortened(m_releasePolicy.value()->title)
                                               : label(ScreenText::updateRequired);
}

QString DeskrigViewModel::updateMessage() const
{
    const std::optional<ReleasePolicy> &policy = m_releasePolicy.value();
    if (policy && !policy->message.isEmpty())
        return shortened(policy->message);
    const QString version = policy ? shortened(policy->offeredVersion()) : QString();
    return version.isEmpty() ? strings().updateRequiredMessage() : strings().updateRequiredMessageWithVersion(version);
}

void DeskrigViewModel::checkReleasePolicy(bool showToast)
{
    // A cloud that is not configured answers at once; the start still comes first.
    publisher()([showToast](DeskrigViewModel &model) {
        model.m_cloud->releasePolicy().then(&model, [&model, showToast](const std::optional<ReleasePolicy> &policy) {
            model.applyReleasePolicy(policy, showToast);
        });
    });
}

void DeskrigViewModel::applyReleasePolicy(const std::optional<ReleasePolicy> &policy, bool showToast)
{
    m_releasePolicy = policy;
    m_updateRequired = policy && policy->updateRequired;
    if (m_updateRequired)
        m_currentAction = strings().updateRequiredStatus();
    appendLog(shortened(releasePolicyLogLine(policy)));
    if (m_updateRequired)
        this->showToast(updateTitle(), ToastMessage::Kind::warning);
    else if (policy && policy->updateAvailable && showToast)
        this->showToast(strings().updateAvailableToast(shortened(policy->offeredVersion())),
                        ToastMessage::Kind::warning);
}

void DeskrigViewModel::openReleaseDownload()
{
    const std::optional<ReleasePolicy> &policy = m_releasePolicy.value();
    const auto url = policy ? ReleaseDownloadPolicy::validatedURL(policy->downloadURL) : std::nullopt;
    if (!url) {
        showToast(strings().updateDownloadUnavailable(), ToastMessage::Kind::warning);
        return;
    }
    const QString address = url->toString(QUrl::FullyEncoded);
    m_pool.start([desktop = m_services.desktop, address] { desktop->open(address); });
    m_currentAction = strings().openingUpdateDownload();
    appendLog(u"Mở link update: "_s + address);
}

/// The waiting line of a cloud action.
void DeskrigViewModel::announceCloudAction(const QString &text)
{
    m_cloudOutput = text;
    m_currentAction = text;
}

/// What follows every cloud action: its message, and where it may have changed what the catalog shows, a fresh look.
void DeskrigViewModel::whenDone(const QFuture<CloudResult> &result, bool changesCatalog)
{
    QFuture<CloudResult>(result).then(this, [this, changesCatalog](const CloudResult &done) {
        if (changesCatalog && done.ok)
            rebuildCatalog();
        finishCloudAction(done);
    });
}

void DeskrigViewModel::rebuildCatalog()
{
    m_catalogItems = SupabaseClient::cachedCatalog(m_services);
    seedStatuses();
    refreshStatuses(false);
}

void DeskrigViewModel::finishCloudAction(const CloudResult &result)
{
    const QString message = shortened(result.message);
    m_cloudOutput = message;
    m_currentAction = result.ok ? strings().cloudActionFinished() : strings().cloudActionFailed();
    appendLog(message);
    showToast(message, result.ok ? ToastMessage::Kind::success : ToastMessage::Kind::warning);
}

void DeskrigViewModel::syncCatalog()
{
    if (!releasePolicyAllowsAction())
        return;
    announceCloudAction(strings().syncingCatalog());
    whenDone(m_cloud->syncCatalog(), true);
}

void DeskrigViewModel::uploadReport()
{
    if (!releasePolicyAllowsAction())
        return;
    announceCloudAction(strings().uploadingReport());
    m_pool.start([backend = m_backend, publish = publisher()] {
        publish([items = backend->installStatusSnapshot()](DeskrigViewModel &model) {
            model.whenDone(model.m_cloud->uploadReport(items));
        });
    });
}

void DeskrigViewModel::businessDeviceConfig(const QString &action, const QString &department, const QString &assetCode)
{
    if (!releasePolicyAllowsAction())
        return;
    m_cloudOutput = label(ScreenText::loadingBusinessConfig);
    whenDone(m_cloud->businessDeviceConfig(action, department, assetCode), true);
}

void DeskrigViewModel::syncTechnicianWorkspace()
{
    if (!releasePolicyAllowsAction())
        return;
    m_cloudOutput = label(ScreenText::syncingWorkspace);
    whenDone(m_cloud->syncTechnicianWorkspace());
}

void DeskrigViewModel::updateTechnicianBranding(const QString &displayName, const std::optional<QString> &logoDataURL)
{
    if (!releasePolicyAllowsAction())
        return;
    m_cloudOutput = label(ScreenText::savingBranding);
    whenDone(m_cloud->updateTechnicianBranding(displayName, logoDataURL));
}

void DeskrigViewModel::saveTechnicianProfile(const QString &name, const QString &itemIDs)
{
    if (!releasePolicyAllowsAction())
        return;
    m_cloudOutput = label(ScreenText::savingProfile);
    QString ids = itemIDs;
    if (ids.trimmed().isEmpty()) {
        QStringList standard;
        for (const AppItem &item : m_catalogItems.value()) {
            if (item.kind != AppKind::blocked && Catalog::isStandard(item))
                standard.append(item.id);
        }
        ids = standard.join(u',');
    }
    whenDone(m_cloud->saveTechnicianProfile(name, ids));
}

} // namespace Tavelo
