#include "CloudCache.h"
#include "SupabaseClient.h"
#include "SystemFacts.h"

#include <QCoreApplication>

namespace
{

/// A Mac on which every file holds the bytes and takes whatever is written to it.
class OneFile : public Tavelo::FileManager
{
public:
    mutable QByteArray bytes;

    qint64 size(const QString &) const override { return bytes.size(); }
    std::optional<QByteArray> contents(const QString &, Tavelo::FileError *) const override { return bytes; }
    bool createFolder(const QString &, mode_t, Tavelo::FileError *) const override { return true; }
    bool writeAtomically(const QString &, const QByteArray &written, mode_t, Tavelo::FileError *) const override
    {
        bytes = written;
        return true;
    }
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    using namespace Tavelo;
    static char name[] = "FuzzCloudFile";
    static char *arguments[] = {name, nullptr};
    static int count = 1;
    static const QCoreApplication application(count, arguments); // for the program's own bundle
    static const auto files = std::make_shared<OneFile>();
    static PlatformServices services = [] {
        PlatformServices made;
        made.files = files;
        made.facts = std::make_shared<SystemFacts>(files, QProcessEnvironment());
        return made;
    }();
    files->bytes = QByteArray(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    SupabaseClient::loadConfig(services);
    SupabaseClient::cachedCatalogRows(services);
    SupabaseClient::cachedBusinessPolicyRows(services);
    // What is written reads the same again.
    const QJsonObject object = CloudCache::read(services, CloudCache::catalogFile);
    if (CloudCache::write(services, CloudCache::catalogFile, object, nullptr) &&
        CloudCache::read(services, CloudCache::catalogFile) != object)
        std::abort();
    return 0;
}
