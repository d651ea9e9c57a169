#pragma once

#include <QObject>
#include <QString>

namespace Tavelo
{

/// Finished texts around the lists of the window, in the language at hand.
struct ShellTexts {
    Q_GADGET
    Q_PROPERTY(QString headerTitle MEMBER headerTitle CONSTANT)
    Q_PROPERTY(QString headerSummary MEMBER headerSummary CONSTANT)
    Q_PROPERTY(QString progressLabel MEMBER progressLabel CONSTANT)
    Q_PROPERTY(QString summaryTitle MEMBER summaryTitle CONSTANT)
    Q_PROPERTY(QString summaryDetail MEMBER summaryDetail CONSTANT)
    Q_PROPERTY(QString readiness MEMBER readiness CONSTANT)
    Q_PROPERTY(QString readinessLevel MEMBER readinessLevel CONSTANT)
    Q_PROPERTY(QString linuxSource MEMBER linuxSource CONSTANT)
    Q_PROPERTY(QString version MEMBER version CONSTANT)
    Q_PROPERTY(bool hasApplications MEMBER hasApplications CONSTANT)
    Q_PROPERTY(QString auditSummary MEMBER auditSummary CONSTANT)
    Q_PROPERTY(QString appsCounter MEMBER appsCounter CONSTANT)
    Q_PROPERTY(QString taveloCounter MEMBER taveloCounter CONSTANT)
    Q_PROPERTY(QString scannedAt MEMBER scannedAt CONSTANT)

public:
    QString headerTitle = {};   ///< The selected group.
    QString headerSummary = {}; ///< How many of all items are installed.
    QString progressLabel = {};
    QString summaryTitle = {}; ///< Of the sidebar's card, on the Mac or on its inventory.
    QString summaryDetail = {};
    QString readiness = {};      ///< In a word, beside the card's title; empty where that is the inventory's.
    QString readinessLevel = {}; ///< Its `levelWord`.
    QString linuxSource = {};    ///< How many items of the Linux set the catalog maps.
    QString version = {};
    bool hasApplications = false; ///< The inventory holds any.
    QString auditSummary = {};
    QString appsCounter = {};
    QString taveloCounter = {};
    QString scannedAt = {}; ///< Empty before the first scan.

    bool operator==(const ShellTexts &) const = default;
};

/// The head of the sheet of one item or one application.
struct SheetHead {
    Q_GADGET
    Q_PROPERTY(QString title MEMBER title CONSTANT)
    Q_PROPERTY(QString subtitle MEMBER subtitle CONSTANT)
    Q_PROPERTY(QString symbol MEMBER symbol CONSTANT)
    Q_PROPERTY(QString status MEMBER status CONSTANT)
    Q_PROPERTY(QString statusText MEMBER statusText CONSTANT)

public:
    QString title = {};
    QString subtitle = {};
    QString symbol = {}; ///< System symbol name; of an item only, as is what follows.
    QString status = {}; ///< The raw value of `InstallStatus`.
    QString statusText = {};

    bool operator==(const SheetHead &) const = default;
};

} // namespace Tavelo
