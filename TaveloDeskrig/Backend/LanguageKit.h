#pragma once

#include "AppRuntime.h"
#include "CommandRunner.h"
#include "OperationLog.h"
#include "PlatformServices.h"

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

namespace Tavelo
{

/// A file of the dictionary extension as it must arrive.
struct PinnedFile {
    QString relativePath;
    QByteArray sha256; ///< Lower-case hexadecimal.
};

/// The Vietnamese spelling dictionary of LibreOffice, which no cask brings: fetched file by file from one pinned commit
/// of the LibreOffice dictionaries project, checked against pinned hashes, packed, and installed with LibreOffice's
/// `unopkg`.
class LanguageKit
{
public:
    /// `runner` and `log` must outlive it. `files` is what makes the extension, in the order of download.
    LanguageKit(PlatformServices services, const AppRuntime &runtime, const CommandRunner &runner,
                const OperationLog &log, QList<PinnedFile> files = vietnameseDictionaryFiles());

    /// True when a Vietnamese dictionary lies in LibreOffice's own extensions or in the user's.
    bool libreOfficeVietnameseDictionaryInstalled() const;

    /// The `unopkg` of the LibreOffice in `/Applications`, else of the user's own; nothing if neither can be executed.
    std::optional<QString> libreOfficeUnopkgPath() const;

    /// Installs the dictionary unless one is there, of whatever version. True only if it can be found afterwards. After
    /// a wrong hash nothing of the working folder remains; after any other failure what was fetched stays for a look
    /// and is fetched again at the next attempt.
    bool installLibreOfficeVietnameseDictionary() const;

    /// The seven files of the pinned commit.
    static QList<PinnedFile> vietnameseDictionaryFiles();

private:
    bool fetch(const PinnedFile &file, const QString &staging) const;
    QString workingFolder() const;

    PlatformServices m_services;
    AppRuntime m_runtime;
    const CommandRunner &m_runner;
    const OperationLog &m_log;
    QList<PinnedFile> m_pinnedFiles;
};

} // namespace Tavelo
