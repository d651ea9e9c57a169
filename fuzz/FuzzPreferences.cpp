#include "FileManager.h"
#include "MacLicenseEvidenceCollector.h"

namespace
{

/// A Mac on which every file, and no folder, holds the bytes.
class OneFile : public Tavelo::FileManager
{
public:
    QByteArray bytes;

    bool exists(const QString &path) const override { return path.endsWith(u".plist") || path.endsWith(u".json"); }
    bool isReadable(const QString &) const override { return true; }
    bool isFolder(const QString &) const override { return false; }
    std::optional<QByteArray> contents(const QString &, Tavelo::FileError *) const override { return bytes; }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    static OneFile files;
    files.bytes = QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const QString name = QStringLiteral("Parallels");
    const QString identifier = QStringLiteral("com.parallels.example");
    Tavelo::MacLicenseEvidenceCollector::preferenceSignals(name, identifier, files, QStringLiteral("/Users/x"));
    Tavelo::MacLicenseEvidenceCollector::vendorSignals(name, identifier, files, QStringLiteral("/Users/x"),
                                                       QStringLiteral("/Library"));
    return 0;
}
