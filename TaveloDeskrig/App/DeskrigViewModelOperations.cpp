#include "DeskrigViewModel.h"

#include "Catalog.h"
#include "Clock.h"
#include "DesktopServices.h"
#include "Endpoints.h"
#include "MacBackend.h"
#include "ProgressArithmetic.h"
#include "SystemFacts.h"
#include "WorkPool.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace Tavelo
{

namespace
{

/// What the log calls the way in which an item reaches the Mac.
QString logLabel(AppKind kind)
{
    switch (kind) {
    case AppKind::direct:
        return u"Official DMG"_s;
    case AppKind::formula:
        return u"Homebrew"_s;
    case AppKind::cask:
        return u"Cask"_s;
    case AppKind::bundle:
        return u"Bundle"_s;
    case AppKind::shortcut:
        return u"Shortcut"_s;
    case AppKind::builtin:
        return u"macOS"_s;
    case AppKind::mime:
        return u"Default app"_s;
    case AppKind::blocked:
        break;
    }
    return u"Không hỗ trợ"_s;
}

/// Installs the item and looks how it stands then.
InstallStatus installed(const MacBackend &backend, const AppItem &item)
{
    return backend.install(item) ? backend.status(item) : InstallStatus::failed;
}

} // namespace

bool DeskrigViewModel::releasePolicyAllowsAction()
{
    if (!m_updateRequired)
        return true;
    m_currentAction = strings().updateRequiredStatus();
    m_cloudOutput = updateMessage();
    showToast(strings().updateRequiredToast(), ToastMessage::Kind::warning);
    return false;
}

void DeskrigViewModel::showToast(const QString &text, ToastMessage::Kind kind)
{
    const ToastMessage message{QUuid::createUuid(), text, kind};
    m_toast = message;
    m_services.clock->callLater(toastDuration, this, [this, id = message.id] {
        if (m_toast.value().id == id)
            m_toast = ToastMessage();
    });
}

void DeskrigViewModel::performPrimaryAction(const AppItem &item)
{
    const InstallStatus status = m_statuses.value().value(item.id, InstallStatus::missing);
    if (item.kind == AppKind::blocked || status == InstallStatus::blocked) {
        m_activeSheet = Sheet::itemDetail(item);
        showToast(strings().itemUnsupportedToast(), ToastMessage::Kind::warning);
        return;
    }
    if (!releasePolicyAllowsAction())
        return;
    switch (status) {
    case InstallStatus::missing:
    case InstallStatus::failed:
        install(item);
        break;
    case InstallStatus::installed:
        if (item.canBeOpened())
            open(item);
        else
            m_activeSheet = Sheet::itemDetail(item);
        break;
    case InstallStatus::working:
    case InstallStatus::blocked:
        break;
    }
}

void DeskrigViewModel::install(const AppItem &item)
{
    change(item, ItemChange::install);
}

void DeskrigViewModel::askToUninstall(const AppItem &item)
{
    if (releasePolicyAllowsAction())
        m_pendingUninstall = item;
}

void DeskrigViewModel::cancelUninstall()
{
    m_pendingUninstall = std::nullopt;
}

void DeskrigViewModel::confirmUninstall(const AppItem &item)
{
    m_pendingUninstall = std::nullopt;
    change(item, ItemChange::remove);
}

void DeskrigViewModel::change(const AppItem &item, ItemChange change)
{
    if (!releasePolicyAllowsAction() || m_isInstalling)
        return;
    m_isInstalling = true;
    setStatus(item.id, InstallStatus::working);
    const bool installs = change == ItemChange::install;
    const QString name = strings().itemName(item);
    m_currentAction = installs ? strings().processing(name) : strings().removing(name);
    beginOperation(1, item.id, installs ? strings().preparingInstall(name) : strings().preparingRemove(name));
    const QString line = installs ? u"Bắt đầu xử lý %1 -> %2 [%3]."_s : u"Bắt đầu gỡ bỏ %1 -> %2 [%3]."_s;
    appendLog(line.arg(item.id, item.macName, logLabel(item.kind)));
    m_pool.start([backend = m_backend, publish = publisher(), item, change, installs] {
        const bool ok = installs ? backend->install(item) : backend->uninstall(item);
        const InstallStatus finalStatus = ok ? backend->status(item) : InstallStatus::failed;
        publish([=](DeskrigViewModel &model) { model.finishInstall(item, change, ok, finalStatus); });
    });
}

void DeskrigViewModel::finishInstall(const AppItem &item, ItemChange change, bool ok, InstallStatus finalStatus)
{
    setStatus(item.id, finalStatus);
    m_isInstalling = false;
    const AppStrings words = strings();
    const QString name = words.itemName(item);
    QString toast;
    if (change == ItemChange::install) {
        m_currentAction = ok ? words.finished(name) : words.failedToProcess(name);
        toast = ok ? words.processed(name) : words.failedItem(name);
    } else {
        m_currentAction = ok ? words.removed(name) : words.failedToRemove(name);
        toast = ok ? words.removed(name) : words.removeFailed(name);
    }
    completeOperation(m_currentAction);
    updateProgress();
    showToast(toast, ok ? ToastMessage::Kind::success : ToastMessage::Kind::failure);
}

void DeskrigViewModel::open(const AppItem &item)
{
    if (m_isInstalling)
        return;
    m_currentAction = strings().opening(strings().itemName(item));
    appendLog(u"Mở %1 -> %2."_s.arg(item.id, item.macName));
    m_pool.start([backend = m_backend, publish = publisher(), item] {
        publish([item, ok = backend->open(item)](DeskrigViewModel &model) { model.finishOpenItem(item, ok); });
    });
}

void DeskrigViewModel::finishOpenItem(const AppItem &item, bool ok)
{
    const QString name = strings().itemName(item);
    m_currentAction = ok ? strings().opened(name) : strings().couldNotOpen(name);
    showToast(m_currentAction, ok ? ToastMessage::Kind::success : ToastMessage::Kind::warning);
}

void DeskrigViewModel::installStandard()
{
    if (releasePolicyAllowsAction())
        startPreset(label(ScreenText::standardPresetName), presetItems(true));
}

void DeskrigViewModel::installFull()
{
    if (releasePolicyAllowsAction())
        startPreset(label(ScreenText::fullPresetName), presetItems(false));
}

QList<AppItem> DeskrigViewModel::presetItems(bool standardOnly) const
{
    const int major = m_services.facts->osVersion().major;
    QList<AppItem> items = m_catalogItems;
    items.removeIf([&](const AppItem &item) {
        return item.kind == AppKind::blocked || item.minimumMacOSMajor.value_or(major) > major ||
               (standardOnly && !Catalog::isStandard(item));
    });
    return Catalog::uniqueInstallItems(items);
}

void DeskrigViewModel::startPreset(const QString &name, const QList<AppItem> &items)
{
    if (!releasePolicyAllowsAction() || m_isInstalling)
        return;
    m_isInstalling = true;
    m_currentAction = strings().installingPreset(name, items.size());
    beginOperation(items.size(), {}, strings().preparingPreset(name));
    QStringList ids;
    for (const AppItem &item : items)
        ids.append(item.id);
    appendLog(u"Preset %1: %2."_s.arg(name, ids.join(u", "_s)));
    m_pool.start([backend = m_backend, publish = publisher(), catalog = m_catalogItems.value(), name, items] {
        const qsizetype total = items.size();
        qsizetype failed = 0;
        for (qsizetype index = 0; index < total; ++index) {
            const AppItem &item = items.at(index);
            publish([=](DeskrigViewModel &model) { model.markPresetItemWorking(item, index, total); });
            const InstallStatus status = installed(*backend, item);
            failed += status == InstallStatus::failed ? 1 : 0;
            publish([=](DeskrigViewModel &model) { model.markPresetItemDone(item, index, total, status); });
        }
        publish([name, refreshed = backend->statuses(catalog), success = total - failed,
                 failed](DeskrigViewModel &model) { model.finishPreset(name, refreshed, success, failed); });
    });
}

void DeskrigViewModel::markPresetItemWorking(const AppItem &item, qsizetype index, qsizetype total)
{
    m_operationCompletedItems = index;
    setActiveItem(item.id, 0);
    setStatus(item.id, InstallStatus::working);
    setOperationProgress(total == 0 ? 1 : ProgressArithmetic::share(index, total));
    setOperationSummary(index, total);
    m_currentAction = strings().installing(strings().itemName(item));
}

void DeskrigViewModel::markPresetItemDone(const AppItem &item, qsizetype index, qsizetype total, InstallStatus status)
{
    m_operationCompletedItems = index + 1;
    setActiveItemProgress(1);
    setStatus(item.id, status);
    setOperationProgress(ProgressArithmetic::share(index + 1, total));
    setOperationSummary(index + 1, total);
    m_currentAction = strings().processedItem(strings().itemName(item)); // of a failed item too: the run goes on
    updateProgress();
}

void DeskrigViewModel::finishPreset(const QString &name, const Statuses &refreshed, qsizetype success, qsizetype failed)
{
    // What failed in this session stays marked, though a fresh look finds it merely missing.
    Statuses merged = refreshed;
    for (const auto &[id, status] : m_statuses.value().asKeyValueRange()) {
        if (status == InstallStatus::failed)
            merged.insert(id, status);
    }
    m_statuses = merged;
    m_isInstalling = false;
    m_currentAction = strings().finishedPresetSummary(name, success, failed);
    completeOperation(m_currentAction);
    updateProgress();
    if (failed > 0)
        showToast(strings().presetFailures(failed), ToastMessage::Kind::warning);
    else
        showToast(strings().finishedPreset(name), ToastMessage::Kind::success);
}

void DeskrigViewModel::beginOperation(qsizetype total, const QString &activeItemID, const QString &message)
{
    m_operationTotalItems = std::max<qsizetype>(total, 1);
    m_operationCompletedItems = 0;
    m_operationDisplayToken = QUuid::createUuid();
    setActiveItem(activeItemID, 0);
    m_showOperationProgress = true;
    m_showLogDrawer = true;
    setOperationProgress(0);
    setOperationSummary(0, m_operationTotalItems);
    m_currentAction = message;
}

void DeskrigViewModel::completeOperation(const QString &message)
{
    m_operationCompletedItems = m_operationTotalItems;
    setActiveItemProgress(1);
    setOperationProgress(1);
    setOperationSummary(m_operationTotalItems, m_operationTotalItems);
    m_currentAction = message;
    m_services.clock->callLater(bannerDuration, this, [this, token = m_operationDisplayToken] {
        if (token != m_operationDisplayToken || m_isInstalling)
            return;
        m_showOperationProgress = false;
        setActiveItem({}, m_activeItemProgress);
    });
}

void DeskrigViewModel::setOperationProgress(double share)
{
    m_operationProgress = ProgressArithmetic::clamp(share);
    m_operationProgressText = ProgressArithmetic::percentText(share);
}

void DeskrigViewModel::setOperationSummary(qsizetype done, qsizetype total)
{
    m_operationSummaryText = strings().operationSummary(done, total);
}

void DeskrigViewModel::setActiveItem(const QString &itemID, double share)
{
    m_activeItemID = itemID;
    m_activeItemProgress = ProgressArithmetic::clamp(share);
    m_activeItemProgressText = ProgressArithmetic::percentText(share);
    m_filteredItems.setActiveItem({m_activeItemID, m_activeItemProgress, m_activeItemProgressText});
}

void DeskrigViewModel::setActiveItemProgress(double share)
{
    setActiveItem(m_activeItemID, share);
}

void DeskrigViewModel::applyBackendProgress(const InstallProgressUpdate &update)
{
    if (!m_isInstalling)
        return;
    m_showOperationProgress = true;
    m_showLogDrawer = true;
    m_currentAction = update.message;
    if (update.fraction) {
        setActiveItemProgress(*update.fraction);
        setOperationProgress(
            ProgressArithmetic::operationShare(*update.fraction, m_operationCompletedItems, m_operationTotalItems));
    }
    setOperationSummary(m_operationCompletedItems, m_operationTotalItems);
}

void DeskrigViewModel::copyLogPath()
{
    m_services.desktop->copy(logPath());
    showToast(strings().copiedLogPath(), ToastMessage::Kind::success);
}

void DeskrigViewModel::copyReportPath()
{
    m_services.desktop->copy(reportPath());
    showToast(strings().copiedReportPath(), ToastMessage::Kind::success);
}

void DeskrigViewModel::openHomebrewGuide()
{
    m_pool.start([desktop = m_services.desktop] { desktop->open(Endpoints::homebrewSiteURL); });
    m_currentAction = strings().openedHomebrewGuide();
    appendLog(u"Mở hướng dẫn Homebrew: %1"_s.arg(Endpoints::homebrewSiteURL));
}

void DeskrigViewModel::copyHomebrewInstallCommand()
{
    m_services.desktop->copy(Endpoints::homebrewInstallCommand);
    m_currentAction = strings().copiedHomebrewInstallCommand();
    appendLog(u"Đã copy lệnh cài Homebrew vào clipboard."_s);
    showToast(strings().copiedHomebrewCommand(), ToastMessage::Kind::success);
}

} // namespace Tavelo
