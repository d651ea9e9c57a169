#pragma once

#include "Texts.h"

#include <QObject>

#include <span>

namespace Tavelo
{

/// A namespace of its own for views, which know an enum by what surrounds it.
inline namespace Screens
{
Q_NAMESPACE

/// What a single screen or message says, beyond the labels that several share.
enum class ScreenText {
    // What the program did or cannot do.
    updateRequired,
    standardPresetName,
    fullPresetName,
    reportWritten,
    reportOpened,
    pdfExported,
    scanBeforeExport,
    fillInProfile,
    loadingBusinessConfig,
    syncingWorkspace,
    savingBranding,
    savingProfile,

    // Inventory.
    report,
    scanMac,
    source,
    signingIdentifier,
    bundleIdentifier,
    teamIdentifier,

    // Report export.
    exportPDF,
    appsCounter,
    taveloCounter,
    taveloCounterNote,
    scanAgain,
    scannedAt,
    inspector,
    reportOwner,
    fullName,
    teamUnit,
    deliveryDetails,
    recipient,
    subject,
    notesTitle,
    notesSubtitle,
    notesNotice,
    softwareTitle,
    softwareSubtitle,
    numberColumn,
    nameColumn,
    noScanTitle,
    noScanDetail,
    scanComputer,
    reportSource,

    // Where the PDF goes.
    fileName,
    enclosingFolder,
    emptyFolder,
    save,
    replace,
    replaceTitle,
    replaceMessage,

    // Cloud tools.
    catalogAndReport,
    uploadReport,
    workspace,
    displayName,
    saveBranding,
    profileName,
    itemIDs,
    saveProfile,
    syncWorkspace,
    device,
    department,
    assetCode,
    fetchConfiguration,
    saveDeviceFields,
};
Q_ENUM_NS(ScreenText)

} // namespace Screens

/// Every text, in the order of the keys. The counters, `scannedAt`, `replaceTitle` and
/// `replaceMessage` hold %1, for the caller to fill.
std::span<const KeyedTexts<ScreenText>> screenTexts();

} // namespace Tavelo
