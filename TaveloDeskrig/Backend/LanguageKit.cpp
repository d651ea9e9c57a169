#include "LanguageKit.h"

#include "Endpoints.h"
#include "FileManager.h"
#include "MacInventoryClassifier.h"

#include <QCryptographicHash>

#include <algorithm>

namespace Tavelo
{

namespace
{

/// Of the working folder: no other user may change what is about to be checked and packed.
constexpr mode_t privateMode = 0700;

/// Folder `vi` of the LibreOffice dictionaries project at the pinned commit.
QString sourceAddress(const QString &relativePath)
{
    return QStringLiteral("https://") + Endpoints::rawFileHost +
           QStringLiteral("/LibreOffice/dictionaries/38d96a4d54ec3449cf7f28cddae1fce32e2b15a7/vi/") + relativePath;
}

} // namespace

LanguageKit::LanguageKit(PlatformServices services, const AppRuntime &runtime, const CommandRunner &runner,
                         const OperationLog &log, QList<PinnedFile> files)
    : m_services(std::move(services)), m_runtime(runtime), m_runner(runner), m_log(log), m_pinnedFiles(std::move(files))
{
}

bool LanguageKit::libreOfficeVietnameseDictionaryInstalled() const
{
    const QString home = m_runtime.homeDirectory();
    return MacInventoryClassifier::containsVietnameseDictionary(
        {QStringLiteral("/Applications/LibreOffice.app/Contents/Resources/extensions"),
         home + QStringLiteral("/Applications/LibreOffice.app/Contents/Resources/extensions"),
         home + QStringLiteral("/Library/Application Support/LibreOffice/4/user/uno_packages"),
         home + QStringLiteral("/Library/Application Support/LibreOffice/4/user/extensions")},
        *m_services.files);
}

std::optional<QString> LanguageKit::libreOfficeUnopkgPath() const
{
    const QString shared = QStringLiteral("/Applications/LibreOffice.app/Contents/MacOS/unopkg");
    for (const QString &path : {shared, m_runtime.homeDirectory() + shared}) {
        if (m_services.files->isExecutableFile(path))
            return path;
    }
    return std::nullopt;
}

bool LanguageKit::installLibreOfficeVietnameseDictionary() const
{
    if (libreOfficeVietnameseDictionaryInstalled()) {
        m_log.log(QStringLiteral("LibreOffice Vietnamese dictionary đã có sẵn."));
        return true;
    }
    const std::optional<QString> unopkg = libreOfficeUnopkgPath();
    if (!unopkg) {
        m_log.log(QStringLiteral("Không tìm thấy unopkg của LibreOffice để cài Vietnamese dictionary."));
        return false;
    }
    const QString staging = workingFolder() + QStringLiteral("/vi");
    const QString extension = workingFolder() + QStringLiteral("/vietnamese-dictionaries.oxt");
    FileError error;
    if ((!m_services.files->remove(extension, &error) && !error.isNothingThere()) ||
        !m_services.files->createFolder(staging + QStringLiteral("/META-INF"), privateMode, &error)) {
        m_log.log(QStringLiteral("Không chuẩn bị được thư mục Vietnamese dictionary: ") + error.text);
        return false;
    }

    m_log.progress(QStringLiteral("Đang tải Vietnamese dictionary cho LibreOffice"), 0.88);
    if (!std::all_of(m_pinnedFiles.cbegin(), m_pinnedFiles.cend(),
                     [&](const PinnedFile &file) { return fetch(file, staging); }))
        return false;

    m_log.progress(QStringLiteral("Đang đóng gói Vietnamese dictionary OXT"), 0.91);
    if (m_runner.runCommand({QStringLiteral("/usr/bin/zip"), QStringLiteral("-qr"), extension, QStringLiteral(".")},
                            QStringLiteral("zip Vietnamese dictionary OXT"), staging) != 0)
        return false;

    m_log.progress(QStringLiteral("Đang cài Vietnamese dictionary vào LibreOffice"), 0.94);
    if (m_runner.runCommand({*unopkg, QStringLiteral("add"), QStringLiteral("--force"),
                             QStringLiteral("--suppress-license"), extension},
                            QStringLiteral("unopkg add Vietnamese dictionary")) != 0) {
        m_log.log(QStringLiteral("Không cài được Vietnamese dictionary bằng unopkg."));
        return false;
    }
    return libreOfficeVietnameseDictionaryInstalled();
}

bool LanguageKit::fetch(const PinnedFile &file, const QString &staging) const
{
    const QString target = staging + u'/' + file.relativePath;
    const QString address = sourceAddress(file.relativePath);
    m_services.files->createFolder(target.section(u'/', 0, -2), privateMode);
    m_services.files->remove(target); // an earlier attempt's, or a link that would lead the download elsewhere
    if (m_runner.runCommand({QStringLiteral("/usr/bin/curl"), QStringLiteral("-fL"), QStringLiteral("--proto"),
                             QStringLiteral("=https"), QStringLiteral("--proto-redir"), QStringLiteral("=https"),
                             QStringLiteral("--retry"), QStringLiteral("2"), QStringLiteral("--connect-timeout"),
                             QStringLiteral("20"), QStringLiteral("-o"), target, address},
                            QStringLiteral("curl -fL -o %1 %2").arg(file.relativePath, address)) != 0) {
        m_log.log(QStringLiteral("Không tải được LibreOffice Vietnamese dictionary file: ") + file.relativePath);
        return false;
    }
    const std::optional<QByteArray> bytes = m_services.files->contents(target);
    if (!bytes) {
        m_log.log(QStringLiteral("Không đọc được dictionary file vừa tải: ") + file.relativePath);
        return false;
    }
    if (QCryptographicHash::hash(*bytes, QCryptographicHash::Sha256).toHex() != file.sha256) {
        m_log.log(QStringLiteral("SHA-256 không khớp cho LibreOffice dictionary file: ") + file.relativePath);
        m_services.files->remove(workingFolder());
        return false;
    }
    return true;
}

QString LanguageKit::workingFolder() const
{
    return m_runtime.cacheDir() + QStringLiteral("/libreoffice-vi-dictionary");
}

QList<PinnedFile> LanguageKit::vietnameseDictionaryFiles()
{
    return {
        {QStringLiteral("description.xml"), "200e5a9764c92a327d09729b86174b35a54374d8056e42079dbbcaf3dcbede20"},
        {QStringLiteral("dictionaries.xcu"), "8776113693d9792405c3f7f192192c53511f2b1f27d0e2ff3cf5c962f26c7f75"},
        {QStringLiteral("vi_VN.aff"), "b58b31ba3cfbf1c5a3730f2cceb8652604180770020f291d2cf6c6fecc9721f4"},
        {QStringLiteral("vi_VN.dic"), "21d59c8385d2ac8d708bc5dfe83b62753d7769a8b2c9c38d319ce5c57bfba0c7"},
        {QStringLiteral("LICENSES-en.txt"), "d32e4c8faf974bdeb87da10a5951556b33744cf9b50a7f06125074e11f30d7f6"},
        {QStringLiteral("LICENSES-vi.txt"), "e300eee4d3fd59e2886e785b63f6ded6badc7b9c6883cf73e365b59635d6128d"},
        {QStringLiteral("META-INF/manifest.xml"), "323f38618f7e7dcdab2c3a6fc2e0bf800c79359b9df800b29959045b533fd075"},
    };
}

} // namespace Tavelo
