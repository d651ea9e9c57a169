#pragma once

#include "Texts.h"

#include <QObject>

#include <span>

namespace Tavelo
{

/// A namespace of its own for views, which know an enum by what surrounds it.
inline namespace Labels
{
Q_NAMESPACE

/// The short labels of the interface, which need no argument.
enum class AppI18nKey {
    appSubtitle,
    settings,
    language,
    overview,
    installStandard,
    installFull,
    systemCheck,
    openReport,
    version,
    refresh,
    copyLogPathHelp,
    currentProgress,
    footerStatus,
    log,
    linuxSource,
    hideLog,
    showLog,
    removeHelp,
    detailHelp,
    close,
    cancel,
    remove,
    removePromptTitle,
    checkingPrerequisites,
    openBrew,
    copyBrewCommand,
    syncCatalog,
    uploadReport,
    group,
    macSource,
    packageAction,
    description,
    replacementNote,
    readyAction,
    checkingCore,
    noDeviceData,
    groupOffice,
    groupMicrosoft,
    groupPrinter,
    groupMeeting,
    groupMedia,
    cloudTools,
    macInventory,
    downloadUpdate,
};
Q_ENUM_NS(AppI18nKey)

} // namespace Labels

/// Every label, in the order of the keys.
std::span<const KeyedTexts<AppI18nKey>> appI18n();

} // namespace Tavelo
